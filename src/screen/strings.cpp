#include "screen/strings.h"

#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdio>

#include "screen/fatal.h"

namespace veridraw {

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n';
}

int hexDigit(char c) {
  if (isDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// A reader over the characters of a number; it skips what `skip` calls blank.
class NumberReader {
 public:
  NumberReader(std::string_view text, bool skipInnerBlanks)
      : text_(text), skipInnerBlanks_(skipInnerBlanks) {}

  char peek() {
    if (skipInnerBlanks_)
      while (pos_ < text_.size() && isBlank(text_[pos_]))
        ++pos_;
    return pos_ < text_.size() ? text_[pos_] : '\0';
  }
  void next() { ++pos_; }
  std::size_t position() const { return pos_; }

  // Reads a radix number after "&H" or "&O"; 16-bit when it fits four hex digits
  // (or six octal), 32-bit when it fits eight, as the runtime types such literals.
  bool readRadix(double& result) {
    if (peek() != '&') return false;
    next();
    int radix = 8;
    const char marker = static_cast<char>(std::toupper(static_cast<unsigned char>(peek())));
    if (marker == 'H') {
      radix = 16;
      next();
    } else if (marker == 'O') {
      next();
    }
    std::uint64_t value = 0;
    int digits = 0;
    for (;;) {
      const int digit = hexDigit(peek());
      if (digit < 0 || digit >= radix) break;
      value = value * radix + digit;
      if (value > 0xFFFFFFFFull) raiseFatal(ErrorNumber::Overflow);
      ++digits;
      next();
    }
    if (value <= 0xFFFF && (radix == 16 ? digits <= 4 : value <= 0177777)) {
      result = static_cast<std::int16_t>(static_cast<std::uint16_t>(value));
    } else {
      result = static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
    }
    return true;
  }

  // Reads a decimal number; false if there is no digit at all.
  bool readDecimal(double& result) {
    std::string literal;
    if (peek() == '+' || peek() == '-') {
      literal += peek();
      next();
    }
    bool anyDigit = false;
    while (isDigit(peek())) {
      literal += peek();
      anyDigit = true;
      next();
    }
    if (peek() == '.') {
      literal += '.';
      next();
      while (isDigit(peek())) {
        literal += peek();
        anyDigit = true;
        next();
      }
    }
    if (!anyDigit) return false;
    const char e = static_cast<char>(std::toupper(static_cast<unsigned char>(peek())));
    if (e == 'E' || e == 'D') {
      const std::size_t before = pos_;
      std::string exponent = "e";
      next();
      if (peek() == '+' || peek() == '-') {
        exponent += peek();
        next();
      }
      bool exponentDigit = false;
      while (isDigit(peek())) {
        exponent += peek();
        exponentDigit = true;
        next();
      }
      if (exponentDigit) {
        literal += exponent;
      } else {
        pos_ = before;
      }
    }
    result = std::strtod(literal.c_str(), nullptr);
    if (std::isinf(result)) raiseFatal(ErrorNumber::Overflow);
    return true;
  }

 private:
  std::string_view text_;
  bool skipInnerBlanks_;
  std::size_t pos_ = 0;
};

std::string_view trimBlanks(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
    text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
    text.remove_suffix(1);
  return text;
}

}  // namespace

double ReadVal(std::string_view text) {
  NumberReader reader(text, true);
  double result = 0;
  if (reader.readRadix(result)) return result;
  NumberReader decimal(text, true);
  return decimal.readDecimal(result) ? result : 0.0;
}

double Val(std::string_view text) {
  // What number cells hold, blanks and a few digits, is read here without the
  // reader; anything else, a sign, a point, a letter or more digits than a
  // double holds exactly, goes to the reader.
  constexpr int kPlainDigits = 15;
  std::int64_t value = 0;
  int digits = 0;
  for (const char c : text) {
    if (isDigit(c)) {
      if (++digits > kPlainDigits) return ReadVal(text);
      value = value * 10 + (c - '0');
    } else if (!isBlank(c)) {
      return ReadVal(text);
    }
  }
  return static_cast<double>(value);
}

double StrictNumber(std::string_view text) {
  const std::string_view number = trimBlanks(text);
  double result = 0;
  NumberReader radix(number, false);
  if (radix.readRadix(result) && radix.position() == number.size() && number.size() > 2)
    return result;
  NumberReader decimal(number, false);
  if (!decimal.readDecimal(result) || decimal.position() != number.size())
    raiseFatal(ErrorNumber::TypeMismatch);
  return result;
}

Integer StrictInteger(std::string_view text) {
  return Integer::fromDouble(StrictNumber(text));
}

std::string CStr(int value) {
  return std::to_string(value);
}

std::string CStr(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.15g", value);
  std::string result = text;
  for (char& c : result)
    if (c == 'e') c = 'E';  // the runtime writes "1E+20"
  return result;
}

std::string Left(std::string_view text, int count) {
  if (count < 0) raiseFatal(ErrorNumber::InvalidProcedureCall);
  return std::string(text.substr(0, static_cast<std::size_t>(count)));
}

std::string Mid(std::string_view text, int start, int count) {
  if (start < 1 || count < 0) raiseFatal(ErrorNumber::InvalidProcedureCall);
  const auto from = static_cast<std::size_t>(start - 1);
  if (from >= text.size()) return "";
  return std::string(text.substr(from, static_cast<std::size_t>(count)));
}

int Len(std::string_view text) {
  return static_cast<int>(text.size());
}

}  // namespace veridraw
