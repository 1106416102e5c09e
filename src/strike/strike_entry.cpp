// Where the entry of a Strike ticket differs from the shared one: four numbers
// a line, in any order but never one twice, a smaller font while typing and a
// larger one once the ticket is entered.
#include "strike/veridraw7c.h"

#include "screen/strings.h"

namespace veridraw {

namespace {

constexpr double kTypingFontSize = 10;
constexpr double kEnteredFontSize = 12;

}  // namespace

// The Strike name of the sub that prepares the grid for LineCount lines.
void Veridraw7c::OwnNumRoutine() {
  NumberOfLines();
}

// Empties the ticket's own cells only, and sets the font of the whole grid.
void Veridraw7c::NumberOfLines() {
  TicketScreen::OwnNumRoutine();
  for (int cell = 1; cell <= game_.gridCells(); ++cell)
    LineA(cell).setFontSize(kTypingFontSize);
  LineA(1).setText(" ");
  LineA(1).SetFocus();
}

// A number may stand only once in a line, whatever its place: the number typed
// last is the one that is thrown out. Numbers are compared by value: those of
// the cells OrderFirst, OrderSecond and CurrentCell.
bool Veridraw7c::OutOfOrder(double first, double second, double current) const {
  return second == first || current == first;
}

void Veridraw7c::EndOfEntry() {
  TicketScreen::EndOfEntry();
  const int cells = LineCount * game_.cellsPerLine;
  for (int cell = 1; cell <= cells; ++cell)
    LineA(cell).setFontSize(kEnteredFontSize);
}

}  // namespace veridraw
