#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

#include "support/probe_form.h"

namespace veridraw {
namespace {

using testing::ScreenTest;

using Step = std::variant<char, Key>;

struct EditCase {
  std::string name;
  std::string before;  // assigned by code, so the caret starts at 0
  std::vector<Step> steps;
  std::string after;
  int caret;
  int changes;
};

class SingleLineEditing : public testing::ScreenTest,
                          public ::testing::WithParamInterface<EditCase> {};

TEST_P(SingleLineEditing, ActsAtTheCaret) {
  const EditCase& c = GetParam();
  int changes = 0;
  first.on("Box", Event::Change, [&] { ++changes; });
  start();
  ASSERT_EQ(focusName(), "Box");
  control("Box").setText(c.before);
  changes = 0;
  for (const Step& step : c.steps) {
    if (const char* typed = std::get_if<char>(&step)) {
      app.typeCharacter(*typed);
    } else {
      app.pressKey(std::get<Key>(step));
    }
  }
  EXPECT_EQ(control("Box").text(), c.after);
  EXPECT_EQ(control("Box").caret(), c.caret);
  EXPECT_EQ(changes, c.changes);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, SingleLineEditing,
    ::testing::Values(
        EditCase{"OneDigitGoesBeforeTheBlank", " ", {'1'}, "1 ", 1, 1},
        EditCase{"TwoDigitsFillACell", " ", {'1', '2'}, "12 ", 2, 2},
        EditCase{"SpaceKeyInAnEmptyCell", " ", {Key::Space}, "  ", 1, 1},
        EditCase{"TypedBlankInAnEmptyCell", " ", {' '}, "  ", 1, 1},
        EditCase{"EndThenType", "abc", {Key::End, 'd'}, "abcd", 4, 1},
        EditCase{"HomeThenType", "abc", {Key::End, Key::Home, 'x'}, "xabc", 1, 1},
        EditCase{"RightThenBackspace", "abc", {Key::Right, Key::Backspace}, "bc", 0, 1},
        EditCase{"BackspaceAtTheStart", "abc", {Key::Backspace}, "abc", 0, 0},
        EditCase{"DeleteAtTheCaret", "abc", {Key::Delete}, "bc", 0, 1},
        EditCase{"DeleteAtTheEnd", "abc", {Key::End, Key::Delete}, "abc", 3, 0},
        EditCase{"LeftThenBackspace", "abc", {Key::End, Key::Left, Key::Backspace}, "ac", 1, 1},
        EditCase{"LeftStopsAtTheStart", "abc", {Key::Left}, "abc", 0, 0},
        EditCase{"RightStopsAtTheEnd", "abc", {Key::End, Key::Right}, "abc", 3, 0},
        EditCase{"EnterAndEscapeLeaveTheText", "abc", {Key::Enter, Key::Escape}, "abc", 0, 0}),
    [](const auto& info) { return info.param.name; });

TEST_F(ScreenTest, AfterCodeAssignsTextTheCaretIsAtTheStart) {
  start();
  app.typeCharacter('a');
  app.typeCharacter('b');
  ASSERT_EQ(control("Box").caret(), 2);
  control("Box").setText("xy");
  EXPECT_EQ(control("Box").caret(), 0);
  app.typeCharacter('1');
  EXPECT_EQ(control("Box").text(), "1xy");
}

TEST_F(ScreenTest, AssigningTheSameTextAlsoPutsTheCaretAtTheStart) {
  start();
  app.typeCharacter('a');
  control("Box").setText("a ");
  EXPECT_EQ(control("Box").caret(), 0);
}

TEST_F(ScreenTest, SetFocusLeavesTheCaretWhereCodeLeftIt) {
  start();
  cell(2).setText(" ");
  cell(2).SetFocus();
  app.typeCharacter('1');
  app.typeCharacter('2');
  EXPECT_EQ(cell(2).text(), "12 ");
}

TEST_F(ScreenTest, ALockedBoxRefusesKeysButKeepsTheFocus) {
  int changes = 0;
  first.on("Fixed", Event::Change, [&] { ++changes; });
  start();
  app.click(control("Fixed"));
  ASSERT_EQ(focusName(), "Fixed");
  app.typeCharacter('z');
  for (const Key key : {Key::Space, Key::Delete, Key::End, Key::Backspace})
    app.pressKey(key);
  EXPECT_EQ(control("Fixed").text(), "fixed");
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(focusName(), "Fixed");
}

TEST_F(ScreenTest, CodeCanStillAssignTheTextOfALockedBox) {
  int changes = 0;
  first.on("Fixed", Event::Change, [&] { ++changes; });
  start();
  control("Fixed").setText("new");
  EXPECT_EQ(control("Fixed").text(), "new");
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace veridraw
