// Bytes of script files are decoded as the tables of Unicode say, or refused.
#include "services/script_text.h"

#include "base/failure.h"
#include "fuzz/fuzz_input.h"
#include "support/fake_files.h"

namespace qvr::tests {
namespace {

using services::ScriptEncoding;

struct Row {
  unsigned char first_from, first_to, second_from, second_to;
  std::size_t size;
};

// The well-formed sequences; third and fourth bytes are from 80 to BF.
constexpr Row kWellFormed[] = {{0x00, 0x7F, 0, 0, 1},       {0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3},
                               {0xE1, 0xEC, 0x80, 0xBF, 3}, {0xED, 0xED, 0x80, 0x9F, 3}, {0xEE, 0xEF, 0x80, 0xBF, 3},
                               {0xF0, 0xF0, 0x90, 0xBF, 4}, {0xF1, 0xF3, 0x80, 0xBF, 4}, {0xF4, 0xF4, 0x80, 0x8F, 4}};

unsigned byte_at(std::string_view bytes, std::size_t at) { return static_cast<unsigned char>(bytes[at]); }

// The sequence that the bytes begin with, or nothing.
const Row* well_formed(std::string_view bytes) {
  for (const Row& row : kWellFormed) {
    if (bytes.size() < row.size || byte_at(bytes, 0) < row.first_from || byte_at(bytes, 0) > row.first_to) continue;
    if (row.size > 1 && (byte_at(bytes, 1) < row.second_from || byte_at(bytes, 1) > row.second_to)) continue;
    bool all = true;
    for (std::size_t i = 2; i < row.size; ++i) all = all && (byte_at(bytes, i) & 0xC0) == 0x80;
    if (all) return &row;
  }
  return nullptr;
}

std::optional<Text> from_utf8_plainly(std::string_view bytes) {
  constexpr unsigned kFirstBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
  Text text;
  while (!bytes.empty()) {
    const Row* row = well_formed(bytes);
    if (row == nullptr) return std::nullopt;
    unsigned code = byte_at(bytes, 0) & kFirstBits[row->size];
    for (std::size_t i = 1; i < row->size; ++i) code = code * 64 + byte_at(bytes, i) % 64;
    if (code < 0x10000) {
      text += static_cast<char16_t>(code);
    } else {
      text += static_cast<char16_t>(0xD800 + (code - 0x10000) / 0x400);
      text += static_cast<char16_t>(0xDC00 + (code - 0x10000) % 0x400);
    }
    bytes.remove_prefix(row->size);
  }
  return text;
}

std::optional<Text> from_utf16_plainly(std::string_view bytes, std::size_t high) {
  if (bytes.size() % 2 != 0) return std::nullopt;
  Text text;
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    text += static_cast<char16_t>(byte_at(bytes, i + high) * 256 + byte_at(bytes, i + 1 - high));
  }
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool opens = text[i] >= 0xD800 && text[i] <= 0xDBFF, closes = text[i] >= 0xDC00 && text[i] <= 0xDFFF;
    if (closes) return std::nullopt;
    if (opens && (i + 1 == text.size() || text[i + 1] < 0xDC00 || text[i + 1] > 0xDFFF)) return std::nullopt;
    if (opens) ++i;
  }
  return text;
}

struct Decoded {
  ScriptEncoding encoding;
  std::optional<Text> text;
};

Decoded decode_plainly(std::string_view bytes, Files& files) {
  if (bytes.starts_with("\xEF\xBB\xBF")) return {ScriptEncoding::Utf8WithMark, from_utf8_plainly(bytes.substr(3))};
  if (bytes.starts_with("\xFF\xFE")) return {ScriptEncoding::Utf16LittleEndian, from_utf16_plainly(bytes.substr(2), 1)};
  if (bytes.starts_with("\xFE\xFF")) return {ScriptEncoding::Utf16BigEndian, from_utf16_plainly(bytes.substr(2), 0)};
  auto text = from_utf8_plainly(bytes);
  const ScriptEncoding encoding = text ? ScriptEncoding::Utf8 : ScriptEncoding::SystemPage;
  if (bytes.find('\0') != bytes.npos) return {encoding, std::nullopt};
  if (!text) text = files.from_system_page(bytes);
  return {encoding, text};
}

void check_line_ends(const Text& text) {
  const Text whole = services::with_whole_line_breaks(text);
  Text rest;
  for (std::size_t i = 0; i < whole.size(); ++i) {
    if (whole[i] == u'\r') {
      require(i + 1 < whole.size() && whole[i + 1] == u'\n', "no lone CR", {text, whole});
      ++i;
      rest += u'\n';
    } else {
      require(whole[i] != u'\n', "no lone LF", {text, whole});
      rest += whole[i];
    }
  }
  const Text lines = replace_all(replace_all(text, u"\r\n", u"\n"), u"\r", u"\n");
  require(rest == lines, "the lines are the same", {text, whole});
}

}  // namespace

void fuzz(FuzzInput& input) {
  FakeFiles files;
  files.single_byte_page = true;
  const std::string_view bytes = input.rest();
  const Decoded expected = decode_plainly(bytes, files);
  require(services::encoding_of(bytes) == expected.encoding, "the encoding is that of the tables");
  std::optional<Text> text;
  try {
    text = services::decoded_script(bytes, files);
  } catch (const RuntimeFailure& failure) {
    require(failure.detail().number == failure_number::kFile, "what is refused is failure 75");
  }
  require(text.has_value() == expected.text.has_value(), "refused is what the tables do not have");
  if (!text) return;
  require(*text == *expected.text, "the text is that of the tables", {*text, *expected.text});
  check_line_ends(*text);
}

}  // namespace qvr::tests
