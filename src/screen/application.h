// The running program: its forms, the one on screen, the keyboard focus, the
// platform operations that the logic calls, and the boundary at which every
// user action starts an event and at which End and fatal errors stop it.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "screen/dialogs.h"
#include "screen/fatal.h"
#include "screen/files.h"
#include "screen/form.h"
#include "screen/keys.h"

namespace veridraw {

class Application {
 public:
  enum class State { NotStarted, Running, Ended, Fatal };
  // Change events nested deeper than this are fatal error 28.
  static constexpr int kMaxEventNesting = 200;

  Application(Dialogs& dialogs, std::filesystem::path workingDirectory);
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;
  ~Application();

  template <class F, class... Args>
  F& addForm(Args&&... args) {
    auto form = std::make_unique<F>(*this, std::forward<Args>(args)...);
    F& result = *form;
    forms_.push_back(std::move(form));
    return result;
  }
  Form& form(std::string_view name) const;
  Form* findForm(std::string_view name) const;

  // Shows the first form, as a user's launch does.
  void start(std::string_view firstForm);

  // The platform operations.
  void show(Form& form);
  void unload(Form& form);
  [[noreturn]] void end();
  int MsgBox(const std::string& prompt, int buttons, const std::string& title);
  std::string InputBox(const std::string& prompt, const std::string& title,
                       const std::string& defaultText, int xpos, int ypos);
  SequentialFiles& files() { return files_; }

  State state() const { return state_; }
  bool running() const { return state_ == State::Running; }
  const std::optional<FatalError>& fatalError() const { return fatal_; }
  Form* activeForm() const { return active_; }
  Control* focus() const;

  // SetFocus: fatal error 5 unless the control can take the focus.
  void setFocus(Control& control);
  // Called when a control is hidden or disabled: if it has the focus, the
  // focus moves on along the tab order.
  void focusLeaves(Control& control);
  // Runs an event handler, counting the nesting of events.
  void runHandler(const std::function<void()>& handler);

  // The user's actions. Each is one event of the program, run to its end.
  void click(Control& control);
  void selectItem(Control& list, int index);
  // A key for the focused control: a text box edits, a button takes Enter and
  // Space as a click, a list box moves its selection (arrows, Home, End, Page
  // Up, Page Down); Tab walks the tab order.
  void pressKey(Key key);
  // A typed character: a text box takes it at the caret; a list box selects
  // the next item that begins with it.
  void typeCharacter(char c);
  // Alt and a letter: a button that alone on the form on screen has that
  // access key is clicked; when several have it, the focus moves on to the
  // next of them in tab order, and nothing is clicked.
  void pressAccessKey(char letter);
  void closeWindow();

 private:
  template <class Action>
  void dispatch(Action&& action);
  void stop(State state);
  void moveFocus(Form& form, Control* from, bool backwards);
  void focusFirst(Form& form);
  void keyOnTextBox(Control& box, Key key);
  void keyOnList(Control& list, Key key);
  void typeOnList(Control& list, char c);
  // Selects an item as the user does from the keyboard: Click runs when the
  // selection changes.
  void userSelects(Control& list, int index);
  // The visible, enabled buttons whose access key is `letter`, in tab order.
  static std::vector<Control*> accessKeyOwners(Form& form, char letter);

  Dialogs& dialogs_;
  SequentialFiles files_;
  std::vector<std::unique_ptr<Form>> forms_;
  Form* active_ = nullptr;
  State state_ = State::NotStarted;
  std::optional<FatalError> fatal_;
  int nesting_ = 0;
  std::vector<std::unique_ptr<Control>> graveyard_;
};

}  // namespace veridraw
