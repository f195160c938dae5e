#include "script/command_splitter.h"

namespace qvr {
namespace {

constexpr TextView kSeparator = u"\r\nGO\r\n";
constexpr std::size_t kPastGo = 4;  // CR LF G O; the line end is skipped with the blank lines

}  // namespace

std::size_t find_separator(TextView text, std::size_t from) { return find_no_case(text, kSeparator, from); }

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
