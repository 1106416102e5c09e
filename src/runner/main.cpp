// veridraw-script: plays scenarios of the scenario language against the forms
// of Veridraw, without a display.
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "runner/scenario.h"

namespace {

int usage() {
  std::cerr << "usage: veridraw-script [--verbose] FILE...\n"
               "       veridraw-script [--verbose] < SCENARIO\n";
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  bool verbose = false;
  std::vector<std::string> files;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    if (argument == "--verbose") {
      verbose = true;
    } else if (argument == "--help" || (argument.size() > 1 && argument[0] == '-')) {
      return usage();
    } else {
      files.push_back(argument);
    }
  }

  int passed = 0;
  int failed = 0;
  const auto report = [&](const std::string& name, const veridraw::script::ScenarioResult& result) {
    if (result.passed) {
      ++passed;
      std::cout << "PASS " << name << "\n";
    } else {
      ++failed;
      std::cout << "FAIL " << name << ":" << result.line << ": " << result.reason << "\n";
    }
    std::cout.flush();
  };

  if (files.empty()) {
    report("-", veridraw::script::runScenario(std::cin, std::cout, verbose));
  }
  for (const std::string& file : files) {
    std::ifstream in(file, std::ios::binary);
    if (!in) {
      report(file, {false, 0, "can't read the scenario file"});
      continue;
    }
    // The answers of print lines come before the PASS or FAIL line of their file.
    report(file, veridraw::script::runScenario(in, std::cout, verbose));
  }
  std::cout << passed << " passed, " << failed << " failed\n";
  return failed == 0 ? 0 : 1;
}
