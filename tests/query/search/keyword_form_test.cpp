#include "query/search/keyword_form.h"

#include <gtest/gtest.h>

namespace qvr::tests {
namespace {

using query::keyword_form;
using query::phrase_length;

TEST(KeywordForm, HasNeitherCaseNorAccents) {
  EXPECT_EQ(keyword_form(u"Vac\u00edo"), u"VACIO");
  EXPECT_EQ(keyword_form(u"ma\u00f1ana \u00c9T\u00c9 ao\u00fbt \u00e7a"), u"MANANA ETE AOUT CA");
  EXPECT_EQ(keyword_form(u"vaci\u0301o man\u0303ana"), u"VACIO MANANA");
  EXPECT_EQ(keyword_form(u"aujourd\u2019hui"), u"AUJOURD'HUI");
  EXPECT_EQ(keyword_form(u"\u00d7\u00f7\u00df\u00fe"), u"\u00d7\u00f7\u00df\u00de");
}

TEST(KeywordForm, HasOneBlankForMany) { EXPECT_EQ(keyword_form(u"es   nulo"), u"ES NULO"); }

TEST(PhraseLength, CountsWhatWasTyped) {
  EXPECT_EQ(phrase_length(u"vacio", u"vac\u00edo"), 5u);
  EXPECT_EQ(phrase_length(u"VACI\u0301O.", u"vac\u00edo"), 6u);
  EXPECT_EQ(phrase_length(u"es   nulo y", u"es nulo"), 9u);
  EXPECT_EQ(phrase_length(u"es nulos", u"es nulo"), 7u);
}

TEST(PhraseLength, IsZeroForAnythingElse) {
  EXPECT_EQ(phrase_length(u"vaci", u"vac\u00edo"), 0u);
  EXPECT_EQ(phrase_length(u"esnulo", u"es nulo"), 0u);
  EXPECT_EQ(phrase_length(u"", u"es nulo"), 0u);
  EXPECT_EQ(phrase_length(u"\u0301vacio", u"vac\u00edo"), 0u);
}

}  // namespace
}  // namespace qvr::tests
