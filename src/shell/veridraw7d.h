// The readme screen: instructions and notices, and a way back to the start.
#pragma once

#include "screen/application.h"
#include "screen/form.h"

namespace veridraw {

FormDesign veridraw7dDesign();

class Veridraw7d : public Form {
 public:
  explicit Veridraw7d(Application& application);

 private:
  void BtnStart_Click();
  void CmdDisclaimer_Click();

  const ControlRef Label6{*this, "Label6"};
  const ControlRef Text2{*this, "Text2"};
  const ControlRef Text3{*this, "Text3"};
};

}  // namespace veridraw
