// What users type into search boxes: the rows that the engine selects are those that were meant.
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
  Text operator()(Moment moment) const {
    constexpr std::int64_t kDay = 86400, kFirstOf1970 = 25569;  // as a Date
    const double day = static_cast<double>(moment.second / kDay + kFirstOf1970);
    return dialect::FechaHoraSQL(engine, Date{day + static_cast<double>(moment.second % kDay) / kDay});
  }
};

// The rows with numbers whose sum tells which of them were selected.
std::vector<std::int64_t> add_table(CheckedScript& script, const SearchedType& type) {
  const Text table(1, type.letter);
  script.run(join({u"CREATE TABLE Searched", table, u" (Weight BIGINT, X ", type.column_type, u")"}));
  std::mt19937_64 random(type.letter);
  std::vector<std::int64_t> weights;
  for (const Cell& cell : RandomSearches::rows(type.letter)) {
    weights.push_back(static_cast<std::int64_t>(random() >> 14));
    script.run(join({u"INSERT INTO Searched", table, u" VALUES (", decimal(weights.back()), u",",
                     std::visit(Literal{script.engine()}, cell), u")"}));
  }
  return weights;
}

}  // namespace

void add_searches(CheckedScript& script) {
  TestThread thread;
  speak(thread, kSpanish);
  for (const SearchedType& type : kTypes) {
    const std::vector<std::int64_t> weights = add_table(script, type);
    const std::vector<Cell> rows = RandomSearches::rows(type.letter);
    RandomSearches random(4, thread.locale, script.engine());
    for (int i = 0; i < kSearchesOfAType; ++i) {
      const MeantSearch search = random.next(type.letter);
      const auto found = query::interpret_search(script.engine(), {u"X", type.letter}, search.typed, u"X");
      std::int64_t expected = 0;
      for (std::size_t row = 0; row < rows.size(); ++row) expected += search.meant(rows[row]) ? weights[row] : 0;
      const Text condition = found ? found->condition : Text(u"no search");
      script.check(std::string("search ") + static_cast<char>(type.letter) + " " + std::to_string(i),
                   join({u"(SELECT Coalesce(Sum(Weight),0) FROM Searched", Text(1, type.letter), u" WHERE (", condition,
                         u"))=", decimal(expected)}));
    }
  }
}

}  // namespace qvr::tests
