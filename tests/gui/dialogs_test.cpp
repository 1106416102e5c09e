// The message and input boxes of the desktop: their buttons, icons, titles,
// answers, place, and the Windows-1252 strings of the model on both sides.
#include <QAbstractButton>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QTest>

#include "gui/dialogs/desktop_dialogs.h"
#include "gui_test_support.h"

using namespace veridraw;
using namespace veridraw::gui;
using namespace veridraw::gui::testing;

namespace {

struct BoxSeen : MessageBoxSeen {
  bool answered = false;
};

// Shows a message box and answers it with `answer`; returns what it showed.
BoxSeen showAndAnswer(DesktopDialogs& dialogs, int buttons, QMessageBox::StandardButton answer,
                      int& result) {
  BoxSeen seen;
  const DialogAnswer reply = answerMessageBox(answer, seen);
  result = dialogs.MsgBox("Are these numbers correct?\r\nDraw 1105", buttons, "Veridraw");
  seen.answered = reply.answered();
  return seen;
}

}  // namespace

class DialogsTest : public QObject {
  Q_OBJECT

 private slots:
  void aPlainBoxHasOkOnly() {
    DesktopDialogs dialogs;
    int result = 0;
    const BoxSeen seen = showAndAnswer(dialogs, msgbox::kOkOnly, QMessageBox::Ok, result);
    QVERIFY(seen.answered);
    QCOMPARE(result, msgbox::kOk);
    QCOMPARE(seen.title, "Veridraw");
    QCOMPARE(seen.text, "Are these numbers correct?\nDraw 1105");
    QCOMPARE(seen.icon, QMessageBox::NoIcon);
    QCOMPARE(seen.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
  }

  void fortyEightAddsTheExclamation() {
    DesktopDialogs dialogs;
    int result = 0;
    const BoxSeen seen = showAndAnswer(dialogs, msgbox::kExclamation, QMessageBox::Ok, result);
    QCOMPARE(result, msgbox::kOk);
    QCOMPARE(seen.icon, QMessageBox::Warning);
    QCOMPARE(seen.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
  }

  void fourAsksYesOrNo() {
    DesktopDialogs dialogs;
    int result = 0;
    BoxSeen seen = showAndAnswer(dialogs, msgbox::kYesNo, QMessageBox::Yes, result);
    QCOMPARE(result, msgbox::kYes);
    QCOMPARE(seen.icon, QMessageBox::NoIcon);
    QCOMPARE(seen.buttons, QMessageBox::Yes | QMessageBox::No);
    seen = showAndAnswer(dialogs, msgbox::kYesNo, QMessageBox::No, result);
    QCOMPARE(result, msgbox::kNo);
  }

  void fiftyTwoAsksYesOrNoWithTheExclamation() {
    DesktopDialogs dialogs;
    int result = 0;
    const BoxSeen seen =
        showAndAnswer(dialogs, msgbox::kYesNo + msgbox::kExclamation, QMessageBox::No, result);
    QCOMPARE(result, msgbox::kNo);
    QCOMPARE(seen.icon, QMessageBox::Warning);
    QCOMPARE(seen.buttons, QMessageBox::Yes | QMessageBox::No);
  }

  void theOwnerIsAskedBeforeEachDialog() {
    DesktopDialogs dialogs;
    QWidget owner;
    int asked = 0;
    dialogs.setOwner([&] {
      ++asked;
      return &owner;
    });
    QWidget* parent = nullptr;
    const DialogAnswer reply([&parent](QWidget* dialog) {
      parent = dialog->parentWidget();
      qobject_cast<QMessageBox*>(dialog)->accept();
    });
    dialogs.MsgBox("Saved", msgbox::kOkOnly, "Veridraw");
    QVERIFY(reply.answered());
    QCOMPARE(asked, 1);
    QCOMPARE(parent, &owner);
  }

  void anInputBoxGivesTheTextConfirmedWithOk() {
    DesktopDialogs dialogs;
    QString title, prompt, start;
    QPoint place;
    const DialogAnswer reply([&](QWidget* dialog) {
      auto* box = qobject_cast<QInputDialog*>(dialog);
      title = box->windowTitle();
      prompt = box->labelText();
      start = box->textValue();
      place = placeOnDesignedDesktop(*box);
      box->setTextValue("Caf\u00E9 \u20AC5 \u4E2D");
      box->accept();
    });
    const std::string answer =
        dialogs.InputBox("Enter the Draw Number", "Draw \x80", "1105", 1500, 3000);
    QVERIFY(reply.answered());
    QCOMPARE(title, QString("Draw \u20AC"));
    QCOMPARE(prompt, "Enter the Draw Number");
    QCOMPARE(start, "1105");
    QCOMPARE(place, QPoint(100, 200));
    QCOMPARE(answer, std::string("Caf\xE9 \x80"
                                 "5 ?"));
  }

  void cancelGivesTheEmptyString() {
    DesktopDialogs dialogs;
    const DialogAnswer reply(
        [](QWidget* dialog) { qobject_cast<QInputDialog*>(dialog)->reject(); });
    QCOMPARE(dialogs.InputBox("Enter the Draw Number", "Veridraw", "1105", 0, 0), "");
    QVERIFY(reply.answered());
  }
};

QTEST_MAIN(DialogsTest)
#include "dialogs_test.moc"
