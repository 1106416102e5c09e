// The draw store: the current-draw file "DrawNumber" and one file per draw,
// named by its number, of three lines: the number, the Lotto line ("X" and
// eight pairs, or nothing) and the Strike line ("Z" and four pairs, or nothing).
#pragma once

#include <string>

#include "screen/files.h"
#include "screen/integer.h"

namespace veridraw::store {

inline constexpr const char* kCurrentDrawFile = "DrawNumber";
inline constexpr int kListedDraws = 1500;
// Draw and ticket numbers are accepted from 1 to this, though lists stop lower.
inline constexpr int kHighestNumber = 1768;
inline constexpr int kFirstStrikeDraw = 293;
inline constexpr int kFirstPowerBallDraw = 711;

// The form-level variables of a screen that reads draws. A form inherits them,
// so that its event procedures use them under these names.
struct DrawFields {
  std::string CurrentDrawText;    // the draw number text, field 1 of the last draw file read
  std::string DrawNumbersText;    // the Lotto line of the draw in hand, "" if none
  std::string StrikeNumbersText;  // the Strike line of the draw in hand, "" if none
  std::string DrawFileName;       // the name under which the draw file is opened or written
};

// True when Val of the text lies from 1 to 1768, the test of draw and ticket numbers.
bool IsAcceptedNumber(const std::string& text);

// The reading sequence of every reader: "DrawNumber" as file 2, its text as the
// name of the draw file, then that file's three fields as file 3.
void ReadCurrentDraw(SequentialFiles& files, DrawFields& draw);

// A click on a list of draws: the draw becomes current for the whole program.
// "DrawNumber" is rewritten with the list's text and read back, and the draw
// file named by the decimal text of Val of the list's text is read.
void SelectDraw(SequentialFiles& files, DrawFields& draw, const std::string& listText);

// "DrawNumber" first, then the draw file, each written whole.
void WriteDraw(SequentialFiles& files, DrawFields& draw);

}  // namespace veridraw::store
