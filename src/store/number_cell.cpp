#include "store/number_cell.h"

#include "screen/strings.h"

namespace veridraw {

bool IsFullCell(const std::string& text) {
  return Len(text) == kCompleteCell;
}

bool IsOutOfRange(const std::string& text) {
  return (IsFullCell(text) && Val(text) < kLowestNumber) || Val(text) > kHighestNumber;
}

bool IsOutOfRange(const std::string& text, double value) {
  return (IsFullCell(text) && value < kLowestNumber) || value > kHighestNumber;
}

}  // namespace veridraw
