// What users type into search boxes: the rows that the engine selects are those that were meant.
#include <cmath>
#include <random>
#include <string>

#include "base/number_text.h"
#include "dialect/literals.h"
#include "engines/checked_script.h"
#include "query/search/random_searches.h"
#include "query/search/search_fixture.h"

namespace qvr::tests {
namespace {

constexpr int kSearchesOfAType = 150;

// A search and the same in other words, which selects the same rows.
constexpr struct {
  char16_t letter;
  TextView typed, plainly;
} kSame[] = {{u'F', u"este mes", u"2011-01"},
             {u'F', u"<> semana pasada", u"< 2010-12-27; >= 2011-01-03; nulo"},
             {u'F', u"desde ene 2011 hasta febrero", u">= 2011-01-01 & < 2011-03-01"},
             {u'F', u"\u00faltimos 7 d\u00edas", u">= 2010-12-30 & < 2011-01-06"},
             {u'F', u"no este a\u00f1o y no 2012", u"< 2011-01-01; >= 2013-01-01; nulo"},
             {u'F', u"no 2010 y no 2011 y no 2012 y no 2013 y no 2014", u"< 2010-01-01; >= 2015-01-01; nulo"},
             {u'F', u"<>2010..2012 y <>9999", u"< 2010-01-01; >= 2013-01-01 & < 9999-01-01; nulo"},
             {u'F', u"9999", u">= 9999-01-01"},
             {u'F', u"31/12/9999", u"> 9999-12-30"},
             {u'F', u"<= 9999", u"<> nulo"},
             {u'F', u"1011..2011", u"< 2012-01-01 & >= 1011-01-01"},
             {u'F', u"> 1011 y <= 9999-12-30", u">= 1012-01-01 & < 9999-12-31"},
             {u'F', u"! > 2011 y 2011..", u">= 2011-01-01 & < 2012-01-01"},
             {u'N', u"no entre 1 y 10 y <> 20", u"< 1; > 10 & < 20; > 20; nulo"},
             {u'N', u"a partir de 1 hasta 10", u">= 1 & <= 10"},
             {u'N', u"! > 10 y no es nulo", u"<= 10"},
             {u'T', u"! > b & <> Es Nulo & !ana", u"<= b & !ana & <> Es Nulo"},
             {u'T', u"NOT LIKE 'a*'", u"!a*"},
             {u'T', u"ana &", u"ana"}};

struct SearchedType {
  char16_t letter;
  TextView column_type;
};
constexpr SearchedType kTypes[] = {{u'T', u"VARCHAR(100)"},
                                   {u'M', u"VARCHAR(100)"},
                                   {u'N', u"DECIMAL(18,4)"},
                                   {u'F', u"TIMESTAMP"},
                                   {u'L', u"SMALLINT"}};

struct Literal {
  Engine engine;

  Text operator()(std::monostate) const { return u"Null"; }
  Text operator()(const Text& text) const { return dialect::ComillasSQL(text); }
  Text operator()(double number) const { return shortest_number(number); }
  // The time of day lies behind its day in a Date, on either side of the first one.
  Text operator()(Moment moment) const {
    constexpr double kFirstOf1970 = 25569, kSeconds = 86400;
    const double days = std::floor(static_cast<double>(moment.second) / kSeconds);
    const double time = static_cast<double>(moment.second) / kSeconds - days, day = kFirstOf1970 + days;
    return dialect::FechaHoraSQL(engine, Date{day < 0 ? day - time : day + time});
  }
};

// The rows with numbers whose sum tells which of them were selected.
std::vector<std::int64_t> add_table(CheckedScript& script, const SearchedType& type) {
  const Text table(1, type.letter);
  script.run(join({u"CREATE TABLE Searched", table, u" (Weight BIGINT, X ", type.column_type, u")"}));
  std::mt19937_64 random(type.letter);
  std::vector<std::int64_t> weights;
  for (const Cell& cell : RandomSearches::rows(type.letter, script.engine())) {
    weights.push_back(static_cast<std::int64_t>(random() >> 14));
    script.run(join({u"INSERT INTO Searched", table, u" VALUES (", decimal(weights.back()), u",",
                     std::visit(Literal{script.engine()}, cell), u")"}));
  }
  return weights;
}

Text condition_of(Engine engine, char16_t letter, TextView typed) {
  const auto found = query::interpret_search(engine, {u"X", letter}, typed, u"X");
  return found ? found->condition : Text(u"no search");
}

}  // namespace

void add_searches(CheckedScript& script) {
  TestThread thread;
  speak(thread, kSpanish);
  for (const SearchedType& type : kTypes) {
    const std::vector<std::int64_t> weights = add_table(script, type);
    const std::vector<Cell> rows = RandomSearches::rows(type.letter, script.engine());
    RandomSearches random(4, thread.locale, script.engine());
    for (int i = 0; i < kSearchesOfAType; ++i) {
      const MeantSearch search = random.next(type.letter);
      std::int64_t expected = 0;
      for (std::size_t row = 0; row < rows.size(); ++row) expected += search.meant(rows[row]) ? weights[row] : 0;
      const Text condition = condition_of(script.engine(), type.letter, search.typed);
      script.check(std::string("search ") + static_cast<char>(type.letter) + " " + std::to_string(i),
                   join({u"(SELECT Coalesce(Sum(Weight),0) FROM Searched", Text(1, type.letter), u" WHERE (", condition,
                         u"))=", decimal(expected)}));
    }
  }
  int same = 0;
  for (const auto& [letter, typed, plainly] : kSame) {
    const auto weight = [&, table = letter](TextView search) {
      return join({u"(SELECT Coalesce(Sum(Weight),0) FROM Searched", Text(1, table), u" WHERE (",
                   condition_of(script.engine(), table, search), u"))"});
    };
    script.check("same search " + std::to_string(same++), join({weight(typed), u"=", weight(plainly)}));
  }
}

}  // namespace qvr::tests
