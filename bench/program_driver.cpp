#include "program_driver.h"

#include <stdexcept>

namespace veridraw::bench {

TemporaryFolder::TemporaryFolder() {
  write("DrawNumber", std::to_string(kCurrentDraw) + "\r\n");
  write(std::to_string(kCurrentDraw), "720\r\nX0308172239401205\r\n\r\n");
}

ProgramParts::ProgramParts(const TemporaryFolder& folder)
    : application(testing::makeProgram(dialogs, folder.path())) {}

Program::Program(const TemporaryFolder& folder)
    : ProgramParts(folder), testing::Driver(*ProgramParts::application) {}

void Program::start(const std::string& form) {
  application().start(form);
  if (!application().running()) throw std::runtime_error("the program stopped at " + form);
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
