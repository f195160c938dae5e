// Whatever is typed, a condition is nothing but tests of its column, and what is shown can be typed again.
#include "query/search/search.h"

#include "fuzz/fuzz_input.h"
#include "fuzz/fuzz_thread.h"
#include "query/search/condition_evaluator.h"

namespace qvr::tests {
namespace {

constexpr std::string_view kTypes = "TMNFL";

// Values to run conditions on; a text that an engine could not read would show here.
std::vector<Cell> cells_for(std::size_t type, const Text& typed) {
  switch (type) {
    case 2:
    case 4: return {Cell(), 0.0, 1.0, -2.5};
    case 3: return {Cell(), Moment{1294185600}, Moment{0}};
    default: return {Cell(), Text(), typed.substr(0, 40), Text(u"ana")};
  }
}

}  // namespace

// The user's language, the column's type and the engine, then what is typed.
void fuzz(FuzzInput& input) {
  fuzz_thread().speak(input.choice(FuzzThread::kLanguages));
  const std::size_t type = input.choice(kTypes);
  const query::SearchColumn column{u"X", static_cast<char16_t>(kTypes[type])};
  const auto engine = static_cast<Engine>(1 + input.choice("123"));
  const Text typed = input.text();
  const auto found = query::interpret_search(engine, column, typed, u"X");
  require(fuzz_thread().take_boxes().empty(), "nothing is shown", {typed});
  if (!found) return;
  require(is_condition(engine, found->condition), "tests of the column only", {typed, found->condition});
  require(joints(engine, found->condition) <= kMostJoints && found->condition.size() <= kMostCharacters,
          "engines take it", {typed, found->condition});
  for (const Cell& cell : cells_for(type, typed)) {
    require(selects(engine, found->condition, cell).has_value(), "it can be run", {typed, found->condition});
  }
  require(found->criterion.starts_with(u"X "), "the criterion begins with the label", {found->criterion});
  const Text shown = found->criterion.substr(2);
  const auto again = query::interpret_search(engine, column, shown, u"X");
  require(again.has_value(), "what is shown can be typed", {typed, shown});
  require(again->condition == found->condition, "and is the same condition",
          {typed, shown, found->condition, again->condition});
  require(again->criterion == found->criterion, "in the same words", {typed, shown, again->criterion});
}

}  // namespace qvr::tests
