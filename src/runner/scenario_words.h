// The small readers and writers of scenario words that the commands and the
// checks of a scenario share.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "runner/tokens.h"
#include "screen/application.h"

namespace veridraw::script {

// Fails the line unless it has exactly `count` words.
void expectWords(const std::vector<Token>& words, std::size_t count, const char* usage);
// The index of an element of a control array: decimal digits, optionally
// after a minus.
int parseIndex(std::string_view text);
// A whole number written as a value: decimal, optionally negative, or 0x hex.
int parseInteger(const Token& token, const char* what);
// A file name in the notation of the scenario language: a word, or a string
// when it holds blanks or bytes that a word can't.
std::string nameText(const std::string& name);
// How the program stands: running, ended, or ended by which fatal error.
std::string stateText(const Application& program);

}  // namespace veridraw::script
