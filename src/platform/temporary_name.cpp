#include "platform/temporary_name.h"

namespace qvr {
namespace {

constexpr TextView kMark = u".qvr", kExtension = u".tmp", kDigits = u"0123456789ABCDEF";

}  // namespace

Text temporary_suffix(std::uint32_t number) {
  return join({kMark, hexadecimal(number, sizeof number * 2, kDigits), kExtension});
}

bool is_temporary_suffix(TextView text) {
  const std::size_t digits = sizeof(std::uint32_t) * 2;
  return text.size() == kMark.size() + digits + kExtension.size() && text.starts_with(kMark) &&
         text.ends_with(kExtension) && text.substr(kMark.size(), digits).find_first_not_of(kDigits) == TextView::npos;
}

}  // namespace qvr
