// Dir as the probes use it: a plain file of that name in the working folder,
// reached through links as a program of the platform reaches it, and nothing
// else; in a folder given by a relative or a slash-ended name as well.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "screen/files.h"
#include "support/test_support.h"

namespace veridraw {
namespace {

namespace fs = std::filesystem;

class DirProbeTest : public ::testing::Test {
 protected:
  testing::TemporaryDirectory dir;
  SequentialFiles files{dir.path()};
};

TEST_F(DirProbeTest, ALinkCountsAsWhatItLeadsTo) {
  dir.write("705", "705\r\n");
  fs::create_directory(dir.path() / "folder");
  fs::create_symlink(dir.path() / "705", dir.path() / "706");
  fs::create_symlink(dir.path() / "folder", dir.path() / "707");
  fs::create_symlink(dir.path() / "gone", dir.path() / "708");
  EXPECT_EQ(files.Dir("706"), "706");
  EXPECT_EQ(files.Dir("707"), "");
  EXPECT_EQ(files.Dir("708"), "");
}

TEST_F(DirProbeTest, NamesWithBlanksAndHighBytesAreProbedAsTheyStand) {
  dir.write("Lotto # 7", "x");
  dir.write("Caf\xE9", "x");
  EXPECT_EQ(files.Dir("Lotto # 7"), "Lotto # 7");
  EXPECT_EQ(files.Dir("Lotto # 70"), "");
  EXPECT_EQ(files.Dir("Lotto #"), "");
  EXPECT_EQ(files.Dir("Caf\xE9"), "Caf\xE9");
}

TEST_F(DirProbeTest, EachProbeSeesTheFolderAsItStandsThen) {
  EXPECT_EQ(files.Dir("705"), "");
  dir.write("705", "705\r\n");
  EXPECT_EQ(files.Dir("705"), "705");
  fs::remove(dir.path() / "705");
  fs::create_directory(dir.path() / "705");
  EXPECT_EQ(files.Dir("705"), "");
  fs::remove(dir.path() / "705");
  dir.write("705", "again\r\n");
  EXPECT_EQ(files.Dir("705"), "705");
}

TEST_F(DirProbeTest, TooLongANameIsNoFile) {
  EXPECT_EQ(files.Dir(std::string(300, '7')), "");
  EXPECT_EQ(files.Dir(std::string(5000, '7')), "");
}

TEST_F(DirProbeTest, AFolderEndingInASlashOrGivenRelatively) {
  dir.write("705", "705\r\n");
  SequentialFiles slashEnded(dir.path().string() + "/");
  EXPECT_EQ(slashEnded.Dir("705"), "705");
  EXPECT_EQ(slashEnded.Dir("706"), "");

  const fs::path before = fs::current_path();
  fs::current_path(dir.path().parent_path());
  SequentialFiles relative(dir.path().filename());
  SequentialFiles here("");
  const std::string relativeFound = relative.Dir("705");
  const std::string hereFound = here.Dir(dir.path().filename().string());
  fs::current_path(dir.path());
  const std::string insideFound = here.Dir("705");
  fs::current_path(before);
  EXPECT_EQ(relativeFound, "705");
  EXPECT_EQ(hereFound, "") << "a folder is no file";
  EXPECT_EQ(insideFound, "705");
}

}  // namespace
}  // namespace veridraw
