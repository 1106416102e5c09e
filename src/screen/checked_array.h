// A form-level array with declared bounds, as the forms runtime dimensions one:
// `TicketCells(0 To 87)`. An index outside the bounds is fatal error 9.
#pragma once

#include <cstddef>
#include <vector>

#include "screen/fatal.h"

namespace veridraw {

template <class T>
class CheckedArray {
 public:
  CheckedArray(int lower, int upper)
      : lower_(lower), values_(static_cast<std::size_t>(upper - lower + 1)) {}

  T& operator()(int index) { return values_[offset(index)]; }
  const T& operator()(int index) const { return values_[offset(index)]; }

  int lower() const { return lower_; }
  int upper() const { return lower_ + static_cast<int>(values_.size()) - 1; }

 private:
  std::size_t offset(int index) const {
    if (index < lower() || index > upper()) raiseFatal(ErrorNumber::SubscriptOutOfRange);
    return static_cast<std::size_t>(index - lower_);
  }

  int lower_;
  std::vector<T> values_;
};

}  // namespace veridraw
