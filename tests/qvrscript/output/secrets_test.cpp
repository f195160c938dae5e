#include "qvrscript/output/secrets.h"

#include <gtest/gtest.h>

#include "base/utf8.h"

namespace qvr::tests {
namespace {

using script_tool::Secrets;

std::string left_out(std::initializer_list<TextView> secrets, TextView text) {
  Secrets known;
  for (const TextView each : secrets) known.add(each);
  return to_utf8(known.left_out(text));
}

TEST(Secrets, AreLeftOutWhereverTheyStand) {
  EXPECT_EQ(left_out({u"s3cret"}, u"s3cret, xs3crety and s3cret"), "***, x***y and ***");
  EXPECT_EQ(left_out({u"s3cret"}, u"S3CRET s3cre"), "S3CRET s3cre");
  EXPECT_EQ(left_out({u"contrase\u00f1a"}, u"la contrase\u00f1a."), "la ***.");
}

TEST(Secrets, AreLeftOutWithTheirQuotesDoubled) {
  EXPECT_EQ(left_out({u"a\"b'c}d"}, u"<a\"b'c}d>"), "<***>");
  EXPECT_EQ(left_out({u"a\"b'c}d"}, u"<a\"\"b'c}d>"), "<***>");
  EXPECT_EQ(left_out({u"a\"b'c}d"}, u"<a\"b''c}d>"), "<***>");
  EXPECT_EQ(left_out({u"a\"b'c}d"}, u"<a\"b'c}}d>"), "<***>");
}

TEST(Secrets, LeaveNoPieceWhereTheyOverlap) {
  EXPECT_EQ(left_out({u"abcd", u"cdef"}, u"xabcdefx"), "x***x");
  EXPECT_EQ(left_out({u"abcd", u"xabcdx"}, u"xabcdx abcd"), "*** ***");
  EXPECT_EQ(left_out({u"aaaa"}, u"baaaaaaab"), "b***b");
  EXPECT_EQ(left_out({u"abab"}, u"abababx"), "***x");
  EXPECT_EQ(left_out({u"abcd", u"efgh"}, u"abcdefgh"), "***");
}

TEST(Secrets, ThatAreShortAreLeftOutWhereTheyStandAlone) {
  EXPECT_EQ(left_out({u"sa"}, u"the same sa, \"sa\" sa"), "the same ***, \"***\" ***");
  EXPECT_EQ(left_out({u"1"}, u"line 11 of 1"), "line 11 of ***");
  EXPECT_EQ(left_out({u"."}, u"a.b ."), "a.b ***");
  EXPECT_EQ(left_out({u"a\u00f1o"}, u"a\u00f1os, a\u00f1o"), "a\u00f1os, ***");
}

TEST(Secrets, ThatAreEmptyAreNone) {
  EXPECT_EQ(left_out({u""}, u"any text"), "any text");
  EXPECT_EQ(left_out({u""}, u""), "");
  EXPECT_EQ(left_out({u"abcd"}, u""), "");
}

TEST(Secrets, OfALargeTextAreFoundInOnePass) {
  const Text secret = Text(50000, u'a') + u'b';
  const Text text(4000000, u'a');
  EXPECT_EQ(left_out({secret}, text), to_utf8(text));
  EXPECT_EQ(left_out({secret}, text + u'b'), std::string(4000000 - 50000, 'a') + "***");
}

struct PasswordRow {
  const char* name;
  TextView text;
  const char* shown;
};

class PasswordOfAText : public testing::TestWithParam<PasswordRow> {};

TEST_P(PasswordOfAText, IsLeftOutThoughNobodyAddedIt) {
  EXPECT_EQ(to_utf8(Secrets().left_out(GetParam().text)), GetParam().shown);
}

constexpr PasswordRow kTexts[] = {
    {"Odbc", u"DRIVER=x;PWD=abc;UID=u", "DRIVER=x;PWD=***;UID=u"},
    {"OleDb", u"User ID=u;Password=abc;", "User ID=u;Password=***;"},
    {"AnyCase", u"pAsSwOrD = abc;x=1", "pAsSwOrD = ***;x=1"},
    {"Jet", u"Jet OLEDB:Database Password=abc;Mode=Read", "Jet OLEDB:Database Password=***;Mode=Read"},
    {"WithBlanks", u"PWD=a b c;UID=u", "PWD=***;UID=u"},
    {"Last", u"login failed: PWD=abc", "login failed: PWD=***"},
    {"OfALine", u"PWD=abc\r\nnext", "PWD=***\r\nnext"},
    {"Empty", u"PWD=;UID=u", "PWD=;UID=u"},
    {"EmptyLast", u"PWD=", "PWD="},
    {"Two", u"PWD=a;PWD=b", "PWD=***;PWD=***"},
    {"Quoted", u"Password=\"a;b\";UID=u", "Password=***;UID=u"},
    {"QuotedWithQuotes", u"Password=\"a\"\";b\";UID=u", "Password=***;UID=u"},
    {"QuotedBeginsWithQuotes", u"Password=\"\"\"a;b\";UID=u", "Password=***;UID=u"},
    {"Apostrophes", u"Password='a;''b';UID=u", "Password=***;UID=u"},
    {"Braces", u"PWD={a;}}b};UID=u", "PWD=***;UID=u"},
    {"BracesOpen", u"PWD={a;b", "PWD=***"},
    {"QuotesOpen", u"PWD=\"a;b\nnext", "PWD=***\nnext"},
    {"Extended", u"Extended Properties=\"DRIVER=x;PWD=abc;\";Mode=Read",
     "Extended Properties=\"DRIVER=x;PWD=***;\";Mode=Read"},
    {"ExtendedLast", u"Extended Properties=\"DRIVER=x;PWD=a\"\"bc\";Mode=Read",
     "Extended Properties=\"DRIVER=x;PWD=***\";Mode=Read"},
    {"ExtendedEmpty", u"Extended Properties=\"DRIVER=x;PWD=\";Mode=Read",
     "Extended Properties=\"DRIVER=x;PWD=\";Mode=Read"},
    {"ExtendedEmptyAtTheEnd", u"Extended Properties=\"DRIVER=x;PWD=\"", "Extended Properties=\"DRIVER=x;PWD=\""},
    {"QuotesOfAnotherLine", u"a 5\" disk\nPWD=a\"bc", "a 5\" disk\nPWD=***"},
    {"ExtendedQuoted", u"Extended Properties=\"PWD=\"\"a;b\"\";UID=u\"", "Extended Properties=\"PWD=***;UID=u\""},
    {"ExtendedQuotedLast", u"Extended Properties=\"PWD=\"\"a;b\"\"\";Mode=Read",
     "Extended Properties=\"PWD=***\";Mode=Read"},
    {"ExtendedQuotedWithQuotes", u"Extended Properties=\"PWD=\"\"a\"\"\"\";b\"\";UID=u\"",
     "Extended Properties=\"PWD=***;UID=u\""},
    {"NoPassword", u"Provider=x;Data Source=\"password\";", "Provider=x;Data Source=\"password\";"},
    {"NoEquals", u"the password is wrong", "the password is wrong"},
    {"OnlyEquals", u"= =", "= ="},
};
INSTANTIATE_TEST_SUITE_P(Texts, PasswordOfAText, testing::ValuesIn(kTexts),
                         [](const auto& row) { return std::string(row.param.name); });

std::string left_out_after(TextView connection_string, TextView text) {
  Secrets known;
  known.add_passwords_of(connection_string);
  return to_utf8(known.left_out(text));
}

TEST(Secrets, OfAConnectionStringAreLeftOutOfOtherTexts) {
  EXPECT_EQ(left_out_after(u"UID=user1;PWD=abcd;DSN=data", u"user1 abcd data"), "user1 *** data");
  EXPECT_EQ(left_out_after(u"Password=\"ab;\"\"cd\"", u"no ab;\"cd here"), "no *** here");
  EXPECT_EQ(left_out_after(u"Password='ab;''cd'", u"no ab;'cd here"), "no *** here");
  EXPECT_EQ(left_out_after(u"PWD={ab;}}cd}", u"no ab;}cd here"), "no *** here");
  EXPECT_EQ(left_out_after(u"Extended Properties=\"PWD=abcd\"", u"no abcd here"), "no *** here");
  EXPECT_EQ(left_out_after(u"Extended Properties=\"PWD=ab\"\"cd;\"", u"no ab\"cd here"), "no *** here");
  EXPECT_EQ(left_out_after(u"Extended Properties=\"PWD=\"\"ab;cd\"\"\"", u"no ab;cd here"), "no *** here");
  EXPECT_EQ(left_out_after(u"Password=\"\";UID=u", u"near \"\": syntax"), "near \"\": syntax");
  EXPECT_EQ(left_out_after(u"Jet OLEDB:Database Password=abcd", u"no abcd here"), "no *** here");
}

TEST(NamesPassword, TellsWhetherOneStandsInAConnectionString) {
  using script_tool::names_password;
  EXPECT_TRUE(names_password(u"DSN=x;PWD=a"));
  EXPECT_TRUE(names_password(u"Extended Properties=\"DRIVER=x;PWD=a\""));
  EXPECT_TRUE(names_password(u"Password=\"a\";"));
  EXPECT_FALSE(names_password(u"DSN=x;PWD=;"));
  EXPECT_FALSE(names_password(u"DSN=x;Password=\"\";"));
  EXPECT_FALSE(names_password(u"DSN=x;UID=password"));
  EXPECT_FALSE(names_password(u""));
}

}  // namespace
}  // namespace qvr::tests
