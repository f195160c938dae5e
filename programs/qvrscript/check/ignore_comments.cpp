#include "qvrscript/check/ignore_comments.h"

#include <algorithm>

#include "base/utf8.h"
#include "qvrscript/check/rule.h"
#include "qvrscript/check/sql_words.h"

namespace qvr::script_tool {
namespace {

constexpr TextView kMark = u"qvrscript:", kVerb = u"ignore";
constexpr TextView kForm = u"write \"qvrscript: ignore RULE: REASON\"";
constexpr std::size_t kLongestShown = 64;

struct Comment {
  std::size_t begin, end;  // of what stands on one line behind the mark, and of the whole comment
  TextView text;           // behind the mark
};

void append_line(const Script& script, TextView line, std::size_t end, std::vector<Comment>& comments) {
  const TextView bare = trimmed(line, u" \t*");
  if (!starts_with_no_case(bare, kMark)) return;
  comments.push_back({static_cast<std::size_t>(bare.data() - script.text().data()), end,
                      trimmed(bare.substr(kMark.size()), kWhiteSpace)});
}

TextView inside(const Script& script, const Region& region) {
  const std::size_t mark = TextView(u"/*").size();
  const bool closing = region.kind == RegionKind::BlockComment && region.closed;
  const std::size_t begin = std::min(region.begin + mark, region.end);
  const std::size_t end = closing ? region.end - mark : region.end;
  return script.text().substr(begin, std::max(begin, end) - begin);
}

std::vector<Comment> comments_in(const Script& script) {
  std::vector<Comment> comments;
  for (const Region& region : script.regions()) {
    if (!is_comment(region)) continue;
    TextView rest = inside(script, region);
    for (std::size_t end = rest.find(kLineBreak); end != TextView::npos; end = rest.find(kLineBreak)) {
      append_line(script, rest.substr(0, end), region.end, comments);
      rest.remove_prefix(end + kLineBreak.size());
    }
    append_line(script, rest, region.end, comments);
  }
  return comments;
}

// The pieces of the script that are run or would be, in order.
class Pieces {
 public:
  explicit Pieces(const Script& script) : script_(script), pieces_(script.commands()) {
    pieces_.push_back(script.rest());
  }

  // The last line of the piece with the first code of this range; 0 where there is none.
  std::size_t last_line_of_code(std::size_t begin, std::size_t end) const {
    const auto behind = std::ranges::upper_bound(pieces_, begin, {}, &ScriptCommand::begin);
    auto piece = behind == pieces_.begin() ? behind : std::prev(behind);
    for (; piece != pieces_.end() && piece->begin < end; ++piece) {
      const std::size_t piece_end = piece->begin + piece->text.size();
      const std::size_t from = std::max(begin, piece->begin), to = std::min(end, piece_end);
      if (from < to && first_code(script_, from, to) != TextView::npos) return script_.line_of(piece_end);
    }
    return 0;
  }

 private:
  const Script& script_;
  std::vector<ScriptCommand> pieces_;
};

// Up to which line each comment holds. From the last one, so that nothing is looked through twice.
std::vector<std::size_t> last_lines(const Script& script, const std::vector<Comment>& comments) {
  const Pieces pieces(script);
  std::vector<std::size_t> lines(comments.size());
  std::size_t next_begin = script.text().size(), next_line = script.lines();
  for (std::size_t i = comments.size(); i-- > 0;) {
    const std::size_t line = pieces.last_line_of_code(comments[i].end, next_begin);
    lines[i] = next_line = line == 0 ? next_line : line;
    next_begin = comments[i].begin;
  }
  return lines;
}

struct Order {
  std::vector<std::string_view> rules;
  Text reason;
};

// Adds what is wrong with it; without rules then.
Order order_of(TextView text, std::size_t line, Findings& findings) {
  const TextView behind = starts_with_no_case(text, kVerb) ? text.substr(kVerb.size()) : TextView();
  if (behind.empty() || kWhiteSpace.find(behind.front()) == TextView::npos) {
    findings.add(line, "silence-form", {u"this comment to qvrscript silences nothing: ", kForm});
    return {};
  }
  const std::size_t colon = std::min(behind.find(u':'), behind.size());
  Order order;
  for (const TextView each : split(behind.substr(0, colon), u",")) {
    const TextView name = trimmed(each, kWhiteSpace);
    const Rule* rule = rule_named(to_utf8(name));
    if (rule == nullptr) {
      findings.add(line, "silence-unknown-rule",
                   {u"\"", name.substr(0, kLongestShown), u"\" is no rule, and this comment silences nothing: ",
                    kForm});
      return {};
    }
    order.rules.push_back(rule->name);
  }
  order.reason = abbreviate_for_display(trimmed(behind.substr(std::min(colon + 1, behind.size())), kWhiteSpace));
  if (order.reason.empty()) {
    findings.add(line, "silence-no-reason", {u"this comment gives no reason, and silences nothing: ", kForm});
    order.rules.clear();
  }
  return order;
}

}  // namespace

IgnoreComments::IgnoreComments(const Script& script, Findings& findings) {
  const std::vector<Comment> comments = comments_in(script);
  const std::vector<std::size_t> lines = last_lines(script, comments);
  for (std::size_t i = 0; i < comments.size(); ++i) {
    const std::size_t line = script.line_of(comments[i].begin);
    Order order = order_of(comments[i].text, line, findings);
    if (order.rules.empty()) continue;
    const Text& reason = reasons_.emplace_back(std::move(order.reason));
    for (const std::string_view rule : order.rules) ranges_[rule].push_back({line, lines[i], &reason});
  }
}

const Text* IgnoreComments::reason(std::size_t line, std::string_view rule) {
  const auto ranges = ranges_.find(rule);
  if (ranges == ranges_.end()) return nullptr;
  const auto behind = std::ranges::upper_bound(ranges->second, line, {}, &Range::line);
  if (behind == ranges->second.begin()) return nullptr;
  Range& nearest = *std::prev(behind);
  if (nearest.last_line < line) return nullptr;
  nearest.used = true;
  return nearest.reason;
}

void IgnoreComments::tell_unused(Findings& findings) const {
  for (const auto& [rule, ranges] : ranges_) {
    const Text name(rule.begin(), rule.end());
    for (const Range& range : ranges) {
      if (range.used) continue;
      findings.add(range.line, "silence-unused", {name, u" finds nothing here: this comment silences nothing"});
    }
  }
}

}  // namespace qvr::script_tool
