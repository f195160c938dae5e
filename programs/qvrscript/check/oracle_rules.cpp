#include <algorithm>
#include <array>

#include "qvrscript/check/rules.h"
#include "qvrscript/check/sql_words.h"

namespace qvr::script_tool {
namespace {

constexpr std::array<TextView, 4> kUnits = {u"PROCEDURE", u"FUNCTION", u"PACKAGE", u"TRIGGER"};
constexpr std::array<TextView, 7> kChanges = {u"INSERT", u"UPDATE", u"DELETE", u"MERGE", u"BEGIN", u"DECLARE", u"CALL"};

template <std::size_t count>
bool is_one_of(const std::vector<Word>& words, std::size_t at, const std::array<TextView, count>& wanted) {
  return std::ranges::any_of(wanted, [&](TextView each) { return words_are(words, at, {each}); });
}

// What ends a command: a statement is sent without a terminator, a block with its last semicolon. Others hold code that
// is not PL/SQL, or may do either.
enum class Kind { Statement, Block, Other };

// Where the kind of the object stands that a CREATE makes.
std::size_t after_create(const std::vector<Word>& words) {
  std::size_t at = words_are(words, 1, {u"OR", u"REPLACE"}) ? 3 : 1;
  if (words_are(words, at, {u"EDITIONABLE"}) || words_are(words, at, {u"NONEDITIONABLE"})) ++at;
  return at;
}

bool has_word(const std::vector<Word>& words, TextView wanted) {
  return std::ranges::any_of(words, [&](const Word& word) { return equal_no_case(word.text, wanted); });
}

Kind kind_of(const std::vector<Word>& words) {
  if (words_are(words, 0, {u"BEGIN"}) || words_are(words, 0, {u"DECLARE"})) return Kind::Block;
  if (words_are(words, 0, {u"WITH", u"FUNCTION"}) || words_are(words, 0, {u"WITH", u"PROCEDURE"})) return Kind::Other;
  if (!words_are(words, 0, {u"CREATE"})) return Kind::Statement;
  const std::size_t at = after_create(words);
  if (words_are(words, at, {u"TYPE"})) return words_are(words, at + 1, {u"BODY"}) ? Kind::Block : Kind::Other;
  if (words_are(words, at, {u"LIBRARY"}) || has_word(words, u"JAVA")) return Kind::Other;
  if (!is_one_of(words, at, kUnits)) return Kind::Statement;
  const bool calls = words_are(words, at, {u"TRIGGER"}) && has_word(words, u"CALL");
  return calls || has_word(words, u"WRAPPED") ? Kind::Other : Kind::Block;
}

// Lines that hold only a slash, which other tools take for the order to run what stands before.
std::vector<std::size_t> slash_lines(const Script& script, const ScriptCommand& command) {
  std::vector<std::size_t> lines;
  const std::size_t last = script.line_of(command.begin + command.text.size());
  for (std::size_t line = script.line_of(command.begin); line <= last; ++line) {
    const std::size_t slash = script.line_start(line) + script.line(line).find(u'/');
    if (trimmed(script.line(line), kWhiteSpace) == u"/" && region_at(script.regions(), slash) == nullptr) {
      lines.push_back(line);
    }
  }
  return lines;
}

bool check_slashes(const Script& script, const ScriptCommand& command, std::size_t last, std::string_view rule,
                   Findings& findings) {
  std::vector<std::size_t> lines = slash_lines(script, command);
  const std::size_t last_line = script.line_of(last);
  if (script.text()[last] == u'/' && (lines.empty() || lines.back() != last_line)) lines.push_back(last_line);
  for (const std::size_t line : lines) {
    findings.add(line, rule,
                 {u"this \"/\" is sent to Oracle, which refuses or miscompiles the command; only other tools take it "
                  u"for an order to run: take it away, and put a GO line between two commands"});
  }
  return !lines.empty();
}

void check_block(const Script& script, const ScriptCommand& command, std::size_t last, Findings& findings) {
  if (check_slashes(script, command, last, "oracle-block-end", findings) || script.text()[last] == u';') return;
  findings.add(script.line_of(last), "oracle-block-end",
               {u"a PL/SQL block ends in \";\": without it a block fails, and what a CREATE makes is stored invalid, "
                u"which the runner is not told"});
}

void check_statement(const Script& script, const ScriptCommand& command, std::size_t last, Findings& findings) {
  const std::size_t second = next_statement(script, command, command.begin);
  if (second != TextView::npos && script.text()[second] != u'/') {
    findings.add(script.line_of(second), "several-statements",
                 {u"Oracle runs one statement a command, and refuses this whole command for what stands behind the "
                  u"\";\" (ORA-00911, ORA-00933): put a GO line in place of the \";\""});
  } else if (!check_slashes(script, command, last, "oracle-terminator", findings) && script.text()[last] == u';') {
    findings.add(script.line_of(last), "oracle-terminator",
                 {u"Oracle refuses a statement that is sent with its \";\" (ORA-00911): take it away"});
  }
}

// Follows which changes are not committed yet.
class Pending {
 public:
  explicit Pending(const Script& script) : script_(script) {}

  void take(const std::vector<Word>& words, Findings& findings) {
    const std::size_t line = script_.line_of(words.front().begin);
    if (is_ddl(words, 0)) {
      if (since_ != 0) tell(line, words.front().text, findings);
      since_ = 0;
    } else if (words_are(words, 0, {u"COMMIT"}) || words_are(words, 0, {u"ROLLBACK"})) {
      since_ = 0;
    } else if (is_one_of(words, 0, kChanges) && since_ == 0) {
      since_ = line;
    }
  }

 private:
  void tell(std::size_t line, TextView verb, Findings& findings) const {
    findings.add(line, "oracle-ddl-commits",
                 {u"Oracle commits before and behind this ", verb,
                  u": when a later command fails, the changes from line ", decimal(static_cast<std::int64_t>(since_)),
                  u" on stay in the database; put changes of data behind the last DDL of the script, or write them so "
                  u"that they can run again"});
  }

  const Script& script_;
  std::size_t since_ = 0;  // line of the first change; 0: none
};

}  // namespace

void check_oracle(const Script& script, Findings& findings) {
  if (script.engine() != Engine::Oracle) return;
  Pending pending(script);
  for (const ScriptCommand& command : script.commands()) {
    const std::vector<Word> words = words_in(script, command);
    if (words.empty()) continue;
    const std::size_t last = last_code(script, command);
    const Kind kind = kind_of(words);
    if (kind == Kind::Block) check_block(script, command, last, findings);
    if (kind == Kind::Statement) check_statement(script, command, last, findings);
    pending.take(words, findings);
  }
}

}  // namespace qvr::script_tool
