// A fatal error on the desktop: the platform's message, then the end of the
// program with no window left.
#include <QAbstractButton>
#include <QMessageBox>
#include <QTest>

#include "gui/dialogs/desktop_dialogs.h"
#include "gui_test_support.h"
#include "test_forms.h"

using namespace veridraw;
using namespace veridraw::gui;
using namespace veridraw::gui::testing;

namespace {

void checkFileNotFound(const MessageBoxSeen& seen) {
  QCOMPARE(seen.title, "Veridraw");
  QCOMPARE(seen.text, "Run-time error '53':\n\nFile not found");
  QCOMPARE(seen.icon, QMessageBox::Critical);
  QCOMPARE(seen.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
}

}  // namespace

class FatalErrorTest : public QObject {
  Q_OBJECT

 private slots:
  void anErrorInAnEventIsReportedAndEndsTheProgram() {
    ProgramOnDesktop program(addBrokenForms);
    int reported = -1;
    program.desktop().onFinished([&reported](int exitCode) { reported = exitCode; });
    program.start(kBroken);
    QCOMPARE(visibleFormWindows(), 1);

    MessageBoxSeen seen;
    const DialogAnswer reply = answerMessageBox(QMessageBox::Ok, seen);
    QTest::keyClick(program.window(), Qt::Key_Return);
    QVERIFY(reply.answered());
    checkFileNotFound(seen);
    QCOMPARE(program.application().state(), Application::State::Fatal);
    QVERIFY(program.desktop().finished());
    QCOMPARE(reported, 1);
    QCOMPARE(program.window(), nullptr);
    QCOMPARE(visibleFormWindows(), 0);
  }

  void anErrorInTheFirstLoadIsReportedWithoutAWindow() {
    ProgramOnDesktop program(addBrokenForms);
    MessageBoxSeen seen;
    const DialogAnswer reply = answerMessageBox(QMessageBox::Ok, seen);
    program.start(kBrokenAtLoad);
    QVERIFY(reply.answered());
    checkFileNotFound(seen);
    QVERIFY(program.desktop().finished());
    QCOMPARE(program.desktop().exitCode(), 1);
    QCOMPARE(visibleFormWindows(), 0);
  }

  void theTextNamesTheErrorAndExplainsIt() {
    QCOMPARE(runTimeErrorText(FatalError(340, "Control array element '9' doesn't exist")),
             "Run-time error '340':\n\nControl array element '9' doesn't exist");
  }
};

QTEST_MAIN(FatalErrorTest)
#include "fatal_error_test.moc"
