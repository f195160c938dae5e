#include "dialect/like_pattern.h"

#include "dialect/dialect_fixture.h"

namespace qvr::tests {
namespace {

using LikePatternTest = DialectTest;

struct Flags {
  bool leading = false, trailing = false;
};
constexpr Flags kNeither{}, kLeading{true, false}, kTrailing{false, true}, kBoth{true, true};

// The pattern of Jet, Oracle and of a number that is no engine; SQL Server has an "N" in front.
struct Row {
  const char* name;
  TextView text;
  Flags flags;
  Text pattern;
};

const std::vector<Row>& rows() {
  static const std::vector<Row> kRows = {
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
  return kRows;
}

TEST_F(LikePatternTest, IsBuiltFromWhatTheUserWrote) {
  for (const Row& row : rows()) {
    SCOPED_TRACE(row.name);
    // An unknown engine is no reason for a message here.
    expect_each({row.pattern, u"N" + row.pattern, row.pattern, row.pattern}, [&](Engine engine) {
      return dialect::PatronLikeMotor(engine, row.text, row.flags.leading, row.flags.trailing);
    });
  }
}

TEST_F(LikePatternTest, IsNotCutForOracle) {
  const Text text(5000, u'\'');
  expect_outcome(u"'" + text + text + u"' ", [&] { return dialect::PatronLikeMotor(Engine::Oracle, text, false, false); });
}

TEST_F(LikePatternTest, TheFreeEscapeCharacterIsTheFirstOfNine) {
  struct Case {
    TextView text;
    Text free;
  };
  const Case kCases[] = {
      {u"", u"!"},         {u"abc%_", u"!"},    {u"&/()$#=|", u"!"}, {u"!", u"&"},      {u"!&", u"/"},
      {u"!&/", u"("},      {u"!&/(", u")"},     {u"!&/()", u"$"},    {u"!&/()$", u"#"}, {u"!&/()$#", u"="},
      {u"!&/()$#=", u"|"}, {u"!&/()$#=|", u""}, {u"|=#$)(/&!", u""}, {u"!a/b(c", u"&"},
  };
  for (const Case& each : kCases) {
    SCOPED_TRACE(to_utf8(each.text));
    EXPECT_EQ(dialect::CaracterEscapeLibre(each.text), each.free);
  }
}

}  // namespace
}  // namespace qvr::tests
