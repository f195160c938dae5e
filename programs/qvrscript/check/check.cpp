#include "qvrscript/check/check.h"

#include <algorithm>

#include "base/failure.h"
#include "base/wildcards.h"
#include "qvrscript/check/ignore_comments.h"
#include "qvrscript/check/rules.h"
#include "qvrscript/check/version_rules.h"
#include "qvrscript/engines.h"
#include "qvrscript/output/json.h"
#include "qvrscript/paths.h"
#include "services/builtin_script_reader.h"
#include "session/thread_state.h"

namespace qvr::script_tool {
namespace {

constexpr void (*kTextRules[])(const Script&, Findings&) = {
    check_line_ends,   check_separators, check_commands, check_placeholders, check_encryption,
    check_transaction, check_sql_server, check_oracle,   check_jet,
};

struct Outcome {
  std::vector<NameFinding> findings;
  std::vector<Text> unreadable;
  std::vector<Text> empty;  // folders without scripts
  std::size_t files = 0;
};

class Checker {
 public:
  explicit Checker(std::optional<Engine> engine) : engine_(engine) {}

  void take(TextView path) {
    const auto names = names_in(path);
    if (names) {
      take_folder(without_last_separator(path), *names);
    } else {
      take_file(path);
    }
  }

  Outcome outcome;

 private:
  void take_folder(TextView folder, const std::vector<Text>& names) {
    std::vector<Text> scripts = names;
    std::erase_if(scripts, [](const Text& name) { return !matches_wildcards(name, u"*.cfc"); });
    if (scripts.empty()) outcome.empty.emplace_back(folder);
    std::ranges::move(check_names(folder, scripts), std::back_inserter(outcome.findings));
    for (const Text& name : scripts) take_file(join({folder, u"/", name}));
  }

  void take_file(TextView path) {
    ++outcome.files;
    try {
      const Engine engine = engine_.value_or(engine_of_file(file_name(path)));
      auto found = findings_in(path, services::script_bytes(thread_state().platform().files, path), engine);
      for (Finding& each : found) outcome.findings.push_back({Text(path), std::move(each)});
    } catch (const std::exception&) {
      outcome.unreadable.emplace_back(path);
    }
  }

  std::optional<Engine> engine_;
};

Text rule_text(const Finding& finding) { return Text(finding.rule.begin(), finding.rule.end()); }

void write_lines(const Outcome& outcome, const Console& console) {
  for (const auto& [path, finding] : outcome.findings) {
    const Text line = finding.line == 0 ? Text() : join({u":", json_number(finding.line)});
    say(console.out, {path, line, u": ", finding.message, u" [", rule_text(finding), u"]"});
  }
}

void write_json(const Outcome& outcome, const Console& console) {
  std::vector<Text> findings, unreadable;
  for (const auto& [path, finding] : outcome.findings) {
    findings.push_back(json_object(
        {json_member(u"file", json_text(path)), json_member(u"line", json_number(finding.line)),
         json_member(u"rule", json_text(rule_text(finding))), json_member(u"message", json_text(finding.message))}));
  }
  for (const Text& path : outcome.unreadable) unreadable.push_back(json_text(path));
  say(console.out,
      {json_object({json_member(u"command", json_text(u"check")), json_member(u"files", json_number(outcome.files)),
                    json_member(u"findings", json_array(findings)),
                    json_member(u"unreadable", json_array(unreadable))})});
}

}  // namespace

Findings findings_in(const Script& script) {
  Findings findings;
  if (!script.has_text()) {
    check_encoding(script, findings);
    return findings;
  }
  IgnoreComments comments(script, findings);
  findings.silence_by(comments);
  check_encoding(script, findings);
  for (const auto rule : kTextRules) rule(script, findings);
  comments.tell_unused(findings);
  return findings;
}

std::vector<Finding> findings_in(TextView, std::string bytes, Engine engine) {
  return findings_in(Script(std::move(bytes), engine, thread_state().platform().files)).listed();
}

int check(const Arguments& arguments, const Console& console) {
  Checker checker(arguments.engine);
  for (const Text& path : arguments.operands) checker.take(path);
  const Outcome& outcome = checker.outcome;
  for (const Text& path : outcome.unreadable) complain(console, {path, u" cannot be read"});
  for (const Text& folder : outcome.empty) complain(console, {folder, u" holds no script (*.cfc)"});
  (arguments.json ? write_json : write_lines)(outcome, console);
  if (!outcome.unreadable.empty() || !outcome.empty.empty()) return exit_code::kRefused;
  return outcome.findings.empty() ? exit_code::kDone : exit_code::kFailed;
}

}  // namespace qvr::script_tool
