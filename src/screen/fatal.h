// Fatal run-time errors. The logic never catches them: the application's
// event boundary records the error, closes the open files and ends the program,
// as the classic forms runtime does.
#pragma once

#include <filesystem>
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
  // What the platform was doing when the error came, such as
  // `opening "1105" for input`; empty when no file was concerned. The first
  // operation set is kept: it is the one nearest to the cause.
  const std::string& operation() const { return operation_; }
  void setOperation(std::string operation);

 private:
  int number_;
  std::string text_;
  std::string operation_;
};

// The platform's text for an error number ("File not found" for 53).
std::string errorText(int number);

// One line about a fatal error for a user or a bug report: the number, its
// text, the operation if any and the working folder, as in
// `error 53 (File not found) opening "1105" for input in /home/u/draws`.
std::string describeFatalError(const FatalError& error, const std::filesystem::path& folder);

[[noreturn]] void raiseFatal(ErrorNumber number);
[[noreturn]] void raiseFatal(ErrorNumber number, std::string operation);
// Error 340 names the missing element in its text.
[[noreturn]] void raiseMissingElement(int index);

// Thrown by End and by the window's close control: the program stops at once.
class ProgramEnd {};

}  // namespace veridraw
