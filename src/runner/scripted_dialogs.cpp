#include "runner/scripted_dialogs.h"

#include "runner/tokens.h"

namespace veridraw::script {

std::string describe(const DialogShown& dialog) {
  if (const auto* box = std::get_if<MessageBoxShown>(&dialog))
    return "msgbox " + quote(box->prompt) + " " + std::to_string(box->buttons) + " " +
           quote(box->title);
  const auto& input = std::get<InputBoxShown>(dialog);
  return "inputbox " + quote(input.prompt) + " " + quote(input.title) + " " +
         quote(input.defaultText) + " " + std::to_string(input.xpos) + " " +
         std::to_string(input.ypos);
}

bool ScriptedDialogs::takeUnchecked(DialogShown& dialog) {
  if (unchecked_.empty()) return false;
  dialog = std::move(unchecked_.front());
  unchecked_.pop_front();
  return true;
}

Reply ScriptedDialogs::answer(const DialogShown& dialog, bool wantsText) {
  unchecked_.push_back(dialog);
  if (replies_.empty()) throw ScenarioFailure("no reply is queued for " + describe(dialog));
  Reply reply = replies_.front().reply;
  if (std::holds_alternative<std::string>(reply) != wantsText)
    throw ScenarioFailure("the queued reply is for " +
                          std::string(wantsText ? "a message box" : "an input box") +
                          ", but the program showed " + describe(dialog));
  replies_.pop_front();
  if (listener_) listener_(dialog, reply);
  return reply;
}

int ScriptedDialogs::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
  return std::get<int>(answer(MessageBoxShown{prompt, buttons, title}, false));
}

std::string ScriptedDialogs::InputBox(const std::string& prompt, const std::string& title,
                                      const std::string& defaultText, int xpos, int ypos) {
  return std::get<std::string>(answer(InputBoxShown{prompt, title, defaultText, xpos, ypos}, true));
}

}  // namespace veridraw::script
