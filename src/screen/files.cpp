#include "screen/files.h"

#include <string_view>

#include "screen/fatal.h"
#include "screen/strings.h"

namespace veridraw {

namespace fs = std::filesystem;
using platform::Refusal;

namespace {

// Characters that no file name of the platform may hold.
bool isForbiddenInName(unsigned char c) {
  return c < 32 || c == '<' || c == '>' || c == ':' || c == '"' || c == '|' || c == '?' || c == '*';
}

// The classic number of a refusal where a file is read or deleted: a file that
// isn't there is "File not found". `forAFolder` is the number of a name that
// leads to a folder.
[[noreturn]] void raiseForFinding(Refusal refusal, ErrorNumber forAFolder) {
  switch (refusal) {
    case Refusal::Missing:
    case Refusal::TooLong:
      raiseFatal(ErrorNumber::FileNotFound);
    case Refusal::Denied:
      raiseFatal(ErrorNumber::PermissionDenied);
    case Refusal::Folder:
      raiseFatal(forAFolder);
    default:
      raiseFatal(ErrorNumber::PathFileAccessError);
  }
}

// The classic number of a refusal where a file is created or written: a
// folder on the way that isn't there is "Path not found". A file that has a
// second name, which may be outside, is refused like a name that leads out.
[[noreturn]] void raiseForWriting(Refusal refusal) {
  switch (refusal) {
    case Refusal::Missing:
      raiseFatal(ErrorNumber::PathNotFound);
    case Refusal::Denied:
      raiseFatal(ErrorNumber::PermissionDenied);
    case Refusal::TooLong:
      raiseFatal(ErrorNumber::BadFileNameOrNumber);
    default:
      raiseFatal(ErrorNumber::PathFileAccessError);
  }
}

constexpr const char* kSeparators = "/\\";
// The longest file name that the file systems in use take, in bytes.
constexpr std::size_t kLongestName = 255;

// True when the name, taken as a path from the working directory, ends up
// outside it: an absolute name, a drive, or more ".." than folders before them.
bool leavesDirectory(const std::string& name) {
  const std::size_t firstEnd = name.find_first_of(kSeparators);
  if (firstEnd == 0) return true;
  if (firstEnd != std::string::npos && name[firstEnd - 1] == ':') return true;
  int depth = 0;
  std::size_t from = 0;
  for (;;) {
    const std::size_t end = name.find_first_of(kSeparators, from);
    const std::string part = name.substr(from, end == std::string::npos ? end : end - from);
    if (part == "..") {
      if (--depth < 0) return true;
    } else if (!part.empty() && part != ".") {
      ++depth;
    }
    if (end == std::string::npos) return false;
    from = end + 1;
  }
}

bool isLineEnd(char c) {
  return c == '\r' || c == '\n';
}

// An operation on a named file for the report of an error, such as
// `opening "1105" for input`. Control characters, quotes and bytes outside
// ASCII in the name are written as \xNN, so that the report stays one plain
// line on any terminal.
std::string operationOn(std::string_view verb, const std::string& name,
                        std::string_view after = {}) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string text(verb);
  text += " \"";
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 32 || byte >= 127 || c == '"' || c == '\\') {
      text += "\\x";
      text += kHex[byte >> 4];
      text += kHex[byte & 15];
    } else {
      text += c;
    }
  }
  text += '"';
  text += after;
  return text;
}

// An operation on a file number that is not open, which has no name.
std::string operationOn(std::string_view verb, int number) {
  std::string text(verb);
  text += " file #";
  text += std::to_string(number);
  return text;
}

}  // namespace

SequentialFiles::SequentialFiles(fs::path workingDirectory)
    : folder_(std::move(workingDirectory)) {}

SequentialFiles::~SequentialFiles() {
  try {
    CloseAll();
  } catch (const FatalError&) {
    // Nothing can be reported any more when the program is gone.
  }
}

void SequentialFiles::checkName(const std::string& name) const {
  if (name.empty() || name == ".") raiseFatal(ErrorNumber::BadFileNameOrNumber);
  // A name that leads out of the working directory is refused before anything
  // is touched, whether or not the folders on its way exist.
  if (leavesDirectory(name)) raiseFatal(ErrorNumber::PathFileAccessError);
  if (name.find_first_of(kSeparators) != std::string::npos) raiseFatal(ErrorNumber::PathNotFound);
  for (const char c : name)
    if (isForbiddenInName(static_cast<unsigned char>(c)))
      raiseFatal(ErrorNumber::BadFileNameOrNumber);
  // Too long a name is a bad name whether it is to be written or read.
  if (name.size() > kLongestName) raiseFatal(ErrorNumber::BadFileNameOrNumber);
  // A link in the working directory that leads out of it is refused by the
  // folder itself, as it opens, probes or deletes the name.
}

SequentialFiles::OpenFile& SequentialFiles::slot(int number, FileMode mode) {
  if (number < 1 || number > kFileNumbers || !files_[number - 1] ||
      files_[number - 1]->mode != mode) {
    raiseFatal(ErrorNumber::BadFileNameOrNumber,
               operationOn(mode == FileMode::Input ? "reading" : "writing", number));
  }
  return *files_[number - 1];
}

void SequentialFiles::Open(const std::string& name, FileMode mode, int number) {
  try {
    openFile(name, mode, number);
  } catch (FatalError& error) {
    error.setOperation(
        operationOn("opening", name, mode == FileMode::Input ? " for input" : " for output"));
    throw;
  }
}

void SequentialFiles::openFile(const std::string& name, FileMode mode, int number) {
  if (number < 1 || number > kFileNumbers) raiseFatal(ErrorNumber::BadFileNameOrNumber);
  if (files_[number - 1]) raiseFatal(ErrorNumber::FileAlreadyOpen);
  checkName(name);
  if (nameChecked_) nameChecked_(name);
  OpenFile file{mode, name, {}, {}, 0};
  if (mode == FileMode::Input) {
    const Refusal refusal = folder_.read(name, file.content);
    if (refusal != Refusal::None) raiseForFinding(refusal, ErrorNumber::PathFileAccessError);
  } else {
    const Refusal refusal = folder_.create(name, file.output);
    if (refusal != Refusal::None) raiseForWriting(refusal);
  }
  files_[number - 1] = std::move(file);
}

void SequentialFiles::Print(int number, const std::string& text) {
  OpenFile& file = slot(number, FileMode::Output);
  file.content += text;
  file.content += "\r\n";
}

void SequentialFiles::Print(int number, Integer value) {
  const int plain = value;
  std::string text = plain < 0 ? "" : " ";
  text += CStr(plain);
  text += ' ';
  Print(number, text);
}

std::string SequentialFiles::readField(OpenFile& file, bool numeric) {
  const std::string& text = file.content;
  std::size_t& pos = file.position;
  if (pos >= text.size()) raiseFatal(ErrorNumber::InputPastEndOfFile);
  while (pos < text.size() && (text[pos] == ' ' || text[pos] == '\t'))
    ++pos;
  std::string field;
  if (pos < text.size() && text[pos] == '"') {
    ++pos;
    while (pos < text.size() && text[pos] != '"')
      field += text[pos++];
    if (pos < text.size()) ++pos;
    // What follows the closing quote up to the separator is passed over.
    while (pos < text.size() && text[pos] != ',' && !isLineEnd(text[pos]))
      ++pos;
  } else {
    while (pos < text.size() && text[pos] != ',' && !isLineEnd(text[pos]) &&
           !(numeric && (text[pos] == ' ' || text[pos] == '\t')))
      field += text[pos++];
    if (numeric)
      while (pos < text.size() && (text[pos] == ' ' || text[pos] == '\t'))
        ++pos;
  }
  if (pos < text.size()) {
    if (text[pos] == ',') {
      ++pos;
    } else if (text[pos] == '\r') {
      ++pos;
      if (pos < text.size() && text[pos] == '\n') ++pos;
    } else if (text[pos] == '\n') {
      ++pos;
    }
  }
  return field;
}

void SequentialFiles::Input(int number, std::string& field) {
  OpenFile& file = slot(number, FileMode::Input);
  try {
    field = readField(file, false);
  } catch (FatalError& error) {
    error.setOperation(operationOn("reading", file.name));
    throw;
  }
}

void SequentialFiles::Input(int number, Integer& value) {
  OpenFile& file = slot(number, FileMode::Input);
  try {
    const std::string field = readField(file, true);
    value = field.empty() ? Integer(0) : StrictInteger(field);
  } catch (FatalError& error) {
    error.setOperation(operationOn("reading", file.name));
    throw;
  }
}

void SequentialFiles::flush(OpenFile& file) {
  if (file.mode != FileMode::Output) return;
  try {
    write(file);
  } catch (FatalError& error) {
    error.setOperation(operationOn("writing", file.name));
    throw;
  }
}

void SequentialFiles::write(OpenFile& file) {
  const Refusal refusal = file.output.writeWholeAndClose(file.content);
  if (refusal != Refusal::None) raiseForWriting(refusal);
}

void SequentialFiles::Close(int number) {
  if (number < 1 || number > kFileNumbers)
    raiseFatal(ErrorNumber::BadFileNameOrNumber, operationOn("closing", number));
  std::optional<OpenFile> file = std::move(files_[number - 1]);
  files_[number - 1].reset();
  if (file) flush(*file);
}

void SequentialFiles::CloseAll() {
  for (int number = 1; number <= kFileNumbers; ++number)
    if (files_[number - 1]) Close(number);
}

void SequentialFiles::Kill(const std::string& name) {
  try {
    checkName(name);
    if (nameChecked_) nameChecked_(name);
    const Refusal refusal = folder_.remove(name);
    if (refusal != Refusal::None) raiseForFinding(refusal, ErrorNumber::FileNotFound);
  } catch (FatalError& error) {
    error.setOperation(operationOn("deleting", name));
    throw;
  }
}

std::string SequentialFiles::Dir(const std::string& name) const {
  if (name.empty() || name == "." || name == ".." || name.front() == '.') return "";
  for (const char c : name)
    if (c == '/' || c == '\\' || isForbiddenInName(static_cast<unsigned char>(c))) return "";
  return folder_.holdsPlainFile(name) ? name : "";
}

}  // namespace veridraw
