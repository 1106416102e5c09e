// The modal dialogs of the desktop: message boxes and input boxes of the
// toolkit, and the platform's report of a fatal error. The model's strings are
// Windows-1252 and are converted here, both ways.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "screen/dialogs.h"
#include "screen/fatal.h"

namespace veridraw::gui {

class DesktopDialogs : public Dialogs {
 public:
  // Called before each dialog: brings the screen up to date with the model, so
  // that the dialog stands over what the logic has just shown, and gives the
  // window that the dialog belongs to.
  void setOwner(std::function<QWidget*()> owner) { owner_ = std::move(owner); }

  int MsgBox(const std::string& prompt, int buttons, const std::string& title) override;
  std::string InputBox(const std::string& prompt, const std::string& title,
                       const std::string& defaultText, int xpos, int ypos) override;

 private:
  QWidget* owner() const { return owner_ ? owner_() : nullptr; }

  std::function<QWidget*()> owner_;
};

// "Run-time error '53':" and, after a blank line, the error's text.
QString runTimeErrorText(const FatalError& error);
// The platform's message of a fatal error: title "Veridraw", a critical icon and OK.
void showRunTimeError(QWidget* owner, const FatalError& error);

}  // namespace veridraw::gui
