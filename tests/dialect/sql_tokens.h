// An SQL tokenizer as an independent check: written without regard to how the library writes SQL.
#pragma once

#include <iosfwd>
#include <vector>

#include "base/engine.h"

namespace qvr::tests {

enum class TokenKind {
  Word,     // a key word or a name
  String,   // what a literal in quotes says, its doubled quotes taken for one
  Unicode,  // the same with SQL Server's N in front
  Number,
  Date,  // "2011-01-05" of Jet, "d 2011-01-05" of SQL Server, "2011-01-05|YYYY-MM-DD" of Oracle
  Punctuation,
  Bad  // a comment, a literal without an end, a character that has no business here; nothing comes behind
};

struct Token {
  TokenKind kind;
  Text content;
  bool operator==(const Token&) const = default;
};
using Tokens = std::vector<Token>;

void PrintTo(const Token& token, std::ostream* out);

Tokens tokens_of(Engine engine, TextView sql);

}  // namespace qvr::tests
