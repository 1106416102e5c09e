#include <gtest/gtest.h>

#include <string>

#include "runner/delivered_files.h"
#include "runner/tokens.h"
#include "support/play_scenario.h"

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
                      PassCase{"StartingAgainFindsTheFilesOfTheLastRun", R"(deliver
start
key Enter
reply "12"
click BtnEnterLottoDrawNumbers
type "0102030405060708"
key Enter
expect file DrawNumber "12\r\n"
key Alt+X
expect ended
start
key Enter
expect TxtDrawBox.Text "12"
expect items List1 "12" "1105"
expect inputbox "Enter the Draw Number" "Draw Number" "" 3280 2750
expect nodialog
)"},
                      PassCase{"FilesChangeWhileTheProgramRuns", R"(start
file DrawNumber "12\r\n"
expect file DrawNumber "12\r\n"
delete DrawNumber
expect nofile DrawNumber
expect running
)"}),
    [](const auto& info) { return info.param.name; });

INSTANTIATE_TEST_SUITE_P(
    UserActions, ScenarioPasses,
    ::testing::Values(PassCase{"EveryKeyNameIsAKey", R"(start
key Escape
key Backspace
key Delete
key Home
key End
expect focus BtnStart
expect form Veridraw7a
key Right
expect focus CmdReadme
key Left
expect focus BtnStart
key Tab
key Space
expect form Veridraw7d
key Enter
expect form Veridraw7a
key Alt+r
expect form Veridraw7d
key Alt+S
expect form Veridraw7a
)"},
                      PassCase{"TypedControlCharactersAreTheirKeys", R"(start
type "\t"
expect focus CmdReadme
type "\r"
expect form Veridraw7d
type "\t\t"
expect focus BtnStart
type " "
expect form Veridraw7a
type "x1"
expect form Veridraw7a
expect focus BtnStart
type ""
expect nodialog
)"},
                      PassCase{"ClicksOnLabelsAndDocumentsDoNothing", R"(start
click Label2
click Label6
click OLE1
click OLE8
expect focus BtnStart
expect form Veridraw7a
expect running
expect nodialog
)"},
                      PassCase{"AClickGivesAVisibleTextBoxTheFocus", R"(start
key Alt+R
key Alt+D
expect Text2.Visible True
click Text2
expect focus Text2
key Tab
expect focus BtnStart
)"},
                      PassCase{"AListItemIsAWordOrAString", R"(deliver
start
key Enter
expect items List1 1105
expect items List1 "1105"
expect items LstLottoTicket
expect List1.ListCount 1
expect List1.ListIndex -1
expect List1.Text ""
click List1 1105
expect focus List1
expect List1.Text "1105"
expect List1.ListIndex 0
expect List1.TopIndex 0
click List1 "1105"
expect file DrawNumber "1105\r\n"
)"},
                      PassCase{"FileNamesWithBlanksInQuotes", R"(file "Lotto # 7" "x"
expect file "Lotto # 7" "x"
expect nofile Lotto
delete "Lotto # 7"
expect nofile "Lotto # 7"
)"},
                      PassCase{"AByteOrderMarkBeforeTheFirstLine",
                               "\xEF\xBB\xBF# written by an editor that marks its files\nstart\n"
                               "expect form Veridraw7a\n"}),
    [](const auto& info) { return info.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Checks, ScenarioPasses,
    ::testing::Values(PassCase{"ATextComparesWithANumberWrittenAlike", R"(deliver
start
key Enter
expect TxtDrawBox.Text 1105
expect TxtDrawBox.Text "1105"
)"},
                      PassCase{"IntegersOfDialogsAndFatalErrorsMayBeHex", R"(deliver
start
key Enter
reply "1105"
reply 7
click BtnEnterLottoDrawNumbers
expect inputbox "Enter the Draw Number" "Draw Number" "" 0xCD0 2750
expect msgbox "Numbers already exist for this Draw    OverWrite?  Yes/No" 0x34 "DRAW ALERT"
expect nodialog
delete DrawNumber
click BtnRestart
key Enter
expect fatal 0x35
)"},
                      PassCase{"DialogsShownBeforeAFatalErrorAreStillChecked", R"(deliver
start
key Enter
reply ""
click BtnEnterLottoDrawNumbers
delete DrawNumber
click BtnRestart
expect form Veridraw7a
key Enter
expect fatal 53
expect inputbox "Enter the Draw Number" "Draw Number" "" 3280 2750
expect nodialog
)"},
                      PassCase{"PropertiesOfEachKind", R"(start
expect BtnStart.Enabled True
expect BtnStart.TabStop True
expect BtnStart.Visible True
expect Label2.BorderStyle 0
expect Label2.Enabled True
expect Label2.Visible True
expect Label6.ToolTipText ""
expect OLE1.Visible True
expect LineA(1).Locked True
expect LineA(1).TabStop False
key Alt+R
expect Text2.Locked True
expect Text2.BorderStyle 1
expect Text3.BorderStyle 0
expect Text2.TabStop False
expect Text2.Enabled True
expect Text2.ForeColor 0
expect Text2.FontBold False
expect CmdDisclaimer.TabIndex 1
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

TEST(ScenarioDeliver, NeverReplacesAFileThatIsThere) {
  const std::string& drawFile = deliveredFiles()[1].name;
  const testing::Played played = play("file DrawNumber \"9\\r\\n\"\nfile " + drawFile +
                                      " \"mine\"\ndeliver\nexpect file DrawNumber \"9\\r\\n\"\n" +
                                      "expect file " + drawFile + " \"mine\"\n");
  EXPECT_TRUE(played.result.passed) << played.result.line << ": " << played.result.reason;
}

// A second deliver puts back a delivered file that has gone, and leaves the rest.
TEST(ScenarioDeliver, TwiceBringsBackWhatIsMissing) {
  const testing::Played played =
      play("deliver\nstart\nkey Enter\nexpect form Veridraw7f\ndelete " + deliveredFiles()[1].name +
           "\ndeliver\nexpect running\n" + deliveredChecks());
  EXPECT_TRUE(played.result.passed) << played.result.line << ": " << played.result.reason;
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
print form
file "Lotto # 7" ""
print file "Lotto # 7"
print file "Lotto # 8"
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
            "focus none\n"
            "form none\n"
            "file \"Lotto # 7\" \"\"\n"
            "nofile \"Lotto # 8\"\n");
}

TEST(ScenarioPrint, TheItemsOfAListInTheNotationOfExpect) {
  const testing::Played played =
      play("deliver\nstart\nkey Enter\nprint items List1\nprint items LstLottoTicket\n");
  EXPECT_TRUE(played.result.passed) << played.result.reason;
  EXPECT_EQ(played.output, "items List1 \"1105\"\nitems LstLottoTicket\n");
}

TEST(ScenarioPrint, EachCheckedLineOfAPassingScenarioPrintsNothing) {
  EXPECT_EQ(play("start\nexpect form Veridraw7a\nkey Alt+R\n").output, "");
}

}  // namespace
}  // namespace veridraw
