#include "gui/platform/command_line.h"

#include <cstdio>
#include <string_view>

namespace veridraw::gui {

namespace {

constexpr int kUsageError = 64;  // EX_USAGE
constexpr char kUsage[] = "usage: veridraw [--help | --version]";

bool isHelp(std::string_view argument) {
  return argument == "--help" || argument == "-h";
}

bool isOption(std::string_view argument) {
  return isHelp(argument) || argument == "--version";
}

}  // namespace

std::optional<int> answerCommandLine(int argc, char** argv) {
  if (argc < 2) return std::nullopt;
  const std::string_view option = argv[1];
  if (argc == 2 && isHelp(option)) {
    std::printf(
        "%s\n"
        "Opens the window of Veridraw on the draw and ticket files of the current folder.\n"
        "The menu entry runs veridraw-start, which prepares your own folder first.\n"
        "\n"
        "  -h, --help     print this help and end\n"
        "  --version      print the version and end\n"
        "\n"
        "See the manual page veridraw(1).\n",
        kUsage);
    return 0;
  }
  if (argc == 2 && option == "--version") {
    std::printf("veridraw %s\n", VERIDRAW_VERSION);
    return 0;
  }
  // The first argument that can't stand where it is: an option takes no other.
  const char* refused = isOption(option) ? argv[2] : argv[1];
  std::fprintf(stderr, "veridraw: unknown argument \"%s\"; %s\n", refused, kUsage);
  return kUsageError;
}

}  // namespace veridraw::gui
