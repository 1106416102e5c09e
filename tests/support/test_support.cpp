#include "support/test_support.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "screen/working_directory.h"

namespace veridraw::testing {

TemporaryDirectory::TemporaryDirectory() {
  path_ = makeWorkingDirectory("veridraw-test");
}

TemporaryDirectory::~TemporaryDirectory() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

void TemporaryDirectory::write(const std::string& name, const std::string& bytes) const {
  std::ofstream out(path_ / name, std::ios::binary | std::ios::trunc);
  out << bytes;
}

std::string TemporaryDirectory::read(const std::string& name) const {
  std::ifstream in(path_ / name, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

bool TemporaryDirectory::exists(const std::string& name) const {
  return std::filesystem::exists(path_ / name);
}

int QueuedDialogs::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
  shown.push_back({prompt, buttons, title});
  if (buttonAnswers.empty()) throw std::logic_error("unexpected message box: " + prompt);
  const int answer = buttonAnswers.front();
  buttonAnswers.pop_front();
  return answer;
}

std::string QueuedDialogs::InputBox(const std::string& prompt, const std::string& title,
                                    const std::string&, int, int) {
  shown.push_back({prompt, -1, title});
  if (textAnswers.empty()) throw std::logic_error("unexpected input box: " + prompt);
  std::string answer = textAnswers.front();
  textAnswers.pop_front();
  return answer;
}

}  // namespace veridraw::testing
