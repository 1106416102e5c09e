// Where the windows stand on the screen: a form's window centred whole, title
// bar included, and its title bar on a screen too small for it; a message box
// clear of the focused control and of the cell painted red; an input box with
// its frame's corner where the logic asks.
#include <QAbstractButton>
#include <QFontDatabase>
#include <QInputDialog>
#include <QMessageBox>
#include <QScreen>
#include <QTest>

#include "gui/dialogs/window_placement.h"
#include "gui_test_support.h"
#include "program/program.h"
#include "test_forms.h"

using namespace veridraw;
using namespace veridraw::gui;
using namespace veridraw::gui::testing;

namespace {

// The client area of the start screen, 11910 x 8625 twips, in pixels, and a
// frame of the usual kind around it: a title bar of 22 pixels and borders of 4.
const QSize kStartClient(794, 575);
constexpr int kBorder = 4;
constexpr int kTitleBar = 22;
const QSize kStartFrame = kStartClient + QSize(2 * kBorder, 2 * kBorder + kTitleBar);
// An 800 x 600 screen, and that frame on it as far down the middle as it goes.
const QRect kScreen(0, 0, 800, 600);
const QRect kOwner(3, 0, 794, 605);

}  // namespace

class PlacementTest : public QObject {
  Q_OBJECT

 private slots:
  void aFrameIsCentredWholeOnAnEightHundredBySixHundredScreen() {
    const QRect screen(0, 0, 800, 600);
    const QPoint corner = centredFrame(screen, kStartFrame);
    const QRect frame(corner, kStartFrame);
    QCOMPARE(frame.height(), 605);
    // Too big by a few pixels: the title bar and the left edge stay on the screen.
    QCOMPARE(corner, QPoint(0, 0));
    QCOMPARE(frame.top(), screen.top());
    const QSize smaller = kStartClient + QSize(2, 2 + 20);  // a thin frame, 598 high
    const QRect thin(centredFrame(screen, smaller), smaller);
    QCOMPARE(thin.center(), screen.center());
    QVERIFY(screen.contains(thin));
  }

  void aFrameThatFitsIsCentredOnItsLeftAndRightAndAboveAndBelow() {
    const QRect screen(0, 0, 1024, 768);
    const QRect frame(centredFrame(screen, kStartFrame), kStartFrame);
    QCOMPARE(frame.left() - screen.left(), screen.right() - frame.right());
    QVERIFY(std::abs((frame.top() - screen.top()) - (screen.bottom() - frame.bottom())) <= 1);
    QCOMPARE(frame.top(), (768 - kStartFrame.height()) / 2);
  }

  void onAScreenTooSmallTheTitleBarStaysOnIt() {
    for (const QRect& screen : {QRect(0, 0, 640, 480), QRect(100, 30, 640, 450)}) {
      const QPoint corner = centredFrame(screen, kStartFrame);
      QCOMPARE(corner, screen.topLeft());
    }
  }

  void anAvailableAreaBelowAPanelIsHonoured() {
    const QRect underAPanel(0, 24, 1280, 1000);
    const QRect frame(centredFrame(underAPanel, kStartFrame), kStartFrame);
    QVERIFY(underAPanel.contains(frame));
    QCOMPARE(frame.center().x(), underAPanel.center().x());
  }

  void aMessageBoxStandsCentredOnItsOwnerWhenThatCoversNothing() {
    const QSize box(200, 120);
    const QRect placed(messageBoxPlace(kScreen, kOwner, box, QRect(40, 40, 25, 25)), box);
    QCOMPARE(placed.center(), kOwner.center());
  }

  void aMessageBoxOverTheRedCellMovesBelowIt() {
    const QSize box(260, 130);
    // A cell of the draw entry in the middle of the form.
    const QRect cell(380, 300, 25, 25);
    const QRect placed(messageBoxPlace(kScreen, kOwner, box, cell), box);
    QVERIFY(!placed.intersects(cell));
    QVERIFY(kScreen.contains(placed));
    QVERIFY(placed.top() > cell.bottom());
    QCOMPARE(placed.center().x(), cell.center().x());
  }

  void aMessageBoxGoesAboveACellAtTheBottomAndBesideATallArea() {
    const QRect& screen = kScreen;
    const QSize box(260, 130);
    // An owner low on the screen, so that room below the cell is short.
    const QRect lowOwner(3, 300, 794, 300);
    const QRect low(380, 480, 25, 25);
    QVERIFY(QRect(centredFrame(lowOwner, box), box).intersects(low));
    const QRect above(messageBoxPlace(screen, lowOwner, box, low), box);
    QVERIFY(!above.intersects(low));
    QVERIFY(above.bottom() < low.top());
    QVERIFY(screen.contains(above));
    const QRect tall(300, 10, 60, 580);
    const QRect beside(messageBoxPlace(screen, kOwner, box, tall), box);
    QVERIFY(!beside.intersects(tall));
    QVERIFY(beside.left() > tall.right());
    QVERIFY(screen.contains(beside));
  }

  void aMessageBoxThatCanNotHelpCoveringCoversTheLeast() {
    const QRect screen(0, 0, 800, 600);
    const QSize box(300, 200);
    const QRect nearlyAll(20, 20, 760, 560);
    const QRect placed(messageBoxPlace(screen, QRect(0, 0, 800, 600), box, nearlyAll), box);
    QVERIFY(screen.contains(placed));
    const QRect covered = placed.intersected(nearlyAll);
    QVERIFY(covered.width() * covered.height() < box.width() * box.height());
  }

  void theWindowOfAFormIsCentredWholeOnItsScreen() {
    ProgramOnDesktop program;
    program.start(kFirstForm);
    FormWindow& window = *program.window();
    const QRect screen = window.screen()->availableGeometry();
    const QRect frame = window.frameGeometry();
    QCOMPARE(frame.topLeft(), centredFrame(screen, frame.size()));
    QVERIFY(frame.top() >= screen.top());
    QCOMPARE(window.geometry().size(), kStartClient);
  }

  void theWarningBoxLeavesTheRedCellInView() {
    ProgramOnDesktop program(addSamplerForms);
    program.start(kSampler);
    QRect box, cell;
    bool red = false;
    const DialogAnswer reply([&](QWidget* dialog) {
      const ControlView& entry = *program.view("Entry");
      red = entry.look().background == QColor(255, 0, 0);
      cell = QRect(entry.mapToGlobal(QPoint(0, 0)), entry.size());
      box = dialog->frameGeometry();
      qobject_cast<QMessageBox*>(dialog)->button(QMessageBox::Ok)->click();
    });
    QTest::keyClick(program.window(), Qt::Key_W, Qt::AltModifier);
    QVERIFY(reply.answered());
    QVERIFY(red);
    QVERIFY(!box.isEmpty());
    QVERIFY2(!box.intersects(cell), qPrintable(QStringLiteral("box %1,%2 %3x%4")
                                                   .arg(box.x())
                                                   .arg(box.y())
                                                   .arg(box.width())
                                                   .arg(box.height())));
    QVERIFY(program.window()->screen()->availableGeometry().contains(box));
  }

  void theFrameOfAnInputBoxHasItsCornerWhereTheLogicSaysWithTheFrameKnown() {
    DesktopDialogs dialogs;
    QRect frame, client, desktop;
    const DialogAnswer reply([&](QWidget* dialog) {
      frame = dialog->frameGeometry();
      client = dialog->geometry();
      desktop = designedDesktop(dialog->screen()->availableGeometry());
      qobject_cast<QInputDialog*>(dialog)->reject();
    });
    dialogs.InputBox("Enter the Draw Number", "Veridraw", "", 3000, 1500);
    QVERIFY(reply.answered());
    QCOMPARE(frame.topLeft() - desktop.topLeft(), QPoint(200, 100));
    // The client area lies inside the frame, below its top edge.
    QVERIFY(client.top() >= frame.top());
  }

  void theDesignedDesktopIsCentredOnTheScreenOrStartsAtItsCorner() {
    QCOMPARE(designedDesktop(QRect(0, 0, 800, 600)), QRect(0, 0, 800, 600));
    QCOMPARE(designedDesktop(QRect(0, 0, 2560, 1600)), QRect(880, 500, 800, 600));
    // A panel at the top: centred on what is left.
    QCOMPARE(designedDesktop(QRect(0, 30, 1024, 738)), QRect(112, 99, 800, 600));
    // A screen smaller than the design keeps its top-left corner.
    QCOMPARE(designedDesktop(QRect(0, 0, 640, 480)).topLeft(), QPoint(0, 0));
  }

  void aWindowIsCentredOnTheDesignedDesktopAndAnInputBoxStandsWhereItsDesignerSawIt() {
    const QRect large(0, 0, 2560, 1600);
    const QPoint window = formWindowPlace(large, kStartFrame);
    // The designed point of the draw number's box, 3280 and 2750 twips.
    const QSize box(200, 120);
    const QPoint input = inputBoxPlace(large, QPoint(219, 183), box);
    // Relative to the window, as on the 800 x 600 desktop.
    QCOMPARE(input - window, QPoint(219, 183) - formWindowPlace(kScreen, kStartFrame));
    QCOMPARE(input, QPoint(880 + 219, 500 + 183));
    // Where the box would leave a small screen, it stays on it.
    const QRect small(0, 0, 320, 240);
    QVERIFY(small.contains(QRect(inputBoxPlace(small, QPoint(219, 183), box), box)));
  }

  void aModalBoxOffersOnlyItsCloseControlHasAFixedSizeAndRoomForItsTitle() {
    DesktopDialogs dialogs;
    for (const bool input : {false, true}) {
      Qt::WindowFlags flags;
      QSize minimum, maximum;
      int width = 0;
      const DialogAnswer reply([&](QWidget* dialog) {
        flags = dialog->windowFlags();
        minimum = dialog->minimumSize();
        maximum = dialog->maximumSize();
        width = dialog->width();
        if (auto* box = qobject_cast<QInputDialog*>(dialog)) {
          box->reject();
        } else {
          qobject_cast<QMessageBox*>(dialog)->button(QMessageBox::Ok)->click();
        }
      });
      const std::string title = "A title longer than what the box would hold";
      if (input) {
        dialogs.InputBox("Ticket", title, "", 0, 0);
      } else {
        dialogs.MsgBox("Saved", msgbox::kOk, title);
      }
      QVERIFY(reply.answered());
      QVERIFY(flags.testFlag(Qt::WindowCloseButtonHint));
      QVERIFY(!flags.testFlag(Qt::WindowMinimizeButtonHint));
      QVERIFY(!flags.testFlag(Qt::WindowMaximizeButtonHint));
      QCOMPARE(minimum, maximum);
      const QFontMetrics metrics(QFontDatabase::systemFont(QFontDatabase::TitleFont));
      QVERIFY(width > metrics.horizontalAdvance(QString::fromStdString(title)));
    }
  }
};

QTEST_MAIN(PlacementTest)
#include "placement_test.moc"
