// The whole program in a folder of its own, with a draw on disk, driven by the
// calls that both faces make.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "screen/application.h"
#include "support/test_support.h"

namespace veridraw::bench {

// A new empty folder holding the current draw, removed at the end.
class TemporaryFolder : public testing::TemporaryDirectory {
 public:
  TemporaryFolder();
};

// The current draw of a folder, with its Lotto numbers and PowerBall.
inline constexpr int kCurrentDraw = 720;

// The program's forms, in a folder, before the first form is shown.
class Program {
 public:
  explicit Program(const TemporaryFolder& folder);
  // Shows a screen as the first form.
  void start(const std::string& form);
  void click(const std::string& control);
  void type(const std::string& characters);
  // The new-ticket road of a ticket screen up to its first cell.
  void chooseLines(int lines);
  Application& application() { return *application_; }

 private:
  // No message box is expected: one would stop the benchmark.
  testing::QueuedDialogs dialogs_;
  std::unique_ptr<Application> application_;
};

// That many valid lines of six numbers in two digits each, one line a string.
std::vector<std::string> ticketLines(int lines);

}  // namespace veridraw::bench
