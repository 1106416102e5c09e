#include "gui/dialogs/desktop_dialogs.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QInputDialog>
#include <QMessageBox>
#include <QScreen>

#include "gui/dialogs/window_placement.h"
#include "gui/look/appearance.h"
#include "gui/window/form_window.h"
#include "gui/window/windows1252.h"
#include "screen/form.h"

namespace veridraw::gui {

namespace {

constexpr int kButtonSet = 0x07;
constexpr int kIcon = 0x70;

// Prompts break lines with CR LF, as the model writes them.
QString dialogText(const std::string& text) {
  return fromWindows1252(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

// A modal box as the platform's own are: a title bar with only its close
// control, a size that the user can't change, and room for its whole title.
// The window manager's title font and buttons are its own: the room is
// measured in the desktop's title font, with a title bar's height for each of
// the icon and the buttons that a window manager may still put beside it.
void frameAsModalBox(QDialog& box) {
  box.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                     Qt::WindowCloseButtonHint);
  const QFontMetrics title(QFontDatabase::systemFont(QFontDatabase::TitleFont));
  constexpr int kTitleBarItems = 5;
  const int titleBarHeight = title.height() * 8 / 5;
  const int titleWidth =
      title.horizontalAdvance(box.windowTitle()) + kTitleBarItems * titleBarHeight;
  // An input dialog makes its layout when it is first measured.
  if (box.layout() == nullptr) box.sizeHint();
  auto* room = new QSpacerItem(titleWidth, 0, QSizePolicy::Fixed, QSizePolicy::Minimum);
  if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
    grid->addItem(room, grid->rowCount(), 0, 1, grid->columnCount());
  } else {
    box.layout()->addItem(room);
  }
  box.layout()->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace

int DesktopDialogs::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
  QWidget* parent = owner();
  const bool yesNo = (buttons & kButtonSet) == msgbox::kYesNo;
  const bool exclamation = (buttons & kIcon) == msgbox::kExclamation;
  QMessageBox box(exclamation ? QMessageBox::Warning : QMessageBox::NoIcon, fromWindows1252(title),
                  dialogText(prompt), yesNo ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok,
                  parent);
  box.setTextFormat(Qt::PlainText);
  frameAsModalBox(box);
  if (const auto* window = dynamic_cast<const FormWindow*>(parent)) {
    const QRect owner = window->frameGeometry();
    const QRect keepClear = window->keepClearArea();
    new FramePlacer(box, [&box, owner, keepClear](const QSize& frame) {
      return messageBoxPlace(box.screen()->availableGeometry(), owner, frame, keepClear);
    });
  }
  box.exec();
  const QMessageBox::StandardButton pressed = box.standardButton(box.clickedButton());
  if (pressed == QMessageBox::Yes) return msgbox::kYes;
  if (pressed == QMessageBox::No || yesNo) return msgbox::kNo;
  return msgbox::kOk;
}

std::string DesktopDialogs::InputBox(const std::string& prompt, const std::string& title,
                                     const std::string& defaultText, int xpos, int ypos) {
  QWidget* parent = owner();
  QInputDialog box(parent);
  box.setInputMode(QInputDialog::TextInput);
  box.setWindowTitle(fromWindows1252(title));
  box.setLabelText(dialogText(prompt));
  box.setTextValue(fromWindows1252(defaultText));
  frameAsModalBox(box);
  // The frame's top-left corner, title bar included, at the point given on
  // the desktop that the screens were laid out on.
  const QPoint designed(toPixels(xpos), toPixels(ypos));
  new FramePlacer(box, [&box, designed](const QSize& frame) {
    return inputBoxPlace(box.screen()->availableGeometry(), designed, frame);
  });
  if (box.exec() != QDialog::Accepted) return "";
  return toWindows1252(box.textValue());
}

QString runTimeErrorText(const FatalError& error) {
  return QStringLiteral("Run-time error '%1':\n\n%2")
      .arg(error.number())
      .arg(fromWindows1252(error.text()));
}

void showRunTimeError(QWidget* owner, const FatalError& error) {
  QMessageBox box(QMessageBox::Critical, fromWindows1252(kFormCaption), runTimeErrorText(error),
                  QMessageBox::Ok, owner);
  box.setTextFormat(Qt::PlainText);
  frameAsModalBox(box);
  box.exec();
}

}  // namespace veridraw::gui
