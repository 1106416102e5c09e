// Every caption and text that the screens show fits its control in the font of
// the forms. The states are those that the project's scenarios reach: each
// scenario is played against the real forms, and after each of its lines every
// visible control of the form on screen is measured, with the text the logic
// has put there, by the metrics of the font it is painted in.
#include <QFontMetrics>
#include <QSet>
#include <QStringList>
#include <QTest>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include "gui/look/appearance.h"
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
Measure measure(const QRect& area, const ControlLook& look) {
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
  const QFont font = look.kind == ControlKind::TextBox ? look.font : captionFont(area, look);
  const QFontMetrics metrics(font);
  const int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic;
  const QRect needed = metrics.boundingRect(box, flags, look.text);
  result.needed = needed.width();
  result.fits =
      needed.width() <= box.width() && needed.height() - metrics.descent() <= box.height();
  return result;
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

 private:
  int states_ = 0;
  QSet<QString> measured_;
  QSet<QString> misfits_;
};

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
    // The question as it stands, and in a box a tenth narrower.
    QVERIFY(measure(QRect(0, 0, 220, 21), look).fits);
    QVERIFY(!measure(QRect(0, 0, 198, 21), look).fits);
    // A number cell of two digits and the blank after them, and one digit too many.
    look.text = "12 ";
    QVERIFY(measure(QRect(0, 0, 19, 16), look).fits);
    look.text = "123";
    QVERIFY(!measure(QRect(0, 0, 19, 16), look).fits);
    look.kind = ControlKind::Label;
    look.text = "Lotto Veridraw";
    look.font = modelFont(24, true);
    QVERIFY(!measure(QRect(0, 0, 100, 41), look).fits);
    // A wrapped caption that needs more lines than the label's height holds.
    look.font = modelFont(8.25, false);
    look.text = "Check your Lotto tickets for prizes";
    QVERIFY(measure(QRect(0, 0, 100, 30), look).fits);
    QVERIFY(!measure(QRect(0, 0, 100, 14), look).fits);
  }

  void theFormsAreSetInTheClassicFace() {
    // fonts-wine is a dependency of the program; its bitmap face carries the
    // widths that the forms were laid out for.
    QCOMPARE(captionFamily(), "MS Sans Serif");
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
    QStringList misfits = walk.misfits().values();
    misfits.sort();
    for (const QString& misfit : misfits)
      qWarning("%s", qPrintable(misfit));
    QVERIFY2(misfits.isEmpty(), qPrintable(QStringLiteral("%1 texts don't fit their controls; "
                                                          "the warnings name them")
                                               .arg(misfits.size())));
  }
};

QTEST_MAIN(TextFitTest)
#include "text_fit_test.moc"
