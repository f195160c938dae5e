#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <optional>
#include <string>

#include "base/failure.h"
#include "base/utf8.h"
#include "base/wildcards.h"
#include "platform/parts.h"
#include "platform/posix/names.h"
#include "platform/temporary_name.h"

namespace qvr::posix {
namespace {

[[noreturn]] void refuse() { throw RuntimeFailure(failure_number::kFile); }

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {
    if (number_ < 0) refuse();
  }
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int number() const { return number_; }
  int release() { return std::exchange(number_, -1); }

 private:
  int number_;
};

// By what a link leads to; a dangling one is none.
enum class Kind { None, Plain, Directory, Other };
Kind kind_of(const std::string& path) {
  struct stat entry {};
  if (::stat(path.c_str(), &entry) != 0) return Kind::None;
  return S_ISDIR(entry.st_mode) ? Kind::Directory : S_ISREG(entry.st_mode) ? Kind::Plain : Kind::Other;
}

// Opening a device, or a pipe with nobody at its other end, would wait: asked before, and not waited for if one takes
// the file's place meanwhile.
int opened(const std::string& path, int how) {
  const Kind found = kind_of(path);
  const bool missing = found == Kind::None && (how & O_CREAT) != 0;
  if (found != Kind::Plain && !missing) return -1;
  return ::open(path.c_str(), how | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0666);
}

std::size_t read_into(int file, std::span<char> buffer) {
  std::size_t filled = 0;
  while (filled < buffer.size()) {
    const ssize_t count = ::read(file, buffer.data() + filled, buffer.size() - filled);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) refuse();
    if (count == 0) break;
    filled += static_cast<std::size_t>(count);
  }
  return filled;
}

// Files are opened in constructors, after the allocation, so that out of memory leaves no descriptor open and no file
// truncated.
class DescriptorInput : public InputFile {
 public:
  explicit DescriptorInput(const std::string& path) : descriptor_(opened(path, O_RDONLY)) {}

  std::size_t read(std::span<char> buffer) override { return read_into(descriptor_.number(), buffer); }

 private:
  Descriptor descriptor_;
};

// Another saver writes in place for a moment only: tries again for about a second. Without locks there is no waiting.
bool locked(int number) {
  constexpr int kAttempts = 50;
  constexpr useconds_t kPause = 20000;
  for (int attempt = 1; ::flock(number, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK; ++attempt) {
    if (attempt == kAttempts) return false;
    ::usleep(kPause);
  }
  return true;
}

void write_all(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(file, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) refuse();
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

// Truncates at the current position and flushes to disk, so that a power failure after renaming does not leave an empty
// file.
void finish(int file) {
  if (::ftruncate(file, ::lseek(file, 0, SEEK_CUR)) != 0 || ::fsync(file) != 0) refuse();
}

int opened_in_place(const std::string& path) {
  const int number = opened(path, O_WRONLY | O_CREAT);
  if (number >= 0 && !locked(number)) {
    ::close(number);
    return -1;
  }
  return number;
}

// Where a symbolic link leads to; the path itself when it leads nowhere.
std::string resolved(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> found(::realpath(path.c_str(), nullptr), &std::free);
  return found ? found.get() : path;
}

// What the file that is to be replaced has, and a new one in its place would not.
struct Former {
  std::optional<struct stat> entry;
  bool in_place = false;
};

// Throws where the file must not be written. A read-only file must not be replaced by renaming either.
Former former_file(const std::string& path) {
  struct stat entry {};
  const bool dangling_link = ::lstat(path.c_str(), &entry) == 0 && S_ISLNK(entry.st_mode);
  if (kind_of(path) == Kind::None) return {std::nullopt, dangling_link};
  const Descriptor there(opened(path, O_WRONLY));
  if (::fstat(there.number(), &entry) != 0) refuse();
  return {entry, entry.st_nlink > 1};
}

// Owner, group and permissions of the former file. False when the new one cannot have them.
bool keep_rights(const struct stat& former, int file) {
  struct stat now {};
  if (::fstat(file, &now) != 0) return false;
  const bool same = now.st_uid == former.st_uid && now.st_gid == former.st_gid;
  return (same || ::fchown(file, former.st_uid, former.st_gid) == 0) && ::fchmod(file, former.st_mode & 07777) == 0;
}

// From the beginning of the one to the whole of the other.
void copy_into(const std::string& path, int from) {
  const Descriptor target(opened_in_place(path));
  std::array<char, 8192> buffer;
  if (::lseek(from, 0, SEEK_SET) != 0) refuse();
  while (const std::size_t count = read_into(from, buffer)) write_all(target.number(), {buffer.data(), count});
  finish(target.number());
}

// Calls `use` with name and path of every entry until it answers true, skipping names that are not UTF-8. Throws when
// the folder cannot be read. (std::filesystem::directory_iterator calls std::terminate when out of memory.)
template <class Use>
void each_name(const std::string& folder, Use&& use) {
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(::opendir(folder.c_str()), &::closedir);
  if (!listing) refuse();
  while (const dirent* entry = ::readdir(listing.get())) {
    auto name = from_utf8(entry->d_name);
    if (name && use(std::move(*name), folder + "/" + entry->d_name)) return;
  }
}

// The temporary files of ended processes. One that is being written is locked and stays.
bool remove_left_behind(const std::string& path) {
  const std::size_t start = path.rfind('/') + 1;
  const auto name = from_utf8(std::string_view(path).substr(start));
  const std::string folder = start == 0 ? "." : path.substr(0, start);
  each_name(folder, [&](const Text& found, const std::string& whole) {
    const bool ours = name && found.starts_with(*name) && is_temporary_suffix(TextView(found).substr(name->size()));
    const int number = ours ? opened(whole, O_RDONLY | O_NOFOLLOW) : -1;
    if (number < 0) return false;
    if (::flock(number, LOCK_EX | LOCK_NB) == 0) ::unlink(whole.c_str());
    ::close(number);
    return false;
  });
  return true;
}

// Writes to a temporary file, if one can be created, and renames it when it is complete.
class DescriptorOutput : public OutputFile {
 public:
  explicit DescriptorOutput(const std::string& path)
      : path_(resolved(path)), former_(former_file(path_)), descriptor_(opened_beside_or_in_place()) {}

  ~DescriptorOutput() override { discard(); }
  DescriptorOutput(const DescriptorOutput&) = delete;
  DescriptorOutput& operator=(const DescriptorOutput&) = delete;

  void write(std::string_view bytes) override { write_all(descriptor_.number(), bytes); }

  void close() override {
    finish(descriptor_.number());
    if (!beside_.empty()) {
      take_place();
      or_default(u"Files", false,
                 [&] { return remove_left_behind(path_); });  // the file is saved, whatever becomes of this
    }
    discard();
    if (::close(descriptor_.release()) != 0) refuse();
  }

 private:
  void discard() {
    if (!beside_.empty()) ::unlink(beside_.c_str());
    beside_.clear();
  }

  // Readable for this user only, until it has the former file's rights.
  int opened_beside_or_in_place() {
    constexpr std::uint32_t kNames = 100;
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    const auto first = static_cast<std::uint32_t>(now.tv_nsec ^ now.tv_sec << 20 ^ ::getpid() << 8);
    for (std::uint32_t number = first; number != first + kNames; ++number) {
      beside_ = path_ + to_utf8(temporary_suffix(number));
      const int made = ::open(beside_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, former_.entry ? 0600 : 0666);
      if (made < 0 && errno == EEXIST) continue;  // somebody's own file
      if (made >= 0 && is_held(made)) return made;
      if (made < 0) break;
      ::close(made);
    }
    beside_.clear();  // no permission to create files in the folder, or the name is too long
    return opened_in_place(path_);
  }

  // False where another saver has taken the new file for one that was left behind.
  static bool is_held(int number) {
    struct stat entry {};
    const bool mine = ::flock(number, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    return mine && ::fstat(number, &entry) == 0 && entry.st_nlink > 0;
  }

  void take_place() {
    const bool renamed = !former_.in_place && (!former_.entry || keep_rights(*former_.entry, descriptor_.number())) &&
                         ::rename(beside_.c_str(), path_.c_str()) == 0;
    // While the file is written in place, the temporary one is all that is whole: it survives a full disk.
    std::string whole = std::exchange(beside_, {});
    if (renamed) return;
    copy_into(path_, descriptor_.number());
    beside_ = std::move(whole);
  }

  const std::string path_;
  const Former former_;
  std::string beside_;  // the temporary file; empty: none
  Descriptor descriptor_;
};

constexpr std::int32_t kDirectoryAttribute = 16;

class PosixFiles final : public Files {
 public:
  // Without regard to case, as everywhere else.
  bool any_entry(TextView path, std::int32_t attributes) override {
    const std::size_t end = path.find_last_of(u"/\\");
    const TextView folder = end == TextView::npos ? u"." : path.substr(0, end + 1);
    const TextView pattern = end == TextView::npos ? path : path.substr(end + 1);
    const bool directories = (attributes & kDirectoryAttribute) != 0;
    const auto listed = native_path(folder);
    if (kind_of(listed) != Kind::Directory) return false;  // no failure: nothing is there
    bool any = false;
    each_name(listed, [&](const Text& name, const std::string& found) {
      if (!matches_wildcards(name, pattern)) return false;
      const Kind kind = kind_of(found);
      return any = kind == Kind::Plain || (kind == Kind::Directory && directories);
    });
    return any;
  }

  std::vector<Text> names(TextView folder) override {
    std::vector<Text> names;
    each_name(native_path(folder), [&](Text name, const std::string& found) {
      if (kind_of(found) == Kind::Plain) names.push_back(std::move(name));
      return false;
    });
    return names;
  }

  std::unique_ptr<InputFile> open(TextView path) override {
    return std::make_unique<DescriptorInput>(native_path(path));
  }

  std::unique_ptr<OutputFile> create(TextView path) override {
    return std::make_unique<DescriptorOutput>(native_path(path));
  }

  // The code page here is UTF-8.
  std::string to_system_page(TextView text) override { return to_utf8(text); }
  Text from_system_page(std::string_view bytes) override {
    auto text = from_utf8(bytes);
    if (!text) refuse();
    return std::move(*text);
  }
};

}  // namespace

std::string native_path(TextView path) {
  std::string bytes = to_utf8(path);
  std::ranges::replace(bytes, '\\', '/');
  if (bytes.find('\0') != std::string::npos) refuse();  // the system would stop at the NUL
  return bytes;
}

}  // namespace qvr::posix

qvr::Files& qvr::platform_parts::files() {
  static posix::PosixFiles instance;
  return instance;
}
