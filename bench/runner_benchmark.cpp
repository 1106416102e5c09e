// Every scenario of the project played by the runner in a process of its own,
// as ctest plays them, against a trivial scenario played the same way.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "measure.h"

extern char** environ;

namespace veridraw::bench {
namespace {

namespace fs = std::filesystem;

void play(const std::string& scenario) {
  const std::string runner = VERIDRAW_SCRIPT_RUNNER;
  std::vector<char*> arguments{const_cast<char*>(runner.c_str()),
                               const_cast<char*>(scenario.c_str()), nullptr};
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const int error =
      posix_spawn(&child, runner.c_str(), &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  if (error != 0 || waitpid(child, &status, 0) != child || !WIFEXITED(status) ||
      WEXITSTATUS(status) != 0)
    throw std::runtime_error("the scenario failed: " + scenario);
}

void OneScenarioThroughTheRunner(benchmark::State& state) {
  std::vector<std::string> scenarios;
  for (const auto& entry : fs::recursive_directory_iterator(VERIDRAW_SCENARIOS))
    if (entry.path().extension() == ".scn") scenarios.push_back(entry.path().string());
  std::sort(scenarios.begin(), scenarios.end());
  const std::string trivial = VERIDRAW_TRIVIAL_SCENARIO;
  PairedTimes times;
  for (auto _ : state) {
    double total = 0;
    for (const std::string& scenario : scenarios) {
      times.floor([&] { play(trivial); });
      total += times.subject([&] { play(scenario); });
    }
    state.SetIterationTime(total / static_cast<double>(scenarios.size()));
  }
  times.report(state);
  state.counters["scenarios"] = static_cast<double>(scenarios.size());
}
BENCHMARK(OneScenarioThroughTheRunner)
    ->UseManualTime()
    ->Iterations(2)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veridraw::bench
