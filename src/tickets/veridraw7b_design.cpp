// The design of the Lotto screen, as its designer laid it out, and the
// numbers of the Lotto game that the shared ticket procedures read.
#include "store/ticket_store.h"
#include "tickets/ticket_design.h"
#include "tickets/veridraw7b.h"

namespace veridraw {

const tickets::TicketGame& lottoGame() {
  static const tickets::TicketGame game{
      .cellArray = "LineA",
      .cellsPerLine = 6,
      .mostLines = 14,
      .homeCells = 24,
      .lastTicketCell = 87,
      .lineButtons = {{"BtnLineD", 4, 2520},
                      {"BtnLineE", 5, 2775},
                      {"BtnLineF", 6, 3030},
                      {"BtnLineG", 7, 3285},
                      {"BtnLineH", 8, 3540},
                      {"BtnLineJ", 9, 3795},
                      {"BtnLineK", 10, 4050},
                      {"BtnLineL", 11, 4305},
                      {"BtnLineM", 12, 4560},
                      {"BtnLineN", 13, 4815},
                      {"BtnLineO", 14, 6160}},
      // Line B's prompt stands at 1775, 20 below its row; the rest at their rows.
      .promptTops = {1775, 2010, 2265, 2520, 2775, 3030, 3285, 3540, 3795, 4050, 4305, 4560, 4815},
      .ticketPrefix = store::kLottoPrefix,
      .firstListedDraw = 1,
      .prizeCountBox = "TxtDivision",
      .prizeLabel = "LblDivision",
      .prizeRows = 5,
  };
  return game;
}

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
    textBox("TxtDrawnNumbers2", {2640, 6930, 375, 375}, "").at(7).back(colors::kBlue).fore(colors::kWhite).font(8.25, true).centred().lockedBox().noTabStop(),
  });
  // clang-format on
  for (int k = 1; k <= 6; ++k)
    controls.push_back(textBox("TxtDrawnNumbers2", {360 + (k - 1) * 360, 6960, 350, 300}, "")
                           .at(k)
                           .centred()
                           .lockedBox()
                           .noTabStop());
  for (int division = 1; division <= game.prizeRows; ++division) {
    const int top = 1800 + (division - 1) * 300;
    const std::string number = std::to_string(division);
    controls.push_back(textBox("TxtDivision" + number, {4650, top, 375, 285})
                           .centred()
                           .lockedBox()
                           .noTabStop()
                           .hidden());
    controls.push_back(
        label("LblDivision" + number, {5280, top, 2150, 255}, "Division " + number + " prize")
            .hidden());
  }

  const ControlDesign cell = textBox("LineA", {0, 0, 300, 250}).centred().noTabStop().hidden();
  tickets::addGrid(
      controls, cell, game.mostLines, game.cellsPerLine,
      {885, tickets::kLottoGridTop, tickets::kLottoColumnStep, tickets::kLottoRowStep});
  // The spare cells after the grid, the box that no code uses, and the cover.
  const int spareLefts[] = {480, 840, 1200};
  for (int spare = 1; spare <= 3; ++spare)
    controls.push_back(textBox("LineA", {spareLefts[spare - 1], 8230, 300, 285})
                           .at(game.gridCells() + spare)
                           .centred()
                           .noTabStop()
                           .hidden());
  controls.push_back(textBox("LineA", {120, 8230, 300, 285}).at(0).noTabStop().hidden());
  controls.push_back(tickets::coverBox(game, {840, 7440, 420, 285}));

  tickets::addPrizeGrid(
      controls, game,
      {9450, tickets::kLottoGridTop, tickets::kLottoColumnStep, tickets::kLottoRowStep}, 250);
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
