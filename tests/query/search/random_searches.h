// Random searches with their meaning: what a user types is written from the meaning, not read back from the text.
#pragma once

#include <chrono>
#include <functional>
#include <random>
#include <vector>

#include "query/search/condition_evaluator.h"
#include "support/fake_locale.h"

namespace qvr::tests {

struct MeantSearch {
  Text typed;
  std::function<bool(const Cell&)> meant;
};

// The same searches from the same seed. Numbers and dates are typed as the locale writes them; `letter` is the
// column's type: T, M, N, F or L.
class RandomSearches {
 public:
  RandomSearches(std::uint64_t seed, const FakeLocale& locale, Engine engine)
      : random_(seed), locale_(locale), engine_(engine) {}

  // Days around which months, quarters and years end and begin; the first is that of a fixture.
  static constexpr std::chrono::sys_days kTodays[] = {std::chrono::year(2011) / 1 / 5, std::chrono::year(2012) / 2 / 29,
                                                      std::chrono::year(2011) / 3 / 31,
                                                      std::chrono::year(2011) / 12 / 31,
                                                      std::chrono::year(2012) / 1 / 1};
  void today_is(std::chrono::sys_days today) { today_ = today; }

  MeantSearch next(char16_t letter);

  // Rows that tell searches for such a column apart, null among them; only what the engine's types hold.
  static std::vector<Cell> rows(char16_t letter, Engine engine);

 private:
  MeantSearch atom(char16_t letter);
  MeantSearch text_atom(bool memo);
  MeantSearch ordered_text_atom();
  MeantSearch text_range(TextView a, TextView b);
  MeantSearch number_atom();
  MeantSearch date_atom();
  MeantSearch date_range(bool with_points = false);
  MeantSearch truth_atom();
  MeantSearch null_atom(bool words);
  MeantSearch negated(MeantSearch search);
  MeantSearch unequal(MeantSearch range);

  struct Span {  // from `first` to before `end`
    Text typed;
    std::int64_t first, end;
  };
  Span span();
  Span edge_span();
  Span words_span();
  Span named_span();
  bool is_before_all(const Span& a) const;
  static std::vector<Cell> date_rows(Engine engine);
  static std::vector<Cell> text_rows(bool memo);
  Text range_text(TextView first, TextView last);
  Text open_range(TextView end, bool is_first);
  Text number_text(double number);
  Text day_text(int month, int day) const;

  std::size_t below(std::size_t limit) { return static_cast<std::size_t>(random_() % limit); }
  template <class Item, std::size_t size>
  const Item& one_of(const Item (&items)[size]) {
    return items[below(size)];
  }

  std::mt19937_64 random_;
  const FakeLocale& locale_;
  Engine engine_;
  std::chrono::sys_days today_ = kTodays[0];
};

}  // namespace qvr::tests
