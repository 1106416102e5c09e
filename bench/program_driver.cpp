#include "program_driver.h"

#include <stdexcept>

#include "program/program.h"
#include "tickets/ticket_game.h"

namespace veridraw::bench {

TemporaryFolder::TemporaryFolder() {
  write("DrawNumber", std::to_string(kCurrentDraw) + "\r\n");
  write(std::to_string(kCurrentDraw), "720\r\nX0308172239401205\r\n\r\n");
}

Program::Program(const TemporaryFolder& folder)
    : application_(std::make_unique<Application>(dialogs_, folder.path())) {
  addVeridrawForms(*application_);
}

void Program::start(const std::string& form) {
  application_->start(form);
  if (!application_->running()) throw std::runtime_error("the program stopped at " + form);
}

void Program::click(const std::string& control) {
  application_->click(application_->activeForm()->control(control));
}

void Program::type(const std::string& characters) {
  for (const char c : characters)
    application_->typeCharacter(c);
}

void Program::chooseLines(int lines) {
  click("BtnCheckNewTicket");
  click(std::string("BtnLine") + tickets::LineLetter(lines));
}

std::vector<std::string> ticketLines(int lines) {
  std::vector<std::string> result;
  for (int line = 0; line < lines; ++line) {
    std::string pairs;
    for (int number = 0; number < 6; ++number) {
      const int value = line + 1 + number * 5;
      pairs += static_cast<char>('0' + value / 10);
      pairs += static_cast<char>('0' + value % 10);
    }
    result.push_back(pairs);
  }
  return result;
}

}  // namespace veridraw::bench
