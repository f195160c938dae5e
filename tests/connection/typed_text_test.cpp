#include <gtest/gtest.h>

#include <limits>

#include "connection/qvrcfp.h"
#include "support/describe.h"
#include "support/rows.h"
#include "support/test_thread.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;
class TypedTextTest : public ::testing::Test {
 protected:
  // A number of 0 is no failure.
  static void expect_traced(TextView member, std::int32_t number) {
    EXPECT_EQ(traced(), number == 0 ? Traces() : Traces{trace_of(member, number)});
  }

  TestThread thread;
  QVRcfp cfp;  // the converters do not need parameters
};

struct TextRow {
  const char* name;
  TextView code, text;
  const char* value;
  std::int32_t traced = 0;
};

constexpr TextRow kTextRows[] = {
    {"text", u"T", u"abc", "String abc"},
    {"text with blanks, code in lower case", u"t", u" a ", "String  a "},
    {"empty text", u"T", u"", "String "},
    {"number", u"N", u"2.5", "Double 2.5"},
    {"number below zero, code in lower case", u"n", u"-3", "Double -3"},
    {"number with letters behind", u"N", u"12abc", "Double 12"},
    {"number with a comma", u"N", u"1,5", "Double 1"},
    {"number of letters", u"N", u"abc", "Double 0"},
    {"empty number", u"N", u"", "Double 0"},
    {"number behind blanks", u"N", u"  7", "Double 7"},
    {"number without a zero before the point", u"N", u".5", "Double 0.5"},
    {"number with an exponent", u"N", u"1E3", "Double 1000"},
    {"number too great", u"N", u"1E+400", "Empty", 6},
    {"date", u"F", u"31/12/1999", "Date 36525"},
    {"date and time, code in lower case", u"f", u"01/01/2000 12:00:00", "Date 36526.5"},
    {"no date", u"F", u"no date", "Empty", 13},
    {"empty date", u"F", u"", "Empty", 13},
    {"no such day", u"F", u"31/02/2000", "Empty", 13},
    {"false", u"L", u"0", "Boolean False"},
    {"true, code in lower case", u"l", u"1", "Boolean True"},
    {"true below zero", u"L", u"-1", "Boolean True"},
    {"true of a tenth", u"L", u"0.1", "Boolean True"},
    {"truth of letters", u"L", u"abc", "Boolean False"},
    {"truth of a word", u"L", u"True", "Boolean False"},
    {"empty truth", u"L", u"", "Boolean False"},
    {"unknown code", u"X", u"abc", "Empty"},
    {"no code", u"", u"abc", "Empty"},
    {"code twice", u"TT", u"abc", "Empty"},
    {"code behind a blank", u" T", u"abc", "Empty"},
};

using TextoAValor = Rows<TypedTextTest, TextRow>;

TEST_P(TextoAValor, ReadsEachCode) {
  EXPECT_EQ(describe(cfp.TextoAValor(GetParam().code, GetParam().text)), GetParam().value);
  expect_traced(u"QVRcfp.TextoAValor", GetParam().traced);
}

INSTANTIATE_TEST_SUITE_P(, TextoAValor, ::testing::ValuesIn(kTextRows), row_name);

struct ValueRow {
  const char* name;
  TextView code;
  Value value;
  TextView text;
  std::int32_t traced = 0;
};

const ValueRow kValueRows[] = {
    {"text", u"T", u"abc", u"abc"},
    {"number as a text, code in lower case", u"t", 2.5, u"2.5"},
    {"truth as a text", u"T", true, u"True"},
    {"date as a text", u"T", Date{36526}, u"01/01/2000"},
    {"Empty as a text", u"T", Empty{}, u""},
    {"Null as a text", u"T", Null{}, u"", 94},
    {"array as a text", u"T", Array{}, u"", 13},
    {"number", u"N", 2.5, u"2.5"},
    {"number, code in lower case", u"n", 2.5, u"2.5"},
    {"quarter", u"N", 0.25, u"0.25"},
    {"half below zero", u"N", -0.5, u"-0.5"},
    {"Single", u"N", 0.1f, u"0.1"},
    {"Long", u"N", std::int32_t{12}, u"12"},
    {"Byte", u"N", std::uint8_t{0}, u"0"},
    {"64 bits", u"N", std::int64_t{9223372036854775807}, u"9223372036854775807"},
    {"greatest Currency", u"N", Currency{INT64_MAX}, u"922337203685477.5807"},
    {"greatest Decimal", u"N", Decimal{0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0, false}, u"79228162514264337593543950335"},
    {"truth as a number", u"N", true, u"-1"},
    {"Empty as a number", u"N", Empty{}, u"0"},
    {"date as a number", u"N", Date{36526.5}, u"36526.5"},
    {"text of a number", u"N", u"12.5", u"12.5"},
    {"text of letters as a number", u"N", u"abc", u"", 13},
    {"empty text as a number", u"N", u"", u"", 13},
    {"Null as a number", u"N", Null{}, u"", 94},
    {"missing as a number", u"N", Missing{}, u"", 13},
    {"infinite number", u"N", std::numeric_limits<double>::infinity(), u"", 6},
    {"date", u"F", Date{36526}, u"2000/01/01"},
    {"date and time, code in lower case", u"f", Date{36526.75}, u"2000/01/01"},
    {"first day", u"F", Date{-657434}, u"0100/01/01"},
    {"text of a date", u"F", u"31/12/1999", u"1999/12/31"},
    {"number as a date", u"F", std::int32_t{36526}, u"2000/01/01"},
    {"Empty as a date", u"F", Empty{}, u"1899/12/30"},
    {"text that is no date", u"F", u"no date", u"", 13},
    {"Null as a date", u"F", Null{}, u"", 94},
    {"number that is no date", u"F", 1e10, u"", 6},
    {"true", u"L", true, u"1"},
    {"false", u"L", false, u"0"},
    {"number as a truth, code in lower case", u"l", std::int32_t{5}, u"1"},
    {"zero as a truth", u"L", 0.0, u"0"},
    {"text of a truth", u"L", u"True", u"1"},
    {"text of zero as a truth", u"L", u"0", u"0"},
    {"Empty as a truth", u"L", Empty{}, u"0"},
    {"text of letters as a truth", u"L", u"abc", u"", 13},
    {"Null as a truth", u"L", Null{}, u"", 94},
    {"unknown code", u"X", u"abc", u""},
    {"no code", u"", u"abc", u""},
    {"code twice", u"NN", 1, u""},
};

using ValorATexto = Rows<TypedTextTest, ValueRow>;

TEST_P(ValorATexto, WritesEachCode) {
  EXPECT_EQ(cfp.ValorATexto(GetParam().code, GetParam().value), Text(GetParam().text));
  expect_traced(u"QVRcfp.ValorATexto", GetParam().traced);
}

INSTANTIATE_TEST_SUITE_P(, ValorATexto, ::testing::ValuesIn(kValueRows), row_name);

TEST_F(TypedTextTest, NumbersDoNotFollowTheLocale) {
  thread.locale.decimal = u',';
  EXPECT_EQ(cfp.ValorATexto(u"N", 2.5), u"2.5");
  EXPECT_EQ(cfp.ValorATexto(u"N", Currency{-12345}), u"-1.2345");
  EXPECT_EQ(describe(cfp.TextoAValor(u"N", u"2.5")), "Double 2.5");
  EXPECT_EQ(describe(cfp.TextoAValor(u"N", u"2,5")), "Double 2");
  EXPECT_EQ(describe(cfp.TextoAValor(u"L", u"0,5")), "Boolean False");
  EXPECT_EQ(cfp.ValorATexto(u"N", u"2,5"), u"2.5") << "a text counts as the number that the locale reads";
  EXPECT_EQ(cfp.ValorATexto(u"T", 2.5), u"2,5");
}

TEST_F(TypedTextTest, DatesAreReadByTheLocaleAndWrittenWithSlashes) {
  thread.locale.day_first = false;
  thread.locale.date_separator = u'-';
  EXPECT_EQ(describe(cfp.TextoAValor(u"F", u"02-03-2000")), "Date 36559");
  EXPECT_EQ(cfp.ValorATexto(u"F", u"02-03-2000"), u"2000/02/03");
  EXPECT_EQ(cfp.ValorATexto(u"F", Date{36559}), u"2000/02/03");
}

}  // namespace
}  // namespace qvr::tests
