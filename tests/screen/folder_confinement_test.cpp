// The sequential files as another user who shares the working folder would
// attack them: links planted in the folder, dangling or not, a file swapped for
// a link between the moment a name is checked and the moment it is written, a
// second name of an outside file, and a folder the user may not enter. Nothing
// outside the folder may be created, read through, rewritten or deleted, and
// each refusal has its classic number. Links that stay inside the folder work
// as they always did.
#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <functional>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include "screen/files.h"
#include "support/expect_fatal.h"
#include "support/test_support.h"

namespace veridraw {
namespace {

namespace fs = std::filesystem;
using testing::fatalNumberOf;

constexpr const char* kOutside = "outside\r\n";

// The working folder is "work" inside the test's folder; what lies beside it
// is outside, where the test can see whether anything arrived.
class Confinement : public ::testing::Test {
 protected:
  Confinement() {
    fs::create_directory(dir.path() / "work");
    dir.write("705", kOutside);
  }

  fs::path work() const { return dir.path() / "work"; }
  fs::path outside(const std::string& name) const { return dir.path() / name; }
  void link(const fs::path& target, const std::string& name) const {
    fs::create_symlink(target, work() / name);
  }
  bool isLink(const std::string& name) const { return fs::is_symlink(work() / name); }

  // Every way of reaching a file, with the number each one ends with (0 for
  // none); Dir gives "" or the name.
  struct Outcome {
    int input, output, kill;
    std::string dir;
    bool operator==(const Outcome&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Outcome& o) {
      return out << "{" << o.input << ", " << o.output << ", " << o.kill << ", \"" << o.dir
                 << "\"}";
    }
  };
  Outcome everyWay(const std::string& name) {
    Outcome outcome{};
    outcome.input = fatalNumberOf([&] { files.Open(name, FileMode::Input, 1); });
    files.CloseAll();
    outcome.dir = files.Dir(name);
    outcome.output = fatalNumberOf([&] { files.Open(name, FileMode::Output, 1); });
    files.CloseAll();
    outcome.kill = fatalNumberOf([&] { files.Kill(name); });
    return outcome;
  }

  // Puts a link to `target` in place of the file once Open or Kill has
  // checked its name, as another program could at that moment.
  void swapForALinkAfterTheNameCheck(const fs::path& target) {
    files.setNameCheckedHook([this, target](const std::string& name) {
      fs::remove(work() / name);
      link(target, name);
    });
  }

  void save(const std::string& name, const std::string& line) {
    files.Open(name, FileMode::Output, 1);
    files.Print(1, line);
    files.Close(1);
  }

  testing::TemporaryDirectory dir;
  SequentialFiles files{dir.path() / "work"};
};

// Links that lead out

TEST_F(Confinement, ADanglingLinkToAnOutsideNameIsFatal75AndCreatesNothing) {
  link(outside("12"), "12");
  link("../13", "13");
  for (const std::string name : {"12", "13"}) {
    EXPECT_EQ(everyWay(name), (Outcome{75, 75, 75, ""})) << name;
    EXPECT_TRUE(isLink(name)) << name;
  }
  EXPECT_FALSE(dir.exists("12"));
  EXPECT_FALSE(dir.exists("13"));
}

TEST_F(Confinement, ALinkToAnOutsideFileIsFatal75AndTheFileStaysAsItWas) {
  link("../705", "relative");
  link(outside("705"), "absolute");
  link("relative", "chain");
  fs::create_directory(work() / "sub");
  link("../../705", "sub/up");
  link("sub/up", "through_sub");
  fs::create_directory_symlink(dir.path(), work() / "door");
  link("door/705", "through_a_folder_link");
  for (const std::string name :
       {"relative", "absolute", "chain", "through_sub", "through_a_folder_link"}) {
    EXPECT_EQ(everyWay(name), (Outcome{75, 75, 75, ""})) << name;
    EXPECT_TRUE(isLink(name)) << name;
  }
  EXPECT_EQ(dir.read("705"), kOutside);
}

TEST_F(Confinement, ALinkThatClimbsOutAndBackInIsFatal75) {
  dir.write("work/plain", "plain\r\n");
  link("../work/plain", "out_and_back");
  EXPECT_EQ(everyWay("out_and_back"), (Outcome{75, 75, 75, ""}));
  EXPECT_EQ(dir.read("work/plain"), "plain\r\n");
}

TEST_F(Confinement, ALinkThatClimbsOutThroughAMissingFolderIsFatal75) {
  link("missing/../../705", "705");
  link("missing/../../new", "new");
  EXPECT_EQ(everyWay("705"), (Outcome{75, 75, 75, ""}));
  EXPECT_EQ(everyWay("new"), (Outcome{75, 75, 75, ""}));
  EXPECT_FALSE(dir.exists("new"));
}

TEST_F(Confinement, SavingADrawOverADanglingLinkWritesNothingOutside) {
  link(outside("12"), "12");
  EXPECT_EQ(fatalNumberOf([&] { save("DrawNumber", "12"); }), 0);
  EXPECT_EQ(fatalNumberOf([&] { save("12", "12"); }), 75);
  EXPECT_FALSE(dir.exists("12"));
}

// A link put in place of a file between the check and the write

TEST_F(Confinement, AFileSwappedForALinkAfterTheNameCheckIsNotWrittenThrough) {
  dir.write("work/Lotto # 7", "ticket\r\n");
  swapForALinkAfterTheNameCheck(outside("705"));
  EXPECT_EQ(fatalNumberOf([&] { files.Open("Lotto # 7", FileMode::Output, 1); }), 75);
  EXPECT_EQ(dir.read("705"), kOutside);
}

TEST_F(Confinement, AFileSwappedForADanglingLinkAfterTheNameCheckCreatesNothing) {
  dir.write("work/12", "12\r\n");
  swapForALinkAfterTheNameCheck(outside("12"));
  EXPECT_EQ(fatalNumberOf([&] { files.Open("12", FileMode::Output, 1); }), 75);
  EXPECT_EQ(fatalNumberOf([&] { files.Open("12", FileMode::Input, 1); }), 75);
  EXPECT_FALSE(dir.exists("12"));
}

TEST_F(Confinement, AFileSwappedForALinkAfterTheNameCheckIsNotDeletedThrough) {
  dir.write("work/Lotto # 7", "ticket\r\n");
  swapForALinkAfterTheNameCheck(outside("705"));
  EXPECT_EQ(fatalNumberOf([&] { files.Kill("Lotto # 7"); }), 75);
  EXPECT_EQ(dir.read("705"), kOutside);
}

TEST_F(Confinement, AFileSwappedForALinkBetweenOpenAndCloseIsNotWrittenThrough) {
  dir.write("work/Lotto # 7", "ticket\r\n");
  files.Open("Lotto # 7", FileMode::Output, 1);
  files.Print(1, std::string("Lotto # 7"));
  fs::rename(work() / "Lotto # 7", work() / "moved");
  link(outside("705"), "Lotto # 7");
  files.Close(1);
  EXPECT_EQ(dir.read("705"), kOutside);
  // The file that was opened is the one written.
  EXPECT_EQ(dir.read("work/moved"), "Lotto # 7\r\n");
}

// A second name

TEST_F(Confinement, AFileWithASecondNameIsNotRewritten) {
  fs::create_hard_link(outside("705"), work() / "705");
  EXPECT_EQ(fatalNumberOf([&] { files.Open("705", FileMode::Output, 1); }), 75);
  EXPECT_EQ(dir.read("705"), kOutside);
  // Reading and deleting it touch only the name in the folder.
  std::string field;
  files.Open("705", FileMode::Input, 1);
  files.Input(1, field);
  files.Close(1);
  EXPECT_EQ(field, "outside");
  EXPECT_EQ(files.Dir("705"), "705");
  files.Kill("705");
  EXPECT_FALSE(dir.exists("work/705"));
  EXPECT_EQ(dir.read("705"), kOutside);
}

TEST_F(Confinement, AFileWithASecondNameInsideIsNotRewrittenEither) {
  dir.write("work/705", "705\r\n");
  fs::create_hard_link(work() / "705", work() / "copy");
  EXPECT_EQ(fatalNumberOf([&] { save("705", "changed"); }), 75);
  EXPECT_EQ(dir.read("work/705"), "705\r\n");
}

// Things that are neither a file nor a folder

TEST_F(Confinement, APipeUnderAFileNameIsFatal75WithoutWaitingForAWriter) {
  ASSERT_EQ(::mkfifo((work() / "705").c_str(), 0600), 0);
  EXPECT_EQ(fatalNumberOf([&] { files.Open("705", FileMode::Input, 1); }), 75);
  EXPECT_EQ(fatalNumberOf([&] { files.Open("705", FileMode::Output, 1); }), 75);
  EXPECT_EQ(files.Dir("705"), "");
}

// Links that stay inside, as before

TEST_F(Confinement, LinksThatStayInsideAreFollowed) {
  fs::create_directory(work() / "sub");
  dir.write("work/sub/target", "705\r\n");
  dir.write("work/plain", "plain\r\n");
  link("sub/target", "relative");
  link(work() / "sub" / "target", "absolute");
  link("sub/../plain", "up_and_down");
  link("relative", "chain");
  for (const std::string name : {"relative", "absolute", "up_and_down", "chain"}) {
    std::string field;
    EXPECT_EQ(fatalNumberOf([&] {
                files.Open(name, FileMode::Input, 1);
                files.Input(1, field);
                files.Close(1);
              }),
              0)
        << name;
    EXPECT_NE(field, "") << name;
    EXPECT_EQ(files.Dir(name), name) << name;
  }
  save("chain", "written through");
  EXPECT_EQ(dir.read("work/sub/target"), "written through\r\n");
  EXPECT_TRUE(isLink("chain"));
  // Kill deletes the link, not what it leads to.
  files.Kill("absolute");
  EXPECT_FALSE(isLink("absolute"));
  EXPECT_TRUE(dir.exists("work/sub/target"));
}

TEST_F(Confinement, ADanglingLinkInsideIsMissingForReadingAndCreatesItsTargetForWriting) {
  link("later", "12");
  EXPECT_EQ(fatalNumberOf([&] { files.Open("12", FileMode::Input, 1); }), 53);
  EXPECT_EQ(files.Dir("12"), "");
  EXPECT_EQ(fatalNumberOf([&] { files.Kill("12"); }), 53);
  save("12", "12");
  EXPECT_EQ(dir.read("work/later"), "12\r\n");
  link("none/x", "13");
  EXPECT_EQ(fatalNumberOf([&] { files.Open("13", FileMode::Output, 1); }), 76);
}

TEST_F(Confinement, AnAbsoluteLinkThroughAnotherNameOfTheFolderIsInside) {
  // The folder is given by a link to it; links inside may name it either way.
  fs::create_directory_symlink(work(), dir.path() / "alias");
  SequentialFiles throughAlias(dir.path() / "alias");
  dir.write("work/plain", "plain\r\n");
  link(dir.path() / "alias" / "plain", "by_alias");
  link(work() / "plain", "by_real_name");
  for (const std::string name : {"by_alias", "by_real_name"}) {
    EXPECT_EQ(throughAlias.Dir(name), name);
    EXPECT_EQ(fatalNumberOf([&] { throughAlias.Open(name, FileMode::Input, 1); }), 0);
    throughAlias.CloseAll();
  }
}

TEST_F(Confinement, LinksToAFolderOrInALoopKeepTheirNumbers) {
  fs::create_directory(work() / "sub");
  link("sub", "folder");
  link(".", "here");
  link("loop_b", "loop_a");
  link("loop_a", "loop_b");
  EXPECT_EQ(everyWay("folder"), (Outcome{75, 75, 53, ""}));
  EXPECT_EQ(everyWay("here"), (Outcome{75, 75, 53, ""}));
  EXPECT_EQ(everyWay("loop_a"), (Outcome{75, 75, 75, ""}));
}

// A folder the user may not enter

// Runs `check` as a user without special rights and gives back what it
// returns, a number from 0 to 255. Root passes over the rights of files and
// folders, so as root it runs in a child process that becomes "nobody".
int asPlainUser(const std::function<int()>& check) {
  if (::geteuid() != 0) return check();
  const pid_t child = ::fork();
  if (child == 0) {
    if (::setgroups(0, nullptr) != 0 || ::setgid(65534) != 0 || ::setuid(65534) != 0) _exit(254);
    _exit(check());
  }
  int status = 0;
  if (child < 0 || ::waitpid(child, &status, 0) != child || !WIFEXITED(status)) return 255;
  return WEXITSTATUS(status);
}

class FolderThatMayNotBeEntered : public Confinement {
 protected:
  FolderThatMayNotBeEntered() {
    dir.write("work/705", "705\r\n");
    fs::create_directory(work() / "locked");
    dir.write("work/locked/705", "705\r\n");
    // The test's folder may be entered by anyone; the working folder by nobody
    // but root (no right to enter it), and so with "locked" in it.
    fs::permissions(dir.path(), fs::perms::owner_all | fs::perms::others_exec);
    fs::permissions(work() / "locked", fs::perms::owner_read | fs::perms::owner_write);
  }
  ~FolderThatMayNotBeEntered() override {
    fs::permissions(work(), fs::perms::owner_all);
    fs::permissions(work() / "locked", fs::perms::owner_all);
  }
};

TEST_F(FolderThatMayNotBeEntered, ReadingWritingAndDeletingInItAreFatal70) {
  fs::permissions(work(), fs::perms::owner_read | fs::perms::owner_write);
  const auto inAFreshProgram = [&](const std::function<void(SequentialFiles&)>& action) {
    return asPlainUser([&] {
      SequentialFiles files(work());
      return fatalNumberOf([&] { action(files); });
    });
  };
  EXPECT_EQ(inAFreshProgram([](SequentialFiles& f) { f.Open("705", FileMode::Input, 1); }), 70);
  EXPECT_EQ(inAFreshProgram([](SequentialFiles& f) { f.Open("705", FileMode::Output, 1); }), 70);
  EXPECT_EQ(inAFreshProgram([](SequentialFiles& f) { f.Open("new", FileMode::Output, 1); }), 70);
  EXPECT_EQ(inAFreshProgram([](SequentialFiles& f) { f.Kill("705"); }), 70);
  EXPECT_EQ(asPlainUser([&] { return SequentialFiles(work()).Dir("705") == "" ? 0 : 1; }), 0);
  fs::permissions(work(), fs::perms::owner_all);
  EXPECT_EQ(dir.read("work/705"), "705\r\n");
  EXPECT_FALSE(dir.exists("work/new"));
}

TEST_F(FolderThatMayNotBeEntered, AFolderOnTheWayOfALinkIsFatal70) {
  fs::permissions(work(), fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
  link("locked/705", "12");
  const int input = asPlainUser([&] {
    SequentialFiles files(work());
    return fatalNumberOf([&] { files.Open("12", FileMode::Input, 1); });
  });
  EXPECT_EQ(input, 70);
}

// A bounded race against a second program that swaps a ticket file for a link
// to an outside file and back as fast as it can, while the user saves the
// ticket again and again. Left out of the default run; scripts/soak runs it.
TEST_F(Confinement, DISABLED_ASwappingProgramNeverGetsASaveOutside) {
  const int saves = 3000;
  std::atomic<bool> done = false;
  std::thread swapper([&] {
    const fs::path name = work() / "Lotto # 7";
    const fs::path spare = work() / "spare";
    std::error_code ignored;
    while (!done) {
      fs::create_symlink(outside("705"), spare, ignored);
      fs::rename(spare, name, ignored);
      // What is left of the spare name is removed first, so that the test
      // itself never writes through a link.
      fs::remove(spare, ignored);
      dir.write("work/spare", "ticket\r\n");
      fs::rename(spare, name, ignored);
    }
  });
  int refused = 0;
  for (int save = 0; save < saves; ++save) {
    const int number = fatalNumberOf([&] { this->save("Lotto # 7", "Lotto # 7"); });
    files.CloseAll();
    if (number == 75) ++refused;
    ASSERT_TRUE(number == 0 || number == 75) << number;
  }
  done = true;
  swapper.join();
  EXPECT_EQ(dir.read("705"), kOutside);
  std::cout << saves << " saves, " << refused << " refused as leading out\n";
}

}  // namespace
}  // namespace veridraw
