#include "qvrscript/check/rules.h"

namespace qvr::script_tool {
namespace {

constexpr TextView kTail =
    u": the library's own reader makes CR LF of them, also in strings; where a program hands the "
    u"text over itself, their GO lines separate nothing";

struct LineEnds {
  std::size_t whole = 0, feeds = 0, returns = 0;
  std::size_t first_lone = 0;  // the first line that does not end in CR LF
};

LineEnds line_ends_of(TextView text) {
  LineEnds ends;
  std::size_t line = 1;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != u'\r' && text[at] != u'\n') continue;
    if (text.substr(at).starts_with(kLineBreak)) {
      ++ends.whole;
      ++at;
    } else {
      ++(text[at] == u'\n' ? ends.feeds : ends.returns);
      if (ends.first_lone == 0) ends.first_lone = line;
    }
    ++line;
  }
  return ends;
}

Text number(std::size_t count) { return decimal(static_cast<std::int64_t>(count)); }

}  // namespace

void check_line_ends(const Script& script, Findings& findings) {
  const LineEnds ends = line_ends_of(script.stored_text());
  if (ends.first_lone == 0) return;
  if (ends.whole + ends.returns == 0) {
    findings.add(0, "lf-only", {u"the lines end in LF", kTail});
  } else if (ends.whole + ends.feeds == 0) {
    findings.add(0, "cr-only", {u"the lines end in CR", kTail});
  } else {
    findings.add(ends.first_lone, "mixed-line-ends",
                 {number(ends.feeds), u" lines end in LF, ", number(ends.returns), u" in CR, ", number(ends.whole),
                  u" in CR LF, this one being the first that is not CR LF", kTail});
  }
}

}  // namespace qvr::script_tool
