// Helpers shared by the unit tests: a fresh working directory, and dialogs
// that answer from a queue.
#pragma once

#include <deque>
#include <filesystem>
#include <string>
#include <variant>
#include <vector>

#include "screen/dialogs.h"

namespace veridraw::testing {

// A new empty directory, removed with everything in it at the end of the test.
class TemporaryDirectory {
 public:
  TemporaryDirectory();
  ~TemporaryDirectory();
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

  const std::filesystem::path& path() const { return path_; }
  void write(const std::string& name, const std::string& bytes) const;
  std::string read(const std::string& name) const;
  bool exists(const std::string& name) const;

 private:
  std::filesystem::path path_;
};

// Answers dialogs from queues and records what was asked.
class QueuedDialogs : public Dialogs {
 public:
  struct Shown {
    std::string prompt;
    int buttons = 0;
    std::string title;
  };
  std::deque<int> buttonAnswers;
  std::deque<std::string> textAnswers;
  std::vector<Shown> shown;

  int MsgBox(const std::string& prompt, int buttons, const std::string& title) override;
  std::string InputBox(const std::string& prompt, const std::string& title,
                       const std::string& defaultText, int xpos, int ypos) override;
};

}  // namespace veridraw::testing
