// A pattern matches exactly what "*" and "?" mean, and a search for a quoted text matches that text.
#include "dialect/like_pattern.h"

#include "dialect/like_pieces.h"
#include "dialect/sql_tokens.h"
#include "fuzz/fuzz_input.h"
#include "fuzz/fuzz_thread.h"
#include "query/search/condition_evaluator.h"
#include "query/search/search.h"
#include "query/search/tokens.h"

namespace qvr::tests {
namespace {

// The text that stands where the pattern has "*" or "?".
Text filled(const Pieces& pieces, const Text& filling) {
  Text text;
  for (const Piece& piece : pieces) {
    if (piece.wild == Wild::Self) text += piece.unit;
    if (piece.wild == Wild::One) text += filling.empty() ? u'x' : filling[0];
    if (piece.wild == Wild::Any) text += filling;
  }
  return text;
}

void check_pattern(Engine engine, bool leading, bool trailing, const Text& text, const Text& other) {
  const Text sql = dialect::PatronLikeMotor(engine, text, leading, trailing);
  const Tokens tokens = tokens_of(engine, sql);
  const bool escaped = text.find_first_of(u"%_") != Text::npos;
  require(tokens.size() == (escaped ? 3 : 1), "one literal and perhaps its escape", {text, sql});
  const TokenKind kind = engine == Engine::SqlServer ? TokenKind::Unicode : TokenKind::String;
  require(tokens[0].kind == kind && (!escaped || tokens[1] == Token{TokenKind::Word, u"ESCAPE"}), "those", {sql});
  // No character is free to escape with when the text has all the candidates.
  if (escaped && tokens[2].content.empty()) return;
  const Pieces meant = meant_by(text, leading, trailing);
  const Pieces like = read_by_like(tokens[0].content, escaped ? TextView(tokens[2].content) : TextView());
  require(matches(like, filled(meant, other)), "what is meant is found", {text, sql, filled(meant, other)});
  require(matches(like, other) == matches(meant, other), "and nothing else", {text, sql, other});
}

// Quotes inside end the operand early, and blanks of all kinds become plain ones, at the edges none.
void check_quoted_search(Engine engine, char16_t type, const Text& text) {
  if (text.find_first_of(u"\"'\u2018\u2019\u201c\u201d") != Text::npos) return;
  if (text.empty() || query::normalised_search(text) != text) return;
  const auto found = query::interpret_search(engine, {u"X", type}, join({u"\"", text, u"\""}), u"X");
  if (!found) return;
  const auto selected = selects(engine, found->condition, text);
  require(selected.value_or(false), "a quoted text is found", {text, found->condition});
}

}  // namespace

// The engine, whether "*" is added before and behind, the pattern and a candidate.
void fuzz(FuzzInput& input) {
  fuzz_thread().speak(0);
  const auto engine = static_cast<Engine>(1 + input.choice("123"));
  const std::size_t added = input.choice("-<>b");
  const Text text = input.text(), other = input.text();
  if (text.size() > 300 || other.size() > 300) return;  // the matcher is a plain one
  check_pattern(engine, (added & 1) != 0, (added & 2) != 0, text, other);
  check_quoted_search(engine, u'T', text);
  check_quoted_search(engine, u'M', text);
}

}  // namespace qvr::tests
