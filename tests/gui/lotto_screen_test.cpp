// The Lotto screen of the real program on the desktop, reached from the start
// screen through the draw screen: a four-line ticket chosen with Alt+N and
// Alt+D and typed key by key, with a step back by the space bar and a number
// refused while its cell is red; the prize grid that the last number fills,
// the ticket saved through the real input box, and the outcome with its prize
// rows.
//
// The current draw is 705: 3 8 17 22 39 40, bonus 12. The ticket:
//   A  03 08 12 17 22 39   five numbers and the bonus: Division 2
//   B  03 08 17 22 25 40   five numbers: Division 3
//   C  01 03 08 12 17 33   three numbers and the bonus: Division 5
//   D  04 08 12 22 35 38   two numbers and the bonus: no prize
#include <QTest>
#include <set>

#include "gui_test_support.h"
#include "program/program.h"
#include "screen_checks.h"

using namespace veridraw;
using namespace veridraw::gui;
using namespace veridraw::gui::testing;

namespace {

constexpr int kTicketCells = 24;
constexpr int kGridCells = 84;
constexpr int kCover = 88;

// The prize grid after the check: the ticket's own text where a number
// matches, a blank where it matches nothing.
const QStringList kPrizeGrid{"03 ", "08 ", "12 ", "17 ", "22 ", "39 ",  //
                             "03 ", "08 ", "17 ", "22 ", " ",   "40 ",  //
                             " ",   "03 ", "08 ", "12 ", "17 ", " ",    //
                             " ",   "08 ", "12 ", "22 ", " ",   " "};
// The cells that hold the bonus number.
const std::set<int> kBonusCells{3, 16, 21};

constexpr std::int32_t kPaleYellow = 0xC0FFFF;
constexpr std::int32_t kBlue = 0xFF0000;
constexpr std::int32_t kWhite = 0xFFFFFF;
constexpr std::int32_t kBlack = 0;

QColor onScreen(std::int32_t bgr) {
  return {bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF};
}

}  // namespace

class LottoScreenTest : public QObject, public ScreenChecks {
  Q_OBJECT

 private slots:
  void init() {
    program_ = std::make_unique<ProgramOnDesktop>();
    makeDraw705Current(*program_);
    openTicketScreen(*program_, "Btn1Lotto");
    QVERIFY(program_->window() != nullptr);
    QCOMPARE(program_->window()->form().name(), "Veridraw7b");
  }
  void cleanup() { program_.reset(); }

  void theCurrentDrawAndTheTwoRoadsAreShown() {
    QCOMPARE(program_->window()->size(), QSize(792, 573));
    expectText("TxtDrawBox", "705");
    expectWholeText("TxtDrawBox");
    expectWholeText("TxtLottoPrizes");
    expectCells("TxtDrawnNumbers2", {"03", "08", "17", "22", "39", "40", "12"});
    expectShown("BtnCheckNewTicket", true);
    expectShown("BtnCheckSavedTickets", true);
    for (const char* hidden : {"BtnSaveTicket", "CmdShowResults", "BtnCancel", "LblSpaceBar",
                               "LblEnterLine", "TxtNoofLines", "LstLottoTicket", "LblYouveWon"})
      expectShown(hidden, false);
    expectCellsShown("LineA", kTicketCells, true);
    expectShown("LineA", false, kTicketCells + 1);
    expectCellsShown("TextATxt", 14, true);
    expectCellsShown("TextBTxt", 14, false);
    expectCellsShown("IntResult", kGridCells, true);
    // The list of draws at its low place, under the draw area.
    expectShown("List1", true);
    QCOMPARE(program_->view("List1")->pos(), QPoint(220, 480));
    QCOMPARE(program_->view("List1")->look().items, QStringList{"705"});
    expectShown("List2", true);
    QCOMPARE(program_->view("List2")->look().items, QStringList{});
  }

  void aTicketIsTypedWithAStepBackAndARefusedNumber() {
    startAFourLineTicket();

    // 13 where 12 was meant: the space bar in cell 4 steps back into cell 3.
    type("030813");
    expectCells("LineA", {"03 ", "08 ", "13 ", " "});
    expectFocus("LineA", 4);
    QVERIFY(control("LineA", 3).locked());
    QTest::keyClick(program_->window(), Qt::Key_Space);
    expectCells("LineA", {"03 ", "08 ", " ", " "});
    expectFocus("LineA", 3);
    type("12172239");
    expectFocus("LineA", 7);
    expectPrompt("Line B -- Enter the 6 Two Digit numbers", 1775);

    // 15 after 17 on line B is out of order.
    type("030817");
    typeRefused("15", "LineA", 10, "This is an incorrect number");
    expectCells("LineA", {"03 ", "08 ", "12 ", "17 ", "22 ", "39 ", "03 ", "08 ", "17 ", " "});
    QCOMPARE(program_->view("LineA", 10)->look().background, onScreen(kWhite));
    expectFocus("LineA", 10);

    type("222540");
    expectPrompt("Line C -- Enter the 6 Two Digit numbers", 2010);
    type("010308121733");
    expectPrompt("Line D -- Enter the 6 Two Digit numbers", 2265);
    type("04081222353");
    expectFocus("LineA", kTicketCells);
    type("8");
    expectTheTicketChecked();
  }

  void altMWhileChoosingTheLengthReachesLineMAndEnterPressesIt() {
    QTest::keyClick(program_->window(), Qt::Key_N, Qt::AltModifier);
    expectFocus("BtnRestart");
    // Main Menu and Line M both have the letter M: the focus moves, nothing is pressed.
    QTest::keyClick(program_->window(), Qt::Key_M, Qt::AltModifier);
    QCOMPARE(program_->window()->form().name(), "Veridraw7b");
    expectFocus("BtnLineM");
    expectShown("TxtNoofLines", true);
    QTest::keyClick(program_->window(), Qt::Key_M, Qt::AltModifier);
    expectFocus("BtnRestart");
    QTest::keyClick(program_->window(), Qt::Key_M, Qt::AltModifier);
    QTest::keyClick(program_->window(), Qt::Key_Return);
    expectShown("BtnLineM", false);
    expectCellsShown("LineA", 72, true);
    expectShown("LineA", false, 73);
    expectFocus("LineA", 1);
  }

  void theTicketIsSavedAndItsOutcomeShown() {
    startAFourLineTicket();
    type("030812172239030817222540010308121733040812223538");
    expectTheTicketChecked();

    const InputBoxSeen asked = pressAndAnswer(Qt::Key_S, Qt::AltModifier, "7");
    QCOMPARE(asked.title, "Ticket Number");
    QCOMPARE(asked.prompt, "Enter the Ticket Number");
    QCOMPARE(asked.start, "");
    QCOMPARE(asked.place, kInputBoxPlace);
    QCOMPARE(program_->fileContent("Lotto # 7"),
             " 4 \r\nLotto # 7\r\n 030812172239030817222540010308121733040812223538\r\n");
    QCOMPARE(program_->fileContent("TicketNumber"), "Lotto # 7\r\n");
    expectShown("LblSaved", true);
    QCOMPARE(program_->view("LblSaved")->look().text, "Ticket Lotto # 7 Has been Saved");
    QCOMPARE(program_->view("List2")->look().items, QStringList{"Lotto # 7"});
    for (const char* hidden : {"BtnSaveTicket", "LblDrawsAvailable", "List1"})
      expectShown(hidden, false);
    expectShown("CmdShowResults", true);

    QTest::keyClick(program_->window(), Qt::Key_C, Qt::AltModifier);
    // A win: the ticket gives way to the pictures; the prize grid stays.
    for (const char* hidden : {"LblSaved", "BtnSaveTicket", "CmdShowResults", "BtnCancel",
                               "BtnCheckNewTicket", "Image1", "Image2"})
      expectShown(hidden, false);
    expectCellsShown("LineA", kTicketCells + 3, false);
    expectShown("LineA", false, kCover);
    expectCellsShown("TextATxt", 14, false);
    expectCellsShown("TextBTxt", 4, true);
    for (const char* shown : {"ImgCoins", "ImgMoney", "Image3", "Image4", "LblYouveWon"})
      expectShown(shown, true);
    QCOMPARE(program_->view("LblYouveWon")->look().text, "CONGRATULATIONS You've WON !!!");
    expectPrizeGrid();
    // No Division 1 row, so the first row stands at 2100; no gap for Division 4.
    expectShown("TxtDivision1", false);
    expectShown("LblDivision1", false);
    expectPrizeRow(2, "Division 2 Prize", 2100);
    expectPrizeRow(3, "Division 3 Prize", 2400);
    expectShown("TxtDivision4", false);
    expectShown("LblDivision4", false);
    expectPrizeRow(5, "Division 5 Prize", 2700);
    expectFocus("BtnRestart");
    expectShown("CmdEnd", true);
  }

 private:
  // Alt+N and Alt+D: the choice of the length, and the empty grid of four lines.
  void startAFourLineTicket() {
    QTest::keyClick(program_->window(), Qt::Key_N, Qt::AltModifier);
    expectShown("BtnCheckNewTicket", false);
    expectShown("BtnCheckSavedTickets", false);
    for (const char* line : {"BtnLineD", "BtnLineH", "BtnLineJ", "BtnLineO"})
      expectShown(line, true);
    expectShown("TxtNoofLines", true);
    expectWholeText("TxtNoofLines");
    expectShown("BtnCancel", true);
    expectShown("LblSpaceBar", true);
    QCOMPARE(program_->view("LblSpaceBar")->look().text,
             "To correct errors  backtrack with the Space Bar");

    QTest::keyClick(program_->window(), Qt::Key_D, Qt::AltModifier);
    for (const char* hidden : {"BtnLineD", "BtnLineO", "TxtNoofLines", "BtnCancel"})
      expectShown(hidden, false);
    expectCellsShown("LineA", kTicketCells, true);
    expectShown("LineA", false, kTicketCells + 1);
    for (int cell = 1; cell <= kTicketCells; ++cell) {
      QCOMPARE(control("LineA", cell).text(), " ");
      QCOMPARE(program_->view("LineA", cell)->look().background, onScreen(kWhite));
      QCOMPARE(program_->view("LineA", cell)->look().borderStyle, 1);
    }
    expectCellsShown("TextATxt", 4, true);
    expectShown("TextATxt", false, 5);
    expectCellsShown("TextBTxt", 4, true);
    expectShown("TextBTxt", false, 5);
    // The cover stands on the row of line E, over the spare cell to come.
    expectShown("LineA", true, kCover);
    QCOMPARE(program_->view("LineA", kCover)->y(), 2520 / 15);
    expectPrompt(" Line A -- Enter the 6 Two Digit  numbers", 1500);
    expectShown("LblSpaceBar", true);
    expectFocus("LineA", 1);
  }

  // The prompt beside the line being typed, at `top` twips.
  void expectPrompt(const char* caption, int top) {
    expectShown("LblEnterLine", true);
    QCOMPARE(program_->view("LblEnterLine")->look().text, caption);
    QCOMPARE(control("LblEnterLine").top(), top);
    QCOMPARE(program_->view("LblEnterLine")->y(), top / 15);
  }

  // The last number is in: the ticket turns into a display, the prize grid
  // shows the matches, the divisions are counted, and the focus waits on
  // the button that shows the results.
  void expectTheTicketChecked() {
    expectCells("LineA", {"03 ", "08 ", "12 ", "17 ", "22 ", "39 ", "03 ", "08 ",
                          "17 ", "22 ", "25 ", "40 ", "01 ", "03 ", "08 ", "12 ",
                          "17 ", "33 ", "04 ", "08 ", "12 ", "22 ", "35 ", "38 "});
    for (int cell = 1; cell <= kTicketCells; ++cell) {
      QCOMPARE(program_->view("LineA", cell)->look().background, onScreen(kPaleYellow));
      QCOMPARE(program_->view("LineA", cell)->look().borderStyle, 0);
    }
    expectShown("LineA", true, kTicketCells + 1);
    expectPrizeGrid();
    expectText("TxtDivision2", "1");
    expectText("TxtDivision3", "1");
    expectText("TxtDivision5", "1");
    for (int division = 1; division <= 5; ++division)
      expectShown(("TxtDivision" + std::to_string(division)).c_str(), false);
    expectShown("LblEnterLine", false);
    expectShown("BtnCheckNewTicket", false);
    expectShown("LblSpaceBar", true);
    QCOMPARE(program_->view("LblSpaceBar")->look().text,
             "To check saved tickets  Click on the Draw Number and then the Ticket Number");
    QCOMPARE(control("LblSpaceBar").height(), 880);
    expectShown("BtnSaveTicket", true);
    expectShown("CmdShowResults", true);
    expectFocus("CmdShowResults");
  }

  // Matches in black on pale yellow, the bonus in white on blue, in the model,
  // in the views and in the pixels of the window.
  void expectPrizeGrid() {
    expectCells("IntResult", kPrizeGrid);
    const QImage screen = program_->window()->grab().toImage();
    for (int cell = 1; cell <= kTicketCells; ++cell) {
      const bool bonus = kBonusCells.contains(cell);
      const std::int32_t back = bonus ? kBlue : kPaleYellow;
      const std::int32_t fore = bonus ? kWhite : kBlack;
      QCOMPARE(control("IntResult", cell).backColor(), back);
      QCOMPARE(control("IntResult", cell).foreColor(), fore);
      const ControlView& view = *program_->view("IntResult", cell);
      QCOMPARE(view.look().background, onScreen(back));
      QCOMPARE(view.look().foreground, onScreen(fore));
      QCOMPARE(screen.pixelColor(view.geometry().topLeft() + QPoint(2, 2)), onScreen(back));
    }
    for (int cell = kTicketCells + 1; cell <= kGridCells; ++cell) {
      QCOMPARE(control("IntResult", cell).text(), " ");
      QCOMPARE(control("IntResult", cell).backColor(), kPaleYellow);
    }
  }

  // The count and the name of a division's prizes, shown on one row at `top` twips.
  void expectPrizeRow(int division, const char* caption, int top) {
    const std::string box = "TxtDivision" + std::to_string(division);
    const std::string label = "LblDivision" + std::to_string(division);
    expectShown(box.c_str(), true);
    expectShown(label.c_str(), true);
    expectText(box.c_str(), "1");
    QCOMPARE(program_->view(label)->look().text, caption);
    QCOMPARE(control(box.c_str()).top(), top);
    QCOMPARE(control(label.c_str()).top(), top);
    QCOMPARE(program_->view(box)->y(), top / 15);
    QCOMPARE(program_->view(label)->y(), top / 15);
  }
};

QTEST_MAIN(LottoScreenTest)
#include "lotto_screen_test.moc"
