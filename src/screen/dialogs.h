// The modal dialogs, behind an interface: the desktop shows real message and
// input boxes, the scenario runner answers them from its queue of replies.
#pragma once

#include <string>

namespace veridraw {

// The `buttons` values in use and the answers of a message box.
namespace msgbox {
inline constexpr int kOkOnly = 0;
inline constexpr int kYesNo = 4;
inline constexpr int kExclamation = 48;
inline constexpr int kOk = 1;
inline constexpr int kYes = 6;
inline constexpr int kNo = 7;
}  // namespace msgbox

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // Returns 1 for OK, 6 for Yes, 7 for No.
  virtual int MsgBox(const std::string& prompt, int buttons, const std::string& title) = 0;
  // Returns the text confirmed with OK; Cancel gives "", as does OK on an empty field.
  virtual std::string InputBox(const std::string& prompt, const std::string& title,
                               const std::string& defaultText, int xpos, int ypos) = 0;
};

}  // namespace veridraw
