// Pieces of the design tables of the ticket screens that repeat a control
// along a grid: the number cells, the prize grid, the line letters and the
// line buttons.
#pragma once

#include <vector>

#include "screen/design.h"
#include "tickets/ticket_game.h"

namespace veridraw::tickets {

// Where element 1 of a grid stands, and how far apart its columns and rows are.
struct GridLayout {
  int left = 0;
  int top = 0;
  int columnStep = 0;
  int rowStep = 0;
};

// Elements 1 to lines x perLine of the control array of `cell`, row by row:
// element k at column ((k - 1) mod perLine) and row ((k - 1) div perLine).
void addGrid(std::vector<ControlDesign>& controls, const ControlDesign& cell, int lines,
             int perLine, GridLayout layout);

// Elements 1 to `lines` of the control array of `letter`, "A." to "O." with no
// I, one a row from the letter's own Top.
void addLineLetters(std::vector<ControlDesign>& controls, const ControlDesign& letter, int lines,
                    int rowStep);

// The line buttons, "Line &D" and so on, each at the row of its last line;
// `button` gives the Left, the size and the Top of line 1.
void addLineButtons(std::vector<ControlDesign>& controls, const ControlDesign& button,
                    const std::vector<LineButton>& buttons, int rowStep);

}  // namespace veridraw::tickets
