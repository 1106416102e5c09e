#include "screen/fatal.h"

namespace veridraw {

FatalError::FatalError(int number, std::string text)
    : std::runtime_error("Run-time error '" + std::to_string(number) + "': " + text),
      number_(number),
      text_(std::move(text)) {}

void FatalError::setOperation(std::string operation) {
  if (operation_.empty()) operation_ = std::move(operation);
}

std::string describeFatalError(const FatalError& error, const std::filesystem::path& folder) {
  std::string line = "error ";
  line += std::to_string(error.number());
  line += " (";
  line += error.text();
  line += ')';
  if (!error.operation().empty()) {
    line += ' ';
    line += error.operation();
  }
  line += " in ";
  line += folder.string();
  return line;
}

std::string errorText(int number) {
  switch (number) {
    case 5:
      return "Invalid procedure call or argument";
    case 6:
      return "Overflow";
    case 9:
      return "Subscript out of range";
    case 13:
      return "Type mismatch";
    case 28:
      return "Out of stack space";
    case 52:
      return "Bad file name or number";
    case 53:
      return "File not found";
    case 55:
      return "File already open";
    case 62:
      return "Input past end of file";
    case 70:
      return "Permission denied";
    case 75:
      return "Path/File access error";
    case 76:
      return "Path not found";
    default:
      return "Application-defined or object-defined error";
  }
}

void raiseFatal(ErrorNumber number) {
  const int value = static_cast<int>(number);
  throw FatalError(value, errorText(value));
}

void raiseFatal(ErrorNumber number, std::string operation) {
  const int value = static_cast<int>(number);
  FatalError error(value, errorText(value));
  error.setOperation(std::move(operation));
  throw error;
}

void raiseMissingElement(int index) {
  throw FatalError(static_cast<int>(ErrorNumber::ControlArrayElementMissing),
                   "Control array element '" + std::to_string(index) + "' doesn't exist");
}

}  // namespace veridraw
