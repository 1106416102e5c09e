// Checks of the screen of the running program that the tests of the draw and
// ticket screens share. Each check looks twice: at the control in the model
// and at its view in the real window.
#pragma once

#include <QColor>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <memory>

#include "gui_test_support.h"

namespace veridraw::gui::testing {

// Where the draw screen and the ticket screens put their input boxes, 3280 and
// 2750 twips, in pixels.
inline const QPoint kInputBoxPlace(219, 183);

// What stood on the screen while a WARNING about a refused number was up.
struct WarningSeen {
  MessageBoxSeen box;
  QString cellText;              // the refused text, as the cell showed it
  std::int32_t modelColour = 0;  // the cell's BackColor in the model
  QColor screenColour;           // the colour of the cell inside its border
};

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

  // Waits for the message box about the number typed into the cell, notes in
  // `seen` what stood while it was up, and answers it with OK.
  DialogAnswer answerWarning(const char* cell, int index, WarningSeen& seen);

  std::unique_ptr<ProgramOnDesktop> program_;
};

}  // namespace veridraw::gui::testing
