// One screen of the program driven as a user drives it: a fresh working
// directory, dialogs answered from a queue, and the controls of the screen by
// name. Each screen's fixture makes `app` and shows its form.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "screen/application.h"
#include "support/driver.h"
#include "support/test_support.h"

namespace veridraw::testing {

class ScreenFixture : public ::testing::Test {
 protected:
  explicit ScreenFixture(std::string formName) : formName_(std::move(formName)) {}

  // A ticket file as the screens write one: the count of lines as Print writes
  // an integer, the name, and a blank before the packed pairs of the lines.
  static std::string ticketFile(const std::string& name, const std::vector<std::string>& lines) {
    std::string file = " ";
    file += std::to_string(lines.size());
    file += " \r\n";
    file += name;
    file += "\r\n ";
    for (const std::string& line : lines)
      file += line;
    return file += "\r\n";
  }

  Form& screen() const { return app->form(formName_); }
  Control& c(const std::string& name) const { return screen().control(name); }
  Control& c(const std::string& name, int index) const { return screen().control(name, index); }
  bool hasFocus(const std::string& name, int index = kNotInArray) const {
    return app->focus() == screen().find(name, index);
  }

  // The user's actions on the controls of this screen.
  Driver user() const { return Driver(*app, formName_); }
  void click(const std::string& name) { user().click(name); }
  void pick(const std::string& list, const std::string& item) {
    ASSERT_TRUE(user().pick(list, item)) << item;
  }
  void type(const std::string& keys) { user().type(keys); }

  TemporaryDirectory dir;
  QueuedDialogs dialogs;
  std::unique_ptr<Application> app;

 private:
  std::string formName_;
};

}  // namespace veridraw::testing
