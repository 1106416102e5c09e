// Renders the start, readme, draw, Lotto and Strike screens of the real program, and
// a test form with a control of every kind, to PNG files in the test's
// directory, screens/, for the README and for a look by eye.
#include <QDir>
#include <QImage>
#include <QSet>
#include <QTest>

#include "gui/look/classic_style.h"
#include "gui_test_support.h"
#include "program/program.h"
#include "test_forms.h"

using namespace veridraw;
using namespace veridraw::gui;
using namespace veridraw::gui::testing;

namespace {

// The draw screen is 11880 x 8595 twips, a little smaller than the start
// screen, and so are the ticket screens.
const QSize kDrawScreenSize(792, 573);

// The Lotto screen, with draw 705 as the current draw, ready for a ticket of
// four lines: Alt+N (Check New Ticket) and Alt+D (Line D).
void startALottoTicket(ProgramOnDesktop& program) {
  makeDraw705Current(program);
  openTicketScreen(program, "Btn1Lotto");
  QCOMPARE(program.window()->form().name(), "Veridraw7b");
  QTest::keyClick(program.window(), Qt::Key_N, Qt::AltModifier);
  QTest::keyClick(program.window(), Qt::Key_D, Qt::AltModifier);
}

// A ticket of four lines: Division 2, Division 3, Division 5 and nothing.
constexpr const char* kLottoTicket =
    "030812172239"
    "030817222540"
    "010308121733"
    "040812223538";

}  // namespace

class ScreenshotTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    useClassicStyle();
    QVERIFY(QDir().mkpath("screens"));
  }

  void startScreen() {
    ProgramOnDesktop program;
    program.start(kFirstForm);
    saveAndCheck(*program.window(), "screens/start.png");
  }

  void drawScreen() {
    ProgramOnDesktop program;
    program.deliver();
    program.start(kFirstForm);
    QTest::keyClick(program.window(), Qt::Key_Return);
    QCOMPARE(program.window()->form().name(), "Veridraw7f");
    saveAndCheck(*program.window(), "screens/draw.png", kDrawScreenSize);
  }

  void drawScreenDuringALottoEntry() {
    ProgramOnDesktop program;
    program.deliver();
    program.start(kFirstForm);
    QTest::keyClick(program.window(), Qt::Key_Return);
    InputBoxSeen seen;
    const DialogAnswer reply = answerInputBox("1200", seen);
    QTest::keyClick(program.window(), Qt::Key_L, Qt::AltModifier);
    QVERIFY(reply.answered());
    QTest::keyClicks(program.window(), "1705214");
    QCOMPARE(program.view("TxtDrawnNumbers", 4)->look().text, "4 ");
    saveAndCheck(*program.window(), "screens/draw-entry.png", kDrawScreenSize);
  }

  void lottoScreen() {
    ProgramOnDesktop program;
    makeDraw705Current(program);
    openTicketScreen(program, "Btn1Lotto");
    QCOMPARE(program.window()->form().name(), "Veridraw7b");
    saveAndCheck(*program.window(), "screens/lotto.png", kDrawScreenSize);
  }

  void lottoScreenDuringATicket() {
    ProgramOnDesktop program;
    startALottoTicket(program);
    QTest::keyClicks(program.window(), QByteArray(kLottoTicket).left(15));
    QCOMPARE(program.view("LineA", 8)->look().text, "0 ");
    saveAndCheck(*program.window(), "screens/lotto-entry.png", kDrawScreenSize);
  }

  void lottoScreenWithItsOutcome() {
    ProgramOnDesktop program;
    startALottoTicket(program);
    QTest::keyClicks(program.window(), kLottoTicket);
    QTest::keyClick(program.window(), Qt::Key_C, Qt::AltModifier);
    QVERIFY(program.view("LblYouveWon")->isVisible());
    saveAndCheck(*program.window(), "screens/lotto-outcome.png", kDrawScreenSize);
  }

  void strikeScreen() {
    ProgramOnDesktop program;
    makeDraw705Current(program);
    openTicketScreen(program, "Btn2Strike");
    QCOMPARE(program.window()->form().name(), "Veridraw7c");
    saveAndCheck(*program.window(), "screens/strike.png", kDrawScreenSize);
  }

  // A Strike ticket of three lines against 17 03 39 08: a Strike 3, a Strike 2
  // and nothing.
  void strikeScreenWithItsOutcome() {
    ProgramOnDesktop program;
    makeDraw705Current(program);
    openTicketScreen(program, "Btn2Strike");
    QTest::keyClick(program.window(), Qt::Key_N, Qt::AltModifier);
    ControlView& lineC = *program.view("BtnLineC");
    QTest::mouseClick(&lineC, Qt::LeftButton, {}, middleOf(lineC));
    QTest::keyClicks(program.window(), "170339100103020804050607");
    QTest::keyClick(program.window(), Qt::Key_C, Qt::AltModifier);
    QVERIFY(program.view("LblYouveWon")->isVisible());
    saveAndCheck(*program.window(), "screens/strike-outcome.png", kDrawScreenSize);
  }

  void everyKindOfControl() {
    ProgramOnDesktop program(addSamplerForms);
    program.start(kSampler);
    QTest::keyClicks(program.window(), "12");
    ControlView& draws = *program.view("Draws");
    QTest::mouseClick(&draws, Qt::LeftButton, {}, QPoint(10, 30));
    QTest::keyClick(program.window(), Qt::Key_M, Qt::AltModifier);
    ControlView& entry = *program.view("Entry");
    QTest::mouseClick(&entry, Qt::LeftButton, {}, middleOf(entry));
    saveAndCheck(*program.window(), "screens/controls.png", QSize(400, 300));
  }

  void readmeScreenWithDisclaimer() {
    ProgramOnDesktop program;
    program.start(kFirstForm);
    QTest::keyClick(program.window(), Qt::Key_R, Qt::AltModifier);
    QTest::keyClick(program.window(), Qt::Key_D, Qt::AltModifier);
    QCOMPARE(program.window()->form().name(), "Veridraw7d");
    saveAndCheck(*program.window(), "screens/readme.png");
  }

 private:
  static void saveAndCheck(QWidget& window, const QString& file,
                           const QSize& size = QSize(794, 575)) {
    const QImage image = window.grab().toImage();
    QCOMPARE(image.size(), size);
    QVERIFY(image.save(file));
    // A screen with its pictures and captions drawn has many colours.
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        colours.insert(image.pixel(x, y));
    QVERIFY2(colours.size() > 100, qPrintable(QString::number(colours.size())));
  }
};

QTEST_MAIN(ScreenshotTest)
#include "screenshot_test.moc"
