// veridraw-script: plays scenarios of the scenario language against the forms
// of Veridraw, without a display.
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "runner/scenario.h"

namespace {

constexpr const char* kUsage =
    "usage: veridraw-script [--verbose] FILE...\n"
    "       veridraw-script [--verbose] < SCENARIO\n"
    "       veridraw-script --help | --version\n";

int usage() {
  std::cerr << kUsage;
  return 2;
}

int help() {
  std::cout << kUsage
            << "Plays scenarios of Veridraw against its screens without a display.\n"
               "\n"
               "  --verbose      also print every dialog and fatal error as it happens\n"
               "  -h, --help     print this help and end\n"
               "  --version      print the version and end\n"
               "\n"
               "See the manual page veridraw-script(1).\n";
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  bool verbose = false;
  std::vector<std::string> files;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    if (argument == "--verbose") {
      verbose = true;
    } else if ((argument == "--help" || argument == "-h") && argc == 2) {
      return help();
    } else if (argument == "--version" && argc == 2) {
      std::cout << "veridraw-script " << VERIDRAW_VERSION << "\n";
      return 0;
    } else if (argument.size() > 1 && argument[0] == '-') {
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
