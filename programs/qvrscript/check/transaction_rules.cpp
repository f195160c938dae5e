#include <algorithm>

#include "qvrscript/check/rules.h"
#include "qvrscript/check/sql_words.h"

namespace qvr::script_tool {
namespace {

// Statements that SQL Server rejects inside a transaction; an empty second word matches any.
struct Statement {
  TextView first, second;
};

constexpr Statement kRefused[] = {
    {u"CREATE", u"DATABASE"},    {u"DROP", u"DATABASE"},      {u"ALTER", u"DATABASE"}, {u"BACKUP", u"DATABASE"},
    {u"BACKUP", u"LOG"},         {u"BACKUP", u"TRANSACTION"}, {u"BACKUP", u"TRAN"},    {u"DUMP", u"DATABASE"},
    {u"DUMP", u"TRANSACTION"},   {u"RESTORE", u"DATABASE"},   {u"RESTORE", u"LOG"},    {u"RESTORE", u"FILELISTONLY"},
    {u"RESTORE", u"HEADERONLY"}, {u"RESTORE", u"VERIFYONLY"}, {u"LOAD", u"DATABASE"},  {u"LOAD", u"TRANSACTION"},
    {u"RECONFIGURE", u""},       {u"CREATE", u"FULLTEXT"},    {u"ALTER", u"FULLTEXT"}, {u"DROP", u"FULLTEXT"},
};

// CREATE DATABASE followed by these does not create a database.
constexpr TextView kParts[] = {u"SCOPED", u"AUDIT", u"ENCRYPTION"};

// Permissions are named like statements (GRANT BACKUP DATABASE).
bool is_permission(const Script& script, const std::vector<Word>& words, std::size_t at) {
  if (at == 0) return false;
  const Word& before = words[at - 1];
  for (const TextView verb : {TextView(u"GRANT"), TextView(u"DENY"), TextView(u"REVOKE"), TextView(u"FOR")}) {
    if (equal_no_case(before.text, verb)) return true;
  }
  const std::size_t between = before.begin + before.text.size();
  return script.text().substr(between, words[at].begin - between).find(u',') != TextView::npos;
}

bool is_part(const std::vector<Word>& words, std::size_t at) {
  return std::ranges::any_of(kParts, [&](TextView part) { return words_are(words, at + 2, {part}); });
}

bool is_refused(const std::vector<Word>& words, std::size_t at) {
  return std::ranges::any_of(kRefused, [&](const Statement& each) {
    return each.second.empty() ? words_are(words, at, {each.first}) : words_are(words, at, {each.first, each.second});
  });
}

void check_command(const Script& script, const ScriptCommand& command, Findings& findings) {
  const std::vector<Word> words = words_in(script, command);
  if (is_module(words)) return;  // its statements run when it is called, not now, not now
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (!is_refused(words, at) || is_part(words, at) || is_permission(script, words, at)) continue;
    const bool alone = equal_no_case(words[at].text, u"RECONFIGURE");
    const Text statement = alone ? Text(words[at].text) : join({words[at].text, u" ", words[at + 1].text});
    findings.add(script.line_of(words[at].begin), "no-transaction",
                 {statement,
                  u" cannot run in a transaction: run this script with an identification that "
                  u"begins with EvitarTransaccion"});
  }
}

}  // namespace

void check_transaction(const Script& script, Findings& findings) {
  if (!script.is_sql_server()) return;
  for (const ScriptCommand& command : script.commands()) check_command(script, command, findings);
}

}  // namespace qvr::script_tool
