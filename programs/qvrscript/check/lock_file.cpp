#include "qvrscript/check/lock_file.h"

#include <algorithm>
#include <filesystem>
#include <type_traits>

#include "base/failure.h"
#include "base/utf8.h"
#include "qvrscript/check/digest.h"
#include "qvrscript/output/console.h"
#include "qvrscript/paths.h"
#include "services/builtin_script_reader.h"
#include "services/script_text.h"
#include "session/thread_state.h"

namespace qvr::script_tool {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kFormat = "qvrscript lock 1";
constexpr std::string_view kDigits = "0123456789abcdef";
constexpr std::string_view kBetween = "  ";

Files& files() { return thread_state().platform().files; }

fs::path native(TextView path) {
  if constexpr (std::is_same_v<fs::path::value_type, char>) {
    return to_utf8(replace_all(Text(path), u"\\", u"/"));
  } else {
    return std::wstring(path.begin(), path.end());
  }
}

// Nothing where the system's name is no Unicode.
std::optional<Text> text_of(const fs::path& path) {
  const auto decoded = [](const auto& name) -> std::optional<Text> {
    if constexpr (sizeof name[0] == 1) {
      return from_utf8(name);
    } else {
      return Text(name.begin(), name.end());
    }
  };
  return decoded(path.generic_string<fs::path::value_type>());
}

fs::path whole(TextView path) { return fs::absolute(native(path)).lexically_normal(); }

// With its last separator; empty where there is none.
TextView folder_of(TextView path) { return path.substr(0, path.size() - file_name(path).size()); }

// Whether a line of UTF-8 can hold it, and an editor shows it.
bool fits_line(TextView name) { return printable(name) == name; }

std::optional<std::uint8_t> byte_of(std::string_view two) {
  const std::size_t high = kDigits.find(two[0]), low = kDigits.find(two[1]);
  if (high == std::string_view::npos || low == std::string_view::npos) return std::nullopt;
  return static_cast<std::uint8_t>(high << 4 | low);
}

bool is_there(TextView path) {
  std::error_code ignored;
  return fs::symlink_status(native(path), ignored).type() != fs::file_type::not_found;
}

}  // namespace

LockFile::LockFile(TextView path, bool may_be_new) : path_(path) {
  if (may_be_new && !is_there(path)) return;
  std::string bytes;
  try {
    bytes = services::script_bytes(files(), path);
  } catch (const RuntimeFailure&) {
    throw LockFailure({path, u" cannot be read"});
  }
  read(bytes);
}

void LockFile::refuse(std::size_t line) const {
  throw LockFailure({path_, u":", decimal(static_cast<std::int64_t>(line)),
                     u" is no line of a lock file, which is left as it is: restore it from version control"});
}

void LockFile::read(std::string_view bytes) {
  for (std::size_t number = 1; !bytes.empty() || number == 1; ++number) {
    const std::size_t end = bytes.find('\n');
    if (end == std::string_view::npos) refuse(number);
    std::string_view line = bytes.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    bytes.remove_prefix(end + 1);
    if (number > 1) {
      read_line(line, number);
    } else if (line != kFormat) {
      refuse(number);
    }
  }
}

void LockFile::read_line(std::string_view line, std::size_t number) {
  Entry entry{};
  const std::size_t digits = entry.digest.size() * 2;
  if (line.size() <= digits + kBetween.size() || line.substr(digits, kBetween.size()) != kBetween) refuse(number);
  for (std::size_t i = 0; i < entry.digest.size(); ++i) {
    const auto byte = byte_of(line.substr(i * 2, 2));
    if (!byte) refuse(number);
    entry.digest[i] = *byte;
  }
  auto name = from_utf8(line.substr(digits + kBetween.size()));
  if (!name || !fits_line(*name) || !entries_.emplace(std::move(*name), entry).second) refuse(number);
}

std::optional<LockFile::Digest> LockFile::digest_of(std::string_view bytes) {
  try {
    return sha256(to_utf8(services::with_whole_line_breaks(services::decoded_script(bytes, files()))));
  } catch (const RuntimeFailure&) {
    return std::nullopt;
  }
}

Text LockFile::name_of(TextView script) const {
  try {
    const auto name = text_of(whole(script).lexically_relative(whole(path_).parent_path()));
    if (name && !name->empty() && fits_line(*name)) return *name;
  } catch (const fs::filesystem_error&) {
  }
  throw LockFailure({script, u" has no path from the folder of ", path_, u" that a lock file can hold"});
}

LockFile::State LockFile::compare(Entry& entry, std::string_view bytes) const {
  entry.seen = true;
  return digest_of(bytes) == entry.digest ? State::Same : State::Changed;
}

LockFile::State LockFile::compare(TextView script, std::string_view bytes) {
  Text name = name_of(script);
  if (const auto found = entries_.find(name); found != entries_.end()) return compare(found->second, bytes);
  const auto digest = digest_of(bytes);
  if (!digest) return State::NoText;
  entries_.emplace(std::move(name), Entry{*digest, true, true});
  return State::New;
}

std::vector<LockFile::Other> LockFile::compare_others() {
  std::vector<Other> others;
  for (auto& [name, entry] : entries_) {
    if (entry.seen) continue;
    const Text script = join({folder_of(path_), name});
    State state = State::Missing;
    try {
      state = compare(entry, services::script_bytes(files(), script));
    } catch (const RuntimeFailure&) {
    }
    others.push_back({script, state});
  }
  return others;
}

std::size_t LockFile::fresh() const {
  return static_cast<std::size_t>(std::ranges::count_if(entries_, [](const auto& each) { return each.second.fresh; }));
}

void LockFile::write() const {
  if (fresh() == 0) return;
  std::string bytes(kFormat);
  bytes.push_back('\n');
  for (const auto& [name, entry] : entries_) {
    for (const std::uint8_t byte : entry.digest) {
      bytes.push_back(kDigits[byte >> 4]);
      bytes.push_back(kDigits[byte & 15]);
    }
    bytes.append(kBetween).append(to_utf8(name)).push_back('\n');
  }
  try {
    const auto file = files().create(path_);
    file->write(bytes);
    file->close();
  } catch (const RuntimeFailure&) {
    throw LockFailure({path_, u" cannot be written"});
  }
}

}  // namespace qvr::script_tool
