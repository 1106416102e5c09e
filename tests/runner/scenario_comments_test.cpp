#include <gtest/gtest.h>

#include <sstream>

#include "runner/scenario.h"

namespace veridraw::script {
namespace {

ScenarioResult play(const std::string& text) {
  std::istringstream in(text);
  std::ostringstream out;
  return runScenario(in, out, false);
}

TEST(ScenarioComments, ACommentMayHoldAnUnfinishedQuote) {
  const ScenarioResult result = play("# the file \"DrawNumber\": missing\n# a lone \" quote\n");
  EXPECT_TRUE(result.passed) << result.line << ": " << result.reason;
}

TEST(ScenarioComments, AnIndentedCommentIsSkippedToo) {
  const ScenarioResult result = play("   # \"odd\": words\n\t# more\n");
  EXPECT_TRUE(result.passed) << result.line << ": " << result.reason;
}

TEST(ScenarioComments, AnUnfinishedQuoteOutsideACommentStillFails) {
  const ScenarioResult result = play("# fine\nexpect file \"DrawNumber\":\n");
  EXPECT_FALSE(result.passed);
  EXPECT_EQ(result.line, 2);
}

}  // namespace
}  // namespace veridraw::script
