// The walk of a ticket reads each cell's text once and keeps what it read until
// the text changes. These tests hold that a kept reading always answers for the
// text as it stands: after the user's keys, after an assignment by the program,
// after a change of another property, and in the new controls of a new Load.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "lotto/lotto_screen_support.h"
#include "screen/strings.h"
#include "store/number_cell.h"

namespace veridraw::testing {
namespace {

// The Lotto screen with its readings of the cells in view.
class ReadableLotto : public Veridraw7b {
 public:
  using Veridraw7b::Veridraw7b;
  const auto& reading(int cell) const { return Reading(cell); }
};

class CellReadings : public LottoScreen {
 protected:
  void openReadable() { openScreen<ReadableLotto>("705"); }
  const ReadableLotto& lotto() const { return static_cast<const ReadableLotto&>(screen()); }

  // The kept reading of a cell against its text read afresh.
  void expectReadingOf(int cell, const std::string& expectedText) {
    const std::string& text = c("LineA", cell).text();
    ASSERT_EQ(text, expectedText);
    const auto& reading = lotto().reading(cell);
    EXPECT_EQ(reading.length, Len(text)) << text;
    EXPECT_EQ(reading.empty, text == kEmptyCell) << text;
    EXPECT_EQ(reading.stepBack, text == kStepBackCell) << text;
    EXPECT_EQ(reading.outOfRange, IsOutOfRange(text)) << text;
    EXPECT_EQ(reading.value, Val(text)) << text;
  }
};

TEST_F(CellReadings, FollowTheKeysOfTheUser) {
  openReadable();
  chooseLines(4);
  expectReadingOf(1, " ");
  type("1");
  expectReadingOf(1, "1 ");
  type("2");
  expectReadingOf(1, "12 ");
  EXPECT_EQ(lotto().reading(1).value, 12);
}

TEST_F(CellReadings, FollowAnEditThatTakesACharacterAway) {
  openReadable();
  chooseLines(4);
  type("3");
  expectReadingOf(1, "3 ");
  ASSERT_TRUE(c("LineA", 1).backspace());
  expectReadingOf(1, " ");
  EXPECT_EQ(lotto().reading(1).value, 0);
}

// Cell 40 lies past the walk of a ticket of four lines, so its assignments
// change nothing else.
TEST_F(CellReadings, FollowEveryAssignmentByTheProgram) {
  openReadable();
  chooseLines(4);
  Control& cell = c("LineA", 40);
  for (const char* text : {"41 ", "  ", " ", "07 ", "7x ", "00 ", "40 "}) {
    cell.setText(text);
    expectReadingOf(40, text);
  }
  EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(CellReadings, StayRightWhenAnotherPropertyChanges) {
  openReadable();
  chooseLines(4);
  type("25");
  expectReadingOf(1, "25 ");
  c("LineA", 1).setBackColor(colors::kRed);
  c("LineA", 1).setLocked(false);
  expectReadingOf(1, "25 ");
  EXPECT_EQ(lotto().reading(1).value, 25);
}

// The walk locks every complete cell and opens the next at each key, which
// moves their revisions but not their texts: what was read of them is kept,
// and it still follows the next change of their texts.
TEST_F(CellReadings, AreKeptThroughLockingAndFollowTheNextChangeOfTheText) {
  openReadable();
  chooseLines(4);
  type("2530");
  expectReadingOf(2, "30 ");
  const Control& second = c("LineA", 2);
  ASSERT_TRUE(second.locked());
  const std::uint64_t revision = second.revision();
  const std::uint64_t textRevision = second.textRevision();
  EXPECT_EQ(lotto().reading(2).textRevision, textRevision);
  // The walk of the next key opens cell 2 as it leaves cell 1 and locks it
  // again as it leaves it.
  type("3");
  ASSERT_TRUE(second.locked());
  EXPECT_NE(second.revision(), revision);
  EXPECT_EQ(second.textRevision(), textRevision);
  EXPECT_EQ(lotto().reading(2).textRevision, textRevision);
  expectReadingOf(2, "30 ");
  // The space bar in the empty cell 3 empties cell 2 and cell 3, and cell 1
  // stays as it was.
  app->pressKey(Key::Backspace);
  ASSERT_EQ(c("LineA", 3).text(), " ");
  type(" ");
  expectReadingOf(1, "25 ");
  expectReadingOf(2, " ");
  expectReadingOf(3, " ");
  type(" ");
  expectReadingOf(1, " ");
  expectReadingOf(2, " ");
}

// After Main Menu and back, the cells are new controls with the texts of the
// design; nothing read from the old ones is kept.
TEST_F(CellReadings, AreTakenAfreshFromTheControlsOfANewLoad) {
  openReadable();
  chooseLines(4);
  type("3839");
  expectReadingOf(1, "38 ");
  expectReadingOf(2, "39 ");
  reopen();
  chooseLines(4);
  expectReadingOf(1, " ");
  expectReadingOf(2, " ");
  type("05");
  expectReadingOf(1, "05 ");
}

}  // namespace
}  // namespace veridraw::testing
