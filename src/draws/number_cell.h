// A number cell of the draw screen keeps its state in its text: " " is empty,
// "1 " holds one typed character, "12 " is full (the caret stands before the
// blank that the cell started with), and "  " is the space bar's wish to step
// back.
#pragma once

#include <string>

namespace veridraw {

inline constexpr const char* kEmptyCell = " ";
inline constexpr const char* kStepBackCell = "  ";
inline constexpr int kLowestNumber = 1;
inline constexpr int kHighestNumber = 40;

// Three characters: two typed ones and the blank.
bool IsFullCell(const std::string& text);

// A full cell that Val reads below 1, or any cell that Val reads above 40.
// Letters read as 0; a digit followed by anything reads as that digit.
bool IsOutOfRange(const std::string& text);

}  // namespace veridraw
