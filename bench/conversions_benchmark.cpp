// Val and the strict conversion run at every keystroke of number entry.
#include <benchmark/benchmark.h>

#include "screen/strings.h"

namespace {

void ValOfACell(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(veridraw::Val("12 "));
}
BENCHMARK(ValOfACell);

void StrictNumberOfADrawNumber(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(veridraw::StrictNumber(" 1105 "));
}
BENCHMARK(StrictNumberOfADrawNumber);

}  // namespace
