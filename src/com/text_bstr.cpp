#include "com/text_bstr.h"

#include <algorithm>

namespace qvr::com {

Text text_from(BSTR string) { return Text(string, string + SysStringLen(string)); }

BSTR new_bstr(TextView text) noexcept {
  constexpr std::size_t kLongest = 0x3FFFFFFF;
  if (text.size() > kLongest) return nullptr;
  const BSTR string = SysAllocStringLen(nullptr, static_cast<UINT>(text.size()));
  if (string != nullptr) std::ranges::copy(text, string);
  return string;
}

void free_wiped(BSTR string) noexcept {
  if (string != nullptr) wipe_memory(string, SysStringByteLen(string));
  SysFreeString(string);
}

}  // namespace qvr::com
