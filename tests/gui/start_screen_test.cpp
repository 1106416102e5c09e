// The start and readme screens of the real program on the desktop: the window,
// the place and look of every control, and the user's keys and clicks, driven
// through the real widgets.
#include <QGuiApplication>
#include <QScreen>
#include <QTest>

#include "gui/look/appearance.h"
#include "gui_test_support.h"
#include "program/program.h"

using namespace veridraw;
using namespace veridraw::gui;
using namespace veridraw::gui::testing;

namespace {

QRect designPlace(const ControlDesign& design) {
  return {design.left / 15, design.top / 15, design.width / 15, design.height / 15};
}

}  // namespace

class StartScreenTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    program_ = std::make_unique<ProgramOnDesktop>();
    program_->start(kFirstForm);
    QVERIFY(program_->window() != nullptr);
  }
  void cleanup() { program_.reset(); }

  void theWindowIsFixedCentredAndAlone() {
    FormWindow& window = *program_->window();
    QCOMPARE(window.form().name(), "Veridraw7a");
    QCOMPARE(window.windowTitle(), "Veridraw");
    QCOMPARE(window.size(), QSize(794, 575));
    QCOMPARE(window.minimumSize(), QSize(794, 575));
    QCOMPARE(window.maximumSize(), QSize(794, 575));
    QVERIFY(window.isVisible());
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QVERIFY(qAbs(window.frameGeometry().center().x() - screen.center().x()) <= 1);
    QVERIFY(qAbs(window.frameGeometry().center().y() - screen.center().y()) <= 1);
    QCOMPARE(visibleFormWindows(), 1);
  }

  void everyControlStandsAtItsDesignPlace() {
    const FormDesign& design = program_->window()->form().design();
    QCOMPARE(program_->window()->views().size(), design.controls.size());
    for (const ControlDesign& control : design.controls) {
      const ControlView* view = program_->view(control.name, control.index);
      QVERIFY2(view != nullptr, control.name.c_str());
      QCOMPARE(view->geometry(), designPlace(control));
      QCOMPARE(view->isVisible(), control.visible);
    }
  }

  void captionsToolTipsAndColoursAreTheModels() {
    const ControlView& start = *program_->view("BtnStart");
    QCOMPARE(start.look().text, "Press &Enter to Start");
    QCOMPARE(start.toolTip(), "Press Enter to start Veridraw");
    QCOMPARE(start.look().background, QColor(255, 0, 0));
    QVERIFY(start.look().font.bold());
    QCOMPARE(program_->view("CmdReadme")->toolTip(), "Please Readme");
    QCOMPARE(program_->view("CmdForm1Exit")->look().text, "E&xit");
    QCOMPARE(program_->view("CmdForm1Exit")->toolTip(), "Exit Veridraw");

    const ControlView& title = *program_->view("Label2");
    QCOMPARE(title.look().text, "Lotto Veridraw");
    QCOMPARE(title.look().font.pixelSize(), 48);  // 36 points at 96 dpi
    QVERIFY(title.look().font.bold());

    const ControlView& prompt = *program_->view("Label6");
    QCOMPARE(prompt.look().text, "Line E -- Enter the 6 Two Digit Numbers");
    QCOMPARE(prompt.look().background, QColor(0, 0, 128));
    QCOMPARE(prompt.look().foreground, QColor(255, 255, 255));

    for (const char* game : {"Btn1Lotto", "Btn2Strike", "BtnPowerBall"})
      QCOMPARE(program_->view(game)->toolTip(), "PRESS ENTER");
    QVERIFY(program_->view("Btn1Lotto")->look().picture == Picture::Lotto);
    QVERIFY(program_->view("Btn2Strike")->look().picture == Picture::Strike);
    QVERIFY(program_->view("BtnPowerBall")->look().picture == Picture::PowerBall);
    QCOMPARE(program_->view("LineA", 1)->look().text, "01");
  }

  void theFormIsPaintedInItsBackColour() {
    const QImage image = program_->window()->grab().toImage();
    QCOMPARE(image.pixelColor(2, 300), QColor(0xC0, 0xC0, 0xC0));
    const QRect start = program_->view("BtnStart")->geometry();
    QCOMPARE(image.pixelColor(start.left() + 6, start.center().y()), QColor(255, 0, 0));
  }

  void theFocusStartsOnTheStartButtonAndTabMovesIt() {
    QVERIFY(program_->view("BtnStart")->look().focused);
    QTest::keyClick(program_->window(), Qt::Key_Tab);
    QVERIFY(!program_->view("BtnStart")->look().focused);
    QVERIFY(program_->view("CmdReadme")->look().focused);
    QCOMPARE(program_->application().focus()->name(), "CmdReadme");
    QTest::keyClick(program_->window(), Qt::Key_Tab, Qt::ShiftModifier);
    QVERIFY(program_->view("BtnStart")->look().focused);
  }

  void clickingAGamePictureDoesNothing() {
    FormWindow* window = program_->window();
    for (const char* game : {"Btn1Lotto", "Btn2Strike", "BtnPowerBall"}) {
      ControlView& picture = *program_->view(game);
      QTest::mouseClick(&picture, Qt::LeftButton, {}, middleOf(picture));
      QCOMPARE(program_->window(), window);
      QCOMPARE(program_->application().state(), Application::State::Running);
      QCOMPARE(window->form().name(), "Veridraw7a");
      QCOMPARE(visibleFormWindows(), 1);
    }
  }

  void altROpensTheReadmeAndAltSComesBack() {
    QTest::keyClick(program_->window(), Qt::Key_R, Qt::AltModifier);
    QCOMPARE(program_->window()->form().name(), "Veridraw7d");
    QCOMPARE(visibleFormWindows(), 1);
    QCOMPARE(program_->window()->size(), QSize(794, 575));
    QCOMPARE(program_->view("BtnStart")->look().text, "&Start");
    QCOMPARE(program_->view("BtnStart")->look().background, QColor(0xFF, 0xFF, 0xC0));
    QVERIFY(program_->view("BtnStart")->look().focused);

    QTest::keyClick(program_->window(), Qt::Key_S, Qt::AltModifier);
    QCOMPARE(program_->window()->form().name(), "Veridraw7a");
    QCOMPARE(visibleFormWindows(), 1);
    QVERIFY(program_->view("BtnStart")->look().focused);
  }

  void altDShowsTheDisclaimerUntilTheReadmeIsLeft() {
    QTest::keyClick(program_->window(), Qt::Key_R, Qt::AltModifier);
    const char* disclaimer[] = {"Label6", "Text2", "Text3"};
    for (const char* name : disclaimer)
      QVERIFY(!program_->view(name)->isVisible());
    QTest::keyClick(program_->window(), Qt::Key_D, Qt::AltModifier);
    for (const char* name : disclaimer)
      QVERIFY(program_->view(name)->isVisible());
    QVERIFY(program_->view("Label6")->look().text.startsWith("No Warranty is given"));

    QTest::keyClick(program_->window(), Qt::Key_S, Qt::AltModifier);
    QTest::keyClick(program_->window(), Qt::Key_R, Qt::AltModifier);
    for (const char* name : disclaimer)
      QVERIFY(!program_->view(name)->isVisible());
  }

  void aMouseClickOnReadmeOpensIt() {
    ControlView& readme = *program_->view("CmdReadme");
    QTest::mouseClick(&readme, Qt::LeftButton, {}, middleOf(readme));
    QCOMPARE(program_->window()->form().name(), "Veridraw7d");
  }

  void aClickThatLeavesTheButtonBeforeReleaseDoesNothing() {
    ControlView& readme = *program_->view("CmdReadme");
    QTest::mousePress(&readme, Qt::LeftButton, {}, middleOf(readme));
    QTest::mouseRelease(&readme, Qt::LeftButton, {}, readme.rect().bottomRight() + QPoint(5, 5));
    QCOMPARE(program_->window()->form().name(), "Veridraw7a");
  }

  void altXEndsTheProgram() {
    int reported = -1;
    program_->desktop().onFinished([&reported](int exitCode) { reported = exitCode; });
    QTest::keyClick(program_->window(), Qt::Key_X, Qt::AltModifier);
    QCOMPARE(program_->application().state(), Application::State::Ended);
    QVERIFY(program_->desktop().finished());
    QCOMPARE(reported, 0);
    QCOMPARE(program_->window(), nullptr);
    QCOMPARE(visibleFormWindows(), 0);
  }

  void theCloseButtonEndsTheProgram() {
    program_->window()->close();
    QCOMPARE(program_->application().state(), Application::State::Ended);
    QVERIFY(program_->desktop().finished());
    QCOMPARE(visibleFormWindows(), 0);
  }

  void aLetterWithoutAltIsNoAccessKey() {
    QTest::keyClick(program_->window(), Qt::Key_X);
    QTest::keyClick(program_->window(), Qt::Key_R);
    QCOMPARE(program_->application().state(), Application::State::Running);
    QCOMPARE(program_->window()->form().name(), "Veridraw7a");
  }

  void keysSentToAViewReachTheModel() {
    QTest::keyClick(program_->view("Btn1Lotto"), Qt::Key_R, Qt::AltModifier);
    QCOMPARE(program_->window()->form().name(), "Veridraw7d");
  }

 private:
  std::unique_ptr<ProgramOnDesktop> program_;
};

QTEST_MAIN(StartScreenTest)
#include "start_screen_test.moc"
