// The design of the draw screen, as its designer laid it out.
#include "decoration/sample_ticket.h"
#include "draws/veridraw7f.h"

namespace veridraw {

namespace {

// A cell of an entry or of the display: text " ", centred, never a tab stop.
ControlDesign cell(std::string name, int index, Place place) {
  return textBox(std::move(name), place).at(index).centred().noTabStop();
}

// A cell of a display row, which only code writes.
ControlDesign shown(std::string name, int index, Place place) {
  return cell(std::move(name), index, place).lockedBox().read(Reading::Display);
}

// A spare cell behind the notice button: grey on grey, so that nothing shows.
ControlDesign spare(std::string name, int index, Place place) {
  return shown(std::move(name), index, place).back(colors::kGrey).fore(colors::kGrey).decoration();
}

// The results panel: a picture of the prize rows of a checked ticket.
void addResultsPanel(std::vector<ControlDesign>& controls) {
  constexpr int kDivisions = 5;
  controls.push_back(textBox("TxtLottoPrizes", {8970, 1035, 2415, 285}, "LOTTO PRIZES")
                         .centred()
                         .lockedBox()
                         .noTabStop()
                         .back(colors::kPaleYellow)
                         .decoration());
  for (int division = 1; division <= kDivisions; ++division) {
    const int top = 1260 + division * 300;
    controls.push_back(textBox("TextBTxt", {8970, top, 1695, 285},
                               "Division " + std::to_string(division) + " prize")
                           .at(division)
                           .border(0)
                           .back(colors::kButtonFace)
                           .lockedBox()
                           .noTabStop()
                           .decoration());
    controls.push_back(textBox("IntResult", {10785, top, 600, 285}, "0")
                           .at(division)
                           .centred()
                           .back(colors::kPaleYellow)
                           .lockedBox()
                           .noTabStop()
                           .decoration());
  }
}

}  // namespace

FormDesign veridraw7fDesign() {
  FormDesign form{"Veridraw7f", 11880, 8595, colors::kButtonFace, {}};
  // clang-format off
  form.controls = {
    // The buttons, in their tab order.
    button("BtnEnterLottoDrawNumbers", {4020, 4680, 3855, 325}, "Enter &Lotto Winning Numbers").tab(0),
    button("BtnEnterStrikeNumbers", {4020, 5040, 3855, 325}, "Enter &Strike Winning Numbers").tab(1),
    button("BtnCheckTickets", {4020, 5400, 3855, 325}, "Check &Your Tickets").tab(2),
    pictureButton("BtnPowerBall", {4680, 3120, 2535, 855}, Picture::PowerBall).tip("Click to start PowerBall").hidden().tab(3).spoken("Start PowerBall"),
    pictureButton("Btn1Lotto", {3840, 4200, 1575, 855}, Picture::Lotto).tip("Click to start Lotto").hidden().tab(4).spoken("Start Lotto"),
    pictureButton("Btn2Strike", {6480, 4200, 1575, 855}, Picture::Strike).tip("Click to start Strike").hidden().tab(5).spoken("Start Strike"),
    button("BtnRestart", {4440, 7320, 975, 375}, "&Restart").tip("Restart Veridraw").tab(6),
    button("BtnCancel", {5520, 7320, 855, 375}, "&Cancel").tip("Cancel this action").hidden().tab(7),
    button("CmdEnd", {6480, 7320, 975, 375}, "E&xit").tip("Exit Veridraw").tab(8),
    button("BtnYes2", {4680, 6000, 750, 435}, "&Yes").tip("Continue").hidden().tab(9).describedBy("LblCorrectNumbers"),
    button("BtnNo2", {6480, 6000, 750, 435}, "&No").tip("Go back").hidden().tab(10).describedBy("LblCorrectNumbers"),
    button("BtnYes", {4680, 6000, 750, 435}, "&Yes").tip("Continue").hidden().tab(11).describedBy("LblCorrectNumbers"),
    button("BtnNo", {6480, 6000, 750, 435}, "&No").tip("Go back").hidden().tab(12).describedBy("LblCorrectNumbers"),
    listBox("List1", {3480, 7080, 735, 1230}).tip("Draw Numbers").tab(13).describedBy("LblDrawsAvailble"),
    listBox("LstLottoTicket", {7680, 7080, 1095, 1230}).tip("Saved Tickets").tab(14).describedBy("LblSavedTickets"),

    // The current draw.
    textBox("TxtDrawBox", {2520, 6360, 735, 360}).centred().noTabStop().lockedBox().read(Reading::Display).labelledBy("LblDraw"),
    label("LblDraw", {570, 6400, 2055, 195}, "Current Draw Number"),
    label("LblLottoDraw", {580, 6705, 1335, 195}, "Lotto Numbers"),
    shown("TxtDrawnNumbers2", 1, {120, 6960, 350, 300}).spoken("Drawn Lotto number 1"),
    shown("TxtDrawnNumbers2", 2, {480, 6960, 350, 300}).spoken("Drawn Lotto number 2"),
    shown("TxtDrawnNumbers2", 3, {840, 6960, 350, 300}).spoken("Drawn Lotto number 3"),
    shown("TxtDrawnNumbers2", 4, {1200, 6960, 350, 300}).spoken("Drawn Lotto number 4"),
    shown("TxtDrawnNumbers2", 5, {1560, 6960, 350, 300}).spoken("Drawn Lotto number 5"),
    shown("TxtDrawnNumbers2", 6, {1920, 6960, 350, 300}).spoken("Drawn Lotto number 6"),
    shown("TxtDrawnNumbers2", 7, {2400, 6930, 375, 375}).back(colors::kBlue).fore(colors::kWhite).spoken("Drawn Bonus number"),
    shown("TxtDrawnNumbers2", 8, {2880, 6930, 375, 375}).back(colors::kGreen).fore(colors::kWhite).spoken("Drawn PowerBall number"),
    label("LblStrikeDraw", {550, 7320, 1335, 195}, "Strike Numbers"),
    shown("TxtStrikeNumbers2", 1, {480, 7560, 350, 300}).spoken("Drawn Strike number 1"),
    shown("TxtStrikeNumbers2", 2, {840, 7560, 350, 300}).spoken("Drawn Strike number 2"),
    shown("TxtStrikeNumbers2", 3, {1200, 7560, 350, 300}).spoken("Drawn Strike number 3"),
    shown("TxtStrikeNumbers2", 4, {1560, 7560, 350, 300}).spoken("Drawn Strike number 4"),
    label("LblDrawsAvailble", {3480, 6600, 735, 375}, "Draws Entered"),
    label("LbLchangeDraw", {4320, 8050, 3100, 255}, "<-------- Click Here to change draw number").back(colors::kYellow).fore(colors::kRed),
    label("LblSavedTickets", {7850, 6600, 735, 375}, "Saved Tickets"),

    // The Lotto entry: six numbers, Bonus, PowerBall, and the sorted row.
    label("LblDrawnOrder", {4455, 3210, 2130, 450}, " Enter Numbers in either drawn or numeric order").back(colors::kYellow).fore(colors::kRed).hidden().read(Reading::Prompt),
    label("LblBonusNumber", {6775, 3330, 615, 375}, "Bonus Number").hidden(),
    label("LblPwrBall", {7550, 3330, 495, 375}, "Power    Ball").hidden(),
    cell("TxtDrawnNumbers", 1, {4455, 3915, 350, 300}).hidden().spoken("Lotto number 1").describedBy("LblDrawnOrder"),
    cell("TxtDrawnNumbers", 2, {4800, 3915, 350, 300}).hidden().lockedBox().spoken("Lotto number 2").describedBy("LblDrawnOrder"),
    cell("TxtDrawnNumbers", 3, {5160, 3915, 350, 300}).hidden().lockedBox().spoken("Lotto number 3").describedBy("LblDrawnOrder"),
    cell("TxtDrawnNumbers", 4, {5520, 3915, 350, 300}).hidden().lockedBox().spoken("Lotto number 4").describedBy("LblDrawnOrder"),
    cell("TxtDrawnNumbers", 5, {5880, 3915, 350, 300}).hidden().lockedBox().spoken("Lotto number 5").describedBy("LblDrawnOrder"),
    cell("TxtDrawnNumbers", 6, {6240, 3915, 350, 300}).hidden().lockedBox().spoken("Lotto number 6").describedBy("LblDrawnOrder"),
    cell("TxtDrawnNumbers", 7, {6900, 3885, 375, 375}).hidden().lockedBox().back(colors::kBlue).fore(colors::kWhite).labelledBy("LblBonusNumber").describedBy("LblDrawnOrder"),
    cell("TxtDrawnNumbers", 8, {7605, 3885, 375, 375}).hidden().lockedBox().back(colors::kGreen).fore(colors::kWhite).labelledBy("LblPwrBall").describedBy("LblDrawnOrder"),
    label("LblNumericOrder", {4680, 4560, 2400, 255}, "Numbers in numeric order").back(colors::kYellow).fore(colors::kRed).hidden(),
    shown("TxtDrawnNumeric", 1, {4815, 4965, 350, 300}).hidden().spoken("Lotto number in numeric order 1"),
    shown("TxtDrawnNumeric", 2, {5160, 4965, 350, 300}).hidden().spoken("Lotto number in numeric order 2"),
    shown("TxtDrawnNumeric", 3, {5520, 4965, 350, 300}).hidden().spoken("Lotto number in numeric order 3"),
    shown("TxtDrawnNumeric", 4, {5880, 4965, 350, 300}).hidden().spoken("Lotto number in numeric order 4"),
    shown("TxtDrawnNumeric", 5, {6240, 4965, 350, 300}).hidden().spoken("Lotto number in numeric order 5"),
    shown("TxtDrawnNumeric", 6, {6600, 4965, 350, 300}).hidden().spoken("Lotto number in numeric order 6"),
    label("LblCorrectNumbers", {4680, 5520, 2400, 255}, Veridraw7f::kQuestion).back(colors::kBlue).fore(colors::kWhite).hidden(),

    // The Strike entry: four numbers in the drawn order.
    label("LblDrawnOrder2", {4680, 3600, 2415, 495}, " Enter the Strike Numbers in the drawn order").back(colors::kYellow).fore(colors::kRed).hidden().read(Reading::Prompt),
    cell("TxtStrikeNumbers", 1, {5160, 4320, 350, 300}).hidden().spoken("Strike number 1").describedBy("LblDrawnOrder2"),
    cell("TxtStrikeNumbers", 2, {5520, 4320, 350, 300}).hidden().spoken("Strike number 2").describedBy("LblDrawnOrder2"),
    cell("TxtStrikeNumbers", 3, {5880, 4320, 350, 300}).hidden().spoken("Strike number 3").describedBy("LblDrawnOrder2"),
    cell("TxtStrikeNumbers", 4, {6240, 4320, 350, 300}).hidden().spoken("Strike number 4").describedBy("LblDrawnOrder2"),

    // Behind the notice button. The spare cells take the focus, or are named,
    // when a scan goes past the last cell: they must exist, and 9 and 5 must
    // be visible.
    spare("TxtStrikeNumbers", 5, {120, 8160, 250, 285}),
    spare("TxtStrikeNumbers", 6, {360, 8160, 250, 285}).hidden(),
    spare("TxtStrikeNumbers", 7, {600, 8160, 250, 285}).hidden(),
    spare("LineA", 85, {960, 8160, 240, 240}),
    spare("LineA", 86, {1200, 8160, 240, 240}),
    spare("LineA", 87, {1440, 8160, 240, 240}),
    spare("TxtDrawnNumbers", 9, {1680, 8160, 240, 240}),
    spare("TxtDrawnNumbers", 10, {1920, 8160, 240, 240}),
    spare("TxtDrawnNumbers", 11, {2160, 8160, 240, 240}),

    // Decoration.
    document("OLE1", {120, 120, 2895, 675}, Picture::DocumentLotto),
    document("OLE5", {3120, 120, 675, 675}, Picture::Mark).decoration(),
    document("OLE2", {8865, 120, 2895, 675}, Picture::DocumentNotes),
    document("OLE6", {8085, 120, 675, 675}, Picture::Mark).decoration(),
    label("Label3", {4080, 240, 3735, 615}, "Lotto Veridraw").font(24, true),
    label("lblLotto", {4560, 960, 2775, 375}, "Lotto Veridraw").font(12, true).decoration(),
    image("Image1", {4680, 1440, 2535, 1335}, Picture::Lotto).decoration(),
    image("Image2", {8970, 3360, 2415, 1215}, Picture::Coins).decoration(),
  };
  // clang-format on
  addSampleTicket(form.controls, {.lines = 10,
                                  .numbersPerLine = 3,
                                  .left = 600,
                                  .top = 1200,
                                  .lineStep = 1,
                                  .columnStep = 1,
                                  .lineNumbers = false});
  addResultsPanel(form.controls);
  // Last, so that it stands in front of the spare cells.
  form.controls.push_back(
      pictureButton("CmdNotice", {120, 8160, 2655, 375}, Picture::Notice)
          .tip("Veridraw is free software under the GNU GPL, version 3 or later")
          .decoration());
  return form;
}

}  // namespace veridraw
