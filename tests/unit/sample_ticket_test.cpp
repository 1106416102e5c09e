#include "decoration/sample_ticket.h"

#include <gtest/gtest.h>

#include <string>

namespace veridraw {
namespace {

const ControlDesign* findDesign(const std::vector<ControlDesign>& controls, const std::string& name,
                                int index) {
  for (const ControlDesign& design : controls)
    if (design.name == name && design.index == index) return &design;
  return nullptr;
}

TEST(SampleTicket, TenLinesAreLetteredWithoutI) {
  std::vector<ControlDesign> controls;
  addSampleTicket(controls, {.lines = 10,
                             .numbersPerLine = 3,
                             .left = 600,
                             .top = 1200,
                             .lineStep = 1,
                             .columnStep = 1,
                             .lineNumbers = false});
  EXPECT_EQ(controls.size(), 40u);
  EXPECT_EQ(findDesign(controls, "TextATxt", 8)->text, "H.");
  EXPECT_EQ(findDesign(controls, "TextATxt", 9)->text, "J.");
  EXPECT_EQ(findDesign(controls, "TextATxt", 10)->text, "K.");
  EXPECT_EQ(findDesign(controls, "TextATxt", 11), nullptr);
}

TEST(SampleTicket, NumbersRiseByTheirStepsAlongLinesAndColumns) {
  std::vector<ControlDesign> controls;
  addSampleTicket(controls, {.lines = 10,
                             .numbersPerLine = 3,
                             .left = 600,
                             .top = 1200,
                             .lineStep = 1,
                             .columnStep = 1,
                             .lineNumbers = false});
  EXPECT_EQ(findDesign(controls, "LineA", 1)->text, "01");
  EXPECT_EQ(findDesign(controls, "LineA", 3)->text, "03");
  EXPECT_EQ(findDesign(controls, "LineA", 4)->text, "02");
  EXPECT_EQ(findDesign(controls, "LineA", 30)->text, "12");
  EXPECT_EQ(findDesign(controls, "LineA", 4)->left, 600);
  EXPECT_EQ(findDesign(controls, "LineA", 4)->top, 1455);
  EXPECT_EQ(findDesign(controls, "LineA", 3)->left, 1200);
}

TEST(SampleTicket, TheStartScreenLayoutNumbersItsLines) {
  std::vector<ControlDesign> controls;
  addSampleTicket(controls, {.lines = 5,
                             .numbersPerLine = 6,
                             .left = 1575,
                             .top = 2220,
                             .lineStep = 3,
                             .columnStep = 5,
                             .lineNumbers = true});
  EXPECT_EQ(controls.size(), 40u);
  EXPECT_EQ(findDesign(controls, "LineA", 2)->text, "06");
  EXPECT_EQ(findDesign(controls, "LineA", 7)->text, "04");
  EXPECT_EQ(findDesign(controls, "LineA", 30)->left, 3075);
  EXPECT_EQ(findDesign(controls, "LineA", 30)->top, 3240);
  EXPECT_EQ(findDesign(controls, "TextATxt", 5)->text, "E.");
  EXPECT_EQ(findDesign(controls, "TextATxt", 6)->text, "1");
  EXPECT_EQ(findDesign(controls, "TextATxt", 10)->text, "5");
}

}  // namespace
}  // namespace veridraw
