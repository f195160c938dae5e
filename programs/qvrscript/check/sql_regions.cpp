#include "qvrscript/check/sql_regions.h"

#include <algorithm>

#include "qvrscript/check/sql_words.h"
#include "qvrscript/engines.h"

namespace qvr::script_tool {
namespace {

std::size_t end_of_line(TextView text, std::size_t from) { return std::min(text.find(kLineBreak, from), text.size()); }

class Scanner {
 public:
  Scanner(TextView text, Engine engine)
      : text_(text),
        comments_(engine != Engine::Jet),
        nested_(engine != Engine::Jet && engine != Engine::Oracle),
        brackets_(engine != Engine::Oracle),
        q_strings_(engine == Engine::Oracle) {}

  std::vector<Region> scan() {
    std::vector<Region> found;
    for (std::size_t at = 0; at < text_.size();) {
      const Region region = region_from(at);
      if (region.end > at) found.push_back(region);
      at = std::max(region.end, at + 1);
    }
    return found;
  }

 private:
  // An empty region where none begins.
  Region region_from(std::size_t at) {
    const TextView rest = text_.substr(at);
    if (comments_ && rest.starts_with(u"--")) return {RegionKind::LineComment, at, end_of_line(text_, at), true};
    if (comments_ && rest.starts_with(u"/*")) return block_comment(at);
    if (q_strings_ && begins_q_string(at)) return q_string(at);
    switch (text_[at]) {
      case u'\'': return quoted(RegionKind::String, at, u'\'');
      case u'"': return quoted(RegionKind::QuotedName, at, u'"');
      case u'[': return bracketed(at);
      default: return {RegionKind::QuotedName, at, at, true};
    }
  }

  Region block_comment(std::size_t begin) const {
    std::size_t depth = 1;
    for (std::size_t at = begin + 2; at + 1 < text_.size();) {
      const TextView two = text_.substr(at, 2);
      if (two == u"*/" && --depth == 0) return {RegionKind::BlockComment, begin, at + 2, true};
      const bool opens = two == u"/*" && nested_;
      if (opens) ++depth;
      at += opens || two == u"*/" ? 2 : 1;
    }
    return {RegionKind::BlockComment, begin, text_.size(), false};
  }

  bool begins_q_string(std::size_t at) const {
    return at + 2 < text_.size() && fold(text_[at]) == u'Q' && text_[at + 1] == u'\'' &&
           !(at > 0 && in_word(text_[at - 1]));
  }

  // q'[it's]': the character behind the first quote, or its closing bracket, and a quote end the string.
  Region q_string(std::size_t begin) const {
    constexpr TextView kOpening = u"[({<", kClosing = u"])}>";
    const char16_t opening = text_[begin + 2];
    const std::size_t pair = kOpening.find(opening);
    const char16_t last[] = {pair == TextView::npos ? opening : kClosing[pair], u'\''};
    const std::size_t end = text_.find(last, begin + 3, std::size(last));
    const bool closed = end != TextView::npos;
    return {RegionKind::String, begin, closed ? end + std::size(last) : text_.size(), closed};
  }

  // A doubled delimiter is an escaped one.
  Region quoted(RegionKind kind, std::size_t begin, char16_t mark) const {
    for (std::size_t at = text_.find(mark, begin + 1); at != TextView::npos; at = text_.find(mark, at + 2)) {
      if (at + 1 == text_.size() || text_[at + 1] != mark) return {kind, begin, at + 1, true};
    }
    return {kind, begin, text_.size(), false};
  }

  // Names do not span lines: a bracket that is not closed on its line is no delimiter. Then no other behind it on this
  // line is either, which is kept: a line of brackets is looked through once.
  Region bracketed(std::size_t begin) {
    const Region none{RegionKind::QuotedName, begin, begin, true};
    if (!brackets_ || begin < unclosed_until_) return none;
    std::size_t at = begin + 1;
    for (; at < text_.size() && !text_.substr(at).starts_with(kLineBreak); ++at) {
      if (text_[at] != u']') continue;
      if (at + 1 == text_.size() || text_[at + 1] != u']') return {RegionKind::QuotedName, begin, at + 1, true};
      ++at;
    }
    unclosed_until_ = at;
    return none;
  }

  TextView text_;
  bool comments_, nested_, brackets_, q_strings_;
  std::size_t unclosed_until_ = 0;  // no bracket before this position is closed
};

}  // namespace

std::vector<Region> regions_of(TextView text, Engine engine) { return Scanner(text, engine).scan(); }

const Region* region_at(const std::vector<Region>& regions, std::size_t position) {
  const auto behind = std::ranges::upper_bound(regions, position, {}, &Region::begin);
  if (behind == regions.begin()) return nullptr;
  const Region& region = *std::prev(behind);
  return position < region.end ? &region : nullptr;
}

}  // namespace qvr::script_tool
