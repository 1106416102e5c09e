#include "screen/application.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace veridraw {

Application::Application(Dialogs& dialogs, std::filesystem::path workingDirectory)
    : dialogs_(dialogs), files_(std::move(workingDirectory)) {}

Application::~Application() = default;

Form* Application::findForm(std::string_view name) const {
  for (const auto& form : forms_)
    if (form->name() == name) return form.get();
  return nullptr;
}

Form& Application::form(std::string_view name) const {
  if (Form* found = findForm(name)) return *found;
  throw std::logic_error("no form " + std::string(name));
}

namespace {

// The first control after `from` in tab order (before it, when going
// backwards), wrapping round, that `wanted` accepts; null if none does. With
// no `from` the walk starts at the first control.
template <class Wanted>
Control* nextInTabOrder(const Form& form, const Control* from, bool backwards, Wanted&& wanted) {
  std::vector<Control*> order = form.tabOrder();
  if (backwards) std::reverse(order.begin(), order.end());
  const auto start = std::find(order.begin(), order.end(), from);
  const std::size_t first = start == order.end() ? 0 : std::size_t(start - order.begin()) + 1;
  for (std::size_t step = 0; step < order.size(); ++step) {
    Control* candidate = order[(first + step) % order.size()];
    if (wanted(candidate)) return candidate;
  }
  return nullptr;
}

}  // namespace

template <class Action>
void Application::dispatch(Action&& action) {
  if (state_ != State::Running) return;
  try {
    action();
  } catch (const ProgramEnd&) {
    stop(State::Ended);
  } catch (const FatalError& error) {
    fatal_ = error;
    stop(State::Fatal);
  }
  graveyard_.clear();
}

void Application::stop(State state) {
  state_ = state;
  nesting_ = 0;
  try {
    files_.CloseAll();
  } catch (const FatalError&) {
    // The program is already ending; what could not be written stays unwritten.
  }
}

void Application::start(std::string_view firstForm) {
  if (state_ != State::NotStarted) throw std::logic_error("the program has already started");
  state_ = State::Running;
  dispatch([&] { show(form(firstForm)); });
}

void Application::show(Form& form) {
  if (!form.loaded()) form.load();
  active_ = &form;
  if (form.focus() == nullptr) focusFirst(form);
}

void Application::unload(Form& form) {
  if (!form.loaded()) return;
  form.destroyControls(graveyard_);
  if (active_ == &form) {
    // The last screen is gone: the program has nothing left to show.
    active_ = nullptr;
    end();
  }
}

void Application::end() {
  throw ProgramEnd{};
}

int Application::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
  return dialogs_.MsgBox(prompt, buttons, title);
}

std::string Application::InputBox(const std::string& prompt, const std::string& title,
                                  const std::string& defaultText, int xpos, int ypos) {
  return dialogs_.InputBox(prompt, title, defaultText, xpos, ypos);
}

Control* Application::focus() const {
  return active_ != nullptr ? active_->focus() : nullptr;
}

void Application::setFocus(Control& control) {
  if (!control.canTakeFocus()) raiseFatal(ErrorNumber::InvalidProcedureCall);
  control.form().setFocusPointer(&control);
}

void Application::focusLeaves(Control& control) {
  Form& form = control.form();
  if (form.focus() == &control) moveFocus(form, &control, false);
}

void Application::runHandler(const std::function<void()>& handler) {
  if (nesting_ >= kMaxEventNesting) raiseFatal(ErrorNumber::OutOfStackSpace);
  ++nesting_;
  struct Unnest {
    int& nesting;
    ~Unnest() { nesting = std::max(0, nesting - 1); }
  } unnest{nesting_};
  handler();
}

void Application::focusFirst(Form& form) {
  for (Control* control : form.tabOrder()) {
    if (control->canTakeFocus() && control->tabStop()) {
      form.setFocusPointer(control);
      return;
    }
  }
}

void Application::moveFocus(Form& form, Control* from, bool backwards) {
  const auto isTabStop = [](const Control* c) { return c->canTakeFocus() && c->tabStop(); };
  if (Control* next = nextInTabOrder(form, from, backwards, isTabStop)) {
    form.setFocusPointer(next);
    return;
  }
  // No tab stop is left: the focus stays where it is, if it still can.
  form.setFocusPointer(from != nullptr && from->canTakeFocus() ? from : nullptr);
}

void Application::click(Control& control) {
  dispatch([&] {
    if (!control.visible() || !control.enabled()) return;
    if (control.canTakeFocus() && control.focusOnClick()) control.form().setFocusPointer(&control);
    if (control.kind() != ControlKind::TextBox && control.kind() != ControlKind::ListBox)
      control.form().raise(Event::Click, control);
  });
}

void Application::selectItem(Control& list, int index) {
  dispatch([&] {
    if (!list.canTakeFocus()) return;
    list.form().setFocusPointer(&list);
    list.selectItem(index);
    list.form().raise(Event::Click, list);
  });
}

void Application::keyOnTextBox(Control& box, Key key) {
  switch (key) {
    case Key::Space:
      box.typeCharacter(' ');
      break;
    case Key::Backspace:
      box.backspace();
      break;
    case Key::Delete:
      box.deleteForward();
      break;
    case Key::Left:
      box.setCaret(box.caret() - 1);
      break;
    case Key::Right:
      box.setCaret(box.caret() + 1);
      break;
    case Key::Home:
      box.setCaret(0);
      break;
    case Key::End:
      box.setCaret(static_cast<int>(box.text().size()));
      break;
    default:
      break;
  }
}

void Application::keyOnList(Control& list, Key key) {
  const int last = list.listCount() - 1;
  const int current = list.listIndex();
  // Page Up and Page Down move by a page less one row, as platform list boxes
  // do, so that the item at one edge of the view comes to stand at the other.
  const int page = std::max(1, list.visibleRows() - 1);
  int wanted = current;
  switch (key) {
    case Key::Up:
    case Key::Left:
      wanted = std::max(0, current - 1);
      break;
    case Key::Down:
    case Key::Right:
      wanted = std::min(last, current + 1);
      break;
    case Key::PageUp:
      wanted = std::max(0, current - page);
      break;
    case Key::PageDown:
      wanted = std::min(last, std::max(current, 0) + page);
      break;
    case Key::Home:
      wanted = 0;
      break;
    case Key::End:
      wanted = last;
      break;
    default:
      return;
  }
  userSelects(list, wanted);
}

void Application::typeOnList(Control& list, char c) {
  // The next item after the selection that begins with the character, in
  // either case, wrapping round; the selected item itself comes last.
  const auto folded = [](char letter) { return std::toupper(static_cast<unsigned char>(letter)); };
  const int count = list.listCount();
  for (int step = 1; step <= count; ++step) {
    const int index = (list.listIndex() + step) % count;
    const std::string& item = list.items()[static_cast<std::size_t>(index)];
    if (!item.empty() && folded(item.front()) == folded(c)) {
      userSelects(list, index);
      return;
    }
  }
}

void Application::userSelects(Control& list, int index) {
  if (list.listCount() == 0 || index == list.listIndex()) return;
  list.selectItem(index);
  list.form().raise(Event::Click, list);
}

void Application::pressKey(Key key) {
  dispatch([&] {
    Form* form = active_;
    if (form == nullptr) return;
    if (key == Key::Tab || key == Key::ShiftTab) {
      moveFocus(*form, form->focus(), key == Key::ShiftTab);
      return;
    }
    Control* focused = form->focus();
    if (focused == nullptr) return;
    switch (focused->kind()) {
      case ControlKind::TextBox:
        keyOnTextBox(*focused, key);
        break;
      case ControlKind::ListBox:
        keyOnList(*focused, key);
        break;
      case ControlKind::CommandButton:
        if (key == Key::Enter || key == Key::Space) {
          form->raise(Event::Click, *focused);
        } else if (key == Key::Right || key == Key::Down || key == Key::Left || key == Key::Up) {
          moveFocus(*form, focused, key == Key::Left || key == Key::Up);
        }
        break;
      default:
        break;
    }
  });
}

void Application::typeCharacter(char c) {
  if (c == '\r' || c == '\n') return pressKey(Key::Enter);
  if (c == '\t') return pressKey(Key::Tab);
  if (c == '\b') return pressKey(Key::Backspace);
  if (c == ' ') return pressKey(Key::Space);
  dispatch([&] {
    Control* focused = focus();
    if (focused == nullptr) return;
    if (focused->kind() == ControlKind::TextBox) focused->typeCharacter(c);
    if (focused->kind() == ControlKind::ListBox) typeOnList(*focused, c);
  });
}

std::vector<Control*> Application::accessKeyOwners(Form& form, char letter) {
  const char wanted = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
  std::vector<Control*> owners;
  for (Control* control : form.tabOrder())
    if (control->kind() == ControlKind::CommandButton && control->canTakeFocus() &&
        control->accessKey() == wanted)
      owners.push_back(control);
  return owners;
}

void Application::pressAccessKey(char letter) {
  dispatch([&] {
    if (active_ == nullptr) return;
    Form& form = *active_;
    const std::vector<Control*> owners = accessKeyOwners(form, letter);
    if (owners.empty()) return;
    if (owners.size() == 1) {
      form.setFocusPointer(owners.front());
      form.raise(Event::Click, *owners.front());
      return;
    }
    // A letter that several buttons on screen share presses none of them: the
    // focus moves to the first of them after the focused control in tab order,
    // wrapping, and Enter or Space then presses it.
    const auto isOwner = [&owners](const Control* c) {
      return std::find(owners.begin(), owners.end(), c) != owners.end();
    };
    form.setFocusPointer(nextInTabOrder(form, form.focus(), false, isOwner));
  });
}

void Application::closeWindow() {
  dispatch([&] { end(); });
}

}  // namespace veridraw
