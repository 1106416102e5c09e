#include "support/driver.h"

#include <algorithm>

#include "program/program.h"
#include "tickets/ticket_game.h"

namespace veridraw::testing {

Form& Driver::screen() const {
  return formName_.empty() ? *application_.activeForm() : application_.form(formName_);
}

Control& Driver::control(const std::string& name, int index) const {
  return index == kNotInArray ? screen().control(name) : screen().control(name, index);
}

void Driver::click(const std::string& name) {
  application_.click(control(name));
}

void Driver::type(std::string_view characters) {
  for (const char c : characters)
    application_.typeCharacter(c);
}

bool Driver::pick(const std::string& list, const std::string& item) {
  Control& box = control(list);
  const auto& items = box.items();
  const auto found = std::find(items.begin(), items.end(), item);
  if (found == items.end()) return false;
  application_.selectItem(box, static_cast<int>(found - items.begin()));
  return true;
}

void Driver::chooseLines(int lines) {
  click("BtnCheckNewTicket");
  click(std::string("BtnLine") + tickets::LineLetter(lines));
}

std::unique_ptr<Application> makeProgram(Dialogs& dialogs, const std::filesystem::path& folder) {
  auto program = std::make_unique<Application>(dialogs, folder);
  addVeridrawForms(*program);
  return program;
}

}  // namespace veridraw::testing
