// Every kind of control on the desktop, on a form made for the test: typing
// at the model's caret, lists, labels that move, reloading, and the screen
// redrawn before a dialog shows.
#include <QAbstractButton>
#include <QInputDialog>
#include <QMessageBox>
#include <QScrollBar>
#include <QTest>

#include "gui/window/control_view.h"
#include "gui_test_support.h"
#include "test_forms.h"

using namespace veridraw;
using namespace veridraw::gui;
using namespace veridraw::gui::testing;

class ControlsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    program_ = std::make_unique<ProgramOnDesktop>(addSamplerForms);
    program_->start(kSampler);
    QVERIFY(program_->window() != nullptr);
  }
  void cleanup() { program_.reset(); }

  void theWindowHasTheFormsSize() { QCOMPARE(program_->window()->size(), QSize(400, 300)); }

  void typingGoesInAtTheModelsCaret() {
    ControlView& entry = *view("Entry");
    QVERIFY(entry.look().focused);
    QTest::keyClicks(program_->window(), "12");
    QCOMPARE(control("Entry").text(), "12 ");
    QCOMPARE(entry.look().text, "12 ");
    QCOMPARE(entry.look().caret, 2);
    QTest::keyClick(program_->window(), Qt::Key_Backspace);
    QCOMPARE(entry.look().text, "1 ");
    QTest::keyClick(program_->window(), Qt::Key_Home);
    QCOMPARE(entry.look().caret, 0);
    QTest::keyClick(program_->window(), Qt::Key_End);
    QCOMPARE(entry.look().caret, 2);
    QTest::keyClick(program_->window(), Qt::Key_Space);
    QCOMPARE(entry.look().text, "1  ");
  }

  void aClickOnATextBoxGivesItTheFocusAndLeavesTheCaret() {
    QTest::keyClicks(program_->window(), "12");
    QTest::keyClick(program_->window(), Qt::Key_Tab);
    ControlView& entry = *view("Entry");
    QVERIFY(!entry.look().focused);
    QTest::mouseClick(&entry, Qt::LeftButton, {}, QPoint(4, entry.height() / 2));
    QVERIFY(entry.look().focused);
    QCOMPARE(program_->application().focus(), &control("Entry"));
    QCOMPARE(entry.look().caret, 2);
  }

  void typedTextIsWindows1252() {
    for (const QString& text : {QString("\u00E9"), QString("\u20AC"), QString("\u4E2D")})
      QTest::sendKeyEvent(QTest::Click, program_->window(), Qt::Key_unknown, text, {});
    QCOMPARE(control("Entry").text(), std::string("\xE9\x80? "));
    QCOMPARE(view("Entry")->look().text, QString("\u00E9\u20AC? "));
  }

  void aButtonIsPressedOnceByEachKeyAndClick() {
    ControlView& count = *view("CmdCount");
    QTest::mouseClick(&count, Qt::LeftButton, {}, middleOf(count));
    QCOMPARE(view("Answer")->look().text, "1");
    QVERIFY(count.look().focused);
    QTest::keyClick(program_->window(), Qt::Key_Return);
    QCOMPARE(view("Answer")->look().text, "2");
    QTest::keyClick(program_->window(), Qt::Key_Space);
    QCOMPARE(view("Answer")->look().text, "3");
    QTest::keyClick(program_->window(), Qt::Key_C, Qt::AltModifier);
    QCOMPARE(view("Answer")->look().text, "4");
    QTest::keyClick(program_->window(), Qt::Key_Escape);
    QCOMPARE(view("Answer")->look().text, "4");
  }

  void aListShowsItsItemsAndTakesAClickOnARow() {
    ControlView& draws = *view("Draws");
    QCOMPARE(draws.look().items.size(), kDrawsListed);
    QCOMPARE(draws.look().items.first(), "Draw 1");
    QCOMPARE(draws.look().listIndex, -1);
    QVERIFY(draws.scrollBar()->isVisible());
    const int rowHeight = QFontMetrics(draws.look().font).height();
    const int visibleRows = (draws.height() - 4) / rowHeight;
    QCOMPARE(draws.scrollBar()->maximum(), kDrawsListed - visibleRows);

    QTest::mouseClick(&draws, Qt::LeftButton, {}, QPoint(10, 2 + rowHeight * 2 + rowHeight / 2));
    QCOMPARE(control("Draws").listIndex(), 2);
    QCOMPARE(draws.look().listIndex, 2);
    QVERIFY(draws.look().focused);
    QCOMPARE(view("Answer")->look().text, "Draw 3");

    QTest::keyClick(program_->window(), Qt::Key_Down);
    QCOMPARE(draws.look().listIndex, 3);
    QCOMPARE(view("Answer")->look().text, "Draw 4");
  }

  void typingAndPagingInAListMoveItsSelection() {
    ControlView& draws = *view("Draws");
    const int rowHeight = QFontMetrics(draws.look().font).height();
    QTest::mouseClick(&draws, Qt::LeftButton, {}, QPoint(10, 2 + rowHeight * 2 + rowHeight / 2));
    QCOMPARE(view("Answer")->look().text, "Draw 3");

    // Every item begins with D: a typed d goes on to the next one.
    QTest::keyClick(program_->window(), Qt::Key_D);
    QCOMPARE(draws.look().listIndex, 3);
    QCOMPARE(view("Answer")->look().text, "Draw 4");
    // The list shows six rows of the model's height: a page moves five.
    QTest::keyClick(program_->window(), Qt::Key_PageDown);
    QCOMPARE(draws.look().listIndex, 8);
    QCOMPARE(draws.look().topIndex, 3);
    QCOMPARE(view("Answer")->look().text, "Draw 9");
    QTest::keyClick(program_->window(), Qt::Key_PageUp);
    QCOMPARE(draws.look().listIndex, 3);
    QCOMPARE(view("Answer")->look().text, "Draw 4");
    QTest::keyClick(program_->window(), Qt::Key_End);
    QCOMPARE(draws.look().listIndex, kDrawsListed - 1);
    QCOMPARE(view("Answer")->look().text, "Draw 20");
    QTest::keyClick(program_->window(), Qt::Key_Home);
    QCOMPARE(draws.look().listIndex, 0);
    QCOMPARE(draws.look().topIndex, 0);
    QCOMPARE(view("Answer")->look().text, "Draw 1");
  }

  void scrollingAListMovesItsTopIndex() {
    ControlView& draws = *view("Draws");
    QWheelEvent wheel(middleOf(draws), draws.mapToGlobal(middleOf(draws)), {}, QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&draws, &wheel);
    QCOMPARE(control("Draws").topIndex(), 3);
    QCOMPARE(draws.look().topIndex, 3);
    QCOMPARE(draws.scrollBar()->value(), 3);

    draws.scrollBar()->setValue(7);
    QCOMPARE(control("Draws").topIndex(), 7);
    QCOMPARE(draws.look().topIndex, 7);
    QCOMPARE(control("Draws").listIndex(), -1);
    QCOMPARE(view("Answer")->look().text, "");
  }

  void aLabelMovesAndAHiddenPictureAppears() {
    const QRect before = view("Prompt")->geometry();
    QVERIFY(!view("Coins")->isVisible());
    QTest::keyClick(program_->window(), Qt::Key_M, Qt::AltModifier);
    QCOMPARE(view("Prompt")->geometry(), before.translated(0, 20));
    QCOMPARE(view("Prompt")->look().text, "Line B -- Enter");
    QVERIFY(view("Coins")->isVisible());
  }

  void theScreenIsRedrawnBeforeAMessageBoxShows() {
    bool sawRed = false;
    QString title;
    const DialogAnswer reply([&](QWidget* dialog) {
      const ControlView& entry = *view("Entry");
      const QImage screen = program_->window()->grab().toImage();
      sawRed = entry.look().background == QColor(255, 0, 0) &&
               screen.pixelColor(entry.geometry().center()) == QColor(255, 0, 0);
      auto* box = qobject_cast<QMessageBox*>(dialog);
      title = box->windowTitle();
      box->button(QMessageBox::Ok)->click();
    });
    QTest::keyClick(program_->window(), Qt::Key_W, Qt::AltModifier);
    QVERIFY(reply.answered());
    QVERIFY(sawRed);
    QCOMPARE(title, "WARNING");
    QCOMPARE(view("Entry")->look().background, QColor(255, 255, 255));
  }

  void yesAndNoReachTheLogic() {
    for (const auto& [button, answer] :
         {std::pair{QMessageBox::Yes, "6"}, {QMessageBox::No, "7"}}) {
      MessageBoxSeen seen;
      const DialogAnswer reply = answerMessageBox(button, seen);
      QTest::keyClick(program_->window(), Qt::Key_Q, Qt::AltModifier);
      QVERIFY(reply.answered());
      QCOMPARE(view("Answer")->look().text, answer);
      QCOMPARE(seen.text, "Are these numbers correct?");
    }
  }

  void anInputBoxStandsWhereTheLogicPutsIt() {
    QPoint place;
    const DialogAnswer reply([&place](QWidget* dialog) {
      auto* box = qobject_cast<QInputDialog*>(dialog);
      place = placeOnDesignedDesktop(*box);
      box->setTextValue("42");
      box->accept();
    });
    QTest::keyClick(program_->window(), Qt::Key_A, Qt::AltModifier);
    QVERIFY(reply.answered());
    QCOMPARE(place, QPoint(kInputBoxLeft / 15, kInputBoxTop / 15));
    QCOMPARE(view("Answer")->look().text, "42");
  }

  void aFormShownAgainGetsANewWindowWithItsFirstValues() {
    QTest::keyClicks(program_->window(), "12");
    FormWindow* first = program_->window();
    QTest::keyClick(program_->window(), Qt::Key_R, Qt::AltModifier);
    QCOMPARE(program_->window()->form().name(), kOther);
    QCOMPARE(visibleFormWindows(), 1);
    QTest::keyClick(program_->window(), Qt::Key_B, Qt::AltModifier);
    QCOMPARE(program_->window()->form().name(), kSampler);
    QVERIFY(program_->window() != first);
    QCOMPARE(visibleFormWindows(), 1);
    QCOMPARE(view("Entry")->look().text, " ");
  }

 private:
  ControlView* view(const char* name) const { return program_->view(name); }
  Control& control(const char* name) const {
    return program_->application().activeForm()->control(name);
  }

  std::unique_ptr<ProgramOnDesktop> program_;
};

QTEST_MAIN(ControlsTest)
#include "controls_test.moc"
