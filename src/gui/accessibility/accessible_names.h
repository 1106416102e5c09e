// The words with which a screen reader names a control of a form: a button or
// a label by its caption, a list or a picture by its tool-tip, a number cell by
// its line and place on the ticket or by the label beside it. They are read
// from the control and its form as they stand, and change nothing.
#pragma once

#include <QString>

#include "screen/control.h"

namespace veridraw::gui {

// The control's name for a screen reader; empty only for a label without a
// caption.
QString accessibleName(const Control& control);

// A caption as it is read: without the "&" that marks the access key ("&&"
// stands for one ampersand), the runs of blanks that lay it out made one.
QString spokenCaption(const QString& caption);

// The access key as a shortcut, "Alt+S"; empty for a control without one.
QString accessKeyShortcut(const Control& control);

}  // namespace veridraw::gui
