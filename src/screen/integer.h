// The 16-bit signed integer of the forms runtime. Every form-level counter is
// one; arithmetic and conversions beyond -32768..32767 are fatal error 6.
//
// The arithmetic is inline: the walks of number entry step their counters
// hundreds of times a key, and each step is a sum and a range test. Only the
// overflow itself, which ends the program, is a call.
#pragma once

#include <cstdint>

namespace veridraw {

class Integer {
 public:
  constexpr Integer() = default;
  Integer(int value)  // NOLINT(google-explicit-constructor): assignment reads as in the logic
      : value_(checked(value)) {}
  static Integer fromDouble(double value);  // rounds half to even, as the runtime does

  operator int() const { return value_; }  // NOLINT(google-explicit-constructor)

  Integer& operator++() {
    value_ = checked(static_cast<long long>(value_) + 1);
    return *this;
  }
  Integer& operator--() {
    value_ = checked(static_cast<long long>(value_) - 1);
    return *this;
  }

  // The value if it is within the range; otherwise fatal error 6.
  static std::int16_t checked(long long value) {
    if (value < INT16_MIN || value > INT16_MAX) [[unlikely]]
      overflow();
    return static_cast<std::int16_t>(value);
  }

 private:
  [[noreturn]] static void overflow();

  std::int16_t value_ = 0;
};

inline Integer operator+(Integer a, Integer b) {
  return Integer::checked(static_cast<long long>(a) + int(b));
}
inline Integer operator+(Integer a, int b) {
  return Integer::checked(static_cast<long long>(a) + b);
}
inline Integer operator+(int a, Integer b) {
  return Integer::checked(static_cast<long long>(a) + int(b));
}
inline Integer operator-(Integer a, Integer b) {
  return Integer::checked(static_cast<long long>(a) - int(b));
}
inline Integer operator-(Integer a, int b) {
  return Integer::checked(static_cast<long long>(a) - b);
}
inline Integer operator-(int a, Integer b) {
  return Integer::checked(static_cast<long long>(a) - int(b));
}
inline Integer operator*(Integer a, Integer b) {
  return Integer::checked(static_cast<long long>(a) * int(b));
}
inline Integer operator*(Integer a, int b) {
  return Integer::checked(static_cast<long long>(a) * b);
}
inline Integer operator*(int a, Integer b) {
  return Integer::checked(static_cast<long long>(a) * int(b));
}

}  // namespace veridraw
