#include "shell/veridraw7a.h"

namespace veridraw {

Veridraw7a::Veridraw7a(Application& application)
    : Form(application, "Veridraw7a", designOnce<veridraw7aDesign>) {
  on("BtnStart", Event::Click, [this] { BtnStart_Click(); });
  on("CmdReadme", Event::Click, [this] { CmdReadme_Click(); });
  on("CmdForm1Exit", Event::Click, [this] { CmdForm1Exit_Click(); });
}

void Veridraw7a::BtnStart_Click() {
  Show("Veridraw7f");
  Unload();
}

void Veridraw7a::CmdReadme_Click() {
  Show("Veridraw7d");
  Unload();
}

void Veridraw7a::CmdForm1Exit_Click() {
  End();
}

}  // namespace veridraw
