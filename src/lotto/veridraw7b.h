// The Lotto screen: a ticket of 4 to 14 lines of six numbers meets a Lotto
// draw. Six main numbers and the bonus decide five divisions of prizes.
#pragma once

#include "screen/application.h"
#include "screen/checked_array.h"
#include "screen/form.h"
#include "tickets/ticket_screen.h"

namespace veridraw {

FormDesign veridraw7bDesign();

class Veridraw7b : public tickets::TicketScreen {
 public:
  explicit Veridraw7b(Application& application);

 private:
  void Form_Load() override;
  void List1_Click() override;
  void ShowNoNumbersMessage();
  void ShowDrawNumbers();

  void FreezeDraw() override;
  void NumberSortRoutine() override;
  void DivisionResults();
  void AddToDivision(int division, int step);
  void CmdShowResults_Click() override;
  void PlaceDivisionRow(int division);

  CheckedArray<Integer> DrawNumbers{0, 7};
  CheckedArray<Integer> CheckNumbers{0, 6};
  CheckedArray<Integer> DivisionCount{1, 5};
  Integer MatchCount;
  Integer BonusMatched;
  Integer DivisionRowTop;

  const ControlArray TxtDrawnNumbers2{*this, "TxtDrawnNumbers2"};
};

}  // namespace veridraw
