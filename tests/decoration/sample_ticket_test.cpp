// The sample tickets of the start and draw screens, as their designs lay them out.
#include "decoration/sample_ticket.h"

#include <gtest/gtest.h>

#include <string>

#include "draws/veridraw7f.h"
#include "shell/veridraw7a.h"

namespace veridraw {
namespace {

const ControlDesign& element(const FormDesign& form, const std::string& name, int index) {
  for (const ControlDesign& design : form.controls)
    if (design.name == name && design.index == index) return design;
  throw std::out_of_range(name + "(" + std::to_string(index) + ") isn't in " + form.name);
}

bool hasElement(const FormDesign& form, const std::string& name, int index) {
  for (const ControlDesign& design : form.controls)
    if (design.name == name && design.index == index) return true;
  return false;
}

TEST(SampleTicket, TheDrawScreenLettersTenLinesWithoutI) {
  const FormDesign form = veridraw7fDesign();
  EXPECT_EQ(element(form, "TextATxt", 1).text, "A.");
  EXPECT_EQ(element(form, "TextATxt", 8).text, "H.");
  EXPECT_EQ(element(form, "TextATxt", 9).text, "J.");
  EXPECT_EQ(element(form, "TextATxt", 10).text, "K.");
  EXPECT_FALSE(hasElement(form, "TextATxt", 11));
}

TEST(SampleTicket, TheDrawScreenNumbersStandInAStair) {
  const FormDesign form = veridraw7fDesign();
  EXPECT_EQ(element(form, "LineA", 1).text, "01");
  EXPECT_EQ(element(form, "LineA", 3).text, "03");
  EXPECT_EQ(element(form, "LineA", 4).text, "02");
  EXPECT_EQ(element(form, "LineA", 30).text, "12");
  EXPECT_EQ(element(form, "LineA", 4).top - element(form, "LineA", 1).top, 255);
  EXPECT_EQ(element(form, "LineA", 2).left - element(form, "LineA", 1).left, 300);
  EXPECT_FALSE(hasElement(form, "LineA", 31));
}

TEST(SampleTicket, TheStartScreenNumbersItsFiveLines) {
  const FormDesign form = veridraw7aDesign();
  EXPECT_EQ(element(form, "LineA", 1).left, 1575);
  EXPECT_EQ(element(form, "LineA", 1).top, 2220);
  EXPECT_EQ(element(form, "LineA", 30).left, 3075);
  EXPECT_EQ(element(form, "LineA", 30).top, 3240);
  EXPECT_EQ(element(form, "LineA", 2).text, "06");
  EXPECT_EQ(element(form, "LineA", 7).text, "04");
  EXPECT_EQ(element(form, "TextATxt", 5).text, "E.");
  EXPECT_EQ(element(form, "TextATxt", 6).text, "1");
  EXPECT_EQ(element(form, "TextATxt", 10).text, "5");
}

}  // namespace
}  // namespace veridraw
