// Literals of everything but numbers and dates.
#include "dialect/literals.h"

#include <limits>

#include "dialect/dialect_fixture.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;
using LiteralsTest = DialectTest;

struct ComillasSQLRow {
  const char* name;
  Text text, literal;
};
const ComillasSQLRow kComillasSQLRows[] = {
    {"empty", u"", u"''"},
    {"plain", u"Ana", u"'Ana'"},
    {"O'Neil", u"O'Neil", u"'O''Neil'"},
    {"one quote", u"'", u"''''"},
    {"two quotes", u"''", u"''''''"},
    {"quotes at both ends", u"'a'", u"'''a'''"},
    {"other quotation marks", u"\"`\u00b4\u2019\u02bc", u"'\"`\u00b4\u2019\u02bc'"},
    {"backslashes", u"\\'\\", u"'\\''\\'"},
    {"line breaks and tabs", u"a\r\n\tb", u"'a\r\n\tb'"},
    {"NUL", Text(u"a\0'b", 4), Text(u"'a\0''b'", 7)},
    {"beyond ASCII", u"a\u00f1o \u20ac \U0001f600", u"'a\u00f1o \u20ac \U0001f600'"},
    {"lone surrogate", Text(1, char16_t{0xD800}) + u"'", u"'" + Text(1, char16_t{0xD800}) + u"'''"},
    {"blanks at the edges", u"  a ", u"'  a '"},
};

using ComillasSQL = Rows<DialectTest, ComillasSQLRow>;

TEST_P(ComillasSQL, Quotes) {
  const ComillasSQLRow& row = GetParam();
  EXPECT_EQ(dialect::ComillasSQL(row.text), row.literal);
}

INSTANTIATE_TEST_SUITE_P(, ComillasSQL, ::testing::ValuesIn(kComillasSQLRows), row_name);

const EachEngine kClock{u"Now()", u"GetDate()", u"SYSDATE", undefined()};
const EachEngine kNull = all_engines(u"Null");
struct ExpSQLRow {
  const char* name;
  Value value;
  EachEngine expected;
  TextView unexpected = {};  // the type that the trace names
};
const ExpSQLRow kExpSQLRows[] = {
    {"text", u"Ana", all_engines(u"'Ana'")},
    {"text with a quote", u"O'Neil", all_engines(u"'O''Neil'")},
    {"empty text", u"", all_engines(u"''")},
    {"text of digits", u"5", all_engines(u"'5'")},
    {"text that is a date", u"05/01/2011", all_engines(u"'05/01/2011'")},
    {"text Null", u"Null", all_engines(u"'Null'")},
    {"AhoraSQL", u"AhoraSQL", kClock},
    {"ahorasql", u"ahorasql", kClock},
    {"AHORASQL", u"AHORASQL", kClock},
    {"AhoraSQL with a blank", u"AhoraSQL ", all_engines(u"'AhoraSQL '")},
    {"Ahora", u"Ahora", all_engines(u"'Ahora'")},
    {"true", true, {u"True", u"1", u"1", undefined()}},
    {"false", false, {u"False", u"0", u"0", undefined()}},
    {"Empty", Empty{}, kNull},
    {"Null", Null{}, kNull},
    {"missing", Missing{}, kNull},
    {"error", ErrorValue{13}, kNull, u"Error"},
    {"object", object(), kNull, u"Object"},
    {"Nothing", ObjectRef(), kNull, u"Object"},
    {"array", list({1, u"a"}), kNull, u"Variant()"},
    {"array without elements", list({}), kNull, u"Variant()"},
    {"array of two dimensions", square({1, 2, 3, 4}), kNull, u"Variant()"},
    {"array without bounds", shapeless(), kNull, u"Variant()"},
};

using ExpSQL = Rows<DialectTest, ExpSQLRow>;

TEST_P(ExpSQL, WritesValuesThatAreNoNumbersAndNoDates) {
  const ExpSQLRow& row = GetParam();
  expect_each(row.expected, [&](Engine engine) { return dialect::ExpSQL(engine, row.value); });
  const Text line = join({u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: ", row.unexpected});
  EXPECT_EQ(traced(), row.unexpected.empty() ? Traces() : Traces(4, line));
}

INSTANTIATE_TEST_SUITE_P(, ExpSQL, ::testing::ValuesIn(kExpSQLRows), row_name);

// Oracle cuts the value, not the literal: the doubled quotes come on top.
const Text astral = u"\U0001f600";

const auto quoted = [](const Text& content) { return u"'" + content + u"'"; };
const Text b3999(3999, u'b'), b4000(4000, u'b'), b5000(5000, u'b');
struct LongTextRow {
  const char* name;
  Text text, whole, cut;
};
const LongTextRow kLongTextRows[] = {
    {"3999", b3999, quoted(b3999), quoted(b3999)},
    {"4000", b4000, quoted(b4000), quoted(b4000)},
    {"4001", b4000 + u"c", quoted(b4000 + u"c"), quoted(b4000)},
    {"5000", b5000, quoted(b5000), quoted(b4000)},
    {"4000 quotes", Text(4000, u'\''), quoted(Text(8000, u'\'')), quoted(Text(8000, u'\''))},
    {"4001 quotes", Text(4001, u'\''), quoted(Text(8002, u'\'')), quoted(Text(8000, u'\''))},
    {"5000 quotes", Text(5000, u'\''), quoted(Text(10000, u'\'')), quoted(Text(8000, u'\''))},
    {"a quote as the 4000th", b3999 + u"'c", quoted(b3999 + u"''c"), quoted(b3999 + u"''")},
    {"a quote as the 4001st", b4000 + u"'", quoted(b4000 + u"''"), quoted(b4000)},
    {"a pair that ends at 4000", b3999.substr(1) + astral + u"c", quoted(b3999.substr(1) + astral + u"c"),
     quoted(b3999.substr(1) + astral)},
    // Characters are counted as code units, so a pair can be cut in two.
    {"a pair across 4000", b3999 + astral, quoted(b3999 + astral), quoted(b3999 + astral.substr(0, 1))},
};

using LongText = Rows<DialectTest, LongTextRow>;

TEST_P(LongText, IsCutForOracleOnly) {
  const LongTextRow& row = GetParam();
  expect_each({row.whole, row.whole, row.cut, row.whole},
              [&](Engine engine) { return dialect::ExpSQL(engine, row.text); });
  EXPECT_EQ(dialect::ComillasSQL(row.text), row.whole);
}

INSTANTIATE_TEST_SUITE_P(, LongText, ::testing::ValuesIn(kLongTextRows), row_name);

TEST_F(LiteralsTest, LogicoSQLWritesTruth) {
  expect_each({u"True", u"1", u"1", undefined()}, [](Engine engine) { return dialect::LogicoSQL(engine, true); });
  expect_each({u"False", u"0", u"0", undefined()}, [](Engine engine) { return dialect::LogicoSQL(engine, false); });
}

TEST_F(LiteralsTest, AhoraSQLAndSqlFechaSistemaAskTheServersClock) {
  expect_each({u"Now()", u"GetDate()", u"SYSDATE", undefined()}, dialect::AhoraSQL);
  expect_each({u"SELECT TOP 1 Now() As FechaSistema FROM MsysObjects",
               u"SELECT TOP 1 GetDate() As FechaSistema FROM master.dbo.spt_values",
               u"SELECT SYSDATE FechaSistema FROM Dual", undefined()},
              dialect::sqlFechaSistema);
}

TEST_F(LiteralsTest, FirstDateIsTheEngines) {
  EXPECT_EQ(dialect::FechaSQL(Engine::Jet, dialect::first_date(Engine::Jet)), u"#0100-01-01#");
  EXPECT_EQ(dialect::FechaSQL(Engine::SqlServer, dialect::first_date(Engine::SqlServer)), u"{ d '1753-01-01'}");
  EXPECT_EQ(dialect::FechaSQL(Engine::Oracle, dialect::first_date(Engine::Oracle)),
            u" TO_DATE('0100-01-01','YYYY-MM-DD') ");
}

TEST_F(LiteralsTest, ConditionsOnALogicalFieldAreThoseOfEveryEngine) {
  EXPECT_EQ(dialect::sqlEsTrue(u"Activo"), u" Activo<>0 ");
  EXPECT_EQ(dialect::sqlEsFalse(u"Activo"), u" Activo=0 ");
  EXPECT_EQ(dialect::sqlEsTrue(u""), u" <>0 ");
  EXPECT_EQ(dialect::sqlEsFalse(u"T.[un campo]"), u" T.[un campo]=0 ");
  EXPECT_EQ(dialect::sqlFalse(), u"0");
}

struct NumeroDesdeTextoRow {
  const char* name;
  TextView text;
  char16_t decimal;
  float number;
  std::int32_t traced = 0;  // the number of the failure
};
constexpr NumeroDesdeTextoRow kNumeroDesdeTextoRows[] = {
    {"a point", u"2.5", u'.', 2.5f},
    {"a comma where it is none", u"2,5", u'.', 0, 13},
    {"a comma", u"2,5", u',', 2.5f},
    {"a point where it is none", u"2.5", u',', 0, 13},
    {"below zero", u"-0,1", u',', -0.1f},
    {"empty", u"", u'.', 0, 13},
    {"letters", u"abc", u'.', 0, 13},
    {"letters behind", u"5x", u'.', 0, 13},
    {"more digits than a Single has", u"16777217", u'.', 16777216.0f},
    {"a tenth", u"0.1", u'.', 0.1f},
    {"greatest", u"3.4028235E+38", u'.', std::numeric_limits<float>::max()},
    {"too great", u"1E+39", u'.', 0},
    {"too far below zero", u"-1E+39", u'.', 0},
    {"too great for a Double", u"1E+400", u'.', 0, 6},
    {"too small", u"1E-50", u'.', 0},
};

using NumeroDesdeTexto = Rows<DialectTest, NumeroDesdeTextoRow>;

TEST_P(NumeroDesdeTexto, ReadsAsTheLocaleDoes) {
  const NumeroDesdeTextoRow& row = GetParam();
  thread.locale.decimal = row.decimal;
  EXPECT_EQ(dialect::NumeroDesdeTexto(row.text), row.number);
  EXPECT_EQ(traced(), row.traced == 0 ? Traces() : Traces{trace_of(u"NumeroDesdeTexto", row.traced)});
}

INSTANTIATE_TEST_SUITE_P(, NumeroDesdeTexto, ::testing::ValuesIn(kNumeroDesdeTextoRows), row_name);

}  // namespace
}  // namespace qvr::tests
