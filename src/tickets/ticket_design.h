// Pieces of the design tables of the ticket screens: the controls that all
// three screens have, and the builders that repeat a control along a grid (the
// number cells, the prize grid, the line letters and the line buttons).
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "screen/design.h"
#include "tickets/ticket_game.h"

namespace veridraw::tickets {

// Where the three screens place the controls they share, and the captions they
// word in their own way. The defaults are the Lotto screen's.
struct TicketLook {
  // BtnCheckNewTicket, BtnCheckSavedTickets, BtnSaveTicket, CmdShowResults and
  // BtnRestart stand at this Left; BtnCancel and CmdEnd 1200 and 2280 further.
  int flowLeft = 4320;
  int deleteLeft = 5470;  // BtnDeleteTicket
  std::string showResultsCaption = "&Click Here to Show Results";
  Place drawLabel{360, 6420, 1815, 255};  // LblDraw
  Place drawBox{2265, 6360, 735, 360};    // TxtDrawBox
  std::string drawBoxText = "";           // the PowerBall screen's box holds a space
  std::string changeTicketCaption = "<---Click to change the ticket number";
  int savedLeft = 4320;                      // LblSaved
  Place linesPrompt{4440, 1440, 2970, 315};  // TxtNoofLines
  std::string linesPromptCaption = "Click on the last line letter on your ticket";
  double linesPromptFont = 7.5;            // smaller than the other boxes, so the sentence fits
  Place enterLine{3000, 1500, 3135, 255};  // LblEnterLine
  int numbersPerLine = 6;
  Place prizesHeading{8970, 1035, 2415, 285};  // TxtLottoPrizes
  std::string prizesHeadingCaption = "LOTTO PRIZES";
  Place youveWon{4560, 1005, 2775, 600};         // LblYouveWon
  Picture ballsDrawing = Picture::LottoBalls;    // Image1 and Image3
  Picture ticketDrawing = Picture::LottoTicket;  // Image2 and Image4
};

// The controls of the three ticket screens, in their designer's order: the
// flow buttons and the lists (tab order 0 to 10), the heading, the draw box,
// the saved-ticket labels and the prompts, the prize heading and the pictures.
// A screen puts its own controls among them with insertAfter.
void addTicketControls(std::vector<ControlDesign>& controls, const TicketLook& look);

// Puts a screen's own controls right after the control `name`, where its
// designer had them; a name that is not in the table is a mistake in the
// design, and throws std::logic_error.
void insertAfter(std::vector<ControlDesign>& controls, std::string_view name,
                 std::vector<ControlDesign> own);

// The owner's notice at the foot, the last control of a ticket screen, so
// that it stands in front of the spare cells.
void addNotice(std::vector<ControlDesign>& controls);

// The cover box of a game's grid: it hides the spare cell after the ticket, on
// which the focus is parked when the ticket is complete.
ControlDesign coverBox(const TicketGame& game, Place place);

// Where element 1 of a grid stands, and how far apart its columns and rows are.
// The grid of a Lotto ticket, which the PowerBall screen has too: rows of cells
// 300 twips apart, lines 255 apart, line A at the top.
inline constexpr int kLottoGridTop = 1500;
inline constexpr int kLottoRowStep = 255;
inline constexpr int kLottoColumnStep = 300;

struct GridLayout {
  int left = 0;
  int top = 0;
  int columnStep = 0;
  int rowStep = 0;
};

// The spoken name of a cell of a grid: "Line B, number 3", or under the
// grid's own name, "Prize grid, line B, PowerBall".
std::string lineCellName(const std::string& grid, int line, const std::string& place);

// The name under which a screen reader reads the cells of a prize grid.
inline constexpr const char* kPrizeGridName = "Prize grid";

// Elements 1 to lines x perLine of the control array of `cell`, row by row:
// element k at column ((k - 1) mod perLine) and row ((k - 1) div perLine).
// Each is named for screen readers by its line and place, under the name that
// `cell` gives the grid, if any.
void addGrid(std::vector<ControlDesign>& controls, const ControlDesign& cell, int lines,
             int perLine, GridLayout layout);

// The six boxes of the drawn Lotto numbers, TxtDrawnNumbers2(1) to (6), in a
// row from `left` on, read as the drawn numbers, holding `text` at first (the
// Lotto screen's are empty, the PowerBall screen's hold a blank).
void addDrawnLottoNumbers(std::vector<ControlDesign>& controls, int left, const std::string& text);

// The number cells of a Lotto ticket, from `gridLeft` on, read with the prompt
// of the line; then its three spare cells after the grid, hidden and kept from
// screen readers, at `spareLefts` on the row `spareTop`.
void addLottoCells(std::vector<ControlDesign>& controls, const TicketGame& game, int gridLeft,
                   const std::array<int, 3>& spareLefts, int spareTop);

// The prize grid IntResult of a game: a cell for each cell of the ticket, pale
// yellow, without a border, filled only by the check; `meanings` tell a screen
// reader what a filled cell's colour says.
void addPrizeGrid(std::vector<ControlDesign>& controls, const TicketGame& game,
                  const GridLayout& layout, int cellHeight, std::vector<Meaning> meanings);

// What a filled cell of a prize grid says: a number that the draw has, and
// where the check paints the bonus blue, the bonus.
std::vector<Meaning> matchMeanings(bool bonusInBlue);

// Elements 1 to `lines` of the control array of `letter`, "A." to "O." with no
// I, one a row from the letter's own Top.
void addLineLetters(std::vector<ControlDesign>& controls, const ControlDesign& letter, int lines,
                    int rowStep);

// The line buttons, "Line &D" and so on, each at the row of its last line;
// `button` gives the Left, the size and the Top of line 1.
void addLineButtons(std::vector<ControlDesign>& controls, const ControlDesign& button,
                    const std::vector<LineButton>& buttons, int rowStep);

// Where a screen stands the letters of its lines and its line buttons, at line A.
struct LetterColumns {
  int top = 0;
  int height = 0;      // of a letter and of a line button
  int ticketLeft = 0;  // TextATxt, the letters of the ticket
  int prizeLeft = 0;   // TextBTxt, the hidden letters of the prize grid
  int buttonLeft = 0;
  int buttonTop = 0;
};

// The letters of the ticket, the letters of the prize grid and the line
// buttons of `game`, in that order, one row every `rowStep`.
void addLettersAndLineButtons(std::vector<ControlDesign>& controls, const TicketGame& game,
                              LetterColumns columns, int rowStep);

}  // namespace veridraw::tickets
