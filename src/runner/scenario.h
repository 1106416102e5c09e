// One scenario of the scenario language: a user session played against the
// real forms in a new, empty working directory of its own.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
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
  // The program of the last `start`, or null before it.
  const Application* program() const { return program_.get(); }

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

  // What `expect` and `print` look at: a subject of the table, or otherwise a
  // property of a target.
  struct Subject {
    void (Scenario::*expect)(const Words&);
    void (Scenario::*print)(const Words&);  // null: the subject has no print line
  };
  static const std::map<std::string, Subject>& subjects();
  void expectForm(const Words& words);
  void printForm(const Words& words);
  void expectFocus(const Words& words);
  void printFocus(const Words& words);
  void expectItems(const Words& words);
  void printItems(const Words& words);
  void expectFile(const Words& words);
  void expectNoFile(const Words& words);
  void printFile(const Words& words);
  void expectDialog(const Words& words);
  void expectNoDialog(const Words& words);
  void expectState(const Words& words);
  void expectFatal(const Words& words);
  void expectProperty(const Words& words);
  void printProperty(const Words& words);
  std::string describeProperty(const std::string& targetText) const;
  const std::vector<std::string>& itemsOf(const Token& target) const;
  std::optional<std::string> fileIfAny(const std::string& name) const;

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

// Plays the scenario read from `in`, line by line as it comes. `afterLine`,
// when given, looks at the scenario after each line that ran.
ScenarioResult runScenario(std::istream& in, std::ostream& out, bool verbose,
                           const std::function<void(const Scenario&)>& afterLine = {});

}  // namespace veridraw::script
