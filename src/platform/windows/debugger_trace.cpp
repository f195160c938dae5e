#include "platform/windows/debugger_trace.h"

#include <algorithm>
#include <array>

#include "platform/windows/floating_point.h"
#include "platform/windows/wide_text.h"

namespace qvr::windows {

// On the stack, as the failure may be out of memory.
void trace_to_debugger(TextView line) noexcept {
  constexpr std::wstring_view kBefore = L": ", kBehind = L"\r\n";
  const std::wstring_view name = kLibraryName;
  std::array<wchar_t, 700> text;
  const std::size_t room = text.size() - name.size() - kBefore.size() - kBehind.size() - 1;
  auto end = std::ranges::copy(name, text.begin()).out;
  end = std::ranges::copy(kBefore, end).out;
  end = std::ranges::copy(line.substr(0, room), end).out;
  end = std::ranges::copy(kBehind, end).out;
  *end = L'\0';
  const HostFloatingPoint host;  // exception handlers of the host see the output
  OutputDebugStringW(text.data());
}

}  // namespace qvr::windows
