// SQL injection: every statement has exactly the tokens of its parts, whatever the values.
#include "dialect/dialect_fixture.h"
#include "dialect/expected_tokens.h"
#include "dialect/hostile_values.h"
#include "dialect/like_pattern.h"
#include "dialect/literals.h"
#include "dialect/statements.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;
using enum TokenKind;

constexpr int kRounds = 2000;
constexpr Engine kEngines[] = {Engine::Jet, Engine::SqlServer, Engine::Oracle};

// Fields f0, f1... with values, both with the same random lower bound.
struct Record {
  Value fields, values;
  std::vector<Sample> samples;
};

Record random_record(HostileValues& hostile) {
  Record record;
  std::vector<Value> names, values;
  for (std::size_t i = 0, count = 1 + hostile.below(6); i < count; ++i) {
    names.push_back(u"f" + decimal(static_cast<std::int64_t>(i)));
    record.samples.push_back(hostile.next());
    values.push_back(record.samples.back().value);
  }
  const auto lower = static_cast<std::int32_t>(hostile.below(7)) - 3;
  record.fields = list(std::move(names), lower);
  record.values = list(std::move(values), lower);
  return record;
}

class InjectionTest : public DialectTest, public ::testing::WithParamInterface<Engine> {
 protected:
  // `check` gets a random record each time.
  template <class Check>
  void for_records(std::uint64_t seed, const Check& check) {
    expect_any_traces();  // some of the values have no literal
    HostileValues hostile(seed);
    for (int round = 0; round < kRounds; ++round) {
      SCOPED_TRACE(round);
      check(random_record(hostile));
      ASSERT_FALSE(HasFailure());
    }
  }
  void expect_tokens(const Text& sql, const Tokens& expected) {
    EXPECT_EQ(tokens_of(GetParam(), sql), expected) << to_utf8(sql);
  }

  static constexpr std::size_t kNone = 1000;
};

TEST_P(InjectionTest, ExpSQLIsTheValuesOwnTokens) {
  for_records(1, [this](const Record& record) {
    for (const Sample& sample : record.samples) {
      expect_tokens(dialect::ExpSQL(GetParam(), sample.value), sample.for_engine(GetParam()));
    }
  });
}

TEST_P(InjectionTest, SqlINSERTHasOneLiteralForEachValue) {
  for_records(2, [this](const Record& record) {
    ExpectedTokens expected(GetParam());
    expected.words({u"INSERT", u"INTO", u"t", u"VALUES"}).values(record.samples);
    expect_tokens(dialect::SqlINSERT(GetParam(), u"t", record.values), expected.tokens());
  });
}

TEST_P(InjectionTest, SqlInsert2HasOneLiteralForEachField) {
  for_records(3, [this](const Record& record) {
    ExpectedTokens expected(GetParam());
    expected.words({u"INSERT", u"INTO", u"t"}).fields(record.samples.size()).words({u"VALUES"}).values(record.samples);
    expect_tokens(dialect::SqlInsert2(GetParam(), u"t", record.fields, record.values), expected.tokens());
  });
}

TEST_P(InjectionTest, SqlUPDATEEndsWithItsKey) {
  for_records(4, [this](const Record& record) {
    if (record.samples.size() == 1) return;  // nothing would be left to set
    ExpectedTokens expected(GetParam());
    expected.words({u"UPDATE", u"t", u"SET"}).assignments(record.samples, 1);
    expected.words({u"WHERE", u"F1"}).sign(u'=').number(u"-7");
    expect_tokens(dialect::SqlUPDATE(GetParam(), u"t", u"F1", -7, record.fields, record.values), expected.tokens());
  });
}

TEST_P(InjectionTest, SqlUpdate2EndsWithItsCondition) {
  for_records(5, [this](const Record& record) {
    ExpectedTokens expected(GetParam());
    expected.words({u"UPDATE", u"t", u"SET"}).assignments(record.samples, kNone);
    expect_tokens(dialect::SqlUpdate2(GetParam(), u"t", record.fields, record.values, u""), expected.tokens());
    expected.words({u"WHERE", u"c"}).sign(u'=').number(u"1");
    expect_tokens(dialect::SqlUpdate2(GetParam(), u"t", record.fields, record.values, u"c=1"), expected.tokens());
  });
}

// What the pattern says is another matter; here it only must not end before its time.
TEST_P(InjectionTest, PatronLikeMotorIsOneLiteralAndPerhapsItsEscape) {
  HostileValues hostile(6);
  int escaped = 0;
  for (int round = 0; round < kRounds; ++round) {
    SCOPED_TRACE(round);
    const Text text = hostile.text();
    const Text sql = dialect::PatronLikeMotor(GetParam(), text, hostile.below(2) == 0, hostile.below(2) == 0);
    const Tokens tokens = tokens_of(GetParam(), sql);
    const bool wants_escape = text.find_first_of(u"%_") != Text::npos;
    ASSERT_EQ(tokens.size(), wants_escape ? 3U : 1U) << to_utf8(sql);
    EXPECT_EQ(tokens[0].kind, GetParam() == Engine::SqlServer ? Unicode : String);
    if (!wants_escape) continue;
    ++escaped;
    EXPECT_EQ(tokens[1], (Token{Word, u"ESCAPE"}));
    EXPECT_EQ(tokens[2].kind, String);
    EXPECT_LE(tokens[2].content.size(), 1U);
    EXPECT_NE(tokens[2].content, u"'");
  }
  EXPECT_GT(escaped, 100);
}

INSTANTIATE_TEST_SUITE_P(, InjectionTest, ::testing::ValuesIn(kEngines), engine_name);

struct SqlTokensRow {
  const char* name;
  Engine engine;
  TextView sql;
  Tokens tokens;
};
const SqlTokensRow kSqlTokensRows[] = {
    {"too early", Engine::Jet, u"'O'Neil'", {{String, u"O"}, {Word, u"Neil"}, {Bad, u"'"}}},
    {"doubled quote", Engine::Jet, u"'a''b' , 1", {{String, u"a'b"}, {Punctuation, u","}, {Number, u"1"}}},
    {"never", Engine::Oracle, u"'a", {{Bad, u"'a"}}},
    {"comment to the end of the line", Engine::Oracle, u"1 -- x", {{Number, u"1"}, {Bad, u"-- x"}}},
    {"comment", Engine::SqlServer, u"a /*", {{Word, u"a"}, {Bad, u"/*"}}},
    {"another statement", Engine::SqlServer, u"a;b", {{Word, u"a"}, {Bad, u";b"}}},
    {"national text", Engine::SqlServer, u"N'a'", {{Unicode, u"a"}}},
    {"no national text for Oracle", Engine::Oracle, u"N'a'", {{Word, u"N"}, {String, u"a"}}},
    {"date of Jet", Engine::Jet, u"#2011-01-05#", {{Date, u"2011-01-05"}}},
    {"date without end", Engine::Jet, u"#2011' --#", {{Bad, u"#2011' --#"}}},
    {"no date of Jet for Oracle", Engine::Oracle, u"#2011-01-05#", {{Bad, u"#2011-01-05#"}}},
    {"date and time of SQL Server",
     Engine::SqlServer,
     u"{ ts '2011-01-05 14:07:09'}",
     {{Date, u"ts 2011-01-05 14:07:09"}}},
    {"unknown escape", Engine::SqlServer, u"{ x '1'}", {{Bad, u"'1'}"}}},
    {"time of Oracle", Engine::Oracle, u" TO_DATE('14:07:09','HH24:MI:SS') ", {{Date, u"14:07:09|HH24:MI:SS"}}},
    {"date without mask", Engine::Oracle, u"TO_DATE('1')", {{Bad, u")"}}},
    {"number and letters", Engine::Jet, u"-2.5E-07,12a", {{Number, u"-2.5E-07"}, {Punctuation, u","}, {Bad, u"a"}}},
};

using SqlTokens = Rows<::testing::Test, SqlTokensRow>;

TEST_P(SqlTokens, SeeWhereALiteralEnds) {
  const SqlTokensRow& row = GetParam();
  EXPECT_EQ(tokens_of(row.engine, row.sql), row.tokens);
}

INSTANTIATE_TEST_SUITE_P(, SqlTokens, ::testing::ValuesIn(kSqlTokensRows), row_name);

}  // namespace
}  // namespace qvr::tests
