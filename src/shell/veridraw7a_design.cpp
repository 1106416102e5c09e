// The design of the start screen, as its designer laid it out.
#include "decoration/sample_ticket.h"
#include "shell/veridraw7a.h"

namespace veridraw {

FormDesign veridraw7aDesign() {
  FormDesign form{"Veridraw7a", 11910, 8625, colors::kButtonFace, {}};
  // clang-format off
  form.controls = {
    button("BtnStart", {5880, 6840, 4335, 615}, "Press &Enter to Start").tip("Press Enter to start Veridraw").back(colors::kRed).font(12, true).tab(0),
    button("CmdReadme", {5880, 7920, 1095, 375}, "&Readme").tip("Please Readme").tab(1),
    button("CmdForm1Exit", {9120, 7920, 1095, 375}, "E&xit").tip("Exit Veridraw").tab(2),
    pictureButton("Btn1Lotto", {5880, 5520, 1575, 735}, Picture::Lotto).tip("PRESS ENTER").inert().decoration(),
    pictureButton("Btn2Strike", {8640, 5520, 1575, 735}, Picture::Strike).tip("PRESS ENTER").inert().decoration(),
    pictureButton("BtnPowerBall", {6840, 4320, 2535, 735}, Picture::PowerBall).tip("PRESS ENTER").inert().decoration(),
    pictureButton("CmdNotice", {360, 7920, 4815, 375}, Picture::Notice).tip("Veridraw is free software under the GNU GPL, version 3 or later").inert().decoration(),
    label("Label2", {4860, 480, 6615, 855}, "Lotto Veridraw").font(36, true),
    label("Label5", {5880, 3720, 4215, 375}, "Check your Lotto tickets for prizes").font(12),
    label("Label1", {1020, 1680, 2775, 375}, "Lotto Veridraw").font(12, true).decoration(),
    label("Label6", {3660, 3240, 2895, 255}, "Line E -- Enter the 6 Two Digit Numbers").back(colors::kNavy).fore(colors::kWhite).decoration(),
    label("Label3", {600, 4080, 4575, 255}, "Lotto, Strike and PowerBall, checked by hand-entered results").font(8.25, true),
    label("Label4", {600, 7440, 4575, 375}, "Your draws and tickets stay in the folder where Veridraw runs."),
    document("OLE1", {600, 4440, 2175, 1335}, Picture::DocumentLotto),
    document("OLE3", {3000, 4440, 2175, 1335}, Picture::DocumentStrike),
    document("OLE5", {600, 5940, 2175, 1335}, Picture::DocumentPowerBall),
    document("OLE6", {3000, 5940, 2175, 1335}, Picture::DocumentNotes),
    document("OLE7", {240, 240, 615, 615}, Picture::Mark).decoration(),
    document("OLE8", {11055, 240, 615, 615}, Picture::Mark).decoration(),
  };
  // clang-format on
  addSampleTicket(form.controls, {.lines = 5,
                                  .numbersPerLine = 6,
                                  .left = 1575,
                                  .top = 2220,
                                  .lineStep = 3,
                                  .columnStep = 5,
                                  .lineNumbers = true});
  return form;
}

}  // namespace veridraw
