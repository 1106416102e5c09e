// Checks of the screen of the running program that the tests of the draw and
// ticket screens share. Each check looks twice: at the control in the model
// and at its view in the real window.
#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>
#include <memory>

#include "gui_test_support.h"

namespace veridraw::gui::testing {

// Where the draw screen and the ticket screens put their input boxes, 3280 and
// 2750 twips, in pixels.
inline const QPoint kInputBoxPlace(219, 183);

class ScreenChecks {
 protected:
  Control& control(const char* name, int index = kNotInArray) const;
  // Types the keys into the window, one key press each.
  void type(const char* keys);

  void expectText(const char* name, const char* text, int index = kNotInArray);
  // The texts of the elements 1 and on of a control array.
  void expectCells(const char* name, const QStringList& texts);
  void expectShown(const char* name, bool shown, int index = kNotInArray);
  void expectCellsShown(const char* name, int count, bool shown);
  // The focus is on this control in the model, and on its view alone on the
  // screen, where the view shows it.
  void expectFocus(const char* name, int index = kNotInArray);

  // The text of the view shows whole: as much of it as in a box with room to spare.
  void expectWholeText(const char* name, int index = kNotInArray);

  // Presses the key, which brings up an input box, and answers it with
  // `answer`; gives what the box showed.
  InputBoxSeen pressAndAnswer(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& answer);

  // Types `keys` into the cell, the last of which makes a number that is
  // refused: the message box titled "WARNING", with OK alone, says `message`
  // while the cell stands red on the screen, in view beside the box, and shows
  // the number; OK answers it.
  void typeRefused(const char* keys, const char* cell, int index, const QString& message);

  std::unique_ptr<ProgramOnDesktop> program_;
};

}  // namespace veridraw::gui::testing
