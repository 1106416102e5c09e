// The design of the readme screen, as its designer laid it out.
#include "shell/veridraw7d.h"

namespace veridraw {

namespace {

constexpr const char* kResolution =
    "This program is set up to run on a screen resolution of 800x600 High Colour [16 Bit]. If "
    "your computer is in 640x480 pixels  mode, you will have to change the screen resolution -  "
    "Right click the mouse on the desktop - select properties, settings and change the screen "
    "area slider to 800x600 pixels.";
constexpr const char* kKeyboard =
    "If you are not using a mouse, you can use the Tab key to move through the options, or use "
    "Alt + underscored letter. ";
constexpr const char* kCursor =
    "As the cursor is controlled by programming, clicking the mouse arrow over the number boxes "
    "will have no effect.  You do not need to use the Enter Key as the cursor advances "
    "automatically to the next square.";
constexpr const char* kDisclaimer =
    "No Warranty is given or implied with this program. The owners accept no liability or "
    "responsibility whatsoever with the results given by this program, as they have no control "
    "over the data being entered. To all intents and purposes this program has been thoroughly "
    "tested and performs to the specifications the author set out to achieve.";
constexpr const char* kUseNotice =
    "Veridraw is free software: you may share and change it under the GNU General Public "
    "License, version 3 or later. Always check your tickets against the official results.";
constexpr const char* kCopyNotice = "Keep a copy of your draw and ticket files.";
constexpr const char* kFiles =
    "Draws and tickets are kept as small text files in the folder where Veridraw runs: the file "
    "DrawNumber names the current draw, each draw has a file named by its number, and each saved "
    "ticket a file named by its game and number.";
constexpr const char* kContact =
    "Questions and suggestions are welcome through the project's issue tracker.";

}  // namespace

FormDesign veridraw7dDesign() {
  FormDesign form{"Veridraw7d", 11910, 8625, colors::kButtonFace, {}};
  // clang-format off
  form.controls = {
    button("BtnStart", {5160, 8040, 1215, 375}, "&Start").tip("Start Veridraw").back(colors::kPaleYellow).tab(0),
    button("CmdDisclaimer", {1680, 6000, 1215, 375}, "&Disclaimer").back(colors::kGrey).tab(1),
    label("Label5", {1560, 1200, 5040, 495}, "Welcome to Veridraw").font(18, true),
    label("Label7", {1680, 2040, 1215, 225}, "Instructions").font(8.25, true),
    label("Label14", {1680, 2400, 8295, 615}, kResolution),
    label("Label4", {1680, 3045, 8205, 195}, kKeyboard),
    label("Label9", {1680, 3360, 615, 195}, " NOTE").font(8.25, true),
    label("Label8", {1680, 3600, 8175, 390}, kCursor),
    label("Label10", {1680, 4200, 1215, 225}, "Your files").font(8.25, true),
    label("Label11", {1680, 4500, 8175, 600}, kFiles),
    label("Label12", {1680, 5250, 1215, 225}, "Contact").font(8.25, true),
    label("Label13", {1680, 5520, 8175, 255}, kContact),
    label("Label6", {1680, 6600, 8160, 585}, kDisclaimer).hidden(),
    textBox("Text2", {1680, 7320, 8295, 585}, kUseNotice).hidden().lockedBox().noTabStop().read(Reading::Display),
    textBox("Text3", {1680, 7515, 4335, 200}, kCopyNotice).hidden().lockedBox().noTabStop().border(0).read(Reading::Display),
    document("OLE1", {240, 240, 1095, 735}, Picture::DocumentContact),
    document("OLE3", {8760, 1080, 2895, 1095}, Picture::DocumentNotes),
    document("OLE4", {10200, 6000, 1455, 1095}, Picture::DocumentLotto),
    document("OLE5", {240, 7800, 615, 615}, Picture::Mark).decoration(),
    document("OLE6", {10560, 240, 1095, 735}, Picture::DocumentContact),
  };
  // clang-format on
  return form;
}

}  // namespace veridraw
