// What the screen shows of one control, taken from the model at each redraw.
// A view paints from this copy only, so that it never reads a control that an
// Unload has taken away.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QStringList>
#include <string>
#include <vector>

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
  Picture picture = Picture::None;
  QStringList items;
  int listIndex = -1;
  int topIndex = 0;
  int caret = 0;
  int selectionLength = 0;
  bool enabled = true;
  bool focused = false;

  bool operator==(const ControlLook&) const = default;
};

// The model's strings from which a look's text and items were last converted,
// so that a look brought up to date converts only the strings that changed.
struct LookSources {
  std::string text;
  std::vector<std::string> items;
  bool converted = false;
};

// The text as the control shows it: a caption without the "&" that marks its
// access key ("&&" shows one "&").
QString shownText(const ControlLook& look);

ControlLook lookOf(const Control& control, bool focused);

// Brings `look` up to the control's present state, converting the text and the
// items only where they differ from `sources`, which it then updates.
void updateLook(ControlLook& look, LookSources& sources, const Control& control, bool focused);

}  // namespace veridraw::gui
