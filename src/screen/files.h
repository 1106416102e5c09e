// Sequential files of the forms runtime: Open for Input or Output under the
// file numbers 1 to 3, Print, Input, Close, Kill and Dir. Names are taken
// relative to the working directory, and nothing outside it is reached: the
// names are checked here, and the platform's working folder opens, probes and
// deletes them in a way that can't leave the folder (screen/platform/).
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "screen/integer.h"
#include "screen/platform/working_folder.h"

namespace veridraw {

enum class FileMode { Input, Output };

class SequentialFiles {
 public:
  static constexpr int kFileNumbers = 3;

  explicit SequentialFiles(std::filesystem::path workingDirectory);
  SequentialFiles(const SequentialFiles&) = delete;
  SequentialFiles& operator=(const SequentialFiles&) = delete;
  ~SequentialFiles();

  // Input: a missing file is fatal 53. Output: creates the file or empties it;
  // the file stays open until Close writes it, so it is the same file then
  // whatever has become of its name.
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

  const std::filesystem::path& workingDirectory() const { return folder_.path(); }

  // A seam for tests: runs when Open or Kill has checked a name and is about
  // to hand it to the file system, as another program could act at that moment.
  void setNameCheckedHook(std::function<void(const std::string& name)> hook) {
    nameChecked_ = std::move(hook);
  }

 private:
  struct OpenFile {
    FileMode mode;
    std::string name;             // as the program gave it, for the report of an error
    platform::OutputFile output;  // held from Open to Close for output
    std::string content;          // the whole file for input, what was printed for output
    std::size_t position = 0;
  };

  // Fatal 75 for a name that leads outside the working directory, 76 for one
  // with a folder, 52 for one the platform can't use; nothing is touched.
  void checkName(const std::string& name) const;
  void openFile(const std::string& name, FileMode mode, int number);
  OpenFile& slot(int number, FileMode mode);
  std::string readField(OpenFile& file, bool numeric);
  void flush(OpenFile& file);
  void write(OpenFile& file);

  mutable platform::WorkingFolder folder_;
  std::array<std::optional<OpenFile>, kFileNumbers> files_;
  std::function<void(const std::string&)> nameChecked_;
};

}  // namespace veridraw
