#include "script/command_splitter.h"

namespace qvr {
namespace {

constexpr TextView kSeparator = u"\r\nGO\r\n";
constexpr std::size_t kPastGo = 4;  // CR LF G O; the line end is skipped with the blank lines

bool separator_at(const char16_t* p) {
  return p[0] == u'\r' && p[1] == u'\n' && (p[2] | 0x20) == u'g' && (p[3] | 0x20) == u'o' && p[4] == u'\r' &&
         p[5] == u'\n';
}

// Boyer-Moore-Horspool: how far the window can move when this is its last unit. Most text has none of the separator's
// units, so that most of it is skipped.
std::size_t stride(char16_t last) {
  switch (last) {
    case u'\n': return 4;
    case u'\r': return 1;
    case u'g':
    case u'G': return 3;
    case u'o':
    case u'O': return 2;
    default: return kSeparator.size();
  }
}

}  // namespace

std::size_t find_separator(TextView text, std::size_t from) {
  const std::size_t length = kSeparator.size();
  for (std::size_t end = from + length; end <= text.size(); end += stride(text[end - 1])) {
    if (separator_at(text.data() + end - length)) return end - length;
  }
  return TextView::npos;
}

std::int32_t count_separators(TextView text) {
  std::int32_t count = 0;
  for (auto at = find_separator(text, 0); at != TextView::npos; at = find_separator(text, at + 1)) ++count;
  return count;
}

std::optional<TextView> CommandSplitter::next() {
  const std::size_t at = find_separator(text_, start_);
  if (at == TextView::npos) return std::nullopt;
  const TextView command = text_.substr(start_, at - start_);
  start_ = at + kPastGo;
  while (text_.substr(start_).starts_with(kLineBreak)) start_ += kLineBreak.size();
  return command;
}

}  // namespace qvr
