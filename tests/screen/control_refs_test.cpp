// ControlRef and ControlArray keep what they resolved for the life of the
// controls: the same control while the form stays loaded, the new one after a
// fresh Load, and the same errors as a lookup by name for what is missing.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "support/expect_fatal.h"
#include "support/probe_form.h"

namespace veridraw {
namespace {

using testing::fatalOf;
using testing::ScreenTest;

class ControlRefTest : public ScreenTest {
 protected:
  ControlRef box{first, "Box"};
  ControlArray cells{first, "Cell"};
};

TEST_F(ControlRefTest, AnArrayGivesEachElementOfTheLoadedForm) {
  start();
  for (const int index : {1, 2, 3, 5}) {
    EXPECT_EQ(&cells(index), &first.control("Cell", index));
    EXPECT_EQ(&cells(index), &cells(index)) << "the second use gives the same control";
  }
  EXPECT_EQ(&*box, &first.control("Box"));
  EXPECT_EQ(box->name(), "Box");
}

TEST_F(ControlRefTest, AMissingElementIsFatal340AfterAResolvedOne) {
  start();
  cells(1).setText("x");
  for (const int index : {0, 4, 6, 7, 1000, -2}) {
    const testing::FatalOutcome outcome = fatalOf([&] { cells(index); });
    EXPECT_EQ(outcome.number, 340) << index;
    EXPECT_EQ(outcome.text, "Control array element '" + std::to_string(index) + "' doesn't exist");
  }
  EXPECT_EQ(cells(1).text(), "x");
}

TEST_F(ControlRefTest, ANewLoadGivesTheNewControls) {
  std::string textAfterReload;
  const Control* boxBefore = nullptr;
  const Control* cellBefore = nullptr;
  first.on("BtnGo", Event::Click, [&] {
    boxBefore = &*box;
    cellBefore = &cells(2);
    box->setText("before");
    first.Show("Second");
    first.Unload();
    first.Show("First");
    textAfterReload = box->text();
    EXPECT_EQ(&*box, &first.control("Box"));
    EXPECT_EQ(&cells(2), &first.control("Cell", 2));
  });
  start();
  app.click(control("BtnGo"));
  EXPECT_EQ(first.generation(), 2);
  EXPECT_NE(boxBefore, nullptr);
  EXPECT_EQ(textAfterReload, first.control("Box").text()) << "the design's text, made anew";
  EXPECT_NE(textAfterReload, "before");
  EXPECT_EQ(&*box, &first.control("Box"));
  EXPECT_EQ(&cells(2), &first.control("Cell", 2));
  EXPECT_NE(cellBefore, nullptr);
}

TEST_F(ControlRefTest, AfterUnloadTheControlsAreGoneAsByName) {
  start();
  box->setText("kept?");
  cells(3).setText("kept?");
  app.click(control("BtnGo"));  // no handler: nothing happens
  first.on("BtnGo", Event::Click, [&] {
    first.Show("Second");
    first.Unload();
    EXPECT_THROW(box->text(), std::logic_error);
    EXPECT_THROW(cells(3), std::logic_error);
  });
  app.click(control("BtnGo"));
  EXPECT_FALSE(first.loaded());
}

TEST_F(ControlRefTest, AnUnknownNameIsAProgrammingError) {
  start();
  const ControlRef nothing{first, "Nothing"};
  const ControlArray noArray{first, "NoArray"};
  EXPECT_THROW(nothing->name(), std::logic_error);
  EXPECT_THROW(noArray(1), std::logic_error);
}

}  // namespace
}  // namespace veridraw
