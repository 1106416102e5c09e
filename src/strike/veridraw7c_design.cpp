// The design of the Strike screen, as its designer laid it out.
#include "store/draw_store.h"
#include "store/ticket_store.h"
#include "strike/strike_game.h"
#include "strike/veridraw7c.h"
#include "tickets/ticket_design.h"

namespace veridraw {

namespace {

constexpr int kGridTop = 1635;  // the top of line A; each line is 285 lower
constexpr int kRowStep = 285;
constexpr int kColumnStep = 600;
constexpr int kHeadTop = 1320;

// The one element of a control array that the designer left off its row.
void moveElement(std::vector<ControlDesign>& controls, const std::string& name, int index,
                 int top) {
  for (ControlDesign& control : controls)
    if (control.name == name && control.index == index) control.top = top;
}

}  // namespace

FormDesign veridraw7cDesign() {
  FormDesign form{"Veridraw7c", 11880, 8595, colors::kButtonFace, {}};
  std::vector<ControlDesign>& controls = form.controls;
  const tickets::TicketGame& game = strikeGame();
  tickets::addTicketControls(controls,
                             {.deleteLeft = 5475,
                              .showResultsCaption = "&Click here to Show results",
                              .changeTicketCaption = "<--- Click to change the ticket number",
                              .linesPrompt = {4650, 1080, 2775, 315},
                              .linesPromptCaption = " Click the last line letter on your ticket",
                              .enterLine = {3090, kGridTop, 3015, 255},
                              .numbersPerLine = game.cellsPerLine,
                              .prizesHeading = {8970, 915, 2415, 285},
                              .prizesHeadingCaption = "STRIKE PRIZES",
                              .youveWon = {4935, 1005, 2295, 600},
                              .ballsDrawing = Picture::StrikeBalls,
                              .ticketDrawing = Picture::StrikeTicket});
  // clang-format off
  tickets::insertAfter(controls, "List2", {
    label("lblStrike", {5160, 120, 1695, 705}, "Strike").font(24, true).centred(),
  });
  tickets::insertAfter(controls, "TxtDrawBox", {
    label("LblStrikeDraw", {960, 6825, 1335, 255}, "Strike Numbers"),
  });
  // clang-format on
  for (int p = 1; p <= game.cellsPerLine; ++p) {
    controls.push_back(textBox("TxtStrikeNumbers2", {960 + (p - 1) * 360, 7080, 350, 300}, "")
                           .at(p)
                           .centred()
                           .lockedBox()
                           .noTabStop()
                           .read(Reading::Display)
                           .spoken("Drawn Strike number " + std::to_string(p)));
  }
  // The prize rows, Strike 1 (told as a Bonus Ticket) to Strike 4, each a
  // count box and a label, from 1800 down.
  for (int hits = 1; hits <= game.prizeRows; ++hits) {
    const int top = 1800 + (hits - 1) * 360;
    const std::string number = std::to_string(hits);
    controls.push_back(textBox("TxtStrike" + number, {4770, top, 375, 285})
                           .centred()
                           .lockedBox()
                           .noTabStop()
                           .hidden()
                           .read(Reading::Alert)
                           .labelledBy("LblStrike" + number));
    controls.push_back(
        label("LblStrike" + number, {5490, top, 2000, 255}, "Strike " + number + " prize")
            .hidden());
  }
  // The column heads of the ticket (1 to 4) and of the prize grid (5 to 8).
  const char* const heads[] = {"1ST", "2ND", "3RD", "4TH"};
  for (int head = 1; head <= 2 * game.cellsPerLine; ++head) {
    const int column = (head - 1) % game.cellsPerLine;
    const int left = (head <= game.cellsPerLine ? 810 : 9210) + column * kColumnStep;
    controls.push_back(textBox("Txt1ST", {left, kHeadTop, 450, 300}, heads[column])
                           .at(head)
                           .back(colors::kPaleYellow)
                           .border(0)
                           .centred()
                           .lockedBox()
                           .noTabStop()
                           .decoration());
  }

  const ControlDesign cell = textBox("TxtStrike", {0, 0, 300, 285})
                                 .centred()
                                 .noTabStop()
                                 .hidden()
                                 .describedBy("LblEnterLine");
  tickets::addGrid(controls, cell, game.mostLines, game.cellsPerLine,
                   {855, kGridTop, kColumnStep, kRowStep});
  // The spare cell of a twelve-line ticket and the two that only the walk
  // reaches, behind the notice button; then the cover box.
  const int spareLefts[] = {120, 480, 840};
  for (int spare = 1; spare <= 3; ++spare)
    controls.push_back(textBox("TxtStrike", {spareLefts[spare - 1], 8280, 250, 250})
                           .at(game.gridCells() + spare)
                           .back(colors::kGrey)
                           .centred()
                           .noTabStop()
                           .hidden()
                           .decoration());
  controls.push_back(tickets::coverBox(game, {830, 7560, 1740, 300}));

  tickets::addPrizeGrid(controls, game, {9285, kGridTop, kColumnStep, kRowStep}, 285,
                        tickets::matchMeanings(false));
  moveElement(controls, "IntResult", 46, 4800);
  tickets::addLettersAndLineButtons(controls, game,
                                    {.top = kGridTop,
                                     .height = 285,
                                     .ticketLeft = 390,
                                     .prizeLeft = 8925,
                                     .buttonLeft = 3360,
                                     .buttonTop = kGridTop},
                                    kRowStep);
  moveElement(controls, "TextATxt", 11, 4440);

  tickets::addNotice(controls);
  return form;
}

}  // namespace veridraw
