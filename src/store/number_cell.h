// A number cell keeps its state in its text, on every screen that takes numbers:
// " " is empty, "1 " holds one typed character, "12 " is full (the caret stands
// before the blank that the cell started with), and "  " is the space bar's
// wish to step back. A refused number is answered by a warning of these words.
#pragma once

#include <string>

namespace veridraw {

inline constexpr const char* kEmptyCell = " ";
inline constexpr const char* kStepBackCell = "  ";
// Three characters: two typed ones and the blank.
inline constexpr int kCompleteCell = 3;
inline constexpr int kLowestNumber = 1;
inline constexpr int kHighestNumber = 40;

inline constexpr const char* kWarningTitle = "WARNING";
inline constexpr const char* kRangeMessage = "You Must enter a Number between 1 and 40";
inline constexpr const char* kIncorrectNumberMessage = "This is an incorrect number";

bool IsFullCell(const std::string& text);

// A full cell that Val reads below 1, or any cell that Val reads above 40.
// Letters read as 0; a digit followed by anything reads as that digit.
bool IsOutOfRange(const std::string& text);
// The same, for a text whose value by Val is already known.
bool IsOutOfRange(const std::string& text, double value);

}  // namespace veridraw
