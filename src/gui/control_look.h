// What the screen shows of one control, taken from the model at each redraw.
// A view paints from this copy only, so that it never reads a control that an
// Unload has taken away.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QStringList>
#include <string>

#include "screen/control.h"

namespace veridraw::gui {

struct ControlLook {
  ControlKind kind = ControlKind::Label;
  QString text;  // the text of a text box, the caption of the rest
  QColor background;
  QColor foreground;
  QFont font;
  int borderStyle = 0;
  Alignment alignment = Alignment::Left;
  std::string picture;
  QStringList items;
  int listIndex = -1;
  int topIndex = 0;
  int caret = 0;
  int selectionLength = 0;
  bool enabled = true;
  bool focused = false;

  bool operator==(const ControlLook&) const = default;
};

ControlLook lookOf(const Control& control, bool focused);

}  // namespace veridraw::gui
