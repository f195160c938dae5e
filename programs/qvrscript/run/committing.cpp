#include "qvrscript/run/committing.h"

#include <algorithm>

#include "base/utf8.h"
#include "qvrscript/check/sql_words.h"
#include "session/thread_state.h"

namespace qvr::script_tool {
namespace {

// Whether a statement begins with this word: it is the command's first one, or ";" stands before it.
bool begins_statement(const Script& script, const std::vector<Word>& words, std::size_t at) {
  if (at == 0) return true;
  const std::size_t end = words[at - 1].begin + words[at - 1].text.size();
  return script.text().substr(end, words[at].begin - end).find(u';') != TextView::npos;
}

// Whether this statement commits where DDL does. Oracle has DDL alone; the others are MariaDB's, whose temporary tables
// are none.
bool commits_like_ddl(const Script& script, const std::vector<Word>& words, std::size_t at, Engine engine) {
  if (engine == Engine::Oracle) return is_ddl(words, at);
  if (words_are(words, at, {u"CREATE", u"TEMPORARY"}) || words_are(words, at, {u"DROP", u"TEMPORARY"})) return false;
  const bool alone = at + 1 == words.size() || begins_statement(script, words, at + 1);
  return is_ddl(words, at) || (alone && words_are(words, at, {u"BEGIN"})) ||
         words_are(words, at, {u"BEGIN", u"WORK"}) || words_are(words, at, {u"START", u"TRANSACTION"}) ||
         words_are(words, at, {u"SET", u"AUTOCOMMIT"}) || words_are(words, at, {u"LOCK", u"TABLES"});
}

// The first statement that ends the transaction; empty where none does. A module's statements run when it is called.
Text ending_statement(TextView command, Engine engine, bool ddl) {
  const Script script(to_utf8(command), engine, thread_state().platform().files);
  const std::vector<Word> words = words_in(script, {script.text(), 0});
  const bool module = is_module(words);
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (!begins_statement(script, words, at)) continue;
    const TextView word = words[at].text;
    if (equal_no_case(word, u"COMMIT") || equal_no_case(word, u"ROLLBACK")) return Text(word);
    if (ddl && commits_like_ddl(script, words, at, engine)) {
      const bool alone = at + 1 == words.size() || begins_statement(script, words, at + 1);
      return alone ? Text(word) : join({word, u" ", words[at + 1].text});
    }
    if (module) break;
  }
  return {};
}

// The last command up to this one that ends the transaction.
std::optional<Committing> last_ending(const Assembly& assembly, std::size_t last_command, bool ddl) {
  for (std::size_t command = std::min(last_command, assembly.commands().size()); command > 0; --command) {
    Text statement = ending_statement(assembly.commands()[command - 1].text, assembly.engine(), ddl);
    if (!statement.empty()) return Committing{command, std::move(statement)};
  }
  return std::nullopt;
}

}  // namespace

Rollback judged_rollback(const Assembly& assembly, std::size_t last_command,
                         const std::function<Ddl(const Committing& ddl)>& ask) {
  auto own = last_ending(assembly, last_command, false);
  auto ddl = last_ending(assembly, last_command, true);
  if (!ddl) return {};
  const Ddl told = assembly.engine() == Engine::Oracle ? Ddl::Commits : ask(*ddl);
  if (told == Ddl::Commits) return {Ending::PartlyKept, std::move(ddl)};
  // Behind a ROLLBACK each command may stay, or be in a transaction of its own: providers differ.
  const bool rolls_back = own && equal_no_case(own->statement, u"ROLLBACK");
  if (own) return {rolls_back ? Ending::PerhapsKept : Ending::PartlyKept, std::move(own)};
  return told == Ddl::Unknown ? Rollback{Ending::PerhapsKept, std::move(ddl)} : Rollback{};
}

}  // namespace qvr::script_tool
