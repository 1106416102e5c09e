// The Strike check. A number of a line is compared with the drawn number at the
// same position and with no other; a line falls into one row of prizes by its
// total of hits, and a single hit is a Bonus Ticket. The comparison runs when a
// ticket is complete or clicked; CmdShowResults only shows what it counted.
#include "screen/strings.h"
#include "strike/veridraw7c.h"

namespace veridraw {

namespace {

constexpr int kMostHits = 4;
constexpr int kBonusRow = 1;
constexpr int kFirstRowTop = 1800;
constexpr int kRowStep = 300;
constexpr double kResultFontSize = 12;

}  // namespace

// The Strike check reads DrawNumbers as they stand: there is nothing to freeze.
void Veridraw7c::FreezeDraw() {}

// Nothing is sorted, in spite of the name. A hit copies the cell's own text,
// with any trailing blank, into the prize grid, and each line that hits counts
// in the row of its total at once. Lines after LineCount are never looked at.
void Veridraw7c::NumberSortRoutine() {
  Integer cell = 1;
  for (int hits = 1; hits <= kMostHits; ++hits)
    StrikeCount(hits) = 0;
  for (int line = 1; line <= LineCount; ++line) {
    MatchCount = 0;
    for (int p = 1; p <= game_.cellsPerLine; ++p) {
      if (TicketCells(cell) == DrawNumbers(p)) {
        IntResult(cell).setText(LineA(cell).text());
        MatchCount = MatchCount + 1;
      }
      cell = cell + 1;
    }
    if (MatchCount >= 1 && MatchCount <= kMostHits) {
      StrikeCount(MatchCount) = StrikeCount(MatchCount) + 1;
      PrizeCountBox(MatchCount).setText(CStr(StrikeCount(MatchCount)));
    }
  }
  for (int box = 1; box <= game_.gridCells(); ++box)
    IntResult(box).setFontSize(kResultFontSize);
}

// The ticket leaves the screen with its column heads. On a win the pictures
// come; without a single hit the ticket comes back, without its heads, and the
// pictures go. The rows stand from the highest prize down; the first slot at
// 1800 belongs to the Strike 4 row alone.
void Veridraw7c::CmdShowResults_Click() {
  HideTicketButtons();
  for (int head = 1; head <= game_.cellsPerLine; ++head)
    Txt1ST(head).setVisible(false);
  for (int cell = 1; cell <= game_.gridCells(); ++cell)
    LineA(cell).setVisible(false);
  for (int line = 1; line <= LineCount; ++line)
    TextATxt(line).setVisible(false);
  ShowPicturesOfAWin(false);
  bool prizes = false;
  for (int hits = 1; hits <= kMostHits; ++hits)
    prizes = prizes || StrikeCount(hits) != 0;
  if (!prizes) ShowTicketWithoutPrizes(LineCount * game_.cellsPerLine);
  LblYouveWon->setVisible(true);
  StrikeRowTop = kFirstRowTop;
  for (int hits = kMostHits; hits >= kBonusRow; --hits)
    PlaceStrikeRow(hits);
  BtnRestart->SetFocus();
}

// A row that won takes the next slot, 300 lower, but the Strike 4 row takes the
// first. Code writes only the plural captions of the Strike rows, so after two
// prizes of a row one prize still reads "Prizes" until the screen is opened
// again; the Bonus row writes its caption both ways.
void Veridraw7c::PlaceStrikeRow(int hits) {
  const int count = StrikeCount(hits);
  if (count < 1) return;
  if (hits != kMostHits) StrikeRowTop = StrikeRowTop + kRowStep;
  PrizeCountBox(hits).setTop(StrikeRowTop);
  PrizeLabel(hits).setTop(StrikeRowTop);
  PrizeCountBox(hits).setVisible(true);
  PrizeLabel(hits).setVisible(true);
  if (hits == kBonusRow)
    PrizeLabel(hits).setCaption(count == 1 ? "Bonus Ticket" : "Bonus Tickets");
  else if (count > 1)
    PrizeLabel(hits).setCaption("Strike " + CStr(hits) + " Prizes");
}

}  // namespace veridraw
