// A thread of a Spanish user on 5 January 2011, and the columns that the search tests share.
#pragma once

#include <gtest/gtest.h>

#include "query/search/search.h"
#include "support/test_thread.h"

namespace qvr::tests {

inline constexpr query::SearchColumn kNombre{u"C.Nombre", u'T'}, kNotas{u"C.Notas", u'M'}, kPrecio{u"P.Precio", u'N'},
    kAlta{u"C.Alta", u'F'}, kActivo{u"C.Activo", u'L'}, kTotal{u"Sum(L.Imp)", u'N'};

enum class UserLanguage { Spanish, English, French };
inline constexpr UserLanguage kSpanish = UserLanguage::Spanish, kEnglish = UserLanguage::English,
                              kFrench = UserLanguage::French;

using Engine::Jet;
using Engine::Oracle;
using Engine::SqlServer;

// What the column is called in the criteria.
TextView label_of(const query::SearchColumn& column);

// The language with the numbers and dates of its home.
void speak(TestThread& thread, UserLanguage language);

// Where users live, with the numbers and dates of that place.
struct Home {
  const char* name;
  char16_t decimal, thousands, date_separator;
  bool day_first;
  TextView currency;
};
inline constexpr Home kHomes[] = {
    {"es-ES", u',', u'.', u'/', true, u"\u20ac"},      {"es-MX", u'.', u',', u'/', true, u"$"},
    {"en-US", u'.', u',', u'/', false, u"$"},          {"en-GB", u'.', u',', u'/', true, u"\u00a3"},
    {"fr-FR", u',', u'\u202f', u'/', true, u"\u20ac"}, {"fr-CH", u'.', u'\'', u'.', true, u"CHF"},
    {"de-CH", u'.', u'\u2019', u'.', true, u"CHF"},
};
void live_in(TestThread& thread, const Home& home);

// "condition | criterion", or "no search".
Text interpreted(const query::SearchColumn& column, Engine engine, TextView search);

struct SearchRow {
  TextView search, condition, criterion = {};  // no condition: no search
};

// A search that is a test of its own.
struct NamedSearch {
  const char* name;
  query::SearchColumn column;
  Engine engine;
  Text search, condition, criterion = {};  // no condition: no search
};

// What a Spanish user types, and what comes of it for one engine.
class SpanishSearch : public ::testing::Test {
 protected:
  SpanishSearch() { speak(thread, kSpanish); }
  static void expect(const query::SearchColumn& column, Engine engine, std::initializer_list<SearchRow> rows);
  static void expect(const NamedSearch& row) {
    expect(row.column, row.engine, {{row.search, row.condition, row.criterion}});
  }

  TestThread thread;
};

}  // namespace qvr::tests
