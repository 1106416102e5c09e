// A blind user's journey, heard as a screen reader would say it: entering the
// numbers of a draw, typing a four-line Lotto ticket with one refused number,
// hearing its matches, saving it and hearing the prize rows and the verdict.
// Every step is taken through the keyboard or the reader's own press action;
// what the reader says is made from the events of the accessibility layer and
// from the objects they are about, and compared with the committed transcript
// tests/gui/transcripts/lotto_journey.txt.
//
// Also counts the objects that a reader finds on each screen.
#include <QAccessible>
#include <QFile>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "accessible_tree.h"
#include "gui/accessibility/accessibility.h"
#include "gui_test_support.h"
#include "program/program.h"
#include "screen_checks.h"

using namespace veridraw;
using namespace veridraw::gui;
using namespace veridraw::gui::testing;

namespace {

// What the reader has said, a line a thing said.
QStringList& said() {
  static QStringList lines;
  return lines;
}

QString roleWords(QAccessible::Role role) {
  return role == QAccessible::EditableText ? QStringLiteral("entry") : roleName(role);
}

// An object as a reader says it when it lands on it: name, role, value,
// the states that matter, then its description.
QString spoken(QAccessibleInterface& object) {
  QString line = object.text(QAccessible::Name) + ", " + roleWords(object.role());
  const QString value = object.text(QAccessible::Value).trimmed();
  if (!value.isEmpty()) line += ": " + value;
  const QAccessible::State state = object.state();
  if (state.editable) line += ", editable";
  if (state.readOnly) line += ", read only";
  const QString shortcut = object.text(QAccessible::Accelerator);
  if (!shortcut.isEmpty()) line += ", " + shortcut;
  const QString description = object.text(QAccessible::Description);
  if (!description.isEmpty()) line += " -- " + description;
  return line;
}

// An announcement: the object's words, a count after its name.
QString announced(QAccessibleInterface& object) {
  const QString value = object.text(QAccessible::Value).trimmed();
  return object.text(QAccessible::Name) + (value.isEmpty() ? QString() : ": " + value);
}

// The object that the focus last went to.
QObject*& lastFocus() {
  static QObject* object = nullptr;
  return object;
}

void listen(QAccessibleEvent* event) {
  QAccessibleInterface* object = event->accessibleInterface();
  if (object == nullptr) return;
  switch (event->type()) {
    case QAccessible::Focus:
      lastFocus() = event->object();
      said() << "focus    " + spoken(*object);
      break;
    case QAccessible::Alert:
      said() << "alert    " + announced(*object);
      break;
    case QAccessible::TextInserted:
      // Typing is echoed in the cell that had the focus, though the cursor
      // may have moved on by the time the reader hears of it.
      if (event->object() == lastFocus())
        said() << "typed    " +
                      static_cast<QAccessibleTextInsertEvent*>(event)->textInserted().trimmed();
      break;
    default:
      break;
  }
}

// A dialog as a reader reads it when it comes up: its title, its words, its
// entry and its buttons.
void readDialog(QWidget* dialog) {
  QAccessibleInterface* window = QAccessible::queryAccessibleInterface(dialog);
  QString words;
  QString controls;
  std::function<void(QAccessibleInterface&)> read = [&](QAccessibleInterface& object) {
    if (object.state().invisible) return;
    const QString name = object.text(QAccessible::Name).simplified();
    if (object.role() == QAccessible::StaticText && !name.isEmpty()) words += " " + name;
    if (object.role() == QAccessible::EditableText) controls += " [entry]";
    if (object.role() == QAccessible::Button) controls += " [" + name + " button]";
    for (int i = 0; i < object.childCount(); ++i)
      if (QAccessibleInterface* child = object.child(i)) read(*child);
  };
  read(*window);
  said() << "dialog   " + window->text(QAccessible::Name) + ":" + words + controls;
}

// The objects of a tree that a reader finds showing: those not invisible.
int showingObjects(QAccessibleInterface& object) {
  if (object.state().invisible) return 0;
  int count = 1;
  for (int i = 0; i < object.childCount(); ++i)
    if (QAccessibleInterface* child = object.child(i)) count += showingObjects(*child);
  return count;
}

}  // namespace

class ScreenReaderJourneyTest : public QObject, public ScreenChecks {
  Q_OBJECT

 private slots:
  void initTestCase() { setAccessibleEventListener(listen); }
  void cleanupTestCase() { setAccessibleEventListener(nullptr); }
  void init() {
    said().clear();
    program_ = std::make_unique<ProgramOnDesktop>();
    program_->deliver();
    makeDraw705Current(*program_);
  }
  void cleanup() { program_.reset(); }

  void aDrawAndALottoTicketAreHeardFromStartToEnd() {
    step("The start screen");
    program_->start(kFirstForm);
    bringWindowBack();

    step("Enter: the draw screen");
    key(Qt::Key_Return);
    bringWindowBack();

    step("Alt+L: the draw number, then the numbers of draw 706");
    answerInput("706", [&] { key(Qt::Key_L, Qt::AltModifier); });
    type("0308172239401202");

    step("Alt+Y: the numbers are right");
    key(Qt::Key_Y, Qt::AltModifier);

    step("Alt+Y: Check Your Tickets; the reader presses Start Lotto");
    key(Qt::Key_Y, Qt::AltModifier);
    press("Start Lotto");
    bringWindowBack();

    step("Alt+N: a new ticket; Alt+D: four lines");
    key(Qt::Key_N, Qt::AltModifier);
    key(Qt::Key_D, Qt::AltModifier);

    step("Line A, with 45 refused");
    answerMessage([&] { type("0103081245"); });
    type("2239");
    step("Lines B to D");
    type("040506070809");
    type("121722303940");
    type("020304050607");

    step("The reader reviews the matches");
    review("Prize grid");

    step("Alt+S: save the ticket as number 3");
    answerInput("3", [&] { key(Qt::Key_S, Qt::AltModifier); });

    step("Alt+C: show the results");
    key(Qt::Key_C, Qt::AltModifier);

    compareWithTranscript("lotto_journey.txt");
  }

  // How many objects a reader finds showing on each screen, before and after
  // a check: printed for the record, and held so that decoration can't come
  // back unnoticed.
  void eachScreenShowsWhatMatters() {
    program_->start(kFirstForm);
    QCOMPARE(countShowing("start"), 12);
    key(Qt::Key_Return);
    QCOMPARE(countShowing("draw"), 29);
    openGame("Btn1Lotto");
    QCOMPARE(countShowing("Lotto"), 45);
    key(Qt::Key_N, Qt::AltModifier);
    key(Qt::Key_D, Qt::AltModifier);
    type("010308121722010204050607010204050607010204050607");
    QCOMPARE(countShowing("Lotto after a check"), 51);
    key(Qt::Key_C, Qt::AltModifier);
    QCOMPARE(countShowing("Lotto with its results"), 27);
    key(Qt::Key_M, Qt::AltModifier);
    openGame("Btn2Strike");
    QCOMPARE(countShowing("Strike"), 30);
    key(Qt::Key_N, Qt::AltModifier);
    key(Qt::Key_A, Qt::AltModifier);
    type("17033908");
    QCOMPARE(countShowing("Strike after a check"), 27);
    key(Qt::Key_M, Qt::AltModifier);
    openGame("BtnPowerBall");
    QCOMPARE(countShowing("PowerBall"), 46);
  }

 private:
  // From the draw screen: Alt+Y, then a click on the game's picture button.
  void openGame(const char* button) {
    key(Qt::Key_Y, Qt::AltModifier);
    QTest::mouseClick(program_->view(button), Qt::LeftButton, {},
                      middleOf(*program_->view(button)));
  }

  void step(const QString& what) {
    said() << ""
           << "## " + what;
  }

  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(program_->window(), key, modifiers);
  }

  // The reader's own press action on the button of that name.
  void press(const QString& name) {
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(program_->window());
    for (int i = 0; i < window->childCount(); ++i) {
      QAccessibleInterface* child = window->child(i);
      if (child->role() == QAccessible::Button && child->text(QAccessible::Name) == name) {
        said() << "press    " + name;
        child->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        return;
      }
    }
    QFAIL(qPrintable("no button " + name + " among the reader's objects"));
  }

  // The reader goes through the objects whose names start with `prefix`.
  void review(const QString& prefix) {
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(program_->window());
    for (int i = 0; i < window->childCount(); ++i) {
      QAccessibleInterface* child = window->child(i);
      if (child->text(QAccessible::Name).startsWith(prefix)) said() << "review   " + spoken(*child);
    }
  }

  void answerInput(const QString& answer, const std::function<void()>& action) {
    const DialogAnswer reply([answer](QWidget* dialog) {
      readDialog(dialog);
      auto* field = dialog->findChild<QLineEdit*>();
      QTest::keyClicks(field, answer);
      said() << "typed    " + answer;
      QTest::keyClick(field, Qt::Key_Return);
    });
    action();
    QVERIFY(reply.answered());
    bringWindowBack();
  }

  void answerMessage(const std::function<void()>& action) {
    const DialogAnswer reply([](QWidget* dialog) {
      readDialog(dialog);
      qobject_cast<QMessageBox*>(dialog)->button(QMessageBox::Ok)->click();
    });
    action();
    QVERIFY(reply.answered());
    bringWindowBack();
  }

  // A new window, or the window once a dialog is gone, comes to the front:
  // the reader says its title, and the window tells where the focus is.
  void bringWindowBack() {
    said() << "window   " + QAccessible::queryAccessibleInterface(program_->window())
                                ->text(QAccessible::Name);
    program_->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(program_->window()));
    QCoreApplication::processEvents();
  }

  // The objects a reader finds showing, told beside what the window shows:
  // itself, its shown views and their list rows, each of which a reader found
  // before decoration was kept from it.
  int countShowing(const char* screen) {
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(program_->window());
    const int count = showingObjects(*window);
    int onScreen = 1;
    for (const ControlView* view : program_->window()->views())
      if (!view->isHidden()) onScreen += 1 + static_cast<int>(view->look().items.size());
    qInfo("%s screen: %d showing accessible objects of %d shown", screen, count, onScreen);
    if (!qEnvironmentVariableIsEmpty("VERIDRAW_PRINT_ACCESSIBLE_TREE"))
      qInfo().noquote() << '\n' + accessibleTree(*program_->window());
    return count;
  }

  void compareWithTranscript(const QString& name) {
    const QString actual = said().join('\n').trimmed() + '\n';
    QFile expected(QStringLiteral(VERIDRAW_TRANSCRIPTS) + "/" + name);
    QVERIFY2(expected.open(QIODevice::ReadOnly), qPrintable("no transcript " + name));
    const QString wanted = QString::fromUtf8(expected.readAll());
    if (actual != wanted) {
      QFile written(name + ".actual");
      if (written.open(QIODevice::WriteOnly)) written.write(actual.toUtf8());
      const QStringList got = actual.split('\n');
      const QStringList want = wanted.split('\n');
      for (qsizetype i = 0; i < std::max(got.size(), want.size()); ++i) {
        const QString a = i < got.size() ? got[i] : "(nothing)";
        const QString b = i < want.size() ? want[i] : "(nothing)";
        if (a != b)
          QFAIL(qPrintable(QString("line %1 differs; heard: \"%2\", transcript: \"%3\"; all that "
                                   "was heard is in %4.actual")
                               .arg(i + 1)
                               .arg(a, b, name)));
      }
    }
  }
};

QTEST_MAIN(ScreenReaderJourneyTest)
#include "screen_reader_journey_test.moc"
