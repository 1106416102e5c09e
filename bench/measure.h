// Each figure is measured against its floor in the same run: the two are timed
// in alternation, one pair an iteration, and the medians compared, so that the
// load of a shared machine weighs on both alike. The benchmark reports the
// subject's time (manual time) and the counters floor_us, median_us and ratio.
#pragma once

#include <benchmark/benchmark.h>
#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#endif

#include <algorithm>
#include <chrono>
#include <vector>

// Under callgrind with --collect-atstart=no, only the subjects are counted:
// collection is switched on around each one, outside its clock. Elsewhere
// these do nothing.
#ifdef CALLGRIND_TOGGLE_COLLECT
#define VERIDRAW_COUNT_SUBJECT() CALLGRIND_TOGGLE_COLLECT
#else
#define VERIDRAW_COUNT_SUBJECT() ((void)0)
#endif

namespace veridraw::bench {

template <class Action>
double secondsOf(Action&& action) {
  const auto start = std::chrono::steady_clock::now();
  action();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double median(std::vector<double> values) {
  if (values.empty()) return 0;
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

class PairedTimes {
 public:
  // The floor is run `floorRepeats` times in a row and counted as one run, for
  // a floor too short for the clock.
  template <class Floor>
  void floor(Floor&& action, int floorRepeats = 1) {
    floor_.push_back(secondsOf([&] {
                       for (int i = 0; i < floorRepeats; ++i)
                         action();
                     }) /
                     floorRepeats);
  }
  template <class Subject>
  void subject(benchmark::State& state, Subject&& action) {
    state.SetIterationTime(subject(action));
  }
  // Times one run of the subject without setting the iteration's time.
  template <class Subject>
  double subject(Subject&& action) {
    VERIDRAW_COUNT_SUBJECT();
    const double seconds = secondsOf(action);
    VERIDRAW_COUNT_SUBJECT();
    subject_.push_back(seconds);
    return seconds;
  }
  void report(benchmark::State& state) const {
    const double floorMedian = median(floor_);
    const double subjectMedian = median(subject_);
    state.counters["floor_us"] = floorMedian * 1e6;
    state.counters["median_us"] = subjectMedian * 1e6;
    state.counters["ratio"] = floorMedian > 0 ? subjectMedian / floorMedian : 0;
  }

 private:
  std::vector<double> floor_;
  std::vector<double> subject_;
};

}  // namespace veridraw::bench
