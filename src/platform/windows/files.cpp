#include "base/failure.h"
#include "platform/parts.h"
#include "platform/temporary_name.h"
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

// Another saver, a virus scanner or a backup has a file open for a moment only: tries again for about a second.
template <class Open>
HANDLE patiently(Open&& open) {
  constexpr int kAttempts = 50;
  constexpr DWORD kPause = 20;
  for (int attempt = 1;; ++attempt) {
    const HANDLE handle = open();
    const bool held = handle == INVALID_HANDLE_VALUE && GetLastError() == ERROR_SHARING_VIOLATION;
    if (!held || attempt == kAttempts) return handle;
    Sleep(kPause);
  }
}

std::size_t read_into(HANDLE file, std::span<char> buffer) {
  std::size_t filled = 0;
  while (filled < buffer.size()) {
    DWORD count = 0;
    const auto wanted = static_cast<DWORD>(buffer.size() - filled);
    if (!ReadFile(file, buffer.data() + filled, wanted, &count, nullptr)) refuse();
    if (count == 0) break;
    filled += count;
  }
  return filled;
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

// Truncates at the current position and flushes to disk, so that a power failure after renaming does not leave an empty
// file.
void finish(HANDLE file) {
  if (!SetEndOfFile(file) || !FlushFileBuffers(file)) refuse();
}

// Files are opened in constructors, after the allocation, so that out of memory leaves no handle open and no file
// truncated.
class HandleInput : public InputFile {
 public:
  explicit HandleInput(const std::wstring& path)
      : file_(patiently([&] {
          return CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                             FILE_ATTRIBUTE_NORMAL, nullptr);
        })) {}

  std::size_t read(std::span<char> buffer) override { return read_into(file_.get(), buffer); }

 private:
  FileHandle file_;
};

HANDLE opened_to_write(const std::wstring& path, DWORD how, DWORD shared) {
  return patiently(
      [&] { return CreateFileW(path.c_str(), GENERIC_WRITE, shared, nullptr, how, FILE_ATTRIBUTE_NORMAL, nullptr); });
}

// Readers may have the file open meanwhile, other writers wait.
HANDLE opened_in_place(const std::wstring& path) { return opened_to_write(path, OPEN_ALWAYS, FILE_SHARE_READ); }

// What the file that is to be replaced has, and a new one in its place would not.
struct Former {
  DWORD attributes = 0;
  bool in_place = false;  // a link, or something that a new file cannot be given
};

// Throws where the file must not be written. A read-only file, or one that is open without FILE_SHARE_WRITE, must not
// be replaced by renaming either.
Former former_file(const std::wstring& path) {
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  constexpr DWORD kInPlace = FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_ENCRYPTED | FILE_ATTRIBUTE_COMPRESSED;
  const DWORD found = GetFileAttributesW(path.c_str());
  const DWORD attributes = found == INVALID_FILE_ATTRIBUTES ? 0 : found;
  const HANDLE there = opened_to_write(path, OPEN_EXISTING, kShared);
  const bool missing = there == INVALID_HANDLE_VALUE && GetLastError() == ERROR_FILE_NOT_FOUND;
  if (missing) return {0, attributes != 0};  // nothing, or a symbolic link to nothing
  const FileHandle file(there);
  BY_HANDLE_FILE_INFORMATION about;
  if (!GetFileInformationByHandle(file.get(), &about)) refuse();
  if ((about.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0) refuse();
  return {attributes, (attributes & kInPlace) != 0 || about.nNumberOfLinks > 1};
}

// Copies the DACL of the old file to the new one. False when that fails.
bool keep_protection(const std::wstring& from, const std::wstring& to) {
  DWORD size = 0;
  GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<std::byte> descriptor(size);
  if (size == 0) return true;
  if (!GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size)) return true;
  return SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, descriptor.data()) != FALSE;
}

bool keep_attributes(DWORD attributes, const std::wstring& to) {
  constexpr DWORD kKept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
  return (attributes & kKept) == 0 ||
         SetFileAttributesW(to.c_str(), (attributes & kKept) | FILE_ATTRIBUTE_ARCHIVE) != FALSE;
}

std::wstring whole_path(const std::wstring& path) {
  std::wstring whole(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
  whole.resize(GetFullPathNameW(path.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr));
  if (whole.empty()) refuse();
  return whole;
}

// Gives the open file another name, over a file that has it. It stays open, so that nobody takes it for one that was
// left behind.
bool rename(HANDLE file, const std::wstring& to) {
  const std::wstring name = whole_path(to);
  const auto size = static_cast<DWORD>(name.size() * sizeof(wchar_t));
  std::vector<std::byte> buffer(sizeof(FILE_RENAME_INFO) + size);
  auto& request = *reinterpret_cast<FILE_RENAME_INFO*>(buffer.data());
  request.ReplaceIfExists = TRUE;
  request.FileNameLength = size;
  std::ranges::copy(name, request.FileName);
  // Readers keep a file open for a moment.
  constexpr int kAttempts = 5;
  constexpr DWORD kPause = 20;
  for (int attempt = 1;; ++attempt) {
    if (SetFileInformationByHandle(file, FileRenameInfo, &request, static_cast<DWORD>(buffer.size()))) return true;
    const DWORD reason = GetLastError();
    const bool held = reason == ERROR_SHARING_VIOLATION || reason == ERROR_ACCESS_DENIED;
    if (!held || attempt == kAttempts) return false;
    Sleep(kPause);
  }
}

// From the beginning of the one to the whole of the other.
void copy_into(const std::wstring& path, HANDLE from) {
  if (!SetFilePointerEx(from, {}, nullptr, FILE_BEGIN)) refuse();
  FileHandle target(opened_in_place(path));
  std::array<char, 8192> buffer;
  while (const std::size_t count = read_into(from, buffer)) write_all(target.get(), {buffer.data(), count});
  finish(target.get());
  if (!target.close()) refuse();
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

// The temporary files of ended processes. One that is being written is open without FILE_SHARE_DELETE and stays.
bool remove_left_behind(const std::wstring& path) {
  const std::size_t start = path.find_last_of(L"\\/:") + 1;
  const Text name = text_from(std::wstring_view(path).substr(start));
  search(path + L".qvr*.tmp", [&](const WIN32_FIND_DATAW& entry) {
    const Text found = text_from(entry.cFileName);
    const bool ours = starts_with_no_case(found, name) && is_temporary_suffix(TextView(found).substr(name.size()));
    if (ours) DeleteFileW((path.substr(0, start) + entry.cFileName).c_str());
    return false;
  });
  return true;
}

// Writes to a temporary file, if one can be created, and renames it when it is complete.
class HandleOutput : public OutputFile {
 public:
  explicit HandleOutput(std::wstring path)
      : path_(std::move(path)), former_(former_file(path_)), file_(opened_beside_or_in_place()) {}

  ~HandleOutput() override { discard(); }
  HandleOutput(const HandleOutput&) = delete;
  HandleOutput& operator=(const HandleOutput&) = delete;

  void write(std::string_view bytes) override { write_all(file_.get(), bytes); }

  void close() override {
    finish(file_.get());
    if (!beside_.empty()) {
      take_place();
      or_default(u"Files", false,
                 [&] { return remove_left_behind(path_); });  // the file is saved, whatever becomes of this
    }
    if (!file_.close()) refuse();
    discard();
  }

 private:
  void discard() {
    if (beside_.empty()) return;
    file_.close();
    DeleteFileW(beside_.c_str());
    beside_.clear();
  }

  HANDLE opened_beside_or_in_place() {
    constexpr std::uint32_t kNames = 100;
    LARGE_INTEGER now;
    QueryPerformanceCounter(&now);
    const auto first = static_cast<std::uint32_t>(now.QuadPart ^ LONGLONG{GetCurrentProcessId()} << 16);
    for (std::uint32_t number = first; number != first + kNames; ++number) {
      beside_ = path_ + wide(temporary_suffix(number));
      const HANDLE handle = CreateFileW(beside_.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
      const bool is_somebodys = handle == INVALID_HANDLE_VALUE && GetLastError() == ERROR_FILE_EXISTS;
      if (handle != INVALID_HANDLE_VALUE) return handle;
      if (!is_somebodys) break;
    }
    beside_.clear();  // no permission to create files in the folder, or the name is too long
    return opened_in_place(path_);
  }

  void take_place() {
    const bool renamed = !former_.in_place && keep_protection(path_, beside_) &&
                         keep_attributes(former_.attributes, beside_) && rename(file_.get(), path_);
    // While the file is written in place, the temporary one is all that is whole: it survives a full disk.
    std::wstring whole = std::exchange(beside_, {});
    if (renamed) return;
    copy_into(path_, file_.get());
    beside_ = std::move(whole);
  }

  const std::wstring path_;
  const Former former_;
  std::wstring beside_;  // the temporary file; empty: none
  FileHandle file_;
};

std::wstring path_of(TextView path) {
  if (!is_disk_path(path)) refuse();
  return wide(path);
}

// Dir() of Visual Basic: regular files always match, folders, hidden and system files only if the mask has their
// attributes.
constexpr std::int32_t kAnyFile = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
bool shown(DWORD attributes, std::int32_t mask) {
  constexpr DWORD kOnRequest = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
  return (attributes & kOnRequest & ~static_cast<DWORD>(mask)) == 0;
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
      if (shown(entry.dwFileAttributes, kAnyFile)) found.push_back(text_from(entry.cFileName));
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
    // No code page makes more units of a text than it has bytes.
    Text text(bytes.size(), u'\0');
    const auto size = static_cast<int>(bytes.size());
    const int units = MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, reinterpret_cast<wchar_t*>(text.data()), size);
    if (units == 0) refuse();
    text.resize(static_cast<std::size_t>(units));
    return text;
  }
};

}  // namespace
}  // namespace qvr::windows

qvr::Files& qvr::platform_parts::files() {
  static windows::SystemFiles instance;
  return instance;
}
