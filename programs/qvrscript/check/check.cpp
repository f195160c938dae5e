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

void write_lines(const Outcome& outcome, Console& console) {
  for (const auto& [path, finding] : outcome.findings) {
    const Text line = finding.line == 0 ? Text() : join({u":", decimal(static_cast<std::int64_t>(finding.line))});
    console.say({path, line, u": ", finding.message, u" [", rule_text(finding), u"]"});
  }
}

void write_document(const Outcome& outcome, Console& console) {
  Json findings = Json::array(), unreadable = Json::array();
  for (const auto& [path, finding] : outcome.findings) {
    findings.push_back({{"file", json_of(path)},
                        {"line", finding.line},
                        {"rule", finding.rule},
                        {"message", json_of(finding.message)}});
  }
  for (const Text& path : outcome.unreadable) unreadable.push_back(json_of(path));
  write_json({{"command", "check"}, {"files", outcome.files}, {"findings", findings}, {"unreadable", unreadable}},
             console);
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

int check(const CheckRequest& check, const Request& request, Console& console) {
  Checker checker(check.engine);
  for (const Text& path : check.paths) checker.take(path);
  const Outcome& outcome = checker.outcome;
  for (const Text& path : outcome.unreadable) console.complain({path, u" cannot be read"});
  for (const Text& folder : outcome.empty) console.complain({folder, u" holds no script (*.cfc)"});
  (request.format == Format::Json ? write_document : write_lines)(outcome, console);
  const bool sound = outcome.unreadable.empty() && outcome.empty.empty() && outcome.findings.empty();
  return sound ? exit_code::kDone : exit_code::kFailed;
}

}  // namespace qvr::script_tool
