#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/play_scenario.h"

namespace veridraw {
namespace {

using testing::play;

struct FailCase {
  std::string name;
  std::string scenario;
  int line;
  std::vector<std::string> mentions;  // what was expected and what was found
};

void PrintTo(const FailCase& c, std::ostream* out) {
  *out << c.name;
}

std::string byName(const ::testing::TestParamInfo<FailCase>& info) {
  return info.param.name;
}

class ScenarioFails : public ::testing::TestWithParam<FailCase> {};

TEST_P(ScenarioFails, AtItsLineWithAReason) {
  const FailCase& c = GetParam();
  const testing::Played played = play(c.scenario);
  ASSERT_FALSE(played.result.passed);
  EXPECT_EQ(played.result.line, c.line) << played.result.reason;
  for (const std::string& mention : c.mentions)
    EXPECT_NE(played.result.reason.find(mention), std::string::npos)
        << "the reason \"" << played.result.reason << "\" doesn't mention " << mention;
}

INSTANTIATE_TEST_SUITE_P(
    Properties, ScenarioFails,
    ::testing::Values(
        FailCase{"WrongCaption",
                 "start\nexpect BtnStart.Caption \"Start\"\n",
                 2,
                 {"BtnStart.Caption", "\"Start\"", "\"Press &Enter to Start\""}},
        FailCase{"WrongColour",
                 "start\nexpect BtnStart.BackColor 0xFF0000\n",
                 2,
                 {"BtnStart.BackColor", "0xFF0000", "0x0000FF"}},
        FailCase{"WrongNumber", "start\nexpect BtnStart.Left 5000\n", 2, {"5000", "5880"}},
        FailCase{"WrongBoolean", "start\nexpect Label6.Visible False\n", 2, {"False", "True"}},
        FailCase{"NumberForAString",
                 "start\nexpect Label2.Caption 36\n",
                 2,
                 {"36", "\"Lotto Veridraw\""}},
        FailCase{"TextOfALabel", "start\nexpect Label2.Text \"x\"\n", 2, {"Label2", "Text"}},
        FailCase{
            "LockedOfAButton", "start\nexpect BtnStart.Locked False\n", 2, {"BtnStart", "Locked"}},
        FailCase{"TopIndexOfATextBox",
                 "start\nkey Alt+R\nexpect Text2.TopIndex 0\n",
                 3,
                 {"Text2", "TopIndex"}},
        FailCase{"UnknownProperty", "start\nexpect BtnStart.Colour 1\n", 2, {"Colour"}},
        FailCase{"UnknownControl", "start\nexpect BtnNone.Visible True\n", 2, {"BtnNone"}},
        FailCase{"NotAValue", "start\nexpect BtnStart.Left left\n", 2, {"left"}},
        FailCase{"ArrayWithoutIndex", "start\nexpect LineA.Visible True\n", 2, {"LineA"}}),
    byName);

INSTANTIATE_TEST_SUITE_P(
    TargetsAndForms, ScenarioFails,
    ::testing::Values(
        FailCase{"ARangeWithAnElementOutOfStep",
                 "start\nexpect LineA(1..6).Left 1575\n",
                 2,
                 {"LineA(2).Left", "1575"}},
        FailCase{
            "ARangePastTheArray", "start\nexpect LineA(29..31).Visible True\n", 2, {"LineA(31)"}},
        FailCase{"AMissingElement", "start\nexpect LineA(0).Visible True\n", 2, {"LineA(0)"}},
        FailCase{"ARangeOutsideExpect", "start\nclick LineA(1..2)\n", 2, {"LineA(1..2)"}},
        FailCase{"AnEmptyFormName", "start\nexpect .BtnStart.Visible True\n", 2, {".BtnStart"}},
        FailCase{"ARangeForTheFocus",
                 "start\nexpect focus LineA(1..2)\n",
                 2,
                 {"LineA(1..2)", "one control"}},
        FailCase{"AFormNotLoaded",
                 "start\nexpect Veridraw7d.BtnStart.Visible True\n",
                 2,
                 {"Veridraw7d"}},
        FailCase{"AFormThatDoesntExist",
                 "start\nexpect Veridraw9.BtnStart.Visible True\n",
                 2,
                 {"Veridraw9"}},
        FailCase{"AReasonStaysOnOneLine",
                 "start\nexpect form \"Veridraw7a\\r\\nPASS x\"\n",
                 2,
                 {"Veridraw7a\\r\\nPASS x"}},
        FailCase{
            "TheWrongForm", "start\nexpect form Veridraw7d\n", 2, {"Veridraw7d", "Veridraw7a"}},
        FailCase{
            "TheFocusElsewhere", "start\nexpect focus CmdReadme\n", 2, {"CmdReadme", "BtnStart"}},
        FailCase{"ItemsOfAButton", "start\nexpect items BtnStart\n", 2, {"BtnStart", "list box"}},
        FailCase{"AFormAfterTheEnd", "start\nkey Alt+X\nexpect form Veridraw7a\n", 3, {"ended"}}),
    byName);

INSTANTIATE_TEST_SUITE_P(
    UserActions, ScenarioFails,
    ::testing::Values(
        FailCase{
            "ClickingAHiddenLabel", "start\nkey Alt+R\nclick Label6\n", 3, {"Label6", "hidden"}},
        FailCase{
            "ClickingAHiddenTextBox", "start\nkey Alt+R\nclick Text2\n", 3, {"Text2", "hidden"}},
        FailCase{
            "ClickingAFormNotOnScreen", "start\nclick Veridraw7d.BtnStart\n", 2, {"Veridraw7d"}},
        FailCase{
            "SelectingInAButton", "start\nclick BtnStart \"705\"\n", 2, {"BtnStart", "list box"}},
        FailCase{"ClickingBeforeStart", "click BtnStart\n", 1, {"click", "started"}},
        FailCase{"KeysBeforeStart", "key Enter\n", 1, {"started"}},
        FailCase{"TypingBeforeStart", "type \"12\"\n", 1, {"type", "started"}},
        FailCase{"KeysAfterTheEnd", "start\nkey Alt+X\nkey Enter\n", 3, {"ended"}},
        FailCase{"TypingAfterTheEnd", "start\nclose\ntype \"1\"\n", 3, {"ended"}},
        FailCase{"ClosingAfterTheEnd", "start\nclose\nclose\n", 3, {"ended"}},
        FailCase{"AnUnknownKey", "start\nkey F5\n", 2, {"F5"}},
        FailCase{"AnAltWithoutALetter", "start\nkey Alt+5\n", 2, {"Alt+5"}},
        FailCase{"AReplyThatIsNoAnswer", "reply True\n", 1, {"reply"}},
        FailCase{"StartingWhileRunning", "start\nstart\n", 2, {"already running"}}),
    byName);

INSTANTIATE_TEST_SUITE_P(
    ProgramState, ScenarioFails,
    ::testing::Values(
        FailCase{
            "RunningAfterTheEnd", "start\nkey Alt+X\nexpect running\n", 3, {"running", "ended"}},
        FailCase{"RunningBeforeStart", "expect running\n", 1, {"running", "not started"}},
        FailCase{"EndedWhileRunning", "start\nexpect ended\n", 2, {"ended", "running"}},
        FailCase{"FatalWhileRunning", "start\nexpect fatal 53\n", 2, {"53", "running"}},
        FailCase{
            "FatalAfterAnEnd", "start\nclick CmdForm1Exit\nexpect fatal 53\n", 3, {"53", "ended"}}),
    byName);

INSTANTIATE_TEST_SUITE_P(
    DialogsAndFiles, ScenarioFails,
    ::testing::Values(
        FailCase{"AMessageBoxNeverShown",
                 "start\nexpect msgbox \"Are these numbers correct?\" 36 \"Veridraw\"\n",
                 2,
                 {"msgbox \"Are these numbers correct?\" 36 \"Veridraw\"", "no"}},
        FailCase{
            "AnInputBoxNeverShown",
            "start\nexpect inputbox \"Enter the Draw Number\" \"Draw Number\" \"\" 3280 2750\n",
            2,
            {"inputbox \"Enter the Draw Number\" \"Draw Number\" \"\" 3280 2750"}},
        FailCase{"AFileWithOtherBytes",
                 "file DrawNumber \"705\\r\\n\"\nexpect file DrawNumber \"705\\n\"\n",
                 2,
                 {"DrawNumber", "\"705\\n\"", "\"705\\r\\n\""}},
        FailCase{"AFileThatIsntThere",
                 "expect file DrawNumber \"705\\r\\n\"\n",
                 1,
                 {"DrawNumber", "no such file"}},
        FailCase{"NoFileButThereIsOne",
                 "file 705 \"705\\r\\n\"\nexpect nofile 705\n",
                 2,
                 {"705", "\"705\\r\\n\""}},
        FailCase{"AFileNameWithAFolder", "file sub/x \"\"\n", 1, {"sub/x"}}),
    byName);

// The draw screen with the delivered draw, ready for a click that asks a question.
const std::string kDrawScreen = "deliver\nstart\nkey Enter\n";
const std::string kOverwriteQuestion =
    R"(msgbox "Numbers already exist for this Draw    OverWrite?  Yes/No" 52 "DRAW ALERT")";
const std::string kDrawNumberPrompt =
    R"(inputbox "Enter the Draw Number" "Draw Number" "" 3280 2750)";

INSTANTIATE_TEST_SUITE_P(
    Replies, ScenarioFails,
    ::testing::Values(
        FailCase{"NoReplyForAnInputBox",
                 kDrawScreen + "click BtnEnterLottoDrawNumbers\nexpect running\n",
                 4,
                 {kDrawNumberPrompt, "no reply"}},
        FailCase{"AButtonForAnInputBox",
                 kDrawScreen + "reply 6\nclick BtnEnterLottoDrawNumbers\n",
                 5,
                 {kDrawNumberPrompt, "message box"}},
        FailCase{"NoReplyForAMessageBox",
                 kDrawScreen + "reply \"1105\"\nclick BtnEnterLottoDrawNumbers\n",
                 5,
                 {kOverwriteQuestion, "no reply"}},
        FailCase{"ATextForAMessageBox",
                 kDrawScreen + "reply \"1105\"\nreply \"Yes\"\nclick BtnEnterLottoDrawNumbers\n",
                 6,
                 {kOverwriteQuestion, "input box"}},
        FailCase{"AReplyThatIsNoWholeNumber", "reply 1.5\n", 1, {"1.5"}}),
    byName);

// A reply that no dialog took fails the scenario at its last line, naming the
// reply as written and the line that queued it.
INSTANTIATE_TEST_SUITE_P(
    UnusedReplies, ScenarioFails,
    ::testing::Values(FailCase{"AButtonNoBoxAsked",
                               "start\nreply 6\nexpect form Veridraw7a\n# nothing asks\n",
                               4,
                               {"reply 6 queued at line 2 was never taken by a dialog"}},
                      FailCase{"ATextBeforeTheStart",
                               "reply \"705\"\nstart\n",
                               2,
                               {"reply \"705\" queued at line 1 was never taken by a dialog"}},
                      FailCase{"AButtonWrittenInHex",
                               "start\nreply 0x6\n",
                               2,
                               {"reply 0x6 queued at line 2 was never taken by a dialog"}},
                      FailCase{"TheSecondOfTwoWhenOneBoxAsked",
                               kDrawScreen +
                                   "reply \"\"\nreply 7\nclick BtnEnterLottoDrawNumbers\n" +
                                   "expect " + kDrawNumberPrompt + "\n",
                               7,
                               {"reply 7 queued at line 5 was never taken by a dialog"}},
                      FailCase{"TheOldestOfTwoLeft",
                               "start\nreply \"1\"\nreply 1\n",
                               3,
                               {"reply \"1\" queued at line 2 was never taken by a dialog"}},
                      FailCase{"AfterTheProgramEnded",
                               "start\nreply 1\nkey Alt+X\nexpect ended\n",
                               4,
                               {"reply 1 queued at line 2"}},
                      FailCase{"AnEarlierFailureComesFirst",
                               "start\nreply 6\nexpect form Veridraw7d\nexpect running\n",
                               3,
                               {"Veridraw7d", "Veridraw7a"}}),
    byName);

INSTANTIATE_TEST_SUITE_P(
    DialogChecks, ScenarioFails,
    ::testing::Values(
        FailCase{"AnotherDialogThanTheOldest",
                 kDrawScreen + "reply \"\"\nclick BtnEnterLottoDrawNumbers\n" +
                     "expect msgbox \"Enter the Draw Number\" 0 \"Draw Number\"\n",
                 6,
                 {"msgbox \"Enter the Draw Number\" 0 \"Draw Number\"", kDrawNumberPrompt}},
        FailCase{"AnInputBoxAtAnotherPlace",
                 kDrawScreen + "reply \"\"\nclick BtnEnterLottoDrawNumbers\n" +
                     "expect inputbox \"Enter the Draw Number\" \"Draw Number\" \"\" 3280 2700\n",
                 6,
                 {"2700", kDrawNumberPrompt}},
        FailCase{"ADialogLeftUnchecked",
                 kDrawScreen + "reply \"\"\nclick BtnEnterLottoDrawNumbers\nexpect nodialog\n",
                 6,
                 {"no unchecked dialog", kDrawNumberPrompt}},
        FailCase{"ADialogCheckedTwice",
                 kDrawScreen + "reply \"\"\nclick BtnEnterLottoDrawNumbers\nexpect " +
                     kDrawNumberPrompt + "\nexpect " + kDrawNumberPrompt + "\n",
                 7,
                 {kDrawNumberPrompt, "no unchecked dialog"}},
        FailCase{"AFatalErrorIsNoDialog",
                 "start\nkey Enter\nexpect msgbox \"File not found\" 0 \"Veridraw\"\n",
                 3,
                 {"File not found", "no unchecked dialog"}},
        FailCase{"ButtonsThatAreNoNumber",
                 kDrawScreen + "reply \"\"\nclick BtnEnterLottoDrawNumbers\n" +
                     "expect msgbox \"x\" OK \"y\"\n",
                 6,
                 {"OK"}}),
    byName);

INSTANTIATE_TEST_SUITE_P(
    MoreChecks, ScenarioFails,
    ::testing::Values(
        FailCase{"AFatalErrorOfAnotherNumber",
                 "start\nkey Enter\nexpect fatal 62\n",
                 3,
                 {"62", "53", "File not found"}},
        FailCase{
            "EndedAfterAFatalError", "start\nkey Enter\nexpect ended\n", 3, {"fatal error 53"}},
        FailCase{"AFatalNumberThatIsNoNumber", "start\nkey Enter\nexpect fatal x\n", 3, {"x"}},
        FailCase{"AnItemThatIsntInTheList",
                 kDrawScreen + "click List1 \"999\"\n",
                 4,
                 {"List1", "\"999\""}},
        FailCase{"OtherItems",
                 kDrawScreen + "expect items List1 \"1105\" \"12\"\n",
                 4,
                 {"\"1105\" \"12\"", "found \"1105\""}},
        FailCase{"ItemsOfAnEmptyList",
                 kDrawScreen + "expect items LstLottoTicket \"1\"\n",
                 4,
                 {"\"1\"", "(none)"}},
        FailCase{"ATextThatIsnt", kDrawScreen + "expect TxtDrawBox.Text 705\n", 4, {"705", "1105"}},
        FailCase{
            "AStringForANumber", "start\nexpect BtnStart.Left \"5880\"\n", 2, {"\"5880\"", "5880"}},
        FailCase{"ForeColorOfAButton", "start\nexpect BtnStart.ForeColor 0\n", 2, {"ForeColor"}},
        FailCase{"TabStopOfALabel", "start\nexpect Label2.TabStop False\n", 2, {"TabStop"}},
        FailCase{"CaptionOfATextBox", "start\nexpect LineA(1).Caption \"01\"\n", 2, {"Caption"}},
        FailCase{"CaptionOfADocument", "start\nexpect OLE1.Caption \"\"\n", 2, {"OLE1", "Caption"}},
        FailCase{"ListCountOfALabel", "start\nexpect Label2.ListCount 0\n", 2, {"ListCount"}},
        FailCase{"ItemsOfALabel", "start\nexpect items Label2\n", 2, {"Label2", "list box"}},
        FailCase{"ANameIndexedThatIsNoArray",
                 "start\nexpect BtnStart(1).Visible True\n",
                 2,
                 {"BtnStart(1)"}},
        FailCase{"AnIndexThatIsNoNumber", "start\nexpect LineA(1-2).Visible True\n", 2, {"1-2"}},
        FailCase{
            "AFocusOnAFormThatIsGone", "start\nkey Alt+X\nexpect focus BtnStart\n", 3, {"ended"}}),
    byName);

INSTANTIATE_TEST_SUITE_P(
    Lines, ScenarioFails,
    ::testing::Values(
        FailCase{"AnUnknownCommand", "start\nfrobnicate now\n", 2, {"frobnicate"}},
        FailCase{"AnOpenString", "file a \"x\n", 1, {"quote"}},
        FailCase{"AnUnknownEscape", "file a \"\\q\"\n", 1, {"\\q"}},
        FailCase{"BlankAndCommentLinesCount",
                 "# the start screen\n\nstart\n\n  # then a wrong form\nexpect form Veridraw7d\n",
                 6,
                 {"Veridraw7d"}},
        FailCase{"TheFirstFailingLineStopsTheScenario",
                 "start\nexpect form Veridraw7d\nfrobnicate\n",
                 2,
                 {"Veridraw7d"}}),
    byName);

}  // namespace
}  // namespace veridraw
