// Words of every column type: null, LIKE and its negation, punctuation alone, and keywords however they are typed.
#include "base/utf8.h"
#include "query/search/condition_evaluator.h"
#include "query/search/search_fixture.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

class SearchWords : public SpanishSearch {
 protected:
  static void expect_same(const query::SearchColumn& column, TextView typed, TextView plainly) {
    for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle}) {
      const Text found = interpreted(column, engine, typed);
      EXPECT_NE(found, u"no search") << to_utf8(typed);
      EXPECT_EQ(found, interpreted(column, engine, plainly)) << to_utf8(typed) << "\n" << to_utf8(plainly);
    }
  }
};

struct ValueRow {
  const char* name;
  TextView typed;
};
// For numbers, dates and truth.
constexpr ValueRow kValueRows[] = {
    {"es, phrase", u"no es nulo"},
    {"es, phrase in capitals", u"NO  ES NULO"},
    {"es, phrase negated by a sign", u"!es nulo"},
    {"es, phrase negated by an operator", u"<> Es Nulo"},
    {"es, phrase negated by the other operator", u"!= es nulo"},
    {"es, phrase behind a word", u"not es nulo"},
    {"es, word", u"no nulo"},
    {"es, empty", u"no vac\u00edo"},
    {"es, empty without an accent", u"no vacio"},
    {"es, empty behind a sign", u"! VAC\u00cdO"},
    {"es, empty behind an operator", u"<>vac\u00edo"},
    {"en, phrase", u"is not null"},
    {"en, phrase in capitals", u"IS  NOT NULL"},
    {"en, phrase behind a word", u"not is null"},
    {"en, phrase behind an operator", u"<> is null"},
    {"en, word", u"not null"},
    {"en, empty", u"not empty"},
    {"fr, phrase", u"n'est pas nul"},
    {"fr, phrase with a curly apostrophe", u"N\u2019est  pas nul"},
    {"fr, phrase behind a word", u"non est nul"},
    {"fr, word", u"non nul"},
    {"fr, empty", u"non vide"},
    {"quotes", u"no \"\""},
    {"single quotes behind a sign", u"! ''"},
    {"single quotes behind an operator", u"<> ''"},
    {"an operator alone", u"<>"},
    {"an asterisk", u"*"},
};

class HasAValue : public Rows<SearchWords, ValueRow> {};

TEST_P(HasAValue, IsNotNull) {
  for (const query::SearchColumn& column : {kPrecio, kAlta, kActivo}) {
    const TextView label = label_of(column);
    expect(column, Engine::Jet,
           {{GetParam().typed, join({u"Not (", column.expression, u" Is Null)"}), join({label, u" <> Es Nulo"})}});
    expect_same(column, GetParam().typed, u"<> Es Nulo");
    if (GetParam().typed != u"<>")
      expect_same(column, join({GetParam().typed, u" y ", GetParam().typed}), u"<> Es Nulo y <> Es Nulo");
    expect_same(column, join({u"Es Nulo; ", GetParam().typed}), u"Es Nulo; <> Es Nulo");
  }
}

INSTANTIATE_TEST_SUITE_P(, HasAValue, ::testing::ValuesIn(kValueRows), row_name);

TEST_F(SearchWords, ThatNegateANullTestTwiceAreNone) {
  for (const query::SearchColumn& column : {kPrecio, kAlta, kActivo}) {
    for (const TextView typed : {u"!<>nulo", u"no <> es nulo", u"not != is null", u"non <>"}) {
      expect_same(column, typed, u"Es Nulo");
    }
  }
}

TEST_F(SearchWords, ThatTellOfAValueAreTheWholeOfAText) {
  for (const query::SearchColumn& column : {kNombre, kNotas}) {
    for (const TextView typed : {u"no es nulo", u"No  Es Nulo", u"is not null", u"IS NOT NULL", u"n'est pas nul",
                                 u"N\u2019EST PAS NUL", u"<> Es Nulo", u"! is null", u"  no es nulo "}) {
      expect(column, Engine::Jet,
             {{typed, join({u"Not (", column.expression, u" Is Null)"}), join({label_of(column), u" <> Es Nulo"})}});
      expect_same(column, typed, u"<>Es Nulo");
    }
  }
  expect(kNombre, Engine::Jet,
         {{u"no es nulo aqu\u00ed",
           u"C.Nombre LIKE '%no%' And C.Nombre LIKE '%es%' And C.Nombre LIKE '%nulo%' And C.Nombre LIKE '%aqu\u00ed%'",
           u"Nombre es como '*no*' y es como '*es*' y es como '*nulo*' y es como '*aqu\u00ed*'"},
          {u"not null", u"C.Nombre LIKE '%not%' And C.Nombre LIKE '%null%'",
           u"Nombre es como '*not*' y es como '*null*'"},
          {u"vac\u00edo", u"C.Nombre LIKE '%vac\u00edo%'", u"Nombre es como '*vac\u00edo*'"},
          {u"no vacio", u"C.Nombre LIKE '%no%' And C.Nombre LIKE '%vacio%'",
           u"Nombre es como '*no*' y es como '*vacio*'"}});
}

constexpr char16_t kNotAna[] = u"(C.Nombre NOT LIKE 'Ana%' Or C.Nombre Is Null)";
constexpr char16_t kShownNotAna[] = u"Nombre <> es como 'Ana*'";
const NamedSearch kNotLikeRows[] = {
    {"in capitals", kNombre, Engine::Jet, u"NOT LIKE Ana*", kNotAna, kShownNotAna},
    {"in capitals with blanks", kNombre, Engine::Jet, u"NOT   LIKE  Ana*", kNotAna, kShownNotAna},
    {"in capitals before plain text", kNombre, Engine::Jet, u"NOT LIKE Ana",
     u"(C.Nombre NOT LIKE 'Ana' Or C.Nombre Is Null)", u"Nombre <> es como 'Ana'"},
    {"in capitals before quotes", kNombre, Engine::Jet, u"NOT LIKE 'Ana*'", kNotAna, kShownNotAna},
    {"in small letters before a pattern", kNombre, Engine::Jet, u"not like Ana*", kNotAna, kShownNotAna},
    {"in small letters before quotes", kNombre, Engine::Jet, u"not like 'Ana*'", kNotAna, kShownNotAna},
    {"in small letters before double quotes", kNombre, Engine::Jet, u"Not Like \"Ana\"",
     u"(C.Nombre NOT LIKE 'Ana' Or C.Nombre Is Null)", u"Nombre <> es como 'Ana'"},
    {"in small letters before plain text is text", kNombre, Engine::Jet, u"not like Ana",
     u"C.Nombre LIKE '%not%' And C.Nombre LIKE '%like%' And C.Nombre LIKE '%Ana%'",
     u"Nombre es como '*not*' y es como '*like*' y es como '*Ana*'"},
    {"of a memo, SQL Server", kNotas, Engine::SqlServer, u"NOT LIKE Ana*",
     u"(C.Notas NOT LIKE N'Ana%' Or C.Notas Is Null)", u"Notas <> es como 'Ana*'"},
    {"of a memo, Oracle", kNotas, Engine::Oracle, u"not like 'Ana*'",
     u"( UPPER(C.Notas) NOT LIKE UPPER('Ana%') Or C.Notas Is Null)", u"Notas <> es como 'Ana*'"},
    {"behind another condition", kNombre, Engine::Jet, u"bea & NOT LIKE Ana*",
     join({u"C.Nombre LIKE '%bea%' And ", kNotAna}), u"Nombre es como '*bea*' y <> es como 'Ana*'"},
    {"behind an alternative", kNombre, Engine::Jet, u"bea; not like 'Ana*'",
     join({u"C.Nombre LIKE '%bea%' Or ", kNotAna}), u"Nombre es como '*bea*'; <> es como 'Ana*'"},
    {"of a number", kPrecio, Engine::Jet, u"NOT LIKE 1*", u""},
    {"of a date", kAlta, Engine::Jet, u"NOT LIKE 2011*", u""},
};

using NotLike = Rows<SpanishSearch, NamedSearch>;

TEST_P(NotLike, IsLikeNegated) { expect(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, NotLike, ::testing::ValuesIn(kNotLikeRows), row_name);

TEST_F(SearchWords, OfPunctuationAreDroppedAtEitherEndOfAText) {
  for (const query::SearchColumn& column : {kNombre, kNotas}) {
    for (const TextView typed :
         {u"& Marks", u"Marks &", u"| Marks", u"Marks |", u"- Marks", u"Marks -", u"Marks ,", u"... Marks", u"Marks .",
          u"& - Marks", u"Marks - &", u"& Marks &", u"  &  Marks  & ", u"& & Marks", u"| | Marks", u"| & Marks"}) {
      expect_same(column, typed, u"Marks");
    }
    expect_same(column, u"Marks & Spencer &", u"Marks & Spencer");
    expect_same(column, u"& Marks | Spencer", u"Marks; Spencer");
    expect_same(column, u"Spencer; & Marks", u"Spencer; Marks");
    expect_same(column, u"Marks - Spencer", u"Marks Spencer");
  }
  expect(kNombre, Engine::Jet,
         {{u"Marks &", u"C.Nombre LIKE '%Marks%'", u"Nombre es como '*Marks*'"},
          {u"& Marks", u"C.Nombre LIKE '%Marks%'", u"Nombre es como '*Marks*'"},
          {u"\"&\" Marks", u"C.Nombre LIKE '%&%' And C.Nombre LIKE '%Marks%'",
           u"Nombre es como '*&*' y es como '*Marks*'"}});
}

// Nothing is shown that the condition does not say, nor the other way about.
TEST_F(SearchWords, OfPunctuationAreShownWhereTheyAreSearched) {
  for (const TextView value : {u"Marks -", u"- Marks", u"Marks &", u"& Marks", u"-", u"& &"}) {
    for (const TextView before : {u"=", u"<>", u"LIKE ", u"NOT LIKE ", u">", u"<=", u"!", u""}) {
      const Text typed = join({before, value});
      const auto found = query::interpret_search(Engine::Jet, kNombre, typed, u"X");
      if (!found) continue;
      const auto again = query::interpret_search(Engine::Jet, kNombre, TextView(found->criterion).substr(2), u"X");
      ASSERT_TRUE(again) << to_utf8(typed) << "\n" << to_utf8(found->criterion);
      EXPECT_EQ(again->condition, found->condition) << to_utf8(typed);
      for (const TextView part : {u"Marks", u"-", u"&"}) {
        EXPECT_EQ(found->condition.find(part) == Text::npos, found->criterion.find(part) == Text::npos)
            << to_utf8(typed) << "\n"
            << to_utf8(found->condition) << "\n"
            << to_utf8(found->criterion);
      }
    }
  }
}

// The same keyword in small letters, in capitals, without accents and with combining ones.
struct KeywordRow {
  const char* name;
  query::SearchColumn column;
  TextView plainly;
  std::initializer_list<TextView> typed;
};
const KeywordRow kKeywordRows[] = {
    {"empty",
     kPrecio,
     u"Es Nulo",
     {u"vac\u00edo", u"vacio", u"VAC\u00cdO", u"Vacio", u"vaci\u0301o", u"VACI\u0301O", u"= vacio"}},
    {"empty date",
     kAlta,
     u"Es Nulo",
     {u"vac\u00edo", u"vacio", u"VAC\u00cdO", u"vaci\u0301o", u"EMPTY", u"Vide", u"NUL"}},
    {"empty truth", kActivo, u"Es Nulo", {u"vac\u00edo", u"vacio", u"VAC\u00cdO", u"vaci\u0301o", u"Null", u"NULO"}},
    {"null phrase", kNotas, u"Es Nulo", {u"es nulo", u"ES NULO", u"Is Null", u"EST NUL"}},
    {"like phrase",
     kNombre,
     u"LIKE '\u00c9*'",
     {u"like \u00c9*", u"ES COMO \u00c9*", u"es  como '\u00c9*'", u"Is Like \"\u00c9\"*", u"EST COMME \u00c9*"}},
    {"yes",
     kActivo,
     u"1",
     {u"s\u00ed", u"si", u"S\u00cd", u"SI", u"si\u0301", u"SI\u0301", u"S", u"Oui", u"YES", u"VERDADERO", u"Vrai"}},
    {"no", kActivo, u"0", {u"NO", u"Non", u"FALSO", u"False", u"FAUX"}},
    {"between", kPrecio, u"5..10", {u"ENTRE 5 Y 10", u"Between 5 And 10", u"entre 5 ET 10", u"Entre 5 E 10"}},
    {"from to",
     kPrecio,
     u"5..10",
     {u"de 5 \u00e0 10", u"de 5 a 10", u"DE 5 \u00c0 10", u"De 5 a\u0300 10", u"DU 5 AU 10", u"Desde 5 Hasta 10",
      u"FROM 5 TO 10"}},
    {"starting from",
     kTotal,
     u"5..",
     {u"\u00e0 partir de 5", u"\u00c0 PARTIR DE 5", u"a\u0300 partir de 5", u"a partir de 5"}},
    {"until",
     kTotal,
     u"..5",
     {u"jusqu'\u00e0 5", u"jusqu'a 5", u"JUSQU'\u00c0 5", u"jusqu\u2019\u00e0 5", u"jusqu'a\u0300 5"}},
    {"negation", kPrecio, u"!5", {u"NO 5", u"Not 5", u"NON 5"}},
    {"and, or", kPrecio, u">1 & <2; 3", {u">1 Y <2 O 3", u">1 E <2 U 3", u">1 AND <2 OR 3", u">1 Et <2 Ou 3"}},
};

class Keyword : public Rows<SearchWords, KeywordRow> {};

TEST_P(Keyword, IsReadHoweverItIsTyped) {
  for (const TextView typed : GetParam().typed) expect_same(GetParam().column, typed, GetParam().plainly);
}

INSTANTIATE_TEST_SUITE_P(, Keyword, ::testing::ValuesIn(kKeywordRows), row_name);

TEST_F(SearchWords, ThatAreSearchedKeepCaseAndAccents) {
  expect(kNombre, Engine::Jet,
         {{u"P\u00e9rez", u"C.Nombre LIKE '%P\u00e9rez%'", u"Nombre es como '*P\u00e9rez*'"},
          {u"pe\u0301rez", u"C.Nombre LIKE '%pe\u0301rez%'", u"Nombre es como '*pe\u0301rez*'"},
          {u"=Se\u00f1or  \u00d1\u00fa", u"C.Nombre='Se\u00f1or  \u00d1\u00fa'", u"Nombre = Se\u00f1or  \u00d1\u00fa"},
          {u"es como '\u00c1\u00c9*'", u"C.Nombre LIKE '\u00c1\u00c9%'", u"Nombre es como '\u00c1\u00c9*'"},
          {u"NOT LIKE \u00f1*", u"(C.Nombre NOT LIKE '\u00f1%' Or C.Nombre Is Null)", u"Nombre <> es como '\u00f1*'"},
          {u"ma\u00f1ana", u"C.Nombre LIKE '%ma\u00f1ana%'", u"Nombre es como '*ma\u00f1ana*'"},
          {u"manana", u"C.Nombre LIKE '%manana%'", u"Nombre es como '*manana*'"}});
}

// However it is shown, what is negated in a longer condition is one test, which can be typed again.
struct NegatedTextRow {
  const char* name;
  TextView typed;
  bool (*meant)(TextView text);
};
const NegatedTextRow kNegatedTextRows[] = {
    {"words", u"! ana bea", [](TextView t) { return t.find(u"ana") == t.npos || t.find(u"bea") == t.npos; }},
    {"a range", u"!b..d", [](TextView t) { return t < u"b" || t >= u"e"; }},
    {"above", u"!>b", [](TextView t) { return t <= u"b"; }},
    {"at least", u"! >= b", [](TextView t) { return t < u"b"; }},
    {"below", u"!<b", [](TextView t) { return t >= u"b"; }},
    {"at most", u"!<=b", [](TextView t) { return t > u"b"; }},
    {"at most all that begins so", u"!<=b*", [](TextView t) { return t >= u"c"; }},
    {"a word", u"!ana", [](TextView t) { return t.find(u"ana") == t.npos; }},
    {"equal", u"!=ana", [](TextView t) { return t != u"ana"; }},
    {"a pattern", u"!ana*", [](TextView t) { return !t.starts_with(u"ana"); }},
};

using NegatedText = Rows<SpanishSearch, NegatedTextRow>;

TEST_P(NegatedText, IsOneTestInALongerCondition) {
  constexpr TextView kTexts[] = {u"", u"a", u"ana", u"ana bea", u"anab", u"b", u"ba", u"c", u"d", u"dz", u"e", u"x"};
  const auto& [name, negation, meant] = GetParam();
  for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle}) {
    for (const auto& [before, behind] : {std::pair<TextView, TextView>{u"", u""},
                                         {u"", u" & <>x"},
                                         {u"<>x & ", u""},
                                         {u"<>x & ", u" & <>e"},
                                         {u"zz & zzz; ", u" & <>x"}}) {
      const Text typed = join({before, negation, behind});
      const bool not_x = before.starts_with(u"<>") || !behind.empty(), not_e = behind == u" & <>e";
      const auto found = query::interpret_search(engine, {u"X", u'T'}, typed, u"X");
      ASSERT_TRUE(found) << to_utf8(typed);
      for (const TextView text : kTexts) {
        const bool null = text.empty() && engine == Engine::Oracle;
        const bool expected = (null || meant(text)) && !(not_x && text == u"x") && !(not_e && text == u"e");
        EXPECT_EQ(selects(engine, found->condition, Text(text)), expected) << to_utf8(typed) << "\n"
                                                                           << to_utf8(found->condition) << "\n"
                                                                           << to_utf8(text);
      }
      EXPECT_EQ(selects(engine, found->condition, Cell()), true) << to_utf8(found->condition);
      const auto again = query::interpret_search(engine, {u"X", u'T'}, TextView(found->criterion).substr(2), u"X");
      ASSERT_TRUE(again) << to_utf8(found->criterion);
      EXPECT_EQ(again->condition, found->condition) << to_utf8(found->criterion);
      EXPECT_EQ(again->criterion, found->criterion);
    }
  }
}

// Nothing is multiplied out: each negation is in the condition once.
TEST_P(NegatedText, IsNotRepeated) {
  const Text one = join({GetParam().typed, u" & <>x"});
  const auto negation = query::interpret_search(Engine::Jet, {u"X", u'T'}, one, u"X");
  ASSERT_TRUE(negation);
  const std::size_t joined = joints(Engine::Jet, negation->condition);
  const Text four = join({one, u" & ", GetParam().typed, u" & ", GetParam().typed, u" & ", GetParam().typed});
  const auto all = query::interpret_search(Engine::Jet, {u"X", u'T'}, four, u"X");
  ASSERT_TRUE(all);
  EXPECT_EQ(joints(Engine::Jet, all->condition), 4 * (joined - 1) + 1);
}

INSTANTIATE_TEST_SUITE_P(, NegatedText, ::testing::ValuesIn(kNegatedTextRows), row_name);

}  // namespace
}  // namespace qvr::tests
