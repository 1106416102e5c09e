// The 16-bit signed integer of the forms runtime. Every form-level counter is
// one; arithmetic and conversions beyond -32768..32767 are fatal error 6.
#pragma once

#include <cstdint>

namespace veridraw {

class Integer {
 public:
  constexpr Integer() = default;
  Integer(int value);  // NOLINT(google-explicit-constructor): assignment reads as in the logic
  static Integer fromDouble(double value);  // rounds half to even, as the runtime does

  operator int() const { return value_; }  // NOLINT(google-explicit-constructor)

  Integer& operator++();
  Integer& operator--();

 private:
  std::int16_t value_ = 0;
};

Integer operator+(Integer a, Integer b);
Integer operator+(Integer a, int b);
Integer operator+(int a, Integer b);
Integer operator-(Integer a, Integer b);
Integer operator-(Integer a, int b);
Integer operator-(int a, Integer b);
Integer operator*(Integer a, Integer b);
Integer operator*(Integer a, int b);
Integer operator*(int a, Integer b);

}  // namespace veridraw
