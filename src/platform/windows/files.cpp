#include "base/failure.h"
#include "platform/parts.h"
#include "platform/windows/disk_path.h"
#include "platform/windows/wide_text.h"

namespace qvr::windows {
namespace {

[[noreturn]] void refuse() { throw RuntimeFailure(failure_number::kFile); }

class FileHandle {
 public:
  explicit FileHandle(HANDLE handle) : handle_(handle) {
    if (handle_ == INVALID_HANDLE_VALUE) refuse();
    // A path may lead out of the disk all the same: by a link, or a drive that stands for something else.
    if (GetFileType(handle_) != FILE_TYPE_DISK) {
      close();
      refuse();
    }
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

// Files are opened in constructors, after the allocation, so that out of memory leaves no handle open and no file
// truncated.
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

// Copies the DACL of the old file to the new one. False when that fails.
bool keep_protection(const std::wstring& from, const std::wstring& to) {
  DWORD size = 0;
  GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<std::byte> descriptor(size);
  if (size == 0) return true;
  if (!GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size)) return true;
  return SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, descriptor.data()) != FALSE;
}

// Retries on sharing violations: virus scanners and readers keep files open for a moment.
bool replace(const std::wstring& file, const std::wstring& by) {
  constexpr int kAttempts = 5;
  constexpr DWORD kPause = 20, kHow = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  for (int attempt = 1; !MoveFileExW(by.c_str(), file.c_str(), kHow); ++attempt) {
    const DWORD reason = GetLastError();
    const bool held = reason == ERROR_SHARING_VIOLATION || reason == ERROR_ACCESS_DENIED;
    if (!held || attempt == kAttempts) return false;
    Sleep(kPause);
  }
  return true;
}

HANDLE opened_to_write(const std::wstring& path, DWORD how, DWORD shared = 0) {
  return CreateFileW(path.c_str(), GENERIC_WRITE, shared, nullptr, how, FILE_ATTRIBUTE_NORMAL, nullptr);
}

constexpr DWORD kWithReaders = FILE_SHARE_READ;

// A read-only file, or one that is open without FILE_SHARE_WRITE, must not be replaced by renaming either.
void require_replaceable(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) refuse();
  const HANDLE there = opened_to_write(path, OPEN_EXISTING, kWithReaders);
  if (there != INVALID_HANDLE_VALUE) {
    CloseHandle(there);
  } else if (GetLastError() != ERROR_FILE_NOT_FOUND) {
    refuse();
  }
}

void write_all(HANDLE file, std::string_view bytes) {
  constexpr std::size_t kAtOnce = std::size_t{1} << 20;
  while (!bytes.empty()) {
    DWORD count = 0;
    const auto part = static_cast<DWORD>(std::min(bytes.size(), kAtOnce));
    if (!WriteFile(file, bytes.data(), part, &count, nullptr) || count == 0) refuse();
    bytes.remove_prefix(count);
  }
}

// Truncates at the current position and flushes to disk before renaming, so that a power failure does not leave an
// empty file.
void close_whole(FileHandle& file) {
  const bool whole = SetEndOfFile(file.get()) && FlushFileBuffers(file.get());
  if (!file.close() || !whole) refuse();
}

// Fallback where renaming or copying the DACL fails: writes in place. The temporary file is deleted only afterwards, so
// that it survives a full disk.
void copy_into(const std::wstring& path, const std::wstring& from) {
  HandleInput source(from);
  FileHandle target(opened_to_write(path, OPEN_ALWAYS, kWithReaders));
  std::array<char, 8192> buffer;
  while (const std::size_t count = source.read(buffer)) write_all(target.get(), {buffer.data(), count});
  close_whole(target);
}

// Writes to a temporary file, if one can be created, and renames it when it is complete.
class HandleOutput : public OutputFile {
 public:
  explicit HandleOutput(std::wstring path) : path_(std::move(path)), beside_(path_ + L".tmp"), file_(opened()) {}

  ~HandleOutput() override {
    if (!begun_ && file_.close() && !beside_.empty()) DeleteFileW(beside_.c_str());
  }
  HandleOutput(const HandleOutput&) = delete;
  HandleOutput& operator=(const HandleOutput&) = delete;

  void write(std::string_view bytes) override {
    begun_ = true;
    write_all(file_.get(), bytes);
  }

  void close() override {
    begun_ = true;
    close_whole(file_);
    if (beside_.empty() || (keep_protection(path_, beside_) && replace(path_, beside_))) return;
    copy_into(path_, beside_);
    DeleteFileW(beside_.c_str());
  }

 private:
  HANDLE opened() {
    require_replaceable(path_);
    const HANDLE handle = opened_to_write(beside_, CREATE_ALWAYS);
    if (handle != INVALID_HANDLE_VALUE) return handle;
    if (GetLastError() == ERROR_SHARING_VIOLATION) refuse();  // another process is writing the same file
    beside_.clear();  // no permission to create files in the folder, or the name is too long
    return opened_to_write(path_, OPEN_ALWAYS, kWithReaders);
  }

  const std::wstring path_;
  std::wstring beside_;  // the temporary file; empty: none
  bool begun_ = false;
  FileHandle file_;
};

std::wstring path_of(TextView path) {
  if (!is_disk_path(path)) refuse();
  return wide(path);
}

// Dir() of Visual Basic: regular files always match, folders, hidden and system files only if the mask has their
// attributes.
bool shown(DWORD attributes, std::int32_t mask) {
  constexpr DWORD kOnRequest = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
  return (attributes & kOnRequest & ~static_cast<DWORD>(mask)) == 0;
}

// Calls `use` for every entry of a directory search until it answers true; returns the last error.
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
    search(path_of(path),
           [&](const WIN32_FIND_DATAW& entry) { return found = shown(entry.dwFileAttributes, attributes); });
    return found;
  }

  std::vector<Text> names(TextView folder) override {
    std::vector<Text> found;
    const DWORD end = search(path_of(join({folder, u"\\*"})), [&](const WIN32_FIND_DATAW& entry) {
      if (shown(entry.dwFileAttributes, 0)) found.push_back(text_from(entry.cFileName));
      return false;
    });
    // An empty root folder has no entries; every other folder has "." and "..".
    if (end != ERROR_NO_MORE_FILES && end != ERROR_FILE_NOT_FOUND) refuse();
    return found;
  }

  std::unique_ptr<InputFile> open(TextView path) override { return std::make_unique<HandleInput>(path_of(path)); }

  std::unique_ptr<OutputFile> create(TextView path) override { return std::make_unique<HandleOutput>(path_of(path)); }

  std::string to_system_page(TextView text) override {
    const std::wstring from = wide(text);
    if (from.empty()) return {};
    BOOL replaced = FALSE;
    // With UTF-8 as the ANSI code page WideCharToMultiByte rejects this flag and this argument.
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
}  // namespace qvr::windows

qvr::Files& qvr::platform_parts::files() {
  static windows::SystemFiles instance;
  return instance;
}
