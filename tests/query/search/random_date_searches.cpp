// Random searches for columns of dates.
#include "base/date_text.h"
#include "base/number_text.h"
#include "query/search/random_searches.h"

namespace qvr::tests {
namespace {

constexpr std::int64_t kDay = 86400;

std::int64_t day_of(int year, int month, int day) {
  return moment_in(join({decimal(year), u"-", padded(month, 2), u"-", padded(day, 2)})).value().second;
}

bool is_null(const Cell& cell) { return std::holds_alternative<std::monostate>(cell); }

// A test that no null passes.
template <class Test>
std::function<bool(const Cell&)> date_test(Test test) {
  return [test](const Cell& cell) { return !is_null(cell) && test(std::get<Moment>(cell).second); };
}

}  // namespace

Text RandomSearches::day_text(int month, int day) const {
  const Text d = padded(day, 2), m = padded(month, 2);
  return join({locale_.day_first ? d : m, u"/", locale_.day_first ? m : d, u"/2011"});
}

RandomSearches::Span RandomSearches::span() {
  const int month = 1 + static_cast<int>(below(2)), day = 1 + static_cast<int>(below(12));
  const std::int64_t start = day_of(2011, month, day), today = day_of(2011, 1, 5);
  switch (below(7)) {
    case 0: return {u"2011", day_of(2011, 1, 1), day_of(2012, 1, 1)};
    case 1: return {u"01/2011", day_of(2011, 1, 1), day_of(2011, 2, 1)};
    case 2: return {day_text(month, day) + u" 14:07", start + 50820, start + 50880};
    case 3: return {day_text(month, day) + u" 14:07:09", start + 50829, start + 50830};
    case 4: return {join({u"2011-", padded(month, 2), u"-", padded(day, 2)}), start, start + kDay};
    case 5: return {u"hoy - 3", today - 3 * kDay, today - 2 * kDay};
    default: return {day_text(month, day), start, start + kDay};
  }
}

MeantSearch RandomSearches::date_atom() {
  const Span a = span();
  const auto inside = [a](std::int64_t s) { return s >= a.first && s < a.end; };
  switch (below(11)) {
    case 0: return {a.typed, date_test(inside)};
    case 1: return {u"=" + a.typed, date_test(inside)};
    case 2: return {u"<>" + a.typed, [=](const Cell& c) { return is_null(c) || !inside(std::get<Moment>(c).second); }};
    case 3: return {u"<" + a.typed, date_test([a](std::int64_t s) { return s < a.first; })};
    case 4: return {u"<= " + a.typed, date_test([a](std::int64_t s) { return s < a.end; })};
    case 5: return {u">" + a.typed, date_test([a](std::int64_t s) { return s >= a.end; })};
    case 6: return {a.typed + u"..", date_test([a](std::int64_t s) { return s >= a.first; })};
    case 7: return negated({u">=" + a.typed, date_test([a](std::int64_t s) { return s >= a.first; })});
    case 8: return negated(date_range());
    case 9: return {(below(2) == 0 ? u"!<>" : u"no <> ") + a.typed, date_test(inside)};
    default: return date_range();
  }
}

// From where the one begins to where the other ends; the other way about where that would be nothing.
MeantSearch RandomSearches::date_range() {
  const Span a = span(), b = span();
  const bool reversed = b.end <= a.first;
  const std::int64_t first = reversed ? b.first : a.first, end = reversed ? a.end : b.end;
  return {range_text(a.typed, b.typed), date_test([=](std::int64_t s) { return first <= s && s < end; })};
}

std::vector<Cell> RandomSearches::date_rows() {
  std::vector<Cell> rows = {Cell()};
  for (const int month : {1, 2}) {
    for (const int day : {1, 2, 3, 5, 6, 9, 12, 13}) {
      for (const std::int64_t second : {0, 50819, 50829, 50880})
        rows.push_back(Moment{day_of(2011, month, day) + second});
    }
  }
  for (const int year : {2010, 2012}) rows.push_back(Moment{day_of(year, 1, 1)});
  return rows;
}

}  // namespace qvr::tests
