// What a key press on the desktop means to the screen model: a key it knows, a
// typed character, an access key (Alt and a letter), or nothing.
#pragma once

#include <QKeyEvent>
#include <string>
#include <variant>

#include "screen/keys.h"

namespace veridraw::gui {

struct TypedText {
  std::string bytes;  // Windows-1252
  bool operator==(const TypedText&) const = default;
};

struct AccessKey {
  char letter = 0;
  bool operator==(const AccessKey&) const = default;
};

using KeyInput = std::variant<std::monostate, Key, TypedText, AccessKey>;

KeyInput translateKey(const QKeyEvent& event);

}  // namespace veridraw::gui
