// A key repaints only what it changed: the views whose controls the model
// changed, and what lies under them, and no other view of the window.
#include <QCoreApplication>
#include <QEvent>
#include <QSet>
#include <QTest>
#include <map>

#include "gui_test_support.h"

using namespace veridraw;
using namespace veridraw::gui;
using namespace veridraw::gui::testing;

namespace {

// Counts the paint events of every view of a window.
class PaintCounter : public QObject {
 public:
  explicit PaintCounter(const FormWindow& window) {
    for (ControlView* view : window.views())
      view->installEventFilter(this);
  }
  const QSet<const ControlView*>& painted() const { return painted_; }
  void clear() { painted_.clear(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted_.insert(static_cast<const ControlView*>(watched));
    return false;
  }

 private:
  QSet<const ControlView*> painted_;
};

std::map<const Control*, std::uint64_t> revisions(const Form& form) {
  std::map<const Control*, std::uint64_t> counts;
  for (const auto& control : form.controls())
    counts[control.get()] = control->revision();
  return counts;
}

}  // namespace

class RefreshTest : public QObject {
  Q_OBJECT

 private slots:
  void aDigitRepaintsTheCellsItChangedAndNothingApartFromThem() {
    ProgramOnDesktop program;
    makeDraw705Current(program);
    openTicketScreen(program, "Btn1Lotto");
    QTest::keyClick(program.window(), Qt::Key_N, Qt::AltModifier);
    QTest::keyClick(program.window(), Qt::Key_O, Qt::AltModifier);
    QTest::keyClicks(program.window(), "0102030405060708091");
    FormWindow& window = *program.window();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();

    PaintCounter counter(window);
    const auto before = revisions(window.form());
    QTest::keyClick(&window, '0');
    QCoreApplication::processEvents();

    // The cell typed into and the one the cursor moves to changed.
    QCOMPARE(window.view("LineA", 10)->look().text, "10 ");
    QVERIFY(counter.painted().contains(window.view("LineA", 10)));
    QVERIFY(counter.painted().contains(window.view("LineA", 11)));
    // What the key changed, on the screen, and every view painted lies within it.
    QRegion changed;
    for (const ControlView* view : window.views())
      if (view->control().revision() != before.at(&view->control()) && view->isVisible())
        changed += view->geometry();
    QVERIFY(!changed.isEmpty());
    for (const ControlView* view : counter.painted())
      QVERIFY2(changed.intersects(view->geometry()),
               qPrintable(QString::fromStdString(view->control().displayName())));
    QVERIFY(counter.painted().size() < 20);
    QVERIFY(window.views().size() > 250);
  }

  void aScrollThatMovesNothingRepaintsNothing() {
    ProgramOnDesktop program;
    makeDraw705Current(program);
    openTicketScreen(program, "Btn1Lotto");
    FormWindow& window = *program.window();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    PaintCounter counter(window);
    // Scrolling a list that has nothing to scroll moves no TopIndex.
    program.desktop().scroll(window.view("List1")->control(), 0);
    QCoreApplication::processEvents();
    QVERIFY(counter.painted().isEmpty());
  }
};

QTEST_MAIN(RefreshTest)
#include "refresh_test.moc"
