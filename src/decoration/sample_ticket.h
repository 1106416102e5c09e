// The picture of a ticket that the start and draw screens carry: text boxes
// that show sample numbers, with no behaviour.
#pragma once

#include <vector>

#include "screen/design.h"

namespace veridraw {

struct SampleTicketLayout {
  int lines = 0;  // lettered A., B., C. ... with no I.
  int numbersPerLine = 0;
  int left = 0;  // of the first number, in twips
  int top = 0;
  // The sample number of a cell is line * lineStep + column * columnStep + 1,
  // counting lines and columns from 0: a stair of numbers.
  int lineStep = 0;
  int columnStep = 0;
  // Line numbers beside the letters, as TextATxt(lines + 1) onward.
  bool lineNumbers = false;
};

// Adds LineA(1..lines * numbersPerLine), line by line, with the letters
// TextATxt(1..lines) to the left of the lines.
void addSampleTicket(std::vector<ControlDesign>& controls, const SampleTicketLayout& layout);

}  // namespace veridraw
