// The design of the PowerBall screen, as its designer laid it out: the Lotto
// screen's controls, most of them moved a little, with the PowerBall column of
// the ticket and of the prize grid, the box of the one number, the question and
// the PowerBall prize rows added.
#include "powerball/powerball_game.h"
#include "powerball/veridraw7e.h"
#include "store/draw_store.h"
#include "tickets/ticket_design.h"

namespace veridraw {

namespace {

constexpr int kPrizeRowStep = 300;
constexpr int kSpareTop = 8205;

}  // namespace

namespace {

void addPrizeRows(std::vector<ControlDesign>& controls, int rows) {
  for (int division = 1; division <= rows; ++division) {
    const int top = 1800 + (division - 1) * kPrizeRowStep;
    const std::string number = std::to_string(division);
    const ControlDesign count = textBox("", {4440, top, 375, 285})
                                    .centred()
                                    .lockedBox()
                                    .noTabStop()
                                    .hidden()
                                    .read(Reading::Alert);
    ControlDesign lottoCount = count;
    lottoCount.name = "TxtDivision" + number;
    lottoCount.reader.labelledBy = "LblDivision" + number;
    controls.push_back(std::move(lottoCount));
    const int labelWidth = division == 5 ? 2105 : 2150;
    controls.push_back(
        label("LblDivision" + number, {5040, top, labelWidth, 255}, "Division " + number + " prize")
            .hidden());
    ControlDesign powerBallCount = count;
    powerBallCount.name = "TxtDivPwrBall" + number;
    powerBallCount.reader.labelledBy = "LblDivPwrBall" + number;
    controls.push_back(std::move(powerBallCount));
    controls.push_back(label("LblDivPwrBall" + number, {5040, top, 3420, 255},
                             "Division " + number + " PowerBall Prize")
                           .hidden());
  }
}

// The number cells, their spare cells behind the notice and the cover box.
void addTicketGrid(std::vector<ControlDesign>& controls, const tickets::TicketGame& game) {
  tickets::addLottoCells(controls, game, 765, {1680, 2040, 2400}, kSpareTop);
  controls.push_back(tickets::coverBox(game, {720, 7560, 420, 285}));
}

// The PowerBall column of the ticket, one cell a line, its two spare cells and
// its cover box; the box of the one number and its spare boxes, which stand
// visible behind the notice from the start.
void addPowerBallEntry(std::vector<ControlDesign>& controls, int lines) {
  for (int line = 1; line <= lines; ++line)
    controls.push_back(
        textBox("TxtPowerBall",
                {2760, tickets::kLottoGridTop + (line - 1) * tickets::kLottoRowStep, 350, 250})
            .at(line)
            .font(8.25, true)
            .centred()
            .noTabStop()
            .hidden()
            .describedBy("LblEnterLine")
            .spoken(tickets::lineCellName("", line, "PowerBall")));
  const int spareLefts[] = {360, 600};
  for (int spare = 1; spare <= 2; ++spare)
    controls.push_back(textBox("TxtPowerBall", {spareLefts[spare - 1], kSpareTop, 250, 285})
                           .at(lines + spare)
                           .back(colors::kGrey)
                           .border(0)
                           .noTabStop()
                           .hidden()
                           .decoration());
  controls.push_back(textBox("TxtPowerBall", {2760, 8040, 420, 520})
                         .at(lines + 3)
                         .back(colors::kPaleYellow)
                         .border(0)
                         .noTabStop()
                         .hidden()
                         .decoration());
  controls.push_back(textBox("TxtPwrBallNumber", {6960, 1400, 375, 375})
                         .at(1)
                         .back(colors::kWhite)
                         .font(12, true)
                         .centred()
                         .noTabStop()
                         .hidden()
                         .describedBy("TxtNoofLines")
                         .spoken("PowerBall number for all lines"));
  const int boxLefts[] = {840, 1080, 1320};
  for (int spare = 1; spare <= 3; ++spare)
    controls.push_back(textBox("TxtPwrBallNumber", {boxLefts[spare - 1], kSpareTop, 250, 285})
                           .at(1 + spare)
                           .back(colors::kGrey)
                           .border(0)
                           .noTabStop()
                           .decoration());
}

// The prize grid, its letters and its PowerBall column, which shows a line's
// number only when it matched. Element 73 of the grid stands 30 to the right
// of its column, and element 1 of the column alone has a border.
void addPrizeGrid(std::vector<ControlDesign>& controls, const tickets::TicketGame& game) {
  tickets::addPrizeGrid(
      controls, game,
      {9210, tickets::kLottoGridTop, tickets::kLottoColumnStep, tickets::kLottoRowStep}, 250,
      tickets::matchMeanings(true));
  for (ControlDesign& design : controls)
    if (design.name == "IntResult" && design.index == 73) design.left = 9240;
  for (int line = 1; line <= game.mostLines; ++line) {
    ControlDesign column =
        textBox("TxtPwrBall",
                {11160, tickets::kLottoGridTop + (line - 1) * tickets::kLottoRowStep, 350, 250})
            .at(line)
            .back(colors::kPaleYellow)
            .border(0)
            .font(8.25, true)
            .centred()
            .noTabStop()
            .read(Reading::Result)
            .spoken(tickets::lineCellName(tickets::kPrizeGridName, line, "PowerBall"))
            .meaning(colors::kGreen, "PowerBall match");
    if (line == 1) {
      column.borderStyle = 1;
      column.height = 285;
    }
    controls.push_back(std::move(column));
  }
}

}  // namespace

FormDesign veridraw7eDesign() {
  FormDesign form{"Veridraw7e", 11880, 8595, colors::kButtonFace, {}};
  std::vector<ControlDesign>& controls = form.controls;
  const tickets::TicketGame& game = powerBallGame();
  tickets::addTicketControls(controls, {.flowLeft = 4250,
                                        .deleteLeft = 5350,
                                        .drawLabel = {570, 6360, 1815, 255},
                                        .drawBox = {2520, 6240, 735, 360},
                                        .drawBoxText = " ",
                                        .savedLeft = 4245,
                                        .linesPrompt = {4440, 1440, 2970, 300},
                                        .linesPromptFont = 8.25,
                                        .enterLine = {3225, 1500, 3015, 255},
                                        .prizesHeading = {9285, 960, 1815, 285},
                                        .youveWon = {4860, 1005, 2295, 600},
                                        .ballsDrawing = Picture::PowerBall,
                                        .ticketDrawing = Picture::Lotto});
  // clang-format off
  tickets::insertAfter(controls, "List2", {
    button("BtnYes", {5040, 2000, 800, 325}, "&Yes").hidden().tab(11).describedBy("TxtNoofLines"),
    button("BtnNo", {6000, 2000, 800, 325}, "&No").hidden().tab(12).describedBy("TxtNoofLines"),
    label("lblPowerBall", {4650, 120, 2655, 705}, "Powerball").back(colors::kGreen).fore(colors::kWhite).font(24, true).centred(),
  });
  tickets::insertAfter(controls, "Label3", {
    label("Label6", {5760, 1800, 15, 15}, "Label6").decoration(),
  });
  tickets::insertAfter(controls, "TxtDrawBox", {
    label("LblLottoDraw", {600, 6705, 1335, 255}, "Lotto Numbers"),
    textBox("TxtDrawnNumbers2", {2400, 6930, 375, 375}).at(7).back(colors::kBlue).fore(colors::kWhite).font(8.25, true).centred().lockedBox().noTabStop().read(Reading::Display).spoken("Drawn Bonus number"),
    textBox("TxtDrawnNumbers2", {2880, 6930, 375, 375}).at(8).back(colors::kGreen).fore(colors::kWhite).font(8.25, true).centred().lockedBox().noTabStop().read(Reading::Display).spoken("Drawn PowerBall number"),
  });
  tickets::insertAfter(controls, "LblSpaceBar", {
    label("LblPwrBall1", {2760, 1155, 510, 345}, "Power   Ball").at(0).centred().decoration(),
    label("LblPwrBall1", {11160, 1155, 510, 345}, "Power   Ball").at(1).centred().decoration(),
  });
  // clang-format on
  tickets::addDrawnLottoNumbers(controls, 120, " ");
  addPrizeRows(controls, game.prizeRows);
  addTicketGrid(controls, game);
  addPowerBallEntry(controls, game.mostLines);
  addPrizeGrid(controls, game);
  tickets::addLettersAndLineButtons(controls, game,
                                    {.top = tickets::kLottoGridTop,
                                     .height = 250,
                                     .ticketLeft = 330,
                                     .prizeLeft = 8730,
                                     .buttonLeft = 3400,
                                     .buttonTop = tickets::kLottoGridTop + 15},
                                    tickets::kLottoRowStep);

  tickets::addNotice(controls);
  return form;
}

}  // namespace veridraw
