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
  using Count = std::uint64_t (Control::*)() const;
  // Whether running `action` on the control moved its count, or the count
  // that `count` reads.
  bool moves(Control& control, const std::function<void(Control&)>& action,
             Count count = &Control::revision) {
    const std::uint64_t before = (control.*count)();
    action(control);
    return (control.*count)() != before;
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

// The count of changes of the text alone, by which a reader that keeps what it
// read of a text knows whether to read it again.
class TextRevision : public ControlRevision {
 protected:
  bool movesText(Control& control, const std::function<void(Control&)>& action) {
    return moves(control, action, &Control::textRevision);
  }
};

TEST_F(TextRevision, MovesWithEveryChangeOfTheTextByTheProgram) {
  start();
  Control& box = control("Box");
  for (const char* text : {"1 ", "12 ", "  ", " ", "40 "}) {
    const std::uint64_t revision = box.revision();
    EXPECT_TRUE(movesText(box, [text](Control& c) { c.setText(text); })) << text;
    EXPECT_NE(box.revision(), revision) << text;
  }
}

TEST_F(TextRevision, MovesWithEveryEditOfTheUser) {
  start();
  Control& box = control("Box");
  EXPECT_TRUE(movesText(box, [this](Control&) { app.typeCharacter('4'); }));
  EXPECT_TRUE(movesText(box, [this](Control&) { app.typeCharacter('0'); }));
  EXPECT_TRUE(movesText(box, [this](Control&) { app.pressKey(Key::Backspace); }));
  EXPECT_FALSE(movesText(box, [this](Control&) { app.pressKey(Key::Home); }));
  EXPECT_TRUE(movesText(box, [this](Control&) { app.pressKey(Key::Delete); }));
  EXPECT_EQ(box.text(), " ");
}

// Locking, showing, painting or moving a cell, or its caret, moves the count of
// what a face shows and leaves the text's.
TEST_F(TextRevision, StaysWhenAnotherPropertyChanges) {
  start();
  Control& box = control("Box");
  box.setText("25 ");
  const std::vector<Setter> others{
      {"Locked", [](Control& c) { c.setLocked(!c.locked()); }},
      {"Visible", [](Control& c) { c.setVisible(!c.visible()); }},
      {"Visible again", [](Control& c) { c.setVisible(!c.visible()); }},
      {"Enabled", [](Control& c) { c.setEnabled(!c.enabled()); }},
      {"TabStop", [](Control& c) { c.setTabStop(!c.tabStop()); }},
      {"BackColor", [](Control& c) { c.setBackColor(c.backColor() ^ 0xFF); }},
      {"ForeColor", [](Control& c) { c.setForeColor(c.foreColor() ^ 0xFF); }},
      {"BorderStyle", [](Control& c) { c.setBorderStyle(1 - c.borderStyle()); }},
      {"FontSize", [](Control& c) { c.setFontSize(c.fontSize() + 1); }},
      {"Top", [](Control& c) { c.setTop(c.top() + 15); }},
      {"Caret", [](Control& c) { c.setCaret(2); }},
  };
  for (const Setter& setter : others) {
    EXPECT_TRUE(moves(box, setter.change)) << setter.property;
    EXPECT_FALSE(movesText(box, [](Control&) {})) << setter.property;
  }
  const std::uint64_t text = box.textRevision();
  for (const Setter& setter : others)
    setter.change(box);
  EXPECT_EQ(box.textRevision(), text);
  EXPECT_EQ(box.text(), "25 ");
}

// An assignment of the text held raises no Change and moves no count, though
// it puts the caret at 0.
TEST_F(TextRevision, StaysWhenTheTextAssignedIsTheTextHeld) {
  start();
  Control& box = control("Box");
  box.setText("7 ");
  EXPECT_FALSE(movesText(box, [](Control& c) { c.setText("7 "); }));
  box.setCaret(1);
  EXPECT_FALSE(movesText(box, [](Control& c) { c.setText("7 "); }));
  EXPECT_EQ(box.caret(), 0);
}

TEST_F(TextRevision, IsTheBoxsOwn) {
  start();
  Control& box = control("Box");
  Control& other = control("Other");
  const std::uint64_t otherBefore = other.textRevision();
  box.setText("3 ");
  app.typeCharacter('9');
  EXPECT_EQ(other.textRevision(), otherBefore);
}

}  // namespace
}  // namespace veridraw
