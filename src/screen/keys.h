// The keys that the screen model understands beside typed characters.
#pragma once

namespace veridraw {

enum class Key {
  Enter,
  Space,
  Tab,
  ShiftTab,
  Backspace,
  Delete,
  Left,
  Right,
  Up,
  Down,
  Home,
  End,
  PageUp,
  PageDown,
  Escape,
};

}  // namespace veridraw
