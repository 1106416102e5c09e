// Fatal run-time errors. The logic never catches them: the application's
// event boundary records the error, closes the open files and ends the program,
// as the classic forms runtime does.
#pragma once

#include <stdexcept>
#include <string>

namespace veridraw {

enum class ErrorNumber {
  InvalidProcedureCall = 5,
  Overflow = 6,
  SubscriptOutOfRange = 9,
  TypeMismatch = 13,
  OutOfStackSpace = 28,
  BadFileNameOrNumber = 52,
  FileNotFound = 53,
  FileAlreadyOpen = 55,
  InputPastEndOfFile = 62,
  PermissionDenied = 70,
  PathFileAccessError = 75,
  PathNotFound = 76,
  ControlArrayElementMissing = 340,
};

class FatalError : public std::runtime_error {
 public:
  FatalError(int number, std::string text);
  int number() const { return number_; }
  const std::string& text() const { return text_; }

 private:
  int number_;
  std::string text_;
};

// The platform's text for an error number ("File not found" for 53).
std::string errorText(int number);

[[noreturn]] void raiseFatal(ErrorNumber number);
// Error 340 names the missing element in its text.
[[noreturn]] void raiseMissingElement(int index);

// Thrown by End and by the window's close control: the program stops at once.
class ProgramEnd {};

}  // namespace veridraw
