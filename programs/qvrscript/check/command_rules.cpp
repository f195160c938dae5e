#include <algorithm>

#include "qvrscript/check/rules.h"
#include "qvrscript/check/sql_words.h"
#include "qvrscript/engines.h"

namespace qvr::script_tool {
namespace {

void check_command(const Script& script, const ScriptCommand& command, Findings& findings) {
  const std::size_t line = script.line_of(command.begin);
  if (is_blank(command.text, kWhiteSpace)) {
    findings.add(line, "empty-command", {u"this command is empty: the database is sent a text without a statement"});
  } else if (!holds_code(script, command) && !script.is_sql_server()) {
    findings.add(line, "comment-command",
                 {u"this command holds only comments, which ", engine_title(script.engine()), u" refuses"});
  }
}

// GO lines alone are reported by the rule for consecutive separators.
void check_rest(const Script& script, Findings& findings) {
  const ScriptCommand rest = script.rest();
  if (!would_be_missed(script, rest)) return;
  const std::size_t line = script.line_of(script.text().find_first_not_of(kWhiteSpace, rest.begin));
  if (script.commands().empty()) {
    findings.add(line, "no-go", {u"the file has no GO line: nothing of it is run"});
  } else {
    findings.add(line, "no-last-go",
                 {u"what follows the last GO line is never run; where another file follows, it is run together with "
                  u"that file's first command"});
  }
}

}  // namespace

void check_commands(const Script& script, Findings& findings) {
  for (const ScriptCommand& command : script.commands()) check_command(script, command, findings);
  check_rest(script, findings);
}

}  // namespace qvr::script_tool
