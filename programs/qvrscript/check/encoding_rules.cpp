#include <algorithm>
#include <string>

#include "base/utf8.h"
#include "qvrscript/check/rules.h"
#include "services/script_text.h"

namespace qvr::script_tool {
namespace {

using services::ScriptEncoding;

std::size_t line_of_byte(std::string_view bytes, std::size_t at) {
  std::size_t line = 1;
  for (std::size_t i = 0; i < at; ++i) line += bytes[i] == '\n' || (bytes[i] == '\r' && bytes[i + 1] != '\n');
  return line;
}

// A surrogate in UTF-8 is none: the reader does not take it.
bool is_utf8(std::string_view bytes) {
  for (std::size_t at = bytes.find('\xED'); at != std::string_view::npos; at = bytes.find('\xED', at + 1)) {
    if (at + 1 < bytes.size() && static_cast<unsigned char>(bytes[at + 1]) >= 0xA0) return false;
  }
  return from_utf8(bytes).has_value();
}

// The length of the longest valid UTF-8 prefix.
std::size_t first_foreign_byte(std::string_view bytes) {
  std::size_t line_begin = 0;
  for (;;) {
    const std::size_t line_end = std::min(bytes.find('\n', line_begin), bytes.size());
    if (!is_utf8(bytes.substr(line_begin, line_end - line_begin))) break;
    if (line_end == bytes.size()) return 0;
    line_begin = line_end + 1;
  }
  const auto ascii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
  for (std::size_t at = line_begin; at < bytes.size();) {
    std::size_t length = 1;
    while (length <= 4 && !is_utf8(bytes.substr(at, length))) ++length;
    if (!ascii(bytes[at]) && length > 4) return at;
    at += length;
  }
  return line_begin;
}

void check_marks(ScriptEncoding encoding, Findings& findings) {
  if (encoding == ScriptEncoding::Utf8WithMark) {
    findings.add(1, "byte-order-mark",
                 {u"the file begins with the byte-order mark of UTF-8: the library's own reader takes it off, another "
                  u"may leave it in front of the first command"});
  } else if (encoding == ScriptEncoding::Utf16LittleEndian || encoding == ScriptEncoding::Utf16BigEndian) {
    findings.add(1, "utf-16",
                 {u"the file is UTF-16: the library's own reader takes it, other tools and version control may not"});
  }
}

void check_system_page(const Script& script, Findings& findings) {
  const std::size_t at = first_foreign_byte(script.bytes());
  findings.add(line_of_byte(script.bytes(), at), "ansi-page",
               {u"byte 0x", hexadecimal(static_cast<unsigned char>(script.bytes()[at]), 2),
                u" is no UTF-8: the file is read by the ANSI page of whichever machine reads it"});
}

void check_marked(const Script& script, Findings& findings) {
  if (!script.readable()) {
    findings.add(0, "broken-encoding",
                 {u"the bytes are not what the byte-order mark says: the reader refuses the file"});
  } else if (const std::size_t zero = script.text().find(u'\0'); zero != TextView::npos) {
    findings.add(script.line_of(zero), "nul-byte", {u"a zero character, which may end the command for the database"});
  }
}

}  // namespace

void check_encoding(const Script& script, Findings& findings) {
  const std::string& bytes = script.bytes();
  const ScriptEncoding encoding = services::encoding_of(bytes);
  check_marks(encoding, findings);
  if (script.readable() && script.stored_text().empty()) {
    findings.add(0, "empty-file",
                 {u"the file is empty: loading a definition or update stops at it with no text at all"});
    return;
  }
  const bool marked = encoding != ScriptEncoding::Utf8 && encoding != ScriptEncoding::SystemPage;
  if (marked) {
    check_marked(script, findings);
  } else if (const std::size_t zero = bytes.find('\0'); zero != std::string::npos) {
    findings.add(line_of_byte(bytes, zero), "nul-byte",
                 {u"a zero byte: the reader refuses the file, and loading gives no text"});
  } else if (encoding == ScriptEncoding::SystemPage) {
    check_system_page(script, findings);
  }
}

}  // namespace qvr::script_tool
