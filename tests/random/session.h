// Random user sessions played through the screen model. A seeded generator
// looks at the form on screen and does only what a user could do there: click
// a visible button, pick an item of a visible list, type into the focused
// control, press a key or an Alt letter, answer the boxes, close the window.
// Between events an untidy session also deletes or cuts short a file. After
// every event the session checks how the program stands and that every file
// on disk is whole, and it writes itself down as a scenario that replays it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <ostream>
#include <string>

namespace veridraw::random_sessions {

struct SessionOptions {
  // A tidy session answers every box with a valid answer and leaves the
  // files alone; an untidy one also gives odd answers and damages files.
  bool tidy = true;
  int events = 300;
  // Where the scenario goes line by line as it is played, so that even a
  // crash leaves the steps that led to it; none by default.
  std::ostream* live = nullptr;
};

struct SessionResult {
  bool passed = true;
  std::string failure;  // what didn't hold, when it failed
  int events = 0;       // the user's events played
  int fatalNumber = 0;  // the error that ended the last run, if one did
  // The session in the scenario language. A passing session ends with checks
  // of how the program stands and of every file; a failing one ends with the
  // check that didn't hold.
  std::string scenario;
};

// Plays one session in `directory`, an empty folder that becomes the working
// directory of the program.
SessionResult playSession(std::uint64_t seed, const SessionOptions& options,
                          const std::filesystem::path& directory);

// Why the file isn't whole as some complete event of the program writes it,
// judged by its name and format; "" when it is.
std::string wholenessProblem(const std::string& name, const std::string& content);

}  // namespace veridraw::random_sessions
