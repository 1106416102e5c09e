// Every caption and text that the screens show fits its control in the font of
// the forms. The states are those that the project's scenarios reach: each
// scenario is played against the real forms, and after each of its lines every
// visible control of the form on screen is measured, with the text the logic
// has put there, by the metrics of the font it is painted in. The test runs
// once for each scale of the screens that ctest gives it (QT_SCALE_FACTOR): at
// every scale each text is drawn by a face that scales, no smaller than it was
// designed, and spans the width that it was laid out for.
#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QSet>
#include <QStringList>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include "gui/look/appearance.h"
#include "gui/look/classic_style.h"
#include "gui/look/control_look.h"
#include "gui/look/control_painting.h"
#include "runner/scenario.h"

using namespace veridraw;
using namespace veridraw::gui;

namespace {

struct Measure {
  bool fits = true;
  int needed = 0;  // pixels wide
  int room = 0;
};

// Whether the text of the look shows whole in a control of `area`, in the font
// it is painted in: on one line in a single-line text box (trailing blanks draw
// nothing), word-wrapped in the rest, no word wider than the box and no more
// lines than its height holds (the descenders of the last line may be cut, as
// the classic forms cut them).
Measure measureIn(const QRect& area, const ControlLook& look, const QFont& captionFont) {
  const QRect box = textArea(area, look);
  Measure result;
  result.room = box.width();
  if (look.kind == ControlKind::TextBox) {
    const QFontMetrics metrics(look.font);
    if (box.height() < 2 * metrics.height()) {
      QString shown = look.text;
      while (shown.endsWith(' '))
        shown.chop(1);
      result.needed = metrics.horizontalAdvance(shown);
      result.fits = result.needed <= box.width();
      return result;
    }
  }
  const QFont font = look.kind == ControlKind::TextBox ? look.font : captionFont;
  const QFontMetrics metrics(font);
  const int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic;
  const QRect needed = metrics.boundingRect(box, flags, look.text);
  result.needed = needed.width();
  result.fits =
      needed.width() <= box.width() && needed.height() - metrics.descent() <= box.height();
  return result;
}

// The same in the font that the text is painted in, shrunk where it doesn't fit.
Measure measure(const QRect& area, const ControlLook& look) {
  return measureIn(area, look, captionFont(area, look));
}

// The font that the text of the look is painted in within `area`.
QFont paintedFont(const QRect& area, const ControlLook& look) {
  return look.kind == ControlKind::TextBox ? look.font : captionFont(area, look);
}

bool scaledScreen() {
  return qApp->devicePixelRatio() != 1.0;
}

// Whether the face that the font is matched to draws at any size: a bitmap
// face has one.
bool scalesSmoothly(const QFont& font) {
  const QFontInfo matched(font);
  return QFontDatabase::isSmoothlyScalable(matched.family(), matched.styleName());
}

// How wide the text spans on one line, the "&" of an access key not shown.
qreal spanOf(const QFont& font, const QString& text) {
  return QFontMetricsF(font)
      .boundingRect(QRectF(0, 0, 1e6, 1e6), Qt::TextShowMnemonic, text)
      .width();
}

// Whether a text spans the width it was laid out for: no wider, and narrower
// by no more than a step of the stand-in's stretch (a percent) and a pixel.
bool spansAsDesigned(qreal span, qreal designed) {
  constexpr qreal kSlack = 0.5;
  return span <= designed + kSlack && span >= designed * 0.99 - 1;
}

// The PowerBall screen keeps a label of one pixel square with the default
// caption of its kind, a stray mark of the design that shows no text at all.
bool isStrayMark(const Control& control) {
  return control.form().name() == "Veridraw7e" && control.name() == "Label6" &&
         control.width() <= kTwipsPerPixel && control.height() <= kTwipsPerPixel;
}

bool showsText(const Control& control) {
  switch (control.kind()) {
    case ControlKind::TextBox:
    case ControlKind::Label:
    case ControlKind::CommandButton:
      return control.visible();
    case ControlKind::ListBox:
    case ControlKind::Image:
    case ControlKind::Document:
      break;
  }
  return false;
}

class Walk {
 public:
  // Measures every visible control of the form on screen.
  void look(const script::Scenario& scenario) {
    const Application* program = scenario.program();
    if (program == nullptr || !program->running() || program->activeForm() == nullptr) return;
    ++states_;
    for (const auto& control : program->activeForm()->controls()) {
      if (!showsText(*control)) continue;
      // A button is measured as it is with the focus, its narrowest.
      const ControlLook look = lookOf(*control, control->kind() == ControlKind::CommandButton);
      // Text in the colour of its background shows nothing to cut (the
      // PowerBall column keeps old numbers so, white on white).
      if (look.text.trimmed().isEmpty() || look.foreground == look.background) continue;
      if (isStrayMark(*control)) continue;
      const QRect area(0, 0, toPixels(control->width()), toPixels(control->height()));
      measured_.insert(look.text);
      lookAtTheFace(*control, area, look);
      const Measure size = measure(area, look);
      if (!size.fits)
        misfits_.insert(QStringLiteral("%1.%2 \"%3\": %4 px in %5 px")
                            .arg(QString::fromStdString(control->form().name()),
                                 QString::fromStdString(control->displayName()), look.text)
                            .arg(size.needed)
                            .arg(size.room));
    }
  }

  int states() const { return states_; }
  const QSet<QString>& measured() const { return measured_; }
  const QSet<QString>& misfits() const { return misfits_; }
  const QSet<QString>& unscalable() const { return unscalable_; }
  const QSet<QString>& shrunk() const { return shrunk_; }
  const QSet<QString>& respaced() const { return respaced_; }
  int shrunkAsDesigned() const { return shrunkAsDesigned_.size(); }

 private:
  // What the text is drawn in, against what it was laid out in: a face that
  // scales on a scaled screen, no smaller than the design unless the text
  // didn't fit its control in the designed font at 100 % either, and as wide.
  void lookAtTheFace(const Control& control, const QRect& area, const ControlLook& look) {
    const QString where = QStringLiteral("%1.%2 \"%3\"")
                              .arg(QString::fromStdString(control.form().name()),
                                   QString::fromStdString(control.displayName()), look.text);
    const QFont painted = paintedFont(area, look);
    if (scaledScreen() && !scalesSmoothly(painted))
      unscalable_.insert(where + QStringLiteral(" in ") + QFontInfo(painted).family());
    ControlLook designed = look;
    designed.font = designedFont(control.fontSize(), control.fontBold());
    const bool fittedAsDesigned = measureIn(area, designed, designed.font).fits;
    const int pixels = QFontInfo(painted).pixelSize();
    if (pixels < designed.font.pixelSize() || painted != look.font) {
      if (fittedAsDesigned)
        shrunk_.insert(where + QStringLiteral(": %1 px").arg(pixels));
      else
        shrunkAsDesigned_.insert(where);
      return;
    }
    if (look.text.contains(u'\n')) return;
    const qreal span = spanOf(painted, look.text);
    const qreal designedSpan = spanOf(designed.font, look.text);
    if (!spansAsDesigned(span, designedSpan))
      respaced_.insert(where + QStringLiteral(": %1 px for %2 px").arg(span).arg(designedSpan));
  }

  int states_ = 0;
  QSet<QString> measured_;
  QSet<QString> misfits_;
  QSet<QString> unscalable_;
  QSet<QString> shrunk_;
  QSet<QString> respaced_;
  QSet<QString> shrunkAsDesigned_;
};

// Warns of each finding, sorted, and says how many there are.
QString report(const QSet<QString>& findings, const char* what) {
  QStringList sorted = findings.values();
  sorted.sort();
  for (const QString& finding : sorted)
    qWarning("%s: %s", what, qPrintable(finding));
  return QStringLiteral("%1 texts %2; the warnings name them").arg(sorted.size()).arg(what);
}

// Scenarios that put on screen data far beyond what the program accepts, to
// see how it fails: a draw number of 300 characters, which no box could hold.
bool showsOversizedData(const std::filesystem::path& file) {
  return file.stem() == "too_long_draw_number_is_fatal_52_both_ways";
}

std::vector<std::filesystem::path> scenarioFiles() {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(VERIDRAW_SCENARIOS))
    if (entry.path().extension() == ".scn" && !showsOversizedData(entry.path()))
      files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

class TextFitTest : public QObject {
  Q_OBJECT

 private slots:
  void aTextWiderThanItsControlIsCaught() {
    ControlLook look;
    look.kind = ControlKind::TextBox;
    look.font = modelFont(8.25, false);
    look.borderStyle = 1;
    look.text = "Is the PowerBall number the same for all lines";
    look.font = textFont(8.25, false, look.text);
    // The question as it stands, and in a box a tenth narrower.
    QVERIFY(measure(QRect(0, 0, 220, 21), look).fits);
    QVERIFY(!measure(QRect(0, 0, 198, 21), look).fits);
    // A number cell of two digits and the blank after them, and one digit too many.
    look.text = "12 ";
    look.font = textFont(8.25, false, look.text);
    QVERIFY(measure(QRect(0, 0, 19, 16), look).fits);
    look.text = "123";
    look.font = textFont(8.25, false, look.text);
    QVERIFY(!measure(QRect(0, 0, 19, 16), look).fits);
    look.kind = ControlKind::Label;
    look.text = "Lotto Veridraw";
    look.font = modelFont(24, true);
    QVERIFY(!measure(QRect(0, 0, 100, 41), look).fits);
    // A wrapped caption that needs more lines than the label's height holds.
    look.text = "Check your Lotto tickets for prizes";
    look.font = textFont(8.25, false, look.text);
    QVERIFY(measure(QRect(0, 0, 100, 30), look).fits);
    QVERIFY(!measure(QRect(0, 0, 100, 14), look).fits);
  }

  void theFormsAreSetInTheClassicFace() {
    // fonts-wine is a dependency of the program; its bitmap face carries the
    // widths that the forms were laid out for.
    QCOMPARE(QFontInfo(designedFont(8.25, false)).family(), "MS Sans Serif");
    QVERIFY(!scalesSmoothly(designedFont(8.25, false)));
    QVERIFY(scalesSmoothly(designedFont(8.25, true)));
    QVERIFY(scalesSmoothly(designedFont(24, true)));
    if (!scaledScreen()) {
      QCOMPARE(captionFamily(), "MS Sans Serif");
      return;
    }
    // On a scaled screen the bitmap face would be drawn at its one size.
    QVERIFY(captionFamily() != "MS Sans Serif");
    QVERIFY(scalesSmoothly(modelFont(8.25, false)));
    QCOMPARE(QFontInfo(modelFont(8.25, false)).pixelSize(), 13);
  }

  void theBoxesAreSetInAFaceOfTheScreensScale() {
    // The message and input boxes take the application's font.
    useClassicStyle();
    QCOMPARE(QApplication::font(), modelFont(8.25, false));
    QCOMPARE(scalesSmoothly(QApplication::font()), scaledScreen());
  }

  void aTextIsAsWideAsInTheDesignedFace() {
    ControlLook look;
    look.kind = ControlKind::CommandButton;
    for (const QString text : {"Readme", "E&xit", "Is the PowerBall number the same for all lines",
                               "12 ", "WWW", "iiii", "Delete Ticket"}) {
      look.text = text;
      const qreal designed = spanOf(designedFont(8.25, false), text);
      const qreal drawn = spanOf(textFont(8.25, false, shownText(look)), text);
      QVERIFY2(
          spansAsDesigned(drawn, designed),
          qPrintable(QStringLiteral("%1: %2 px for %3 px").arg(text).arg(drawn).arg(designed)));
    }
  }

  void everyTextShownInEveryStateOfTheScenariosFitsItsControl() {
    Walk walk;
    int played = 0;
    for (const std::filesystem::path& file : scenarioFiles()) {
      std::ifstream in(file);
      std::ostringstream out;
      const script::ScenarioResult result = script::runScenario(
          in, out, false, [&walk](const script::Scenario& scenario) { walk.look(scenario); });
      QVERIFY2(result.passed, qPrintable(QString::fromStdString(file.string())));
      ++played;
    }
    QVERIFY(played >= 200);
    QVERIFY(walk.states() > 2000);
    // Some of the texts that the logic sets, beside the captions of the designs.
    for (const char* text :
         {"Is the PowerBall number the same for all lines", "Enter the 2 Digit PowerBall Number",
          "Are these numbers correct?", "Press &Enter to Start"})
      QVERIFY2(walk.measured().contains(text), text);
    qInfo("%d scenarios, %d states, %d texts at a scale of %g; %d shrunk as at 100 %%", played,
          walk.states(), int(walk.measured().size()), qApp->devicePixelRatio(),
          walk.shrunkAsDesigned());
    QVERIFY2(walk.misfits().isEmpty(),
             qPrintable(report(walk.misfits(), "don't fit their controls")));
    QVERIFY2(walk.unscalable().isEmpty(),
             qPrintable(report(walk.unscalable(), "are drawn by a face that can't scale")));
    QVERIFY2(walk.shrunk().isEmpty(),
             qPrintable(report(walk.shrunk(), "are drawn smaller than their scale asks")));
    QVERIFY2(walk.respaced().isEmpty(),
             qPrintable(report(walk.respaced(), "span another width than they were laid out for")));
  }
};

QTEST_MAIN(TextFitTest)
#include "text_fit_test.moc"
