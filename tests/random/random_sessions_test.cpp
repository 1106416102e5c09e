// Random user sessions, tidy and untidy, each checked after every event; and
// the scenario that a session writes down replays it to the same end.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "random/session.h"
#include "support/play_scenario.h"
#include "support/test_support.h"

namespace veridraw::random_sessions {
namespace {

// VERIDRAW_SESSIONS sets how many sessions of each kind a run plays, and
// VERIDRAW_FIRST_SEED the seed of the first; scripts/soak sets both.
std::uint64_t fromEnvironment(const char* name, std::uint64_t otherwise) {
  const char* value = std::getenv(name);
  return value != nullptr && *value != '\0' ? std::strtoull(value, nullptr, 10) : otherwise;
}

constexpr std::uint64_t kSessionsInCi = 25;
constexpr int kEventsPerSession = 200;

void playMany(bool tidy) {
  const std::uint64_t sessions = fromEnvironment("VERIDRAW_SESSIONS", kSessionsInCi);
  const std::uint64_t first = fromEnvironment("VERIDRAW_FIRST_SEED", 1);
  long events = 0;
  int fatal = 0;
  int failed = 0;
  for (std::uint64_t seed = first; seed < first + sessions; ++seed) {
    testing::TemporaryDirectory dir;
    const SessionResult result = playSession(seed, {tidy, kEventsPerSession, nullptr}, dir.path());
    events += result.events;
    if (result.fatalNumber != 0) ++fatal;
    if (!result.passed) {
      ++failed;
      ADD_FAILURE() << "seed " << seed << ": " << result.failure << "\nThe session as a scenario:\n"
                    << result.scenario;
    }
  }
  std::cout << (tidy ? "tidy" : "untidy") << " sessions: " << sessions << ", events: " << events
            << ", ended by a fatal error: " << fatal << ", failed: " << failed << "\n";
}

TEST(RandomSessions, TidySessionsEndOnlyAsAskedOrByAStoredPairThatIsNoNumber) {
  playMany(true);
}

TEST(RandomSessions, UntidySessionsEndOnlyByForeseenErrorsAndKeepFilesWhole) {
  playMany(false);
}

// The scenario of a session, played by the runner in a new folder, ends as
// the session ended and leaves the same files.
TEST(RandomSessions, TheScenarioOfASessionReplaysIt) {
  int replayed = 0;
  for (std::uint64_t seed = 1; seed <= 4; ++seed) {
    for (const bool tidy : {true, false}) {
      testing::TemporaryDirectory dir;
      const SessionResult session = playSession(seed, {tidy, 120, nullptr}, dir.path());
      ASSERT_TRUE(session.passed) << session.failure;
      ASSERT_NE(session.scenario.find("\nexpect "), std::string::npos);
      const testing::Played played = testing::play(session.scenario);
      EXPECT_TRUE(played.result.passed) << "seed " << seed << " line " << played.result.line << ": "
                                        << played.result.reason << "\n"
                                        << session.scenario;
      ++replayed;
    }
  }
  EXPECT_EQ(replayed, 8);
}

// The checks can fail: with a folder where "DrawNumber" should be, the draw
// screen's Load ends with error 75, which a tidy session doesn't foresee.
TEST(RandomSessions, AnUnforeseenErrorFailsTheSessionAndIsWrittenDown) {
  testing::TemporaryDirectory dir;
  std::filesystem::create_directory(dir.path() / "DrawNumber");
  const SessionResult session = playSession(1, {true, 250, nullptr}, dir.path());
  EXPECT_FALSE(session.passed);
  EXPECT_EQ(session.failure, "fatal error 75 isn't foreseen here");
  EXPECT_EQ(session.fatalNumber, 75);
  const std::string ending =
      "# The session failed here: fatal error 75 isn't foreseen here\n"
      "expect running\n";
  ASSERT_GE(session.scenario.size(), ending.size());
  EXPECT_EQ(session.scenario.substr(session.scenario.size() - ending.size()), ending);
}

struct NamedFile {
  std::string name;
  std::string content;
};

TEST(WholeFiles, FilesAsTheProgramWritesThemAreWhole) {
  for (const NamedFile& file : std::vector<NamedFile>{
           {"DrawNumber", "705\r\n"},
           {"705", "705\r\nX0308172239401202\r\nZ17033908\r\n"},
           {"706", "706\r\n\r\nZ17033908\r\n"},
           {"7a", "7a\r\nX  \r\n\r\n"},
           {"Lotto # 7", " 4 \r\nLotto # 7\r\n 0102\r\n"},
           {"P-Ball # 7", " 1 \r\nP-Ball # 7\r\n 010203040506\r\n0102\r\n"},
           {"TicketNumber", "Strike # 2\r\n"},
       })
    EXPECT_EQ(wholenessProblem(file.name, file.content), "") << file.name;
}

TEST(WholeFiles, FilesCutShortOrMixedUpAreNot) {
  for (const NamedFile& file : std::vector<NamedFile>{
           {"DrawNumber", ""},
           {"DrawNumber", "70"},
           {"705", "705\r\nX0308172239401202\r\n"},
           {"705", "705\r\nX0308172239401202\r\nZ1703"},
           {"705", "706\r\n\r\n\r\n"},
           {"705", "705\r\nZ17033908\r\n\r\n"},
           {"Lotto # 7", " 4 \r\nLotto # 7\r\n"},
           {"Lotto # 7", " 4 \r\nLotto # 8\r\n 0102\r\n"},
           {"P-Ball # 7", " 1 \r\nP-Ball # 7\r\n 010203040506\r\n"},
       })
    EXPECT_NE(wholenessProblem(file.name, file.content), "") << file.name << ": " << file.content;
}

}  // namespace
}  // namespace veridraw::random_sessions
