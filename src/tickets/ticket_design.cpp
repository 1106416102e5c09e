#include "tickets/ticket_design.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>

namespace veridraw::tickets {

ControlDesign coverBox(const TicketGame& game, Place place) {
  return textBox(game.cellArray, place)
      .at(game.coverCell())
      .back(colors::kPaleYellow)
      .border(0)
      .lockedBox()
      .noTabStop()
      .hidden()
      .decoration();
}

void addTicketControls(std::vector<ControlDesign>& controls, const TicketLook& look) {
  const int left = look.flowLeft;
  const std::string enterLine =
      " Line A -- Enter the " + std::to_string(look.numbersPerLine) + " Two Digit  numbers";
  // clang-format off
  const ControlDesign shared[] = {
    button("BtnCheckNewTicket", {left, 6360, 3255, 325}, "Check &New Ticket").tip("Click to check a New ticket").back(colors::kPaleYellow).hidden().tab(0),
    button("BtnCheckSavedTickets", {left, 6720, 3255, 325}, "Check &Saved Ticket").tip("Click to check a Saved ticket").back(colors::kPaleYellow).hidden().tab(1),
    button("BtnSaveTicket", {left, 6360, 3255, 325}, "Click to &Save this Ticket").tip("Save ticket").back(colors::kPaleYellow).hidden().tab(2),
    button("CmdShowResults", {left, 6720, 3255, 325}, look.showResultsCaption).tip("Display results of winnings").back(colors::kPaleYellow).hidden().tab(3),
    button("BtnRestart", {left, 8040, 1085, 375}, "&Main Menu").tip("Restart Veridraw").back(colors::kPaleYellow).tab(4),
    button("BtnCancel", {left + 1200, 8040, 975, 375}, "&Cancel").tip("Cancel this action").back(colors::kPaleYellow).hidden().tab(5),
    button("CmdEnd", {left + 2280, 8040, 975, 375}, "E&xit").tip("Exit Veridraw").back(colors::kPaleYellow).tab(6),
    button("BtnDeleteTicket", {look.deleteLeft, 7560, 1095, 255}, "Delete Ticket").back(colors::kPaleYellow).hidden().tab(7),
    listBox("List1", {4980, 4560, 735, 1230}).tip("Draw Numbers").hidden().tab(8).describedBy("LblDrawsAvailable"),
    listBox("LstLottoTicket", {5805, 4560, 1095, 1230}).tip("Saved Tickets").hidden().tab(9).describedBy("LblSavedTickets"),
    listBox("List2", {7680, 7200, 1095, 1230}).tip("Saved Tickets").tab(10).describedBy("LblSavedTickets2"),

    label("Label3", {330, 840, 2775, 375}, "Lotto Veridraw").font(12, true),
    label("LblDraw", look.drawLabel, "Current Draw Number"),
    textBox("TxtDrawBox", look.drawBox, look.drawBoxText).font(12, true).centred().lockedBox().noTabStop().read(Reading::Display).labelledBy("LblDraw"),

    label("LblSavedTickets2", {7875, 6720, 735, 375}, "Saved Tickets"),
    label("LblDrawsAvailable", {5040, 5850, 735, 375}, "Draws Entered").hidden(),
    label("LblSavedTickets", {6000, 5850, 735, 375}, "Saved Tickets").hidden(),
    label("LbLchangeDraw", {3480, 5160, 1395, 450}, "Click to change ---> the draw number").back(colors::kYellow).fore(colors::kRed).hidden(),
    label("LbLchangeTicket", {7020, 5160, 1395, 450}, look.changeTicketCaption).back(colors::kYellow).fore(colors::kRed).hidden(),
    label("LblSaved", {look.savedLeft, 6360, 3255, 330}, "Ticket has been Saved").back(colors::kPaleYellow).centred().hidden().read(Reading::Alert),

    textBox("TxtNoofLines", look.linesPrompt, look.linesPromptCaption).font(look.linesPromptFont).lockedBox().noTabStop().hidden().read(Reading::Prompt),
    label("LblEnterLine", look.enterLine, enterLine).back(colors::kDarkBlue).fore(colors::kWhite).hidden().read(Reading::Prompt),
    label("LblSpaceBar", {8880, 6480, 2655, 615}, "To correct errors  backtrack with the Space Bar").back(colors::kOrange).fore(colors::kWhite).hidden(),

    textBox("TxtLottoPrizes", look.prizesHeading, look.prizesHeadingCaption).font(10, true).centred().lockedBox().noTabStop().read(Reading::Display),
    label("LblYouveWon", look.youveWon, "").font(12, true).centred().hidden().read(Reading::Alert),
    image("ImgMoney", {360, 1800, 2655, 1215}, Picture::Money).hidden().decoration(),
    image("ImgCoins", {570, 3720, 2295, 1500}, Picture::Coins).hidden().decoration(),
    image("Image1", {450, 5280, 1050, 600}, look.ballsDrawing).decoration(),
    image("Image2", {1890, 5280, 975, 615}, look.ticketDrawing).decoration(),
    image("Image3", {8970, 5280, 1050, 600}, look.ballsDrawing).decoration(),
    image("Image4", {10290, 5280, 975, 615}, look.ticketDrawing).decoration(),
  };
  // clang-format on
  controls.insert(controls.end(), std::begin(shared), std::end(shared));
}

void insertAfter(std::vector<ControlDesign>& controls, std::string_view name,
                 std::vector<ControlDesign> own) {
  const auto at =
      std::find_if(controls.begin(), controls.end(),
                   [name](const ControlDesign& control) { return control.name == name; });
  if (at == controls.end())
    throw std::logic_error("no control " + std::string(name) + " in the design");
  controls.insert(std::next(at), std::make_move_iterator(own.begin()),
                  std::make_move_iterator(own.end()));
}

void addNotice(std::vector<ControlDesign>& controls) {
  controls.push_back(pictureButton("CmdNotice", {120, 8160, 2655, 375}, Picture::Notice)
                         .tip("Veridraw is free software under the GNU GPL, version 3 or later")
                         .decoration());
}

std::string lineCellName(const std::string& grid, int line, const std::string& place) {
  const std::string letter(1, LineLetter(line));
  return (grid.empty() ? "Line " : grid + ", line ") + letter + ", " + place;
}

void addGrid(std::vector<ControlDesign>& controls, const ControlDesign& cell, int lines,
             int perLine, GridLayout layout) {
  for (int k = 1; k <= lines * perLine; ++k) {
    ControlDesign element = cell;
    element.index = k;
    element.reader.name = lineCellName(cell.reader.name, (k - 1) / perLine + 1,
                                       "number " + std::to_string((k - 1) % perLine + 1));
    element.left = layout.left + (k - 1) % perLine * layout.columnStep;
    element.top = layout.top + (k - 1) / perLine * layout.rowStep;
    controls.push_back(std::move(element));
  }
}

void addLineLetters(std::vector<ControlDesign>& controls, const ControlDesign& letter, int lines,
                    int rowStep) {
  for (int line = 1; line <= lines; ++line) {
    ControlDesign element = letter;
    element.index = line;
    element.top = letter.top + (line - 1) * rowStep;
    element.text = std::string(1, LineLetter(line)) + ".";
    controls.push_back(std::move(element));
  }
}

void addLineButtons(std::vector<ControlDesign>& controls, const ControlDesign& button,
                    const std::vector<LineButton>& buttons, int rowStep) {
  for (const LineButton& line : buttons) {
    ControlDesign element = button;
    element.name = line.name;
    element.top = button.top + (line.lines - 1) * rowStep;
    element.text = std::string("Line &") + LineLetter(line.lines);
    controls.push_back(std::move(element));
  }
}

void addLettersAndLineButtons(std::vector<ControlDesign>& controls, const TicketGame& game,
                              LetterColumns columns, int rowStep) {
  const ControlDesign letter =
      textBox("TextATxt", {columns.ticketLeft, columns.top, 300, columns.height})
          .back(colors::kPaleYellow)
          .border(0)
          .lockedBox()
          .noTabStop()
          .decoration();
  addLineLetters(controls, letter, game.mostLines, rowStep);
  ControlDesign prizeLetter = letter;
  prizeLetter.name = "TextBTxt";
  prizeLetter.left = columns.prizeLeft;
  prizeLetter.visible = false;
  addLineLetters(controls, prizeLetter, game.mostLines, rowStep);
  addLineButtons(controls,
                 button("", {columns.buttonLeft, columns.buttonTop, 855, columns.height}, "")
                     .back(colors::kPaleYellow)
                     .hidden()
                     .describedBy("TxtNoofLines"),
                 game.lineButtons, rowStep);
}

// The cells of every prize grid are 300 wide, however far apart they stand.
constexpr int kPrizeCellWidth = 300;

void addPrizeGrid(std::vector<ControlDesign>& controls, const TicketGame& game,
                  const GridLayout& layout, int cellHeight, std::vector<Meaning> meanings) {
  ControlDesign result = textBox("IntResult", {0, 0, kPrizeCellWidth, cellHeight})
                             .back(colors::kPaleYellow)
                             .border(0)
                             .centred()
                             .noTabStop()
                             .read(Reading::Result)
                             .spoken(kPrizeGridName);
  result.reader.meanings = std::move(meanings);
  addGrid(controls, result, game.mostLines, game.cellsPerLine, layout);
}

std::vector<Meaning> matchMeanings(bool bonusInBlue) {
  std::vector<Meaning> meanings;
  if (bonusInBlue) meanings.push_back({colors::kBlue, "bonus match"});
  meanings.push_back({kDefault, "matched"});
  return meanings;
}

void addDrawnLottoNumbers(std::vector<ControlDesign>& controls, int left, const std::string& text) {
  for (int k = 1; k <= 6; ++k)
    controls.push_back(textBox("TxtDrawnNumbers2", {left + (k - 1) * 360, 6960, 350, 300}, text)
                           .at(k)
                           .centred()
                           .lockedBox()
                           .noTabStop()
                           .read(Reading::Display)
                           .spoken("Drawn Lotto number " + std::to_string(k)));
}

void addLottoCells(std::vector<ControlDesign>& controls, const TicketGame& game, int gridLeft,
                   const std::array<int, 3>& spareLefts, int spareTop) {
  const ControlDesign cell =
      textBox("LineA", {0, 0, 300, 250}).centred().noTabStop().hidden().describedBy("LblEnterLine");
  addGrid(controls, cell, game.mostLines, game.cellsPerLine,
          {gridLeft, kLottoGridTop, kLottoColumnStep, kLottoRowStep});
  for (int spare = 1; spare <= 3; ++spare)
    controls.push_back(textBox("LineA", {spareLefts[spare - 1], spareTop, 300, 285})
                           .at(game.gridCells() + spare)
                           .centred()
                           .noTabStop()
                           .hidden()
                           .decoration());
}

}  // namespace veridraw::tickets
