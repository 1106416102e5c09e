// The PowerBall screen: a Lotto ticket of 4 to 14 lines with a PowerBall
// number, 01 to 08, for each line, held against the eight numbers of a draw.
// The six numbers and the bonus win the five Lotto divisions as on the Lotto
// screen; the PowerBall on top of a Lotto prize wins a PowerBall division too.
// The screen is the Lotto screen wherever the game doesn't differ: what is
// here is the PowerBall column, the draw's eighth number and the start at
// draw 711.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "screen/application.h"
#include "screen/checked_array.h"
#include "screen/form.h"
#include "store/ticket_store.h"
#include "tickets/ticket_screen.h"

namespace veridraw {

FormDesign veridraw7eDesign();

class Veridraw7e : public tickets::TicketScreen {
 public:
  explicit Veridraw7e(Application& application);

 private:
  // The screen and its draw (veridraw7e.cpp).
  void Form_Load() override;
  void List1_Click() override;
  // The draw's number and its eight pairs, converted by `convert`.
  void ShowDrawLine(Integer (*convert)(std::string_view pair));
  void BtnCheckNewTicket_Click() override;
  void BtnCancel_Click() override;
  void ClearResults() override;
  store::PowerBallColumn* PowerBallRecord() override;
  void LoadColumn() override;
  void PaintColumn() override;
  void CheckLoadedTicket() override;
  void PutLoadedPowerBalls();
  void ShowPowerBallCells(std::int32_t back);

  // The entry of the PowerBall numbers (powerball_entry.cpp).
  void EndOfEntry() override;
  void BtnYes_Click();
  void BtnNo_Click();
  void OpenPowerBallColumn();
  void TxtPowerBall_Change();
  void TxtPwrBallNumber_Change();
  void PowerBallBacktrack(const ControlArray& cells);
  void PowerBallRange(const ControlArray& cells, std::int32_t backAfterWarning);
  void FinishPowerBallEntry();
  void FillPowerBallColumn();
  void ShowCheckedTicket();
  // Moves the prompt of the PowerBall column to the line after the cell just
  // filled.
  void PBEntBox();
  // Parks the cover box of the column over the spare box after the last line.
  void PwrBallBox();

  // The check (powerball_check.cpp).
  void FreezeDraw() override;
  void NumberSortRoutine() override;
  void FetchPowerBallNumbers();
  void DivisionResults();
  void AddToDivision(int division, int step);
  void AddToPowerBallDivision(int division);
  void CmdShowResults_Click() override;
  bool TicketWonNothing() const;
  void PlacePrizeRows();
  void PlacePrizeRow(Control& countBox, Control& label);

  CheckedArray<Integer> DrawNumbers{1, 8};
  CheckedArray<Integer> CheckNumbers{1, 6};
  CheckedArray<Integer> PowerBallNumbers{1, 16};
  CheckedArray<Integer> DivisionCount{1, 5};
  CheckedArray<Integer> PowerBallDivisionCount{1, 5};
  Integer MatchCount;
  // The Top of the prize row being placed. The check sets MatchCount before
  // each line and the results set this before the first row, so neither ever
  // reads what the other left: they are two variables.
  Integer DivisionRowTop;
  Integer BonusMatched;
  // One variable under two names, and that is behaviour: the answer to the
  // question is read by the check once, on entry, and the check then keeps
  // the bonus of each line in it. A later check of the same ticket, when the
  // spare box of the column is typed into after the entry, finds there the
  // bonus of the last line instead of the answer.
  Integer& SameForAllLines = BonusMatched;
  Integer PowerBallMatched;
  // The line counter of the fill of the column and of the check: the check
  // runs nested in the fill and leaves it past the last line.
  Integer LineNumber;
  std::string PowerBallText;
  store::PowerBallColumn powerBallColumn_;

  const ControlArray TxtDrawnNumbers2{*this, "TxtDrawnNumbers2"};
  const ControlArray TxtPowerBall{*this, "TxtPowerBall"};
  const ControlArray TxtPwrBall{*this, "TxtPwrBall"};
  const ControlArray TxtPwrBallNumber{*this, "TxtPwrBallNumber"};
  const ControlArray LblPwrBall1{*this, "LblPwrBall1"};
  const ControlRef BtnYes{*this, "BtnYes"};
  const ControlRef BtnNo{*this, "BtnNo"};
};

}  // namespace veridraw
