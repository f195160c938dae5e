// A pattern matches exactly what "*" and "?" mean; all other characters are literal.
#include <random>

#include "dialect/dialect_fixture.h"
#include "dialect/like_pattern.h"
#include "dialect/like_pieces.h"
#include "dialect/sql_tokens.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

Pieces pattern_of(Engine engine, TextView text, bool leading, bool trailing) {
  const Text sql = dialect::PatronLikeMotor(engine, text, leading, trailing);
  const Tokens tokens = tokens_of(engine, sql);
  return read_by_like(tokens.at(0).content, tokens.size() > 2 ? TextView(tokens[2].content) : TextView());
}

struct MatchRow {
  const char* name;
  TextView text;
  bool leading, trailing;
  TextView candidate;
  bool found;
};
constexpr MatchRow kMatchRows[] = {
    {"within", u"ana", true, true, u"juliana", true},
    {"not at the beginning", u"ana", false, true, u"juliana", false},
    {"at the end", u"ana", true, false, u"juliana", true},
    {"whole", u"ana", false, false, u"ana", true},
    {"percent", u"50%", false, false, u"50%", true},
    {"percent is no wildcard", u"50%", false, false, u"500", false},
    {"percent before the rest", u"50%", false, true, u"50% off", true},
    {"underscore", u"a_b", false, false, u"a_b", true},
    {"underscore is no wildcard", u"a_b", false, false, u"axb", false},
    {"question mark", u"a?b", false, false, u"axb", true},
    {"question mark is one character", u"a?b", false, false, u"ab", false},
    {"asterisk is perhaps none", u"a*b", false, false, u"ab", true},
    {"escape character", u"!%*", false, false, u"!%x", true},
    {"escape character without its percent", u"!%*", false, false, u"!x", false},
    {"quote", u"O'N*", false, false, u"O'Neil", true},
    {"blanks at the edges", u"  ana ", false, false, u"ana", true},
    {"empty, both", u"", true, true, u"anything", true},
    {"empty", u"", false, false, u"", true},
    {"all of them", u"*%_?", false, false, u"x%_y", true},
    {"all of them but one", u"*%_?", false, false, u"x%y", false},
};

using LikeMatch = Rows<DialectTest, MatchRow>;

TEST_P(LikeMatch, FindsWhatIsMeant) {
  const MatchRow& row = GetParam();
  for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle}) {
    SCOPED_TRACE(number_of(engine));
    EXPECT_EQ(matches(pattern_of(engine, row.text, row.leading, row.trailing), row.candidate), row.found);
  }
}

INSTANTIATE_TEST_SUITE_P(, LikeMatch, ::testing::ValuesIn(kMatchRows), row_name);

class RandomLikeMatch : public DialectTest, public ::testing::WithParamInterface<Engine> {};

// Random texts of few characters, so that wildcards, escapes and candidates often meet.
class Guesses {
 public:
  Text text(std::size_t longest) {
    constexpr TextView kUnits = u"ab*?%_!&/' *?%_";
    Text text;
    for (std::size_t left = below(longest + 1); left != 0; --left) text.push_back(kUnits[below(kUnits.size())]);
    return text;
  }
  // A text that the pieces match, and now and then one that they nearly do.
  Text candidate(const Pieces& pieces) {
    Text text;
    for (const Piece& piece : pieces) {
      if (piece.wild == Wild::Self) text.push_back(piece.unit);
      if (piece.wild == Wild::One) text += one();
      if (piece.wild == Wild::Any) text += this->text(3);
    }
    if (!text.empty() && below(2) == 0) text.replace(below(text.size()), 1, below(3) == 0 ? Text() : one());
    return text;
  }
  std::size_t below(std::size_t limit) { return static_cast<std::size_t>(random_() % limit); }

 private:
  Text one() { return Text(1, TextView(u"ab%_!' ")[below(7)]); }

  std::mt19937_64 random_{31};
};

TEST_P(RandomLikeMatch, FindsExactlyWhatIsMeant) {
  Guesses guesses;
  int found = 0, not_found = 0;
  for (int round = 0; round < 20000; ++round) {
    const Text text = guesses.text(7);
    const bool leading = guesses.below(4) == 0, trailing = guesses.below(4) == 0;
    const Pieces meant = meant_by(text, leading, trailing), like = pattern_of(GetParam(), text, leading, trailing);
    const Text candidate = guesses.candidate(meant);
    const bool expected = matches(meant, candidate);
    ++(expected ? found : not_found);
    ASSERT_EQ(matches(like, candidate), expected) << to_utf8(text) << " | " << to_utf8(candidate);
  }
  EXPECT_GT(found, 5000);
  EXPECT_GT(not_found, 3000);
}

INSTANTIATE_TEST_SUITE_P(, RandomLikeMatch, ::testing::Values(Engine::Jet, Engine::SqlServer, Engine::Oracle),
                         engine_name);

}  // namespace
}  // namespace qvr::tests
