#include "draws/veridraw7f.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "program/program.h"
#include "store/number_cell.h"
#include "support/test_support.h"

namespace veridraw {
namespace {

// The draw screen of a running program, reached from the start screen.
class DrawScreen : public ::testing::Test {
 protected:
  void SetUp() override {
    dir.write("DrawNumber", "800\r\n");
    dir.write("800", "800\r\nX0102030405060708\r\n\r\n");
    dir.write("900", "900\r\nX1112131415161718\r\nZ17033908\r\n");
    addVeridrawForms(program);
    program.start(kFirstForm);
    program.pressKey(Key::Enter);
    ASSERT_TRUE(program.running());
  }

  Veridraw7f& form() { return static_cast<Veridraw7f&>(program.form("Veridraw7f")); }
  const store::DrawFields& inHand() { return form().drawInHand(); }
  void click(const std::string& name) { program.click(form().control(name)); }
  void pick(const std::string& item) {
    Control& list = form().control("List1");
    for (int i = 0; i < list.listCount(); ++i)
      if (list.items()[static_cast<std::size_t>(i)] == item) program.selectItem(list, i);
  }
  void type(const std::string& keys) {
    for (const char key : keys)
      program.typeCharacter(key);
  }
  // Starts an entry for draw 1200, picks draw 900 in the list while it runs, so
  // that both its lines are in hand, fills the cells and answers No.
  void answerNoWithDraw900InHand(const std::string& enterButton, const std::string& cells,
                                 const std::string& keys, const std::string& noButton) {
    dialogs.textAnswers = {"1200"};
    click(enterButton);
    pick("900");
    ASSERT_EQ(inHand().StrikeNumbersText, "Z17033908");
    program.click(form().control(cells, 1));
    type(keys);
    click(noButton);
    ASSERT_TRUE(program.running());
  }

  testing::TemporaryDirectory dir;
  testing::QueuedDialogs dialogs;
  Application program{dialogs, dir.path()};
};

TEST_F(DrawScreen, HasTheSizeOfATicketScreen) {
  const FormDesign design = veridraw7fDesign();
  EXPECT_EQ(design.name, "Veridraw7f");
  EXPECT_EQ(design.clientWidth, 11880);
  EXPECT_EQ(design.clientHeight, 8595);
}

TEST_F(DrawScreen, LoadPutsTheCurrentDrawInHand) {
  EXPECT_EQ(inHand().CurrentDrawText, "800");
  EXPECT_EQ(inHand().DrawFileName, "800");
  EXPECT_EQ(inHand().DrawNumbersText, "X0102030405060708");
  EXPECT_EQ(inHand().StrikeNumbersText, "");
}

TEST_F(DrawScreen, ACancelAtThePromptLeavesNoDrawNumber) {
  dialogs.textAnswers = {""};
  click("BtnEnterLottoDrawNumbers");
  EXPECT_EQ(inHand().CurrentDrawText, "");
  EXPECT_EQ(inHand().DrawFileName, "");
  EXPECT_EQ(inHand().DrawNumbersText, "");
  EXPECT_EQ(inHand().StrikeNumbersText, "");
  EXPECT_TRUE(dialogs.buttonAnswers.empty());
}

TEST_F(DrawScreen, ACancelWithoutTheLineOfItsGameKeepsTheOtherLine) {
  dialogs.textAnswers = {""};
  click("BtnEnterStrikeNumbers");
  EXPECT_EQ(inHand().CurrentDrawText, "");
  EXPECT_EQ(inHand().DrawNumbersText, "X0102030405060708");
}

TEST_F(DrawScreen, NoInTheStrikeEntryDropsTheStrikeLineInHand) {
  answerNoWithDraw900InHand("BtnEnterStrikeNumbers", "TxtStrikeNumbers", "21093714", "BtnNo2");
  EXPECT_EQ(inHand().StrikeNumbersText, "");
  EXPECT_EQ(inHand().DrawNumbersText, "X1112131415161718");
}

TEST_F(DrawScreen, NoInTheLottoEntryLeavesTheLottoLineInHand) {
  answerNoWithDraw900InHand("BtnEnterLottoDrawNumbers", "TxtDrawnNumbers", "2122232425262728",
                            "BtnNo");
  EXPECT_EQ(inHand().DrawNumbersText, "X1112131415161718");
  EXPECT_EQ(inHand().StrikeNumbersText, "Z17033908");
}

TEST_F(DrawScreen, YesPacksTheSortedRowBonusAndPowerBall) {
  dialogs.textAnswers = {"1200"};
  click("BtnEnterLottoDrawNumbers");
  type("3902400506110817");
  click("BtnYes");
  EXPECT_EQ(inHand().DrawNumbersText, "X0205061139400817");
  EXPECT_EQ(inHand().CurrentDrawText, "1200");
  EXPECT_EQ(inHand().DrawFileName, "1200");
  EXPECT_EQ(dir.read("1200"), "1200\r\nX0205061139400817\r\n\r\n");
  EXPECT_EQ(dialogs.shown.size(), 1u);
}

// The outer counter of the sort and the second counter of the test for
// repeats are one variable. A repeat typed into the spare cell 9 after a
// complete entry is refused; the run nested in that refusal completes the
// entry again and sorts, and the test that was interrupted goes on from the
// counter as the sort left it.
TEST_F(DrawScreen, TheSortCounterIsTheRepeatTestCounter) {
  dialogs.textAnswers = {"1200"};
  click("BtnEnterLottoDrawNumbers");
  type("0102030405060708");
  ASSERT_EQ(dialogs.shown.size(), 1u);  // the draw number
  Control& spare = form().control("TxtDrawnNumbers", 9);
  program.click(spare);
  type("0");
  program.click(spare);
  spare.setCaret(1);
  dialogs.buttonAnswers = {msgbox::kOk, msgbox::kOk, msgbox::kOk, msgbox::kOk};
  type("1");
  ASSERT_TRUE(program.running());
  std::vector<std::string> prompts;
  for (std::size_t i = 1; i < dialogs.shown.size(); ++i)
    prompts.push_back(dialogs.shown[i].prompt);
  EXPECT_EQ(prompts, (std::vector<std::string>{kIncorrectNumberMessage, kIncorrectNumberMessage}));
  std::vector<std::string> cells;
  for (int cell = 1; cell <= 9; ++cell)
    cells.push_back(form().control("TxtDrawnNumbers", cell).text());
  EXPECT_EQ(cells, (std::vector<std::string>{"01 ", "02 ", "03 ", "04 ", "05 ", "06 ", "07 ", "08 ",
                                             " "}));
}

}  // namespace
}  // namespace veridraw
