// One scenario of the scenario language: a user session played against the
// real forms in a new, empty working directory of its own.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "runner/scripted_dialogs.h"
#include "runner/tokens.h"
#include "screen/application.h"

namespace veridraw::script {

class Scenario {
 public:
  // `out` takes the answers of `print` lines and, when verbose, every dialog
  // and fatal error as it happens.
  Scenario(std::ostream& out, bool verbose);
  Scenario(const Scenario&) = delete;
  Scenario& operator=(const Scenario&) = delete;
  ~Scenario();

  // Runs line `number` of the scenario; a failing check or an unreadable line
  // throws ScenarioFailure.
  void runLine(std::string_view line, int number);
  // After the last line: a reply that no dialog took fails the scenario, since
  // the session didn't run as it was written.
  void finish() const;

  const std::filesystem::path& directory() const { return directory_; }

 private:
  using Words = std::vector<Token>;
  struct Target {
    std::string form;  // "" for the form on screen
    std::string name;
    bool indexed = false;
    int first = 0;
    int last = 0;
  };

  // Setting up the working directory.
  void writeFile(const Words& words);
  void deleteFile(const Words& words);
  void deliver(const Words& words);
  void start(const Words& words);
  // The user's actions.
  void click(const Words& words);
  void type(const Words& words);
  void key(const Words& words);
  void reply(const Words& words);
  void close(const Words& words);
  // Checks and exploring.
  void expect(const Words& words);
  void print(const Words& words);

  void expectProperty(const Words& words);
  void expectDialog(const Words& words);
  std::string describeProperty(const std::string& targetText) const;

  Application& runningProgram(const char* action) const;
  Form& formOf(const Target& target) const;
  std::vector<Control*> resolve(const Target& target) const;
  Control& resolveOne(const std::string& text) const;
  Control& userTarget(const std::string& text, const char* action) const;
  void afterAction();
  std::string focusName() const;
  std::string fileContent(const std::string& name) const;
  std::filesystem::path pathOf(const std::string& name) const;

  static Target parseTarget(std::string_view text);

  std::ostream& out_;
  bool verbose_;
  std::filesystem::path directory_;
  ScriptedDialogs dialogs_;
  std::unique_ptr<Application> program_;
  std::map<std::string, void (Scenario::*)(const Words&)> commands_;
  int line_ = 0;  // the number of the line being run
};

struct ScenarioResult {
  bool passed = true;
  int line = 0;
  std::string reason;
};

// Plays the scenario read from `in`, line by line as it comes.
ScenarioResult runScenario(std::istream& in, std::ostream& out, bool verbose);

}  // namespace veridraw::script
