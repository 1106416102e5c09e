// The working folder as the file system sees it: the one place where files are
// opened, probed and deleted. Each operation takes a plain name (no separator:
// the sequential files check that first) and is carried out relative to the
// folder held open, in a way that can't leave it: no link, whether it was there
// before or put there while the program works, carries an operation outside,
// and a ".." never climbs above the folder. A link that stays inside the folder
// is followed as the system would follow it.
//
// The operations report what stopped them as a Refusal; the sequential files
// turn that into the classic error number of the operation. Each platform has
// its own implementation of this class (working_folder_posix.cpp).
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace veridraw::platform {

enum class Refusal {
  None,
  Missing,       // no file of that name, or a folder on the way is missing or no folder
  Denied,        // the rights of the file or of a folder on the way
  LeadsOut,      // a link on the way leads outside the working folder
  Folder,        // the name leads to a folder
  NotPlainFile,  // the name leads to a device, a pipe or a socket
  SecondName,    // a plain file that has another name as well: it isn't rewritten
  TooManyLinks,  // links that lead to each other, or too many of them in a row
  TooLong,       // a name on the way is longer than the file system takes
  Failed,        // any other failure of the file system: a full disk, an I/O error
};

// A file opened for writing by WorkingFolder::create. It stays the same file
// until it is closed, whatever happens to its name meanwhile.
class OutputFile {
 public:
  OutputFile() = default;
  OutputFile(OutputFile&& other) noexcept;
  OutputFile& operator=(OutputFile&& other) noexcept;
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  ~OutputFile();

  // Makes the bytes the whole content of the file, then closes it.
  Refusal writeWholeAndClose(std::string_view bytes);

 private:
  friend class WorkingFolder;
  // A descriptor or a handle of the platform; both take -1 for none.
  static constexpr std::intptr_t kNoHandle = -1;
  void close();

  std::intptr_t handle_ = kNoHandle;
};

class WorkingFolder {
 public:
  // A folder given relatively is looked up anew, from the process's current
  // directory as it stands, at each operation; an absolute one is held open
  // from its first use on.
  explicit WorkingFolder(std::filesystem::path folder);
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;
  ~WorkingFolder();

  const std::filesystem::path& path() const { return path_; }

  // The whole content of the plain file that the name leads to.
  Refusal read(const std::string& name, std::string& content);
  // Opens the plain file that the name leads to for writing, creating it or
  // emptying it at once. A file with a second name is left as it is.
  Refusal create(const std::string& name, OutputFile& file);
  // Deletes the name (a link itself, not what it leads to) when it leads to
  // something other than a folder.
  Refusal remove(const std::string& name);
  // True when the name leads to a plain file. A plain name costs one call of
  // the system and no allocation.
  bool holdsPlainFile(const std::string& name);

 private:
  class Root;

  std::filesystem::path path_;
  std::intptr_t handle_ = OutputFile::kNoHandle;
};

}  // namespace veridraw::platform
