// The whole program in a folder of its own, with a draw on disk, driven by the
// calls that both faces make.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "screen/application.h"
#include "support/driver.h"
#include "support/test_support.h"

namespace veridraw::bench {

// A new empty folder holding the current draw, removed at the end.
class TemporaryFolder : public testing::TemporaryDirectory {
 public:
  TemporaryFolder();
};

// The current draw of a folder, with its Lotto numbers and PowerBall.
inline constexpr int kCurrentDraw = 720;

// What a program is made of, made before the driver that works on it.
struct ProgramParts {
  explicit ProgramParts(const TemporaryFolder& folder);
  // No message box is expected: one would stop the benchmark.
  testing::QueuedDialogs dialogs;
  std::unique_ptr<Application> application;
};

// The program's forms, in a folder, before the first form is shown; the
// user's actions by name go to the form on screen.
class Program : private ProgramParts, public testing::Driver {
 public:
  explicit Program(const TemporaryFolder& folder);
  // Shows a screen as the first form.
  void start(const std::string& form);
  Application& application() { return *ProgramParts::application; }
};

// That many valid lines of six numbers in two digits each, one line a string.
std::vector<std::string> ticketLines(int lines);

}  // namespace veridraw::bench
