#include "console.h"

#include <windows.h>

#include "text.h"

namespace gestion {
namespace {

HANDLE output() { return GetStdHandle(STD_OUTPUT_HANDLE); }

bool is_terminal(HANDLE handle) {
  DWORD mode = 0;
  return GetConsoleMode(handle, &mode) != FALSE;
}

void write_to(HANDLE handle, std::wstring_view text) {
  DWORD written = 0;
  if (is_terminal(handle)) {
    WriteConsoleW(handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    return;
  }
  const std::string bytes = to_utf8(text);
  WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

}  // namespace

void say(std::wstring_view line) { write_to(output(), std::wstring(line) + L"\r\n"); }

void heading(std::wstring_view title) {
  static int step = 0;
  const std::wstring line = std::to_wstring(++step) + L". " + std::wstring(title);
  say();
  say(line);
  say(std::wstring(line.size(), L'-'));
}

void item(std::wstring_view label, std::wstring_view value) {
  say(L"   " + padded(std::wstring(label), 28) + std::wstring(value));
}

void complain(std::string_view utf8) {
  write_to(GetStdHandle(STD_ERROR_HANDLE), L"gestion: " + from_utf8(utf8) + L"\r\n");
}

void ProgressLine::show(const std::wstring& text, int done, bool last) {
  if (!is_terminal(output())) {
    if (last || done % every_ == 0) say(L"   " + text);
    return;
  }
  write_to(output(), L"\r   " + padded(text, width_));
  width_ = text.size();
}

void ProgressLine::finish() {
  if (width_ != 0) say();
  width_ = 0;
}

}  // namespace gestion
