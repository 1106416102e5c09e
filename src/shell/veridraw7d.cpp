#include "shell/veridraw7d.h"

namespace veridraw {

Veridraw7d::Veridraw7d(Application& application)
    : Form(application, "Veridraw7d", designOnce<veridraw7dDesign>) {
  on("BtnStart", Event::Click, [this] { BtnStart_Click(); });
  on("CmdDisclaimer", Event::Click, [this] { CmdDisclaimer_Click(); });
}

// Despite its caption, this button goes back to the start screen.
void Veridraw7d::BtnStart_Click() {
  Show("Veridraw7a");
  Unload();
}

void Veridraw7d::CmdDisclaimer_Click() {
  Label6->setVisible(true);
  Text2->setVisible(true);
  Text3->setVisible(true);
}

}  // namespace veridraw
