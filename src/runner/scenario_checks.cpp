// The checks of a scenario, and the print lines that show what they would read.
#include <filesystem>

#include "runner/scenario.h"
#include "runner/scenario_words.h"
#include "runner/values.h"

namespace veridraw::script {

namespace fs = std::filesystem;

std::string Scenario::focusName() const {
  const Control* focused = program_ && program_->running() ? program_->focus() : nullptr;
  return focused == nullptr ? "none" : focused->displayName();
}

void Scenario::expect(const Words& words) {
  if (words.size() < 2) throw ScenarioFailure("usage: expect WHAT ...");
  const std::string& what = words[1].text;
  if (words[1].quoted) throw ScenarioFailure("expect what? " + quote(what));
  if (what == "form") {
    expectWords(words, 3, "expect form NAME");
    const Form& form = formOf(Target{});
    if (form.name() != words[2].text)
      throw ScenarioFailure("expected form " + words[2].text + ", found " + form.name());
  } else if (what == "focus") {
    expectWords(words, 3, "expect focus TARGET");
    Control& wanted = resolveOne(words[2].text);
    if (program_->focus() != &wanted)
      throw ScenarioFailure("expected the focus on " + wanted.displayName() + ", found it on " +
                            focusName());
  } else if (what == "items") {
    if (words.size() < 3) throw ScenarioFailure("usage: expect items TARGET \"A\" ...");
    Control& list = resolveOne(words[2].text);
    if (list.kind() != ControlKind::ListBox)
      throw ScenarioFailure(words[2].text + " isn't a list box");
    std::vector<std::string> wanted;
    for (std::size_t i = 3; i < words.size(); ++i)
      wanted.push_back(words[i].text);
    if (wanted != list.items()) {
      std::string expected, found;
      for (const auto& item : wanted)
        (expected += ' ') += quote(item);
      for (const auto& item : list.items())
        (found += ' ') += quote(item);
      throw ScenarioFailure("expected items" + (expected.empty() ? " (none)" : expected) +
                            ", found" + (found.empty() ? " (none)" : found));
    }
  } else if (what == "msgbox" || what == "inputbox") {
    expectDialog(words);
  } else if (what == "nodialog") {
    expectWords(words, 2, "expect nodialog");
    DialogShown dialog;
    if (dialogs_.takeUnchecked(dialog))
      throw ScenarioFailure("expected no unchecked dialog, found " + describe(dialog));
  } else if (what == "file") {
    expectWords(words, 4, "expect file NAME \"CONTENT\"");
    if (!fs::is_regular_file(pathOf(words[2].text)))
      throw ScenarioFailure("expected file " + quote(words[2].text) + ", found no such file");
    const std::string found = fileContent(words[2].text);
    if (found != words[3].text)
      throw ScenarioFailure("expected file " + quote(words[2].text) + " to hold " +
                            quote(words[3].text) + ", found " + quote(found));
  } else if (what == "nofile") {
    expectWords(words, 3, "expect nofile NAME");
    if (fs::exists(pathOf(words[2].text)))
      throw ScenarioFailure("expected no file " + quote(words[2].text) + ", found one holding " +
                            quote(fileContent(words[2].text)));
  } else if (what == "running" || what == "ended") {
    expectWords(words, 2, "expect running, or expect ended");
    const auto wanted = what == "running" ? Application::State::Running : Application::State::Ended;
    if (!program_ || program_->state() != wanted)
      throw ScenarioFailure("expected the program " + what + ", found it " +
                            (program_ ? stateText(*program_) : "not started"));
  } else if (what == "fatal") {
    expectWords(words, 3, "expect fatal N");
    const int wanted = parseInteger(words[2], "expect fatal");
    if (!program_ || program_->state() != Application::State::Fatal ||
        program_->fatalError()->number() != wanted)
      throw ScenarioFailure("expected fatal error " + std::to_string(wanted) +
                            ", found the program " +
                            (program_ ? stateText(*program_) : "not started"));
  } else {
    expectProperty(words);
  }
}

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

void Scenario::print(const Words& words) {
  if (words.size() < 2) throw ScenarioFailure("usage: print WHAT");
  const std::string& what = words[1].text;
  if (what == "focus") {
    out_ << "focus " << focusName() << "\n";
  } else if (what == "form") {
    const bool onScreen = program_ && program_->running() && program_->activeForm() != nullptr;
    out_ << "form " << (onScreen ? program_->activeForm()->name() : "none") << "\n";
  } else if (what == "items") {
    expectWords(words, 3, "print items TARGET");
    Control& list = resolveOne(words[2].text);
    if (list.kind() != ControlKind::ListBox)
      throw ScenarioFailure(words[2].text + " isn't a list box");
    out_ << "items " << words[2].text;
    for (const auto& item : list.items())
      out_ << " " << quote(item);
    out_ << "\n";
  } else if (what == "file") {
    expectWords(words, 3, "print file NAME");
    const std::string& name = words[2].text;
    if (fs::is_regular_file(pathOf(name))) {
      out_ << "file " << nameText(name) << " " << quote(fileContent(name)) << "\n";
    } else {
      out_ << "nofile " << nameText(name) << "\n";
    }
  } else {
    expectWords(words, 2, "print TARGET.PROPERTY");
    out_ << describeProperty(what);
  }
  out_.flush();
}

}  // namespace veridraw::script
