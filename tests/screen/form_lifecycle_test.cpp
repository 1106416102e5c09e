#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "support/expect_fatal.h"
#include "support/probe_form.h"
#include "support/test_support.h"

namespace veridraw {
namespace {

using testing::fatalOf;
using testing::ScreenTest;

TEST_F(ScreenTest, ArrayElementsAreIndexedFromOneWithGaps) {
  start();
  for (const int index : {1, 2, 3, 5}) {
    EXPECT_EQ(cell(index).index(), index);
    EXPECT_EQ(cell(index).displayName(), "Cell(" + std::to_string(index) + ")");
  }
}

TEST_F(ScreenTest, AMissingArrayElementIsFatal340NamingIt) {
  start();
  for (const int index : {0, 4, 6}) {
    const testing::FatalOutcome outcome = fatalOf([&] { cell(index); });
    EXPECT_EQ(outcome.number, 340);
    EXPECT_EQ(outcome.text, "Control array element '" + std::to_string(index) + "' doesn't exist");
  }
}

TEST_F(ScreenTest, ShowRunsLoadToItsEndInsideTheCallingEvent) {
  std::vector<std::string> log;
  second.onLoad = [&] { log.push_back("second loads"); };
  first.on("BtnGo", Event::Click, [&] {
    first.Show("Second");
    log.push_back("after Show: second loaded " + std::to_string(second.loaded()));
    first.Unload();
    log.push_back("after Unload: first loaded " + std::to_string(first.loaded()));
  });
  start();
  app.click(control("BtnGo"));
  EXPECT_EQ(log, (std::vector<std::string>{"second loads", "after Show: second loaded 1",
                                           "after Unload: first loaded 0"}));
  EXPECT_TRUE(app.running());
  EXPECT_EQ(app.activeForm(), &second);
  EXPECT_EQ(focusName(), "Box");
}

// First goes to Second and Second back to First, each by its BtnGo.
class SecondVisit : public ScreenTest {
 protected:
  void SetUp() override {
    for (testing::ProbeForm* form : {&first, &second}) {
      testing::ProbeForm* other = form == &first ? &second : &first;
      form->on("BtnGo", Event::Click, [form, other] {
        form->Show(other->name());
        form->Unload();
      });
    }
    start();
  }
};

TEST_F(SecondVisit, RunsLoadAgainAndKeepsTheFormLevelVariables) {
  first.remembered = "kept";
  app.click(control("BtnGo"));
  app.pressAccessKey('G');
  EXPECT_EQ(app.activeForm(), &first);
  EXPECT_EQ(first.loads, 2);
  EXPECT_EQ(second.loads, 1);
  EXPECT_EQ(first.remembered, "kept");
}

TEST_F(SecondVisit, FindsEveryControlBackAtItsInitialValue) {
  control("Box").setText("12 ");
  control("BtnHidden").setVisible(true);
  control("Fixed").setLocked(false);
  control("Other").setBackColor(colors::kRed);
  control("Title").setCaption("changed");
  control("List").AddItem("705");
  cell(2).setLeft(0);
  cell(3).SetFocus();
  app.pressAccessKey('G');
  app.pressAccessKey('G');
  ASSERT_EQ(app.activeForm(), &first);
  EXPECT_EQ(control("Box").text(), " ");
  EXPECT_FALSE(control("BtnHidden").visible());
  EXPECT_TRUE(control("Fixed").locked());
  EXPECT_EQ(control("Other").backColor(), colors::kWhite);
  EXPECT_EQ(control("Title").caption(), "Probe");
  EXPECT_EQ(control("List").listCount(), 0);
  EXPECT_EQ(cell(2).left(), 3400);
  EXPECT_EQ(focusName(), "Box");
}

TEST_F(ScreenTest, UnloadingTheLastScreenEndsTheProgram) {
  first.on("BtnGo", Event::Click, [this] { first.Unload(); });
  start();
  app.click(control("BtnGo"));
  EXPECT_EQ(app.state(), Application::State::Ended);
}

TEST_F(ScreenTest, EndStopsTheProgramAtOnceWithItsFilesWritten) {
  bool after = false;
  first.on("BtnGo", Event::Click, [&] {
    first.files().Open("out", FileMode::Output, 2);
    first.files().Print(2, std::string("written"));
    first.End();
    after = true;
  });
  start();
  app.click(control("BtnGo"));
  EXPECT_EQ(app.state(), Application::State::Ended);
  EXPECT_FALSE(after);
  EXPECT_EQ(dir.read("out"), "written\r\n");
}

TEST_F(ScreenTest, AFatalErrorStopsTheProgramAtTheEventBoundaryWithFilesClosed) {
  bool after = false;
  first.on("BtnGo", Event::Click, [&] {
    first.files().Open("out", FileMode::Output, 1);
    first.files().Print(1, std::string("before the error"));
    cell(4).setText("x");
    after = true;
  });
  start();
  app.click(control("BtnGo"));
  ASSERT_EQ(app.state(), Application::State::Fatal);
  EXPECT_EQ(app.fatalError()->number(), 340);
  EXPECT_FALSE(after);
  EXPECT_EQ(dir.read("out"), "before the error\r\n");
  EXPECT_NO_THROW(app.files().Open("out", FileMode::Input, 1));
}

TEST_F(ScreenTest, NoEventRunsOnceTheProgramHasStopped) {
  int clicks = 0;
  first.on("BtnGo", Event::Click, [&] {
    ++clicks;
    first.End();
  });
  start();
  app.click(control("BtnGo"));
  app.pressAccessKey('G');
  app.click(control("BtnGo"));
  app.closeWindow();
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(app.state(), Application::State::Ended);
}

TEST_F(ScreenTest, AFatalErrorInLoadStopsTheStart) {
  first.onLoad = [this] { first.files().Open("DrawNumber", FileMode::Input, 1); };
  start();
  ASSERT_EQ(app.state(), Application::State::Fatal);
  EXPECT_EQ(app.fatalError()->number(), 53);
}

TEST_F(ScreenTest, TheWindowsCloseControlEndsTheProgram) {
  start();
  app.closeWindow();
  EXPECT_EQ(app.state(), Application::State::Ended);
}

TEST_F(ScreenTest, DialogsAnswerTheCallingCode) {
  int button = 0;
  std::string entered = "unset";
  first.on("BtnGo", Event::Click, [&] {
    button = app.MsgBox("Are these numbers correct?", msgbox::kYesNo, "Veridraw");
    entered = app.InputBox("Enter the Draw Number", "Draw Number", "", 3280, 2750);
  });
  dialogs.buttonAnswers = {msgbox::kNo};
  dialogs.textAnswers = {"705"};
  start();
  app.click(control("BtnGo"));
  EXPECT_EQ(button, msgbox::kNo);
  EXPECT_EQ(entered, "705");
  ASSERT_EQ(dialogs.shown.size(), 2u);
  EXPECT_EQ(dialogs.shown[0].prompt, "Are these numbers correct?");
  EXPECT_EQ(dialogs.shown[0].buttons, msgbox::kYesNo);
  EXPECT_EQ(dialogs.shown[1].title, "Draw Number");
}

FormDesign tableNamedOther() {
  return FormDesign{"Other", 100, 100, colors::kButtonFace, {}};
}

// A form named for one table and given another is a mistake of the program,
// found when the table is first needed.
TEST(SharedDesignTable, MustBearTheNameOfItsForm) {
  testing::TemporaryDirectory dir;
  testing::QueuedDialogs dialogs;
  Application application{dialogs, dir.path()};
  class Named : public Form {
   public:
    Named(Application& application, std::string name)
        : Form(application, std::move(name), designOnce<tableNamedOther>) {}
  };
  const Named right(application, "Other");
  EXPECT_EQ(right.design().name, "Other");
  const Named wrong(application, "Mine");
  EXPECT_EQ(wrong.name(), "Mine");
  EXPECT_THROW(wrong.design(), std::logic_error);
}

}  // namespace
}  // namespace veridraw
