#include "services/script_text.h"

#include "base/failure.h"
#include "base/utf8.h"

namespace qvr::services {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view kMark8 = "\xEF\xBB\xBF"sv, kMark16Little = "\xFF\xFE"sv, kMark16Big = "\xFE\xFF"sv;

[[noreturn]] void refuse() { throw RuntimeFailure(failure_number::kFile); }

bool has_lone_surrogate(TextView text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if ((text[i] & 0xF800) != 0xD800) continue;
    const bool pair = text[i] < 0xDC00 && i + 1 < text.size() && (text[i + 1] & 0xFC00) == 0xDC00;
    if (!pair) return true;
    ++i;
  }
  return false;
}

std::optional<Text> strict_utf8(std::string_view bytes) {
  auto text = from_utf8(bytes);
  return text && !has_lone_surrogate(*text) ? std::move(text) : std::nullopt;
}

Text utf16(std::string_view bytes, bool big_endian) {
  if (bytes.size() % 2 != 0) refuse();
  Text text(bytes.size() / 2, u'\0');
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto first = static_cast<unsigned char>(bytes[2 * i]), second = static_cast<unsigned char>(bytes[2 * i + 1]);
    text[i] = static_cast<char16_t>(big_endian ? first << 8 | second : second << 8 | first);
  }
  if (has_lone_surrogate(text)) refuse();
  return text;
}

Text without_mark(std::string_view bytes, Files& files) {
  if (bytes.find('\0') != std::string_view::npos) refuse();
  auto text = strict_utf8(bytes);
  return text ? std::move(*text) : files.from_system_page(bytes);
}

Text required(std::optional<Text> text) {
  if (!text) refuse();
  return std::move(*text);
}

bool lone_break_at(TextView text, std::size_t i) {
  if (text[i] == u'\n') return i == 0 || text[i - 1] != u'\r';
  return text[i] == u'\r' && (i + 1 == text.size() || text[i + 1] != u'\n');
}

}  // namespace

ScriptEncoding encoding_of(std::string_view bytes) {
  if (bytes.starts_with(kMark8)) return ScriptEncoding::Utf8WithMark;
  if (bytes.starts_with(kMark16Little)) return ScriptEncoding::Utf16LittleEndian;
  if (bytes.starts_with(kMark16Big)) return ScriptEncoding::Utf16BigEndian;
  return strict_utf8(bytes) ? ScriptEncoding::Utf8 : ScriptEncoding::SystemPage;
}

Text decoded_script(std::string_view bytes, Files& files) {
  if (bytes.starts_with(kMark8)) return required(strict_utf8(bytes.substr(kMark8.size())));
  if (bytes.starts_with(kMark16Little)) return utf16(bytes.substr(kMark16Little.size()), false);
  if (bytes.starts_with(kMark16Big)) return utf16(bytes.substr(kMark16Big.size()), true);
  return without_mark(bytes, files);
}

Text with_whole_line_breaks(Text text) {
  std::size_t lone = 0;
  for (std::size_t i = 0; i < text.size(); ++i) lone += lone_break_at(text, i);
  if (lone == 0) return text;
  Text whole;
  whole.reserve(text.size() + lone);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (lone_break_at(text, i)) {
      whole += kLineBreak;
    } else {
      whole.push_back(text[i]);
    }
  }
  return whole;
}

}  // namespace qvr::services
