#include "dialect/like_pattern.h"

#include "dialect/dialect_fixture.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;
using LikePatternTest = DialectTest;

struct Flags {
  bool leading = false, trailing = false;
};
constexpr Flags kNeither{}, kLeading{true, false}, kTrailing{false, true}, kBoth{true, true};

// The pattern of Jet, Oracle and of a number that is no engine; SQL Server has an "N" in front.
struct PatternRow {
  const char* name;
  TextView text;
  Flags flags;
  Text pattern;
};

const PatternRow kPatternRows[] = {
    {"plain", u"ab", kNeither, u"'ab' "},
    {"leading", u"ab", kLeading, u"'%ab' "},
    {"trailing", u"ab", kTrailing, u"'ab%' "},
    {"both", u"ab", kBoth, u"'%ab%' "},
    {"blanks at the edges", u"  P\u00e9rez ", kBoth, u"'%P\u00e9rez%' "},
    {"blanks inside", u" a  b ", kNeither, u"'a  b' "},
    {"other white space stays", u"\ta\u00a0", kNeither, u"'\ta\u00a0' "},
    {"empty", u"", kNeither, u"'' "},
    {"empty, leading", u"", kLeading, u"'%' "},
    {"empty, trailing", u"", kTrailing, u"'%' "},
    {"empty, both", u"", kBoth, u"'%' "},
    {"blanks only, both", u"   ", kBoth, u"'%' "},
    {"an asterisk is there already", u"*ab*", kBoth, u"'%ab%' "},
    {"an asterisk behind a blank", u" *ab* ", kBoth, u"'%ab%' "},
    {"only an asterisk", u"*", kBoth, u"'%' "},
    {"wildcards inside", u"a*b?c", kNeither, u"'a%b_c' "},
    {"question marks do not count as asterisks", u"?ab?", kBoth, u"'%_ab_%' "},
    {"percent", u"50%", kNeither, u"'50!%' ESCAPE '!' "},
    {"underscore", u"a_b", kNeither, u"'a!_b' ESCAPE '!' "},
    {"percent and underscore", u"50%_ok", kTrailing, u"'50!%!_ok%' ESCAPE '!' "},
    {"percent at the edges", u"%a%", kBoth, u"'%!%a!%%' ESCAPE '!' "},
    {"percent beside wildcards", u"%*_?", kNeither, u"'!%%!__' ESCAPE '!' "},
    {"first candidate taken", u"!%", kNeither, u"'!&%' ESCAPE '&' "},
    {"two candidates taken", u"&!%", kNeither, u"'&!/%' ESCAPE '/' "},
    {"all but the last candidate taken", u"!&/()$#=_", kNeither, u"'!&/()$#=|_' ESCAPE '|' "},
    {"all candidates taken", u"!&/()$#=|%", kNeither, u"'!&/()$#=|%' ESCAPE '' "},
    {"all candidates taken, both", u"_!&/()$#=|%*", kBoth, u"'%_!&/()$#=|%%' ESCAPE '' "},
    {"candidates without a percent", u"!&/", kNeither, u"'!&/' "},
    {"quote", u"O'Neil", kNeither, u"'O''Neil' "},
    {"quote and percent", u"'%'", kNeither, u"'''!%''' ESCAPE '!' "},
    {"brackets", u"[a-z]", kNeither, u"'[a-z]' "},
    {"AhoraSQL is text here", u"AhoraSQL", kNeither, u"'AhoraSQL' "},
};

using LikePattern = Rows<DialectTest, PatternRow>;

TEST_P(LikePattern, IsBuiltFromWhatTheUserWrote) {
  const PatternRow& row = GetParam();
  // An unknown engine is no reason for a message here.
  expect_each({row.pattern, u"N" + row.pattern, row.pattern, row.pattern}, [&](Engine engine) {
    return dialect::PatronLikeMotor(engine, row.text, row.flags.leading, row.flags.trailing);
  });
}

INSTANTIATE_TEST_SUITE_P(, LikePattern, ::testing::ValuesIn(kPatternRows), row_name);

TEST_F(LikePatternTest, IsNotCutForOracle) {
  const Text text(5000, u'\'');
  expect_outcome(u"'" + text + text + u"' ",
                 [&] { return dialect::PatronLikeMotor(Engine::Oracle, text, false, false); });
}

struct EscapeRow {
  const char* name;
  TextView text;
  Text free;
};
const EscapeRow kEscapeRows[] = {
    {"all are free", u"", u"!"},
    {"wildcards take none", u"abc%_", u"!"},
    {"all but the first taken", u"&/()$#=|", u"!"},
    {"one taken", u"!", u"&"},
    {"two taken", u"!&", u"/"},
    {"three taken", u"!&/", u"("},
    {"four taken", u"!&/(", u")"},
    {"five taken", u"!&/()", u"$"},
    {"six taken", u"!&/()$", u"#"},
    {"seven taken", u"!&/()$#", u"="},
    {"eight taken", u"!&/()$#=", u"|"},
    {"nine taken", u"!&/()$#=|", u""},
    {"nine taken, last one first", u"|=#$)(/&!", u""},
    {"some taken", u"!a/b(c", u"&"},
};

using FreeEscapeCharacter = Rows<DialectTest, EscapeRow>;

TEST_P(FreeEscapeCharacter, IsTheFirstOfNine) {
  EXPECT_EQ(dialect::CaracterEscapeLibre(GetParam().text), GetParam().free);
}

INSTANTIATE_TEST_SUITE_P(, FreeEscapeCharacter, ::testing::ValuesIn(kEscapeRows), row_name);

}  // namespace
}  // namespace qvr::tests
