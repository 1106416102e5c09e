#include "screen/files.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "support/expect_fatal.h"
#include "support/test_support.h"

namespace veridraw {
namespace {

namespace fs = std::filesystem;
using testing::fatalNumberOf;

class FilesTest : public ::testing::Test {
 protected:
  testing::TemporaryDirectory dir;
  SequentialFiles files{dir.path()};

  std::string printed(const std::function<void()>& prints) {
    files.Open("out", FileMode::Output, 1);
    prints();
    files.Close(1);
    return dir.read("out");
  }
};

// Print

TEST_F(FilesTest, PrintWritesAStringAsItStandsWithCrLf) {
  EXPECT_EQ(printed([&] { files.Print(1, std::string("X0308172239401202")); }),
            "X0308172239401202\r\n");
  EXPECT_EQ(printed([&] { files.Print(1, std::string("a,b \"c\"")); }), "a,b \"c\"\r\n");
  EXPECT_EQ(printed([&] { files.Print(1, std::string("")); }), "\r\n");
  EXPECT_EQ(printed([&] { files.Print(1, std::string("caf\xE9")); }), "caf\xE9\r\n");
}

TEST_F(FilesTest, PrintWritesAnIntegerWithASignPlaceAndATrailingBlank) {
  EXPECT_EQ(printed([&] { files.Print(1, Integer(7)); }), " 7 \r\n");
  EXPECT_EQ(printed([&] { files.Print(1, Integer(-7)); }), "-7 \r\n");
  EXPECT_EQ(printed([&] { files.Print(1, Integer(0)); }), " 0 \r\n");
  EXPECT_EQ(printed([&] { files.Print(1, Integer(1500)); }), " 1500 \r\n");
  EXPECT_EQ(printed([&] { files.Print(1, Integer(-32768)); }), "-32768 \r\n");
}

TEST_F(FilesTest, PrintedIntegersReadBack) {
  printed([&] {
    files.Print(1, Integer(7));
    files.Print(1, Integer(-7));
  });
  files.Open("out", FileMode::Input, 1);
  Integer first, second;
  files.Input(1, first);
  files.Input(1, second);
  EXPECT_EQ(int(first), 7);
  EXPECT_EQ(int(second), -7);
}

// Input

struct InputCase {
  std::string content;
  std::vector<std::string> fields;
};

class InputOfStrings : public FilesTest, public ::testing::WithParamInterface<InputCase> {};

TEST_P(InputOfStrings, ReadsEachFieldThenStopsAtTheEndWithFatal62) {
  dir.write("in", GetParam().content);
  files.Open("in", FileMode::Input, 1);
  for (const std::string& expected : GetParam().fields) {
    std::string field = "unread";
    ASSERT_EQ(fatalNumberOf([&] { files.Input(1, field); }), 0);
    EXPECT_EQ(field, expected);
  }
  std::string field;
  EXPECT_EQ(fatalNumberOf([&] { files.Input(1, field); }), 62);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, InputOfStrings,
    ::testing::Values(InputCase{"", {}}, InputCase{"abc\r\n", {"abc"}},
                      InputCase{"   abc\r\n", {"abc"}}, InputCase{"a,b\r\n", {"a", "b"}},
                      InputCase{"a, b\r\n", {"a", "b"}}, InputCase{",x\r\n", {"", "x"}},
                      InputCase{"\"a,b\"\r\n", {"a,b"}},
                      InputCase{"\"  padded \"\r\n", {"  padded "}},
                      InputCase{"\"q\",next\r\n", {"q", "next"}},
                      InputCase{"Lotto # 7\r\n", {"Lotto # 7"}}, InputCase{"\r\n", {""}},
                      InputCase{"\r\nX\r\n", {"", "X"}},
                      InputCase{"705\r\n\r\nZ17033908\r\n", {"705", "", "Z17033908"}},
                      InputCase{"a\nb\n", {"a", "b"}}, InputCase{"a\rb\r", {"a", "b"}},
                      InputCase{"a\r\n\nb", {"a", "", "b"}}, InputCase{"last", {"last"}},
                      InputCase{"caf\xE9\r\n", {"caf\xE9"}}));

struct IntegerInputCase {
  std::string content;
  std::vector<int> values;
};

class InputOfIntegers : public FilesTest, public ::testing::WithParamInterface<IntegerInputCase> {};

TEST_P(InputOfIntegers, ReadsANumberEndingAtABlankCommaOrLineEnd) {
  dir.write("in", GetParam().content);
  files.Open("in", FileMode::Input, 1);
  for (const int expected : GetParam().values) {
    Integer value(-1);
    ASSERT_EQ(fatalNumberOf([&] { files.Input(1, value); }), 0);
    EXPECT_EQ(int(value), expected);
  }
  Integer value;
  EXPECT_EQ(fatalNumberOf([&] { files.Input(1, value); }), 62);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, InputOfIntegers,
    ::testing::Values(IntegerInputCase{" 7 \r\n-7 \r\n", {7, -7}},
                      IntegerInputCase{"705\r\n", {705}}, IntegerInputCase{"  42\r\n", {42}},
                      IntegerInputCase{"1,2\r\n", {1, 2}}, IntegerInputCase{"1 2\r\n", {1, 2}},
                      IntegerInputCase{"3\n4\r5", {3, 4, 5}}, IntegerInputCase{"\r\n", {0}}));

TEST_F(FilesTest, InputOfAnIntegerBeyondSixteenBitsIsFatal6) {
  dir.write("in", "40000\r\n");
  files.Open("in", FileMode::Input, 1);
  Integer value;
  EXPECT_EQ(fatalNumberOf([&] { files.Input(1, value); }), 6);
}

// Open and names

TEST_F(FilesTest, OpeningAMissingFileForInputIsFatal53) {
  EXPECT_EQ(fatalNumberOf([&] { files.Open("705", FileMode::Input, 1); }), 53);
}

TEST_F(FilesTest, OpeningForOutputCreatesTheFileOrEmptiesItAtOnce) {
  dir.write("old", "old content\r\n");
  files.Open("old", FileMode::Output, 1);
  files.Open("new", FileMode::Output, 2);
  EXPECT_EQ(dir.read("old"), "");
  EXPECT_TRUE(dir.exists("new"));
  files.Close(1);
  files.Close(2);
  EXPECT_EQ(dir.read("old"), "");
}

TEST_F(FilesTest, CloseWritesTheFileWhole) {
  files.Open("out", FileMode::Output, 1);
  files.Print(1, std::string("705"));
  files.Print(1, std::string("X0308172239401202"));
  EXPECT_EQ(dir.read("out"), "");
  files.Close(1);
  EXPECT_EQ(dir.read("out"), "705\r\nX0308172239401202\r\n");
}

TEST_F(FilesTest, CloseAllWritesEveryOpenFile) {
  files.Open("a", FileMode::Output, 1);
  files.Open("b", FileMode::Output, 3);
  files.Print(1, std::string("A"));
  files.Print(3, std::string("B"));
  files.CloseAll();
  EXPECT_EQ(dir.read("a"), "A\r\n");
  EXPECT_EQ(dir.read("b"), "B\r\n");
}

struct NameCase {
  std::string name;
  int error;
};

class FileNames : public FilesTest, public ::testing::WithParamInterface<NameCase> {};

TEST_P(FileNames, AreRefusedForInputAndOutput) {
  fs::create_directory(dir.path() / "sub");
  dir.write("sub/x", "inside a folder\r\n");
  const NameCase& c = GetParam();
  EXPECT_EQ(fatalNumberOf([&] { files.Open(c.name, FileMode::Input, 1); }), c.error);
  EXPECT_EQ(fatalNumberOf([&] { files.Open(c.name, FileMode::Output, 1); }), c.error);
}

INSTANTIATE_TEST_SUITE_P(
    Refused, FileNames,
    ::testing::Values(NameCase{"sub/x", 76}, NameCase{"sub\\x", 76}, NameCase{"none/x", 76},
                      NameCase{"sub/../x", 76}, NameCase{"/etc/passwd", 75}, NameCase{"../x", 75},
                      NameCase{"..\\x", 75}, NameCase{"..", 75}, NameCase{"sub/../../x", 75},
                      NameCase{"none/../../x", 75}, NameCase{"C:/x", 75},
                      NameCase{"\\server\\x", 75}, NameCase{".", 52},
                      NameCase{std::string(256, '7'), 52},
                      NameCase{std::string("1").append(299, 'a'), 52}, NameCase{"a<b", 52},
                      NameCase{"a>b", 52}, NameCase{"a:b", 52}, NameCase{"a\"b", 52},
                      NameCase{"a|b", 52}, NameCase{"a?b", 52}, NameCase{"a*b", 52},
                      NameCase{"a\x01z", 52}, NameCase{"a\tb", 52}, NameCase{"a\nb", 52},
                      NameCase{"", 52}));

TEST_P(FileNames, AreRefusedForKill) {
  fs::create_directory(dir.path() / "sub");
  dir.write("sub/x", "inside a folder\r\n");
  EXPECT_EQ(fatalNumberOf([&] { files.Kill(GetParam().name); }), GetParam().error);
  EXPECT_EQ(dir.read("sub/x"), "inside a folder\r\n");
}

// The working directory is a folder inside the test's own, so that a name that
// led out of it would land where the test can see it.
class NamesLeadingOut : public ::testing::Test {
 protected:
  NamesLeadingOut() {
    fs::create_directory(dir.path() / "work");
    fs::create_directory(dir.path() / "work" / "sub");
    dir.write("705", "outside\r\n");
  }
  testing::TemporaryDirectory dir;
  SequentialFiles files{dir.path() / "work"};
};

TEST_F(NamesLeadingOut, AreFatal75BeforeAnythingIsCreatedReadOrDeleted) {
  for (const std::string& name :
       std::vector<std::string>{"../705", "../new", "sub/../../705", "sub/../../new",
                                "missing/../../new", (dir.path() / "new").string()}) {
    EXPECT_EQ(fatalNumberOf([&] { files.Open(name, FileMode::Output, 1); }), 75) << name;
    EXPECT_EQ(fatalNumberOf([&] { files.Open(name, FileMode::Input, 1); }), 75) << name;
    EXPECT_EQ(fatalNumberOf([&] { files.Kill(name); }), 75) << name;
    EXPECT_EQ(files.Dir(name), "") << name;
  }
  EXPECT_FALSE(dir.exists("new"));
  EXPECT_EQ(dir.read("705"), "outside\r\n");
  // Nothing was opened, so every number is still free.
  EXPECT_EQ(fatalNumberOf([&] { files.Open("x", FileMode::Output, 1); }), 0);
}

TEST_F(NamesLeadingOut, ALinkOutOfTheFolderIsFatal75) {
  fs::create_symlink(dir.path() / "705", dir.path() / "work" / "705");
  EXPECT_EQ(fatalNumberOf([&] { files.Open("705", FileMode::Input, 1); }), 75);
  EXPECT_EQ(fatalNumberOf([&] { files.Open("705", FileMode::Output, 1); }), 75);
  EXPECT_EQ(fatalNumberOf([&] { files.Kill("705"); }), 75);
  EXPECT_EQ(dir.read("705"), "outside\r\n");
}

TEST_F(NamesLeadingOut, ALinkWithinTheFolderIsFollowed) {
  dir.write("work/sub/target", "705\r\n");
  fs::create_symlink(dir.path() / "work" / "sub" / "target", dir.path() / "work" / "705");
  std::string field;
  files.Open("705", FileMode::Input, 1);
  files.Input(1, field);
  files.Close(1);
  EXPECT_EQ(field, "705");
}

TEST_F(FilesTest, ATooLongNameIsFatal52BothWays) {
  const std::string name = "1" + std::string(299, 'a');
  EXPECT_EQ(fatalNumberOf([&] { files.Open(name, FileMode::Output, 1); }), 52);
  EXPECT_EQ(fatalNumberOf([&] { files.Open(name, FileMode::Input, 1); }), 52);
  // The longest name that may be is an ordinary name.
  const std::string longest(255, 'a');
  files.Open(longest, FileMode::Output, 1);
  files.Print(1, std::string("x"));
  files.Close(1);
  EXPECT_EQ(dir.read(longest), "x\r\n");
}

TEST_F(FilesTest, AFolderIsFatal75) {
  fs::create_directory(dir.path() / "705");
  EXPECT_EQ(fatalNumberOf([&] { files.Open("705", FileMode::Input, 1); }), 75);
  EXPECT_EQ(fatalNumberOf([&] { files.Open("705", FileMode::Output, 1); }), 75);
}

// Root passes over the rights of files and folders, so these two tests say
// something only when not run as root; as root they are skipped. To run them:
//   setpriv --reuid=65534 --regid=65534 --clear-groups veridraw_unit_tests
//   --gtest_filter='*Rights*'
TEST_F(FilesTest, AFileWithoutReadRightsIsFatal70) {
  if (geteuid() == 0) GTEST_SKIP() << "root reads any file";
  dir.write("locked", "705\r\n");
  fs::permissions(dir.path() / "locked", fs::perms::none);
  EXPECT_EQ(fatalNumberOf([&] { files.Open("locked", FileMode::Input, 1); }), 70);
}

TEST_F(FilesTest, AFolderWithoutWriteRightsIsFatal70ForOutput) {
  if (geteuid() == 0) GTEST_SKIP() << "root writes in any folder";
  fs::permissions(dir.path(), fs::perms::owner_read | fs::perms::owner_exec);
  const int error = fatalNumberOf([&] { files.Open("new", FileMode::Output, 1); });
  fs::permissions(dir.path(), fs::perms::owner_all);
  EXPECT_EQ(error, 70);
}

// File numbers

TEST_F(FilesTest, NumbersOneToThreeHoldThreeFilesAtOnce) {
  dir.write("a", "A1\r\nA2\r\n");
  dir.write("b", "B1\r\n");
  files.Open("a", FileMode::Input, 1);
  files.Open("b", FileMode::Input, 2);
  files.Open("c", FileMode::Output, 3);
  std::string a1, b1, a2;
  files.Input(1, a1);
  files.Input(2, b1);
  files.Input(1, a2);
  files.Print(3, a1 + b1 + a2);
  files.CloseAll();
  EXPECT_EQ(dir.read("c"), "A1B1A2\r\n");
}

TEST_F(FilesTest, ANumberOutsideOneToThreeIsFatal52) {
  EXPECT_EQ(fatalNumberOf([&] { files.Open("x", FileMode::Output, 0); }), 52);
  EXPECT_EQ(fatalNumberOf([&] { files.Open("x", FileMode::Output, 4); }), 52);
}

TEST_F(FilesTest, ANumberNotOpenIsFatal52ForPrintAndInput) {
  std::string field;
  EXPECT_EQ(fatalNumberOf([&] { files.Print(2, std::string("x")); }), 52);
  EXPECT_EQ(fatalNumberOf([&] { files.Input(2, field); }), 52);
}

TEST_F(FilesTest, OpeningANumberInUseIsFatal55AndClosingFreesIt) {
  files.Open("x", FileMode::Output, 1);
  EXPECT_EQ(fatalNumberOf([&] { files.Open("y", FileMode::Output, 1); }), 55);
  files.Close(1);
  EXPECT_EQ(fatalNumberOf([&] { files.Open("y", FileMode::Output, 1); }), 0);
}

TEST_F(FilesTest, ClosingANumberNotOpenDoesNothing) {
  EXPECT_EQ(fatalNumberOf([&] { files.Close(3); }), 0);
}

// Kill and Dir

TEST_F(FilesTest, KillDeletesTheFile) {
  dir.write("Lotto # 7", "x\r\n");
  files.Kill("Lotto # 7");
  EXPECT_FALSE(dir.exists("Lotto # 7"));
}

TEST_F(FilesTest, KillOfAMissingFileIsFatal53) {
  EXPECT_EQ(fatalNumberOf([&] { files.Kill("Lotto # 7"); }), 53);
}

TEST_F(FilesTest, DirFindsPlainFilesOnly) {
  dir.write("705", "705\r\n");
  dir.write(".705", "hidden\r\n");
  fs::create_directory(dir.path() / "706");
  EXPECT_EQ(files.Dir("705"), "705");
  EXPECT_EQ(files.Dir("707"), "");
  EXPECT_EQ(files.Dir("706"), "");
  EXPECT_EQ(files.Dir(".705"), "");
}

}  // namespace
}  // namespace veridraw
