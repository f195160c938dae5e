// Files that a test can take into memory or let fail; the system's own where it does neither.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>

#include "platform/platform.h"

namespace qvr::tests {

class FakeFiles final : public Files {
 public:
  bool any_entry(TextView path, std::int32_t attributes) override;
  std::vector<Text> names(TextView folder) override;
  std::unique_ptr<InputFile> open(TextView path) override;
  std::unique_ptr<OutputFile> create(TextView path) override;
  std::string to_system_page(TextView text) override;
  Text from_system_page(std::string_view bytes) override;

  // From here on, files are entries of `memory` under the very path that was asked for.
  void keep_in_memory() { in_memory_ = true; }

  std::map<Text, std::string> memory;
  std::set<Text> hidden;                              // which of them have the attribute "hidden"
  std::function<std::unique_ptr<InputFile>()> input;  // what opening any path gives, when set
  int searches = 0, opened = 0, created = 0;
  bool search_fails = false;
  bool close_fails = false;
  std::optional<std::size_t> writable_bytes;  // a disk that is full after so many
  bool single_byte_page = false;              // a system page that has the first 256 characters only

 private:
  bool in_memory_ = false;
};

// Bytes of memory as a file.
class MemoryInput final : public InputFile {
 public:
  explicit MemoryInput(std::string bytes) : bytes_(std::move(bytes)) {}
  std::size_t read(std::span<char> buffer) override;

 private:
  std::string bytes_;
  std::size_t at_ = 0;
};

// One byte again and again, up to a size; counts what was taken of it.
class EndlessLine final : public InputFile {
 public:
  EndlessLine(std::size_t size, std::size_t& taken) : left_(size), taken_(taken) {}
  std::size_t read(std::span<char> buffer) override;

 private:
  std::size_t left_;
  std::size_t& taken_;
};

}  // namespace qvr::tests
