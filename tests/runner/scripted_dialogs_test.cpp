#include "runner/scripted_dialogs.h"

#include <gtest/gtest.h>

#include <string>

#include "runner/tokens.h"

namespace veridraw::script {
namespace {

// The reason of a failure thrown by `action`, or "" if none was thrown.
template <class Action>
std::string failureOf(Action&& action) {
  try {
    action();
  } catch (const ScenarioFailure& failure) {
    return failure.what();
  }
  return "";
}

TEST(ScriptedDialogs, AnswersFromTheQueueInOrder) {
  ScriptedDialogs dialogs;
  dialogs.queue(6);
  dialogs.queue(std::string("705"));
  EXPECT_EQ(dialogs.MsgBox("Are these numbers correct?", 36, "Veridraw"), 6);
  EXPECT_EQ(dialogs.InputBox("Enter the Draw Number", "Draw Number", "", 3280, 2750), "705");
}

// The field left empty and confirmed with OK gives what Cancel gives: "".
TEST(ScriptedDialogs, AnEmptyReplyIsCancelWhateverTheDefault) {
  ScriptedDialogs dialogs;
  dialogs.queue(std::string(""));
  EXPECT_EQ(dialogs.InputBox("Enter the Ticket Number", "Ticket Number", "12", 0, 0), "");
}

TEST(ScriptedDialogs, KeepsEveryDialogShownForTheChecksInOrder) {
  ScriptedDialogs dialogs;
  dialogs.queue(1);
  dialogs.queue(std::string("x"));
  dialogs.MsgBox("Number out of range", 48, "WARNING");
  dialogs.InputBox("Enter the Draw Number", "Draw Number", "", 3280, 2750);
  DialogShown shown;
  ASSERT_TRUE(dialogs.takeUnchecked(shown));
  EXPECT_EQ(describe(shown), R"(msgbox "Number out of range" 48 "WARNING")");
  ASSERT_TRUE(dialogs.takeUnchecked(shown));
  EXPECT_EQ(describe(shown), R"(inputbox "Enter the Draw Number" "Draw Number" "" 3280 2750)");
  EXPECT_FALSE(dialogs.takeUnchecked(shown));
  EXPECT_TRUE(dialogs.allChecked());
}

TEST(ScriptedDialogs, NoReplyQueuedFailsNamingTheDialog) {
  ScriptedDialogs dialogs;
  const std::string reason =
      failureOf([&] { dialogs.MsgBox("Number out of range", 48, "WARNING"); });
  EXPECT_NE(reason.find(R"(msgbox "Number out of range" 48 "WARNING")"), std::string::npos)
      << reason;
}

TEST(ScriptedDialogs, AReplyOfTheWrongKindFailsNamingTheDialog) {
  ScriptedDialogs dialogs;
  dialogs.queue(6);
  const std::string reason =
      failureOf([&] { dialogs.InputBox("Enter the Draw Number", "Draw Number", "", 3280, 2750); });
  EXPECT_NE(reason.find(R"(inputbox "Enter the Draw Number")"), std::string::npos) << reason;
  EXPECT_NE(reason.find("message box"), std::string::npos) << reason;
}

TEST(ScriptedDialogs, AMessageBoxRefusesATextReply) {
  ScriptedDialogs dialogs;
  dialogs.queue(std::string("705"));
  EXPECT_THROW(dialogs.MsgBox("Are these numbers correct?", 36, "Veridraw"), ScenarioFailure);
}

}  // namespace
}  // namespace veridraw::script
