// The design of the Lotto screen, as its designer laid it out, and the
// numbers of the Lotto game that the shared ticket procedures read.
#include "store/ticket_store.h"
#include "tickets/ticket_design.h"
#include "tickets/veridraw7b.h"

namespace veridraw {

namespace {

constexpr int kGridTop = 1500;
constexpr int kRowStep = 255;
constexpr int kColumnStep = 300;
constexpr std::int32_t kPromptBlue = 0xC00000;
constexpr std::int32_t kHintOrange = 0x0040C0;

}  // namespace

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
  // clang-format off
  controls = {
    button("BtnCheckNewTicket", {4320, 6360, 3255, 325}, "Check &New Ticket").tip("Click to check a New ticket").back(colors::kPaleYellow).hidden().tab(0),
    button("BtnCheckSavedTickets", {4320, 6720, 3255, 325}, "Check &Saved Ticket").tip("Click to check a Saved ticket").back(colors::kPaleYellow).hidden().tab(1),
    button("BtnSaveTicket", {4320, 6360, 3255, 325}, "Click to &Save this Ticket").tip("Save ticket").back(colors::kPaleYellow).hidden().tab(2),
    button("CmdShowResults", {4320, 6720, 3255, 325}, "&Click Here to Show Results").tip("Display results of winnings").back(colors::kPaleYellow).hidden().tab(3),
    button("BtnRestart", {4320, 8040, 1085, 375}, "&Main Menu").tip("Restart Veridraw").back(colors::kPaleYellow).tab(4),
    button("BtnCancel", {5520, 8040, 975, 375}, "&Cancel").tip("Cancel this action").back(colors::kPaleYellow).hidden().tab(5),
    button("CmdEnd", {6600, 8040, 975, 375}, "E&xit").tip("Exit Veridraw").back(colors::kPaleYellow).tab(6),
    button("BtnDeleteTicket", {5470, 7560, 1095, 255}, "Delete Ticket").back(colors::kPaleYellow).hidden().tab(7),
    listBox("List1", {4980, 4560, 735, 1230}).tip("Draw Numbers").hidden().tab(8),
    listBox("LstLottoTicket", {5805, 4560, 1095, 1230}).tip("Saved Tickets").hidden().tab(9),
    listBox("List2", {7680, 7200, 1095, 1230}).tip("Saved Tickets").tab(10),

    label("lblLotto", {5160, 120, 1695, 705}, "Lotto").font(24, true).centred(),
    label("Label3", {330, 840, 2775, 375}, "Lotto Veridraw").font(12, true),
    label("LblDraw", {360, 6420, 1815, 255}, "Current Draw Number"),
    textBox("TxtDrawBox", {2265, 6360, 735, 360}, "").font(12, true).centred().lockedBox().noTabStop(),
    label("LblLottoDraw", {840, 6705, 1335, 255}, "Lotto Numbers"),
    textBox("TxtDrawnNumbers2", {2640, 6930, 375, 375}, "").at(7).back(colors::kBlue).fore(colors::kWhite).font(8.25, true).centred().lockedBox().noTabStop(),

    label("LblSavedTickets2", {7875, 6720, 735, 375}, "Saved Tickets"),
    label("LblDrawsAvailable", {5040, 5850, 735, 375}, "Draws Entered").hidden(),
    label("LblSavedTickets", {6000, 5850, 735, 375}, "Saved Tickets").hidden(),
    label("LbLchangeDraw", {3480, 5160, 1395, 450}, "Click to change ---> the draw number").back(colors::kYellow).fore(colors::kRed).hidden(),
    label("LbLchangeTicket", {7020, 5160, 1395, 450}, "<---Click to change the ticket number").back(colors::kYellow).fore(colors::kRed).hidden(),
    label("LblSaved", {4320, 6360, 3255, 330}, "Ticket has been Saved").back(colors::kPaleYellow).centred().hidden(),

    // Smaller than the text of the other boxes, so that the whole sentence fits its box.
    textBox("TxtNoofLines", {4440, 1440, 2970, 315}, "Click on the last line letter on your ticket").font(7.5).lockedBox().noTabStop().hidden(),
    label("LblEnterLine", {3000, 1500, 3135, 255}, " Line A -- Enter the 6 Two Digit  numbers").back(kPromptBlue).fore(colors::kWhite).hidden(),
    label("LblSpaceBar", {8880, 6480, 2655, 615}, "To correct errors  backtrack with the Space Bar").back(kHintOrange).fore(colors::kWhite).hidden(),

    textBox("TxtLottoPrizes", {8970, 1035, 2415, 285}, "LOTTO PRIZES").font(10, true).centred().lockedBox().noTabStop(),
    label("LblYouveWon", {4560, 1005, 2775, 600}, "").font(12, true).centred().hidden(),
    image("ImgMoney", {360, 1800, 2655, 1215}, "money").hidden(),
    image("ImgCoins", {570, 3720, 2295, 1500}, "coins").hidden(),
    image("Image1", {450, 5280, 1050, 600}, "lotto-balls"),
    image("Image2", {1890, 5280, 975, 615}, "lotto-ticket"),
    image("Image3", {8970, 5280, 1050, 600}, "lotto-balls"),
    image("Image4", {10290, 5280, 975, 615}, "lotto-ticket"),
  };
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
  tickets::addGrid(controls, cell, game.mostLines, game.cellsPerLine,
                   {885, kGridTop, kColumnStep, kRowStep});
  // The spare cells after the grid, the box that no code uses, and the cover.
  const int spareLefts[] = {480, 840, 1200};
  for (int spare = 1; spare <= 3; ++spare)
    controls.push_back(textBox("LineA", {spareLefts[spare - 1], 8230, 300, 285})
                           .at(game.gridCells() + spare)
                           .centred()
                           .noTabStop()
                           .hidden());
  controls.push_back(textBox("LineA", {120, 8230, 300, 285}).at(0).noTabStop().hidden());
  controls.push_back(textBox("LineA", {840, 7440, 420, 285})
                         .at(game.coverCell())
                         .back(colors::kPaleYellow)
                         .border(0)
                         .lockedBox()
                         .noTabStop()
                         .hidden());

  const ControlDesign result = textBox("IntResult", {0, 0, 300, 250})
                                   .back(colors::kPaleYellow)
                                   .border(0)
                                   .centred()
                                   .noTabStop();
  tickets::addGrid(controls, result, game.mostLines, game.cellsPerLine,
                   {9450, kGridTop, kColumnStep, kRowStep});
  const ControlDesign letter = textBox("TextATxt", {450, kGridTop, 300, 250})
                                   .back(colors::kPaleYellow)
                                   .border(0)
                                   .lockedBox()
                                   .noTabStop();
  tickets::addLineLetters(controls, letter, game.mostLines, kRowStep);
  ControlDesign prizeLetter = letter;
  prizeLetter.name = "TextBTxt";
  prizeLetter.left = 8970;
  prizeLetter.visible = false;
  tickets::addLineLetters(controls, prizeLetter, game.mostLines, kRowStep);
  tickets::addLineButtons(
      controls, button("", {3360, kGridTop, 855, 250}, "").back(colors::kPaleYellow).hidden(),
      game.lineButtons, kRowStep);

  // The owner's notice at the foot, in front of the spare cells.
  controls.push_back(pictureButton("CmdNotice", {120, 8160, 2655, 375}, "notice")
                         .tip("Veridraw is free to use and to share"));
  return form;
}

}  // namespace veridraw
