// Sequential files of the forms runtime: Open for Input or Output under the
// file numbers 1 to 3, Print, Input, Close, Kill and Dir. Names are taken
// relative to the working directory, and nothing outside it is reached.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>

#include "screen/integer.h"

namespace veridraw {

enum class FileMode { Input, Output };

class SequentialFiles {
 public:
  static constexpr int kFileNumbers = 3;

  explicit SequentialFiles(std::filesystem::path workingDirectory);
  SequentialFiles(const SequentialFiles&) = delete;
  SequentialFiles& operator=(const SequentialFiles&) = delete;
  ~SequentialFiles();

  // Input: a missing file is fatal 53. Output: creates the file or empties it.
  void Open(const std::string& name, FileMode mode, int number);
  // A string's bytes as they stand, then CR LF.
  void Print(int number, const std::string& text);
  // An integer as " 7 " (a minus instead of the first blank when negative), then CR LF.
  void Print(int number, Integer value);
  // One field: leading blanks skipped; a quoted field runs to its closing quote;
  // otherwise up to the next comma or line end, which is stepped over. An empty
  // line gives "". Reading at the end of the file is fatal 62.
  void Input(int number, std::string& field);
  void Input(int number, Integer& value);
  // Writes what was printed to the file, whole, and frees the number.
  void Close(int number);
  void CloseAll();
  void Kill(const std::string& name);
  // The name if a plain file of that name exists, "" otherwise.
  std::string Dir(const std::string& name) const;

  const std::filesystem::path& workingDirectory() const { return directory_; }

 private:
  struct OpenFile {
    FileMode mode;
    std::string name;  // as the program gave it, for the report of an error
    std::filesystem::path path;
    std::string content;  // the whole file for input, what was printed for output
    std::size_t position = 0;
  };

  // The path of a name in the working directory. Fatal 75 for a name that
  // leads outside it, 76 for one with a folder, 52 for one the platform can't use.
  std::filesystem::path resolve(const std::string& name) const;
  bool isInside(const std::filesystem::path& path) const;
  void openFile(const std::string& name, FileMode mode, int number);
  OpenFile& slot(int number, FileMode mode);
  std::string readField(OpenFile& file, bool numeric);
  void flush(OpenFile& file);
  void write(const OpenFile& file);

  // The working directory held open from the first probe of Dir on, so that a
  // probe looks up one name instead of the whole path.
  class ProbeDirectory {
   public:
    ProbeDirectory() = default;
    ProbeDirectory(const ProbeDirectory&) = delete;
    ProbeDirectory& operator=(const ProbeDirectory&) = delete;
    ~ProbeDirectory();
    // The open directory, or -1 when it can't be held (or is given relatively).
    int descriptor(const std::filesystem::path& directory);

   private:
    int descriptor_ = -1;
  };

  std::filesystem::path directory_;
  std::array<std::optional<OpenFile>, kFileNumbers> files_;
  mutable ProbeDirectory probeDirectory_;
};

}  // namespace veridraw
