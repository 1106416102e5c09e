// The start screen: a title page with three live buttons, start, readme and exit.
#pragma once

#include "screen/application.h"
#include "screen/form.h"

namespace veridraw {

FormDesign veridraw7aDesign();

class Veridraw7a : public Form {
 public:
  explicit Veridraw7a(Application& application);

 private:
  void BtnStart_Click();
  void CmdReadme_Click();
  void CmdForm1Exit_Click();
};

}  // namespace veridraw
