#include "runner/values.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <functional>
#include <initializer_list>
#include <map>

namespace veridraw::script {

namespace {

using Kinds = std::initializer_list<ControlKind>;
constexpr auto kText = ControlKind::TextBox;
constexpr auto kLabel = ControlKind::Label;
constexpr auto kButton = ControlKind::CommandButton;
constexpr auto kList = ControlKind::ListBox;
constexpr auto kImage = ControlKind::Image;
constexpr auto kDocument = ControlKind::Document;

struct PropertyReader {
  std::vector<ControlKind> kinds;
  std::function<Value(const Control&)> read;
};

Value number(double value) {
  return value;
}

const std::map<std::string, PropertyReader>& propertyTable() {
  static const std::map<std::string, PropertyReader> table = {
      {"Text", {Kinds{kText, kList}, [](const Control& c) { return Value(c.text()); }}},
      {"Caption", {Kinds{kLabel, kButton}, [](const Control& c) { return Value(c.caption()); }}},
      {"Visible",
       {Kinds{kText, kLabel, kButton, kList, kImage, kDocument},
        [](const Control& c) { return Value(c.visible()); }}},
      {"Enabled",
       {Kinds{kText, kLabel, kButton, kList, kImage, kDocument},
        [](const Control& c) { return Value(c.enabled()); }}},
      {"Locked", {Kinds{kText}, [](const Control& c) { return Value(c.locked()); }}},
      {"TabStop",
       {Kinds{kText, kButton, kList}, [](const Control& c) { return Value(c.tabStop()); }}},
      {"TabIndex",
       {Kinds{kText, kLabel, kButton, kList},
        [](const Control& c) { return number(c.tabIndex()); }}},
      {"BackColor",
       {Kinds{kText, kLabel, kButton, kList},
        [](const Control& c) { return number(c.backColor()); }}},
      {"ForeColor",
       {Kinds{kText, kLabel, kList}, [](const Control& c) { return number(c.foreColor()); }}},
      {"Left",
       {Kinds{kText, kLabel, kButton, kList, kImage, kDocument},
        [](const Control& c) { return number(c.left()); }}},
      {"Top",
       {Kinds{kText, kLabel, kButton, kList, kImage, kDocument},
        [](const Control& c) { return number(c.top()); }}},
      {"Width",
       {Kinds{kText, kLabel, kButton, kList, kImage, kDocument},
        [](const Control& c) { return number(c.width()); }}},
      {"Height",
       {Kinds{kText, kLabel, kButton, kList, kImage, kDocument},
        [](const Control& c) { return number(c.height()); }}},
      {"FontSize",
       {Kinds{kText, kLabel, kButton, kList},
        [](const Control& c) { return number(c.fontSize()); }}},
      {"FontBold",
       {Kinds{kText, kLabel, kButton, kList},
        [](const Control& c) { return Value(c.fontBold()); }}},
      {"BorderStyle",
       {Kinds{kText, kLabel, kImage, kDocument, kList},
        [](const Control& c) { return number(c.borderStyle()); }}},
      {"TopIndex", {Kinds{kList}, [](const Control& c) { return number(c.topIndex()); }}},
      {"ListCount", {Kinds{kList}, [](const Control& c) { return number(c.listCount()); }}},
      {"ListIndex", {Kinds{kList}, [](const Control& c) { return number(c.listIndex()); }}},
      {"ToolTipText",
       {Kinds{kText, kLabel, kButton, kList, kImage},
        [](const Control& c) { return Value(c.toolTipText()); }}},
  };
  return table;
}

bool isDigits(const std::string& text, std::size_t from, std::size_t to, int base) {
  if (from >= to) return false;
  for (std::size_t i = from; i < to; ++i) {
    const auto c = static_cast<unsigned char>(text[i]);
    if (base == 16 ? !std::isxdigit(c) : !std::isdigit(c)) return false;
  }
  return true;
}

// An integer in decimal, optionally negative, or in hexadecimal after "0x"; a
// decimal may carry a fraction, as a font size of 8.25 does.
bool parseNumber(const std::string& text, double& result) {
  if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) {
    if (text.size() > 10 || !isDigits(text, 2, text.size(), 16)) return false;
    result = static_cast<double>(std::stoull(text.substr(2), nullptr, 16));
    return true;
  }
  const std::size_t firstDigit = !text.empty() && text[0] == '-' ? 1 : 0;
  const std::size_t point = text.find('.');
  const std::size_t wholeEnd = point == std::string::npos ? text.size() : point;
  if (!isDigits(text, firstDigit, wholeEnd, 10)) return false;
  if (point != std::string::npos && !isDigits(text, point + 1, text.size(), 10)) return false;
  if (wholeEnd - firstDigit > 15) return false;
  result = std::stod(text);
  return true;
}

}  // namespace

Value parseValue(const Token& token) {
  if (token.quoted) return token.text;
  if (token.text == "True") return true;
  if (token.text == "False") return false;
  double result = 0;
  if (!parseNumber(token.text, result))
    throw ScenarioFailure("not a value: " + token.text + " (a string wants quotes)");
  return result;
}

std::string formatValue(const Value& value, bool asColour) {
  if (const auto* text = std::get_if<std::string>(&value)) return quote(*text);
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "True" : "False";
  const double numberValue = std::get<double>(value);
  char buffer[32];
  if (asColour && numberValue >= 0 && numberValue == std::floor(numberValue)) {
    std::snprintf(buffer, sizeof buffer, "0x%06llX", static_cast<unsigned long long>(numberValue));
  } else {
    std::snprintf(buffer, sizeof buffer, "%.15g", numberValue);
  }
  return buffer;
}

bool sameValue(const Value& expected, const Value& found) {
  if (const auto* foundText = std::get_if<std::string>(&found)) {
    if (const auto* number = std::get_if<double>(&expected))
      return formatValue(*number) == *foundText;
  }
  return expected == found;
}

std::optional<Value> readProperty(const Control& control, const std::string& property) {
  const auto entry = propertyTable().find(property);
  if (entry == propertyTable().end()) return std::nullopt;
  for (const ControlKind kind : entry->second.kinds)
    if (kind == control.kind()) return entry->second.read(control);
  return std::nullopt;
}

bool isColourProperty(const std::string& property) {
  return property == "BackColor" || property == "ForeColor";
}

}  // namespace veridraw::script
