// The draw screen of the real program on the desktop, reached by Enter on the
// start screen: the draw number asked in the real input box, the numbers typed
// key by key into the window, the space bar that steps back, a refused number,
// the confirmation, and the draw files that it writes.
#include <QTest>

#include "gui_test_support.h"
#include "program/program.h"
#include "screen_checks.h"

using namespace veridraw;
using namespace veridraw::gui;
using namespace veridraw::gui::testing;

class DrawScreenTest : public QObject, public ScreenChecks {
  Q_OBJECT

 private slots:
  void init() {
    program_ = startAsDelivered();
    QTest::keyClick(program_->window(), Qt::Key_Return);
    QVERIFY(program_->window() != nullptr);
    QCOMPARE(program_->window()->form().name(), "Veridraw7f");
  }
  void cleanup() { program_.reset(); }

  void theDeliveredDrawIsShown() {
    QCOMPARE(program_->window()->size(), QSize(792, 573));
    expectText("TxtDrawBox", "1105");
    expectCells("TxtDrawnNumbers2", {"05", "12", "19", "26", "33", "38", "07", "04"});
    expectCells("TxtStrikeNumbers2", {"21", "09", "37", "14"});
    QCOMPARE(program_->view("List1")->look().items, QStringList{"1105"});
    expectFocus("BtnEnterLottoDrawNumbers");
    for (const char* button : {"BtnEnterLottoDrawNumbers", "BtnEnterStrikeNumbers",
                               "BtnCheckTickets", "BtnRestart", "CmdEnd"})
      expectShown(button, true);
    for (const char* hidden : {"LblDrawnOrder", "LblBonusNumber", "LblPwrBall", "BtnYes", "BtnNo",
                               "LblCorrectNumbers", "BtnCancel"})
      expectShown(hidden, false);
    expectCellsShown("TxtDrawnNumbers", 8, false);
  }

  void aLottoDrawIsTypedCorrectedWithTheSpaceBarAndSaved() {
    const InputBoxSeen asked = pressAndAnswer(Qt::Key_Return, {}, "12");
    QCOMPARE(asked.title, "Draw Number");
    QCOMPARE(asked.prompt, "Enter the Draw Number");
    QCOMPARE(asked.start, "");
    QCOMPARE(asked.place, kInputBoxPlace);

    // A Lotto line was in hand: the display starts afresh.
    expectText("TxtDrawBox", "12");
    expectCells("TxtDrawnNumbers2", {"", "", "", "", "", "", "", ""});
    expectCells("TxtStrikeNumbers2", {"", "", "", ""});
    for (const char* label : {"LblDrawnOrder", "LblBonusNumber", "LblPwrBall"})
      expectShown(label, true);
    for (const char* button :
         {"BtnEnterLottoDrawNumbers", "BtnEnterStrikeNumbers", "BtnCheckTickets"})
      expectShown(button, false);
    expectCellsShown("TxtDrawnNumbers", 8, true);
    expectCells("TxtDrawnNumbers", {" ", " ", " ", " ", " ", " ", " ", " "});
    expectFocus("TxtDrawnNumbers", 1);

    type("0");
    expectCells("TxtDrawnNumbers", {"0 ", " ", " ", " ", " ", " ", " ", " "});
    expectFocus("TxtDrawnNumbers", 1);
    type("1");
    expectFocus("TxtDrawnNumbers", 2);
    QVERIFY(control("TxtDrawnNumbers", 1).locked());
    QVERIFY(!control("TxtDrawnNumbers", 2).locked());

    // 09 where 03 was meant: the space bar in cell 4 steps back into cell 3.
    type("0209");
    expectCells("TxtDrawnNumbers", {"01 ", "02 ", "09 ", " ", " ", " ", " ", " "});
    expectFocus("TxtDrawnNumbers", 4);
    QTest::keyClick(program_->window(), Qt::Key_Space);
    expectCells("TxtDrawnNumbers", {"01 ", "02 ", " ", " ", " ", " ", " ", " "});
    expectFocus("TxtDrawnNumbers", 3);
    type("0304050607");
    expectFocus("TxtDrawnNumbers", 8);
    type("08");
    expectCells("TxtDrawnNumbers", {"01 ", "02 ", "03 ", "04 ", "05 ", "06 ", "07 ", "08 "});

    // Typed in order: no sorted row, only the question.
    expectShown("LblNumericOrder", false);
    expectCellsShown("TxtDrawnNumeric", 6, false);
    expectQuestion("BtnYes", "BtnNo", 5520);

    confirm("12", "12\r\nX0102030405060708\r\n\r\n");
    expectCellsShown("TxtDrawnNumbers", 8, false);
    expectShown("LblCorrectNumbers", false);
    expectShown("BtnYes", false);
    expectShown("BtnEnterLottoDrawNumbers", true);
    // Below draw 711 the PowerBall number isn't shown.
    expectCells("TxtDrawnNumbers2", {"01", "02", "03", "04", "05", "06", "07", " "});
    QCOMPARE(program_->view("List1")->look().items, (QStringList{"12", "1105"}));
  }

  void numbersOutOfOrderShowTheSortedRow() {
    pressAndAnswer(Qt::Key_L, Qt::AltModifier, "1200");
    type("4002030405060708");
    expectShown("LblNumericOrder", true);
    expectCellsShown("TxtDrawnNumeric", 6, true);
    expectCells("TxtDrawnNumeric", {"02 ", "03 ", "04 ", "05 ", "06 ", "40 "});
    expectCells("TxtDrawnNumbers", {"40 ", "02 ", "03 ", "04 ", "05 ", "06 ", "07 ", "08 "});
    expectFocus("BtnYes");

    confirm("1200", "1200\r\nX0203040506400708\r\n\r\n");
    expectShown("LblNumericOrder", false);
    expectCellsShown("TxtDrawnNumeric", 6, false);
    expectCells("TxtDrawnNumbers2", {"02", "03", "04", "05", "06", "40", "07", "08"});
  }

  void aNumberOutOfRangeIsRefusedWhileItsCellIsRed() {
    pressAndAnswer(Qt::Key_Return, {}, "1200");
    type("0102");
    typeRefused("41", "TxtDrawnNumbers", 3, "You Must enter a Number between 1 and 40");

    expectCells("TxtDrawnNumbers", {"01 ", "02 ", " ", " ", " ", " ", " ", " "});
    expectFocus("TxtDrawnNumbers", 3);
    QCOMPARE(program_->view("TxtDrawnNumbers", 3)->look().background, QColor(255, 255, 255));
    QCOMPARE(program_->view("TxtDrawnNumbers", 8)->look().background, QColor(0, 128, 0));
    type("40");
    expectFocus("TxtDrawnNumbers", 4);
  }

  void strikeNumbersJoinTheLottoLineInTheSameFile() {
    pressAndAnswer(Qt::Key_Return, {}, "1200");
    type("0102030405060708");
    confirm("1200", "1200\r\nX0102030405060708\r\n\r\n");

    // With the Lotto line in hand, no overwrite question comes.
    const InputBoxSeen asked = pressAndAnswer(Qt::Key_S, Qt::AltModifier, "1200");
    QCOMPARE(asked.title, "Draw Number");
    QCOMPARE(asked.place, kInputBoxPlace);
    expectShown("LblDrawnOrder2", true);
    expectCellsShown("TxtStrikeNumbers", 4, true);
    expectCellsShown("TxtDrawnNumbers", 8, false);
    expectFocus("TxtStrikeNumbers", 1);
    type("170339");
    expectCells("TxtStrikeNumbers", {"17 ", "03 ", "39 ", " "});
    expectFocus("TxtStrikeNumbers", 4);
    type("08");
    expectShown("LblDrawnOrder2", false);
    expectQuestion("BtnYes2", "BtnNo2", 4800);

    confirm("1200", "1200\r\nX0102030405060708\r\nZ17033908\r\n");
    expectCellsShown("TxtStrikeNumbers", 4, false);
    expectShown("BtnYes2", false);
    expectCells("TxtStrikeNumbers2", {"17", "03", "39", "08"});
    expectCells("TxtDrawnNumbers2", {"01", "02", "03", "04", "05", "06", "07", "08"});
    QCOMPARE(program_->view("List1")->look().items, (QStringList{"1105", "1200"}));
  }

 private:
  // Enter presses the Yes button that has the focus: the draw becomes the
  // current one, and its file holds `content` byte for byte.
  void confirm(const std::string& draw, const std::string& content) {
    QTest::keyClick(program_->window(), Qt::Key_Return);
    QCOMPARE(program_->fileContent("DrawNumber"), draw + "\r\n");
    QCOMPARE(program_->fileContent(draw), content);
  }

  // The question at the end of an entry, its label at `top` twips, and the
  // focus on its Yes button.
  void expectQuestion(const char* yes, const char* no, int top) {
    expectShown("LblCorrectNumbers", true);
    QCOMPARE(program_->view("LblCorrectNumbers")->look().text, "Are these numbers correct?");
    QCOMPARE(program_->view("LblCorrectNumbers")->y(), top / 15);
    expectShown(yes, true);
    expectShown(no, true);
    expectFocus(yes);
  }
};

QTEST_MAIN(DrawScreenTest)
#include "draw_screen_test.moc"
