#include "query/search/random_searches.h"

#include <algorithm>
#include <iterator>

#include "base/number_text.h"

namespace qvr::tests {
namespace {

bool is_null(const Cell& cell) { return std::holds_alternative<std::monostate>(cell); }

constexpr double kNumbers[] = {-5, 0, 1, 1.5, 10, 20, 1234.5, 0.05};

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
  if (below(12) == 0) return null_atom(letter != u'T' && letter != u'M');
  switch (letter) {
    case u'N': return number_atom();
    case u'F': return date_atom();
    case u'L': return truth_atom();
    default: return text_atom(letter == u'M');
  }
}

// In words where they are not text.
MeantSearch RandomSearches::null_atom(bool words) {
  constexpr TextView kNull[] = {u"Es Nulo", u"is null", u"= EST NUL"}, kNotNull[] = {u"<>Es Nulo", u"! is null"};
  constexpr TextView kNullWords[] = {u"nulo", u"VACI\u0301O", u"vacio", u"= vide", u"''"};
  constexpr TextView kNotNullWords[] = {u"no es nulo",  u"is not null", u"N'est  pas nul", u"no vac\u00edo",
                                        u"not is null", u"non nul",     u"<> vacio"};
  const bool oracle = engine_ == Engine::Oracle;
  const auto null = [oracle](const Cell& cell) {
    const Text* text = std::get_if<Text>(&cell);
    return is_null(cell) || (oracle && text != nullptr && text->empty());
  };
  const bool in_words = words && below(2) == 0;
  if (below(2) == 0) return {Text(in_words ? one_of(kNullWords) : one_of(kNull)), null};
  return {Text(in_words ? one_of(kNotNullWords) : one_of(kNotNull)), [null](const Cell& cell) { return !null(cell); }};
}

Text RandomSearches::range_text(TextView first, TextView last) {
  constexpr struct {
    TextView before, between;
  } kForms[] = {{u"", u".."},
                {u"", u" .. "},
                {u"entre ", u" y "},
                {u"between ", u" and "},
                {u"Entre ", u" et "},
                {u"desde ", u" hasta "},
                {u"from ", u" to "},
                {u"de ", u" \u00e0 "},
                {u"a partir de ", u" hasta "},
                {u"since ", u" until "},
                {u"depuis ", u" jusqu'\u00e0 "}};
  const auto& form = one_of(kForms);
  // Three points are none of a range.
  const bool point = first.ends_with(u'.') && form.between == u"..";
  return join({form.before, first, point ? u" .." : form.between, last});
}

Text RandomSearches::open_range(TextView end, bool is_first) {
  constexpr TextView kFrom[] = {u"desde ", u"A partir de ", u"from ", u"since ", u"depuis ", u"\u00e0 partir de "};
  constexpr TextView kUpTo[] = {u"hasta ", u"until ", u"Up  to ", u"jusqu'\u00e0 ", u"jusqu\u2019a "};
  if (below(3) == 0) return is_first ? join({end, end.ends_with(u'.') ? u" .." : u".."}) : join({u"..", end});
  return join({is_first ? one_of(kFrom) : one_of(kUpTo), end});
}

// By an operator before a range with points.
MeantSearch RandomSearches::unequal(MeantSearch range) {
  constexpr TextView kUnequal[] = {u"<>", u"!= "};
  return {join({one_of(kUnequal), range.typed}),
          [meant = range.meant](const Cell& cell) { return is_null(cell) || !meant(cell); }};
}

// Not for texts, where no word negates. What is null belongs to what is not so.
MeantSearch RandomSearches::negated(MeantSearch search) {
  constexpr TextView kNots[] = {u"!", u"! ", u"no ", u"Not  ", u"non "};
  return {join({one_of(kNots), search.typed}),
          [meant = search.meant](const Cell& cell) { return is_null(cell) || !meant(cell); }};
}

// With or without marks or blanks between thousands, and with a currency here and there.
Text RandomSearches::number_text(double number) {
  const TextView marks[] = {TextView(&locale_.thousands, 1), u" ", u""};
  Text text = number == 1234.5 ? join({u"1", one_of(marks), u"234.5"}) : shortest_number(number);
  if (const std::size_t point = text.rfind(u'.'); point != Text::npos) text[point] = locale_.decimal;
  switch (below(12)) {
    case 0: return text + u" \u20ac";
    case 1: return u"EUR " + text;
    default: return text;
  }
}

MeantSearch RandomSearches::number_atom() {
  const double a = one_of(kNumbers), b = one_of(kNumbers), low = std::min(a, b), high = std::max(a, b);
  const Text first = number_text(a), second = number_text(b);
  const auto within = number_test([=](double n) { return n >= low && n <= high; });
  const auto from = number_test([=](double n) { return n >= a; }),
             up_to = number_test([=](double n) { return n <= a; });
  switch (below(14)) {
    case 0: return {first, number_test([=](double n) { return n == a; })};
    case 1: return {u"= " + first, number_test([=](double n) { return n == a; })};
    case 2: return {u"<>" + first, [=](const Cell& cell) { return is_null(cell) || std::get<double>(cell) != a; }};
    case 3: return negated({first, number_test([=](double n) { return n == a; })});
    case 4: return {range_text(first, second), within};
    case 5: return negated({range_text(first, second), within});
    case 7: return {open_range(first, true), from};
    case 8: return {open_range(first, false), up_to};
    case 9: return negated({open_range(first, true), from});
    case 10: return negated({open_range(first, false), up_to});
    case 11: return unequal({join({first, u"..", second}), within});
    case 12: return {join({u"= ", first, u" .. ", second}), within};
    case 6: {
      const Sign& sign = one_of(kSigns);
      return negated({join({sign.typed, first}), number_test([=](double n) { return sign.holds(n, a); })});
    }
    default: {
      const Sign& sign = one_of(kSigns);
      return {join({sign.typed, first}), number_test([=](double n) { return sign.holds(n, a); })};
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

std::vector<Cell> RandomSearches::rows(char16_t letter, Engine engine) {
  if (letter == u'F') return date_rows(engine);
  if (letter == u'L') return {Cell(), -1.0, 0.0, 1.0};
  if (letter != u'N') return text_rows(letter == u'M');
  std::vector<Cell> rows = {Cell(), -6.0, 5.0, 15.0, 12345.0};
  rows.insert(rows.end(), std::begin(kNumbers), std::end(kNumbers));
  return rows;
}

}  // namespace qvr::tests
