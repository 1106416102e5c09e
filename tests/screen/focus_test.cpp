#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/expect_fatal.h"
#include "support/probe_form.h"

namespace veridraw {
namespace {

using testing::fatalNumberOf;
using testing::ScreenTest;

TEST_F(ScreenTest, TheFirstControlInTabOrderHasTheFocusWhenAFormIsShown) {
  start();
  EXPECT_EQ(focusName(), "Box");
}

TEST_F(ScreenTest, TheFirstFocusSkipsWhatCantTakeIt) {
  FormDesign design{"Skipping", 3000, 3000, colors::kButtonFace, {}};
  ControlDesign disabled = button("Disabled", {0, 600, 600, 300}, "&Off").tab(2);
  disabled.enabled = false;
  // clang-format off
  design.controls = {
    label("Title", {0, 0, 600, 300}, "Title").tab(0),
    textBox("Hidden", {0, 300, 600, 300}).hidden().tab(1),
    std::move(disabled),
    textBox("NoStop", {0, 900, 600, 300}).noTabStop().tab(3),
    button("Target", {0, 1200, 600, 300}, "&Target").tab(5),
    textBox("Later", {0, 1500, 600, 300}).tab(6),
    image("Picture", {0, 1800, 600, 300}, Picture::Lotto).tab(4),
  };
  // clang-format on
  app.addForm<testing::ProbeForm>(std::move(design));
  app.start("Skipping");
  EXPECT_EQ(focusName(), "Target");
}

TEST_F(ScreenTest, SetFocusOnAHiddenOrDisabledControlIsFatal5) {
  start();
  EXPECT_EQ(fatalNumberOf([&] { control("BtnHidden").SetFocus(); }), 5);
  control("Other").setEnabled(false);
  EXPECT_EQ(fatalNumberOf([&] { control("Other").SetFocus(); }), 5);
  EXPECT_EQ(focusName(), "Box");
}

TEST_F(ScreenTest, SetFocusReachesABoxWithoutTabStop) {
  start();
  cell(3).SetFocus();
  EXPECT_EQ(focusName(), "Cell(3)");
}

TEST_F(ScreenTest, SetFocusOnAHiddenControlInAnEventEndsTheProgram) {
  first.on("BtnGo", Event::Click, [this] {
    cell(5).setVisible(false);
    cell(5).SetFocus();
  });
  start();
  app.click(control("BtnGo"));
  ASSERT_EQ(app.state(), Application::State::Fatal);
  EXPECT_EQ(app.fatalError()->number(), 5);
}

TEST_F(ScreenTest, HidingTheFocusedControlMovesTheFocusOnAlongTheTabOrder) {
  start();
  control("Other").setVisible(false);
  EXPECT_EQ(focusName(), "Box");
  control("Box").setVisible(false);
  EXPECT_EQ(focusName(), "BtnGo");
  control("BtnGo").setEnabled(false);
  EXPECT_EQ(focusName(), "List");
}

TEST_F(ScreenTest, HidingTheLastFocusedControlInTabOrderWrapsToTheFirst) {
  start();
  control("Fixed").SetFocus();
  control("Fixed").setVisible(false);
  EXPECT_EQ(focusName(), "Box");
}

class TabWalk : public ScreenTest, public ::testing::WithParamInterface<Key> {};

TEST_P(TabWalk, StopsAtVisibleTabStopControlsAndWraps) {
  start();
  std::vector<std::string> visited;
  for (int step = 0; step < 6; ++step) {
    app.pressKey(GetParam());
    visited.push_back(focusName());
  }
  const std::vector<std::string> forwards = {"Other", "BtnGo", "List", "Fixed", "Box", "Other"};
  const std::vector<std::string> backwards = {"Fixed", "List", "BtnGo", "Other", "Box", "Fixed"};
  EXPECT_EQ(visited, GetParam() == Key::Tab ? forwards : backwards);
}

INSTANTIATE_TEST_SUITE_P(BothWays, TabWalk, ::testing::Values(Key::Tab, Key::ShiftTab));

TEST_F(ScreenTest, TabFromABoxWithoutTabStopGoesToTheNextTabStop) {
  start();
  cell(1).SetFocus();
  app.pressKey(Key::Tab);
  EXPECT_EQ(focusName(), "Box");
}

TEST_F(ScreenTest, TabWithOneTabStopLeftKeepsTheFocusThere) {
  start();
  for (const char* name : {"Other", "BtnGo", "List", "Fixed"})
    control(name).setVisible(false);
  app.pressKey(Key::Tab);
  EXPECT_EQ(focusName(), "Box");
  app.pressKey(Key::ShiftTab);
  EXPECT_EQ(focusName(), "Box");
}

TEST_F(ScreenTest, TabWithNoTabStopLeftKeepsTheFocusInItsBox) {
  start();
  cell(1).SetFocus();
  for (const char* name : {"Box", "Other", "BtnGo", "List", "Fixed"})
    control(name).setVisible(false);
  app.pressKey(Key::Tab);
  EXPECT_EQ(focusName(), "Cell(1)");
  app.typeCharacter('7');
  EXPECT_EQ(cell(1).text(), "7 ");
}

class ButtonKeys : public ScreenTest {
 protected:
  int clicks = 0;
  void SetUp() override {
    first.on("BtnGo", Event::Click, [this] { ++clicks; });
    start();
  }
};

TEST_F(ButtonKeys, EnterOrSpaceOnTheFocusedButtonClicksIt) {
  control("BtnGo").SetFocus();
  app.pressKey(Key::Enter);
  app.pressKey(Key::Space);
  app.typeCharacter(' ');
  app.typeCharacter('\r');
  EXPECT_EQ(clicks, 4);
}

TEST_F(ButtonKeys, EnterInATextBoxClicksNothing) {
  app.pressKey(Key::Enter);
  EXPECT_EQ(clicks, 0);
}

TEST_F(ButtonKeys, OtherKeysOnAButtonClickNothing) {
  control("BtnGo").SetFocus();
  app.typeCharacter('g');
  app.pressKey(Key::Escape);
  app.pressKey(Key::Backspace);
  EXPECT_EQ(clicks, 0);
}

TEST_F(ButtonKeys, AltAndTheAccessLetterClicksTheButtonFromAnywhere) {
  app.pressAccessKey('G');
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(focusName(), "BtnGo");
  control("Box").SetFocus();
  app.pressAccessKey('g');
  EXPECT_EQ(clicks, 2);
}

TEST_F(ButtonKeys, AltOnAHiddenOrDisabledButtonDoesNothing) {
  int hiddenClicks = 0;
  first.on("BtnHidden", Event::Click, [&] { ++hiddenClicks; });
  app.pressAccessKey('H');
  control("BtnGo").setEnabled(false);
  app.pressAccessKey('G');
  app.pressAccessKey('Q');
  EXPECT_EQ(hiddenClicks, 0);
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(focusName(), "Box");
}

// BtnHidden shown with the caption "&Gone": G is then the letter of two buttons.
class SharedAccessKey : public ButtonKeys {
 protected:
  int otherClicks = 0;
  void SetUp() override {
    ButtonKeys::SetUp();
    first.on("BtnHidden", Event::Click, [this] { ++otherClicks; });
    control("BtnHidden").setCaption("&Gone");
    control("BtnHidden").setVisible(true);
  }
};

TEST_F(SharedAccessKey, AltMovesTheFocusToTheNextOwnerInTabOrderAndClicksNothing) {
  ASSERT_EQ(focusName(), "Box");
  app.pressAccessKey('G');
  EXPECT_EQ(focusName(), "BtnGo");
  app.pressAccessKey('g');
  EXPECT_EQ(focusName(), "BtnHidden");
  app.pressAccessKey('G');
  EXPECT_EQ(focusName(), "BtnGo");
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(otherClicks, 0);
}

TEST_F(SharedAccessKey, TheWalkStartsAfterTheFocusedControlAndWraps) {
  control("List").SetFocus();
  app.pressAccessKey('G');
  EXPECT_EQ(focusName(), "BtnGo");
  control("Other").SetFocus();
  app.pressAccessKey('G');
  EXPECT_EQ(focusName(), "BtnGo");
  cell(2).SetFocus();  // no tab stop, last in tab order
  app.pressAccessKey('G');
  EXPECT_EQ(focusName(), "BtnGo");
  EXPECT_EQ(clicks + otherClicks, 0);
}

TEST_F(SharedAccessKey, EnterOrSpaceThenPressesTheButtonReached) {
  app.pressAccessKey('G');
  app.pressAccessKey('G');
  app.pressKey(Key::Enter);
  EXPECT_EQ(otherClicks, 1);
  app.pressAccessKey('G');
  app.pressKey(Key::Space);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(otherClicks, 1);
}

TEST_F(SharedAccessKey, AHiddenOrDisabledButtonDoesntShareItsLetter) {
  control("BtnHidden").setEnabled(false);
  app.pressAccessKey('G');
  EXPECT_EQ(clicks, 1);
  control("BtnHidden").setEnabled(true);
  control("BtnGo").setVisible(false);
  app.pressAccessKey('G');
  EXPECT_EQ(otherClicks, 1);
  EXPECT_EQ(focusName(), "BtnHidden");
}

TEST_F(SharedAccessKey, ALabelsLetterNeitherCountsNorActs) {
  control("BtnHidden").setVisible(false);
  control("Title").setCaption("&Go and &Zoom");
  app.pressAccessKey('G');
  EXPECT_EQ(clicks, 1);
  control("Box").SetFocus();
  app.pressAccessKey('Z');
  EXPECT_EQ(focusName(), "Box");
  EXPECT_EQ(clicks, 1);
}

TEST_F(ButtonKeys, AMouseClickOnAButtonGivesItTheFocusAndClicksIt) {
  app.click(control("BtnGo"));
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(focusName(), "BtnGo");
}

TEST_F(ButtonKeys, AMouseClickOnAHiddenButtonDoesNothing) {
  control("BtnGo").setVisible(false);
  app.click(control("BtnGo"));
  EXPECT_EQ(clicks, 0);
}

TEST_F(ScreenTest, AMouseClickOnATextBoxGivesItTheFocus) {
  start();
  app.click(control("Other"));
  EXPECT_EQ(focusName(), "Other");
}

struct AccessKeyCase {
  std::string caption;
  char key;
};

class AccessKey : public ScreenTest, public ::testing::WithParamInterface<AccessKeyCase> {};

TEST_P(AccessKey, IsTheLetterAfterTheAmpersand) {
  start();
  control("BtnGo").setCaption(GetParam().caption);
  EXPECT_EQ(control("BtnGo").accessKey(), GetParam().key) << GetParam().caption;
}

INSTANTIATE_TEST_SUITE_P(Captions, AccessKey,
                         ::testing::Values(AccessKeyCase{"Press &Enter to Start", 'E'},
                                           AccessKeyCase{"E&xit", 'X'},
                                           AccessKeyCase{"&readme", 'R'},
                                           AccessKeyCase{"Fish && &Chips", 'C'},
                                           AccessKeyCase{"Fish && Chips", 0},
                                           AccessKeyCase{"Plain", 0}, AccessKeyCase{"End&", 0}));

}  // namespace
}  // namespace veridraw
