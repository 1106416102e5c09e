// The new empty folders that scenarios, tests and benchmarks run the program in.
#pragma once

#include <filesystem>
#include <string>

namespace veridraw {

// Makes a new empty folder named after `prefix`, under TMPDIR when it is set,
// otherwise under the memory-backed /dev/shm when there is one, otherwise in
// the system's temporary folder. Throws std::runtime_error when it can't.
std::filesystem::path makeWorkingDirectory(const std::string& prefix);

}  // namespace veridraw
