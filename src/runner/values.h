// The values of the scenario language: byte strings, numbers and True/False,
// and the properties of controls that the checks read.
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "runner/tokens.h"
#include "screen/control.h"

namespace veridraw::script {

using Value = std::variant<std::string, double, bool>;

// A value as written in a scenario: a string, an integer (decimal or 0x hex) or True/False.
Value parseValue(const Token& token);
// A value in the notation of the scenario language; colours in hexadecimal.
std::string formatValue(const Value& value, bool asColour = false);
bool sameValue(const Value& expected, const Value& found);

// The property of the control, or nothing if a control of its kind has no such property.
std::optional<Value> readProperty(const Control& control, const std::string& property);
bool isColourProperty(const std::string& property);

}  // namespace veridraw::script
