#include <algorithm>
#include <array>
#include <optional>

#include "qvrscript/check/rules.h"
#include "qvrscript/check/sql_words.h"

namespace qvr::script_tool {
namespace {

// Words that begin a statement which can fail. SELECT is none of them: it is also a part of others.
constexpr std::array<TextView, 12> kStatements = {u"EXEC",  u"EXECUTE", u"CREATE", u"ALTER",     u"DROP",  u"TRUNCATE",
                                                  u"GRANT", u"DENY",    u"REVOKE", u"RAISERROR", u"THROW", u"BULK"};

bool is_one_of(const std::vector<Word>& words, std::size_t at, std::initializer_list<TextView> wanted) {
  return std::ranges::any_of(wanted, [&](TextView each) { return words_are(words, at, {each}); });
}

// Whether only white space is between the word and one of these.
bool is_behind(const Script& script, const std::vector<Word>& words, std::size_t at,
               std::initializer_list<TextView> wanted) {
  if (at == 0 || !is_one_of(words, at - 1, wanted)) return false;
  const std::size_t end = words[at - 1].begin + words[at - 1].text.size();
  return is_blank(script.text().substr(end, words[at].begin - end), kWhiteSpace);
}

// The first character behind the word that is no white space.
char16_t unit_behind(const Script& script, const Word& word) {
  const std::size_t at = script.text().find_first_not_of(kWhiteSpace, word.begin + word.text.size());
  return at == TextView::npos ? u'\0' : script.text()[at];
}

bool follows_comma(const Script& script, const Word& word) {
  const std::size_t at = word.begin == 0 ? TextView::npos : script.text().find_last_not_of(kWhiteSpace, word.begin - 1);
  return at != TextView::npos && script.text()[at] == u',';
}

// ON DELETE and ON UPDATE of a key or a trigger, but not what follows SET XACT_ABORT ON.
bool is_event(const Script& script, const std::vector<Word>& words, std::size_t at) {
  if (!is_behind(script, words, at, {u"ON"})) return false;
  const bool sets = at >= 3 && words_are(words, at - 3, {u"SET"});
  return !sets || is_one_of(words, at - 2, {u"NULL", u"DEFAULT"});
}

// Whether the statement of this word changes rows: not a permission, an event of a trigger, an action of a key or of a
// MERGE, a hint, or UPDATE(column).
bool changes_rows(const Script& script, const std::vector<Word>& words, std::size_t at) {
  if (!is_one_of(words, at, {u"INSERT", u"UPDATE", u"DELETE", u"MERGE"})) return false;
  if (words_are(words, at, {u"UPDATE", u"STATISTICS"}) || words_are(words, at, {u"MERGE", u"JOIN"})) return false;
  if (is_event(script, words, at)) return false;
  if (words_are(words, at, {u"MERGE", u"UNION"}) || follows_comma(script, words[at])) return false;
  if (is_behind(script, words, at,
                {u"GRANT", u"DENY", u"REVOKE", u"FOR", u"AFTER", u"OF", u"THEN", u"INNER", u"LEFT"})) {
    return false;
  }
  const char16_t behind = unit_behind(script, words[at]);
  return behind != u',' && (behind != u'(' || words_are(words, at + 1, {u"TOP"}));
}

bool begins_statement(const Script& script, const std::vector<Word>& words, std::size_t at) {
  return changes_rows(script, words, at) ||
         std::ranges::any_of(kStatements, [&](TextView each) { return words_are(words, at, {each}); });
}

// The other branch of an IF, which runs in place of the first.
bool is_alternative(const Script& script, const std::vector<Word>& words, std::size_t at) {
  return is_behind(script, words, at, {u"ELSE"}) ||
         (is_behind(script, words, at, {u"BEGIN"}) && is_behind(script, words, at - 1, {u"ELSE"}));
}

// Whether row counts are told, as SET NOCOUNT leaves it.
void follow_counts(const std::vector<Word>& words, std::size_t at, bool& told) {
  if (!words_are(words, at, {u"SET", u"NOCOUNT"})) return;
  told = !words_are(words, at + 2, {u"ON"});
}

// Follows the words of a command to the first change of rows that has its count told and a statement behind it.
class HidingChange {
 public:
  HidingChange(const Script& script, const std::vector<Word>& words) : script_(script), words_(words) {}

  // Its place; nothing where there is none. `told` is as the words find it, and then as they leave it.
  std::optional<std::size_t> find(bool& told) {
    std::optional<std::size_t> hiding;
    for (std::size_t at = 0; at < words_.size(); ++at) {
      follow_counts(words_, at, told);
      if (hiding) continue;
      if (change_) {
        if (!is_source(at) && !is_alternative(script_, words_, at) && begins_statement(script_, words_, at)) {
          hiding = change_;
        }
      } else if (told && changes_rows(script_, words_, at)) {
        change_ = at;
        wants_source_ = words_are(words_, at, {u"INSERT"});
      }
    }
    return hiding;
  }

 private:
  // INSERT INTO T EXEC P is one statement.
  bool is_source(std::size_t at) {
    const bool call = wants_source_ && is_one_of(words_, at, {u"EXEC", u"EXECUTE"});
    if (call || is_one_of(words_, at, {u"VALUES", u"SELECT"})) wants_source_ = false;
    return call;
  }

  const Script& script_;
  const std::vector<Word>& words_;
  std::optional<std::size_t> change_;
  bool wants_source_ = false;  // an INSERT whose rows have not been named yet
};

void check_trigger(const Script& script, const std::vector<Word>& words, Findings& findings) {
  bool told = true;
  for (std::size_t at = 0; at < words.size(); ++at) {
    follow_counts(words, at, told);
    if (!told || !changes_rows(script, words, at)) continue;
    findings.add(script.line_of(words[at].begin), "counts-hide-errors",
                 {u"the count of these rows comes in front of the answer to the statement that fires the trigger: ADO "
                  u"reads no further, and an error behind it is lost; begin the trigger with SET NOCOUNT ON"});
    return;
  }
}

// `told` is what the session does, which a module leaves as it is.
void check_counts(const Script& script, const std::vector<Word>& words, bool& told, Findings& findings) {
  if (is_trigger(words)) return check_trigger(script, words, findings);
  bool told_in_module = true;
  const auto change = HidingChange(script, words).find(is_module(words) ? told_in_module : told);
  if (!change) return;
  findings.add(
      script.line_of(words[*change].begin), "counts-hide-errors",
      {u"the count of these rows comes in front of what the statements behind it answer: ADO reads no further, "
       u"and an error there is lost; put SET NOCOUNT ON in front, or GO lines between the statements"});
}

bool begins_transaction(const std::vector<Word>& words, std::size_t at) {
  return words_are(words, at, {u"BEGIN"}) && is_one_of(words, at + 1, {u"TRAN", u"TRANSACTION", u"DISTRIBUTED"});
}

void check_own_transaction(const Script& script, const std::vector<Word>& words, Findings& findings) {
  for (std::size_t at = 0; at < words.size(); ++at) {
    const std::size_t line = script.line_of(words[at].begin);
    if (begins_transaction(words, at)) {
      findings.add(
          line, "own-transaction",
          {u"the run has a transaction around the script: this one is no unit of its own, and a ROLLBACK in it "
           u"takes back the whole run; leave it to the runner"});
    } else if (words_are(words, at, {u"COMMIT"})) {
      findings.add(line, "own-transaction",
                   {u"without a BEGIN TRANSACTION of its own this COMMIT ends the run's transaction: what ran so far "
                    u"stays when a later command fails; leave it to the runner"});
    } else if (words_are(words, at, {u"ROLLBACK"}) && !is_behind(script, words, at, {u"WITH"})) {
      findings.add(line, "own-transaction",
                   {u"this ROLLBACK ends the run's transaction: all that ran so far is taken back, and what follows "
                    u"runs without one; raise an error instead"});
    }
  }
}

void check_use(const Script& script, const std::vector<Word>& words, bool first, Findings& findings) {
  for (std::size_t at = first ? 1 : 0; at < words.size(); ++at) {
    if (!words_are(words, at, {u"USE"}) || is_one_of(words, at + 1, {u"HINT", u"PLAN"})) continue;
    findings.add(script.line_of(words[at].begin), "use-database",
                 {u"from here on the commands run in this database, also those of the files that follow; those before "
                  u"ran in the one that the connection names"});
  }
}

}  // namespace

void check_sql_server(const Script& script, Findings& findings) {
  if (!script.is_sql_server()) return;
  bool told = true, first = true;
  for (const ScriptCommand& command : script.commands()) {
    const std::vector<Word> words = words_in(script, command);
    check_counts(script, words, told, findings);
    if (!is_module(words)) {
      check_own_transaction(script, words, findings);
      check_use(script, words, first, findings);
    }
    if (!words.empty()) first = false;
  }
}

}  // namespace qvr::script_tool
