#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/probe_form.h"

namespace veridraw {
namespace {

using Strings = std::vector<std::string>;

// List holds "705", "706", "707"; each Click records the list's Text.
class ListBox : public testing::ScreenTest {
 protected:
  Strings clicked;

  void SetUp() override {
    first.on("List", Event::Click, [this] { clicked.push_back(list().text()); });
    start();
    for (const char* item : {"705", "706", "707"})
      list().AddItem(item);
  }
  Control& list() { return control("List"); }
};

TEST_F(ListBox, AddItemAppendsAndNothingIsSelected) {
  EXPECT_EQ(list().items(), (Strings{"705", "706", "707"}));
  EXPECT_EQ(list().listCount(), 3);
  EXPECT_EQ(list().listIndex(), -1);
  EXPECT_EQ(list().text(), "");
}

TEST_F(ListBox, ClearEmptiesTheList) {
  app.selectItem(list(), 1);
  list().Clear();
  EXPECT_TRUE(list().items().empty());
  EXPECT_EQ(list().text(), "");
  EXPECT_EQ(list().listIndex(), -1);
}

TEST_F(ListBox, TheUsersSelectionFiresClickWithTheItemAsText) {
  app.selectItem(list(), 1);
  EXPECT_EQ(clicked, (Strings{"706"}));
  EXPECT_EQ(list().text(), "706");
  EXPECT_EQ(focusName(), "List");
}

TEST_F(ListBox, TopIndexOnlyScrolls) {
  app.selectItem(list(), 0);
  list().setTopIndex(2);
  EXPECT_EQ(list().topIndex(), 2);
  EXPECT_EQ(list().listIndex(), 0);
  EXPECT_EQ(list().text(), "705");
  EXPECT_EQ(clicked.size(), 1u);
}

TEST_F(ListBox, ArrowKeysOnTheFocusedListMoveTheSelection) {
  list().SetFocus();
  for (const Key key :
       {Key::Down, Key::Down, Key::Down, Key::Down, Key::Up, Key::Home, Key::Up, Key::End})
    app.pressKey(key);
  EXPECT_EQ(clicked, (Strings{"705", "706", "707", "706", "705", "707"}));
}

TEST_F(ListBox, KeysOnAnEmptyListFireNothing) {
  list().Clear();
  list().SetFocus();
  for (const Key key : {Key::Down, Key::Up, Key::Home, Key::End})
    app.pressKey(key);
  EXPECT_TRUE(clicked.empty());
}

// The probe's list is 975 twips high: five rows of 195 show at once.
class LongListBox : public ListBox {
 protected:
  void SetUp() override {
    ListBox::SetUp();
    list().Clear();
    for (int draw = 1; draw <= 12; ++draw)
      list().AddItem(std::to_string(700 + draw));
    list().SetFocus();
  }
};

TEST_F(LongListBox, PageDownMovesAPageLessOneRowAndScrollsTheSelectionToTheFoot) {
  ASSERT_EQ(list().visibleRows(), 5);
  app.pressKey(Key::PageDown);
  EXPECT_EQ(list().listIndex(), 4);
  EXPECT_EQ(list().topIndex(), 0);
  app.pressKey(Key::PageDown);
  EXPECT_EQ(list().listIndex(), 8);
  EXPECT_EQ(list().topIndex(), 4);
  app.pressKey(Key::PageDown);
  app.pressKey(Key::PageDown);
  EXPECT_EQ(list().listIndex(), 11);
  EXPECT_EQ(clicked, (Strings{"705", "709", "712"}));
}

TEST_F(LongListBox, PageUpMovesBackAndStopsAtTheFirstItem) {
  app.pressKey(Key::End);
  EXPECT_EQ(list().topIndex(), 7);
  app.pressKey(Key::PageUp);
  EXPECT_EQ(list().listIndex(), 7);
  EXPECT_EQ(list().topIndex(), 7);
  app.pressKey(Key::PageUp);
  EXPECT_EQ(list().listIndex(), 3);
  EXPECT_EQ(list().topIndex(), 3);
  app.pressKey(Key::PageUp);
  app.pressKey(Key::PageUp);
  EXPECT_EQ(list().listIndex(), 0);
  EXPECT_EQ(list().topIndex(), 0);
  EXPECT_EQ(clicked, (Strings{"712", "708", "704", "701"}));
}

TEST_F(LongListBox, PageUpWithNothingSelectedSelectsTheFirstItem) {
  app.pressKey(Key::PageUp);
  EXPECT_EQ(clicked, (Strings{"701"}));
}

TEST_F(LongListBox, AListOneRowHighPagesOneItemAtATime) {
  list().setHeight(300);
  ASSERT_EQ(list().visibleRows(), 1);
  app.pressKey(Key::PageDown);
  app.pressKey(Key::PageDown);
  app.pressKey(Key::PageUp);
  EXPECT_EQ(clicked, (Strings{"702", "703", "702"}));
}

TEST_F(ListBox, ATypedCharacterSelectsTheNextItemBeginningWithItAndWraps) {
  list().Clear();
  for (const char* item : {"Lotto # 1", "705", "lotto # 2", "Strike # 3", "Lotto # 4"})
    list().AddItem(item);
  list().SetFocus();
  for (const char c : std::string("lLlLs7"))
    app.typeCharacter(c);
  EXPECT_EQ(clicked,
            (Strings{"Lotto # 1", "lotto # 2", "Lotto # 4", "Lotto # 1", "Strike # 3", "705"}));
  EXPECT_EQ(list().topIndex(), 0);
}

TEST_F(ListBox, ATypedCharacterStartsAfterTheSelectionAndKeepsTheItemInView) {
  list().Clear();
  for (const char* item : {"1", "10", "100", "2", "20", "200", "1000"})
    list().AddItem(item);
  app.selectItem(list(), 4);
  clicked.clear();
  app.typeCharacter('1');
  app.typeCharacter('2');
  EXPECT_EQ(clicked, (Strings{"1000", "2"}));
  EXPECT_EQ(list().listIndex(), 3);
  EXPECT_EQ(list().topIndex(), 2);
}

TEST_F(ListBox, ACharacterThatBeginsNoOtherItemRaisesNothing) {
  list().SetFocus();
  app.typeCharacter('9');
  app.typeCharacter('x');
  EXPECT_TRUE(clicked.empty());
  EXPECT_EQ(list().listIndex(), -1);
  app.selectItem(list(), 0);
  app.typeCharacter('x');
  EXPECT_EQ(list().listIndex(), 0);
  EXPECT_EQ(clicked, (Strings{"705"}));
  list().Clear();
  app.typeCharacter('7');
  EXPECT_EQ(clicked, (Strings{"705"}));
}

TEST_F(ListBox, TheOnlyItemWithTheCharacterStaysSelectedWithoutAnotherClick) {
  list().AddItem("8");
  list().SetFocus();
  app.typeCharacter('8');
  app.typeCharacter('8');
  EXPECT_EQ(clicked, (Strings{"8"}));
}

TEST_F(ListBox, TypingIntoAListThatHasNoFocusSelectsNothing) {
  control("Box").SetFocus();
  app.typeCharacter('7');
  EXPECT_TRUE(clicked.empty());
  EXPECT_EQ(control("Box").text(), "7 ");
}

}  // namespace
}  // namespace veridraw
