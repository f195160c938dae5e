#include "query/search/search_fixture.h"

#include "base/utf8.h"

namespace qvr::tests {

TextView label_of(const query::SearchColumn& column) {
  if (column.expression == kTotal.expression) return u"Total";
  return column.expression.substr(column.expression.find(u'.') + 1);
}

void speak(TestThread& thread, UserLanguage language) {
  constexpr TextView kSettings[] = {u"0", u"1", u"3"};
  thread.load_language(kSettings[static_cast<int>(language)]);
  thread.locale.decimal = language == kEnglish ? u'.' : u',';
  thread.locale.thousands = language == kEnglish ? u',' : language == kSpanish ? u'.' : u'\u00a0';
  thread.locale.day_first = language != kEnglish;
}

void live_in(TestThread& thread, const Home& home) {
  thread.locale.decimal = home.decimal;
  thread.locale.thousands = home.thousands;
  thread.locale.date_separator = home.date_separator;
  thread.locale.day_first = home.day_first;
  thread.locale.currency = home.currency;
}

Text interpreted(const query::SearchColumn& column, Engine engine, TextView search) {
  const auto found = query::interpret_search(engine, column, search, label_of(column));
  return found ? join({found->condition, u" | ", found->criterion}) : Text(u"no search");
}

void SpanishSearch::expect(const query::SearchColumn& column, Engine engine, std::initializer_list<SearchRow> rows) {
  for (const SearchRow& row : rows) {
    const Text expected = row.condition.empty() ? Text(u"no search") : join({row.condition, u" | ", row.criterion});
    EXPECT_EQ(interpreted(column, engine, row.search), expected) << to_utf8(row.search);
  }
}

}  // namespace qvr::tests
