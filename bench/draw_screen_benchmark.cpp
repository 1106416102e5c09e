// The draw screen's Load probes 1500 draw names and 100 ticket names with Dir.
// Its floor is a bare loop of 1500 stat calls on the draws' full names.
#include <benchmark/benchmark.h>
#include <sys/stat.h>

#include <string>
#include <vector>

#include "measure.h"
#include "program_driver.h"
#include "store/draw_store.h"

namespace veridraw::bench {
namespace {

void DrawScreenLoad(benchmark::State& state) {
  TemporaryFolder folder;
  const int draws = static_cast<int>(state.range(0));
  for (int draw = 1; draw <= draws; ++draw)
    if (draw != kCurrentDraw)
      folder.write(std::to_string(draw), std::to_string(draw) + "\r\n\r\n\r\n");
  std::vector<std::string> names;
  for (int draw = 1; draw <= store::kListedDraws; ++draw)
    names.push_back((folder.path() / std::to_string(draw)).string());
  PairedTimes times;
  for (auto _ : state) {
    times.floor([&] {
      struct stat status;
      for (const std::string& name : names)
        benchmark::DoNotOptimize(::stat(name.c_str(), &status));
    });
    Program program(folder);
    times.subject(state, [&] { program.start("Veridraw7f"); });
  }
  times.report(state);
}
BENCHMARK(DrawScreenLoad)
    ->Arg(0)
    ->Arg(1500)
    ->UseManualTime()
    ->Iterations(200)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace veridraw::bench
