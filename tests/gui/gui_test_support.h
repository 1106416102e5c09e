// What the Qt Tests of the desktop share: the program running in a fresh
// directory with a real desktop face, and a way to answer the modal dialog
// that the program is about to show.
#pragma once

#include <QMessageBox>
#include <QPoint>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "gui/dialogs/desktop_dialogs.h"
#include "gui/window/control_view.h"
#include "gui/window/desktop.h"
#include "gui/window/form_window.h"
#include "screen/application.h"

namespace veridraw::gui::testing {

class ProgramOnDesktop {
 public:
  using FormAdder = std::function<void(Application&)>;
  // The forms of Veridraw unless others are given.
  explicit ProgramOnDesktop(const FormAdder& addForms = {});

  void start(std::string_view firstForm);
  // Puts the files that Veridraw is delivered with into the directory.
  void deliver();
  // Writes a file of the directory, or reads one whole; "" for a missing one.
  void writeFile(const std::string& name, const std::string& content);
  std::string fileContent(const std::string& name) const;
  Application& application() { return application_; }
  Desktop& desktop() { return desktop_; }
  // The window on screen; null when there is none.
  FormWindow* window() const { return desktop_.window(); }
  // The view of a control of the window on screen; null when there is none.
  ControlView* view(std::string_view name, int index = kNotInArray) const;
  const QTemporaryDir& directory() const { return directory_; }

 private:
  QTemporaryDir directory_;
  DesktopDialogs dialogs_;
  Application application_;
  Desktop desktop_;
};

// The program as it is delivered, started at its first screen.
std::unique_ptr<ProgramOnDesktop> startAsDelivered();

// Makes draw 705 the current draw: Lotto 3 8 17 22 39 40, bonus 12,
// PowerBall 2; Strike 17 3 39 8.
void makeDraw705Current(ProgramOnDesktop& program);

// From the start screen through the draw screen to a ticket screen, through
// the real widgets: Enter, Alt+Y (Check Your Tickets) and a click on the
// picture button of the game.
void openTicketScreen(ProgramOnDesktop& program, std::string_view gameButton);

// The top-level windows of forms that are visible now.
int visibleFormWindows();

// Waits, from its making to its end, for a modal dialog to stand, and then
// calls `handle` with it; `handle` must close it.
class DialogAnswer {
 public:
  explicit DialogAnswer(std::function<void(QWidget* dialog)> handle);
  DialogAnswer(const DialogAnswer&) = delete;
  DialogAnswer& operator=(const DialogAnswer&) = delete;

  bool answered() const { return answered_; }

 private:
  QTimer timer_;
  std::function<void(QWidget*)> handle_;
  bool answered_ = false;
};

// What a message box showed.
struct MessageBoxSeen {
  QString title;
  QString text;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  QMessageBox::StandardButtons buttons;
};

// What the message box shows.
MessageBoxSeen seenIn(const QMessageBox& box);

// Waits for a message box, notes in `seen` what it shows, and presses `button`.
DialogAnswer answerMessageBox(QMessageBox::StandardButton button, MessageBoxSeen& seen);

// What an input box showed.
struct InputBoxSeen {
  QString title;
  QString prompt;
  QString start;
  QPoint place;
};

// Waits for an input box, notes in `seen` what it shows, types `answer` into
// its field key by key and presses Enter, which is OK.
DialogAnswer answerInputBox(const QString& answer, InputBoxSeen& seen);

// Where a window's frame stands on the 800 x 600 desktop that the screens were
// laid out on, as the program places it on the screen.
QPoint placeOnDesignedDesktop(const QWidget& window);

// The point of a view, in its own coordinates, that a click should hit.
QPoint middleOf(const QWidget& view);

}  // namespace veridraw::gui::testing
