// What a screen reader gets of the real program on the desktop: every control
// of every screen as an object of its kind, with a name, its text, its states
// and its access key, read through Qt's accessibility; and the events that
// tell it when the model's focus moves, a cell's text or a label's caption
// changes, a list's selection moves and controls come and go.
#include <QAccessible>
#include <QTest>
#include <vector>

#include "accessible_tree.h"
#include "gui/accessibility/accessibility.h"
#include "gui_test_support.h"
#include "program/program.h"
#include "screen_checks.h"

using namespace veridraw;
using namespace veridraw::gui;
using namespace veridraw::gui::testing;

namespace {

// An event as the screen reader would get it: its kind, the object it is
// about and the child of that object, or -1.
struct Heard {
  QAccessible::Event type;
  QObject* object;
  int child;
};

std::vector<Heard>& heard() {
  static std::vector<Heard> events;
  return events;
}

void listen(QAccessibleEvent* event) {
  heard().push_back({event->type(), event->object(), event->child()});
}

int timesHeard(QAccessible::Event type, const QObject* object, int child = -1) {
  int times = 0;
  for (const Heard& event : heard())
    if (event.type == type && event.object == object && event.child == child) ++times;
  return times;
}

// The objects that the focus event went to, in order.
std::vector<QObject*> focusMoves() {
  std::vector<QObject*> objects;
  for (const Heard& event : heard())
    if (event.type == QAccessible::Focus) objects.push_back(event.object);
  return objects;
}

}  // namespace

class AccessibilityTest : public QObject, public ScreenChecks {
  Q_OBJECT

 private slots:
  // Qt hands events on only to a screen reader that listens, and the offscreen
  // platform has none: the test listens to the window's events itself.
  void initTestCase() { setAccessibleEventListener(listen); }
  void cleanupTestCase() { setAccessibleEventListener(nullptr); }
  void init() {
    heard().clear();
    program_ = std::make_unique<ProgramOnDesktop>();
    program_->deliver();
  }
  void cleanup() { program_.reset(); }

  void theStartScreenReadsAsItsControls() {
    program_->start(kFirstForm);
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(program_->window());
    QVERIFY(window != nullptr);
    QCOMPARE(window->role(), QAccessible::Window);
    QCOMPARE(window->text(QAccessible::Name), "Veridraw");
    QCOMPARE(window->focusChild(), &object("BtnStart"));
    expectEveryControlNamed();

    expectButton("BtnStart", "Press Enter to Start", "Alt+E", "focused focusable");
    QCOMPARE(object("BtnStart").text(QAccessible::Description), "Press Enter to start Veridraw");
    expectButton("CmdForm1Exit", "Exit", "Alt+X", "focusable");
    expect("Label5", QAccessible::StaticText, "Check your Lotto tickets for prizes");
    expectStates("Label5", "");
    // A document is named by what it shows.
    expect("OLE1", QAccessible::Graphic, "Lotto: Six numbers from 1 to 40 and a Bonus number.");
    expectShownToReader("OLE1", true);
    // Decoration is kept from the reader: the pictures that only look like
    // buttons, the marks, the sample ticket with its letters and line numbers.
    for (const char* decoration :
         {"Btn1Lotto", "Btn2Strike", "BtnPowerBall", "CmdNotice", "OLE7", "Label1", "Label6"})
      expectShownToReader(decoration, false);
    expectShownToReader("LineA", false, 9);
    expectStates("LineA", "invisible", 9);
    expectShownToReader("TextATxt", false, 2);
    expectShownToReader("TextATxt", false, 7);
    QCOMPARE(readerObjects(), 11);
  }

  void aButtonIsPressedFromTheScreenReader() {
    program_->start(kFirstForm);
    QAccessibleActionInterface* actions = object("BtnStart").actionInterface();
    QVERIFY(actions != nullptr);
    QCOMPARE(actions->actionNames(), QStringList{QAccessibleActionInterface::pressAction()});
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(program_->window()->form().name(), "Veridraw7f");
    // A label has nothing to press.
    QVERIFY(object("LblDraw").actionInterface()->actionNames().isEmpty());
  }

  void theReadmeScreenReadsAsItsControls() {
    program_->start(kFirstForm);
    QTest::keyClick(program_->window(), Qt::Key_R, Qt::AltModifier);
    QCOMPARE(program_->window()->form().name(), "Veridraw7d");
    expectEveryControlNamed();
    expectButton("BtnStart", "Start", "Alt+S", "focused focusable");
    expectButton("CmdDisclaimer", "Disclaimer", "Alt+D", "focusable");
    expect("Label7", QAccessible::StaticText, "Instructions");
  }

  void theDrawScreenReadsAsItsControls() {
    openDrawScreen();
    expectEveryControlNamed();
    expectButton("BtnEnterLottoDrawNumbers", "Enter Lotto Winning Numbers", "Alt+L",
                 "focused focusable");
    expect("BtnCancel", QAccessible::Button, "Cancel");
    expectStates("BtnCancel", "invisible");
    // A box that only shows the draw reads as text, named by its label,
    // which is then not read on its own.
    expect("TxtDrawBox", QAccessible::StaticText, "Current Draw Number");
    QCOMPARE(object("TxtDrawBox").text(QAccessible::Value), "1105");
    expectStates("TxtDrawBox", "");
    expectShownToReader("LblDraw", false);
    expect("TxtDrawnNumbers2", QAccessible::StaticText, "Drawn Lotto number 3", 3);
    QCOMPARE(object("TxtDrawnNumbers2", 3).text(QAccessible::Value), "19");
    expect("TxtDrawnNumbers2", QAccessible::StaticText, "Drawn Bonus number", 7);
    // The cells that take the numbers: hidden until the entry starts.
    expect("TxtDrawnNumbers", QAccessible::EditableText, "Lotto number 3", 3);
    expectStates("TxtDrawnNumbers", "invisible readOnly", 3);
    expect("TxtDrawnNumbers", QAccessible::EditableText, "Power Ball", 8);
    expect("TxtStrikeNumbers", QAccessible::EditableText, "Strike number 2", 2);
    expect("LblPwrBall", QAccessible::StaticText, "Power Ball");
    expectStates("LblPwrBall", "invisible");
    // The spare cells behind the notice, the panel that only pictures the
    // prize rows, the pictures: decoration.
    expectShownToReader("TxtDrawnNumbers", false, 9);
    expectShownToReader("TxtStrikeNumbers", false, 5);
    expectShownToReader("IntResult", false, 2);
    expectShownToReader("TextBTxt", false, 2);
    expectShownToReader("Image1", false);
    expectShownToReader("CmdNotice", false);

    // A list: its tool-tip names it, its items are its children.
    QAccessibleInterface& draws = object("List1");
    expect("List1", QAccessible::List, "Draw Numbers");
    QCOMPARE(draws.childCount(), 1);
    QAccessibleInterface* item = draws.child(0);
    QVERIFY(item != nullptr);
    QCOMPARE(item->role(), QAccessible::ListItem);
    QCOMPARE(item->text(QAccessible::Name), "1105");
    QCOMPARE(item->parent(), &draws);
    QCOMPARE(draws.indexOfChild(item), 0);
    QVERIFY(!item->state().selected);
    QCOMPARE(draws.text(QAccessible::Value), "");
  }

  void aListsSelectionIsReadAndAnnounced() {
    openDrawScreen();
    ControlView& list = *program_->view("List1");
    heard().clear();
    QTest::mouseClick(&list, Qt::LeftButton, {}, QPoint(10, 8));
    QCOMPARE(program_->view("List1")->look().listIndex, 0);
    QCOMPARE(object("List1").text(QAccessible::Value), "1105");
    QVERIFY(object("List1").child(0)->state().selected);
    QCOMPARE(timesHeard(QAccessible::ValueChanged, &list), 1);
    QCOMPARE(timesHeard(QAccessible::Selection, &list, 0), 1);
  }

  void theFocusMovingFromCellToCellIsAnnounced() {
    openDrawScreen();
    heard().clear();
    pressAndAnswer(Qt::Key_Return, {}, "12");
    expectFocus("TxtDrawnNumbers", 1);
    ControlView* first = program_->view("TxtDrawnNumbers", 1);
    ControlView* second = program_->view("TxtDrawnNumbers", 2);
    // The cells came onto the screen, and the focus into the first.
    expectStates("BtnEnterLottoDrawNumbers", "invisible");
    // Once the input box is gone and the window is in front again, the
    // reader hears of the cell, not of the window.
    program_->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(program_->window()));
    QTRY_VERIFY(!focusMoves().empty() && focusMoves().back() == first);
    expectStates("TxtDrawnNumbers", "focused focusable editable", 1);
    expectStates("TxtDrawnNumbers", "focusable readOnly", 2);
    // The prompt is what the focused cell's description says.
    QCOMPARE(object("TxtDrawnNumbers", 1).text(QAccessible::Description),
             "Enter Numbers in either drawn or numeric order");

    heard().clear();
    type("0");
    QCOMPARE(object("TxtDrawnNumbers", 1).text(QAccessible::Value), "0 ");
    // The typed character alone is told, not the whole text anew.
    QCOMPARE(timesHeard(QAccessible::TextInserted, first), 1);
    QCOMPARE(timesHeard(QAccessible::TextUpdated, first), 0);
    QCOMPARE(timesHeard(QAccessible::ValueChanged, first), 1);
    QVERIFY(focusMoves().empty());
    type("1");
    // The cursor moved on to the next cell: that is what the reader hears.
    expectFocus("TxtDrawnNumbers", 2);
    QCOMPARE(focusMoves(), std::vector<QObject*>{second});
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(program_->window());
    QCOMPARE(window->focusChild(), &object("TxtDrawnNumbers", 2));
    expectStates("TxtDrawnNumbers", "focusable readOnly", 1);
    expectStates("TxtDrawnNumbers", "focused focusable editable", 2);
    // The text of the cell that was left, as an editor would read it.
    QAccessibleTextInterface* text = object("TxtDrawnNumbers", 1).textInterface();
    QVERIFY(text != nullptr);
    QCOMPARE(text->characterCount(), 3);
    QCOMPARE(text->text(0, 2), "01");
    // The characters stand where the painter drew them: every dark pixel of
    // the cell's text lies in the rectangle of the "0" or of the "1", and each
    // of the two holds some.
    const QImage painted = first->grab().toImage();
    const QRect zero(first->mapFromGlobal(text->characterRect(0).topLeft()),
                     text->characterRect(0).size());
    const QRect one(first->mapFromGlobal(text->characterRect(1).topLeft()),
                    text->characterRect(1).size());
    QVERIFY(!zero.isEmpty() && !one.isEmpty() && zero.right() < one.left() + 1);
    int inZero = 0;
    int inOne = 0;
    const QRect inside = first->rect().adjusted(2, 2, -2, -2);
    for (int y = inside.top(); y <= inside.bottom(); ++y)
      for (int x = inside.left(); x <= inside.right(); ++x) {
        if (qGray(painted.pixel(x, y)) > 96) continue;
        QVERIFY2(zero.contains(x, y) || one.contains(x, y),
                 qPrintable(QString("ink at %1,%2").arg(x).arg(y)));
        ++(zero.contains(x, y) ? inZero : inOne);
      }
    QVERIFY(inZero > 0 && inOne > 0);
  }

  void aCaptionThatChangesIsAnnounced() {
    makeDraw705Current(*program_);
    openTicketScreen(*program_, "Btn1Lotto");
    QTest::keyClick(program_->window(), Qt::Key_N, Qt::AltModifier);
    QTest::mouseClick(program_->view("BtnLineD"), Qt::LeftButton, {},
                      middleOf(*program_->view("BtnLineD")));
    ControlView* prompt = program_->view("LblEnterLine");
    expect("LblEnterLine", QAccessible::StaticText, "Line A -- Enter the 6 Two Digit numbers");
    heard().clear();
    type("030812172239");
    expect("LblEnterLine", QAccessible::StaticText, "Line B -- Enter the 6 Two Digit numbers");
    QVERIFY(timesHeard(QAccessible::NameChanged, prompt) >= 1);
    expectStates("LineA", "focused focusable editable", 7);
    // The focused cell's description says it: the prompt is not said again.
    QCOMPARE(object("LineA", 7).text(QAccessible::Description),
             "Line B -- Enter the 6 Two Digit numbers");
    QCOMPARE(timesHeard(QAccessible::Alert, prompt), 0);
  }

  void theLottoScreenReadsAsItsControls() {
    openTicketScreen(*program_, "Btn1Lotto");
    expectEveryControlNamed();
    expectButton("BtnCheckNewTicket", "Check New Ticket", "Alt+N", "focused focusable");
    expect("LineA", QAccessible::EditableText, "Line A, number 1", 1);
    expect("LineA", QAccessible::EditableText, "Line B, number 3", 9);
    expect("LineA", QAccessible::EditableText, "Line J, number 1", 49);
    expect("LineA", QAccessible::EditableText, "Line O, number 6", 84);
    expectShownToReader("LineA", false, 85);
    // An empty cell of the prize grid is not read.
    expect("IntResult", QAccessible::StaticText, "Prize grid, line B, number 1", 7);
    expectShownToReader("IntResult", false, 7);
    expectButton("BtnLineM", "Line M", "Alt+M", "invisible");
    expect("TxtDivision1", QAccessible::StaticText, "Division 1 prize");
    expect("TxtLottoPrizes", QAccessible::StaticText, "LOTTO PRIZES");
    QCOMPARE(object("TxtLottoPrizes").text(QAccessible::Value), "");
    expect("List2", QAccessible::List, "Saved Tickets");
    expectShownToReader("LblSavedTickets2", false);
    expectShownToReader("Image1", false);
    expectShownToReader("TextATxt", false, 1);
    expect("LblYouveWon", QAccessible::StaticText, "");
  }

  void theStrikeScreenReadsAsItsControls() {
    openTicketScreen(*program_, "Btn2Strike");
    expectEveryControlNamed();
    expect("TxtStrike", QAccessible::EditableText, "Line A, number 4", 4);
    expect("TxtStrike", QAccessible::EditableText, "Line B, number 2", 6);
    expect("TxtStrike", QAccessible::EditableText, "Line M, number 4", 48);
    expect("TxtStrike1", QAccessible::StaticText, "Strike 1 prize");
    expectShownToReader("Txt1ST", false, 2);
    expect("IntResult", QAccessible::StaticText, "Prize grid, line C, number 4", 12);
    expectButton("BtnLineC", "Line C", "Alt+C", "invisible");
  }

  void thePowerBallScreenReadsAsItsControls() {
    openTicketScreen(*program_, "BtnPowerBall");
    expectEveryControlNamed();
    expect("LineA", QAccessible::EditableText, "Line C, number 2", 14);
    expect("TxtPowerBall", QAccessible::EditableText, "Line B, PowerBall", 2);
    expect("TxtPwrBall", QAccessible::StaticText, "Prize grid, line C, PowerBall", 3);
    expect("TxtPwrBallNumber", QAccessible::EditableText, "PowerBall number for all lines", 1);
    expectShownToReader("TxtPwrBallNumber", false, 2);
    expect("TxtDivision1", QAccessible::StaticText, "Division 1 prize");
    expect("TxtDivPwrBall1", QAccessible::StaticText, "Division 1 PowerBall Prize");
    // The stray label and the headings over the PowerBall columns are decoration.
    expectShownToReader("Label6", false);
    expectShownToReader("LblPwrBall1", false, 0);
  }

  void aCompleteTicketReadsItsMatchesAndNotTheCellUnderTheCover() {
    makeDraw705Current(*program_);
    openTicketScreen(*program_, "Btn1Lotto");
    QTest::keyClick(program_->window(), Qt::Key_N, Qt::AltModifier);
    // The prompt of the length is said: the focus is elsewhere.
    QVERIFY(timesHeard(QAccessible::Alert, program_->view("TxtNoofLines")) == 1);
    QTest::keyClick(program_->window(), Qt::Key_D, Qt::AltModifier);
    type("010308121722010204050607010204050607010204050607");
    // The focus was parked on the cell after the ticket, and the cover box
    // stands over it: neither is read, nor named as another line.
    expectShownToReader("LineA", false, 25);
    expectShownToReader("LineA", false, 88);
    expectShownToReader("LineA", true, 24);
    // A filled cell of the prize grid says what matched, and how.
    expectShownToReader("IntResult", true, 4);
    QCOMPARE(object("IntResult", 4).text(QAccessible::Value), "12 ");
    QCOMPARE(object("IntResult", 4).text(QAccessible::Description), "bonus match");
    QCOMPARE(object("IntResult", 2).text(QAccessible::Description), "matched");
    expectShownToReader("IntResult", false, 1);

    heard().clear();
    QTest::keyClick(program_->window(), Qt::Key_C, Qt::AltModifier);
    // The verdict and the prize row are said once each.
    QCOMPARE(timesHeard(QAccessible::Alert, program_->view("LblYouveWon")), 1);
    QCOMPARE(object("LblYouveWon").text(QAccessible::Name), "CONGRATULATIONS You've WON !!!");
    QCOMPARE(timesHeard(QAccessible::Alert, program_->view("TxtDivision4")), 1);
    expect("TxtDivision4", QAccessible::StaticText, "Division 4 Prize");
    QCOMPARE(object("TxtDivision4").text(QAccessible::Value), "1");
    expectShownToReader("LblDivision4", false);
  }

  void aPowerBallMatchIsToldApart() {
    program_->writeFile("DrawNumber", "720\r\n");
    program_->writeFile("720", "720\r\nX0308172239401205\r\n\r\n");
    openTicketScreen(*program_, "BtnPowerBall");
    QTest::keyClick(program_->window(), Qt::Key_N, Qt::AltModifier);
    QTest::keyClick(program_->window(), Qt::Key_D, Qt::AltModifier);
    type("030817223940030812172930010203172239010204050607");
    // The question of one number for all lines describes its answers.
    expectFocus("BtnYes");
    QCOMPARE(object("BtnYes").text(QAccessible::Description),
             QString::fromStdString(control("TxtNoofLines").text()).simplified());
    QTest::keyClick(program_->window(), Qt::Key_Y, Qt::AltModifier);
    type("05");
    expectShownToReader("TxtPwrBall", true, 2);
    expect("TxtPwrBall", QAccessible::StaticText, "Prize grid, line B, PowerBall", 2);
    QCOMPARE(object("TxtPwrBall", 2).text(QAccessible::Description), "PowerBall match");
    QCOMPARE(object("IntResult", 1).text(QAccessible::Description), "matched");
  }

  void aQuestionDescribesTheButtonsThatAnswerIt() {
    openDrawScreen();
    pressAndAnswer(Qt::Key_Return, {}, "1106");
    type("0308172239401202");
    expectFocus("BtnYes");
    QCOMPARE(object("BtnYes").text(QAccessible::Description), "Are these numbers correct?");
    QCOMPARE(object("BtnNo").text(QAccessible::Description), "Are these numbers correct?");
    expectShownToReader("LblCorrectNumbers", false);
  }

  void aPictureButtonSaysWhatItDoes() {
    openDrawScreen();
    QTest::keyClick(program_->window(), Qt::Key_Y, Qt::AltModifier);
    expectButton("Btn1Lotto", "Start Lotto", "", "focusable");
    QCOMPARE(object("Btn1Lotto").text(QAccessible::Description), "Click to start Lotto");
  }

  // Not a check: prints the tree of the draw screen as a screen reader walks it.
  void printTheDrawScreensTree() {
    if (qEnvironmentVariableIsEmpty("VERIDRAW_PRINT_ACCESSIBLE_TREE")) QSKIP("not asked for");
    openDrawScreen();
    qInfo().noquote() << '\n' + accessibleTree(*program_->window());
  }

 private:
  void openDrawScreen() {
    program_->start(kFirstForm);
    QTest::keyClick(program_->window(), Qt::Key_Return);
    QCOMPARE(program_->window()->form().name(), "Veridraw7f");
  }

  // The interface of a control's view.
  QAccessibleInterface& object(const char* name, int index = kNotInArray) {
    ControlView* view = program_->view(name, index);
    if (view == nullptr) qFatal("no view of %s(%d)", name, index);
    QAccessibleInterface* object = QAccessible::queryAccessibleInterface(view);
    if (object == nullptr) qFatal("no accessible interface of %s(%d)", name, index);
    return *object;
  }

  void expect(const char* name, QAccessible::Role role, const QString& accessibleName,
              int index = kNotInArray) {
    QAccessibleInterface& found = object(name, index);
    QCOMPARE(roleName(found.role()), roleName(role));
    QCOMPARE(found.text(QAccessible::Name), accessibleName);
  }

  void expectStates(const char* name, const QString& states, int index = kNotInArray) {
    QCOMPARE(stateWords(object(name, index).state()), states);
  }

  // A button: its caption is its name, its access key its shortcut.
  void expectButton(const char* name, const QString& caption, const QString& shortcut,
                    const QString& states) {
    expect(name, QAccessible::Button, caption);
    QCOMPARE(object(name).text(QAccessible::Accelerator), shortcut);
    expectStates(name, states);
  }

  // No control is left a nameless pane: each has the role of its kind, and
  // each that the reader finds in the window has a name and is shown.
  void expectEveryControlNamed() {
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(program_->window());
    for (ControlView* view : program_->window()->views()) {
      QAccessibleInterface* found = QAccessible::queryAccessibleInterface(view);
      QVERIFY(found != nullptr);
      const QByteArray what = QByteArray::fromStdString(view->controlName()) + "(" +
                              QByteArray::number(view->controlIndex()) + ")";
      QVERIFY2(found->role() != QAccessible::Client, what);
      if (window->indexOfChild(found) < 0) continue;
      QVERIFY2(!found->text(QAccessible::Name).isEmpty(), what);
      QVERIFY2(!found->state().invisible, what);
      QCOMPARE(found->parent(), window);
    }
  }

  // Whether the reader finds the control among the window's objects; a
  // control that it doesn't find says it is invisible.
  void expectShownToReader(const char* name, bool shown, int index = kNotInArray) {
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(program_->window());
    QAccessibleInterface& found = object(name, index);
    QVERIFY2((window->indexOfChild(&found) >= 0) == shown, name);
    QVERIFY2(found.state().invisible == !shown, name);
  }

  int readerObjects() {
    return QAccessible::queryAccessibleInterface(program_->window())->childCount();
  }
};

QTEST_MAIN(AccessibilityTest)
#include "accessibility_test.moc"
