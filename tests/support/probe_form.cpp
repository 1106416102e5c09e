#include "support/probe_form.h"

namespace veridraw::testing {

FormDesign probeDesign(std::string name) {
  FormDesign design{std::move(name), 6000, 4000, colors::kButtonFace, {}};
  // clang-format off
  design.controls = {
    textBox("Box", {120, 120, 1200, 285}).tab(0),
    textBox("Other", {120, 480, 1200, 285}, "other").tab(1),
    button("BtnGo", {120, 840, 1200, 375}, "&Go").tab(2),
    button("BtnHidden", {120, 1320, 1200, 375}, "&Hide").hidden().tab(3),
    listBox("List", {1500, 120, 1200, 975}).tab(4),
    textBox("Fixed", {1500, 1200, 1200, 285}, "fixed").lockedBox().tab(5),
    label("Title", {3000, 120, 1200, 255}, "Probe"),
    textBox("Cell", {3000, 480, 375, 285}).at(1).noTabStop(),
    textBox("Cell", {3400, 480, 375, 285}).at(2).noTabStop(),
    textBox("Cell", {3800, 480, 375, 285}).at(3).noTabStop(),
    textBox("Cell", {4600, 480, 375, 285}).at(5).noTabStop(),
  };
  // clang-format on
  return design;
}

}  // namespace veridraw::testing
