#include "screen/integer.h"

#include <cmath>

#include "screen/fatal.h"

namespace veridraw {

void Integer::overflow() {
  raiseFatal(ErrorNumber::Overflow);
}

Integer Integer::fromDouble(double value) {
  if (std::isnan(value)) raiseFatal(ErrorNumber::Overflow);
  const double rounded = std::nearbyint(value);  // the default mode rounds half to even
  if (rounded < INT16_MIN || rounded > INT16_MAX) raiseFatal(ErrorNumber::Overflow);
  return Integer(static_cast<int>(rounded));
}

}  // namespace veridraw
