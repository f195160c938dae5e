// What the user types, pipes in and sets in the environment.
#include <windows.h>

#include <array>
#include <string>

#include "base/utf8.h"
#include "qvrscript/command_line/usage_failure.h"
#include "qvrscript/connection/input_line.h"
#include "qvrscript/output/console.h"
#include "qvrscript/system.h"

namespace qvr::script_tool {
namespace {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

const wchar_t* wide(const Text& text) { return reinterpret_cast<const wchar_t*>(text.c_str()); }
wchar_t* wide(Text& text) { return reinterpret_cast<wchar_t*>(text.data()); }

class ConsoleFile {
 public:
  explicit ConsoleFile(const wchar_t* name)
      : file_(CreateFileW(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                          OPEN_EXISTING, 0, nullptr)) {}
  ~ConsoleFile() {
    if (file_ != INVALID_HANDLE_VALUE) CloseHandle(file_);
  }
  ConsoleFile(const ConsoleFile&) = delete;
  ConsoleFile& operator=(const ConsoleFile&) = delete;
  explicit operator bool() const { return file_ != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return file_; }

  void write(TextView text) const {
    DWORD written = 0;
    WriteConsoleW(file_, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
  }

 private:
  HANDLE file_;
};

// Without echo while it lives. Ctrl+C ends the program at once; the handler brings the echo back before that, as the
// console outlives the program.
class EchoOff {
 public:
  explicit EchoOff(HANDLE input) : known_(GetConsoleMode(input, &former_) != 0) {
    if (!known_) return;
    input_ = input;
    SetConsoleCtrlHandler(restore, TRUE);
    const DWORD silent = (former_ | ENABLE_LINE_INPUT | ENABLE_PROCESSED_INPUT) & ~DWORD{ENABLE_ECHO_INPUT};
    known_ = SetConsoleMode(input, silent) != 0;
  }
  ~EchoOff() {
    if (input_ == nullptr) return;
    SetConsoleMode(input_, former_);
    SetConsoleCtrlHandler(restore, FALSE);
    input_ = nullptr;
  }
  EchoOff(const EchoOff&) = delete;
  EchoOff& operator=(const EchoOff&) = delete;
  explicit operator bool() const { return known_; }

 private:
  static BOOL WINAPI restore(DWORD) {
    SetConsoleMode(input_, former_);
    return FALSE;  // the next handler ends the program
  }

  static inline HANDLE input_ = nullptr;
  static inline DWORD former_ = 0;
  bool known_;
};

std::size_t read_some(HANDLE file, std::span<char> buffer) {
  DWORD count = 0;
  if (!ReadFile(file, buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr)) return 0;
  return count;
}

// Strict: what is not of the code page is no text.
std::optional<Text> from_page(unsigned page, const std::string& bytes) {
  const int size = static_cast<int>(bytes.size());
  const int units = MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes.data(), size, nullptr, 0);
  if (units <= 0) return std::nullopt;
  Text text(static_cast<std::size_t>(units), u'\0');
  MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes.data(), size, wide(text), units);
  return text;
}

}  // namespace

std::optional<Text> environment_variable(TextView name) {
  const Text asked(name);
  SetLastError(ERROR_SUCCESS);
  const DWORD size = GetEnvironmentVariableW(wide(asked), nullptr, 0);
  if (size == 0) return GetLastError() == ERROR_SUCCESS ? std::optional(Text()) : std::nullopt;
  Text value(size, u'\0');
  value.resize(GetEnvironmentVariableW(wide(asked), wide(value), size));
  return value;
}

std::optional<Text> ask_secret(TextView prompt) {
  const ConsoleFile input(L"CONIN$"), output(L"CONOUT$");
  if (!input || !output) return std::nullopt;
  const EchoOff silence(input.get());
  if (!silence) return std::nullopt;
  output.write(printable(prompt));
  Text line(kLongestInputLine / sizeof(char16_t), u'\0');
  DWORD count = 0;
  const bool read = ReadConsoleW(input.get(), line.data(), static_cast<DWORD>(line.size()), &count, nullptr) != 0;
  output.write(kLineBreak);
  const TextView typed = TextView(line).substr(0, count);
  std::optional<Text> answer;
  if (read && count > 0) answer = Text(typed.substr(0, typed.find_first_of(kLineBreak)));
  wipe(line);
  return answer;
}

std::optional<Text> standard_input_line() {
  const HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
  DWORD mode = 0;
  if (input == nullptr || input == INVALID_HANDLE_VALUE || GetConsoleMode(input, &mode)) return std::nullopt;
  auto line = first_line([&](std::span<char> buffer) { return read_some(input, buffer); });
  if (!line) return std::nullopt;
  // UTF-8, as a shell or program of today writes; else what an older shell writes into a pipe.
  if (auto text = from_utf8(*line)) {
    wipe_memory(line->data(), line->size());
    return text;
  }
  const unsigned page = GetConsoleCP() != 0 ? GetConsoleCP() : unsigned{CP_ACP};
  if (auto text = from_page(page, *line)) {
    wipe_memory(line->data(), line->size());
    return text;
  }
  return text_of_line(std::move(*line));
}

}  // namespace qvr::script_tool
