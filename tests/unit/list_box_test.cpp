#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "unit/probe_form.h"

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

}  // namespace
}  // namespace veridraw
