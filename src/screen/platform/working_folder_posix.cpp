// The working folder on POSIX systems. Every operation starts from the folder
// held open and goes on with calls relative to a descriptor (openat, fstatat,
// readlinkat, unlinkat), each given one part of a name and told not to follow a
// link (O_NOFOLLOW, AT_SYMLINK_NOFOLLOW). A link is read and walked by this
// code, part by part, from the folder that holds it, so a link that leads
// outside is seen for what it is whether or not its target exists, and there is
// no moment between a check and an open in which a link put in place of a file
// could carry the open elsewhere: the open is the check. A file opened for
// writing stays open until it is written, so the name can't be turned into a
// link meanwhile either.
#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "screen/platform/working_folder.h"

namespace veridraw::platform {

namespace fs = std::filesystem;

namespace {

// Folders are opened only to look names up in them: where the system has no
// way to open a folder for that alone, they are opened for reading.
#if defined(O_PATH)
constexpr int kLookUpOnly = O_PATH;
#else
constexpr int kLookUpOnly = O_RDONLY;
#endif
// The working folder itself is reached as the system reaches it, through links.
constexpr int kWorkingFolder = kLookUpOnly | O_DIRECTORY | O_CLOEXEC;
constexpr int kFolderOnTheWay = kLookUpOnly | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
// O_NONBLOCK keeps a pipe put under a file's name from holding the program up;
// it changes nothing for a plain file.
constexpr int kReading = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
constexpr int kWriting = O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
// As many links in a row as the system itself follows.
constexpr int kMostLinks = 40;

class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
  Descriptor(Descriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    if (this != &other) reset(std::exchange(other.descriptor_, -1));
    return *this;
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { reset(); }

  int get() const { return descriptor_; }
  int release() { return std::exchange(descriptor_, -1); }
  void reset(int descriptor = -1) {
    if (descriptor_ >= 0) ::close(descriptor_);
    descriptor_ = descriptor;
  }

 private:
  int descriptor_ = -1;
};

Refusal refusalOf(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return Refusal::Missing;
    case EACCES:
    case EPERM:
    case EROFS:
      return Refusal::Denied;
    case EISDIR:
      return Refusal::Folder;
    case ENXIO:
      return Refusal::NotPlainFile;
    case ELOOP:
      return Refusal::TooManyLinks;
    case ENAMETOOLONG:
      return Refusal::TooLong;
    default:
      return Refusal::Failed;
  }
}

// An open told not to follow a link fails with ELOOP when the name is one
// (EMLINK on some systems).
bool isLink(int error) {
  return error == ELOOP || error == EMLINK;
}

// A folder that may not be opened for want of rights is a folder all the same.
Refusal refusalOfOpening(int folder, const char* name, int error) {
  struct stat status;
  if (error == EACCES && ::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
      S_ISDIR(status.st_mode))
    return Refusal::Folder;
  return refusalOf(error);
}

// The parts of a path as a link holds it. Empty parts and "." are dropped, but
// a path that ends in a separator or in "." gets "." as its last part: it must
// end on a folder.
std::vector<std::string> partsOf(std::string_view path) {
  std::vector<std::string> parts;
  std::string_view part;
  for (std::size_t from = 0; from <= path.size();) {
    std::size_t end = path.find('/', from);
    if (end == std::string_view::npos) end = path.size();
    part = path.substr(from, end - from);
    if (!part.empty() && part != ".") parts.emplace_back(part);
    from = end + 1;
  }
  if (part.empty() || part == ".") parts.emplace_back(".");
  return parts;
}

// The working folder's absolute names: as it was given, and with every link on
// its way resolved.
std::vector<std::vector<std::string>> absoluteNamesOf(const fs::path& folder) {
  std::error_code error;
  const fs::path given = fs::absolute(folder.empty() ? fs::path(".") : folder, error);
  std::vector<std::vector<std::string>> names;
  for (const fs::path& name : {given.lexically_normal(), fs::weakly_canonical(given, error)}) {
    std::vector<std::string> parts = partsOf(name.native());
    if (!parts.empty() && parts.back() == ".") parts.pop_back();
    names.push_back(std::move(parts));
  }
  return names;
}

bool beginsWith(const std::vector<std::string>& parts, const std::vector<std::string>& prefix) {
  return parts.size() >= prefix.size() && std::equal(prefix.begin(), prefix.end(), parts.begin());
}

// What the last step of a look-up found: a link to walk on through, or the end.
enum class Step { Done, Link };

// A look-up in progress beneath the working folder.
struct Walk {
  int root;
  const fs::path& folder;
  std::vector<Descriptor> entered;   // folders beneath the root; the walk stands in the last
  std::vector<std::string> pending;  // parts still to walk, the next one last
  int links = 0;

  int here() const { return entered.empty() ? root : entered.back().get(); }

  // Puts the target of the link `name`, in the folder where the walk stands,
  // in its place. `wasLink` turns false when the name is no link (any more).
  Refusal follow(const std::string& name, bool& wasLink) {
    if (++links > kMostLinks) return Refusal::TooManyLinks;
    std::array<char, PATH_MAX> buffer;
    const ssize_t length = ::readlinkat(here(), name.c_str(), buffer.data(), buffer.size());
    wasLink = length >= 0;
    if (length < 0) return errno == EINVAL ? Refusal::None : refusalOf(errno);
    if (static_cast<std::size_t>(length) == buffer.size()) return Refusal::TooLong;
    const std::string_view target(buffer.data(), static_cast<std::size_t>(length));
    if (target.empty()) return Refusal::Missing;
    std::vector<std::string> parts = partsOf(target);
    if (target.front() == '/') {
      // Absolute: inside only if it names the working folder on its way.
      std::size_t folderParts = 0;
      bool inside = false;
      for (const std::vector<std::string>& name : absoluteNamesOf(folder))
        if (!inside && beginsWith(parts, name)) {
          inside = true;
          folderParts = name.size();
        }
      if (!inside) return Refusal::LeadsOut;
      parts.erase(parts.begin(), parts.begin() + static_cast<std::ptrdiff_t>(folderParts));
      if (parts.empty()) parts.emplace_back(".");
      entered.clear();
    }
    // A target with more ".." than folders to climb leads out, whether or not
    // the folders on its way exist.
    std::ptrdiff_t depth = static_cast<std::ptrdiff_t>(entered.size());
    for (const std::string& part : parts)
      if (part == "..") {
        if (--depth < 0) return Refusal::LeadsOut;
      } else if (part != ".") {
        ++depth;
      }
    pending.insert(pending.end(), parts.rbegin(), parts.rend());
    return Refusal::None;
  }

  // Walks the pending parts, entering folders, up to the next link, which it
  // leaves in `name` with `found` Step::Link, or to the end of the last step.
  // `nameIsLast` tells whether that name is the last part.
  template <class LastStep>
  Refusal walkOn(LastStep& last, std::string& name, bool& nameIsLast, Step& found) {
    Refusal refusal = Refusal::None;
    while (!pending.empty()) {
      std::string part = std::move(pending.back());
      pending.pop_back();
      if (part == "." || part == "..") {
        if (part == "..") {
          if (entered.empty()) return Refusal::LeadsOut;
          entered.pop_back();
        }
        if (pending.empty()) return Refusal::Folder;
        continue;
      }
      nameIsLast = pending.empty();
      if (nameIsLast) {
        found = last(here(), part.c_str(), refusal);
        name = std::move(part);
        return refusal;
      }
      const int descriptor = ::openat(here(), part.c_str(), kFolderOnTheWay);
      if (descriptor >= 0) {
        entered.emplace_back(descriptor);
        continue;
      }
      const int error = errno;
      if (error != ENOTDIR && !isLink(error)) return refusalOf(error);
      found = Step::Link;
      name = std::move(part);
      return Refusal::None;
    }
    return Refusal::Folder;
  }
};

// Looks the name up beneath the root and runs the last step, `last(folder,
// part, refusal)`, on the folder where the look-up ends and the last part of
// the name. Folders are entered without following links; a link, met on the
// way or reported by the last step, is read and its target walked in its
// place. A ".." never climbs above the root.
template <class LastStep>
Refusal lookUp(int root, const fs::path& folder, const std::string& name, LastStep last) {
  Refusal refusal = Refusal::None;
  // The common case: a plain name that is no link, one step and no allocation.
  if (last(root, name.c_str(), refusal) == Step::Done) return refusal;
  Walk walk{root, folder, {}, {}, 0};
  std::string link = name;
  bool linkIsLast = true;
  for (;;) {
    bool wasLink = false;
    refusal = walk.follow(link, wasLink);
    if (refusal != Refusal::None) return refusal;
    if (!wasLink) {
      // A file where a folder should be; or, at the end, a link that was
      // replaced a moment ago: then the name is looked at again.
      if (!linkIsLast) return Refusal::Missing;
      walk.pending.push_back(std::move(link));
    }
    Step found = Step::Done;
    refusal = walk.walkOn(last, link, linkIsLast, found);
    if (refusal != Refusal::None || found == Step::Done) return refusal;
  }
}

void readAll(int descriptor, std::string& content, Refusal& refusal) {
  struct stat status;
  if (::fstat(descriptor, &status) != 0) {
    refusal = refusalOf(errno);
    return;
  }
  if (!S_ISREG(status.st_mode)) {
    refusal = S_ISDIR(status.st_mode) ? Refusal::Folder : Refusal::NotPlainFile;
    return;
  }
  content.clear();
  content.reserve(static_cast<std::size_t>(status.st_size));
  std::array<char, 8192> buffer;
  for (;;) {
    const ssize_t length = ::read(descriptor, buffer.data(), buffer.size());
    if (length == 0) return;
    if (length < 0) {
      if (errno == EINTR) continue;
      refusal = Refusal::Failed;
      return;
    }
    content.append(buffer.data(), static_cast<std::size_t>(length));
  }
}

}  // namespace

// The working folder's descriptor for one operation: the one held, or one
// opened for this operation alone when the folder is given relatively.
class WorkingFolder::Root {
 public:
  explicit Root(WorkingFolder& folder) {
    if (folder.handle_ >= 0) {
      descriptor_ = static_cast<int>(folder.handle_);
      return;
    }
    descriptor_ = ::open(folder.path_.empty() ? "." : folder.path_.c_str(), kWorkingFolder);
    if (descriptor_ < 0) {
      error_ = errno;
    } else if (folder.path_.is_absolute()) {
      folder.handle_ = descriptor_;
    } else {
      owned_.reset(descriptor_);
    }
  }

  int descriptor() const { return descriptor_; }
  Refusal refusal() const { return refusalOf(error_); }

 private:
  int descriptor_ = -1;
  int error_ = 0;
  Descriptor owned_;
};

OutputFile::OutputFile(OutputFile&& other) noexcept
    : handle_(std::exchange(other.handle_, kNoHandle)) {}

OutputFile& OutputFile::operator=(OutputFile&& other) noexcept {
  if (this != &other) {
    close();
    handle_ = std::exchange(other.handle_, kNoHandle);
  }
  return *this;
}

OutputFile::~OutputFile() {
  close();
}

void OutputFile::close() {
  if (handle_ != kNoHandle) ::close(static_cast<int>(handle_));
  handle_ = kNoHandle;
}

Refusal OutputFile::writeWholeAndClose(std::string_view bytes) {
  Descriptor file(static_cast<int>(std::exchange(handle_, kNoHandle)));
  std::size_t written = 0;
  while (written < bytes.size()) {
    const ssize_t length = ::pwrite(file.get(), bytes.data() + written, bytes.size() - written,
                                    static_cast<off_t>(written));
    if (length < 0) {
      if (errno == EINTR) continue;
      return Refusal::Failed;
    }
    written += static_cast<std::size_t>(length);
  }
  // Whatever another program added since the file was emptied goes.
  if (::ftruncate(file.get(), static_cast<off_t>(bytes.size())) != 0) return Refusal::Failed;
  if (::close(file.release()) != 0) return Refusal::Failed;
  return Refusal::None;
}

WorkingFolder::WorkingFolder(fs::path folder) : path_(std::move(folder)) {}

WorkingFolder::~WorkingFolder() {
  if (handle_ != OutputFile::kNoHandle) ::close(static_cast<int>(handle_));
}

Refusal WorkingFolder::read(const std::string& name, std::string& content) {
  const Root root(*this);
  if (root.descriptor() < 0) return root.refusal();
  return lookUp(root.descriptor(), path_, name,
                [&](int folder, const char* part, Refusal& refusal) {
                  const Descriptor file(::openat(folder, part, kReading));
                  if (file.get() < 0) {
                    if (isLink(errno)) return Step::Link;
                    refusal = refusalOfOpening(folder, part, errno);
                    return Step::Done;
                  }
                  readAll(file.get(), content, refusal);
                  return Step::Done;
                });
}

Refusal WorkingFolder::create(const std::string& name, OutputFile& file) {
  const Root root(*this);
  if (root.descriptor() < 0) return root.refusal();
  Descriptor opened;
  const Refusal refusal =
      lookUp(root.descriptor(), path_, name, [&](int folder, const char* part, Refusal& refused) {
        opened.reset(::openat(folder, part, kWriting, 0666));
        if (opened.get() < 0) {
          if (isLink(errno)) return Step::Link;
          refused = refusalOfOpening(folder, part, errno);
          return Step::Done;
        }
        struct stat status;
        if (::fstat(opened.get(), &status) != 0)
          refused = refusalOf(errno);
        else if (!S_ISREG(status.st_mode))
          refused = S_ISDIR(status.st_mode) ? Refusal::Folder : Refusal::NotPlainFile;
        else if (status.st_nlink > 1)
          refused = Refusal::SecondName;
        else if (::ftruncate(opened.get(), 0) != 0)
          refused = refusalOf(errno);
        return Step::Done;
      });
  if (refusal != Refusal::None) return refusal;
  file.close();
  file.handle_ = opened.release();
  return Refusal::None;
}

Refusal WorkingFolder::remove(const std::string& name) {
  const Root root(*this);
  if (root.descriptor() < 0) return root.refusal();
  const Refusal refusal =
      lookUp(root.descriptor(), path_, name, [](int folder, const char* part, Refusal& refused) {
        struct stat status;
        if (::fstatat(folder, part, &status, AT_SYMLINK_NOFOLLOW) != 0)
          refused = refusalOf(errno);
        else if (S_ISLNK(status.st_mode))
          return Step::Link;
        else if (S_ISDIR(status.st_mode))
          refused = Refusal::Folder;
        return Step::Done;
      });
  if (refusal != Refusal::None) return refusal;
  // The name itself goes, in the folder held open: a link put in its place
  // meanwhile is deleted as a link, and nothing outside is reached.
  if (::unlinkat(root.descriptor(), name.c_str(), 0) != 0) return refusalOf(errno);
  return Refusal::None;
}

bool WorkingFolder::holdsPlainFile(const std::string& name) {
  const Root root(*this);
  if (root.descriptor() < 0) return false;
  return lookUp(root.descriptor(), path_, name, [](int folder, const char* part, Refusal& refused) {
           struct stat status;
           if (::fstatat(folder, part, &status, AT_SYMLINK_NOFOLLOW) != 0)
             refused = Refusal::Missing;
           else if (S_ISLNK(status.st_mode))
             return Step::Link;
           else if (!S_ISREG(status.st_mode))
             refused = Refusal::NotPlainFile;
           return Step::Done;
         }) == Refusal::None;
}

}  // namespace veridraw::platform
