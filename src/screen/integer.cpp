#include "screen/integer.h"

#include <cmath>

#include "screen/fatal.h"

namespace veridraw {

namespace {

Integer checked(long long value) {
  if (value < INT16_MIN || value > INT16_MAX) raiseFatal(ErrorNumber::Overflow);
  return Integer(static_cast<int>(value));
}

}  // namespace

Integer::Integer(int value) {
  if (value < INT16_MIN || value > INT16_MAX) raiseFatal(ErrorNumber::Overflow);
  value_ = static_cast<std::int16_t>(value);
}

Integer Integer::fromDouble(double value) {
  if (std::isnan(value)) raiseFatal(ErrorNumber::Overflow);
  const double rounded = std::nearbyint(value);  // the default mode rounds half to even
  if (rounded < INT16_MIN || rounded > INT16_MAX) raiseFatal(ErrorNumber::Overflow);
  return Integer(static_cast<int>(rounded));
}

Integer& Integer::operator++() {
  return *this = checked(static_cast<long long>(value_) + 1);
}
Integer& Integer::operator--() {
  return *this = checked(static_cast<long long>(value_) - 1);
}

Integer operator+(Integer a, Integer b) {
  return checked(static_cast<long long>(a) + int(b));
}
Integer operator+(Integer a, int b) {
  return checked(static_cast<long long>(a) + b);
}
Integer operator+(int a, Integer b) {
  return checked(static_cast<long long>(a) + int(b));
}
Integer operator-(Integer a, Integer b) {
  return checked(static_cast<long long>(a) - int(b));
}
Integer operator-(Integer a, int b) {
  return checked(static_cast<long long>(a) - b);
}
Integer operator-(int a, Integer b) {
  return checked(static_cast<long long>(a) - int(b));
}
Integer operator*(Integer a, Integer b) {
  return checked(static_cast<long long>(a) * int(b));
}
Integer operator*(Integer a, int b) {
  return checked(static_cast<long long>(a) * b);
}
Integer operator*(int a, Integer b) {
  return checked(static_cast<long long>(a) * int(b));
}

}  // namespace veridraw
