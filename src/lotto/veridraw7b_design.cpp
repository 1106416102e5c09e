// The design of the Lotto screen, as its designer laid it out.
#include "lotto/lotto_game.h"
#include "lotto/veridraw7b.h"
#include "store/ticket_store.h"
#include "tickets/ticket_design.h"

namespace veridraw {

FormDesign veridraw7bDesign() {
  FormDesign form{"Veridraw7b", 11880, 8595, colors::kButtonFace, {}};
  std::vector<ControlDesign>& controls = form.controls;
  const tickets::TicketGame& game = lottoGame();
  tickets::addTicketControls(controls, {});
  // clang-format off
  tickets::insertAfter(controls, "List2", {
    label("lblLotto", {5160, 120, 1695, 705}, "Lotto").font(24, true).centred(),
  });
  tickets::insertAfter(controls, "TxtDrawBox", {
    label("LblLottoDraw", {840, 6705, 1335, 255}, "Lotto Numbers"),
    textBox("TxtDrawnNumbers2", {2640, 6930, 375, 375}, "").at(7).back(colors::kBlue).fore(colors::kWhite).font(8.25, true).centred().lockedBox().noTabStop().read(Reading::Display).spoken("Drawn Bonus number"),
  });
  // clang-format on
  tickets::addDrawnLottoNumbers(controls, 360, "");
  for (int division = 1; division <= game.prizeRows; ++division) {
    const int top = 1800 + (division - 1) * 300;
    const std::string number = std::to_string(division);
    controls.push_back(textBox("TxtDivision" + number, {4650, top, 375, 285})
                           .centred()
                           .lockedBox()
                           .noTabStop()
                           .hidden()
                           .read(Reading::Alert)
                           .labelledBy("LblDivision" + number));
    controls.push_back(
        label("LblDivision" + number, {5280, top, 2150, 255}, "Division " + number + " prize")
            .hidden());
  }

  // The grid and its spare cells, the box that no code uses, and the cover.
  tickets::addLottoCells(controls, game, 885, {480, 840, 1200}, 8230);
  controls.push_back(
      textBox("LineA", {120, 8230, 300, 285}).at(0).noTabStop().hidden().decoration());
  controls.push_back(tickets::coverBox(game, {840, 7440, 420, 285}));

  tickets::addPrizeGrid(
      controls, game,
      {9450, tickets::kLottoGridTop, tickets::kLottoColumnStep, tickets::kLottoRowStep}, 250,
      tickets::matchMeanings(true));
  tickets::addLettersAndLineButtons(controls, game,
                                    {.top = tickets::kLottoGridTop,
                                     .height = 250,
                                     .ticketLeft = 450,
                                     .prizeLeft = 8970,
                                     .buttonLeft = 3360,
                                     .buttonTop = tickets::kLottoGridTop},
                                    tickets::kLottoRowStep);

  tickets::addNotice(controls);
  return form;
}

}  // namespace veridraw
