#include <algorithm>

#include "qvrscript/check/rules.h"
#include "qvrscript/check/silence.h"
#include "qvrscript/check/sql_words.h"
#include "script/script_preparation.h"

namespace qvr::script_tool {
namespace {

// A line that the rewriting takes for the AS or FOR line before a body.
struct AsLine {
  std::size_t number;
  bool in_code;
};

std::vector<AsLine> as_lines(const Script& script, const ScriptCommand& command) {
  std::vector<AsLine> found;
  const std::size_t last = script.line_of(command.begin + command.text.size());
  for (std::size_t line = script.line_of(command.begin); line <= last; ++line) {
    if (line == 1 || !equal_no_case(script.line(line), u"AS")) continue;  // rewriting requires a line end before it
    found.push_back({line, region_at(script.regions(), script.line_start(line)) == nullptr});
  }
  return found;
}

// The command as it is sent with encryption.
Text rewritten(const ScriptCommand& command) {
  Silence silence;
  return with_encryption(join({kLineBreak, command.text, kLineBreak}), silence);
}

std::size_t line_of_word(const Script& script, const std::vector<Word>& words, TextView wanted) {
  const auto found = std::ranges::find_if(words, [&](const Word& word) { return equal_no_case(word.text, wanted); });
  return script.line_of(found == words.end() ? words.front().begin : found->begin);
}

void check_body(const Script& script, const std::vector<Word>& words, const AsLine& as, const ScriptCommand& command,
                Findings& findings) {
  const TextView before = as.number > 1 ? trimmed(script.line(as.number - 1)) : TextView();
  if (starts_with_no_case(before, u"WITH ")) {
    findings.add(as.number, "encryption-behind-with",
                 {u"the rewrite for encryption makes this line WITH ENCRYPTION AS, behind a line that has a WITH "
                  u"already: SQL Server refuses two"});
  } else if (is_trigger(words) && find_no_case(rewritten(command), u"\r\nWITH ENCRYPTION AS\r\n") != Text::npos) {
    findings.add(line_of_word(script, words, u"FOR"), "trigger-for-line",
                 {u"the rewrite for encryption leaves this trigger's clause in front of WITH ENCRYPTION, which SQL "
                  u"Server refuses: the line before AS must hold only FOR DELETE, FOR INSERT, FOR UPDATE or "
                  u"FOR INSERT, UPDATE, DELETE"});
  }
}

void check_module(const Script& script, const std::vector<Word>& words, const ScriptCommand& command,
                  Findings& findings) {
  const std::vector<AsLine> lines = as_lines(script, command);
  const auto body = std::ranges::find_if(lines, &AsLine::in_code);
  if (body == lines.end()) {
    findings.add(script.line_of(words.front().begin), "not-encrypted",
                 {u"no line of this command holds only AS: with encryption asked for, it is created without"});
  } else {
    check_body(script, words, *body, command, findings);
  }
  for (auto line = lines.begin(); line != lines.end(); ++line) {
    if (line == body) continue;
    findings.add(line->number, "as-line",
                 {u"the rewrite for encryption makes this line WITH ENCRYPTION AS too, although it is not the one in "
                  u"front of the body"});
  }
}

}  // namespace

void check_encryption(const Script& script, Findings& findings) {
  if (!script.is_sql_server()) return;
  for (const ScriptCommand& command : script.commands()) {
    const std::vector<Word> words = words_in(script, command);
    if (is_module(words)) {
      check_module(script, words, command, findings);
      continue;
    }
    for (const AsLine& line : as_lines(script, command)) {
      findings.add(line.number, "as-line",
                   {u"the rewrite for encryption makes this line WITH ENCRYPTION AS, although the command makes no "
                    u"procedure, view, function or trigger"});
    }
  }
}

}  // namespace qvr::script_tool
