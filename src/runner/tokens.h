// The words of a scenario line: blank-separated words, and double-quoted
// strings with the escapes \" \\ \r \n \t and \xHH.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace veridraw::script {

// A line that the runner can't read, or a check that doesn't hold.
class ScenarioFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct Token {
  bool quoted = false;
  std::string text;
};

std::vector<Token> tokenize(std::string_view line);

// A byte string in the notation of the scenario language, quotes included.
std::string quote(std::string_view bytes);

}  // namespace veridraw::script
