// The library's version and location.
#pragma once

#include <cstdint>

#include "base/text.h"

namespace qvr {

struct VersionNumbers {
  std::int32_t major, minor, revision;
};

// This build's numbers, the same that the version resource carries.
VersionNumbers own_version();

class Ov {
 public:
  // Major, two digits of minor and two of revision read as one number: 2.10.24 is 21024. A longer revision makes the
  // number longer.
  static std::int32_t Version(VersionNumbers numbers) noexcept;
  static Text CadenaVersion(VersionNumbers numbers) noexcept;  // "2.10.24"
  // Folder of the library file, without a separator at its end.
  static Text Path(TextView library_file) noexcept;
  // The library file's path with ".dll" as its extension, whatever the file is called.
  static Text PathCompleto(TextView library_file) noexcept;
};

}  // namespace qvr
