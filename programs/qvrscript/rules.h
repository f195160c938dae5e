// The rules for one script, by subject. Each adds what it finds.
#pragma once

#include "qvrscript/finding.h"
#include "qvrscript/script.h"

namespace qvr::script_tool {

// Byte-order marks, the system's page, zero bytes, what the reader refuses, empty files.
void check_encoding(const Script& script, Findings& findings);

// Lines that do not end in CR LF.
void check_line_ends(const Script& script, Findings& findings);

// GO lines that separate where the author may not mean it, and lines that look like GO and do not separate.
void check_separators(const Script& script, Findings& findings);

// Commands that are empty, and what is never run.
void check_commands(const Script& script, Findings& findings);

// Bracketed words that nothing takes the place of.
void check_placeholders(const Script& script, Findings& findings);

// What the rewrite for encryption makes of AS and FOR lines.
void check_encryption(const Script& script, Findings& findings);

// Statements that SQL Server refuses in a transaction.
void check_transaction(const Script& script, Findings& findings);

}  // namespace qvr::script_tool
