#include "test_forms.h"

#include "screen/files.h"
#include "screen/strings.h"

namespace veridraw::gui::testing {

namespace {

constexpr const char* kMissingFile = "NoSuchFile";

FormDesign samplerDesign() {
  FormDesign form{kSampler, 6000, 4500, colors::kButtonFace, {}};
  // clang-format off
  form.controls = {
    textBox("Entry", {600, 600, 1500, 300}).tab(0),
    listBox("Draws", {600, 1200, 1500, 1215}).tab(1),
    label("Prompt", {2400, 600, 1300, 255}, "Line A -- Enter").back(colors::kNavy).fore(colors::kWhite),
    label("Answer", {3800, 600, 1800, 255}, ""),
    button("CmdMove", {2400, 1500, 1200, 375}, "&Move"),
    button("CmdWarn", {2400, 2000, 1200, 375}, "&Warn"),
    button("CmdAsk", {2400, 2500, 1200, 375}, "&Ask"),
    button("CmdQuestion", {2400, 3000, 1200, 375}, "&Question"),
    button("CmdCount", {3800, 1500, 1200, 375}, "&Count"),
    button("CmdReload", {3800, 2000, 1200, 375}, "&Reload"),
    image("Coins", {3800, 2500, 1200, 900}, Picture::Coins).hidden(),
  };
  // clang-format on
  return form;
}

// A small form with one button.
FormDesign oneButtonDesign(const char* form, const char* name, const char* caption) {
  return {form, 3000, 2000, colors::kButtonFace, {button(name, {600, 600, 1200, 375}, caption)}};
}

class OtherForm : public Form {
 public:
  explicit OtherForm(Application& application)
      : Form(application, oneButtonDesign(kOther, "CmdBack", "&Back")) {
    on("CmdBack", Event::Click, [this] {
      Show(kSampler);
      Unload();
    });
  }
};

class BrokenForm : public Form {
 public:
  explicit BrokenForm(Application& application)
      : Form(application, oneButtonDesign(kBroken, "CmdOpen", "&Open")) {
    on("CmdOpen", Event::Click, [this] { files().Open(kMissingFile, FileMode::Input, 1); });
  }
};

class BrokenAtLoadForm : public Form {
 public:
  explicit BrokenAtLoadForm(Application& application)
      : Form(application, {kBrokenAtLoad, 3000, 2000, colors::kButtonFace, {}}) {}

 private:
  void Form_Load() override { files().Open(kMissingFile, FileMode::Input, 1); }
};

}  // namespace

SamplerForm::SamplerForm(Application& application) : Form(application, samplerDesign()) {
  on("CmdMove", Event::Click, [this] {
    Control& prompt = control("Prompt");
    prompt.setTop(prompt.top() + 300);
    prompt.setCaption("Line B -- Enter");
    control("Coins").setVisible(true);
  });
  on("CmdWarn", Event::Click, [this] {
    Control& entry = control("Entry");
    entry.setBackColor(colors::kRed);
    MsgBox("Number out of range", msgbox::kExclamation, "WARNING");
    entry.setBackColor(colors::kWhite);
  });
  on("CmdAsk", Event::Click, [this] {
    setAnswer(InputBox("Draw number?", "Veridraw", "1105", kInputBoxLeft, kInputBoxTop));
  });
  on("CmdQuestion", Event::Click, [this] {
    setAnswer(CStr(
        MsgBox("Are these numbers correct?", msgbox::kYesNo + msgbox::kExclamation, "Veridraw")));
  });
  on("CmdCount", Event::Click, [this] { setAnswer(CStr(++clicks_)); });
  on("CmdReload", Event::Click, [this] {
    Show(kOther);
    Unload();
  });
  on("Draws", Event::Click, [this] { setAnswer(control("Draws").text()); });
}

void SamplerForm::Form_Load() {
  for (int draw = 1; draw <= kDrawsListed; ++draw)
    control("Draws").AddItem("Draw " + CStr(draw));
}

void SamplerForm::setAnswer(const std::string& text) {
  control("Answer").setCaption(text);
}

void addSamplerForms(Application& application) {
  application.addForm<SamplerForm>();
  application.addForm<OtherForm>();
}

void addBrokenForms(Application& application) {
  application.addForm<BrokenForm>();
  application.addForm<BrokenAtLoadForm>();
}

}  // namespace veridraw::gui::testing
