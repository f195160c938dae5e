#include "support/fake_files.h"

#include <algorithm>

#include "base/failure.h"
#include "base/wildcards.h"
#include "platform/temporary_name.h"
#include "support/faults_paused.h"

namespace qvr::tests {
namespace {

[[noreturn]] void refuse() { throw RuntimeFailure(failure_number::kFile); }

Files& real() { return system_platform().files; }

class MemoryOutput final : public OutputFile {
 public:
  MemoryOutput(FakeFiles& files, TextView path)
      : files_(files), path_(path), beside_(join({path, temporary_suffix(0)})) {
    const FaultsPaused paused;
    written().clear();
  }
  ~MemoryOutput() override { files_.memory.erase(beside_); }
  MemoryOutput(const MemoryOutput&) = delete;
  MemoryOutput& operator=(const MemoryOutput&) = delete;

  void write(std::string_view bytes) override {
    const FaultsPaused paused;  // a disk does not use this memory
    const auto& disk = files_.writable_bytes;
    const std::size_t room = disk ? *disk - std::min(*disk, written().size()) : bytes.size();
    written() += bytes.substr(0, room);
    if (room < bytes.size()) refuse();
  }

  void close() override {
    const FaultsPaused paused;
    if (files_.close_fails) refuse();
    files_.memory[path_] = std::move(written());
    files_.memory.erase(beside_);
  }

 private:
  std::string& written() { return files_.memory[beside_]; }

  FakeFiles& files_;
  const Text path_, beside_;
};

}  // namespace

bool FakeFiles::any_entry(TextView path, std::int32_t attributes) {
  ++searches;
  if (search_fails) refuse();
  if (!in_memory_) return real().any_entry(path, attributes);
  constexpr std::int32_t kHidden = 2;
  return std::ranges::any_of(memory, [&](const auto& file) {
    const bool shown = (attributes & kHidden) != 0 || !hidden.contains(file.first);
    return shown && matches_wildcards(file.first, path);
  });
}

std::vector<Text> FakeFiles::names(TextView folder) {
  ++searches;
  if (search_fails) refuse();
  if (!in_memory_) return real().names(folder);
  std::vector<Text> found;
  const Text start = join({folder, u"\\"});
  for (const auto& [path, bytes] : memory) {
    if (path.starts_with(start)) found.push_back(path.substr(start.size()));
  }
  return found;
}

std::unique_ptr<InputFile> FakeFiles::open(TextView path) {
  ++opened;
  if (input) return input();
  if (!in_memory_) return real().open(path);
  const auto found = memory.find(Text(path));
  if (found == memory.end()) refuse();
  return std::make_unique<MemoryInput>(found->second);
}

std::unique_ptr<OutputFile> FakeFiles::create(TextView path) {
  ++created;
  if (!in_memory_) return real().create(path);
  return std::make_unique<MemoryOutput>(*this, path);
}

std::string FakeFiles::to_system_page(TextView text) {
  if (!single_byte_page) return real().to_system_page(text);
  std::string bytes;
  for (char16_t unit : text) {
    if (unit > 0xFF) refuse();
    bytes.push_back(static_cast<char>(unit));
  }
  return bytes;
}

Text FakeFiles::from_system_page(std::string_view bytes) {
  if (!single_byte_page) return real().from_system_page(bytes);
  Text text;
  for (char byte : bytes) text.push_back(static_cast<unsigned char>(byte));
  return text;
}

std::size_t MemoryInput::read(std::span<char> buffer) {
  const std::size_t count = std::min(buffer.size(), bytes_.size() - at_);
  std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(at_), count, buffer.begin());
  at_ += count;
  return count;
}

std::size_t EndlessLine::read(std::span<char> buffer) {
  const std::size_t count = std::min(buffer.size(), left_);
  std::fill_n(buffer.begin(), count, 'a');
  left_ -= count;
  taken_ += count;
  return count;
}

}  // namespace qvr::tests
