#include <fcntl.h>
#include <glob.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <optional>
#include <string>

#include "frame/failure.h"
#include "frame/posix/parts.h"
#include "frame/utf8.h"

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

// The objects open their files themselves, so that no file is open, or emptied, before there is memory for its object.
class DescriptorInput : public InputFile {
 public:
  explicit DescriptorInput(const std::string& path) : descriptor_(::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {}

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

int opened_to_write(const std::string& path) {
  return ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
}

// The permissions of the file that is there; none where there is no file. What may not be written must not be replaced
// either.
std::optional<mode_t> permissions_to_keep(const std::string& path) {
  const int number = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
  if (number < 0 && errno == ENOENT) return std::nullopt;
  const Descriptor there(number);
  struct stat entry{};
  if (::fstat(there.number(), &entry) != 0) refuse();
  return entry.st_mode & 07777;
}

// Written under a name of its own, where there is one, and put in the file's place when it is whole.
class DescriptorOutput : public OutputFile {
 public:
  explicit DescriptorOutput(std::string path)
      : path_(std::move(path)),
        beside_(path_ + ".tmp"),
        permissions_(permissions_to_keep(path_)),
        descriptor_(opened()) {}

  void write(std::string_view bytes) override {
    while (!bytes.empty()) {
      const ssize_t count = ::write(descriptor_.number(), bytes.data(), bytes.size());
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) refuse();
      bytes.remove_prefix(static_cast<std::size_t>(count));
    }
  }

  void close() override {
    const bool kept = !permissions_ || ::fchmod(descriptor_.number(), *permissions_) == 0;
    // On the disk before its name is: a machine that stops must not keep the name alone.
    const bool flushed = ::fsync(descriptor_.number()) == 0;
    if (::close(descriptor_.release()) != 0 || !flushed || !kept) refuse();
    if (!beside_.empty() && ::rename(beside_.c_str(), path_.c_str()) != 0) refuse();
  }

 private:
  int opened() {
    const int number = opened_to_write(beside_);
    if (number >= 0) return number;
    beside_.clear();  // a folder that takes no further file, or a name that cannot be longer
    return opened_to_write(path_);
  }

  const std::string path_;
  std::string beside_;  // empty where there is none
  const std::optional<mode_t> permissions_;
  Descriptor descriptor_;
};

constexpr std::int32_t kDirectoryAttribute = 16;

// Only "*" and "?" are wildcards; a bracket is part of a name.
std::string search_pattern(TextView path) {
  std::string pattern;
  for (const char byte : native_path(path)) {
    if (byte == '[') pattern.push_back('\\');
    pattern.push_back(byte);
  }
  return pattern;
}

class PosixFiles final : public Files {
 public:
  bool any_entry(TextView path, std::int32_t attributes) override {
    glob_t found{};
    const int result = ::glob(search_pattern(path).c_str(), GLOB_NOSORT, nullptr, &found);
    bool any = false;
    for (std::size_t i = 0; result == 0 && i < found.gl_pathc && !any; ++i) {
      struct stat entry{};
      // A search shows folders only where the mask asks for them.
      any = ::stat(found.gl_pathv[i], &entry) == 0 &&
            (!S_ISDIR(entry.st_mode) || (attributes & kDirectoryAttribute) != 0);
    }
    ::globfree(&found);
    return any;
  }

  std::vector<Text> names(TextView folder) override {
    std::vector<Text> found;
    const std::filesystem::path path(native_path(folder));
    for (const auto& entry : std::filesystem::directory_iterator(path)) {
      std::error_code vanished;
      auto name = from_utf8(entry.path().filename().string());
      // A name that is no text cannot be asked for.
      if (name && entry.is_regular_file(vanished)) found.push_back(std::move(*name));
    }
    return found;
  }

  std::unique_ptr<InputFile> open(TextView path) override {
    return std::make_unique<DescriptorInput>(native_path(path));
  }

  std::unique_ptr<OutputFile> create(TextView path) override {
    return std::make_unique<DescriptorOutput>(native_path(path));
  }

  // This system's page is UTF-8.
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
  if (bytes.find('\0') != std::string::npos) refuse();  // the system would see a shorter path
  return bytes;
}

Files& files() {
  static PosixFiles instance;
  return instance;
}

}  // namespace qvr::posix
