// What sets one ticket screen apart from the others: the sizes of its grid,
// its line buttons, the places of its prompt, the prefix of its ticket files,
// the first draw that it lists and the names of its prize rows. The shared
// procedures of the ticket screens read these and nothing else of the game.
#pragma once

#include <string>
#include <vector>

namespace veridraw::tickets {

// A button that fixes the length of a ticket: the lines that it sets, and the
// Top at which it parks the cover box over the spare cell after the ticket.
struct LineButton {
  std::string name;
  int lines = 0;
  int coverTop = 0;
};

struct TicketGame {
  std::string cellArray;  // the control array of the number cells
  int cellsPerLine = 0;
  int mostLines = 0;
  int homeCells = 0;       // the cells of the empty grid on the home screen
  int lastTicketCell = 0;  // the upper bound of TicketCells
  std::vector<LineButton> lineButtons;
  std::vector<int> promptTops;  // Top of LblEnterLine for the lines from B on
  std::string ticketPrefix;     // "Lotto # "
  int firstListedDraw = 1;
  // The prize rows: count boxes and labels named by a prefix and the row's number.
  std::string prizeCountBox;
  std::string prizeLabel;
  int prizeRows = 0;
  // Whether each change of a cell hides CmdShowResults, as on the Lotto screen.
  bool changeHidesShowResults = true;

  int gridCells() const { return mostLines * cellsPerLine; }
  // The spare cells follow the grid, and the cover box follows them.
  int coverCell() const { return gridCells() + 4; }
};

// Lines are lettered A to O with no letter I: line 9 is J.
char LineLetter(int line);

}  // namespace veridraw::tickets
