// Rows of a table as tests of their own, each run alone by its name (`--gtest_filter=*TwoLowerBound1*`):
//
//   struct ConcatenarRow { const char* name; Value elements; EachEngine expected; };
//   using tests::PrintTo;
//   const ConcatenarRow kConcatenar[] = {{"two, lower bound 1", list({u"a", u"b"}, 1), ...}, ...};
//   using Concatenar = Rows<DialectTest, ConcatenarRow>;
//   TEST_P(Concatenar, JoinsTheElements) { ... GetParam() ... }
//   INSTANTIATE_TEST_SUITE_P(, Concatenar, ::testing::ValuesIn(kConcatenar), row_name);
#pragma once

#include <gtest/gtest.h>

#include <concepts>
#include <ostream>
#include <string>
#include <string_view>

namespace qvr::tests {

template <class Row>
concept NamedRow = requires(const Row& row) {
  { row.name } -> std::convertible_to<std::string_view>;
};

// A row's text as a test's name, which has letters and digits only: "two, lower bound 1" is "TwoLowerBound1".
inline std::string test_name(std::string_view text) {
  std::string name;
  bool begins_word = true;
  for (const char character : text) {
    const bool small = character >= 'a' && character <= 'z';
    const bool kept = small || (character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9');
    if (kept) name.push_back(small && begins_word ? static_cast<char>(character - 'a' + 'A') : character);
    begins_word = !kept;
  }
  return name;
}

// The name generator of a suite whose rows have a `name`. GoogleTest ends the program for two rows with one name.
inline constexpr auto row_name = [](const auto& info) { return test_name(info.param.name); };

// What a failure shows of the row. A file's own namespace takes it in by `using tests::PrintTo;`, without which
// GoogleTest shows the row's bytes.
template <NamedRow Row>
void PrintTo(const Row& row, std::ostream* out) {
  *out << row.name;
}

// The suite: a fixture with a row.
template <class Fixture, class Row>
class Rows : public Fixture, public ::testing::WithParamInterface<Row> {};

}  // namespace qvr::tests
