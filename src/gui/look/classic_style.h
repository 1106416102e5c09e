// The look of the whole program, its dialogs included: the classic desktop of
// grey raised buttons and sunken white fields that the forms were laid out for.
#pragma once

namespace veridraw::gui {

// Call once, after the QApplication is made.
void useClassicStyle();

}  // namespace veridraw::gui
