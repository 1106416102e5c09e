// The count of changes of a control, by which a face redraws only the controls
// that changed: every change of a property moves it, an assignment of the
// value that a property already holds doesn't.
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "support/probe_form.h"

namespace veridraw {
namespace {

using testing::ScreenTest;

struct Setter {
  const char* property;
  std::function<void(Control&)> change;
};

class ControlRevision : public ScreenTest {
 protected:
  // Whether running `action` on the control moved its count.
  bool moves(Control& control, const std::function<void(Control&)>& action) {
    const std::uint64_t before = control.revision();
    action(control);
    return control.revision() != before;
  }
};

TEST_F(ControlRevision, EveryPropertyThatChangesMovesTheCount) {
  start();
  Control& box = control("Box");
  const std::vector<Setter> setters{
      {"Text", [](Control& c) { c.setText("12 "); }},
      {"Caption", [](Control& c) { c.setCaption("Line B"); }},
      {"Locked", [](Control& c) { c.setLocked(!c.locked()); }},
      {"TabStop", [](Control& c) { c.setTabStop(!c.tabStop()); }},
      {"TabIndex", [](Control& c) { c.setTabIndex(c.tabIndex() + 7); }},
      {"BackColor", [](Control& c) { c.setBackColor(c.backColor() ^ 0xFF); }},
      {"ForeColor", [](Control& c) { c.setForeColor(c.foreColor() ^ 0xFF); }},
      {"FontSize", [](Control& c) { c.setFontSize(c.fontSize() + 1); }},
      {"FontBold", [](Control& c) { c.setFontBold(!c.fontBold()); }},
      {"BorderStyle", [](Control& c) { c.setBorderStyle(1 - c.borderStyle()); }},
      {"Left", [](Control& c) { c.setLeft(c.left() + 15); }},
      {"Top", [](Control& c) { c.setTop(c.top() + 15); }},
      {"Width", [](Control& c) { c.setWidth(c.width() + 15); }},
      {"Height", [](Control& c) { c.setHeight(c.height() + 15); }},
      {"Visible", [](Control& c) { c.setVisible(!c.visible()); }},
      {"Enabled", [](Control& c) { c.setEnabled(!c.enabled()); }},
  };
  for (const Setter& setter : setters)
    EXPECT_TRUE(moves(box, setter.change)) << setter.property;
}

TEST_F(ControlRevision, AssigningTheValueHeldLeavesTheCount) {
  start();
  Control& box = control("Box");
  box.setText("7 ");
  const std::vector<Setter> same{
      {"Text", [](Control& c) { c.setText("7 "); }},
      {"Caption", [](Control& c) { c.setCaption(c.caption()); }},
      {"Locked", [](Control& c) { c.setLocked(c.locked()); }},
      {"BackColor", [](Control& c) { c.setBackColor(c.backColor()); }},
      {"FontSize", [](Control& c) { c.setFontSize(c.fontSize()); }},
      {"Left", [](Control& c) { c.setLeft(c.left()); }},
      {"Visible", [](Control& c) { c.setVisible(c.visible()); }},
      {"Caret", [](Control& c) { c.setCaret(c.caret()); }},
  };
  for (const Setter& setter : same)
    EXPECT_FALSE(moves(box, setter.change)) << setter.property;
}

TEST_F(ControlRevision, TypingAndTheCaretMoveTheCountOfTheBoxAlone) {
  start();
  Control& box = control("Box");
  Control& other = control("Other");
  const std::uint64_t otherBefore = other.revision();
  EXPECT_TRUE(moves(box, [this](Control&) { app.typeCharacter('4'); }));
  EXPECT_TRUE(moves(box, [this](Control&) { app.pressKey(Key::Home); }));
  EXPECT_TRUE(moves(box, [this](Control&) { app.pressKey(Key::Delete); }));
  EXPECT_EQ(other.revision(), otherBefore);
}

TEST_F(ControlRevision, TheItemsSelectionAndScrollingOfAListMoveTheCount) {
  start();
  Control& list = control("List");
  EXPECT_TRUE(moves(list, [](Control& c) { c.AddItem("705"); }));
  EXPECT_TRUE(moves(list, [](Control& c) { c.AddItem("706"); }));
  EXPECT_TRUE(moves(list, [](Control& c) { c.selectItem(1); }));
  EXPECT_FALSE(moves(list, [](Control& c) { c.selectItem(1); }));
  EXPECT_TRUE(moves(list, [](Control& c) { c.setTopIndex(1); }));
  EXPECT_TRUE(moves(list, [](Control& c) { c.Clear(); }));
  EXPECT_FALSE(moves(list, [](Control& c) { c.Clear(); }));
}

}  // namespace
}  // namespace veridraw
