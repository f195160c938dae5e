// The library's version and location.
#pragma once

#include <cstdint>

#include "base/text.h"

namespace qvr {

struct VersionNumbers {
  std::int32_t major, minor, revision;
};

// This build's version, the same as in the version resource.
VersionNumbers own_version();

class Ov {
 public:
  static constexpr TextView kClass = u"Ov";  // in reports and the trace

  // Major, two digits of minor and two of revision as one number: 2.10.24 is 21024. A revision of three digits makes it
  // longer.
  static std::int32_t Version(VersionNumbers numbers) noexcept;
  static Text CadenaVersion(VersionNumbers numbers) noexcept;  // "2.10.24"
  // Folder of the library file, without a trailing separator.
  static Text Path(TextView library_file) noexcept;
  // The library file's path with its extension replaced by ".dll".
  static Text PathCompleto(TextView library_file) noexcept;
};

}  // namespace qvr
