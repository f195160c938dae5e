#include "console.h"

#include <windows.h>

#include <iterator>

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

bool ask(std::wstring_view question, std::wstring& line) {
  write_to(output(), question);
  const HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
  line.clear();
  if (is_terminal(input)) {
    wchar_t typed[1024];
    DWORD count = 0;
    if (!ReadConsoleW(input, typed, static_cast<DWORD>(std::size(typed)), &count, nullptr) || count == 0) return false;
    line.assign(typed, count);
  } else {
    std::string bytes;
    char byte = 0;
    DWORD count = 0;
    while (ReadFile(input, &byte, 1, &count, nullptr) && count == 1 && byte != '\n') bytes.push_back(byte);
    if (bytes.empty() && count == 0) return false;
    line = from_utf8(bytes);
  }
  while (!line.empty() && (line.back() == L'\r' || line.back() == L'\n')) line.pop_back();
  return true;
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
