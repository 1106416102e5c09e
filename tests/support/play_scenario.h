// Plays a scenario written in a test and keeps what the runner printed.
#pragma once

#include <sstream>
#include <string>

#include "runner/scenario.h"

namespace veridraw::testing {

struct Played {
  script::ScenarioResult result;
  std::string output;
};

inline Played play(const std::string& scenario) {
  std::istringstream in(scenario);
  std::ostringstream out;
  script::ScenarioResult result = script::runScenario(in, out, false);
  return {result, out.str()};
}

}  // namespace veridraw::testing
