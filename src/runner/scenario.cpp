#include "runner/scenario.h"

#include <cctype>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <optional>

#include "program/program.h"
#include "runner/delivered_files.h"
#include "runner/scenario_words.h"
#include "runner/values.h"
#include "screen/working_directory.h"

namespace veridraw::script {

namespace fs = std::filesystem;

namespace {

const std::map<std::string, Key>& keyNames() {
  static const std::map<std::string, Key> names = {
      {"Enter", Key::Enter},        {"Space", Key::Space},         {"Tab", Key::Tab},
      {"Shift+Tab", Key::ShiftTab}, {"Backspace", Key::Backspace}, {"Delete", Key::Delete},
      {"Left", Key::Left},          {"Right", Key::Right},         {"Up", Key::Up},
      {"Down", Key::Down},          {"Home", Key::Home},           {"End", Key::End},
      {"Escape", Key::Escape},
  };
  return names;
}

// A reason fits on the one line of its FAIL: line ends that it quotes from a
// scenario are written as their escapes.
std::string oneLine(const std::string& reason) {
  std::string result;
  for (const char c : reason) {
    if (c == '\r') {
      result += "\\r";
    } else if (c == '\n') {
      result += "\\n";
    } else {
      result += c;
    }
  }
  return result;
}

}  // namespace

Scenario::Scenario(std::ostream& out, bool verbose)
    : out_(out), verbose_(verbose), directory_(makeWorkingDirectory("veridraw-scenario")) {
  commands_ = {
      {"file", &Scenario::writeFile},  {"delete", &Scenario::deleteFile},
      {"deliver", &Scenario::deliver}, {"start", &Scenario::start},
      {"click", &Scenario::click},     {"type", &Scenario::type},
      {"key", &Scenario::key},         {"reply", &Scenario::reply},
      {"close", &Scenario::close},     {"expect", &Scenario::expect},
      {"print", &Scenario::print},
  };
  if (verbose_) {
    dialogs_.onShown([this](const DialogShown& dialog, const Reply& reply) {
      out_ << "  dialog: " << describe(dialog) << " -> "
           << (std::holds_alternative<int>(reply) ? std::to_string(std::get<int>(reply))
                                                  : quote(std::get<std::string>(reply)))
           << "\n";
    });
  }
}

Scenario::~Scenario() {
  program_.reset();
  std::error_code ignored;
  fs::remove_all(directory_, ignored);
}

void Scenario::runLine(std::string_view line, int number) {
  line_ = number;
  // A blank line or a comment, whose words are not read at all.
  const std::size_t first = line.find_first_not_of(" \t\r");
  if (first == std::string_view::npos || line[first] == '#') return;
  const std::vector<Token> words = tokenize(line);
  const auto command = commands_.find(words[0].quoted ? "" : words[0].text);
  if (command == commands_.end()) throw ScenarioFailure("unknown command: " + words[0].text);
  (this->*command->second)(words);
}

fs::path Scenario::pathOf(const std::string& name) const {
  if (name.empty() || name.find('/') != std::string::npos || name == "." || name == "..")
    throw ScenarioFailure("not a file name of the working directory: " + quote(name));
  return directory_ / name;
}

std::string Scenario::fileContent(const std::string& name) const {
  std::ifstream in(pathOf(name), std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void Scenario::writeFile(const Words& words) {
  expectWords(words, 3, "file NAME \"CONTENT\"");
  if (!words[2].quoted) throw ScenarioFailure("the content of a file is a quoted string");
  std::ofstream out(pathOf(words[1].text), std::ios::binary | std::ios::trunc);
  out << words[2].text;
  if (!out) throw ScenarioFailure("can't write the file " + quote(words[1].text));
}

void Scenario::deleteFile(const Words& words) {
  expectWords(words, 2, "delete NAME");
  std::error_code ignored;
  fs::remove(pathOf(words[1].text), ignored);
}

void Scenario::deliver(const Words& words) {
  expectWords(words, 1, "deliver");
  // As the run command does, the delivered files never replace a file that is
  // already there: a draw the user has entered is kept.
  for (const DeliveredFile& file : deliveredFiles()) {
    if (fs::exists(pathOf(file.name))) continue;
    std::ofstream out(pathOf(file.name), std::ios::binary | std::ios::trunc);
    out << file.content;
    if (!out) throw ScenarioFailure("can't write the file " + quote(file.name));
  }
}

void Scenario::start(const Words& words) {
  expectWords(words, 1, "start");
  // A launch after the program has ended starts a new run, with its forms and
  // their variables made anew; a second launch beside a running one can't be.
  if (program_ && program_->running()) throw ScenarioFailure("the program is already running");
  program_.reset();
  program_ = std::make_unique<Application>(dialogs_, directory_);
  addVeridrawForms(*program_);
  program_->start(kFirstForm);
  afterAction();
}

Application& Scenario::runningProgram(const char* action) const {
  if (!program_)
    throw ScenarioFailure(std::string("can't ") + action + ": the program hasn't started");
  if (!program_->running())
    throw ScenarioFailure(std::string("can't ") + action + ": the program has " +
                          stateText(*program_));
  return *program_;
}

void Scenario::afterAction() {
  if (verbose_ && program_ && program_->state() == Application::State::Fatal) {
    const FatalError& error = *program_->fatalError();
    out_ << "  fatal: Run-time error '" << error.number() << "': " << error.text() << "\n";
  }
}

Scenario::Target Scenario::parseTarget(std::string_view text) {
  Target target;
  const std::size_t paren = text.find('(');
  const std::string_view head = text.substr(0, paren);
  const std::size_t dot = head.find('.');
  if (dot != std::string_view::npos) {
    target.form = std::string(head.substr(0, dot));
    target.name = std::string(head.substr(dot + 1));
  } else {
    target.name = std::string(head);
  }
  if (target.name.empty() || (dot != std::string_view::npos && target.form.empty()))
    throw ScenarioFailure("no control named in " + std::string(text));
  if (paren == std::string_view::npos) return target;
  if (text.back() != ')') throw ScenarioFailure("bad target: " + std::string(text));
  const std::string_view inside = text.substr(paren + 1, text.size() - paren - 2);
  const std::size_t range = inside.find("..");
  target.indexed = true;
  target.first = parseIndex(inside.substr(0, range));
  target.last =
      range == std::string_view::npos ? target.first : parseIndex(inside.substr(range + 2));
  if (target.last < target.first) throw ScenarioFailure("empty range in " + std::string(text));
  return target;
}

Form& Scenario::formOf(const Target& target) const {
  if (!program_) throw ScenarioFailure("the program hasn't started");
  if (!program_->running())
    throw ScenarioFailure("no form is on screen: the program has " + stateText(*program_));
  if (target.form.empty()) {
    if (program_->activeForm() == nullptr) throw ScenarioFailure("no form is on screen");
    return *program_->activeForm();
  }
  Form* form = program_->findForm(target.form);
  if (form == nullptr) throw ScenarioFailure("no form named " + target.form);
  if (!form->loaded()) throw ScenarioFailure(target.form + " isn't loaded");
  return *form;
}

std::vector<Control*> Scenario::resolve(const Target& target) const {
  Form& form = formOf(target);
  std::vector<Control*> controls;
  if (!target.indexed) {
    Control* control = form.find(target.name);
    if (control == nullptr) {
      throw ScenarioFailure(form.hasControlNamed(target.name)
                                ? target.name + " is a control array: name an element"
                                : form.name() + " has no control " + target.name);
    }
    controls.push_back(control);
    return controls;
  }
  for (int index = target.first; index <= target.last; ++index) {
    Control* control = form.find(target.name, index);
    if (control == nullptr)
      throw ScenarioFailure(form.name() + " has no control " + target.name + "(" +
                            std::to_string(index) + ")");
    controls.push_back(control);
  }
  return controls;
}

Control& Scenario::resolveOne(const std::string& text) const {
  const Target target = parseTarget(text);
  if (target.indexed && target.first != target.last)
    throw ScenarioFailure("name one control, not a range: " + text +
                          " (a range serves only expect TARGET.PROPERTY)");
  return *resolve(target).front();
}

Control& Scenario::userTarget(const std::string& text, const char* action) const {
  runningProgram(action);
  Control& control = resolveOne(text);
  if (&control.form() != program_->activeForm())
    throw ScenarioFailure(std::string("can't ") + action + " " + text +
                          ": its form isn't on screen");
  if (!control.visible())
    throw ScenarioFailure(std::string("can't ") + action + " " + text + ": it is hidden");
  return control;
}

void Scenario::click(const Words& words) {
  if (words.size() != 2 && words.size() != 3)
    throw ScenarioFailure("usage: click TARGET or click TARGET \"ITEM\"");
  Control& control = userTarget(words[1].text, "click");
  if (words.size() == 2) {
    program_->click(control);
  } else {
    if (control.kind() != ControlKind::ListBox)
      throw ScenarioFailure(words[1].text + " isn't a list box");
    const auto& items = control.items();
    int found = -1;
    for (std::size_t i = 0; i < items.size() && found < 0; ++i)
      if (items[i] == words[2].text) found = static_cast<int>(i);
    if (found < 0) throw ScenarioFailure(words[1].text + " holds no item " + quote(words[2].text));
    program_->selectItem(control, found);
  }
  afterAction();
}

void Scenario::type(const Words& words) {
  expectWords(words, 2, "type \"TEXT\"");
  runningProgram("type");
  for (const char c : words[1].text) {
    if (!program_->running()) break;  // the rest of the keys go to no program
    if (program_->focus() == nullptr) throw ScenarioFailure("can't type: no control has the focus");
    program_->typeCharacter(c);
    afterAction();
  }
}

void Scenario::key(const Words& words) {
  expectWords(words, 2, "key NAME");
  const std::string& name = words[1].text;
  runningProgram("press a key");
  if (name.size() == 5 && name.rfind("Alt+", 0) == 0 &&
      std::isalpha(static_cast<unsigned char>(name[4]))) {
    program_->pressAccessKey(name[4]);
    afterAction();
    return;
  }
  const auto known = keyNames().find(name);
  if (known == keyNames().end()) throw ScenarioFailure("unknown key: " + name);
  if (program_->focus() == nullptr)
    throw ScenarioFailure("can't press " + name + ": no control has the focus");
  program_->pressKey(known->second);
  afterAction();
}

void Scenario::reply(const Words& words) {
  expectWords(words, 2, "reply N or reply \"TEXT\"");
  if (words[1].quoted) {
    dialogs_.queue(words[1].text, quote(words[1].text), line_);
    return;
  }
  dialogs_.queue(parseInteger(words[1], "reply"), words[1].text, line_);
}

void Scenario::finish() const {
  if (const QueuedReply* unused = dialogs_.oldestUnused())
    throw ScenarioFailure("reply " + unused->written + " queued at line " +
                          std::to_string(unused->line) + " was never taken by a dialog");
}

void Scenario::close(const Words& words) {
  expectWords(words, 1, "close");
  runningProgram("close the window");
  program_->closeWindow();
  afterAction();
}

namespace {

// Runs one step of a scenario; what made it fail, at line `number`, if it did.
template <class Step>
std::optional<ScenarioResult> failureOf(Step&& step, int number) {
  try {
    step();
  } catch (const ScenarioFailure& failure) {
    return ScenarioResult{false, number, oneLine(failure.what())};
  } catch (const std::exception& error) {
    return ScenarioResult{false, number,
                          oneLine(std::string("internal error of the program: ") + error.what())};
  }
  return std::nullopt;
}

}  // namespace

ScenarioResult runScenario(std::istream& in, std::ostream& out, bool verbose,
                           const std::function<void(const Scenario&)>& afterLine) {
  Scenario scenario(out, verbose);
  std::string line;
  int number = 0;
  while (std::getline(in, line)) {
    ++number;
    // A byte order mark, as some editors put at the start of a text file.
    if (number == 1 && line.rfind("\xEF\xBB\xBF", 0) == 0) line.erase(0, 3);
    if (const auto failed = failureOf(
            [&] {
              scenario.runLine(line, number);
              if (afterLine) afterLine(scenario);
            },
            number))
      return *failed;
  }
  if (const auto failed = failureOf([&] { scenario.finish(); }, number)) return *failed;
  return {};
}

}  // namespace veridraw::script
