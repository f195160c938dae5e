#include "qvrscript/check/check.h"

#include <algorithm>
#include <set>

#include "base/failure.h"
#include "base/utf8.h"
#include "base/wildcards.h"
#include "qvrscript/check/check_output.h"
#include "qvrscript/check/ignore_comments.h"
#include "qvrscript/check/lock_file.h"
#include "qvrscript/check/passed_over.h"
#include "qvrscript/check/rule.h"
#include "qvrscript/check/rules.h"
#include "qvrscript/check/version_rules.h"
#include "qvrscript/command_line/usage_failure.h"
#include "qvrscript/engines.h"
#include "qvrscript/paths.h"
#include "services/builtin_script_reader.h"
#include "session/thread_state.h"

namespace qvr::script_tool {
namespace {

constexpr void (*kTextRules[])(const Script&, Findings&) = {
    check_line_ends,   check_separators, check_commands, check_placeholders, check_encryption,
    check_transaction, check_sql_server, check_oracle,   check_jet,
};

Findings all_findings(const Script& script) {
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

using RuleNames = std::set<std::string_view>;

// Throws UsageFailure for a rule that is none.
RuleNames ignored_rules(const CheckRequest& check) {
  RuleNames ignored;
  for (const Text& name : check.ignored) {
    const Rule* rule = rule_named(to_utf8(name));
    if (rule == nullptr) throw UsageFailure({u"no such rule: ", name});
    ignored.insert(rule->name);
  }
  for (const Rule& rule : rules()) {
    if (!check.encryption && rule.group == kEncryptionRules) ignored.insert(rule.name);
  }
  return ignored;
}

// Counts what is found and hands it on while it is not too much to be held or read.
class Reporter {
 public:
  Reporter(RuleNames ignored, CheckOutput& output) : ignored_(std::move(ignored)), output_(output) {}

  void take(TextView file, const Finding& finding) {
    if (ignored_.contains(finding.rule)) return;
    const Severity severity = severity_of(finding.rule);
    const bool silenced = finding.reason.has_value();
    std::size_t& listed = silenced ? listed_silenced_ : listed_;
    count(silenced, severity, 1, totals.found);
    if (listed == kMostListed) {
      count(silenced, severity, 1, totals.omitted);
    } else {
      ++listed;
      silenced ? output_.silenced(file, finding, severity) : output_.finding(file, finding, severity);
    }
  }

  void take(TextView file, Findings findings) {
    for (const auto& [rule, silenced, number] : findings.omitted()) {
      if (ignored_.contains(rule)) continue;
      count(silenced, severity_of(rule), number, totals.found);
      count(silenced, severity_of(rule), number, totals.omitted);
    }
    for (const Finding& finding : std::move(findings).listed()) take(file, finding);
  }

  CheckTotals totals;

 private:
  static constexpr std::size_t kMostListed = 10000;

  static Severity severity_of(std::string_view rule) { return rule_named(rule)->severity; }
  static void count(bool silenced, Severity severity, std::size_t number, Counts& counts) {
    (silenced ? counts.silenced : counts.of(severity)) += number;
  }

  RuleNames ignored_;
  CheckOutput& output_;
  std::size_t listed_ = 0, listed_silenced_ = 0;
};

// The scripts and the lock file that they are held against.
class Checker {
 public:
  Checker(const CheckRequest& check, Reporter& reporter, Console& console)
      : check_(check), reporter_(reporter), console_(console) {
    if (check.lock) lock_.emplace(*check.lock, check.update_lock);
  }

  void take_all() {
    for (const Text& path : check_.paths) take(path);
    if (!lock_) return;
    for (const auto& [path, state] : lock_->compare_others()) take_state(path, state);
    if (check_.update_lock) update_lock();
  }

  bool sound() const {
    const CheckTotals& totals = reporter_.totals;
    return totals.unreadable.empty() && totals.empty.empty() && totals.problems.empty();
  }

 private:
  void take(TextView path) {
    const auto names = names_in(path);
    if (names) {
      take_folder(without_last_separator(path), *names);
    } else {
      take_file(path);
    }
  }

  void take_folder(TextView folder, std::vector<Text> names) {
    std::erase_if(names, [](const Text& name) { return !matches_wildcards(name, u"*.cfc"); });
    const std::vector<Text> passed_over = names_passed_over(folder);
    if (names.empty() && passed_over.empty()) {
      reporter_.totals.empty.emplace_back(folder);
      console_.complain({folder, u" holds no script (*.cfc)"});
    }
    for (const Text& name : passed_over) {
      reporter_.take(join({folder, u"/", name}),
                     {0, "name-not-utf8",
                      u"the name of this file is no UTF-8, and the library passes over it: give it another name",
                      std::nullopt});
    }
    for (const auto& [path, finding] : check_names(folder, names)) reporter_.take(path, finding);
    for (const Text& name : names) take_file(join({folder, u"/", name}));
  }

  void take_file(TextView path) {
    ++reporter_.totals.files;
    try {
      Files& files = thread_state().platform().files;
      std::string bytes = services::script_bytes(files, path);
      if (lock_) compare_with_lock(path, bytes);
      const Engine engine = check_.engine.value_or(engine_of_file(file_name(path)));
      reporter_.take(path, all_findings(Script(std::move(bytes), engine, files)));
    } catch (const RuntimeFailure&) {
      refuse_file(path);
    } catch (const std::bad_alloc&) {
      refuse_file(path);
    }
  }

  void compare_with_lock(TextView path, std::string_view bytes) {
    try {
      take_state(path, lock_->compare(path, bytes));
    } catch (const LockFailure& failure) {
      tell_problem({failure.message()});
    }
  }

  void refuse_file(TextView path) {
    reporter_.totals.unreadable.emplace_back(path);
    console_.complain({path, u" cannot be read"});
  }

  void take_state(TextView path, LockFile::State state) {
    const auto add = [&](std::string_view rule, TextView message) {
      reporter_.take(path, {0, rule, Text(message), std::nullopt});
    };
    switch (state) {
      case LockFile::State::Changed:
        unchanged_ = false;
        add("locked-changed",
            u"this script was released with another text, which databases have run already: restore it, and put the "
            u"change into a new update");
        break;
      case LockFile::State::Missing:
        unchanged_ = false;
        add("locked-missing",
            u"this script was released, and is gone or cannot be read: databases that have not run it yet cannot be "
            u"updated; restore it");
        break;
      case LockFile::State::New:
        if (!check_.update_lock) {
          add("not-locked", u"the lock file does not have this script yet: add it with --update when it is released");
        }
        break;
      case LockFile::State::NoText:
        if (check_.update_lock) tell_problem({path, u" cannot be locked: the reader refuses it"});
        break;
      case LockFile::State::Same: break;
    }
  }

  // Nothing where something else is wrong: a lock file that is brought up to date half hides it.
  void update_lock() {
    reporter_.totals.locked = 0;
    if (!unchanged_ || !sound()) {
      tell_problem({*check_.lock, u" is left as it is"});
      return;
    }
    try {
      lock_->write();
      reporter_.totals.locked = lock_->fresh();
    } catch (const LockFailure& failure) {
      tell_problem({failure.message()});
    }
  }

  void tell_problem(std::initializer_list<TextView> line) {
    console_.complain({reporter_.totals.problems.emplace_back(join(line))});
  }

  const CheckRequest& check_;
  Reporter& reporter_;
  Console& console_;
  std::optional<LockFile> lock_;
  bool unchanged_ = true;  // what is locked
};

bool any_from(Severity severity, const Counts& counts) {
  for (const Severity each : {Severity::Error, Severity::Warning, Severity::Note}) {
    if (each >= severity && counts.of(each) > 0) return true;
  }
  return false;
}

}  // namespace

std::vector<Finding> findings_in(TextView, std::string bytes, Engine engine) {
  return all_findings(Script(std::move(bytes), engine, thread_state().platform().files)).listed();
}

int check(const CheckRequest& check, const Request& request, Console& console) {
  const auto output = make_check_output(request.format, request.quiet, console);
  Reporter reporter(ignored_rules(check), *output);
  CheckTotals& totals = reporter.totals;
  try {
    Checker checker(check, reporter, console);
    checker.take_all();
    const bool fine = checker.sound() && !any_from(check.fail_on, totals.found);
    totals.exit_code = fine ? exit_code::kDone : exit_code::kFailed;
  } catch (const LockFailure& failure) {  // before anything is looked at
    console.complain({totals.problems.emplace_back(failure.message())});
    totals.exit_code = exit_code::kFailed;
  }
  output->end(totals);
  return totals.exit_code;
}

}  // namespace qvr::script_tool
