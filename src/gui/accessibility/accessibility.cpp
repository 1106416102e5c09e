#include "gui/accessibility/accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QPointer>
#include <QWindow>
#include <algorithm>
#include <utility>
#include <vector>

#include "gui/accessibility/accessible_names.h"
#include "gui/look/control_look.h"
#include "gui/look/control_painting.h"
#include "gui/window/control_view.h"
#include "gui/window/form_window.h"

namespace veridraw::gui {

namespace {

QAccessible::Role roleOf(ControlKind kind) {
  switch (kind) {
    case ControlKind::CommandButton:
      return QAccessible::Button;
    case ControlKind::TextBox:
      return QAccessible::EditableText;
    case ControlKind::Label:
      return QAccessible::StaticText;
    case ControlKind::ListBox:
      return QAccessible::List;
    case ControlKind::Image:
    case ControlKind::Document:
      return QAccessible::Graphic;
  }
  return QAccessible::Client;
}

bool takesFocus(ControlKind kind) {
  return kind == ControlKind::TextBox || kind == ControlKind::CommandButton ||
         kind == ControlKind::ListBox;
}

FormWindow* windowOf(const ControlView& view) {
  return dynamic_cast<FormWindow*>(view.parentWidget());
}

// The model's control behind the view, while its form still has it.
const Control* controlOf(const ControlView& view) {
  const FormWindow* window = windowOf(view);
  return window != nullptr ? window->controlOf(view) : nullptr;
}

// Whether a view that is shown lies wholly under another shown view that is
// drawn above it: the window stacks its views in the order of its list.
bool covered(const ControlView& view) {
  const FormWindow* window = windowOf(view);
  if (window == nullptr) return false;
  const std::vector<ControlView*>& views = window->views();
  const auto self = std::find(views.begin(), views.end(), &view);
  if (self == views.end()) return false;
  return std::any_of(std::next(self), views.end(), [&](const ControlView* above) {
    return !above->isHidden() && above->geometry().contains(view.geometry());
  });
}

// Whether a screen reader finds the view in the window: shown, not covered,
// and worth reading by its control's design and state.
bool exposed(const ControlView& view) {
  if (view.isHidden()) return false;
  const Control* control = controlOf(view);
  return control != nullptr && readOnItsOwn(*control) && !covered(view);
}

// Whether the view is shown and not covered, though it may be read only with
// the control that it names or describes.
bool exposedOrPartner(const ControlView& view) {
  return !view.isHidden() && !covered(view);
}

QAccessible::Role roleOf(const Control& control) {
  return readAsText(control) ? QAccessible::StaticText : roleOf(control.kind());
}

// One row of a list box. It has no widget of its own: it reads its list's view.
class ListItemAccessible : public QAccessibleInterface {
 public:
  ListItemAccessible(ControlView* list, int row) : list_(list), row_(row) {}

  bool isValid() const override {
    return list_ != nullptr && row_ < static_cast<int>(list_->look().items.size());
  }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return list_ ? list_->window()->windowHandle() : nullptr; }
  QAccessibleInterface* focusChild() const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(list_.data());
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QString text(QAccessible::Text t) const override {
    if (!isValid() || (t != QAccessible::Name && t != QAccessible::Value)) return {};
    return list_->look().items.at(row_);
  }
  void setText(QAccessible::Text, const QString&) override {}
  QAccessible::Role role() const override { return QAccessible::ListItem; }

  QAccessible::State state() const override {
    QAccessible::State state;
    if (!isValid()) return state;
    const ControlLook& look = list_->look();
    const ListRows rows = listRows(list_->rect(), look);
    state.selectable = true;
    state.selected = row_ == look.listIndex;
    state.focusable = true;
    state.focused = state.selected && look.focused;
    state.invisible = list_->isHidden();
    state.offscreen = row_ < look.topIndex || row_ >= look.topIndex + rows.visibleRows;
    return state;
  }

  QRect rect() const override {
    if (!isValid()) return {};
    const QRect row = listRows(list_->rect(), list_->look()).rowRect(row_, list_->look().topIndex);
    return QRect(list_->mapToGlobal(row.topLeft()), row.size());
  }

 private:
  QPointer<ControlView> list_;
  int row_;
};

// A control of the form: the view paints it, the model says what it is.
class ControlAccessible : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit ControlAccessible(ControlView* view)
      : QAccessibleWidget(view, roleOf(view->look().kind)) {}
  ~ControlAccessible() override { dropItems(); }

  ControlView* view() const { return static_cast<ControlView*>(widget()); }
  ControlKind kind() const { return view()->look().kind; }

  QAccessible::Role role() const override {
    const Control* control = controlOf(*view());
    return control != nullptr ? roleOf(*control) : roleOf(kind());
  }

  QString text(QAccessible::Text t) const override {
    const ControlLook& look = view()->look();
    const Control* control = controlOf(*view());
    switch (t) {
      case QAccessible::Name:
        if (control != nullptr) return accessibleName(*control);
        return look.kind == ControlKind::TextBox ? QString() : spokenCaption(look.text);
      case QAccessible::Value:
        // A box of words that names itself by them has no value beside its name.
        if (look.kind == ControlKind::TextBox && control != nullptr && readAsText(*control) &&
            look.text.simplified() == accessibleName(*control))
          return {};
        if (look.kind == ControlKind::TextBox) return look.text;
        if (look.kind == ControlKind::ListBox && look.listIndex >= 0 &&
            look.listIndex < look.items.size())
          return look.items.at(look.listIndex);
        return {};
      case QAccessible::Description:
        return control != nullptr ? accessibleDescription(*control) : QString();
      case QAccessible::Accelerator:
        return control != nullptr ? accessKeyShortcut(*control) : QString();
      default:
        return QAccessibleWidget::text(t);
    }
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    const ControlLook& look = view()->look();
    const Control* control = controlOf(*view());
    const bool shown = exposed(*view());
    state.invisible = !shown;
    const bool asText = control != nullptr && readAsText(*control);
    state.focusable =
        shown && !asText && takesFocus(look.kind) && control != nullptr && control->canTakeFocus();
    state.focused = shown && look.focused;
    state.disabled = !look.enabled;
    // A box that takes numbers is editable while it takes keys, read-only while locked.
    if (look.kind == ControlKind::TextBox && !asText && control != nullptr) {
      state.editable = !control->locked();
      state.readOnly = control->locked();
    }
    return state;
  }

  // A button can be pressed from the screen reader, as a click would.
  QStringList actionNames() const override {
    if (kind() == ControlKind::CommandButton) return {pressAction()};
    return {};
  }
  void doAction(const QString& action) override {
    if (action != pressAction() || kind() != ControlKind::CommandButton) return;
    if (FormWindow* window = windowOf(*view())) window->clicked(*view());
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface && kind() == ControlKind::TextBox)
      return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  // A list's children are its items.
  int childCount() const override {
    if (kind() != ControlKind::ListBox) return QAccessibleWidget::childCount();
    return static_cast<int>(view()->look().items.size());
  }
  QAccessibleInterface* child(int index) const override {
    if (kind() != ControlKind::ListBox) return QAccessibleWidget::child(index);
    if (index < 0 || index >= childCount()) return nullptr;
    if (items_.size() <= static_cast<std::size_t>(index)) items_.resize(index + 1, 0);
    if (items_[index] == 0)
      items_[index] =
          QAccessible::registerAccessibleInterface(new ListItemAccessible(view(), index));
    return QAccessible::accessibleInterface(items_[index]);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    if (kind() != ControlKind::ListBox) return QAccessibleWidget::indexOfChild(child);
    for (std::size_t i = 0; i < items_.size(); ++i)
      if (items_[i] != 0 && QAccessible::accessibleInterface(items_[i]) == child)
        return static_cast<int>(i);
    return -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    if (kind() != ControlKind::ListBox) return QAccessibleWidget::childAt(x, y);
    const ControlLook& look = view()->look();
    const int row = listRows(view()->rect(), look)
                        .rowAt(view()->mapFromGlobal(QPoint(x, y)), look.topIndex,
                               static_cast<int>(look.items.size()));
    return row >= 0 ? child(row) : nullptr;
  }

  // The items of a list are made anew when its rows change.
  void dropItems() {
    for (const QAccessible::Id id : items_)
      if (id != 0) QAccessible::deleteAccessibleInterface(id);
    items_.clear();
  }

  // The text of a text box, read-only: the screen reader follows the model's
  // caret and selection, and sets neither.
  void selection(int index, int* start, int* end) const override {
    *start = *end = 0;
    const ControlLook& look = view()->look();
    if (index != 0 || look.selectionLength == 0) return;
    *start = look.caret;
    *end = look.caret + look.selectionLength;
  }
  int selectionCount() const override { return view()->look().selectionLength > 0 ? 1 : 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  int cursorPosition() const override { return view()->look().caret; }
  void setCursorPosition(int) override {}
  QString text(int start, int end) const override {
    return view()->look().text.mid(start, end - start);
  }
  int characterCount() const override { return static_cast<int>(view()->look().text.size()); }
  QRect characterRect(int offset) const override {
    const QRect character = gui::characterRect(view()->rect(), view()->look(), offset);
    if (character.isNull()) return {};
    return QRect(view()->mapToGlobal(character.topLeft()), character.size());
  }
  int offsetAtPoint(const QPoint& point) const override {
    for (int offset = 0; offset < characterCount(); ++offset)
      if (characterRect(offset).contains(point)) return offset;
    return -1;
  }
  void scrollToSubstring(int, int) override {}
  QString attributes(int offset, int* start, int* end) const override {
    *start = *end = offset;
    return {};
  }

 private:
  mutable std::vector<QAccessible::Id> items_;
};

// The window of a form: its children are the views that a reader finds, in
// the order of the window's list; its focused child is the model's focused
// control, not the window itself, which holds Qt's keyboard focus on the
// model's behalf.
class FormWindowAccessible : public QAccessibleWidget {
 public:
  explicit FormWindowAccessible(FormWindow* window)
      : QAccessibleWidget(window, QAccessible::Window) {}

  FormWindow* formWindow() const { return static_cast<FormWindow*>(widget()); }

  QAccessibleInterface* focusChild() const override {
    ControlView* focused = formWindow()->focusedView();
    if (focused == nullptr) return QAccessibleWidget::focusChild();
    if (!exposed(*focused)) return nullptr;
    return QAccessible::queryAccessibleInterface(focused);
  }

  int childCount() const override { return static_cast<int>(children().size()); }
  QAccessibleInterface* child(int index) const override {
    const std::vector<ControlView*> shown = children();
    if (index < 0 || index >= static_cast<int>(shown.size())) return nullptr;
    return QAccessible::queryAccessibleInterface(shown[static_cast<std::size_t>(index)]);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    const std::vector<ControlView*> shown = children();
    for (std::size_t i = 0; i < shown.size(); ++i)
      if (child != nullptr && child->object() == shown[i]) return static_cast<int>(i);
    return -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    // The topmost first, as the window stacks them.
    const std::vector<ControlView*> shown = children();
    for (auto view = shown.rbegin(); view != shown.rend(); ++view)
      if (QRect((*view)->mapToGlobal(QPoint(0, 0)), (*view)->size()).contains(x, y))
        return QAccessible::queryAccessibleInterface(*view);
    return nullptr;
  }

 private:
  std::vector<ControlView*> children() const {
    std::vector<ControlView*> shown;
    for (ControlView* view : formWindow()->views())
      if (exposed(*view)) shown.push_back(view);
    return shown;
  }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
  if (auto* view = dynamic_cast<ControlView*>(object)) return new ControlAccessible(view);
  if (auto* window = dynamic_cast<FormWindow*>(object)) return new FormWindowAccessible(window);
  return nullptr;
}

AccessibleEventListener listener = nullptr;

void send(QAccessibleEvent&& event) {
  if (listener != nullptr) return listener(&event);
  QAccessible::updateAccessibility(&event);
}

// A control that the reader doesn't find takes the focus unheard.
void sendFocus(ControlView& view) {
  if (exposed(view)) send(QAccessibleEvent(&view, QAccessible::Focus));
}

// The change of a text as the one piece that differs: a typed character is
// heard as that character, not as the whole text again.
void sendTextChange(ControlView& view, const QString& before, const QString& after) {
  qsizetype start = 0;
  while (start < before.size() && start < after.size() && before[start] == after[start])
    ++start;
  qsizetype end = 0;
  while (end < before.size() - start && end < after.size() - start &&
         before[before.size() - 1 - end] == after[after.size() - 1 - end])
    ++end;
  const QString removed = before.mid(start, before.size() - start - end);
  const QString inserted = after.mid(start, after.size() - start - end);
  const int at = static_cast<int>(start);
  if (removed.isEmpty())
    send(QAccessibleTextInsertEvent(&view, at, inserted));
  else if (inserted.isEmpty())
    send(QAccessibleTextRemoveEvent(&view, at, removed));
  else
    send(QAccessibleTextUpdateEvent(&view, at, removed, inserted));
}

// What a refresh has to tell once all its views are brought up to date: the
// view that the focus came to, then the prompts and alerts that came or
// changed, so that the reader lands first and then hears what is new.
struct Pending {
  QPointer<ControlView> focus;
  std::vector<QPointer<ControlView>> announcements;
};

Pending& pending() {
  static Pending waiting;
  return waiting;
}

// A prompt or an alert that comes into view or changes its words is said
// once, unless the focused control's description says it already.
void announce(ControlView& view) {
  const Control* control = controlOf(view);
  if (control == nullptr || !announcesItself(*control)) return;
  pending().announcements.emplace_back(&view);
}

}  // namespace

void installAccessibility() {
  static const bool installed = [] {
    QAccessible::installFactory(makeInterface);
    return true;
  }();
  (void)installed;
}

void setAccessibleEventListener(AccessibleEventListener newListener) {
  listener = newListener;
}

void announceChange(ControlView& view, const ControlLook& before, bool appeared) {
  // A window being made is announced as a whole when it is shown.
  if (!view.window()->isVisible()) return;
  const ControlLook& after = view.look();
  if (appeared || before.text != after.text) announce(view);
  if (before == after) return;
  switch (after.kind) {
    case ControlKind::TextBox:
      if (before.text != after.text) {
        sendTextChange(view, before.text, after.text);
        send(QAccessibleValueChangeEvent(&view, after.text));
      }
      if (after.focused && (before.caret != after.caret || before.text != after.text))
        send(QAccessibleTextCursorEvent(&view, after.caret));
      break;
    case ControlKind::ListBox:
      if (before.items != after.items) {
        if (auto* list =
                dynamic_cast<ControlAccessible*>(QAccessible::queryAccessibleInterface(&view)))
          list->dropItems();
        send(QAccessibleEvent(&view, QAccessible::ObjectReorder));
      }
      if (before.listIndex != after.listIndex || before.items != after.items) {
        const QString selected = after.listIndex >= 0 && after.listIndex < after.items.size()
                                     ? after.items.at(after.listIndex)
                                     : QString();
        send(QAccessibleValueChangeEvent(&view, selected));
        if (after.listIndex >= 0) {
          QAccessibleEvent selection(&view, QAccessible::Selection);
          selection.setChild(after.listIndex);
          send(std::move(selection));
        }
      }
      break;
    default:
      if (before.text != after.text) send(QAccessibleEvent(&view, QAccessible::NameChanged));
      break;
  }
  if (before.enabled != after.enabled) {
    QAccessible::State changed;
    changed.disabled = true;
    send(QAccessibleStateChangeEvent(&view, changed));
  }
  if (after.focused && !before.focused) pending().focus = &view;
}

void finishAnnouncements() {
  Pending waiting = std::exchange(pending(), {});
  // While a message box stands, the reader stays with it; the focus is
  // announced again when the window is back in front.
  if (waiting.focus != nullptr && waiting.focus->look().focused &&
      QApplication::activeModalWidget() == nullptr)
    sendFocus(*waiting.focus);
  for (const QPointer<ControlView>& view : waiting.announcements) {
    if (view == nullptr || !exposedOrPartner(*view)) continue;
    const Control* control = controlOf(*view);
    if (control != nullptr && control->visible() && !describesFocus(*control))
      send(QAccessibleEvent(view.data(), QAccessible::Alert));
  }
}

void announceFocus(const FormWindow& window) {
  if (ControlView* focused = window.focusedView()) sendFocus(*focused);
}

}  // namespace veridraw::gui
