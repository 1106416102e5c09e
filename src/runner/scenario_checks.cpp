// The checks of a scenario, and the print lines that show what they would read.
// Both go through one table of subjects: a subject reads its part of the
// program once, and its expect and print (where it has one) share that read.
#include <filesystem>
#include <optional>

#include "runner/scenario.h"
#include "runner/scenario_words.h"
#include "runner/values.h"

namespace veridraw::script {

namespace fs = std::filesystem;

namespace {

// The items of a list as `expect items` writes them: each quoted, after a blank.
std::string quotedItems(const std::vector<std::string>& items) {
  std::string text;
  for (const auto& item : items)
    (text += ' ') += quote(item);
  return text;
}

}  // namespace

const std::map<std::string, Scenario::Subject>& Scenario::subjects() {
  static const std::map<std::string, Subject> table = {
      {"form", {&Scenario::expectForm, &Scenario::printForm}},
      {"focus", {&Scenario::expectFocus, &Scenario::printFocus}},
      {"items", {&Scenario::expectItems, &Scenario::printItems}},
      {"file", {&Scenario::expectFile, &Scenario::printFile}},
      {"nofile", {&Scenario::expectNoFile, nullptr}},
      {"msgbox", {&Scenario::expectDialog, nullptr}},
      {"inputbox", {&Scenario::expectDialog, nullptr}},
      {"nodialog", {&Scenario::expectNoDialog, nullptr}},
      {"running", {&Scenario::expectState, nullptr}},
      {"ended", {&Scenario::expectState, nullptr}},
      {"fatal", {&Scenario::expectFatal, nullptr}},
  };
  return table;
}

void Scenario::expect(const Words& words) {
  if (words.size() < 2) throw ScenarioFailure("usage: expect WHAT ...");
  const std::string& what = words[1].text;
  if (words[1].quoted) throw ScenarioFailure("expect what? " + quote(what));
  const auto subject = subjects().find(what);
  if (subject == subjects().end()) return expectProperty(words);
  (this->*subject->second.expect)(words);
}

void Scenario::print(const Words& words) {
  if (words.size() < 2) throw ScenarioFailure("usage: print WHAT");
  const auto subject = subjects().find(words[1].text);
  if (subject == subjects().end() || subject->second.print == nullptr) {
    printProperty(words);
  } else {
    (this->*subject->second.print)(words);
  }
  out_.flush();
}

// The form on screen.

void Scenario::expectForm(const Words& words) {
  expectWords(words, 3, "expect form NAME");
  const Form& form = formOf(Target{});
  if (form.name() != words[2].text)
    throw ScenarioFailure("expected form " + words[2].text + ", found " + form.name());
}

void Scenario::printForm(const Words&) {
  const bool onScreen = program_ && program_->running() && program_->activeForm() != nullptr;
  out_ << "form " << (onScreen ? program_->activeForm()->name() : "none") << "\n";
}

// The control with the focus.

std::string Scenario::focusName() const {
  const Control* focused = program_ && program_->running() ? program_->focus() : nullptr;
  return focused == nullptr ? "none" : focused->displayName();
}

void Scenario::expectFocus(const Words& words) {
  expectWords(words, 3, "expect focus TARGET");
  Control& wanted = resolveOne(words[2].text);
  if (program_->focus() != &wanted)
    throw ScenarioFailure("expected the focus on " + wanted.displayName() + ", found it on " +
                          focusName());
}

void Scenario::printFocus(const Words&) {
  out_ << "focus " << focusName() << "\n";
}

// The items of a list box.

const std::vector<std::string>& Scenario::itemsOf(const Token& target) const {
  const Control& list = resolveOne(target.text);
  if (list.kind() != ControlKind::ListBox) throw ScenarioFailure(target.text + " isn't a list box");
  return list.items();
}

void Scenario::expectItems(const Words& words) {
  if (words.size() < 3) throw ScenarioFailure("usage: expect items TARGET \"A\" ...");
  const std::vector<std::string>& found = itemsOf(words[2]);
  std::vector<std::string> wanted;
  for (std::size_t i = 3; i < words.size(); ++i)
    wanted.push_back(words[i].text);
  if (wanted != found) {
    const std::string expectedText = quotedItems(wanted), foundText = quotedItems(found);
    throw ScenarioFailure("expected items" + (expectedText.empty() ? " (none)" : expectedText) +
                          ", found" + (foundText.empty() ? " (none)" : foundText));
  }
}

void Scenario::printItems(const Words& words) {
  expectWords(words, 3, "print items TARGET");
  out_ << "items " << words[2].text << quotedItems(itemsOf(words[2])) << "\n";
}

// A file of the working directory.

std::optional<std::string> Scenario::fileIfAny(const std::string& name) const {
  if (!fs::is_regular_file(pathOf(name))) return std::nullopt;
  return fileContent(name);
}

void Scenario::expectFile(const Words& words) {
  expectWords(words, 4, "expect file NAME \"CONTENT\"");
  const std::optional<std::string> found = fileIfAny(words[2].text);
  if (!found)
    throw ScenarioFailure("expected file " + quote(words[2].text) + ", found no such file");
  if (*found != words[3].text)
    throw ScenarioFailure("expected file " + quote(words[2].text) + " to hold " +
                          quote(words[3].text) + ", found " + quote(*found));
}

void Scenario::expectNoFile(const Words& words) {
  expectWords(words, 3, "expect nofile NAME");
  if (fs::exists(pathOf(words[2].text)))
    throw ScenarioFailure("expected no file " + quote(words[2].text) + ", found one holding " +
                          quote(fileContent(words[2].text)));
}

void Scenario::printFile(const Words& words) {
  expectWords(words, 3, "print file NAME");
  const std::string& name = words[2].text;
  const std::optional<std::string> found = fileIfAny(name);
  if (found) {
    out_ << "file " << nameText(name) << " " << quote(*found) << "\n";
  } else {
    out_ << "nofile " << nameText(name) << "\n";
  }
}

// The dialogs shown.

void Scenario::expectDialog(const Words& words) {
  const bool isMessage = words[1].text == "msgbox";
  if (isMessage) {
    expectWords(words, 5, "expect msgbox \"PROMPT\" BUTTONS \"TITLE\"");
  } else {
    expectWords(words, 7, "expect inputbox \"PROMPT\" \"TITLE\" \"DEFAULT\" X Y");
  }
  DialogShown wanted;
  if (isMessage) {
    wanted = MessageBoxShown{words[2].text, parseInteger(words[3], "BUTTONS"), words[4].text};
  } else {
    wanted = InputBoxShown{words[2].text, words[3].text, words[4].text, parseInteger(words[5], "X"),
                           parseInteger(words[6], "Y")};
  }
  DialogShown found;
  if (!dialogs_.takeUnchecked(found))
    throw ScenarioFailure("expected " + describe(wanted) + ", found no unchecked dialog");
  if (describe(found) != describe(wanted))
    throw ScenarioFailure("expected " + describe(wanted) + ", found " + describe(found));
}

void Scenario::expectNoDialog(const Words& words) {
  expectWords(words, 2, "expect nodialog");
  DialogShown dialog;
  if (dialogs_.takeUnchecked(dialog))
    throw ScenarioFailure("expected no unchecked dialog, found " + describe(dialog));
}

// How the program stands: running, ended, or ended by a fatal error.

void Scenario::expectState(const Words& words) {
  const std::string& what = words[1].text;
  expectWords(words, 2, "expect running, or expect ended");
  const auto wanted = what == "running" ? Application::State::Running : Application::State::Ended;
  if (!program_ || program_->state() != wanted)
    throw ScenarioFailure("expected the program " + what + ", found it " +
                          (program_ ? stateText(*program_) : "not started"));
}

void Scenario::expectFatal(const Words& words) {
  expectWords(words, 3, "expect fatal N");
  const int wanted = parseInteger(words[2], "expect fatal");
  if (!program_ || program_->state() != Application::State::Fatal ||
      program_->fatalError()->number() != wanted)
    throw ScenarioFailure("expected fatal error " + std::to_string(wanted) +
                          ", found the program " +
                          (program_ ? stateText(*program_) : "not started"));
}

// A property of one control or of each element of an array.

void Scenario::expectProperty(const Words& words) {
  expectWords(words, 3, "expect TARGET.PROPERTY VALUE");
  const std::string& text = words[1].text;
  const std::size_t dot = text.rfind('.');
  if (dot == std::string::npos || dot + 1 == text.size())
    throw ScenarioFailure("expect what? " + text);
  const std::string property = text.substr(dot + 1);
  const Value wanted = parseValue(words[2]);
  for (Control* control : resolve(parseTarget(text.substr(0, dot)))) {
    const std::optional<Value> found = readProperty(*control, property);
    if (!found) throw ScenarioFailure(control->displayName() + " has no property " + property);
    if (!sameValue(wanted, *found)) {
      const bool colour = isColourProperty(property);
      throw ScenarioFailure("expected " + control->displayName() + "." + property + " " +
                            formatValue(wanted, colour) + ", found " + formatValue(*found, colour));
    }
  }
}

std::string Scenario::describeProperty(const std::string& text) const {
  const std::size_t dot = text.rfind('.');
  if (dot == std::string::npos) throw ScenarioFailure("print what? " + text);
  const std::string property = text.substr(dot + 1);
  std::string lines;
  for (Control* control : resolve(parseTarget(text.substr(0, dot)))) {
    const std::optional<Value> found = readProperty(*control, property);
    if (!found) throw ScenarioFailure(control->displayName() + " has no property " + property);
    lines += control->displayName() + "." + property + " " +
             formatValue(*found, isColourProperty(property)) + "\n";
  }
  return lines;
}

void Scenario::printProperty(const Words& words) {
  expectWords(words, 2, "print TARGET.PROPERTY");
  out_ << describeProperty(words[1].text);
}

}  // namespace veridraw::script
