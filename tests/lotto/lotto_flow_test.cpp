// The flow of the Lotto screen: what it shows when it opens, and the states
// that its buttons lead to.
#include <gtest/gtest.h>

#include "lotto/lotto_screen_support.h"

namespace veridraw::testing {
namespace {

constexpr const char* kSavedHint =
    "To check saved tickets  Click on the Draw Number and then the Ticket Number";

TEST_F(LottoScreen, OpensOnTheCurrentDrawWithTheEmptyGridOfFourLines) {
  writeDraw("3", "X0102030405060708");
  writeDraw("12", "X0102030405060708");
  writeDraw("700", "X0102030405060708");
  writeTicket("4", {"010203040506"});
  open();
  EXPECT_EQ(c("TxtDrawBox").text(), "705");
  const char* numbers[] = {"03", "08", "17", "22", "39", "40", "12"};
  for (int k = 1; k <= 7; ++k)
    EXPECT_EQ(c("TxtDrawnNumbers2", k).text(), numbers[k - 1]);
  EXPECT_TRUE(hasFocus("BtnCheckNewTicket"));
  EXPECT_TRUE(c("BtnCheckNewTicket").visible());
  EXPECT_TRUE(c("BtnCheckSavedTickets").visible());
  EXPECT_FALSE(c("LblSpaceBar").visible());
  EXPECT_EQ(c("List1").items(), (std::vector<std::string>{"3", "12", "700", "705"}));
  EXPECT_TRUE(c("List1").visible());
  EXPECT_EQ(c("List1").left(), 3300);
  EXPECT_EQ(c("List1").top(), 7200);
  EXPECT_EQ(c("LblDrawsAvailable").top(), 6720);
  EXPECT_TRUE(c("LblDrawsAvailable").visible());
  EXPECT_EQ(c("List2").items(), std::vector<std::string>{"Lotto # 4"});
  EXPECT_TRUE(c("List2").visible());
  EXPECT_EQ(c("LstLottoTicket").items(), std::vector<std::string>{"Lotto # 4"});
  EXPECT_FALSE(c("LstLottoTicket").visible());
  for (int cell = 1; cell <= 84; ++cell) {
    EXPECT_EQ(c("LineA", cell).visible(), cell <= 24) << cell;
    EXPECT_TRUE(c("LineA", cell).locked()) << cell;
    EXPECT_TRUE(c("IntResult", cell).locked()) << cell;
  }
  EXPECT_FALSE(c("LineA", 1).tabStop());
  for (int line = 1; line <= 14; ++line) {
    EXPECT_TRUE(c("TextATxt", line).visible()) << line;
    EXPECT_FALSE(c("TextBTxt", line).visible()) << line;
  }
}

TEST_F(LottoScreen, ADrawWithoutNumbersIsToldAtOnceAndTheHintReplacesIt) {
  dir.write("300", "300\r\n\r\nZ17033908\r\n");
  open("300");
  EXPECT_TRUE(c("LblSpaceBar").visible());
  EXPECT_EQ(c("LblSpaceBar").caption(), "No numbers have been entered for this draw");
  EXPECT_TRUE(c("LblSpaceBar").fontBold());
  EXPECT_EQ(c("LblSpaceBar").height(), 615);
  EXPECT_EQ(c("TxtDrawBox").text(), "300");
  EXPECT_EQ(c("TxtDrawnNumbers2", 1).text(), "");
  click("BtnCheckNewTicket");
  EXPECT_EQ(c("LblSpaceBar").caption(), "To correct errors  backtrack with the Space Bar");
  EXPECT_FALSE(c("LblSpaceBar").fontBold());
  EXPECT_TRUE(c("LblSpaceBar").visible());
}

TEST_F(LottoScreen, CheckNewTicketShowsTheLineButtons) {
  open();
  click("BtnCheckNewTicket");
  for (const char* shown : {"BtnCancel", "TxtNoofLines", "BtnLineD", "BtnLineJ", "BtnLineO",
                            "List1", "List2", "LblSavedTickets2", "LblSpaceBar"})
    EXPECT_TRUE(c(shown).visible()) << shown;
  EXPECT_FALSE(c("BtnCheckNewTicket").visible());
  EXPECT_FALSE(c("BtnCheckSavedTickets").visible());
  EXPECT_EQ(c("BtnLineD").top(), 2265);
  EXPECT_EQ(c("BtnLineJ").caption(), "Line &J");
  EXPECT_EQ(c("BtnLineJ").top(), 3540);
}

TEST_F(LottoScreen, AltMWhileChoosingTheLengthReachesLineMAndEnterPressesIt) {
  open();
  click("BtnCheckNewTicket");
  ASSERT_EQ(app->focus(), &c("BtnRestart"));
  app->pressAccessKey('M');
  EXPECT_EQ(app->activeForm(), &screen());
  EXPECT_EQ(app->focus(), &c("BtnLineM"));
  EXPECT_TRUE(c("TxtNoofLines").visible());
  app->pressKey(Key::Enter);
  EXPECT_FALSE(c("BtnLineM").visible());
  EXPECT_TRUE(c("LineA", 72).visible());
  EXPECT_FALSE(c("LineA", 73).visible());
  EXPECT_EQ(app->focus(), &c("LineA", 1));
  // Main Menu alone has the letter now: Alt+M clicks it.
  app->pressAccessKey('M');
  EXPECT_EQ(app->activeForm()->name(), "Veridraw7f");
}

TEST_F(LottoScreen, CheckSavedTicketsWithNoTicketsSaysSoAndBothListsWork) {
  writeDraw("12", "X0102030405060708");
  open();
  click("BtnCheckSavedTickets");
  EXPECT_EQ(c("LblSpaceBar").caption(), "There are no Saved Tickets");
  EXPECT_TRUE(c("LblSpaceBar").fontBold());
  EXPECT_EQ(c("LblSpaceBar").fontSize(), 10);
  EXPECT_EQ(c("LblSpaceBar").height(), 615);
  EXPECT_TRUE(c("LblSpaceBar").visible());
  EXPECT_TRUE(c("LstLottoTicket").visible());
  EXPECT_TRUE(c("LstLottoTicket").items().empty());
  EXPECT_EQ(c("List1").left(), 4980);
  EXPECT_EQ(c("List1").top(), 4560);
  EXPECT_EQ(c("LblDrawsAvailable").left(), 4980);
  EXPECT_EQ(c("LblDrawsAvailable").top(), 5850);
  for (const char* shown :
       {"LblSavedTickets", "LbLchangeDraw", "LbLchangeTicket", "BtnDeleteTicket", "BtnCancel"})
    EXPECT_TRUE(c(shown).visible()) << shown;
  EXPECT_FALSE(c("List2").visible());
  pick("List1", "12");
  EXPECT_EQ(dir.read("DrawNumber"), "12\r\n");
  EXPECT_EQ(c("TxtDrawBox").text(), "12");
  EXPECT_EQ(c("TxtDrawnNumbers2", 7).text(), "07");
  EXPECT_EQ(c("LblSpaceBar").caption(), kSavedHint);
  EXPECT_FALSE(c("LblSpaceBar").fontBold());
  EXPECT_EQ(c("LblSpaceBar").height(), 880);
}

TEST_F(LottoScreen, CheckSavedTicketsWithTicketsShowsNoTicketUntilOneIsClicked) {
  writeTicket("2", {"010203040506", "010203040506", "010203040506", "010203040506"});
  open();
  click("BtnCheckSavedTickets");
  EXPECT_EQ(c("LblSpaceBar").caption(), kSavedHint);
  EXPECT_FALSE(c("LblSpaceBar").fontBold());
  EXPECT_EQ(c("LblSpaceBar").height(), 880);
  EXPECT_EQ(c("LstLottoTicket").items(), std::vector<std::string>{"Lotto # 2"});
  EXPECT_EQ(c("LstLottoTicket").listIndex(), -1);
  EXPECT_EQ(text(1), " ");
  EXPECT_FALSE(c("CmdShowResults").visible());
}

TEST_F(LottoScreen, CancelLeavesTheListsHiddenUntilTheNextButton) {
  open();
  click("BtnCheckNewTicket");
  click("BtnCancel");
  EXPECT_FALSE(c("List1").visible());
  EXPECT_FALSE(c("LblDrawsAvailable").visible());
  EXPECT_FALSE(c("List2").visible());
  EXPECT_FALSE(c("BtnCancel").visible());
  EXPECT_FALSE(c("LblSpaceBar").visible());
  EXPECT_FALSE(c("BtnLineD").visible());
  EXPECT_TRUE(c("BtnCheckNewTicket").visible());
  EXPECT_TRUE(c("BtnCheckSavedTickets").visible());
  EXPECT_TRUE(c("Image3").visible());
  for (int line = 1; line <= 14; ++line) {
    EXPECT_EQ(c("TextATxt", line).visible(), line <= 4) << line;
    EXPECT_EQ(c("TextBTxt", line).visible(), line <= 4) << line;
  }
  for (int cell = 1; cell <= 84; ++cell)
    EXPECT_EQ(c("LineA", cell).visible(), cell <= 24) << cell;
  click("BtnCheckNewTicket");
  EXPECT_TRUE(c("List1").visible());
  EXPECT_EQ(c("List1").left(), 3300);
  EXPECT_EQ(c("List1").top(), 7200);
}

TEST_F(LottoScreen, AfterSavedTicketsAndCancelADrawClickInANewEntryGivesTheSavedHint) {
  open();
  click("BtnCheckSavedTickets");
  click("BtnCancel");
  chooseLines(4);
  type("0102");
  pick("List1", "705");
  EXPECT_EQ(c("LblSpaceBar").caption(), kSavedHint);
  EXPECT_TRUE(c("LblSpaceBar").visible());
}

TEST_F(LottoScreen, ADrawClickDuringANewEntryHidesTheHint) {
  open();
  chooseLines(4);
  type("0102");
  pick("List1", "705");
  EXPECT_FALSE(c("LblSpaceBar").visible());
  EXPECT_EQ(dir.read("DrawNumber"), "705\r\n");
}

TEST_F(LottoScreen, TheDrawThatCountsIsTheOneOnDisplayAtTheLastNumber) {
  writeDraw("1", "X0102030405060708");
  open();
  chooseLines(4);
  type("0102030405");
  pick("List1", "1");
  // The list took the focus; a click puts it back into the cell.
  app->click(c("LineA", 6));
  type("06");
  for (int line = 2; line <= 4; ++line)
    type("070809101112");
  click("CmdShowResults");
  EXPECT_EQ(c("TxtDivision1").text(), "1");
  EXPECT_TRUE(c("TxtDivision1").visible());
}

TEST_F(LottoScreen, MainMenuShowsTheDrawScreenAndUnloadsThisOne) {
  open();
  click("BtnRestart");
  EXPECT_EQ(app->activeForm()->name(), "Veridraw7f");
  EXPECT_FALSE(screen().loaded());
  EXPECT_TRUE(app->running());
}

TEST_F(LottoScreen, ExitEndsTheProgram) {
  open();
  chooseLines(4);
  click("CmdEnd");
  EXPECT_EQ(app->state(), Application::State::Ended);
}

TEST_F(LottoScreen, AMissingDrawFileIsFatalAtLoad) {
  dir.write("DrawNumber", "9\r\n");
  app = std::make_unique<Application>(dialogs, dir.path());
  app->addForm<Veridraw7b>();
  app->start("Veridraw7b");
  ASSERT_EQ(app->state(), Application::State::Fatal);
  EXPECT_EQ(app->fatalError()->number(), 53);
}

}  // namespace
}  // namespace veridraw::testing
