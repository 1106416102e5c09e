// The draw screen of the real program on the desktop, reached by Enter on the
// start screen: the draw number asked in the real input box, the numbers typed
// key by key into the window, the space bar that steps back, a refused number,
// the confirmation, and the draw files that it writes.
#include <QAbstractButton>
#include <QImage>
#include <QPainter>
#include <QStringList>
#include <QTest>

#include "gui/control_painting.h"
#include "gui_test_support.h"
#include "shell/program.h"

using namespace veridraw;
using namespace veridraw::gui;
using namespace veridraw::gui::testing;

namespace {

// Where the logic puts the input box for the draw number: 3280, 2750 twips.
const QPoint kInputBoxPlace(219, 183);

// How a view looks when the focus isn't on it.
QImage paintedWithoutFocus(const ControlView& view) {
  QImage image(view.size(), QImage::Format_RGB32);
  ControlLook look = view.look();
  look.focused = false;
  QPainter painter(&image);
  paintControl(painter, image.rect(), look, false);
  return image;
}

// Whether the view, as it stands on the screen, shows the focus: its caret or
// the frame of the button that Enter presses.
bool showsFocus(ControlView& view) {
  return view.grab().toImage().convertToFormat(QImage::Format_RGB32) != paintedWithoutFocus(view);
}

}  // namespace

class DrawScreenTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    program_ = std::make_unique<ProgramOnDesktop>();
    program_->deliver();
    program_->start(kFirstForm);
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
    const InputBoxSeen asked = askForDraw(Qt::Key_Return, {}, "12");
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
    askForDraw(Qt::Key_L, Qt::AltModifier, "1200");
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
    askForDraw(Qt::Key_Return, {}, "1200");
    type("0102");
    QColor seenOnScreen;
    std::int32_t seenInModel = 0;
    MessageBoxSeen seen;
    const DialogAnswer reply([&](QWidget* dialog) {
      const ControlView& cell = *program_->view("TxtDrawnNumbers", 3);
      seenInModel = control("TxtDrawnNumbers", 3).backColor();
      const QImage screen = program_->window()->grab().toImage();
      seenOnScreen = screen.pixelColor(cell.geometry().topLeft() + QPoint(3, 3));
      QCOMPARE(cell.look().text, "41 ");
      auto* box = qobject_cast<QMessageBox*>(dialog);
      seen = {box->windowTitle(), box->text(), box->icon(), box->standardButtons()};
      box->button(QMessageBox::Ok)->click();
    });
    type("41");
    QVERIFY(reply.answered());
    QCOMPARE(seen.title, "WARNING");
    QCOMPARE(seen.text, "You Must enter a Number between 1 and 40");
    QCOMPARE(seen.icon, QMessageBox::NoIcon);
    QCOMPARE(seen.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(seenInModel, 0x0000FF);
    QCOMPARE(seenOnScreen, QColor(255, 0, 0));

    expectCells("TxtDrawnNumbers", {"01 ", "02 ", " ", " ", " ", " ", " ", " "});
    expectFocus("TxtDrawnNumbers", 3);
    QCOMPARE(program_->view("TxtDrawnNumbers", 3)->look().background, QColor(255, 255, 255));
    QCOMPARE(program_->view("TxtDrawnNumbers", 8)->look().background, QColor(0, 128, 0));
    type("40");
    expectFocus("TxtDrawnNumbers", 4);
  }

  void strikeNumbersJoinTheLottoLineInTheSameFile() {
    askForDraw(Qt::Key_Return, {}, "1200");
    type("0102030405060708");
    confirm("1200", "1200\r\nX0102030405060708\r\n\r\n");

    // With the Lotto line in hand, no overwrite question comes.
    const InputBoxSeen asked = askForDraw(Qt::Key_S, Qt::AltModifier, "1200");
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
  Control& control(const char* name, int index = kNotInArray) const {
    return program_->application().activeForm()->control(name, index);
  }

  void type(const char* keys) { QTest::keyClicks(program_->window(), keys); }

  // Presses the key that starts an entry and answers its input box with `draw`.
  InputBoxSeen askForDraw(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& draw) {
    InputBoxSeen seen;
    const DialogAnswer reply = answerInputBox(draw, seen);
    QTest::keyClick(program_->window(), key, modifiers);
    if (!reply.answered()) QTest::qFail("no input box came up", __FILE__, __LINE__);
    return seen;
  }

  void expectText(const char* name, const char* text, int index = kNotInArray) {
    QCOMPARE(control(name, index).text(), text);
    QCOMPARE(program_->view(name, index)->look().text, text);
  }

  // The texts of the elements 1 and on of a control array, in the model and on the screen.
  void expectCells(const char* name, const QStringList& texts) {
    for (int index = 1; index <= texts.size(); ++index) {
      const QByteArray text = texts[index - 1].toLatin1();
      QCOMPARE(control(name, index).text(), text.toStdString());
      QCOMPARE(program_->view(name, index)->look().text, texts[index - 1]);
    }
  }

  void expectShown(const char* name, bool shown, int index = kNotInArray) {
    QCOMPARE(control(name, index).visible(), shown);
    QCOMPARE(program_->view(name, index)->isVisible(), shown);
  }

  void expectCellsShown(const char* name, int count, bool shown) {
    for (int index = 1; index <= count; ++index)
      expectShown(name, shown, index);
  }

  // The focus is on this control in the model, and on its view alone on the screen.
  void expectFocus(const char* name, int index = kNotInArray) {
    QCOMPARE(program_->application().focus(), &control(name, index));
    for (ControlView* view : program_->window()->views()) {
      const bool focused = view->controlName() == name && view->controlIndex() == index;
      QCOMPARE(view->look().focused, focused);
      if (focused) QVERIFY(showsFocus(*view));
    }
  }

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

  std::unique_ptr<ProgramOnDesktop> program_;
};

QTEST_MAIN(DrawScreenTest)
#include "draw_screen_test.moc"
