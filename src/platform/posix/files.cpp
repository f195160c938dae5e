#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <optional>
#include <string>

#include "base/failure.h"
#include "base/utf8.h"
#include "base/wildcards.h"
#include "platform/parts.h"
#include "platform/posix/names.h"

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

// Files are opened in constructors, after the allocation, so that out of memory leaves no descriptor open and no file
// truncated.
class DescriptorInput : public InputFile {
 public:
  explicit DescriptorInput(const std::string& path) : descriptor_(opened(path, O_RDONLY)) {}

  std::size_t read(std::span<char> buffer) override {
    std::size_t filled = 0;
    while (filled < buffer.size()) {
      const ssize_t count = ::read(descriptor_.number(), buffer.data() + filled, buffer.size() - filled);
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) refuse();
      if (count == 0) break;
      filled += static_cast<std::size_t>(count);
    }
    return filled;
  }

 private:
  Descriptor descriptor_;
};

int opened_to_write(const std::string& path, int how) { return opened(path, O_WRONLY | O_CREAT | how); }

// The permissions of the existing file; none if there is no file. A read-only file must not be replaced by renaming
// either.
std::optional<mode_t> permissions_to_keep(const std::string& path) {
  if (kind_of(path) == Kind::None) return std::nullopt;
  const Descriptor there(opened(path, O_WRONLY));
  struct stat entry {};
  if (::fstat(there.number(), &entry) != 0) refuse();
  return entry.st_mode & 07777;
}

// Writes to a temporary file, if one can be created, and renames it when it is complete.
class DescriptorOutput : public OutputFile {
 public:
  explicit DescriptorOutput(std::string path)
      : path_(std::move(path)),
        beside_(path_ + ".tmp"),
        permissions_(permissions_to_keep(path_)),
        descriptor_(opened()) {}

  ~DescriptorOutput() override {
    if (!begun_ && !beside_.empty()) ::unlink(beside_.c_str());
  }
  DescriptorOutput(const DescriptorOutput&) = delete;
  DescriptorOutput& operator=(const DescriptorOutput&) = delete;

  void write(std::string_view bytes) override {
    begun_ = true;
    while (!bytes.empty()) {
      const ssize_t count = ::write(descriptor_.number(), bytes.data(), bytes.size());
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) refuse();
      bytes.remove_prefix(static_cast<std::size_t>(count));
    }
  }

  void close() override {
    begun_ = true;
    const int number = descriptor_.number();
    const bool kept = !permissions_ || ::fchmod(number, *permissions_) == 0;
    // Truncates at the current position and flushes to disk before renaming, so that a power failure does not leave an
    // empty file.
    const bool whole = ::ftruncate(number, ::lseek(number, 0, SEEK_CUR)) == 0 && ::fsync(number) == 0;
    if (::close(descriptor_.release()) != 0 || !whole || !kept) refuse();
    if (!beside_.empty() && ::rename(beside_.c_str(), path_.c_str()) != 0) refuse();
  }

 private:
  int opened() {
    const int number = opened_to_write(beside_, O_TRUNC);
    if (number >= 0) return number;
    beside_.clear();  // no permission to create files in the folder, or the name is too long
    return opened_to_write(path_, 0);
  }

  const std::string path_;
  std::string beside_;  // the temporary file; empty: none
  bool begun_ = false;
  const std::optional<mode_t> permissions_;
  Descriptor descriptor_;
};

constexpr std::int32_t kDirectoryAttribute = 16;

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

class PosixFiles final : public Files {
 public:
  // Without regard to case, as everywhere else.
  bool any_entry(TextView path, std::int32_t attributes) override {
    const std::size_t end = path.find_last_of(u"/\\");
    const TextView folder = end == TextView::npos ? u"." : path.substr(0, end + 1);
    const TextView pattern = end == TextView::npos ? path : path.substr(end + 1);
    const bool directories = (attributes & kDirectoryAttribute) != 0;
    bool any = false;
    each_name(native_path(folder), [&](const Text& name, const std::string& found) {
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
