#include "query/random_searches.h"

#include <algorithm>

#include "frame/date_text.h"
#include "frame/number_text.h"

namespace qvr::tests {
namespace {

// Long texts may be compared as they stand.
bool is_small(TextView text) {
  return std::ranges::none_of(text, [](char16_t unit) { return (unit >= u'A' && unit <= u'Z') || unit == u'\u00d1'; });
}

bool is_null(const Cell& cell) { return std::holds_alternative<std::monostate>(cell); }

constexpr double kNumbers[] = {-5, 0, 1, 1.5, 10, 20, 1234.5, 0.05};
constexpr std::int64_t kDay = 86400;

std::int64_t day_of(int year, int month, int day) {
  return moment_in(join({decimal(year), u"-", padded(month, 2), u"-", padded(day, 2)})).value().second;
}

struct Sign {
  TextView typed;
  bool (*holds)(double left, double right);
};
constexpr Sign kSigns[] = {{u"<", [](double l, double r) { return l < r; }},
                           {u"<=", [](double l, double r) { return l <= r; }},
                           {u">", [](double l, double r) { return l > r; }},
                           {u">=", [](double l, double r) { return l >= r; }}};

// A test that no null passes.
template <class Test>
std::function<bool(const Cell&)> number_test(Test test) {
  return [test](const Cell& cell) { return !is_null(cell) && test(std::get<double>(cell)); };
}
template <class Test>
std::function<bool(const Cell&)> date_test(Test test) {
  return [test](const Cell& cell) { return !is_null(cell) && test(std::get<Moment>(cell).second); };
}

}  // namespace

MeantSearch RandomSearches::next(char16_t letter) {
  constexpr TextView kOrSigns[] = {u";", u"; ", u" ; ", u" | "}, kAndSigns[] = {u" & "};
  constexpr TextView kOrWords[] = {u" o ", u" or ", u" OU ", u"|"}, kAndWords[] = {u" y ", u" and ", u" Et ", u"&"};
  const bool words = letter != u'T' && letter != u'M';
  MeantSearch search = atom(letter);
  auto all = search.meant;  // of the alternative under way
  std::function<bool(const Cell&)> earlier = [](const Cell&) { return false; };
  for (std::size_t more = below(4); more > 1; --more) {
    const bool is_or = below(2) == 0;
    MeantSearch next = atom(letter);
    const TextView joint = is_or ? (words && below(2) == 0 ? one_of(kOrWords) : one_of(kOrSigns))
                                 : (words && below(2) == 0 ? one_of(kAndWords) : one_of(kAndSigns));
    search.typed += join({joint, next.typed});
    if (is_or) {
      earlier = [earlier, all](const Cell& cell) { return earlier(cell) || all(cell); };
      all = next.meant;
    } else {
      all = [all, meant = next.meant](const Cell& cell) { return all(cell) && meant(cell); };
    }
  }
  search.meant = [earlier, all](const Cell& cell) { return earlier(cell) || all(cell); };
  return search;
}

MeantSearch RandomSearches::atom(char16_t letter) {
  if (below(12) == 0) return null_atom();
  switch (letter) {
    case u'N': return number_atom();
    case u'F': return date_atom();
    case u'L': return truth_atom();
    default: return text_atom(letter == u'M');
  }
}

MeantSearch RandomSearches::null_atom() {
  constexpr TextView kNull[] = {u"Es Nulo", u"is null", u"= EST NUL"}, kNotNull[] = {u"<>Es Nulo", u"! is null"};
  const bool oracle = engine_ == dialect::kOracle;
  const auto null = [oracle](const Cell& cell) {
    const Text* text = std::get_if<Text>(&cell);
    return is_null(cell) || (oracle && text != nullptr && text->empty());
  };
  if (below(2) == 0) return {Text(one_of(kNull)), null};
  return {Text(one_of(kNotNull)), [null](const Cell& cell) { return !null(cell); }};
}

// What is null belongs to what is not so.
MeantSearch RandomSearches::negated(MeantSearch search) {
  return {u"!" + search.typed, [meant = search.meant](const Cell& cell) { return is_null(cell) || !meant(cell); }};
}

Text RandomSearches::number_text(double number) const {
  Text text = number == 1234.5 ? join({u"1", TextView(&locale_.thousands, 1), u"234.5"}) : shortest_number(number);
  if (const std::size_t point = text.rfind(u'.'); point != Text::npos) text[point] = locale_.decimal;
  return text;
}

MeantSearch RandomSearches::number_atom() {
  const double a = one_of(kNumbers), b = one_of(kNumbers), low = std::min(a, b), high = std::max(a, b);
  const Text first = number_text(a), second = number_text(b);
  const auto within = number_test([=](double n) { return n >= low && n <= high; });
  switch (below(9)) {
    case 0: return {first, number_test([=](double n) { return n == a; })};
    case 1: return {u"= " + first, number_test([=](double n) { return n == a; })};
    case 2: return {u"<>" + first, [=](const Cell& cell) { return is_null(cell) || std::get<double>(cell) != a; }};
    case 3: return negated({first, number_test([=](double n) { return n == a; })});
    case 4: return {join({u"entre ", first, u" y ", second}), within};
    case 5: return {join({u"from ", first, u" to ", second}), within};
    case 6: return {join({first, u"..", second}), within};
    case 7: {
      const Sign& sign = one_of(kSigns);
      return negated({join({sign.typed, first}), number_test([=](double n) { return sign.holds(n, a); })});
    }
    default: {
      const Sign& sign = one_of(kSigns);
      return {join({sign.typed, first}), number_test([=](double n) { return sign.holds(n, a); })};
    }
  }
}

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
  const Span a = span(), b = span();
  const auto inside = [a](std::int64_t s) { return s >= a.first && s < a.end; };
  switch (below(9)) {
    case 0: return {a.typed, date_test(inside)};
    case 1: return {u"=" + a.typed, date_test(inside)};
    case 2: return {u"<>" + a.typed, [=](const Cell& c) { return is_null(c) || !inside(std::get<Moment>(c).second); }};
    case 3: return {u"<" + a.typed, date_test([a](std::int64_t s) { return s < a.first; })};
    case 4: return {u"<= " + a.typed, date_test([a](std::int64_t s) { return s < a.end; })};
    case 5: return {u">" + a.typed, date_test([a](std::int64_t s) { return s >= a.end; })};
    case 6: return {a.typed + u"..", date_test([a](std::int64_t s) { return s >= a.first; })};
    case 7: return negated({u">=" + a.typed, date_test([a](std::int64_t s) { return s >= a.first; })});
    default: {
      const Span &low = a.first <= b.first ? a : b, &high = a.first <= b.first ? b : a;
      return {join({low.typed, u" .. ", high.typed}),
              date_test([low, high](std::int64_t s) { return s >= low.first && s < high.end; })};
    }
  }
}

MeantSearch RandomSearches::truth_atom() {
  constexpr TextView kYes[] = {u"s\u00ed", u"YES", u"oui", u"1", u"x", u"Verdadero"}, kNo[] = {u"no", u"Non", u"0"};
  const bool truth = below(2) == 0;
  const Text word(truth ? one_of(kYes) : one_of(kNo));
  const auto test = number_test([truth](double n) { return (n != 0) == truth; });
  switch (below(4)) {
    case 0: return {u"=" + word, test};
    case 1: return negated({word, test});
    case 2: return {u"<>" + word, [test](const Cell& cell) { return is_null(cell) || !test(cell); }};
    default: return {word, test};
  }
}

std::vector<Cell> RandomSearches::rows(char16_t letter) {
  std::vector<Cell> rows = {Cell()};
  if (letter == u'N') {
    for (const double number : kNumbers) rows.push_back(number);
    for (const double number : {-6.0, 5.0, 15.0, 12345.0}) rows.push_back(number);
  } else if (letter == u'L') {
    for (const double number : {-1.0, 0.0, 1.0}) rows.push_back(number);
  } else if (letter == u'F') {
    for (const int month : {1, 2}) {
      for (const int day : {1, 2, 3, 5, 6, 9, 12, 13}) {
        for (const std::int64_t second : {0, 50819, 50829, 50880})
          rows.push_back(Moment{day_of(2011, month, day) + second});
      }
    }
    for (const int year : {2010, 2012}) rows.push_back(Moment{day_of(year, 1, 1)});
  } else {
    for (const TextView text : {u"",
                                u"ana",
                                u"Ana",
                                u"ana l\u00f3pez",
                                u"mariana",
                                u"O'Neil",
                                u"o'neill",
                                u"50%",
                                u"50",
                                u"500",
                                u"a_b",
                                u"axb",
                                u"R&D",
                                u"R and D",
                                u"Nulo, S.A.",
                                u"(b) c",
                                u"x--y",
                                u"/-z-/",
                                u"1=1",
                                u"c",
                                u"cab",
                                u"d",
                                u"a*b",
                                u"a?b",
                                u"a\\b",
                                u"!&/()$#=|",
                                u"50!%",
                                u"bea",
                                u"\u00f1and\u00fa",
                                u"\u00d1AND\u00da",
                                u"x;y",
                                u"\"q\"",
                                u"a#b",
                                u"b"}) {
      if (letter == u'T' || is_small(text)) rows.push_back(Text(text));
    }
  }
  return rows;
}

}  // namespace qvr::tests
