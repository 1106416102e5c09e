// Runs a piece of logic and tells which fatal error stopped it, if any.
#pragma once

#include <string>

#include "screen/fatal.h"

namespace veridraw::testing {

struct FatalOutcome {
  int number = 0;  // 0 when the logic ran to its end
  std::string text;
  std::string operation;  // what the files were doing, if anything
};

template <class Action>
FatalOutcome fatalOf(Action&& action) {
  try {
    action();
  } catch (const FatalError& error) {
    return {error.number(), error.text(), error.operation()};
  }
  return {};
}

template <class Action>
int fatalNumberOf(Action&& action) {
  return fatalOf(std::forward<Action>(action)).number;
}

}  // namespace veridraw::testing
