// The whole program in a folder of its own, with a draw on disk and every
// message box answered OK, driven by the calls that both faces make.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "screen/application.h"

namespace veridraw::bench {

class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const std::filesystem::path& path() const { return path_; }
  void write(const std::string& name, const std::string& bytes) const;

 private:
  std::filesystem::path path_;
};

class AnswerOk : public Dialogs {
 public:
  int MsgBox(const std::string&, int, const std::string&) override { return 1; }
  std::string InputBox(const std::string&, const std::string&, const std::string&, int,
                       int) override {
    return "";
  }
};

// The current draw of a folder, with its Lotto numbers and PowerBall.
inline constexpr int kCurrentDraw = 720;

// Draw 720 is the current draw of the folder.
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
  AnswerOk dialogs_;
  std::unique_ptr<Application> application_;
};

// Fourteen valid lines of six numbers in two digits each, one line a string.
std::vector<std::string> ticketLines(int lines);

}  // namespace veridraw::bench
