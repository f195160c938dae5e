#include "qvrscript/check/rule.h"

#include <algorithm>

namespace qvr::script_tool {
namespace {

constexpr Severity kNote = Severity::Note, kWarning = Severity::Warning, kError = Severity::Error;

constexpr std::string_view kSeparators = "Separators", kCommands = "Commands", kEncoding = "Encoding and line ends",
                           kPlaceholders = "Placeholders", kTransactions = "Transactions and results (SQL Server)",
                           kOracle = "Oracle", kJet = "Jet", kNames = "Names in a folder",
                           kLock = "Released scripts (--lock)", kComments = "Comments that silence a rule";

constexpr Rule kRules[] = {
    {"go-in-comment", kError, kSeparators, "a GO line in a block comment separates all the same"},
    {"go-in-string", kError, kSeparators, "a GO line in a string or quoted name separates all the same"},
    {"unclosed-comment", kError, kSeparators, "the comment goes on to the end of the file"},
    {"unclosed-string", kError, kSeparators, "the string or quoted name goes on to the end of the file"},
    {"go-count", kError, kSeparators, "\"GO 5\" separates nothing and repeats nothing"},
    {"go-semicolon", kError, kSeparators, "\"GO;\" separates nothing"},
    {"go-comment", kError, kSeparators, "GO with a comment separates nothing"},
    {"go-blanks", kError, kSeparators, "GO with blanks or characters that do not show separates nothing"},
    {"go-first-line", kError, kSeparators, "GO in the first line is sent with the first command"},
    {"go-twice", kError, kSeparators, "the second of two GO lines is sent with the next command"},

    {"empty-command", kWarning, kCommands, "the database is sent a text without a statement"},
    {"comment-command", kError, kCommands, "Oracle refuses a command of comments only"},
    {"several-statements", kError, kCommands, "Jet and Oracle refuse several statements in one command"},
    {"no-go", kError, kCommands, "a file without a GO line is never run"},
    {"no-last-go", kError, kCommands, "what follows the last GO line is never run"},

    {"byte-order-mark", kNote, kEncoding, "another reader may leave the mark in front of the first command"},
    {"utf-16", kNote, kEncoding, "other tools and version control may not take UTF-16"},
    {"ansi-page", kWarning, kEncoding, "letters are read by the ANSI page of the machine"},
    {"nul-byte", kError, kEncoding, "the reader refuses the file, or the database cuts the command"},
    {"broken-encoding", kError, kEncoding, "the reader refuses the file"},
    {"empty-file", kError, kEncoding, "loading stops at an empty file with no text at all"},
    {"lf-only", kWarning, kEncoding, "the lines end in LF, which becomes CR LF, also in strings"},
    {"cr-only", kWarning, kEncoding, "the lines end in CR, which becomes CR LF, also in strings"},
    {"mixed-line-ends", kWarning, kEncoding, "the lines end differently and all become CR LF, also in strings"},

    {"placeholder-misspelt", kWarning, kPlaceholders, "a word like a placeholder stays as it is"},
    {"placeholder-unknown", kWarning, kPlaceholders, "a bracketed word is not replaced"},
    {"placeholder-of-oracle", kWarning, kPlaceholders, "a placeholder of Oracle stays as it is elsewhere"},

    {"not-encrypted", kWarning, kEncryptionRules, "without AS alone on a line nothing is encrypted"},
    {"as-line", kWarning, kEncryptionRules, "a line of AS that is no body's becomes WITH ENCRYPTION AS"},
    {"trigger-for-line", kError, kEncryptionRules, "WITH ENCRYPTION would stand behind the trigger's clause"},
    {"encryption-behind-with", kError, kEncryptionRules, "there would be two WITH, which SQL Server refuses"},

    {"no-transaction", kError, kTransactions, "SQL Server refuses the statement in a transaction"},
    {"own-transaction", kWarning, kTransactions, "a COMMIT or ROLLBACK of the script ends the run's transaction"},
    {"counts-hide-errors", kWarning, kTransactions, "without SET NOCOUNT ON an error behind a change of data is lost"},
    {"use-database", kNote, kTransactions, "the commands behind a USE run in another database"},

    {"oracle-terminator", kError, kOracle, "Oracle refuses a statement with its \";\" or \"/\""},
    {"oracle-block-end", kError, kOracle, "a PL/SQL block that does not end in \";\" does not compile"},
    {"oracle-ddl-commits", kNote, kOracle, "DDL commits the changes before it: no rollback takes them back"},

    {"jet-comment", kError, kJet, "Jet has no comments and refuses the command"},

    {"name-missed", kError, kNames, "no definition and no update finds this file"},
    {"name-not-utf8", kError, kNames, "the library passes over a file whose name is no UTF-8"},
    {"version-gap", kWarning, kNames, "nothing updates from one version to the next"},
    {"version-overlap", kWarning, kNames, "two updates lead to one version, and both run"},
    {"version-backwards", kWarning, kNames, "the update leads to no higher version"},
    {"version-digits", kError, kNames, "the versions are not five digits each"},
    {"version-zero", kError, kNames, "an update from a version with a zero in front cannot begin"},

    {"locked-changed", kError, kLock, "a released script has another text: some databases have run the former"},
    {"locked-missing", kError, kLock, "a released script is gone: databases that still need it cannot be updated"},
    {"not-locked", kNote, kLock, "the lock file does not have this script yet"},

    {"silence-no-reason", kWarning, kComments, "a comment without a reason silences nothing"},
    {"silence-unknown-rule", kWarning, kComments, "a comment that names no rule silences nothing"},
    {"silence-form", kWarning, kComments, "a comment to this program that it cannot read silences nothing"},
    {"silence-unused", kNote, kComments, "a comment silences a rule that finds nothing"},
};

}  // namespace

std::span<const Rule> rules() { return kRules; }

const Rule* rule_named(std::string_view name) {
  const auto* found = std::ranges::find(kRules, name, &Rule::name);
  return found == std::end(kRules) ? nullptr : found;
}

}  // namespace qvr::script_tool
