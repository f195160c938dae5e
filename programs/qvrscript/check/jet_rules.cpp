#include <algorithm>

#include "qvrscript/check/rules.h"
#include "qvrscript/check/sql_words.h"

namespace qvr::script_tool {
namespace {

bool is_white(char16_t unit) { return kWhiteSpace.find(unit) != TextView::npos; }

// Two hyphens are also the minus of a negative number: a comment is what begins a line, or has a blank behind it.
bool is_comment_mark(TextView text, std::size_t at) {
  const TextView two = text.substr(at, 2);
  if (two == u"/*") return true;
  if (two != u"--") return false;
  const std::size_t before = text.find_last_not_of(u" \t", at == 0 ? 0 : at - 1);
  const bool begins_line = at == 0 || before == TextView::npos || text[before] == u'\n';
  return begins_line || (at + 2 < text.size() && is_white(text[at + 2]));
}

void check_comments(const Script& script, const ScriptCommand& command, Findings& findings) {
  const std::size_t end = command.begin + command.text.size();
  for (std::size_t at = command.begin; at < end;) {
    if (const Region* region = region_at(script.regions(), at)) {
      at = region->end;
      continue;
    }
    if (is_comment_mark(script.text().substr(0, end), at)) {
      findings.add(script.line_of(at), "jet-comment",
                   {u"Jet has no comments and refuses this command: take the comment out, and put it into a README or "
                    u"a column's description"});
      return;
    }
    ++at;
  }
}

// A declaration of parameters has a semicolon of its own behind it.
std::size_t behind_declaration(const Script& script, const ScriptCommand& command) {
  const std::vector<Word> words = words_in(script, command);
  const bool declares = words_are(words, 0, {u"PARAMETERS"}) || words_are(words, 0, {u"PROCEDURE"});
  return declares ? next_statement(script, command, command.begin) : command.begin;
}

void check_statements(const Script& script, const ScriptCommand& command, Findings& findings) {
  const std::size_t second = next_statement(script, command, behind_declaration(script, command));
  if (second == TextView::npos) return;
  findings.add(script.line_of(second), "several-statements",
               {u"Jet runs one statement a command, and refuses this whole command for what stands behind the \";\": "
                u"put a GO line between the statements"});
}

}  // namespace

void check_jet(const Script& script, Findings& findings) {
  if (script.engine() != Engine::Jet) return;
  for (const ScriptCommand& command : script.commands()) {
    check_comments(script, command, findings);
    check_statements(script, command, findings);
  }
}

}  // namespace qvr::script_tool
