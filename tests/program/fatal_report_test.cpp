// The report of a fatal error beside its box: the number, the text, what the
// files were doing and the folder, in one line.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>

#include "program/program.h"
#include "screen/application.h"
#include "screen/fatal.h"
#include "screen/files.h"
#include "support/expect_fatal.h"
#include "support/test_support.h"

namespace veridraw {
namespace {

// The number and the operation of the fatal error that stops the action.
template <class Action>
std::string operationOf(Action&& action) {
  const testing::FatalOutcome outcome = testing::fatalOf(std::forward<Action>(action));
  return std::to_string(outcome.number) + " " + outcome.operation;
}

class FatalReportTest : public ::testing::Test {
 protected:
  testing::TemporaryDirectory dir;
  SequentialFiles files{dir.path()};
};

TEST_F(FatalReportTest, OpeningAMissingFileNamesItAndTheMode) {
  EXPECT_EQ(operationOf([&] { files.Open("1234", FileMode::Input, 1); }),
            "53 opening \"1234\" for input");
  std::filesystem::create_directory(dir.path() / "sub");
  EXPECT_EQ(operationOf([&] { files.Open("sub", FileMode::Output, 2); }),
            "75 opening \"sub\" for output");
}

TEST_F(FatalReportTest, ReadingPastTheEndNamesTheFile) {
  dir.write("Lotto # 5", " 4 \r\n");
  files.Open("Lotto # 5", FileMode::Input, 1);
  std::string field;
  files.Input(1, field);
  EXPECT_EQ(operationOf([&] { files.Input(1, field); }), "62 reading \"Lotto # 5\"");
}

TEST_F(FatalReportTest, AConversionErrorWhileReadingNamesTheFile) {
  dir.write("705", "99999\r\n");
  files.Open("705", FileMode::Input, 1);
  Integer value;
  EXPECT_EQ(operationOf([&] { files.Input(1, value); }), "6 reading \"705\"");
}

TEST_F(FatalReportTest, DeletingAMissingFileNamesIt) {
  EXPECT_EQ(operationOf([&] { files.Kill("Lotto # 5"); }), "53 deleting \"Lotto # 5\"");
}

TEST_F(FatalReportTest, AFileNumberNotOpenIsNamedByItsNumber) {
  EXPECT_EQ(operationOf([&] { files.Print(2, std::string("x")); }), "52 writing file #2");
  std::string field;
  EXPECT_EQ(operationOf([&] { files.Input(3, field); }), "52 reading file #3");
  EXPECT_EQ(operationOf([&] { files.Close(4); }), "52 closing file #4");
}

TEST_F(FatalReportTest, OddBytesOfANameAreWrittenAsCodes) {
  EXPECT_EQ(operationOf([&] { files.Open(std::string("a\tb\xE9\"c"), FileMode::Input, 1); }),
            "52 opening \"a\\x09b\\xE9\\x22c\" for input");
}

TEST_F(FatalReportTest, TheLineHoldsNumberTextOperationAndFolder) {
  FatalError error(53, errorText(53));
  error.setOperation("opening \"1234\" for input");
  EXPECT_EQ(describeFatalError(error, "/home/u/draws"),
            "error 53 (File not found) opening \"1234\" for input in /home/u/draws");
}

TEST_F(FatalReportTest, AnErrorOfNoFileSaysNoOperation) {
  EXPECT_EQ(describeFatalError(FatalError(6, errorText(6)), "/home/u/draws"),
            "error 6 (Overflow) in /home/u/draws");
}

TEST_F(FatalReportTest, TheFirstOperationSetIsKept) {
  FatalError error(62, errorText(62));
  error.setOperation("reading \"705\"");
  error.setOperation("opening \"705\" for input");
  EXPECT_EQ(error.operation(), "reading \"705\"");
}

// The case of the field: "DrawNumber" names a draw whose file is gone, and
// the draw screen opens.
TEST_F(FatalReportTest, TheDrawScreenOnAMissingDrawFileReportsItsName) {
  dir.write("DrawNumber", "1234\r\n");
  testing::QueuedDialogs dialogs;
  Application app(dialogs, dir.path());
  addVeridrawForms(app);
  app.start(kFirstForm);
  app.pressKey(Key::Enter);
  ASSERT_EQ(app.state(), Application::State::Fatal);
  EXPECT_EQ(describeFatalError(*app.fatalError(), dir.path()),
            "error 53 (File not found) opening \"1234\" for input in " + dir.path().string());
}

}  // namespace
}  // namespace veridraw
