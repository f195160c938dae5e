
#include "qvrscript/check/rules.h"
#include "script/command_splitter.h"

namespace qvr::script_tool {
namespace {

constexpr TextView kGo = u"GO";

// Characters that editors show as a blank or not at all.
constexpr TextView kBlanks = u" \t\u00a0\u200b\ufeff\f\v\x1a";

TextView region_title(RegionKind kind) {
  switch (kind) {
    case RegionKind::LineComment:
    case RegionKind::BlockComment: return u"comment";
    case RegionKind::String: return u"string";
    case RegionKind::QuotedName: return u"quoted name";
  }
  return {};
}

std::string_view region_rule(RegionKind kind) {
  return kind == RegionKind::BlockComment ? "go-in-comment" : "go-in-string";
}

void check_regions(const Script& script, Findings& findings) {
  const TextView text = script.text();
  for (auto at = find_separator(text, 0); at != TextView::npos; at = find_separator(text, at + 1)) {
    const std::size_t go = at + kLineBreak.size();
    const Region* region = region_at(script.regions(), go);
    if (region == nullptr) continue;
    findings.add(script.line_of(go), region_rule(region->kind),
                 {u"this GO separates, although it stands in a ", region_title(region->kind), u" that begins in line ",
                  decimal(static_cast<std::int64_t>(script.line_of(region->begin)))});
  }
}

void check_unclosed(const Script& script, Findings& findings) {
  for (const Region& region : script.regions()) {
    if (region.closed) continue;
    const bool comment = region.kind == RegionKind::BlockComment;
    findings.add(script.line_of(region.begin), comment ? "unclosed-comment" : "unclosed-string",
                 {u"this ", region_title(region.kind), u" does not end in the file"});
  }
}

struct Lookalike {
  std::string_view rule;
  TextView message;
};

// What is wrong with a line that begins with GO and has more text; nothing for other lines.
const Lookalike* lookalike(TextView line) {
  static constexpr Lookalike kSemicolon{"go-semicolon", u"\"GO;\" separates nothing: the line must hold only GO"};
  static constexpr Lookalike kComment{"go-comment", u"GO with a comment separates nothing: the line must hold only GO"};
  static constexpr Lookalike kCount{"go-count", u"GO with a count separates nothing, and nothing is repeated"};
  static constexpr Lookalike kBlank{"go-blanks",
                                    u"GO with blanks, or characters that do not show, separates nothing: "
                                    u"the line must hold only GO"};
  const TextView bare = trimmed(line, kBlanks);
  if (!starts_with_no_case(bare, kGo)) return nullptr;
  const TextView rest = trimmed(bare.substr(kGo.size()), kBlanks);
  if (rest.empty()) return bare.size() == line.size() ? nullptr : &kBlank;
  if (rest == u";") return &kSemicolon;
  if (rest.starts_with(u"--") || rest.starts_with(u"/*")) return &kComment;
  const bool apart = kBlanks.find(bare[kGo.size()]) != TextView::npos;
  const bool number = rest.find_first_not_of(u"0123456789;") == TextView::npos;
  return apart && number ? &kCount : nullptr;
}

void check_lookalikes(const Script& script, Findings& findings) {
  for (std::size_t line = 1; line <= script.lines(); ++line) {
    const Lookalike* found = lookalike(script.line(line));
    if (found == nullptr || region_at(script.regions(), script.line_start(line)) != nullptr) continue;
    findings.add(line, found->rule, {found->message});
  }
}

// Whether the command begins with a GO line that did not count as a separator.
bool begins_with_go(TextView piece) { return equal_no_case(piece.substr(0, piece.find(kLineBreak)), kGo); }

void check_passed_over(const Script& script, const ScriptCommand& piece, TextView what_becomes, Findings& findings) {
  if (!begins_with_go(piece.text)) return;
  const std::size_t line = script.line_of(piece.begin);
  if (piece.begin == 0) {
    findings.add(line, "go-first-line",
                 {u"a GO in the first line separates nothing when the text begins with it: it is sent with the first "
                  u"command; behind another file it ends that file's last command"});
  } else {
    findings.add(line, "go-twice",
                 {u"the second of two GO lines separates nothing, although the total counts it: ", what_becomes});
  }
}

}  // namespace

void check_separators(const Script& script, Findings& findings) {
  check_regions(script, findings);
  check_unclosed(script, findings);
  check_lookalikes(script, findings);
  for (const ScriptCommand& command : script.commands()) {
    check_passed_over(script, command, u"it is sent as the first line of the next command", findings);
  }
  check_passed_over(script, script.rest(), u"it is sent with the first command of a file that follows", findings);
}

}  // namespace qvr::script_tool
