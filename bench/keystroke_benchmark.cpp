// The keystrokes of ticket entry that cost the most: each walks the whole
// ticket from its first cell, and a changed cell walks it again nested. The
// floor of a key is the same judgement done plainly: every cell of the ticket
// read as a number, its range and the order of its line checked once.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "measure.h"
#include "program_driver.h"

namespace veridraw::bench {
namespace {

constexpr int kCellsPerLine = 6;
constexpr int kKeyIterations = 30;

// The cells of a ticket as they stand after its keys: "12 " each.
std::vector<std::string> cellTexts(const std::vector<std::string>& lines) {
  std::vector<std::string> cells;
  for (const std::string& line : lines)
    for (std::size_t pair = 0; pair + 1 < line.size(); pair += 2)
      cells.push_back(line.substr(pair, 2) + " ");
  return cells;
}

// One walk over the ticket done plainly: where the cursor stands, and whether
// any number is out of range or out of order within its line.
int plainWalk(const std::vector<std::string>& cells) {
  int complete = 0;
  int refusals = 0;
  int previous = 0;
  for (std::size_t cell = 0; cell < cells.size(); ++cell) {
    const std::string& text = cells[cell];
    if (text.size() != 3) break;
    const int value = (text[0] - '0') * 10 + (text[1] - '0');
    if (value < 1 || value > 40) ++refusals;
    if (cell % kCellsPerLine != 0 && value <= previous) ++refusals;
    previous = value;
    ++complete;
  }
  return complete + refusals;
}

std::string allButLast(const std::vector<std::string>& lines, std::size_t keysLeft) {
  std::string keys;
  for (const std::string& line : lines)
    keys += line;
  return keys.substr(0, keys.size() - keysLeft);
}

// The last key of a 14-line ticket on a screen: everything typed before it.
void LastKey(benchmark::State& state, const char* screen, std::size_t keysLeft, char key) {
  TemporaryFolder folder;
  const std::vector<std::string> lines = ticketLines(14);
  const std::vector<std::string> cells = cellTexts(lines);
  const std::string before = allButLast(lines, keysLeft);
  PairedTimes times;
  for (auto _ : state) {
    Program program(folder);
    program.start(screen);
    program.chooseLines(14);
    program.type(before);
    times.floor([&] { benchmark::DoNotOptimize(plainWalk(cells)); }, 64);
    times.subject(state, [&] { program.application().typeCharacter(key); });
  }
  times.report(state);
}

void LottoLastDigitOf14Lines(benchmark::State& state) {
  LastKey(state, "Veridraw7b", 1, ticketLines(14).back().back());
}
BENCHMARK(LottoLastDigitOf14Lines)->UseManualTime()->Iterations(kKeyIterations);

void PowerBallLastMainDigitOf14Lines(benchmark::State& state) {
  LastKey(state, "Veridraw7e", 1, ticketLines(14).back().back());
}
BENCHMARK(PowerBallLastMainDigitOf14Lines)->UseManualTime()->Iterations(kKeyIterations);

// The space bar in the empty last cell steps back: the walk, and two nested
// ones for the two cells it empties.
void LottoSpaceBarInEmptyLastCellOf14Lines(benchmark::State& state) {
  LastKey(state, "Veridraw7b", 2, ' ');
}
BENCHMARK(LottoSpaceBarInEmptyLastCellOf14Lines)->UseManualTime()->Iterations(kKeyIterations);

// A whole ticket typed, key by key; the floor is one plain walk a key.
void LottoWholeTicket(benchmark::State& state) {
  TemporaryFolder folder;
  const int lineCount = static_cast<int>(state.range(0));
  const std::vector<std::string> lines = ticketLines(lineCount);
  const std::vector<std::string> cells = cellTexts(lines);
  const std::string keys = allButLast(lines, 0);
  PairedTimes times;
  for (auto _ : state) {
    Program program(folder);
    program.start("Veridraw7b");
    program.chooseLines(lineCount);
    times.floor([&] {
      for (std::size_t key = 0; key < keys.size(); ++key)
        benchmark::DoNotOptimize(plainWalk(cells));
    });
    times.subject(state, [&] { program.type(keys); });
  }
  times.report(state);
  state.counters["keys"] = static_cast<double>(keys.size());
}
BENCHMARK(LottoWholeTicket)
    ->Arg(4)
    ->Arg(8)
    ->Arg(14)
    ->UseManualTime()
    ->Iterations(10)
    ->Unit(benchmark::kMillisecond);

// Yes to "same for all lines", then the second digit of the one number fills
// the column of 14 lines, each cell's Change nested.
void PowerBallFillForAllOf14Lines(benchmark::State& state) {
  TemporaryFolder folder;
  const std::vector<std::string> lines = ticketLines(14);
  std::vector<std::string> column(14, "05 ");
  PairedTimes times;
  for (auto _ : state) {
    Program program(folder);
    program.start("Veridraw7e");
    program.chooseLines(14);
    program.type(allButLast(lines, 0));
    program.click("BtnYes");
    program.type("0");
    times.floor(
        [&] {
          for (std::string& cell : column)
            cell.assign("05 ");
          benchmark::DoNotOptimize(plainWalk(column));
        },
        64);
    times.subject(state, [&] { program.application().typeCharacter('5'); });
  }
  times.report(state);
}
BENCHMARK(PowerBallFillForAllOf14Lines)->UseManualTime()->Iterations(kKeyIterations);

}  // namespace
}  // namespace veridraw::bench
