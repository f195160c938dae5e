// Random searches for columns of text.
#include <algorithm>

#include "query/search/like_rules.h"
#include "query/search/random_searches.h"

namespace qvr::tests {
namespace {

constexpr TextView kWords[] = {u"ana",  u"O'Neil", u"50%",  u"a_b", u"R&D", u"and",
                               u"Nulo", u"(b)",    u"x--y", u"/-z", u"1=1", u"\u00f1and\u00fa",
                               u"a\\b", u"a#b",    u"50!%", u"y",   u"bea"};
constexpr TextView kPlainWords[] = {u"ana", u"b", u"c", u"bea", u"ca"};
constexpr TextView kEnds[] = {u"ana", u"b", u"c", u"bea", u"ca", u"o'neil", u"p"};

// Long texts may be compared as they stand.
bool is_small(TextView text) {
  return std::ranges::none_of(text, [](char16_t unit) { return (unit >= u'A' && unit <= u'Z') || unit == u'\u00d1'; });
}

bool is_null(const Cell& cell) { return std::holds_alternative<std::monostate>(cell); }

// A test that no null passes, on the text in capitals.
template <class Test>
std::function<bool(const Cell&)> text_test(bool empty_is_null, Test test) {
  return [=](const Cell& cell) {
    const Text* text = std::get_if<Text>(&cell);
    return text != nullptr && !(empty_is_null && text->empty()) && test(in_capitals(*text));
  };
}

}  // namespace

// Memos are compared as they stand by SQL Server: only the words in small letters mean the same to all.
MeantSearch RandomSearches::text_atom(bool memo) {
  const bool oracle = engine_ == Engine::Oracle, by_case = memo && engine_ == Engine::SqlServer;
  const auto word_of = [&] { return Text(by_case ? one_of(kPlainWords) : one_of(kWords)); };
  const Text word = word_of(), capitals = in_capitals(word);
  const auto contains = text_test(oracle, [=](const Text& t) { return t.find(capitals) != Text::npos; });
  const auto equals = text_test(oracle, [=](const Text& t) { return t == capitals; });
  const auto begins = text_test(oracle, [=](const Text& t) { return t.starts_with(capitals); });
  const auto not_so = [oracle](std::function<bool(const Cell&)> test) {
    return [=](const Cell& cell) {
      const Text* text = std::get_if<Text>(&cell);
      return is_null(cell) || (oracle && text->empty()) || !test(cell);
    };
  };
  const auto empty = [](const Cell& cell) { return is_null(cell) || std::get<Text>(cell).empty(); };
  switch (below(memo ? 17 : 22)) {
    case 0: return {word, contains};
    case 1: {
      const Text other = word_of(), other_capitals = in_capitals(other);
      const auto also = text_test(oracle, [=](const Text& t) { return t.find(other_capitals) != Text::npos; });
      return {join({word, u" ", other}), [=](const Cell& cell) { return contains(cell) && also(cell); }};
    }
    case 2: return {join({u"\"", word, u"\""}), contains};
    case 3: return {word + u"*", begins};
    case 4: return {u"*" + word, text_test(oracle, [=](const Text& t) { return t.ends_with(capitals); })};
    case 5: return {u"=" + word, equals};
    case 6: return {u"<> " + word, not_so(equals)};
    case 7: return {u"!" + word, not_so(contains)};
    case 8: return {join({u"<>", word, u"*"}), not_so(begins)};
    case 9:
      return {join({u"LIKE '", word, u"?*'"}),
              text_test(oracle, [=](const Text& t) { return t.starts_with(capitals) && t.size() > capitals.size(); })};
    case 10: return {below(2) == 0 ? u"=" : u"\"\"", empty};
    case 11: return {below(2) == 0 ? u"<>" : u"*", [=](const Cell& cell) { return !empty(cell); }};
    case 12:
    case 13: {
      // Points between quotes are no range.
      const Text dotted = join({word, u"..", word_of()}), dotted_capitals = in_capitals(dotted);
      const auto there = text_test(oracle, [=](const Text& t) { return t.find(dotted_capitals) != Text::npos; });
      if (below(4) == 0) return {join({u"!'", dotted, u"'"}), not_so(there)};
      const TextView quote = below(2) == 0 ? u"'" : u"\"";
      return {join({quote, dotted, quote}), there};
    }
    case 14: return {join({below(2) == 0 ? u"NOT LIKE '" : u"not  like '", word, u"*'"}), not_so(begins)};
    case 15: {
      const Text other = word_of(), other_capitals = in_capitals(other);
      const auto both = text_test(oracle, [=](const Text& t) {
        return t.find(capitals) != Text::npos && t.find(other_capitals) != Text::npos;
      });
      return {join({u"!", word, u" ", other}), not_so(both)};
    }
    case 16: return {below(2) == 0 ? u"- " + word : word + u" ,", contains};
    case 17: {
      MeantSearch ordered = ordered_text_atom();
      return {u"! " + ordered.typed, not_so(ordered.meant)};
    }
    default: return ordered_text_atom();
  }
}

MeantSearch RandomSearches::ordered_text_atom() {
  const bool oracle = engine_ == Engine::Oracle;
  const Text a = in_capitals(one_of(kEnds)), b = in_capitals(one_of(kEnds));
  switch (below(5)) {
    case 0: return {u">=" + a, text_test(oracle, [=](const Text& t) { return t >= a; })};
    case 1: return {u"< " + a, text_test(oracle, [=](const Text& t) { return t < a; })};
    case 2: return {u"<=" + a, text_test(oracle, [=](const Text& t) { return t <= a; })};
    case 3:
      return {join({u"<=", a, u"*"}), text_test(oracle, [=](const Text& t) { return t <= a || t.starts_with(a); })};
    default: return text_range(a, b);
  }
}

// Each end in quotes or as it is, up to all that begins with the last one; the other way about where that would be
// nothing.
MeantSearch RandomSearches::text_range(TextView a, TextView b) {
  const bool reversed = b < a && !a.starts_with(b);
  const Text low(reversed ? b : a), high(reversed ? a : b);
  constexpr TextView kQuotes[] = {u"", u"'", u"\""};
  const TextView around_a = one_of(kQuotes), around_b = one_of(kQuotes);
  const Text typed = join({around_a, a, around_a, u"..", around_b, b, around_b});
  return {typed, text_test(engine_ == Engine::Oracle,
                           [=](const Text& t) { return t >= low && (t <= high || t.starts_with(high)); })};
}

std::vector<Cell> RandomSearches::text_rows(bool memo) {
  constexpr TextView kTexts[] = {u"",
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
                                 u"b",
                                 u"bea..ana",
                                 u"<ana..bea>"};
  std::vector<Cell> rows = {Cell()};
  for (const TextView text : kTexts) {
    if (!memo || is_small(text)) rows.push_back(Text(text));
  }
  return rows;
}

}  // namespace qvr::tests
