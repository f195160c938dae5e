// The rules for one script, by subject. Each adds what it finds.
#pragma once

#include "qvrscript/check/finding.h"
#include "qvrscript/check/script.h"

namespace qvr::script_tool {

// Byte-order marks, code pages, NUL bytes, files that the reader rejects, empty files.
void check_encoding(const Script& script, Findings& findings);

// Lines that do not end in CR LF.
void check_line_ends(const Script& script, Findings& findings);

// GO lines that separate unintentionally, in a comment say, and lines that look like GO but do not separate.
void check_separators(const Script& script, Findings& findings);

// Empty commands, and text that is never run.
void check_commands(const Script& script, Findings& findings);

// Bracketed words that are not replaced.
void check_placeholders(const Script& script, Findings& findings);

// AS and FOR lines that the rewriting for WITH ENCRYPTION changes or misses.
void check_encryption(const Script& script, Findings& findings);

// Transactions of the script's own, counts of rows that hide errors, USE.
void check_sql_server(const Script& script, Findings& findings);

// Terminators of statements and blocks, DDL that commits.
void check_oracle(const Script& script, Findings& findings);

// Comments, and several statements in one command.
void check_jet(const Script& script, Findings& findings);

// Statements that SQL Server rejects in a transaction.
void check_transaction(const Script& script, Findings& findings);

}  // namespace qvr::script_tool
