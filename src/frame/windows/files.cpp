#include "frame/failure.h"
#include "frame/windows/parts.h"

namespace qvr::windows {
namespace {

[[noreturn]] void refuse() { throw RuntimeFailure(failure_number::kFile); }

class FileHandle {
 public:
  explicit FileHandle(HANDLE handle) : handle_(handle) {
    if (handle_ == INVALID_HANDLE_VALUE) refuse();
  }
  ~FileHandle() { close(); }
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  HANDLE get() const { return handle_; }
  bool close() {
    const HANDLE handle = std::exchange(handle_, INVALID_HANDLE_VALUE);
    return handle == INVALID_HANDLE_VALUE || CloseHandle(handle) != FALSE;
  }

 private:
  HANDLE handle_;
};

// The objects open their files themselves, so that no file is open, or emptied, before there is memory for its object.
class HandleInput : public InputFile {
 public:
  explicit HandleInput(const std::wstring& path)
      : file_(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                          FILE_ATTRIBUTE_NORMAL, nullptr)) {}

  std::size_t read(std::span<char> buffer) override {
    std::size_t filled = 0;
    while (filled < buffer.size()) {
      DWORD count = 0;
      const auto wanted = static_cast<DWORD>(buffer.size() - filled);
      if (!ReadFile(file_.get(), buffer.data() + filled, wanted, &count, nullptr)) refuse();
      if (count == 0) break;
      filled += count;
    }
    return filled;
  }

 private:
  FileHandle file_;
};

class HandleOutput : public OutputFile {
 public:
  explicit HandleOutput(const std::wstring& path)
      : file_(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr)) {}

  void write(std::string_view bytes) override {
    constexpr std::size_t kAtOnce = std::size_t{1} << 20;
    while (!bytes.empty()) {
      DWORD count = 0;
      const auto part = static_cast<DWORD>(std::min(bytes.size(), kAtOnce));
      if (!WriteFile(file_.get(), bytes.data(), part, &count, nullptr) || count == 0) refuse();
      bytes.remove_prefix(count);
    }
  }

  void close() override {
    if (!file_.close()) refuse();
  }

 private:
  FileHandle file_;
};

std::wstring path_of(TextView path) {
  if (path.find(u'\0') != TextView::npos) refuse();  // the system would see a shorter path
  return wide(path);
}

// A directory search finds plain files always, folders and hidden and system files only where the mask asks for them.
bool shown(DWORD attributes, std::int32_t mask) {
  constexpr DWORD kOnRequest = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
  return (attributes & kOnRequest & ~static_cast<DWORD>(mask)) == 0;
}

// Hands every entry of a directory search over until it is told that this is enough; the reason why it ended.
template <class Use>
DWORD search(const std::wstring& path, Use&& use) {
  WIN32_FIND_DATAW entry;
  const HANDLE found = FindFirstFileW(path.c_str(), &entry);
  if (found == INVALID_HANDLE_VALUE) return GetLastError();
  const std::unique_ptr<void, decltype(&FindClose)> close(found, &FindClose);
  do {
    if (use(entry)) return ERROR_NO_MORE_FILES;
  } while (FindNextFileW(found, &entry));
  return GetLastError();
}

class SystemFiles final : public Files {
 public:
  bool any_entry(TextView path, std::int32_t attributes) override {
    bool found = false;
    search(path_of(path), [&](const WIN32_FIND_DATAW& entry) { return found = shown(entry.dwFileAttributes, attributes); });
    return found;
  }

  std::vector<Text> names(TextView folder) override {
    std::vector<Text> found;
    const DWORD end = search(path_of(join({folder, u"\\*"})), [&](const WIN32_FIND_DATAW& entry) {
      if (shown(entry.dwFileAttributes, 0)) found.push_back(text_from(entry.cFileName));
      return false;
    });
    // An empty root folder has no entry at all, any other one at least those for itself and its parent.
    if (end != ERROR_NO_MORE_FILES && end != ERROR_FILE_NOT_FOUND) refuse();
    return found;
  }

  std::unique_ptr<InputFile> open(TextView path) override {
    return std::make_unique<HandleInput>(path_of(path));
  }

  std::unique_ptr<OutputFile> create(TextView path) override {
    return std::make_unique<HandleOutput>(path_of(path));
  }

  std::string to_system_page(TextView text) override {
    const std::wstring from = wide(text);
    if (from.empty()) return {};
    BOOL replaced = FALSE;
    // The UTF-8 page has a place for everything and takes neither of these.
    const bool total = GetACP() == CP_UTF8;
    BOOL* const report = total ? nullptr : &replaced;
    const DWORD flags = total ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS;
    const auto convert = [&](char* to, int room) {
      return WideCharToMultiByte(CP_ACP, flags, from.data(), static_cast<int>(from.size()), to, room, nullptr, report);
    };
    std::string bytes(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    if (bytes.empty() || convert(bytes.data(), static_cast<int>(bytes.size())) == 0 || replaced) refuse();
    return bytes;
  }

  Text from_system_page(std::string_view bytes) override {
    if (bytes.empty()) return {};
    const auto convert = [&](wchar_t* to, int room) {
      return MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(bytes.size()), to, room);
    };
    std::wstring text(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
    if (text.empty() || convert(text.data(), static_cast<int>(text.size())) == 0) refuse();
    return text_from(text);
  }
};

}  // namespace

Files& files() {
  static SystemFiles instance;
  return instance;
}

}  // namespace qvr::windows
