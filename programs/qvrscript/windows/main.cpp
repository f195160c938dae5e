#include <io.h>
#include <objbase.h>
#include <stdio.h>
#include <windows.h>

#include <iostream>

#include "base/utf8.h"
#include "platform/windows/debugger_trace.h"
#include "qvrscript/program.h"
#include "qvrscript/run_ado.h"
#include "qvrscript/signals.h"
#include "qvrscript/system.h"
#include "session/thread_state.h"

namespace {

// ADO needs a single-threaded apartment; its objects must be released before CoUninitialize.
class Apartment {
 public:
  Apartment() : entered_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
  ~Apartment() {
    qvr::exchange_thread_state(nullptr);
    if (entered_) CoUninitialize();
  }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;

 private:
  bool entered_;
};

// Sets the console's code page to UTF-8 and restores it.
class Utf8Output {
 public:
  Utf8Output() : former_(GetConsoleOutputCP()) { SetConsoleOutputCP(CP_UTF8); }
  ~Utf8Output() { SetConsoleOutputCP(former_); }
  Utf8Output(const Utf8Output&) = delete;
  Utf8Output& operator=(const Utf8Output&) = delete;

 private:
  UINT former_;
};

// Turns the console's colours on where it has them.
bool has_colours(DWORD which) {
  const HANDLE console = GetStdHandle(which);
  DWORD mode = 0;
  if (!GetConsoleMode(console, &mode) || GetEnvironmentVariableW(L"NO_COLOR", nullptr, 0) > 1) return false;
  constexpr DWORD kObeysCodes = 0x0004;  // ENABLE_VIRTUAL_TERMINAL_PROCESSING
  return SetConsoleMode(console, mode | kObeysCodes) != 0;
}

}  // namespace

int wmain(int count, wchar_t** words) {
  using namespace qvr;
  set_trace_sink(windows::trace_to_debugger);
  script_tool::hear_interruptions();
  const Utf8Output output;
  const Apartment apartment;
  const script_tool::Streams streams{std::cout, std::cerr, _isatty(_fileno(stderr)) != 0,
                                     has_colours(STD_OUTPUT_HANDLE), has_colours(STD_ERROR_HANDLE)};
  std::vector<std::string> texts;
  for (int i = 1; i < count; ++i) {
    const std::wstring_view word = words[i];
    texts.push_back(to_utf8(Text(word.begin(), word.end())));
  }
  using namespace script_tool;
  const Surroundings surroundings{make_run_ado, open_database, environment_variable, ask_secret, standard_input_line};
  return run_program(texts, streams, surroundings);
}
