#include <gtest/gtest.h>

#include <limits>

#include "connection/qvrcfp.h"
#include "support/describe.h"
#include "support/test_thread.h"

namespace qvr::tests {
namespace {

class TypedTextTest : public ::testing::Test {
 protected:
  TestThread thread;
  QVRcfp cfp;  // the converters do not need parameters
};

struct TextRow {
  TextView code, text;
  const char* value;
};

constexpr TextRow kTextRows[] = {
    {u"T", u"abc", "String abc"},
    {u"t", u" a ", "String  a "},
    {u"T", u"", "String "},
    {u"N", u"2.5", "Double 2.5"},
    {u"n", u"-3", "Double -3"},
    {u"N", u"12abc", "Double 12"},
    {u"N", u"1,5", "Double 1"},
    {u"N", u"abc", "Double 0"},
    {u"N", u"", "Double 0"},
    {u"N", u"  7", "Double 7"},
    {u"N", u".5", "Double 0.5"},
    {u"N", u"1E3", "Double 1000"},
    {u"N", u"1E+400", "Empty"},
    {u"F", u"31/12/1999", "Date 36525"},
    {u"f", u"01/01/2000 12:00:00", "Date 36526.5"},
    {u"F", u"no date", "Empty"},
    {u"F", u"", "Empty"},
    {u"F", u"31/02/2000", "Empty"},
    {u"L", u"0", "Boolean False"},
    {u"l", u"1", "Boolean True"},
    {u"L", u"-1", "Boolean True"},
    {u"L", u"0.1", "Boolean True"},
    {u"L", u"abc", "Boolean False"},
    {u"L", u"True", "Boolean False"},
    {u"L", u"", "Boolean False"},
    {u"X", u"abc", "Empty"},
    {u"", u"abc", "Empty"},
    {u"TT", u"abc", "Empty"},
    {u" T", u"abc", "Empty"},
};

TEST_F(TypedTextTest, TextoAValorReadsEachCode) {
  for (const TextRow& row : kTextRows) {
    SCOPED_TRACE(to_utf8(row.code) + " " + to_utf8(row.text));
    EXPECT_EQ(describe(cfp.TextoAValor(row.code, row.text)), row.value);
  }
}

struct ValueRow {
  TextView code;
  Value value;
  TextView text;
};

std::vector<ValueRow> value_rows() {
  return {
      {u"T", u"abc", u"abc"},
      {u"t", 2.5, u"2.5"},
      {u"T", true, u"True"},
      {u"T", Date{36526}, u"01/01/2000"},
      {u"T", Empty{}, u""},
      {u"T", Null{}, u""},
      {u"T", Array{}, u""},
      {u"N", 2.5, u"2.5"},
      {u"n", 2.5, u"2.5"},
      {u"N", 0.25, u"0.25"},
      {u"N", -0.5, u"-0.5"},
      {u"N", 0.1f, u"0.1"},
      {u"N", std::int32_t{12}, u"12"},
      {u"N", std::uint8_t{0}, u"0"},
      {u"N", std::int64_t{9223372036854775807}, u"9223372036854775807"},
      {u"N", Currency{INT64_MAX}, u"922337203685477.5807"},
      {u"N", Decimal{0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0, false}, u"79228162514264337593543950335"},
      {u"N", true, u"-1"},
      {u"N", Empty{}, u"0"},
      {u"N", Date{36526.5}, u"36526.5"},
      {u"N", u"12.5", u"12.5"},
      {u"N", u"abc", u""},
      {u"N", u"", u""},
      {u"N", Null{}, u""},
      {u"N", Missing{}, u""},
      {u"N", std::numeric_limits<double>::infinity(), u""},
      {u"F", Date{36526}, u"2000/01/01"},
      {u"f", Date{36526.75}, u"2000/01/01"},
      {u"F", Date{-657434}, u"0100/01/01"},
      {u"F", u"31/12/1999", u"1999/12/31"},
      {u"F", std::int32_t{36526}, u"2000/01/01"},
      {u"F", Empty{}, u"1899/12/30"},
      {u"F", u"no date", u""},
      {u"F", Null{}, u""},
      {u"F", 1e10, u""},
      {u"L", true, u"1"},
      {u"L", false, u"0"},
      {u"l", std::int32_t{5}, u"1"},
      {u"L", 0.0, u"0"},
      {u"L", u"True", u"1"},
      {u"L", u"0", u"0"},
      {u"L", Empty{}, u"0"},
      {u"L", u"abc", u""},
      {u"L", Null{}, u""},
      {u"X", u"abc", u""},
      {u"", u"abc", u""},
      {u"NN", 1, u""},
  };
}

TEST_F(TypedTextTest, ValorATextoWritesEachCode) {
  for (const ValueRow& row : value_rows()) {
    SCOPED_TRACE(to_utf8(row.code) + " " + describe(row.value));
    EXPECT_EQ(cfp.ValorATexto(row.code, row.value), Text(row.text));
  }
}

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
