// What a screen reader reads of a window: its accessible tree, one line an
// object, indented by depth, with the role, the name, the value, the shortcut
// and the states that matter to the user.
#pragma once

#include <QAccessible>
#include <QString>
#include <QWidget>

namespace veridraw::gui::testing {

QString roleName(QAccessible::Role role);
// "focused focusable editable readOnly", in that order, of those that are set.
QString stateWords(const QAccessible::State& state);
// One object: role "name" = "value" [shortcut] (states).
QString describe(QAccessibleInterface& object);
// The whole tree under the window, one object a line.
QString accessibleTree(QWidget& window);

}  // namespace veridraw::gui::testing
