// What a screen reader gets of the forms. The views are painted by hand and
// never hold the keyboard focus, so Qt alone would offer them as nameless
// panes; here each gets an accessible interface of its kind (button, text,
// label, list with its items, picture) that reads the model's control: its
// name, description, text, state and access key, as its design tells them.
// The window offers only the views worth reading (not decoration, not what is
// hidden or covered) and reports the model's focused control as its focused
// child; each refresh tells the screen reader what changed in a view, and
// says a prompt or an alert once when it comes or changes.
#pragma once

class QAccessibleEvent;

namespace veridraw::gui {

class ControlView;
class FormWindow;
struct ControlLook;

// Makes the interfaces known to Qt's accessibility; once is enough, more
// calls do nothing.
void installAccessibility();

// Where the events of this layer go: to Qt's accessibility, which passes them
// on only while a screen reader listens, unless a listener of one's own is
// set here (null puts Qt back). Qt reports a view shown or hidden by itself.
using AccessibleEventListener = void (*)(QAccessibleEvent* event);
void setAccessibleEventListener(AccessibleEventListener listener);

// Tells a screen reader what changed in the view since it showed `before`:
// its text or caption, its list, its caret, whether it is enabled, and the
// model's focus coming to it; and says a prompt or an alert that changed or,
// `appeared`, came into view.
void announceChange(ControlView& view, const ControlLook& before, bool appeared);

// Ends a refresh of the window's views: tells the reader where the model's
// focus came to, then says each prompt or alert that came or changed.
void finishAnnouncements();

// Tells a screen reader where the model's focus is in the window, as when the
// window comes back to the front.
void announceFocus(const FormWindow& window);

}  // namespace veridraw::gui
