// The whole program: its six forms, of which the start screen comes first.
#pragma once

#include "screen/application.h"

namespace veridraw {

inline constexpr const char* kFirstForm = "Veridraw7a";

// Creates the one instance of every form of the program.
void addVeridrawForms(Application& application);

}  // namespace veridraw
