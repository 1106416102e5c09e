// veridraw-random-session: plays one random session by its seed and prints it
// as a scenario while it plays, so that a session that crashes the program
// still shows the steps that led there.
//   veridraw-random-session [--untidy] [--events N] SEED
#include <cstdlib>
#include <iostream>
#include <string>

#include "random/session.h"
#include "support/test_support.h"

int main(int argc, char** argv) {
  veridraw::random_sessions::SessionOptions options;
  options.live = &std::cout;
  std::string seed;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    if (argument == "--untidy") {
      options.tidy = false;
    } else if (argument == "--events" && i + 1 < argc) {
      options.events = std::atoi(argv[++i]);
    } else if (seed.empty() && !argument.empty() && argument[0] != '-') {
      seed = argument;
    } else {
      seed.clear();
      break;
    }
  }
  if (seed.empty()) {
    std::cerr << "usage: veridraw-random-session [--untidy] [--events N] SEED\n";
    return 2;
  }
  veridraw::testing::TemporaryDirectory dir;
  const auto result =
      veridraw::random_sessions::playSession(std::stoull(seed), options, dir.path());
  std::cerr << (result.passed ? "PASS" : "FAIL: " + result.failure) << " after " << result.events
            << " events\n";
  return result.passed ? 0 : 1;
}
