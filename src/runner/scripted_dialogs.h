// The dialogs of a scenario: answers come from the queue of `reply` lines, and
// every dialog shown is kept for the `expect msgbox` and `expect inputbox` checks.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <variant>

#include "screen/dialogs.h"

namespace veridraw::script {

struct MessageBoxShown {
  std::string prompt;
  int buttons = 0;
  std::string title;
};

struct InputBoxShown {
  std::string prompt;
  std::string title;
  std::string defaultText;
  int xpos = 0;
  int ypos = 0;
};

using DialogShown = std::variant<MessageBoxShown, InputBoxShown>;
using Reply = std::variant<int, std::string>;  // a button number, or the text of an input box

std::string describe(const DialogShown& dialog);

// A reply waiting in the queue, with how the scenario wrote it and where.
struct QueuedReply {
  Reply reply;
  std::string written;  // the word of the `reply` line, as written
  int line = 0;         // the scenario line that queued it
};

class ScriptedDialogs : public Dialogs {
 public:
  void queue(Reply reply, std::string written = {}, int line = 0) {
    replies_.emplace_back(std::move(reply), std::move(written), line);
  }
  // The oldest reply that no dialog has taken yet, or null.
  const QueuedReply* oldestUnused() const { return replies_.empty() ? nullptr : &replies_.front(); }
  // The oldest dialog shown and not yet checked, taken off the list; none if empty.
  bool takeUnchecked(DialogShown& dialog);
  bool allChecked() const { return unchecked_.empty(); }
  // Told of every dialog and its answer, for --verbose.
  void onShown(std::function<void(const DialogShown&, const Reply&)> listener) {
    listener_ = std::move(listener);
  }

  int MsgBox(const std::string& prompt, int buttons, const std::string& title) override;
  std::string InputBox(const std::string& prompt, const std::string& title,
                       const std::string& defaultText, int xpos, int ypos) override;

 private:
  Reply answer(const DialogShown& dialog, bool wantsText);

  std::deque<QueuedReply> replies_;
  std::deque<DialogShown> unchecked_;
  std::function<void(const DialogShown&, const Reply&)> listener_;
};

}  // namespace veridraw::script
