// The words with which a screen reader names and describes a control of a
// form, and whether it reads the control at all. They come from the control's
// kind, its state and its row of the design table (`ControlDesign::reader`):
// no form and no control is known here by name.
#pragma once

#include <QString>

#include "screen/control.h"

namespace veridraw::gui {

// The control's name: the caption of the label that the design names as its
// partner, else the spoken name of the design, else a button's caption or a
// picture's subject, a label's caption, a list's tool-tip, a box's own words.
QString accessibleName(const Control& control);

// What is read after the name: the words of the control that the design says
// describe it, while that one is shown; for a result, what its colour means;
// else the tool-tip.
QString accessibleDescription(const Control& control);

// Whether the control is worth reading on its own, by its design and state:
// not decoration, not a result that holds nothing, not a label without words,
// not a label that names or describes a shown control. Whether it can be seen
// at all, and whether another covers it, is the window's to tell.
bool readOnItsOwn(const Control& control);

// Whether the control is shown as text to read, not as a box to type in: a
// display, a result, a prompt or an alert in a text box.
bool readAsText(const Control& control);

// Whether a change of the control's words, or its coming into view, is to be
// announced: a prompt or an alert.
bool announcesItself(const Control& control);

// Whether the control's words are said by the focused control's description,
// so that announcing them as well would say them twice.
bool describesFocus(const Control& control);

// A caption as it is read: without the "&" that marks the access key ("&&"
// stands for one ampersand), the runs of blanks that lay it out made one.
QString spokenCaption(const QString& caption);

// The access key as a shortcut, "Alt+S"; empty for a control without one.
QString accessKeyShortcut(const Control& control);

}  // namespace veridraw::gui
