#include "gui/look/classic_style.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

#include "gui/look/appearance.h"
#include "screen/design.h"

namespace veridraw::gui {

void useClassicStyle() {
  if (QStyle* style = QStyleFactory::create(QStringLiteral("Windows")))
    QApplication::setStyle(style);
  const QColor face = modelColor(colors::kButtonFace);
  QPalette palette(Qt::black, face, edges::kHighlight, edges::kShadow, edges::kShadow, Qt::black,
                   Qt::white, Qt::white, face);
  palette.setColor(QPalette::Highlight, edges::kSelection);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
  palette.setColor(QPalette::ToolTipText, Qt::black);
  QApplication::setPalette(palette);
  QApplication::setFont(modelFont(8.25, false));
}

}  // namespace veridraw::gui
