#include <gtest/gtest.h>

#include <string>

#include "runner/delivered_files.h"
#include "runner/tokens.h"
#include "unit/play_scenario.h"

namespace veridraw {
namespace {

using testing::play;

struct PassCase {
  std::string name;
  std::string scenario;
};

void PrintTo(const PassCase& c, std::ostream* out) {
  *out << c.name;
}

class ScenarioPasses : public ::testing::TestWithParam<PassCase> {};

TEST_P(ScenarioPasses, ToItsLastLine) {
  const testing::Played played = play(GetParam().scenario);
  EXPECT_TRUE(played.result.passed)
      << "line " << played.result.line << ": " << played.result.reason;
}

INSTANTIATE_TEST_SUITE_P(
    StartAndReadme, ScenarioPasses,
    ::testing::Values(PassCase{"StartScreenAsLaidOut", R"(start
expect form Veridraw7a
expect focus BtnStart
expect BtnStart.Caption "Press &Enter to Start"
expect BtnStart.ToolTipText "Press Enter to start Veridraw"
expect BtnStart.BackColor 255
expect BtnStart.BackColor 0x0000FF
expect BtnStart.Left 5880
expect BtnStart.Top 6840
expect BtnStart.Width 4335
expect BtnStart.Height 615
expect CmdForm1Exit.Caption "E&xit"
expect Btn1Lotto.ToolTipText "PRESS ENTER"
expect Label2.Caption "Lotto Veridraw"
expect Label2.FontSize 36
expect Label2.FontBold True
expect Label6.BackColor 0x800000
expect Label6.ForeColor 0xFFFFFF
expect LineA(1..30).Visible True
expect LineA(1).Left 1575
expect LineA(30).Left 3075
expect LineA(30).Top 3240
expect TextATxt(1..10).Visible True
expect Veridraw7a.CmdReadme.Caption "&Readme"
expect Veridraw7a.LineA(1..30).Visible True
expect BtnStart.TabIndex 0
expect running
expect nodialog
)"},
                      PassCase{"AltROpensTheReadmeWhoseControlsComeBackAnew", R"(start
key Alt+R
expect form Veridraw7d
expect focus BtnStart
expect BtnStart.BackColor 0xC0FFFF
expect BtnStart.TabIndex 0
expect CmdDisclaimer.BackColor 0xC0C0C0
expect Label9.Caption " NOTE"
expect Label6.Visible False
expect Text2.Visible False
expect Text3.Visible False
click CmdDisclaimer
expect Label6.Visible True
expect Text2.Visible True
expect Veridraw7d.Text3.Visible True
key Alt+S
expect form Veridraw7a
expect focus BtnStart
key Alt+R
expect Label6.Visible False
)"},
                      PassCase{"AltXEnds", "start\nkey Alt+X\nexpect ended\n"},
                      PassCase{"ExitButtonEnds", "start\nclick CmdForm1Exit\nexpect ended\n"},
                      PassCase{"CloseControlEnds", "start\nclose\nexpect ended\n"},
                      PassCase{"TabThenSpacePressesTheReadmeButton", R"(start
key Tab
expect focus CmdReadme
key Tab
expect focus CmdForm1Exit
key Tab
key Tab
key Tab
key Tab
key Tab
expect focus BtnStart
key Tab
key Space
expect form Veridraw7d
)"},
                      PassCase{"APictureOfAGameDoesNothing", R"(start
click Btn1Lotto
click BtnPowerBall
expect form Veridraw7a
expect running
expect nodialog
)"},
                      PassCase{"FilesAreWrittenAndCheckedByteForByte", R"(file DrawNumber "705\r\n"
file "Lotto # 7" "Lotto # 7\r\n\x00\xFF\t\"\\"
expect file DrawNumber "705\r\n"
expect file "Lotto # 7" "Lotto # 7\r\n\x00\xFF\t\"\\"
file DrawNumber ""
expect file DrawNumber ""
delete DrawNumber
expect nofile DrawNumber
delete DrawNumber
expect nofile 705
)"},
                      PassCase{"CommentsAndBlankLinesAreIgnored",
                               "# a comment\n\n   \n\t\n  # an indented one\n"
                               "# one with a lone \" quote\n"
                               "# one with a \"\\q\" escape\nstart\n"},
                      PassCase{"LinesMayEndInCrLf",
                               "start\r\nexpect form Veridraw7a\r\n\r\n# done\r\n"},
                      PassCase{"EndingWithTheProgramRunningPasses", "start\nkey Tab\n"},
                      PassCase{"NoLineAtAllPasses", ""},
                      PassCase{"StartingAgainAfterTheEndIsANewLaunch", R"(start
key Alt+R
expect form Veridraw7d
key Alt+S
key Alt+X
expect ended
start
expect running
expect form Veridraw7a
expect focus BtnStart
key Enter
expect fatal 53
start
expect running
expect form Veridraw7a
)"},
                      PassCase{"FilesChangeWhileTheProgramRuns", R"(start
file DrawNumber "12\r\n"
expect file DrawNumber "12\r\n"
delete DrawNumber
expect nofile DrawNumber
expect running
)"}),
    [](const auto& info) { return info.param.name; });

std::string deliveredChecks() {
  std::string checks;
  for (const DeliveredFile& file : deliveredFiles())
    checks += "expect file " + script::quote(file.name) + " " + script::quote(file.content) + "\n";
  return checks;
}

TEST(ScenarioDeliver, WritesTheCurrentDrawFileAndTheDrawItNames) {
  ASSERT_EQ(deliveredFiles().size(), 2u);
  EXPECT_EQ(deliveredFiles()[0].name, "DrawNumber");
  const std::string& current = deliveredFiles()[0].content;
  EXPECT_EQ(deliveredFiles()[1].name, current.substr(0, current.find('\r')));
  const testing::Played played = play("deliver\n" + deliveredChecks());
  EXPECT_TRUE(played.result.passed) << played.result.reason;
}

TEST(ScenarioDeliver, NeverOverwritesAFileThatIsThere) {
  const std::string& drawFile = deliveredFiles()[1].name;
  const testing::Played played = play("file DrawNumber \"9\\r\\n\"\nfile " + drawFile +
                                      " \"mine\"\ndeliver\nexpect file DrawNumber \"9\\r\\n\"\n"
                                      "expect file " +
                                      drawFile + " \"mine\"\n");
  EXPECT_TRUE(played.result.passed) << played.result.reason;
}

TEST(ScenarioPrint, AnswersInTheNotationOfExpect) {
  const testing::Played played = play(R"(start
print form
print focus
print BtnStart.Caption
print BtnStart.BackColor
print LineA(30).Top
print Label2.FontBold
file a "x\r\n"
print file a
print file b
key Alt+X
print focus
)");
  EXPECT_TRUE(played.result.passed) << played.result.reason;
  EXPECT_EQ(played.output,
            "form Veridraw7a\n"
            "focus BtnStart\n"
            "BtnStart.Caption \"Press &Enter to Start\"\n"
            "BtnStart.BackColor 0x0000FF\n"
            "LineA(30).Top 3240\n"
            "Label2.FontBold True\n"
            "file a \"x\\r\\n\"\n"
            "nofile b\n"
            "focus none\n");
}

TEST(ScenarioPrint, EachCheckedLineOfAPassingScenarioPrintsNothing) {
  EXPECT_EQ(play("start\nexpect form Veridraw7a\nkey Alt+R\n").output, "");
}

}  // namespace
}  // namespace veridraw
