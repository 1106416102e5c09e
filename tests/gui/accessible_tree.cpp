#include "accessible_tree.h"

#include <QStringList>

namespace veridraw::gui::testing {

namespace {

void addTree(QAccessibleInterface& object, int depth, QStringList& lines) {
  lines.append(QString(depth * 2, ' ') + describe(object));
  for (int i = 0; i < object.childCount(); ++i)
    if (QAccessibleInterface* child = object.child(i)) addTree(*child, depth + 1, lines);
}

}  // namespace

QString roleName(QAccessible::Role role) {
  switch (role) {
    case QAccessible::Window:
      return "window";
    case QAccessible::Button:
      return "push button";
    case QAccessible::EditableText:
      return "text";
    case QAccessible::StaticText:
      return "label";
    case QAccessible::List:
      return "list";
    case QAccessible::ListItem:
      return "list item";
    case QAccessible::Graphic:
      return "image";
    case QAccessible::ScrollBar:
      return "scroll bar";
    case QAccessible::Client:
      return "filler";
    default:
      return QString("role %1").arg(static_cast<int>(role));
  }
}

QString stateWords(const QAccessible::State& state) {
  QStringList words;
  if (state.focused) words << "focused";
  if (state.focusable) words << "focusable";
  if (state.editable) words << "editable";
  if (state.invisible) words << "invisible";
  if (state.readOnly) words << "readOnly";
  if (state.disabled) words << "disabled";
  if (state.selected) words << "selected";
  return words.join(' ');
}

QString describe(QAccessibleInterface& object) {
  QString line = roleName(object.role()) + " \"" + object.text(QAccessible::Name) + "\"";
  const QString value = object.text(QAccessible::Value);
  if (!value.isEmpty()) line += " = \"" + value + "\"";
  const QString shortcut = object.text(QAccessible::Accelerator);
  if (!shortcut.isEmpty()) line += " [" + shortcut + "]";
  const QString states = stateWords(object.state());
  if (!states.isEmpty()) line += " (" + states + ")";
  return line;
}

QString accessibleTree(QWidget& window) {
  QStringList lines;
  if (QAccessibleInterface* root = QAccessible::queryAccessibleInterface(&window))
    addTree(*root, 0, lines);
  return lines.join('\n');
}

}  // namespace veridraw::gui::testing
