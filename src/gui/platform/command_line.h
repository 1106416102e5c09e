// The command line of the desktop program. Its screens take no arguments; it
// answers only the options that every program of the system answers without
// a display, and refuses anything else before the window is opened.
#pragma once

#include <optional>

namespace veridraw::gui {

// --help and -h print a short usage on standard output, --version the name
// and the version, and each ends the program with 0; any other argument is
// refused with one line on standard error and 64 (EX_USAGE). With no argument
// there is nothing to answer and the program goes on.
std::optional<int> answerCommandLine(int argc, char** argv);

}  // namespace veridraw::gui
