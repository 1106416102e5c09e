#include "runner/tokens.h"

#include <cstdio>

namespace veridraw::script {

namespace {

int hexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r';
}

}  // namespace

std::vector<Token> tokenize(std::string_view line) {
  std::vector<Token> tokens;
  std::size_t pos = 0;
  while (pos < line.size()) {
    if (isBlank(line[pos])) {
      ++pos;
      continue;
    }
    Token token;
    if (line[pos] != '"') {
      while (pos < line.size() && !isBlank(line[pos]))
        token.text += line[pos++];
      tokens.push_back(token);
      continue;
    }
    token.quoted = true;
    ++pos;
    for (;;) {
      if (pos >= line.size()) throw ScenarioFailure("a string has no closing quote");
      const char c = line[pos++];
      if (c == '"') break;
      if (c != '\\') {
        token.text += c;
        continue;
      }
      if (pos >= line.size()) throw ScenarioFailure("a string ends in a lone backslash");
      const char escape = line[pos++];
      switch (escape) {
        case '"':
          token.text += '"';
          break;
        case '\\':
          token.text += '\\';
          break;
        case 'r':
          token.text += '\r';
          break;
        case 'n':
          token.text += '\n';
          break;
        case 't':
          token.text += '\t';
          break;
        case 'x': {
          const int high = pos < line.size() ? hexValue(line[pos]) : -1;
          const int low = pos + 1 < line.size() ? hexValue(line[pos + 1]) : -1;
          if (high < 0 || low < 0) throw ScenarioFailure("\\x wants two hexadecimal digits");
          token.text += static_cast<char>(high * 16 + low);
          pos += 2;
          break;
        }
        default:
          throw ScenarioFailure(std::string("unknown escape \\") + escape);
      }
    }
    if (pos < line.size() && !isBlank(line[pos]))
      throw ScenarioFailure("a string must be followed by a blank");
    tokens.push_back(token);
  }
  return tokens;
}

std::string quote(std::string_view bytes) {
  std::string result = "\"";
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    switch (c) {
      case '"':
        result += "\\\"";
        break;
      case '\\':
        result += "\\\\";
        break;
      case '\r':
        result += "\\r";
        break;
      case '\n':
        result += "\\n";
        break;
      case '\t':
        result += "\\t";
        break;
      default:
        if (byte < 0x20 || byte >= 0x7F) {
          char hex[5];
          std::snprintf(hex, sizeof hex, "\\x%02X", byte);
          result += hex;
        } else {
          result += c;
        }
    }
  }
  return result + "\"";
}

}  // namespace veridraw::script
