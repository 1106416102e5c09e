#include "random/session.h"

#include <algorithm>
#include <deque>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <sstream>
#include <utility>
#include <vector>

#include "program/program.h"
#include "runner/delivered_files.h"
#include "runner/scenario_words.h"
#include "runner/tokens.h"
#include "screen/application.h"
#include "screen/strings.h"
#include "store/draw_store.h"
#include "store/ticket_store.h"
#include "support/driver.h"

namespace veridraw::random_sessions {

namespace fs = std::filesystem;
using script::nameText;
using script::quote;

namespace {

// The errors that a damaged file or an odd answer may lead to.
const std::set<int> kFileAndNameErrors = {13, 52, 53, 62, 70, 75, 76};
// The Strike and PowerBall screens convert the pairs of the draw they show
// strictly. A pair that isn't a number gets into a draw file in ways that the
// program keeps: an early Yes stores blanks, a digit and a letter pass as the
// digit.
const std::set<int> kStoredPairErrors = {13};

constexpr int kRunsPerSession = 6;

const std::vector<std::pair<const char*, Key>> kKeys = {
    {"Enter", Key::Enter},         {"Space", Key::Space},   {"Tab", Key::Tab},
    {"Backspace", Key::Backspace}, {"Delete", Key::Delete}, {"Left", Key::Left},
    {"Right", Key::Right},         {"Home", Key::Home},     {"End", Key::End},
    {"Escape", Key::Escape},
};

// Answers that Val takes for a number from 1 to 1768 but that aren't plain
// digits, or that aren't numbers at all, or that no platform takes as a name.
const std::vector<std::string> kOddAnswers = {
    "0",   "1769",  "-5",       "abc", "0705",      "7a",   "1.5",  " 12",
    "12 ", "1,5",   "\"7\"",    "7/x", "1/../../x", "3\\x", "12?",  "5\t",
    "5\r", "9\xE9", "\xC4\xD6", "1e3", "&H10",      "1/..", "1//1", "4 <x>",
};

std::string stateCheck(const Application& program) {
  switch (program.state()) {
    case Application::State::Running:
      return "expect running";
    case Application::State::Ended:
      return "expect ended";
    default:
      return "expect fatal " + std::to_string(program.fatalError()->number());
  }
}

const std::vector<int> kOddButtons = {0, 2, 3, 5, 99, -1};

bool isExitButton(const Control& control) {
  return control.name() == "CmdEnd" || control.name() == "CmdForm1Exit";
}

bool leavesScreen(const Control& control) {
  return control.name() == "BtnRestart" || control.name() == "CmdReadme";
}

std::string readWhole(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void writeWhole(const fs::path& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << bytes;
}

std::map<std::string, std::string> snapshot(const fs::path& directory) {
  std::map<std::string, std::string> files;
  for (const auto& entry : fs::directory_iterator(directory))
    if (entry.is_regular_file()) files[entry.path().filename().string()] = readWhole(entry.path());
  return files;
}

bool startsWith(const std::string& text, const std::string& head) {
  return text.rfind(head, 0) == 0;
}

// The lines of a file, each ended by CR LF; false if the last isn't.
bool splitLines(const std::string& content, std::vector<std::string>& lines) {
  std::size_t from = 0;
  while (from < content.size()) {
    const std::size_t end = content.find("\r\n", from);
    if (end == std::string::npos) return false;
    lines.push_back(content.substr(from, end - from));
    from = end + 2;
  }
  return !lines.empty();
}

// True when a draw file holds a line whose pairs the strict conversion of the
// Strike or PowerBall screen refuses.
bool storedPairRefused(const std::map<std::string, std::string>& files) {
  const auto refused = [](const std::string& line, int pairs) {
    for (int pair = 1; pair <= pairs; ++pair) {
      try {
        StrictNumber(Mid(line, 2 * pair, 2));
      } catch (const FatalError&) {
        return true;
      }
    }
    return false;
  };
  for (const auto& [name, content] : files) {
    std::vector<std::string> lines;
    if (!splitLines(content, lines) || lines.size() != 3) continue;
    if (startsWith(lines[1], "X") && refused(lines[1], 8)) return true;
    if (startsWith(lines[2], "Z") && refused(lines[2], 4)) return true;
  }
  return false;
}

// A user's answers to the boxes, chosen at random as the boxes come, and
// written down as the `reply` lines of the scenario.
class SessionDialogs : public Dialogs {
 public:
  SessionDialogs(std::mt19937_64& random, bool tidy) : random_(random), tidy_(tidy) {}

  std::vector<std::string> replies;  // the reply lines of the current event
  bool oddAnswerGiven = false;
  std::set<std::string> numbersOnDisk;

  int MsgBox(const std::string&, int buttons, const std::string&) override {
    int answer = msgbox::kOk;
    if ((buttons & msgbox::kYesNo) != 0) answer = below(2) == 0 ? msgbox::kYes : msgbox::kNo;
    if (!tidy_ && below(10) == 0) {
      // A number that no button of the box gives.
      answer = kOddButtons[below(static_cast<unsigned>(kOddButtons.size()))];
      oddAnswerGiven = true;
    }
    replies.push_back("reply " + std::to_string(answer));
    return answer;
  }

  std::string InputBox(const std::string&, const std::string&, const std::string&, int,
                       int) override {
    std::string answer;
    const unsigned pick = below(100);
    if (pick < 20) {
      answer = "";
    } else if (!tidy_ && pick < 40) {
      answer = oddAnswer();
      oddAnswerGiven = true;
    } else if (pick < 55 && !numbersOnDisk.empty()) {
      auto it = numbersOnDisk.begin();
      std::advance(it, below(static_cast<unsigned>(numbersOnDisk.size())));
      answer = *it;
    } else if (pick < 80) {
      answer = std::to_string(1 + below(100));
    } else {
      answer = std::to_string(1 + below(store::kHighestNumber));
    }
    replies.push_back("reply " + quote(answer));
    return answer;
  }

 private:
  unsigned below(unsigned n) { return static_cast<unsigned>(random_() % n); }

  std::string oddAnswer() {
    if (below(8) == 0) return "1" + std::string(299, 'a');  // longer than any name may be
    return kOddAnswers[below(static_cast<unsigned>(kOddAnswers.size()))];
  }

  std::mt19937_64& random_;
  bool tidy_;
};

class Session {
 public:
  Session(std::uint64_t seed, const SessionOptions& options, fs::path directory)
      : options_(options),
        directory_(std::move(directory)),
        random_(seed),
        dialogs_(random_, options.tidy) {
    emit(std::string("# A random ") + (options.tidy ? "tidy" : "untidy") + " session, seed " +
         std::to_string(seed));
  }

  SessionResult play();

 private:
  // One user action: its scenario line, and whether it may end the program.
  struct Action {
    std::string line;
    bool mayEnd = false;
    std::function<void(Action&)> run;
  };

  unsigned below(unsigned n) { return static_cast<unsigned>(random_() % n); }
  void emit(const std::string& line);
  void setUp();
  void startProgram();
  bool damageAFile();
  Action chooseAction();
  Action typing();
  Action pressing();
  Action clicking(const std::vector<Control*>& buttons);
  Action picking(const std::vector<Control*>& lists);
  Action accessKey(const std::vector<Control*>& buttons);
  void markEnding(Action& action, const Control* target, bool keyOnFocus);
  void runEvent(Action& action);
  bool check(const Action& action);
  void fail(const std::string& reason, const std::string& closingLine);
  void noteNumbersOnDisk();

  SessionOptions options_;
  fs::path directory_;
  std::mt19937_64 random_;
  SessionDialogs dialogs_;
  std::unique_ptr<Application> program_;
  SessionResult result_;
  std::ostringstream scenario_;
  std::map<std::string, std::string> files_;  // as the last event left them
  std::set<std::string> damaged_;             // cut short or deleted, not rewritten since
  // Set by the first damaged file: what the program read from it may end a
  // later run, also once the file is whole again.
  bool filesDamaged_ = false;
};

void Session::emit(const std::string& line) {
  scenario_ << line << "\n";
  if (options_.live != nullptr) *options_.live << line << "\n" << std::flush;
}

void Session::setUp() {
  emit("deliver");
  for (const DeliveredFile& file : deliveredFiles())
    writeWhole(directory_ / file.name, file.content);
  // Some older draws and a saved ticket, written as the program writes them.
  const std::vector<std::pair<std::string, std::string>> extras = {
      {"12", "12\r\nX0102030405060708\r\n\r\n"},
      {"300", "300\r\nX0509111320360104\r\nZ01020304\r\n"},
      {"720", "720\r\n\r\nZ40302010\r\n"},
      {"1600", "1600\r\nX0708091011121314\r\nZ05060708\r\n"},
      {"Lotto # 3", " 4 \r\nLotto # 3\r\n 010203040506070809101112131415161718192021222324\r\n"},
      {"Strike # 2", " 1 \r\nStrike # 2\r\n 01020304\r\n"},
      {"P-Ball # 5",
       " 4 \r\nP-Ball # 5\r\n 010203040506070809101112131415161718192021222324\r\n01020304\r\n"},
  };
  for (const auto& [name, content] : extras) {
    if (below(3) != 0) continue;
    writeWhole(directory_ / name, content);
    emit("file " + nameText(name) + " " + quote(content));
  }
  files_ = snapshot(directory_);
  noteNumbersOnDisk();
}

void Session::noteNumbersOnDisk() {
  dialogs_.numbersOnDisk.clear();
  for (const auto& [name, content] : files_)
    if (!name.empty() && std::all_of(name.begin(), name.end(), ::isdigit))
      dialogs_.numbersOnDisk.insert(name);
}

void Session::startProgram() {
  program_ = testing::makeProgram(dialogs_, directory_);
  Action launch{"start", false, [this](Action&) { program_->start(kFirstForm); }};
  runEvent(launch);
}

bool Session::damageAFile() {
  std::vector<std::string> names;
  for (const auto& [name, content] : files_)
    names.push_back(name);
  if (names.empty()) return false;
  const std::string& name = names[below(static_cast<unsigned>(names.size()))];
  const std::string& content = files_[name];
  if (below(2) == 0 || content.empty()) {
    fs::remove(directory_ / name);
    emit("delete " + nameText(name));
  } else {
    const std::string shorter = content.substr(0, below(static_cast<unsigned>(content.size())));
    writeWhole(directory_ / name, shorter);
    emit("file " + nameText(name) + " " + quote(shorter));
  }
  damaged_.insert(name);
  filesDamaged_ = true;
  files_ = snapshot(directory_);
  noteNumbersOnDisk();
  return true;
}

Session::Action Session::chooseAction() {
  Form& form = *program_->activeForm();
  std::vector<Control*> buttons;
  std::vector<Control*> lists;
  for (const auto& control : form.controls()) {
    if (!control->visible() || !control->enabled()) continue;
    if (control->kind() == ControlKind::CommandButton) buttons.push_back(control.get());
    if (control->kind() == ControlKind::ListBox && control->listCount() > 0)
      lists.push_back(control.get());
  }
  Control* focused = program_->focus();
  // Keys typed into a list box pick the next item that begins with them.
  const bool typingPossible = focused != nullptr && (focused->kind() == ControlKind::TextBox ||
                                                     focused->kind() == ControlKind::ListBox);
  if (below(1000) == 0) {
    Action close{"close", true, [this](Action&) { program_->closeWindow(); }};
    return close;
  }
  for (;;) {
    const unsigned pick = below(1000);
    if (pick < 750) {
      if (typingPossible) return typing();
    } else if (pick < 800) {
      if (focused != nullptr) return pressing();
    } else if (pick < 900) {
      if (!buttons.empty()) return clicking(buttons);
    } else if (pick < 935) {
      if (!lists.empty()) return picking(lists);
    } else if (!buttons.empty()) {
      return accessKey(buttons);
    }
  }
}

// A burst of keystrokes: mostly numbers of two digits from 01 to 40, as a
// user enters them, sometimes the space bar, a stray digit, a letter or a byte
// above 0x7F.
Session::Action Session::typing() {
  std::string keys;
  const unsigned count = 1 + below(4);
  for (unsigned i = 0; i < count; ++i) {
    const unsigned pick = below(100);
    if (pick < 75) {
      const unsigned number = 1 + below(40);
      keys += static_cast<char>('0' + number / 10);
      keys += static_cast<char>('0' + number % 10);
    } else if (pick < 85) {
      keys += static_cast<char>('0' + below(10));
    } else if (pick < 93) {
      keys += ' ';
    } else if (pick < 97) {
      keys += static_cast<char>('a' + below(26));
    } else {
      keys += static_cast<char>(0x80 + below(0x80));
    }
  }
  Action action{"type " + quote(keys), false, {}};
  Control* focused = program_->focus();
  if (keys.find(' ') != std::string::npos) markEnding(action, focused, true);
  action.run = [this, keys](Action& self) {
    // The keys stop when the program ends; a user can't type with nothing
    // focused, so the line holds only the keys that went somewhere.
    std::size_t typed = 0;
    for (; typed < keys.size() && program_->running() && program_->focus() != nullptr; ++typed)
      program_->typeCharacter(keys[typed]);
    self.line = "type " + quote(keys.substr(0, typed));
  };
  return action;
}

Session::Action Session::pressing() {
  const auto& [name, key] = kKeys[below(static_cast<unsigned>(kKeys.size()))];
  Action action{std::string("key ") + name, false, {}};
  if (key == Key::Enter || key == Key::Space) markEnding(action, program_->focus(), true);
  const Key pressed = key;
  action.run = [this, pressed](Action&) { program_->pressKey(pressed); };
  return action;
}

Session::Action Session::clicking(const std::vector<Control*>& buttons) {
  // The buttons that end the run or leave the screen are pressed less often,
  // so that the runs get long and the entries get done.
  Control* target = nullptr;
  for (;;) {
    target = buttons[below(static_cast<unsigned>(buttons.size()))];
    if (isExitButton(*target) ? below(30) == 0 : !leavesScreen(*target) || below(3) == 0) break;
  }
  Action action{"click " + target->displayName(), false, {}};
  markEnding(action, target, false);
  action.run = [this, target](Action&) { program_->click(*target); };
  return action;
}

Session::Action Session::picking(const std::vector<Control*>& lists) {
  Control* list = lists[below(static_cast<unsigned>(lists.size()))];
  const auto& items = list->items();
  const std::string item = items[below(static_cast<unsigned>(items.size()))];
  // The first item of that text, as a scenario's click finds it.
  const int index = static_cast<int>(std::find(items.begin(), items.end(), item) - items.begin());
  Action action{"click " + list->displayName() + " " + quote(item), false, {}};
  action.run = [this, list, index](Action&) { program_->selectItem(*list, index); };
  return action;
}

Session::Action Session::accessKey(const std::vector<Control*>& buttons) {
  char letter = 0;
  for (;;) {
    letter = static_cast<char>('A' + below(26));
    const Control* button = buttons[below(static_cast<unsigned>(buttons.size()))];
    if (below(4) != 0 && button->accessKey() != 0) letter = button->accessKey();
    const bool exits = std::any_of(buttons.begin(), buttons.end(), [letter](const Control* b) {
      return isExitButton(*b) && b->accessKey() == letter;
    });
    if (!exits || below(30) == 0) break;
  }
  Action action{std::string("key Alt+") + letter, false, {}};
  for (const Control* candidate : buttons)
    if (candidate->accessKey() == letter) markEnding(action, candidate, false);
  action.run = [this, letter](Action&) { program_->pressAccessKey(letter); };
  return action;
}

// Notes whether pressing the control may end the program.
void Session::markEnding(Action& action, const Control* target, bool keyOnFocus) {
  if (target == nullptr) return;
  if (keyOnFocus && target->kind() != ControlKind::CommandButton) return;
  if (isExitButton(*target)) action.mayEnd = true;
}

void Session::runEvent(Action& action) {
  dialogs_.replies.clear();
  action.run(action);
  for (const std::string& reply : dialogs_.replies)
    emit(reply);
  emit(action.line);
}

void Session::fail(const std::string& reason, const std::string& closingLine) {
  result_.passed = false;
  result_.failure = reason;
  emit("# The session failed here: " + reason);
  emit(closingLine);
}

// What must hold after every event; false when something didn't.
bool Session::check(const Action& action) {
  const Application& program = *program_;
  switch (program.state()) {
    case Application::State::NotStarted:
      fail("the program didn't start", "expect running");
      return false;
    case Application::State::Running:
      if (program.activeForm() == nullptr) {
        fail("the program runs without a screen", "print form");
        return false;
      }
      break;
    case Application::State::Ended:
      if (!action.mayEnd) {
        fail("the program ended, though nothing asked it to", "expect running");
        return false;
      }
      break;
    case Application::State::Fatal: {
      const int number = program.fatalError()->number();
      result_.fatalNumber = number;
      const bool tainted = filesDamaged_ || dialogs_.oddAnswerGiven;
      const bool foreseen = (tainted && kFileAndNameErrors.count(number) > 0) ||
                            (storedPairRefused(files_) && kStoredPairErrors.count(number) > 0);
      if (!foreseen) {
        fail("fatal error " + std::to_string(number) + " isn't foreseen here", "expect running");
        return false;
      }
      break;
    }
  }
  const std::map<std::string, std::string> now = snapshot(directory_);
  for (const auto& [name, content] : now) {
    const auto before = files_.find(name);
    if (before != files_.end() && before->second == content && damaged_.count(name) > 0) continue;
    damaged_.erase(name);  // rewritten by the program: it must be whole again
    const std::string problem = wholenessProblem(name, content);
    if (!problem.empty()) {
      fail("the file " + quote(name) + " " + problem, "print file " + nameText(name));
      return false;
    }
  }
  files_ = now;
  noteNumbersOnDisk();
  return true;
}

SessionResult Session::play() {
  setUp();
  startProgram();
  if (!check({"start", false, {}})) return result_;
  int runs = 1;
  while (result_.events < options_.events) {
    if (!program_->running()) {
      // A few more runs in the same folder, to see what the files left
      // behind do to the next start.
      if (runs++ == kRunsPerSession) break;
      startProgram();
      ++result_.events;
      if (!check({"start", false, {}})) break;
      continue;
    }
    if (!options_.tidy && below(100) < 3) damageAFile();
    Action action = chooseAction();
    runEvent(action);
    ++result_.events;
    if (!check(action)) break;
  }
  if (result_.passed) {
    emit("# How the session ended, and every file it left.");
    emit(stateCheck(*program_));
    for (const auto& [name, content] : files_)
      emit("expect file " + nameText(name) + " " + quote(content));
  }
  result_.scenario = scenario_.str();
  return result_;
}

}  // namespace

std::string wholenessProblem(const std::string& name, const std::string& content) {
  std::vector<std::string> lines;
  if (!splitLines(content, lines)) return "doesn't end with a whole line";
  std::size_t wanted = 3;
  if (name == store::kCurrentDrawFile || name == store::kTicketNumberFile) {
    wanted = 1;
  } else if (startsWith(name, store::kPowerBallPrefix)) {
    wanted = 4;
  }
  if (lines.size() != wanted)
    return "has " + std::to_string(lines.size()) + " lines, not " + std::to_string(wanted);
  if (wanted == 1) return "";
  const bool ticket = startsWith(name, store::kLottoPrefix) ||
                      startsWith(name, store::kStrikePrefix) ||
                      startsWith(name, store::kPowerBallPrefix);
  if (ticket) {
    const std::string& count = lines[0];
    const bool printed = count.size() >= 3 && (count[0] == ' ' || count[0] == '-') &&
                         count.back() == ' ' &&
                         std::all_of(count.begin() + 1, count.end() - 1, ::isdigit);
    if (!printed) return "doesn't begin with a count of lines";
    if (lines[1] != name) return "doesn't name itself";
    if (!startsWith(lines[2], " ")) return "has no blank before its pairs";
    return "";
  }
  if (lines[0] != name) return "doesn't name its draw";
  if (!lines[1].empty() && lines[1][0] != 'X') return "has no Lotto line";
  if (!lines[2].empty() && lines[2][0] != 'Z') return "has no Strike line";
  return "";
}

SessionResult playSession(std::uint64_t seed, const SessionOptions& options,
                          const fs::path& directory) {
  Session session(seed, options, directory);
  return session.play();
}

}  // namespace veridraw::random_sessions
