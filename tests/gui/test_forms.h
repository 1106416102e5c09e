// Small forms made for the tests of the desktop. They use the controls the
// way the screens of the program do: typing into a text box, a list of draws,
// a label that moves, a cell painted red while a message box stands, dialogs,
// a form that is left and loaded again, and fatal errors.
#pragma once

#include "screen/application.h"
#include "screen/form.h"

namespace veridraw::gui::testing {

inline constexpr const char* kSampler = "Sampler";
inline constexpr const char* kOther = "Other";
inline constexpr const char* kBroken = "Broken";
inline constexpr const char* kBrokenAtLoad = "BrokenAtLoad";

inline constexpr int kDrawsListed = 20;
// Where CmdAsk puts its input box, in twips.
inline constexpr int kInputBoxLeft = 3000;
inline constexpr int kInputBoxTop = 2400;

// Entry (text box), Draws (list box), Prompt and Answer (labels), Coins
// (hidden image) and the buttons CmdMove, CmdWarn, CmdAsk, CmdQuestion,
// CmdCount and CmdReload.
class SamplerForm : public Form {
 public:
  explicit SamplerForm(Application& application);

 private:
  void Form_Load() override;
  void setAnswer(const std::string& text);

  int clicks_ = 0;
};

// Adds the sampler and the form that CmdReload passes through.
void addSamplerForms(Application& application);

// Broken: its button CmdOpen opens a missing file. BrokenAtLoad: its Load does.
void addBrokenForms(Application& application);

}  // namespace veridraw::gui::testing
