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
  void ShowDrawLine();
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
  void PBEntBox();
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
  // One variable under two names: the row being placed uses the match count's.
  Integer& DivisionRowTop = MatchCount;
  Integer BonusMatched;
  // One variable under two names: the answer to the question is read by the
  // check once on entry, which then uses it for the bonus of each line.
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
