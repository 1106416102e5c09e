// Drives the program by the names of its controls, as a user does through
// either face: the same calls serve the unit tests of the screens, the random
// sessions and the benchmarks.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "screen/application.h"
#include "screen/dialogs.h"

namespace veridraw::testing {

class Driver {
 public:
  // Drives the controls of the form named `formName`, or of the form on screen
  // when the name is empty.
  explicit Driver(Application& application, std::string formName = {})
      : application_(application), formName_(std::move(formName)) {}

  Form& screen() const;
  Control& control(const std::string& name, int index = kNotInArray) const;
  void click(const std::string& name);
  // Types each character as a key of its own.
  void type(std::string_view characters);
  // Selects the item of a list as a click on it does; false when there is none.
  bool pick(const std::string& list, const std::string& item);
  // The new-ticket road of a ticket screen, up to the first cell of a ticket of
  // `lines` lines.
  void chooseLines(int lines);

 private:
  Application& application_;
  std::string formName_;
};

// The whole program, every form of it, in `folder`, asking `dialogs`.
std::unique_ptr<Application> makeProgram(Dialogs& dialogs, const std::filesystem::path& folder);

}  // namespace veridraw::testing
