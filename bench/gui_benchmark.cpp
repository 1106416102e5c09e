// One key to repaint in the real window of the desktop program, on Qt's
// offscreen platform, against its floor: a digit typed into a QLineEdit in a
// window of 300 of them. Each timed key of the program is paired with a key of
// the floor right after it, so that both see the same load of a shared
// machine; the counters give the medians of each and their ratio.
#include <benchmark/benchmark.h>
#include <QApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QTest>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "gui/dialogs/desktop_dialogs.h"
#include "gui/look/classic_style.h"
#include "gui/window/desktop.h"
#include "gui/window/form_window.h"
#include "measure.h"
#include "program/program.h"

namespace {

namespace fs = std::filesystem;
using veridraw::bench::median;
using Clock = std::chrono::steady_clock;

constexpr int kLines = 14;
constexpr int kCellsPerLine = 6;
// A valid line of six numbers in ascending order, as its twelve keys.
constexpr const char* kLine = "010203040506";

double micros(Clock::duration duration) {
  return std::chrono::duration<double, std::micro>(duration).count();
}

// Runs `key` and then the events it left, painting included; gives the time taken.
template <class Key>
double timed(Key&& key) {
  const Clock::time_point start = Clock::now();
  key();
  QCoreApplication::processEvents();
  return micros(Clock::now() - start);
}

// The floor: 300 line edits, and keys into the one with the focus, a digit
// and a backspace by turns, so that its text stays short.
class Floor {
 public:
  Floor() {
    auto* grid = new QGridLayout(&window_);
    constexpr int kColumns = 20;
    constexpr int kEdits = 300;
    for (int index = 0; index < kEdits; ++index) {
      auto* edit = new QLineEdit(&window_);
      edit->setFixedWidth(30);
      grid->addWidget(edit, index / kColumns, index % kColumns);
      if (index == kEdits / 2) focused_ = edit;
    }
    window_.show();
    if (!QTest::qWaitForWindowExposed(&window_)) std::abort();
    focused_->setFocus();
    QCoreApplication::processEvents();
  }

  double key() {
    const Qt::Key key = digit_ ? Qt::Key_5 : Qt::Key_Backspace;
    digit_ = !digit_;
    return timed([this, key] { QTest::keyClick(focused_, key); });
  }

 private:
  QWidget window_;
  QLineEdit* focused_ = nullptr;
  bool digit_ = true;
};

// The program in a folder of its own, with draw 705 current, on the Lotto
// screen with an empty ticket of fourteen lines.
class LottoTicket {
 public:
  LottoTicket() {
    std::string pattern = (fs::temp_directory_path() / "veridraw-gui-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    folder_ = pattern;
    std::ofstream(folder_ / "DrawNumber", std::ios::binary) << "705\r\n";
    std::ofstream(folder_ / "705", std::ios::binary) << "705\r\nX0308172239401202\r\nZ17033908\r\n";
    application_ = std::make_unique<veridraw::Application>(dialogs_, folder_);
    veridraw::addVeridrawForms(*application_);
    desktop_ = std::make_unique<veridraw::gui::Desktop>(*application_, dialogs_);
    desktop_->start(veridraw::kFirstForm);
    pressKey(Qt::Key_Return);
    for (const char* button : {"BtnCheckTickets", "Btn1Lotto", "BtnCheckNewTicket", "BtnLineO"}) {
      desktop_->act([button](veridraw::Application& application) {
        application.click(application.activeForm()->control(button));
      });
    }
    if (application_->activeForm()->name() != "Veridraw7b") std::abort();
    if (!QTest::qWaitForWindowExposed(desktop_->window())) std::abort();
    QCoreApplication::processEvents();
  }
  LottoTicket(const LottoTicket&) = delete;
  LottoTicket& operator=(const LottoTicket&) = delete;

  ~LottoTicket() {
    desktop_.reset();
    application_.reset();
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }

  static int keysInATicket() { return kLines * kCellsPerLine * 2; }
  int typed() const { return typed_; }

  // Types the ticket's next key through the window, as the user does.
  double typeNext() {
    const char digit = kLine[typed_ % 12];
    ++typed_;
    return timed([this, digit] { QTest::keyClick(desktop_->window(), digit); });
  }

  // Types the ticket's next key into the model alone, which the window doesn't
  // follow: the share of a key that is the model's.
  double typeNextIntoModel() {
    const char digit = kLine[typed_ % 12];
    ++typed_;
    const Clock::time_point start = Clock::now();
    application_->typeCharacter(digit);
    return micros(Clock::now() - start);
  }

  // Types the ticket's keys up to `count` into the model, untimed, and shows them.
  void typeUpTo(int count) {
    desktop_->act([this, count](veridraw::Application& application) {
      for (; typed_ < count; ++typed_)
        application.typeCharacter(kLine[typed_ % 12]);
    });
    QCoreApplication::processEvents();
  }

 private:
  void pressKey(Qt::Key key) { QTest::keyClick(desktop_->window(), key); }

  fs::path folder_;
  veridraw::gui::DesktopDialogs dialogs_;
  std::unique_ptr<veridraw::Application> application_;
  std::unique_ptr<veridraw::gui::Desktop> desktop_;
  int typed_ = 0;
};

void report(benchmark::State& state, const std::vector<double>& keys,
            const std::vector<double>& floor) {
  const double keyMedian = median(keys);
  const double floorMedian = median(floor);
  state.counters["median_us"] = keyMedian;
  state.counters["floor_us"] = floorMedian;
  state.counters["ratio"] = floorMedian > 0 ? keyMedian / floorMedian : 0;
}

void BM_GuiFloorDigitIntoLineEdit(benchmark::State& state) {
  Floor floor;
  std::vector<double> samples;
  for (auto _ : state) {
    const double sample = floor.key();
    state.SetIterationTime(sample / 1e6);
    samples.push_back(sample);
  }
  state.counters["median_us"] = median(samples);
}

// Times every key of fourteen-line Lotto tickets but their last, a new ticket
// after each: `typeKey` types one into the ticket and gives its time,
// `afterKey` runs untimed after it.
template <class TypeKey, class AfterKey>
std::vector<double> everyKeyButTheLast(benchmark::State& state, TypeKey&& typeKey,
                                       AfterKey&& afterKey) {
  auto ticket = std::make_unique<LottoTicket>();
  std::vector<double> keys;
  for (auto _ : state) {
    if (ticket->typed() == LottoTicket::keysInATicket() - 1) {
      state.PauseTiming();
      ticket = std::make_unique<LottoTicket>();
      state.ResumeTiming();
    }
    const double sample = typeKey(*ticket);
    state.SetIterationTime(sample / 1e6);
    keys.push_back(sample);
    afterKey();
  }
  return keys;
}

// Every key of a fourteen-line Lotto ticket but the last, which checks it.
void BM_GuiLottoTypicalDigit14Lines(benchmark::State& state) {
  Floor floor;
  std::vector<double> floors;
  const std::vector<double> keys = everyKeyButTheLast(
      state, [](LottoTicket& ticket) { return ticket.typeNext(); },
      [&] { floors.push_back(floor.key()); });
  report(state, keys, floors);
}

// The same keys into the model alone, with no face to follow them: what of the
// keys above is the model's work.
void BM_ModelLottoTypicalDigit14Lines(benchmark::State& state) {
  const std::vector<double> keys = everyKeyButTheLast(
      state, [](LottoTicket& ticket) { return ticket.typeNextIntoModel(); }, [] {});
  state.counters["median_us"] = median(keys);
}

// The last key of a fourteen-line Lotto ticket: the ticket is checked and the
// prize grid and the buttons of the outcome come up.
void BM_GuiLottoLastDigit14Lines(benchmark::State& state) {
  Floor floor;
  std::vector<double> keys, floors;
  for (auto _ : state) {
    state.PauseTiming();
    LottoTicket ticket;
    ticket.typeUpTo(LottoTicket::keysInATicket() - 1);
    state.ResumeTiming();
    const double sample = ticket.typeNext();
    state.SetIterationTime(sample / 1e6);
    keys.push_back(sample);
    state.PauseTiming();
    // A few keys of the floor, the first of which finds its caches cold after the set-up.
    constexpr int kFloorKeys = 6;
    for (int key = 0; key < kFloorKeys; ++key)
      floors.push_back(floor.key());
    state.ResumeTiming();
  }
  report(state, keys, floors);
}

BENCHMARK(BM_GuiFloorDigitIntoLineEdit)->UseManualTime()->Iterations(600);
BENCHMARK(BM_GuiLottoTypicalDigit14Lines)->UseManualTime()->Iterations(500);
BENCHMARK(BM_ModelLottoTypicalDigit14Lines)->UseManualTime()->Iterations(500);
BENCHMARK(BM_GuiLottoLastDigit14Lines)->UseManualTime()->Iterations(30);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication qt(argc, argv);
  veridraw::gui::useClassicStyle();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
