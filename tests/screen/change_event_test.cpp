#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/probe_form.h"

namespace veridraw {
namespace {

using testing::ScreenTest;

using Strings = std::vector<std::string>;

// Records Box.Text as each run of the Change handler of Box finds it.
class ChangeEvent : public testing::ScreenTest {
 protected:
  Strings seen;

  void SetUp() override {
    first.on("Box", Event::Change, [this] { seen.push_back(control("Box").text()); });
    start();
  }
};

TEST_F(ChangeEvent, FiresAfterAKeystrokeThatAltersTheText) {
  app.typeCharacter('1');
  app.pressKey(Key::Space);
  EXPECT_EQ(seen, (Strings{"1 ", "1  "}));
}

TEST_F(ChangeEvent, FiresWhenCodeAssignsADifferentValueAndTheHandlerSeesIt) {
  control("Box").setText("12 ");
  control("Box").setText(" ");
  EXPECT_EQ(seen, (Strings{"12 ", " "}));
}

TEST_F(ChangeEvent, NothingWhenCodeAssignsTheValueTheBoxHolds) {
  control("Box").setText(" ");
  EXPECT_TRUE(seen.empty());
}

TEST_F(ChangeEvent, NothingForOtherPropertiesOrSetFocus) {
  Control& box = control("Box");
  box.setLocked(true);
  box.setLocked(false);
  box.setVisible(false);
  box.setVisible(true);
  box.setBackColor(colors::kRed);
  box.setForeColor(colors::kWhite);
  box.setBorderStyle(0);
  box.setTabStop(false);
  box.setLeft(600);
  box.setTop(600);
  box.setWidth(300);
  box.setHeight(300);
  box.setFontSize(12);
  box.SetFocus();
  EXPECT_TRUE(seen.empty());
}

TEST_F(ChangeEvent, NothingForKeysThatLeaveTheTextAsItIs) {
  for (const Key key : {Key::Backspace, Key::Left, Key::End, Key::Delete, Key::Home, Key::Right,
                        Key::Enter, Key::Escape, Key::Up, Key::Down})
    app.pressKey(key);
  EXPECT_TRUE(seen.empty());
}

TEST_F(ChangeEvent, NothingForAnotherBoxOrALockedBox) {
  control("Other").setText("changed");
  app.click(control("Fixed"));
  app.typeCharacter('1');
  EXPECT_TRUE(seen.empty());
  EXPECT_EQ(control("Fixed").text(), "fixed");
}

TEST_F(ScreenTest, AnAssignmentInAChangeHandlerRunsNestedBeforeTheNextStatement) {
  Strings log;
  const ControlRef box{first, "Box"};
  first.on("Box", Event::Change, [&] {
    const std::string text = box->text();
    log.push_back("enter [" + text + "]");
    if (!text.empty()) box->setText(text.substr(1));
    log.push_back("leave [" + text + "] finding [" + box->text() + "]");
  });
  start();
  box->setText("abc");
  EXPECT_EQ(log,
            (Strings{"enter [abc]", "enter [bc]", "enter [c]", "enter []", "leave [] finding []",
                     "leave [c] finding []", "leave [bc] finding []", "leave [abc] finding []"}));
}

TEST_F(ScreenTest, EveryElementOfAnArrayFiresTheOneHandlerWithItsIndex) {
  std::vector<int> indices;
  first.on("Cell", Event::Change, [&](int index) { indices.push_back(index); });
  start();
  cell(5).setText("1 ");
  cell(1).setText("2 ");
  cell(1).setText("2 ");
  cell(5).SetFocus();
  app.typeCharacter('3');
  EXPECT_EQ(indices, (std::vector<int>{5, 1, 5}));
}

// Each run of the handler appends to the text, which fires the next run
// nested inside it, until `remaining` runs out.
class NestedChange : public testing::ScreenTest {
 protected:
  int remaining = 0;
  int runs = 0;

  void SetUp() override {
    first.on("Box", Event::Change, [this] {
      ++runs;
      if (remaining-- > 0) control("Box").setText(control("Box").text() + "x");
    });
    start();
  }
};

TEST_F(NestedChange, NestsToTheDepthOfTheModel) {
  remaining = Application::kMaxEventNesting - 1;
  app.typeCharacter('1');
  EXPECT_TRUE(app.running());
  EXPECT_EQ(runs, Application::kMaxEventNesting);
  EXPECT_EQ(control("Box").text().size(), std::size_t(Application::kMaxEventNesting + 1));
}

TEST_F(NestedChange, OneRunBeyondTheDepthIsFatal28) {
  remaining = Application::kMaxEventNesting;
  app.typeCharacter('1');
  ASSERT_EQ(app.state(), Application::State::Fatal);
  EXPECT_EQ(app.fatalError()->number(), 28);
  EXPECT_EQ(app.fatalError()->text(), "Out of stack space");
  EXPECT_EQ(runs, Application::kMaxEventNesting);
}

TEST_F(NestedChange, AnEndlessChainEndsInFatal28) {
  remaining = 1'000'000;
  app.typeCharacter('1');
  ASSERT_EQ(app.state(), Application::State::Fatal);
  EXPECT_EQ(app.fatalError()->number(), 28);
}

}  // namespace
}  // namespace veridraw
