#include <gtest/gtest.h>

#include <string>

#include "program/program.h"
#include "screen/application.h"
#include "support/test_support.h"

namespace veridraw {
namespace {

struct FormSize {
  std::string name;
  int width;
  int height;
};

void PrintTo(const FormSize& size, std::ostream* out) {
  *out << size.name;
}

class ProgramForms : public ::testing::TestWithParam<FormSize> {
 protected:
  testing::TemporaryDirectory dir;
  testing::QueuedDialogs dialogs;
  Application program{dialogs, dir.path()};
};

// Each form is a window of fixed size, its client area in twips.
TEST_P(ProgramForms, HaveTheirClientSize) {
  addVeridrawForms(program);
  const Form& form = program.form(GetParam().name);
  EXPECT_EQ(form.design().clientWidth, GetParam().width);
  EXPECT_EQ(form.design().clientHeight, GetParam().height);
}

// The design tables are made once for the run: every start of the program
// makes its forms anew, and they all stand on the same tables.
TEST_P(ProgramForms, ShareTheirDesignTableWithEveryLaterStart) {
  addVeridrawForms(program);
  Application later{dialogs, dir.path()};
  addVeridrawForms(later);
  const FormDesign& table = program.form(GetParam().name).design();
  EXPECT_EQ(&later.form(GetParam().name).design(), &table);
  EXPECT_EQ(table.name, GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(Shell, ProgramForms,
                         ::testing::Values(FormSize{"Veridraw7a", 11910, 8625},
                                           FormSize{"Veridraw7d", 11910, 8625},
                                           FormSize{"Veridraw7f", 11880, 8595},
                                           FormSize{"Veridraw7b", 11880, 8595}),
                         [](const auto& info) { return info.param.name; });

TEST(Program, StartsAtTheStartScreenAndLoadsNothingElse) {
  testing::TemporaryDirectory dir;
  testing::QueuedDialogs dialogs;
  Application program{dialogs, dir.path()};
  addVeridrawForms(program);
  program.start(kFirstForm);
  ASSERT_NE(program.activeForm(), nullptr);
  EXPECT_EQ(program.activeForm()->name(), "Veridraw7a");
  for (const char* other : {"Veridraw7d", "Veridraw7f", "Veridraw7b"})
    EXPECT_FALSE(program.form(other).loaded()) << other;
  EXPECT_TRUE(dialogs.shown.empty());
}

}  // namespace
}  // namespace veridraw
