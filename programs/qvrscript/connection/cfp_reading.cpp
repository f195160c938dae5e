#include "qvrscript/connection/cfp_reading.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>

#include "base/failure.h"
#include "base/secret_text.h"
#include "connection/cfp_file.h"
#include "qvrscript/paths.h"
#include "session/thread_state.h"

namespace qvr::script_tool {
namespace {

constexpr std::size_t kLongestLine = std::size_t{16} << 20;  // as the library's limit

struct LineName {
  TextView title;
  std::string_view name;
};

constexpr std::array<LineName, kCfpLines> kLines{{
    {u"engine", "engine"},
    {u"provider", "provider"},
    {u"data source", "dataSource"},
    {u"catalogue or tablespace", "catalog"},
    {u"administrator", "adminUser"},
    {u"administrator's password", "adminPassword"},
    {u"client", "clientUser"},
    {u"client's password", "clientPassword"},
    {u"other parameters", "other"},
    {u"check line", "check"},
}};

struct RawLines {
  std::vector<std::string> lines;
  bool more = false;
};

// Up to ten; a tenth without an end counts.
RawLines raw_lines(InputFile& file) {
  RawLines raw;
  std::string line;
  std::array<char, 8192> buffer;
  bool begun = false;
  for (std::size_t count = file.read(buffer); count > 0; count = file.read(buffer)) {
    for (std::string_view left(buffer.data(), count); !left.empty();) {
      if (raw.lines.size() == kCfpLines) {
        raw.more = true;
        return raw;
      }
      const std::size_t end = left.find('\n');
      line.append(left.substr(0, end));
      if (line.size() > kLongestLine) throw RuntimeFailure(failure_number::kFile);
      begun = end == std::string_view::npos;
      if (!begun) raw.lines.push_back(std::exchange(line, {}));
      left.remove_prefix(std::min(end == std::string_view::npos ? left.size() : end + 1, left.size()));
    }
  }
  if (begun) raw.lines.push_back(std::move(line));
  for (std::string& each : raw.lines) {
    if (each.ends_with('\r')) each.pop_back();
  }
  return raw;
}

std::optional<SecretText> decrypted(const std::string& line, TextView key) {
  return or_default({}, std::optional<SecretText>(), [&] {
    ThreadState& state = thread_state();
    return std::optional(
        SecretText(state.text_protection().Descifrar(key, state.platform().files.from_system_page(line))));
  });
}

// What a protection without integrity gives for another key is no sign that the line is whole.
bool tells_keys_apart(const std::string& line, TextView key) { return !decrypted(line, join({key, u"?"})).has_value(); }

bool check_line_matches(const std::vector<std::optional<SecretText>>& texts, const std::string& stored, TextView key) {
  return or_default({}, false, [&] {
    std::size_t size = 0;
    for (std::size_t i = 0; i + 1 < kCfpLines; ++i) size += TextView(*texts[i]).size();
    Text joined;
    joined.reserve(size);  // growing would leave copies of passwords
    for (std::size_t i = 0; i + 1 < kCfpLines; ++i) joined += TextView(*texts[i]);
    const SecretText all(std::move(joined));
    ThreadState& state = thread_state();
    return equal_no_case(state.platform().files.from_system_page(stored), state.text_protection().Cifrar(key, all));
  });
}

CfpState state_of(const std::vector<std::string>& lines, TextView key, std::vector<std::size_t>& damaged) {
  if (lines.size() < kCfpLines) return CfpState::FewLines;
  std::vector<std::optional<SecretText>> texts;
  for (const std::string& line : lines) {
    if (!texts.emplace_back(decrypted(line, key))) damaged.push_back(texts.size());
  }
  if (damaged.size() == kCfpLines) {
    damaged.clear();
    return CfpState::OtherIdentification;
  }
  if (!damaged.empty()) return CfpState::Damaged;
  if (!tells_keys_apart(lines.front(), key)) return CfpState::OtherIdentification;
  return check_line_matches(texts, lines.back(), key) ? CfpState::NoEngine : CfpState::Mixed;
}

CfpState state_of_missing(const CfpChoice& cfp) {
  const auto names = names_in(cfp.folder);
  if (!names) return CfpState::NoFolder;
  const bool there = std::ranges::find(*names, join({cfp.name, u".cfp"})) != names->end();
  return there ? CfpState::Unreadable : CfpState::NoFile;
}

std::optional<RawLines> raw_lines(const CfpChoice& cfp) {
  return or_default({}, std::optional<RawLines>(), [&] {
    const auto file = thread_state().platform().files.open(cfp_path(cfp.folder, cfp.name));
    return std::optional(raw_lines(*file));
  });
}

void take(const QVRcfp& cfp, ConnectionParameters& into) {
  into.MotorBD = cfp.MotorBD();
  into.Archivo = cfp.Archivo();
  into.Provider = cfp.Provider();
  into.DataSource = cfp.DataSource();
  into.InitialCatalogOTablespace = cfp.InitialCatalogOTablespace();
  into.UsuarioAdm = cfp.UsuarioAdm();
  into.ClaveAdm = cfp.ClaveAdm({});
  into.UsuarioCli = cfp.UsuarioCli();
  into.ClaveCli = cfp.ClaveCli({});
  into.OtrosParametros = cfp.OtrosParametros();
}

bool ends_in_cfp(TextView name) {
  constexpr TextView kEnd = u".cfp";
  return name.size() > kEnd.size() && equal_no_case(name.substr(name.size() - kEnd.size()), kEnd);
}

Text count_of_lines(const CfpReading& reading) {
  return reading.lines == 1 ? Text(u"one line") : join({decimal(static_cast<std::int64_t>(reading.lines)), u" lines"});
}

}  // namespace

CfpReading read_connection_file(const CfpChoice& cfp, TextView identification) {
  CfpReading reading;
  const auto raw = raw_lines(cfp);
  if (!raw) {
    reading.state = state_of_missing(cfp);
    return reading;
  }
  reading.lines = raw->lines.size();
  reading.more_lines = raw->more;
  QVRcfp library;
  if (library.Crear(identification, cfp.folder, cfp.name)) {
    take(library, reading.parameters);
    reading.state = CfpState::Fine;
  } else {
    reading.state = state_of(raw->lines, identification, reading.damaged);
  }
  return reading;
}

std::vector<Text> explanation(const CfpReading& reading, const CfpChoice& cfp) {
  const Text path = shown_path(cfp);
  switch (reading.state) {
    case CfpState::Fine: return {};
    case CfpState::NoFolder: return {join({cfp.folder, u": no folder, or one that cannot be read"})};
    case CfpState::NoFile:
      if (ends_in_cfp(cfp.name)) {
        return {join({path, u": no such file; the name is given without .cfp"})};
      }
      return {join({path, u": no such file"})};
    case CfpState::Unreadable: return {join({path, u": cannot be read"})};
    case CfpState::FewLines:
      return {join({path, u": ", reading.lines == 0 ? Text(u"empty") : count_of_lines(reading),
                    u"; a connection file has ten lines"})};
    case CfpState::OtherIdentification:
      return {join({path, u": another identification, or no connection file: no line can be read with this one"})};
    case CfpState::Damaged: {
      std::vector<Text> lines;
      for (const std::size_t number : reading.damaged) {
        lines.push_back(join({path, u": line ", decimal(static_cast<std::int64_t>(number)), u" is damaged (",
                              title_of_cfp_line(number), u")"}));
      }
      return lines;
    }
    case CfpState::Mixed:
      return {join({path,
                    u": the lines do not belong together: each can be read with this identification, but they were "
                    u"exchanged, or come from different files"})};
    case CfpState::NoEngine: return {join({path, u": line 1 (engine) is no number"})};
  }
  return {};
}

TextView title_of_cfp_line(std::size_t number) { return kLines[number - 1].title; }
std::string_view name_of_cfp_line(std::size_t number) { return kLines[number - 1].name; }

std::string_view name_of(CfpState state) {
  switch (state) {
    case CfpState::Fine: return "fine";
    case CfpState::NoFolder: return "no-folder";
    case CfpState::NoFile: return "no-file";
    case CfpState::Unreadable: return "unreadable";
    case CfpState::FewLines: return "few-lines";
    case CfpState::OtherIdentification: return "other-identification";
    case CfpState::Damaged: return "damaged";
    case CfpState::Mixed: return "mixed";
    case CfpState::NoEngine: return "no-engine";
  }
  return {};
}

Text shown_path(const CfpChoice& cfp) {
  const bool backslashes = cfp.folder.find(u'\\') != Text::npos || cfp.folder.ends_with(u':');
  const TextView folder = without_last_separator(cfp.folder);
  const bool separated = folder.ends_with(u'/') || folder.ends_with(u'\\');
  return join({folder, separated ? u"" : backslashes ? u"\\" : u"/", cfp.name, u".cfp"});
}

}  // namespace qvr::script_tool
