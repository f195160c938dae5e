#include "automation/debug_output.h"

#include <windows.h>

#include <algorithm>
#include <iterator>
#include <string_view>

#include "support/fixed_lines.h"
#include "support/traced.h"
#include "support/traced_source.h"

namespace qvr::tests {
namespace {

constexpr std::wstring_view kPrefix = L"QVRlib21: ";

// The place in the source at the end of a traced line: " (folder/file.cpp:12)".
std::size_t place_in(std::wstring_view line) {
  if (!line.ends_with(L")\r\n")) return line.npos;
  const std::size_t at = line.rfind(L" (");
  return line.find(L".cpp:", at) != line.npos || line.find(L".h:", at) != line.npos ? at : line.npos;
}

FixedLines<wchar_t> lines;

LONG CALLBACK on_exception(EXCEPTION_POINTERS* pointers) {
  constexpr DWORD kPrinted = 0x40010006, kPrintedWide = 0x4001000A;  // the second on newer systems only
  const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
  if (record.ExceptionCode != kPrinted && record.ExceptionCode != kPrintedWide) return EXCEPTION_CONTINUE_SEARCH;
  wchar_t buffer[1500];
  const auto* text = reinterpret_cast<const wchar_t*>(record.ExceptionInformation[1]);
  if (record.ExceptionCode == kPrinted) {
    const auto* bytes = reinterpret_cast<const char*>(record.ExceptionInformation[1]);
    if (MultiByteToWideChar(CP_ACP, 0, bytes, -1, buffer, static_cast<int>(std::size(buffer))) == 0) {
      return EXCEPTION_CONTINUE_SEARCH;
    }
    text = buffer;
  }
  if (std::wstring_view(text).starts_with(kPrefix)) lines.add(text);
  return EXCEPTION_CONTINUE_EXECUTION;
}

PVOID handler = nullptr;

bool is_traced(std::wstring_view line) { return place_in(line) != line.npos; }

}  // namespace

void listen_to_traces(bool on) {
  if (on) {
    box_lines();
    handler = AddVectoredExceptionHandler(1, on_exception);
  } else {
    RemoveVectoredExceptionHandler(handler);
  }
}

std::vector<std::wstring> box_lines() {
  return lines.take([](std::wstring_view line) { return !is_traced(line); });
}

Traces traced() {
  Traces taken;
  for (const std::wstring& line : lines.take(is_traced)) {
    // "and more" has neither prefix nor place.
    const std::size_t start = is_traced(line) ? kPrefix.size() : 0, end = std::min(line.size(), place_in(line));
    taken.emplace_back(line.begin() + static_cast<std::ptrdiff_t>(start),
                       line.begin() + static_cast<std::ptrdiff_t>(end));
  }
  return taken;
}

}  // namespace qvr::tests
