#include "screen/working_directory.h"

#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

namespace veridraw {

namespace fs = std::filesystem;

namespace {

// A scenario needs a new empty folder and nothing that outlives it. On a disk's
// file system, creating files right after many others were removed (as a run
// of scenarios does) costs more than the scenario itself; memory doesn't.
fs::path temporaryBase() {
  const char* chosen = std::getenv("TMPDIR");
  if ((chosen == nullptr || *chosen == '\0') && access("/dev/shm", W_OK | X_OK) == 0 &&
      fs::is_directory("/dev/shm"))
    return "/dev/shm";
  return fs::temp_directory_path();
}

}  // namespace

fs::path makeWorkingDirectory(const std::string& prefix) {
  std::string pattern = (temporaryBase() / (prefix + "-XXXXXX")).string();
  if (mkdtemp(pattern.data()) == nullptr)
    throw std::runtime_error("can't make a temporary working directory");
  return pattern;
}

}  // namespace veridraw
