#include "store/ticket_store.h"

#include <gtest/gtest.h>

#include <string>

#include "screen/fatal.h"
#include "screen/strings.h"
#include "support/expect_fatal.h"
#include "support/test_support.h"

namespace veridraw::store {
namespace {

// Cell k holds the number k as a typed cell does: two digits and a blank.
std::string typedCell(int k) {
  std::string cell = k < 10 ? "0" : "";
  return (cell += CStr(k)) += ' ';
}

class TicketStore : public ::testing::Test {
 protected:
  testing::TemporaryDirectory dir;
  SequentialFiles files{dir.path()};
  TicketFields ticket;
};

TEST_F(TicketStore, SavesAFourLineLottoTicketByteForByte) {
  SaveTicket(files, ticket, kLottoPrefix, "7", 4, 6, typedCell);
  EXPECT_EQ(dir.read("Lotto # 7"),
            " 4 \r\nLotto # 7\r\n 010203040506070809101112131415161718192021222324\r\n");
  EXPECT_EQ(dir.read("TicketNumber"), "Lotto # 7\r\n");
  EXPECT_EQ(ticket.TicketFileName, "Lotto # 7");
  EXPECT_EQ(ticket.TicketNumberText, "Lotto # 7");
  EXPECT_EQ(ticket.TicketLineText.size(), 49u);
}

TEST_F(TicketStore, AFourteenLineTicketHasALine3Of169Characters) {
  SaveTicket(files, ticket, kLottoPrefix, "14", 14, 6, [](int) { return std::string("40 "); });
  EXPECT_EQ(ticket.TicketLineText.size(), 169u);
  EXPECT_EQ(dir.read("Lotto # 14"), " 14 \r\nLotto # 14\r\n" + ticket.TicketLineText + "\r\n");
}

TEST_F(TicketStore, KeepsACellAsItStandsAndDropsOnlyTheThirdCharacter) {
  SaveTicket(files, ticket, kLottoPrefix, "1", 4, 6, [](int k) {
    return k == 1 ? std::string("7  ") : k == 2 ? "1a " : typedCell(k);
  });
  EXPECT_EQ(ticket.TicketLineText.substr(0, 7), " 7 1a03");
}

TEST_F(TicketStore, SavingOverAnExistingTicketReplacesItWholeWithNoQuestion) {
  SaveTicket(files, ticket, kLottoPrefix, "7", 14, 6, typedCell);
  SaveTicket(files, ticket, kLottoPrefix, "7", 4, 6, typedCell);
  EXPECT_EQ(dir.read("Lotto # 7"),
            " 4 \r\nLotto # 7\r\n 010203040506070809101112131415161718192021222324\r\n");
}

TEST_F(TicketStore, TheNameIsTheNumberTextAsTyped) {
  SaveTicket(files, ticket, kLottoPrefix, "07", 4, 6, typedCell);
  EXPECT_TRUE(dir.exists("Lotto # 07"));
  EXPECT_FALSE(dir.exists("Lotto # 7"));
  SaveTicket(files, ticket, kLottoPrefix, "7x", 4, 6, typedCell);
  EXPECT_TRUE(dir.exists("Lotto # 7x"));
  EXPECT_EQ(dir.read("TicketNumber"), "Lotto # 7x\r\n");
}

TEST_F(TicketStore, AStrikeTicketPacksFourPairsALine) {
  SaveTicket(files, ticket, kStrikePrefix, "3", 1, 4, typedCell);
  EXPECT_EQ(dir.read("Strike # 3"), " 1 \r\nStrike # 3\r\n 01020304\r\n");
}

TEST_F(TicketStore, APowerBallTicketAppendsItsPairsToTheFourthRecordOfTheLastOne) {
  std::string PowerBallText;
  PowerBallColumn first{PowerBallText, [](int) { return std::string("01 "); }};
  SaveTicket(files, ticket, kPowerBallPrefix, "1", 4, 6, typedCell, &first);
  EXPECT_EQ(dir.read("P-Ball # 1"),
            " 4 \r\nP-Ball # 1\r\n " + ticket.TicketLineText.substr(1) + "\r\n01010101\r\n");
  PowerBallColumn second{PowerBallText, [](int) { return std::string("02 "); }};
  SaveTicket(files, ticket, kPowerBallPrefix, "2", 4, 6, typedCell, &second);
  EXPECT_EQ(dir.read("P-Ball # 2"),
            " 4 \r\nP-Ball # 2\r\n" + ticket.TicketLineText + "\r\n0101010102020202\r\n");

  Integer LineCount;
  std::string loaded;
  LoadTicket(files, ticket, "P-Ball # 2", LineCount, &loaded);
  EXPECT_EQ(loaded, "0101010102020202");
  EXPECT_EQ(TicketPair(loaded, 4), "01");
}

TEST_F(TicketStore, LoadingLosesTheLeadingBlankSoPairKStartsAt2KMinus1) {
  dir.write("Lotto # 5",
            " 4 \r\nLotto # 5\r\n 010203040506070809101112131415161718192021222324\r\n");
  Integer LineCount = 0;
  LoadTicket(files, ticket, "Lotto # 5", LineCount);
  EXPECT_EQ(LineCount, 4);
  EXPECT_EQ(ticket.TicketFileName, "Lotto # 5");
  EXPECT_EQ(ticket.TicketNumberText, "Lotto # 5");
  EXPECT_EQ(ticket.TicketLineText, "010203040506070809101112131415161718192021222324");
  EXPECT_EQ(TicketPair(ticket.TicketLineText, 1), "01");
  EXPECT_EQ(TicketPair(ticket.TicketLineText, 24), "24");
  EXPECT_EQ(TicketPair(ticket.TicketLineText, 25), "");
  EXPECT_EQ(dir.read("TicketNumber"), "Lotto # 5\r\n");
}

TEST_F(TicketStore, LoadingAMissingTicketIsFatal53AfterTicketNumberIsWritten) {
  Integer LineCount;
  EXPECT_EQ(testing::fatalNumberOf([&] { LoadTicket(files, ticket, "Lotto # 9", LineCount); }), 53);
  EXPECT_EQ(dir.read("TicketNumber"), "Lotto # 9\r\n");
}

TEST_F(TicketStore, AFileOfTooFewLinesIsFatal62) {
  dir.write("Lotto # 9", " 4 \r\nLotto # 9\r\n");
  Integer LineCount;
  EXPECT_EQ(testing::fatalNumberOf([&] { LoadTicket(files, ticket, "Lotto # 9", LineCount); }), 62);
}

TEST_F(TicketStore, APowerBallTicketOfThreeRecordsIsFatal62) {
  dir.write("P-Ball # 9", " 4 \r\nP-Ball # 9\r\n 01\r\n");
  Integer LineCount;
  std::string PowerBallText;
  EXPECT_EQ(testing::fatalNumberOf(
                [&] { LoadTicket(files, ticket, "P-Ball # 9", LineCount, &PowerBallText); }),
            62);
}

TEST_F(TicketStore, DeletingRemovesTheFileAndLeavesTicketNumberAlone) {
  SaveTicket(files, ticket, kLottoPrefix, "7", 4, 6, typedCell);
  DeleteTicket(files, "Lotto # 7");
  EXPECT_FALSE(dir.exists("Lotto # 7"));
  EXPECT_EQ(dir.read("TicketNumber"), "Lotto # 7\r\n");
}

}  // namespace
}  // namespace veridraw::store
