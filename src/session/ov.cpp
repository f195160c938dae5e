#include "session/ov.h"

#include "base/date_text.h"
#include "base/failure.h"
#include "base/number_text.h"
#include "session/version.h"

namespace qvr {

namespace {

TextView folder_of(TextView file) {
  const std::size_t separator = file.find_last_of(u"\\/");
  return separator == TextView::npos ? TextView() : file.substr(0, separator);
}

}  // namespace

VersionNumbers own_version() { return {QVR_VERSION_MAJOR, QVR_VERSION_MINOR, QVR_VERSION_REVISION}; }

std::int32_t Ov::Version(VersionNumbers numbers) noexcept {
  return or_default(kClass, 0, [&] {
    const Text digits = join({decimal(numbers.major), padded(numbers.minor, 2), padded(numbers.revision, 2)});
    return static_cast<std::int32_t>(number_prefix(digits));
  });
}

Text Ov::CadenaVersion(VersionNumbers numbers) noexcept {
  return or_default(kClass, Text(), [&] {
    return join({decimal(numbers.major), u".", padded(numbers.minor, 2), u".", padded(numbers.revision, 2)});
  });
}

Text Ov::Path(TextView library_file) noexcept {
  return or_default(kClass, Text(), [&] { return Text(folder_of(library_file)); });
}

Text Ov::PathCompleto(TextView library_file) noexcept {
  return or_default(kClass, Text(), [&] {
    const TextView name = library_file.substr(library_file.find_last_of(u"\\/") + 1);
    return join({folder_of(library_file), u"\\", name.substr(0, name.rfind(u'.')), u".dll"});
  });
}

}  // namespace qvr
