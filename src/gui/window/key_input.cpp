#include "gui/window/key_input.h"

#include <optional>

#include "gui/window/windows1252.h"

namespace veridraw::gui {

namespace {

std::optional<Key> modelKey(int qtKey, Qt::KeyboardModifiers modifiers) {
  switch (qtKey) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Key::Enter;
    case Qt::Key_Space:
      return Key::Space;
    case Qt::Key_Tab:
      return modifiers & Qt::ShiftModifier ? Key::ShiftTab : Key::Tab;
    case Qt::Key_Backtab:
      return Key::ShiftTab;
    case Qt::Key_Backspace:
      return Key::Backspace;
    case Qt::Key_Delete:
      return Key::Delete;
    case Qt::Key_Left:
      return Key::Left;
    case Qt::Key_Right:
      return Key::Right;
    case Qt::Key_Up:
      return Key::Up;
    case Qt::Key_Down:
      return Key::Down;
    case Qt::Key_Home:
      return Key::Home;
    case Qt::Key_End:
      return Key::End;
    case Qt::Key_PageUp:
      return Key::PageUp;
    case Qt::Key_PageDown:
      return Key::PageDown;
    case Qt::Key_Escape:
      return Key::Escape;
    default:
      return std::nullopt;
  }
}

bool isLetterOrDigit(int qtKey) {
  return (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) || (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9);
}

bool printable(const QString& text) {
  if (text.isEmpty()) return false;
  for (const QChar character : text)
    if (character.category() == QChar::Other_Control) return false;
  return true;
}

}  // namespace

KeyInput translateKey(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  const bool control = modifiers & (Qt::ControlModifier | Qt::MetaModifier);
  const bool alt = modifiers & Qt::AltModifier;
  if (alt && !control) {
    // The Qt key codes of letters and digits are their upper-case ASCII codes.
    if (isLetterOrDigit(event.key())) return AccessKey{static_cast<char>(event.key())};
    return {};
  }
  // AltGr comes as Ctrl and Alt on some desktops: what it types is typed.
  const bool altGr = control && alt;
  if (control && !altGr) return {};
  if (const std::optional<Key> key = modelKey(event.key(), modifiers); key && !altGr) return *key;
  if (printable(event.text())) return TypedText{toWindows1252(event.text())};
  return {};
}

}  // namespace veridraw::gui
