// The design of the Strike screen, as its designer laid it out, and the
// numbers of the Strike game that the shared ticket procedures read.
#include "store/draw_store.h"
#include "store/ticket_store.h"
#include "strike/veridraw7c.h"
#include "tickets/ticket_design.h"

namespace veridraw {

namespace {

constexpr int kGridTop = 1635;  // the top of line A; each line is 285 lower
constexpr int kRowStep = 285;
constexpr int kColumnStep = 600;
constexpr int kHeadTop = 1320;
constexpr std::int32_t kPromptBlue = 0xC00000;
constexpr std::int32_t kHintOrange = 0x0040C0;

// The one element of a control array that the designer left off its row.
void moveElement(std::vector<ControlDesign>& controls, const std::string& name, int index,
                 int top) {
  for (ControlDesign& control : controls)
    if (control.name == name && control.index == index) control.top = top;
}

}  // namespace

const tickets::TicketGame& strikeGame() {
  static const tickets::TicketGame game{
      .cellArray = "TxtStrike",
      .cellsPerLine = 4,
      .mostLines = 12,
      .homeCells = 12,
      .lastTicketCell = 48,
      // Each button parks the cover on the line after its own; the last one at
      // the foot of the screen, where its spare cell lies.
      .lineButtons = {{"BtnLineA", 1, 1920},
                      {"BtnLineB", 2, 2205},
                      {"BtnLineC", 3, 2490},
                      {"BtnLineD", 4, 2775},
                      {"BtnLineE", 5, 3060},
                      {"BtnLineF", 6, 3345},
                      {"BtnLineG", 7, 3630},
                      {"BtnLineH", 8, 3915},
                      {"BtnLineJ", 9, 4200},
                      {"BtnLineK", 10, 4485},
                      {"BtnLineL", 11, 4770},
                      {"BtnLineM", 12, 6240}},
      .promptTops = {1920, 2205, 2490, 2775, 3060, 3345, 3630, 3915, 4200, 4485, 4770},
      .ticketPrefix = store::kStrikePrefix,
      .firstListedDraw = store::kFirstStrikeDraw,
      .prizeCountBox = "TxtStrike",
      .prizeLabel = "LblStrike",
      .prizeRows = 4,
      .sparesClearedWithTicket = 0,
      .changeHidesShowResults = false,
      .rangeRefusalShowsPrompt = true,
      .savedHintClearsBold = false,
  };
  return game;
}

FormDesign veridraw7cDesign() {
  FormDesign form{"Veridraw7c", 11880, 8595, colors::kButtonFace, {}};
  std::vector<ControlDesign>& controls = form.controls;
  const tickets::TicketGame& game = strikeGame();
  // clang-format off
  controls = {
    button("BtnCheckNewTicket", {4320, 6360, 3255, 325}, "Check &New Ticket").tip("Click to check a New ticket").back(colors::kPaleYellow).hidden().tab(0),
    button("BtnCheckSavedTickets", {4320, 6720, 3255, 325}, "Check &Saved Ticket").tip("Click to check a Saved ticket").back(colors::kPaleYellow).hidden().tab(1),
    button("BtnSaveTicket", {4320, 6360, 3255, 325}, "Click to &Save this Ticket").tip("Save ticket").back(colors::kPaleYellow).hidden().tab(2),
    button("CmdShowResults", {4320, 6720, 3255, 325}, "&Click here to Show results").tip("Display results of winnings").back(colors::kPaleYellow).hidden().tab(3),
    button("BtnRestart", {4320, 8040, 1085, 375}, "&Main Menu").tip("Restart Veridraw").back(colors::kPaleYellow).tab(4),
    button("BtnCancel", {5520, 8040, 975, 375}, "&Cancel").tip("Cancel this action").back(colors::kPaleYellow).hidden().tab(5),
    button("CmdEnd", {6600, 8040, 975, 375}, "E&xit").tip("Exit Veridraw").back(colors::kPaleYellow).tab(6),
    button("BtnDeleteTicket", {5475, 7560, 1095, 255}, "Delete Ticket").back(colors::kPaleYellow).hidden().tab(7),
    listBox("List1", {4980, 4560, 735, 1230}).tip("Draw Numbers").hidden().tab(8),
    listBox("LstLottoTicket", {5805, 4560, 1095, 1230}).tip("Saved Tickets").hidden().tab(9),
    listBox("List2", {7680, 7200, 1095, 1230}).tip("Saved Tickets").tab(10),

    label("lblStrike", {5160, 120, 1695, 705}, "Strike").font(24, true).centred(),
    label("Label3", {330, 840, 2775, 375}, "Lotto Veridraw").font(12, true),
    label("LblDraw", {360, 6420, 1815, 255}, "Current Draw Number"),
    textBox("TxtDrawBox", {2265, 6360, 735, 360}, "").font(12, true).centred().lockedBox().noTabStop(),
    label("LblStrikeDraw", {960, 6825, 1335, 255}, "Strike Numbers"),

    label("LblSavedTickets2", {7875, 6720, 735, 375}, "Saved Tickets"),
    label("LblDrawsAvailable", {5040, 5850, 735, 375}, "Draws Entered").hidden(),
    label("LblSavedTickets", {6000, 5850, 735, 375}, "Saved Tickets").hidden(),
    label("LbLchangeDraw", {3480, 5160, 1395, 450}, "Click to change ---> the draw number").back(colors::kYellow).fore(colors::kRed).hidden(),
    label("LbLchangeTicket", {7020, 5160, 1395, 450}, "<--- Click to change the ticket number").back(colors::kYellow).fore(colors::kRed).hidden(),
    label("LblSaved", {4320, 6360, 3255, 330}, "Ticket has been Saved").back(colors::kPaleYellow).centred().hidden(),

    // Smaller than the text of the other boxes, so that the whole sentence fits its box.
    textBox("TxtNoofLines", {4650, 1080, 2775, 315}, " Click the last line letter on your ticket").font(7.5).lockedBox().noTabStop().hidden(),
    label("LblEnterLine", {3090, kGridTop, 3015, 255}, " Line A -- Enter the 4 Two Digit  numbers").back(kPromptBlue).fore(colors::kWhite).hidden(),
    label("LblSpaceBar", {8880, 6480, 2655, 615}, "To correct errors  backtrack with the Space Bar").back(kHintOrange).fore(colors::kWhite).hidden(),

    textBox("TxtLottoPrizes", {8970, 915, 2415, 285}, "STRIKE PRIZES").font(10, true).centred().lockedBox().noTabStop(),
    label("LblYouveWon", {4935, 1005, 2295, 600}, "").font(12, true).centred().hidden(),
    image("ImgMoney", {360, 1800, 2655, 1215}, "money").hidden(),
    image("ImgCoins", {570, 3720, 2295, 1500}, "coins").hidden(),
    image("Image1", {450, 5280, 1050, 600}, "strike-balls"),
    image("Image2", {1890, 5280, 975, 615}, "strike-ticket"),
    image("Image3", {8970, 5280, 1050, 600}, "strike-balls"),
    image("Image4", {10290, 5280, 975, 615}, "strike-ticket"),
  };
  // clang-format on
  for (int p = 1; p <= game.cellsPerLine; ++p) {
    controls.push_back(textBox("TxtStrikeNumbers2", {960 + (p - 1) * 360, 7080, 350, 300}, "")
                           .at(p)
                           .centred()
                           .lockedBox()
                           .noTabStop());
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
                           .hidden());
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
                           .noTabStop());
  }

  const ControlDesign cell = textBox("TxtStrike", {0, 0, 300, 285}).centred().noTabStop().hidden();
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
                           .hidden());
  controls.push_back(textBox("TxtStrike", {830, 7560, 1740, 300})
                         .at(game.coverCell())
                         .back(colors::kPaleYellow)
                         .border(0)
                         .lockedBox()
                         .noTabStop()
                         .hidden());

  const ControlDesign result = textBox("IntResult", {0, 0, 300, 285})
                                   .back(colors::kPaleYellow)
                                   .border(0)
                                   .centred()
                                   .noTabStop();
  tickets::addGrid(controls, result, game.mostLines, game.cellsPerLine,
                   {9285, kGridTop, kColumnStep, kRowStep});
  moveElement(controls, "IntResult", 46, 4800);
  const ControlDesign letter = textBox("TextATxt", {390, kGridTop, 300, 285})
                                   .back(colors::kPaleYellow)
                                   .border(0)
                                   .lockedBox()
                                   .noTabStop();
  tickets::addLineLetters(controls, letter, game.mostLines, kRowStep);
  moveElement(controls, "TextATxt", 11, 4440);
  ControlDesign prizeLetter = letter;
  prizeLetter.name = "TextBTxt";
  prizeLetter.left = 8925;
  prizeLetter.visible = false;
  tickets::addLineLetters(controls, prizeLetter, game.mostLines, kRowStep);
  tickets::addLineButtons(
      controls, button("", {3360, kGridTop, 855, 285}, "").back(colors::kPaleYellow).hidden(),
      game.lineButtons, kRowStep);

  // The owner's notice at the foot, in front of the spare cells.
  controls.push_back(pictureButton("CmdNotice", {120, 8160, 2655, 375}, "notice")
                         .tip("Veridraw is free to use and to share"));
  return form;
}

}  // namespace veridraw
