#include "runner/scenario_words.h"

#include <cctype>
#include <cmath>

#include "runner/values.h"

namespace veridraw::script {

void expectWords(const std::vector<Token>& words, std::size_t count, const char* usage) {
  if (words.size() != count) throw ScenarioFailure(std::string("usage: ") + usage);
}

int parseIndex(std::string_view text) {
  const std::size_t firstDigit = !text.empty() && text[0] == '-' ? 1 : 0;
  if (firstDigit >= text.size() || text.size() - firstDigit > 6)
    throw ScenarioFailure("bad index: " + std::string(text));
  for (std::size_t i = firstDigit; i < text.size(); ++i)
    if (!std::isdigit(static_cast<unsigned char>(text[i])))
      throw ScenarioFailure("bad index: " + std::string(text));
  return std::stoi(std::string(text));
}

int parseInteger(const Token& token, const char* what) {
  const Value value = token.quoted ? Value(token.text) : parseValue(token);
  const double* number = std::get_if<double>(&value);
  if (number == nullptr || *number != std::floor(*number) || *number < -2147483648.0 ||
      *number > 2147483647.0)
    throw ScenarioFailure(std::string(what) + " wants a whole number, not " +
                          (token.quoted ? quote(token.text) : token.text));
  return static_cast<int>(*number);
}

std::string nameText(const std::string& name) {
  if (name.empty()) return quote(name);
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte <= 0x20 || byte >= 0x7F || c == '"' || c == '\\') return quote(name);
  }
  return name;
}

std::string stateText(const Application& program) {
  switch (program.state()) {
    case Application::State::NotStarted:
      return "not started";
    case Application::State::Running:
      return "running";
    case Application::State::Ended:
      return "ended";
    case Application::State::Fatal:
      return "ended by fatal error " + std::to_string(program.fatalError()->number()) + " (" +
             program.fatalError()->text() + ")";
  }
  return "";
}

}  // namespace veridraw::script
