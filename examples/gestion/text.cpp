#include "text.h"

#include "automation.h"

namespace gestion {
namespace {

std::string encoded(std::wstring_view text, UINT page) {
  if (text.empty()) return {};
  const int length = static_cast<int>(text.size());
  const int size = WideCharToMultiByte(page, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(page, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
  return bytes;
}

class File {
 public:
  explicit File(const std::wstring& path)
      : handle_(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr)) {
    expect(handle_ != INVALID_HANDLE_VALUE, L"The file cannot be opened: " + path);
  }
  ~File() { CloseHandle(handle_); }
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  std::string rest() const {
    std::string bytes;
    char buffer[8192];
    for (DWORD read = 1; read != 0; bytes.append(buffer, read)) {
      expect(ReadFile(handle_, buffer, sizeof buffer, &read, nullptr) != FALSE, L"A file cannot be read");
    }
    return bytes;
  }

 private:
  HANDLE handle_;
};

}  // namespace

std::string to_utf8(std::wstring_view text) { return encoded(text, CP_UTF8); }

std::string to_system_page(std::wstring_view text) { return encoded(text, CP_ACP); }

std::wstring from_utf8(std::string_view bytes) {
  if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
  if (bytes.empty()) return {};
  const int length = static_cast<int>(bytes.size());
  const int size = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, bytes.data(), length, nullptr, 0);
  expect(size > 0, L"A text is not UTF-8");
  std::wstring text(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, bytes.data(), length, text.data(), size);
  return text;
}

std::string file_bytes(const std::wstring& path) { return File(path).rest(); }

void write_file(const std::wstring& path, std::string_view bytes) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                                  nullptr);
  expect(file != INVALID_HANDLE_VALUE, L"The file cannot be written: " + path);
  DWORD written = 0;
  const bool whole = WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != FALSE;
  const bool closed = CloseHandle(file) != FALSE;
  expect(whole && closed && written == bytes.size(), L"The file was not written whole: " + path);
}

void remove_file(const std::wstring& path) {
  const bool gone = DeleteFileW(path.c_str()) || GetLastError() == ERROR_FILE_NOT_FOUND;
  expect(gone, L"The file of an earlier run cannot be removed: " + path);
}

std::vector<std::wstring> split(std::wstring_view text, std::wstring_view separator) {
  std::vector<std::wstring> parts;
  for (;;) {
    const auto end = text.find(separator);
    parts.emplace_back(text.substr(0, end));
    if (end == std::wstring_view::npos) return parts;
    text.remove_prefix(end + separator.size());
  }
}

std::wstring_view trimmed(std::wstring_view text) {
  constexpr std::wstring_view kBlanks = L" \t\r\n";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::wstring_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::wstring padded(std::wstring text, std::size_t width) {
  if (text.size() < width) text.append(width - text.size(), L' ');
  return text;
}

}  // namespace gestion
