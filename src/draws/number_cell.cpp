#include "draws/number_cell.h"

#include "screen/strings.h"

namespace veridraw {

bool IsFullCell(const std::string& text) {
  return Len(text) == 3;
}

bool IsOutOfRange(const std::string& text) {
  return (IsFullCell(text) && Val(text) < kLowestNumber) || Val(text) > kHighestNumber;
}

}  // namespace veridraw
