// Saved tickets on the Lotto screen: saving, loading and comparing with the
// draw on display, deleting, and the flag that tells whether tickets exist.
#include <gtest/gtest.h>

#include "lotto/lotto_screen_support.h"

namespace veridraw::testing {
namespace {

constexpr const char* kAskNumber = "Enter the Ticket Number";
constexpr const char* kBadNumber = "You Must enter the Ticket Number";
const std::vector<std::string> kFourLines = {"010203040506", "070809101112", "131415161718",
                                             "192021222324"};
const std::string kFourLinesFile =
    " 4 \r\nLotto # 7\r\n 010203040506070809101112131415161718192021222324\r\n";

class LottoSaved : public LottoScreen {
 protected:
  void saveAs(const std::vector<std::string>& answers) {
    for (const std::string& answer : answers)
      dialogs.textAnswers.push_back(answer);
    click("BtnSaveTicket");
  }
  void deleteTicket(const std::string& answer) {
    dialogs.textAnswers.push_back(answer);
    click("BtnDeleteTicket");
  }
};

TEST_F(LottoSaved, SavingWritesTheTicketAndShowsItInTheReferenceList) {
  open();
  typeTicket(kFourLines);
  saveAs({"7"});
  ASSERT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(dialogs.shown[0].prompt, kAskNumber);
  EXPECT_EQ(dialogs.shown[0].title, "Ticket Number");
  EXPECT_EQ(dir.read("Lotto # 7"), kFourLinesFile);
  EXPECT_EQ(dir.read("TicketNumber"), "Lotto # 7\r\n");
  EXPECT_EQ(c("LblSaved").caption(), "Ticket Lotto # 7 Has been Saved");
  EXPECT_TRUE(c("LblSaved").visible());
  EXPECT_EQ(c("List2").items(), std::vector<std::string>{"Lotto # 7"});
  EXPECT_TRUE(c("LstLottoTicket").items().empty());
  for (const char* hidden : {"BtnSaveTicket", "List1", "LblDrawsAvailable", "LstLottoTicket"})
    EXPECT_FALSE(c(hidden).visible()) << hidden;
  EXPECT_TRUE(c("CmdShowResults").visible());
  EXPECT_TRUE(c("List2").visible());
  click("CmdShowResults");
  EXPECT_FALSE(c("LblSaved").visible());
}

TEST_F(LottoSaved, CancellingTheNumberSavesNothingAndTheTicketCanBeSavedLater) {
  open();
  typeTicket(kFourLines);
  saveAs({""});
  EXPECT_FALSE(dir.exists("TicketNumber"));
  EXPECT_TRUE(c("BtnSaveTicket").visible());
  EXPECT_FALSE(c("LblSaved").visible());
  saveAs({"7"});
  EXPECT_EQ(dir.read("Lotto # 7"), kFourLinesFile);
}

TEST_F(LottoSaved, NumbersOutsideOneTo1768AreAskedAgain) {
  open();
  typeTicket(kFourLines);
  dialogs.buttonAnswers = {1, 1, 1};
  saveAs({"0", "1769", "seven", "1768"});
  const std::vector<std::string> expected = {kAskNumber, kBadNumber, kAskNumber, kBadNumber,
                                             kAskNumber, kBadNumber, kAskNumber};
  EXPECT_EQ(messages(), expected);
  EXPECT_EQ(dialogs.shown[1].title, "Ticket Number");
  EXPECT_EQ(dialogs.shown[1].buttons, 0);
  EXPECT_TRUE(dir.exists("Lotto # 1768"));
  EXPECT_FALSE(dir.exists("Lotto # 0"));
  EXPECT_FALSE(dir.exists("Lotto # 1769"));
}

TEST_F(LottoSaved, ANumberNotInPlainDigitsNamesAFileThatNoListFinds) {
  open();
  typeTicket(kFourLines);
  saveAs({"7x"});
  EXPECT_TRUE(dir.exists("Lotto # 7x"));
  EXPECT_EQ(c("LblSaved").caption(), "Ticket Lotto # 7x Has been Saved");
  EXPECT_TRUE(c("List2").items().empty());
}

TEST_F(LottoSaved, ATicketSavedAs07IsAFileThatTheListsDoNotFind) {
  open();
  typeTicket(kFourLines);
  saveAs({"07"});
  EXPECT_TRUE(dir.exists("Lotto # 07"));
  EXPECT_TRUE(c("List2").items().empty());
}

TEST_F(LottoSaved, ATicketSavedAs101IsInNoListAndCantBeDeleted) {
  open();
  typeTicket(kFourLines);
  saveAs({"101"});
  EXPECT_TRUE(dir.exists("Lotto # 101"));
  EXPECT_TRUE(c("List2").items().empty());
  reopen();
  EXPECT_TRUE(c("LstLottoTicket").items().empty());
  click("BtnCheckSavedTickets");
  deleteTicket("101");
  EXPECT_EQ(c("LblSaved").caption(), "Lotto # 101 does not exist");
  EXPECT_TRUE(dir.exists("Lotto # 101"));
}

TEST_F(LottoSaved, SavingOverATicketReplacesItWithNoQuestion) {
  writeTicket("7", std::vector<std::string>(14, "010203040506"));
  open();
  typeTicket(kFourLines);
  saveAs({"7"});
  EXPECT_EQ(dir.read("Lotto # 7"), kFourLinesFile);
  EXPECT_EQ(dialogs.shown.size(), 1u);
}

TEST_F(LottoSaved, ClickingATicketLoadsItAndComparesItWithTheDrawOnDisplay) {
  writeTicket("5", {"030817223940", "010203040506", "010203040506", "010203040506"});
  open();
  click("BtnCheckSavedTickets");
  pick("LstLottoTicket", "Lotto # 5");
  EXPECT_EQ(dir.read("TicketNumber"), "Lotto # 5\r\n");
  EXPECT_EQ(text(1), "03");
  EXPECT_EQ(text(24), "06");
  EXPECT_EQ(c("IntResult", 1).text(), "03");
  EXPECT_EQ(c("IntResult", 7).text(), " ");
  for (int cell = 1; cell <= 84; ++cell) {
    EXPECT_EQ(c("LineA", cell).visible(), cell <= 24) << cell;
    if (cell <= 24) {
      EXPECT_EQ(c("LineA", cell).backColor(), colors::kPaleYellow) << cell;
    }
  }
  for (int line = 1; line <= 14; ++line) {
    EXPECT_EQ(c("TextATxt", line).visible(), line <= 4) << line;
    EXPECT_EQ(c("TextBTxt", line).visible(), line <= 4) << line;
  }
  EXPECT_TRUE(c("CmdShowResults").visible());
  EXPECT_TRUE(c("BtnCancel").visible());
  EXPECT_FALSE(c("LineA", 1).tabStop());
  EXPECT_TRUE(dialogs.shown.empty());
  click("CmdShowResults");
  EXPECT_EQ(c("TxtDivision1").text(), "1");
  EXPECT_TRUE(c("TxtDivision1").visible());
  EXPECT_FALSE(c("BtnCancel").visible());
}

TEST_F(LottoSaved, ATicketIsComparedAgainWithEachDrawChosenBeforeItIsClicked) {
  writeDraw("1", "X0102030405060708");
  writeTicket("5", {"010203040506", "010203040506", "010203040506", "010203040506"});
  open();
  click("BtnCheckSavedTickets");
  pick("LstLottoTicket", "Lotto # 5");
  EXPECT_EQ(c("IntResult", 1).text(), " ");
  pick("List1", "1");
  EXPECT_EQ(c("TxtDrawBox").text(), "1");
  EXPECT_EQ(c("IntResult", 1).text(), " ");
  pick("LstLottoTicket", "Lotto # 5");
  EXPECT_EQ(c("IntResult", 1).text(), "01");
  click("CmdShowResults");
  EXPECT_EQ(c("TxtDivision1").text(), "4");
}

TEST_F(LottoSaved, ATicketIsComparedWithADrawEnteredAfterItWasSaved) {
  open();
  typeTicket(kFourLines);
  saveAs({"7"});
  writeDraw("706", "X0102030405060708");
  reopen();
  click("BtnCheckSavedTickets");
  pick("List1", "706");
  pick("LstLottoTicket", "Lotto # 7");
  click("CmdShowResults");
  EXPECT_EQ(c("TxtDivision1").text(), "1");
}

TEST_F(LottoSaved, ALoadedPairMatchesByValue) {
  writeDraw("706", "X0107131925331002");
  writeTicket("5", {"071319253336", "010203040506", "010203040506", "010203040506"});
  open("706");
  click("BtnCheckSavedTickets");
  pick("LstLottoTicket", "Lotto # 5");
  EXPECT_EQ(c("IntResult", 1).text(), "07");
  click("CmdShowResults");
  EXPECT_EQ(c("TxtDivision3").text(), "1");
}

TEST_F(LottoSaved, ADrawWithoutNumbersAndThenATicketGiveNoPrizes) {
  dir.write("300", "300\r\n\r\nZ17033908\r\n");
  writeTicket("5", {"030817223940", "010203040506", "010203040506", "010203040506"});
  open();
  click("BtnCheckSavedTickets");
  pick("List1", "300");
  EXPECT_EQ(c("LblSpaceBar").caption(), "No numbers have been entered for this draw");
  EXPECT_TRUE(c("LblSpaceBar").fontBold());
  pick("LstLottoTicket", "Lotto # 5");
  click("CmdShowResults");
  EXPECT_EQ(c("LblYouveWon").caption(), "There are no Prizes on this Ticket");
}

TEST_F(LottoSaved, AnotherTicketInTheOutcomeClearsItAndBringsBackShowResultsAlone) {
  writeTicket("1", {"030817223940", "010203040506", "010203040506", "010203040506"});
  writeTicket("2", {"010203040506", "010203040506", "010203040506", "010203040506"});
  open();
  click("BtnCheckSavedTickets");
  pick("LstLottoTicket", "Lotto # 1");
  click("CmdShowResults");
  EXPECT_TRUE(c("ImgCoins").visible());
  pick("LstLottoTicket", "Lotto # 2");
  EXPECT_FALSE(c("ImgCoins").visible());
  EXPECT_FALSE(c("LblYouveWon").visible());
  EXPECT_FALSE(c("TxtDivision1").visible());
  EXPECT_TRUE(c("Image1").visible());
  EXPECT_EQ(c("IntResult", 1).text(), " ");
  EXPECT_TRUE(c("CmdShowResults").visible());
  EXPECT_FALSE(c("BtnCancel").visible());
  EXPECT_TRUE(c("LineA", 1).visible());
}

TEST_F(LottoSaved, ATicketLoadedAfterALongerOneShowsItsLeftoversBelowItsLastLine) {
  writeTicket("1", std::vector<std::string>(14, "010203040506"));
  writeTicket("2", std::vector<std::string>(5, "010203040506"));
  open();
  click("BtnCheckSavedTickets");
  pick("LstLottoTicket", "Lotto # 1");
  pick("LstLottoTicket", "Lotto # 2");
  EXPECT_FALSE(c("LineA", 31).visible());
  click("CmdShowResults");
  for (const int cell : {31, 32, 33}) {
    EXPECT_TRUE(c("LineA", cell).visible()) << cell;
    EXPECT_EQ(text(cell), cell == 31 ? "01" : cell == 32 ? "02" : "03");
  }
}

TEST_F(LottoSaved, DeletingAsksAndKillsTheFile) {
  writeTicket("7", kFourLines);
  writeTicket("8", kFourLines);
  open();
  click("BtnCheckSavedTickets");
  dialogs.buttonAnswers = {6};
  deleteTicket("7");
  ASSERT_EQ(dialogs.shown.size(), 2u);
  EXPECT_EQ(dialogs.shown[0].prompt, "Enter the Ticket Number to delete");
  EXPECT_EQ(dialogs.shown[0].title, "Delete Ticket");
  EXPECT_EQ(dialogs.shown[1].prompt, "Are you sure you want to delete Ticket Lotto # 7");
  EXPECT_EQ(dialogs.shown[1].buttons, 4);
  EXPECT_EQ(dialogs.shown[1].title, "Delete Ticket");
  EXPECT_FALSE(dir.exists("Lotto # 7"));
  EXPECT_EQ(c("LblSaved").caption(), "Lotto # 7 has been Deleted");
  EXPECT_TRUE(c("LblSaved").visible());
  EXPECT_EQ(c("LstLottoTicket").items(), std::vector<std::string>{"Lotto # 8"});
  EXPECT_FALSE(dir.exists("TicketNumber"));
}

TEST_F(LottoSaved, AnsweringNoCancelsTheDeletion) {
  writeTicket("7", kFourLines);
  open();
  click("BtnCheckSavedTickets");
  dialogs.buttonAnswers = {7};
  deleteTicket("7");
  EXPECT_TRUE(dir.exists("Lotto # 7"));
  EXPECT_EQ(c("LblSaved").caption(), "Ticket Deletion Cancelled");
  EXPECT_EQ(c("LstLottoTicket").items(), std::vector<std::string>{"Lotto # 7"});
}

TEST_F(LottoSaved, ALeadingZeroNamesATicketThatDoesNotExist) {
  writeTicket("7", kFourLines);
  open();
  click("BtnCheckSavedTickets");
  deleteTicket("007");
  EXPECT_EQ(c("LblSaved").caption(), "Lotto # 007 does not exist");
  EXPECT_TRUE(c("LblSaved").visible());
  EXPECT_TRUE(dir.exists("Lotto # 7"));
  EXPECT_EQ(dialogs.shown.size(), 1u);
}

TEST_F(LottoSaved, CancellingTheDeletionBoxEndsItWithShowResultsHidden) {
  writeTicket("7", kFourLines);
  open();
  click("BtnCheckSavedTickets");
  pick("LstLottoTicket", "Lotto # 7");
  deleteTicket("");
  EXPECT_FALSE(c("CmdShowResults").visible());
  EXPECT_FALSE(c("LblSaved").visible());
  EXPECT_TRUE(dir.exists("Lotto # 7"));
}

TEST_F(LottoSaved, DeletingTheTicketOnDisplayLeavesItOnTheScreen) {
  writeTicket("7", kFourLines);
  open();
  click("BtnCheckSavedTickets");
  pick("LstLottoTicket", "Lotto # 7");
  dialogs.buttonAnswers = {6};
  deleteTicket("7");
  EXPECT_FALSE(dir.exists("Lotto # 7"));
  EXPECT_EQ(text(1), "01");
  EXPECT_TRUE(c("LineA", 1).visible());
  EXPECT_TRUE(c("LstLottoTicket").items().empty());
}

TEST_F(LottoSaved, ADeleteAttemptWithNoTicketsLeavesTheFlagSoTheInstructionsShow) {
  open();
  click("BtnCheckSavedTickets");
  EXPECT_EQ(c("LblSpaceBar").caption(), "There are no Saved Tickets");
  deleteTicket("3");
  EXPECT_EQ(c("LblSaved").caption(), "Lotto # 3 does not exist");
  click("BtnCancel");
  click("BtnCheckSavedTickets");
  EXPECT_EQ(c("LblSpaceBar").caption(),
            "To check saved tickets  Click on the Draw Number and then the Ticket Number");
  EXPECT_TRUE(c("LstLottoTicket").items().empty());
}

TEST_F(LottoSaved, AfterTheLastTicketIsDeletedThereAreNoSavedTickets) {
  writeTicket("7", kFourLines);
  open();
  click("BtnCheckSavedTickets");
  dialogs.buttonAnswers = {6};
  deleteTicket("7");
  click("BtnCancel");
  click("BtnCheckSavedTickets");
  EXPECT_EQ(c("LblSpaceBar").caption(), "There are no Saved Tickets");
}

TEST_F(LottoSaved, TheFlagOfFoundTicketsOutlivesTheScreen) {
  writeTicket("7", kFourLines);
  open();
  std::filesystem::remove(dir.path() / "Lotto # 7");
  reopen();
  EXPECT_TRUE(c("LstLottoTicket").items().empty());
  click("BtnCheckSavedTickets");
  EXPECT_EQ(c("LblSpaceBar").caption(),
            "To check saved tickets  Click on the Draw Number and then the Ticket Number");
}

TEST_F(LottoSaved, AMissingTicketBehindTheListIsFatal) {
  writeTicket("7", kFourLines);
  open();
  click("BtnCheckSavedTickets");
  std::filesystem::remove(dir.path() / "Lotto # 7");
  pick("LstLottoTicket", "Lotto # 7");
  ASSERT_EQ(app->state(), Application::State::Fatal);
  EXPECT_EQ(app->fatalError()->number(), 53);
}

}  // namespace
}  // namespace veridraw::testing
