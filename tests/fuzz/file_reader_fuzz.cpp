// A fuzz target for the sequential-file reader and the draw and ticket stores.
// One input is the bytes of a file. The target reads it field by field as
// Input does, as a draw file behind "DrawNumber", as a ticket of each game,
// and as "DrawNumber" itself; it also writes a draw made of the input's first
// lines and reads it back. Whatever the bytes, reading may end only by the
// errors a file can cause, and a draw written by the program reads back as it
// was written. Built with libFuzzer under clang, or as a replay of a corpus.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "screen/fatal.h"
#include "screen/files.h"
#include "store/draw_store.h"
#include "store/ticket_store.h"

namespace {

namespace fs = std::filesystem;
using namespace veridraw;

[[noreturn]] void broken(const std::string& what) {
  std::fprintf(stderr, "file reader fuzz: %s\n", what.c_str());
  std::abort();
}

// The one working directory of the process, emptied before each input and
// removed when the process ends.
class WorkingDirectory {
 public:
  WorkingDirectory() {
    std::string pattern = (fs::temp_directory_path() / "veridraw-fuzz-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) broken("can't make a working directory");
    path_ = pattern;
  }
  ~WorkingDirectory() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  const fs::path& path() const { return path_; }

 private:
  fs::path path_;
};

const fs::path& workingDirectory() {
  static const WorkingDirectory directory;
  return directory.path();
}

void emptyDirectory() {
  for (const auto& entry : fs::directory_iterator(workingDirectory()))
    fs::remove_all(entry.path());
}

void writeFile(const std::string& name, const std::string& bytes) {
  std::ofstream out(workingDirectory() / name, std::ios::binary | std::ios::trunc);
  out << bytes;
}

// Runs a reading step; a fatal error must be one of `allowed`.
template <class Step>
bool survives(Step&& step, const std::set<int>& allowed, const char* what) {
  try {
    step();
    return true;
  } catch (const FatalError& error) {
    if (allowed.count(error.number()) == 0)
      broken(std::string(what) + " ended with error " + std::to_string(error.number()));
    return false;
  }
}

// Input field by field to the end: every field is taken from the bytes, and
// the reading ends by error 62 after at most one field more than there are bytes.
void readFields(SequentialFiles& files, std::size_t size, bool asIntegers) {
  files.Open("input", FileMode::Input, 1);
  std::size_t fields = 0;
  survives(
      [&] {
        for (;;) {
          if (asIntegers) {
            Integer value;
            files.Input(1, value);
          } else {
            std::string field;
            files.Input(1, field);
            if (field.size() > size) broken("a field longer than the file");
          }
          if (++fields > size + 1) broken("Input doesn't come to the end of the file");
        }
      },
      asIntegers ? std::set<int>{62, 13, 6} : std::set<int>{62}, "Input");
  files.CloseAll();
}

// The first lines of the input, made into fields that Input gives back as they
// stand: no line ends or commas, no leading blank, no leading quote.
std::vector<std::string> plainFields(const std::string& bytes, std::size_t count) {
  std::vector<std::string> fields(count);
  std::size_t line = 0;
  for (const char c : bytes) {
    if (c == '\n') {
      if (++line == count) break;
      continue;
    }
    std::string& field = fields[line];
    if (c == '\r' || c == ',') continue;
    if (field.empty() && (c == ' ' || c == '\t' || c == '"')) continue;
    field += c;
  }
  return fields;
}

void writeAndReadBack(SequentialFiles& files, const std::string& bytes) {
  const std::vector<std::string> fields = plainFields(bytes, 3);
  store::DrawFields written{fields[0], fields[1], fields[2], ""};
  // A name the platform can't use, or that leads out of the folder, ends the
  // writing; nothing else may.
  if (!survives([&] { store::WriteDraw(files, written); }, {52, 75, 76}, "WriteDraw")) {
    files.CloseAll();
    return;
  }
  store::DrawFields read;
  survives([&] { store::ReadCurrentDraw(files, read); }, {}, "ReadCurrentDraw of a written draw");
  if (read.CurrentDrawText != fields[0] || read.DrawNumbersText != fields[1] ||
      read.StrikeNumbersText != fields[2])
    broken("a draw doesn't read back as it was written");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  emptyDirectory();
  SequentialFiles files(workingDirectory());
  const std::set<int> fileErrors = {52, 53, 62, 75, 76};

  writeFile("input", bytes);
  readFields(files, size, false);
  readFields(files, size, true);

  // The bytes as the current draw's file, and as "DrawNumber" itself.
  writeFile("DrawNumber", "input\r\n");
  store::DrawFields draw;
  survives([&] { store::ReadCurrentDraw(files, draw); }, {62}, "ReadCurrentDraw");
  files.CloseAll();
  writeFile("DrawNumber", bytes);
  survives([&] { store::ReadCurrentDraw(files, draw); }, fileErrors, "ReadCurrentDraw");
  files.CloseAll();

  // The bytes as a ticket, read as the Lotto and Strike screens and as the
  // PowerBall screen read one.
  Integer lines;
  store::TicketFields ticket;
  survives([&] { store::LoadTicket(files, ticket, "input", lines); }, {62, 13, 6}, "LoadTicket");
  files.CloseAll();
  std::string powerBall;
  survives([&] { store::LoadTicket(files, ticket, "input", lines, &powerBall); }, {62, 13, 6},
           "LoadTicket with PowerBall");
  files.CloseAll();

  writeAndReadBack(files, bytes);
  files.CloseAll();
  return 0;
}
