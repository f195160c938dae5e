#include "dialect/lists.h"

#include "dialect/dialect_fixture.h"
#include "support/describe.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

TEST(ListIn, GivesTheArrayItself) {
  const Value value = list({1, 2}, 5);
  EXPECT_EQ(&dialect::list_in(value), value.as<Array>());
}

struct ListInAnyRow {
  const char* name;
  Value value;
  std::string thrown;
};
const ListInAnyRow kListInAnyRows[] = {
    {"array", list({1}), ""},
    {"array without elements", list({}), ""},
    {"array without bounds", shapeless(), "CallerFailure 9"},
    {"two dimensions", square({1, 2}), "CallerFailure 9"},
    {"three dimensions", Array{{Value(1)}, 0, 3}, "CallerFailure 9"},
    {"text", u"1", "RuntimeFailure 13"},
    {"number", 1, "RuntimeFailure 13"},
    {"Empty", Empty{}, "RuntimeFailure 13"},
    {"Null", Null{}, "RuntimeFailure 13"},
    {"missing", Missing{}, "RuntimeFailure 13"},
    {"object", object(), "RuntimeFailure 13"},
    {"error", ErrorValue{1}, "RuntimeFailure 13"},
};

using ListInAny = Rows<::testing::Test, ListInAnyRow>;

TEST_P(ListInAny, IsAnArrayOfOneDimension) {
  const ListInAnyRow& row = GetParam();
  EXPECT_EQ(thrown_by([&] { return dialect::list_in(row.value).lower; }), row.thrown);
}

INSTANTIATE_TEST_SUITE_P(, ListInAny, ::testing::ValuesIn(kListInAnyRows), row_name);

TEST(ElementAt, CountsFromTheArraysOwnLowerBound) {
  for (const std::int32_t lower : {0, 1, -1, -2, 100, INT32_MIN, INT32_MAX - 2}) {
    SCOPED_TRACE(lower);
    const Value value = list({u"a", u"b", u"c"}, lower);
    const Array& array = dialect::list_in(value);
    const std::int64_t first = lower;
    EXPECT_EQ(describe(dialect::element_at(array, first)), "String a");
    EXPECT_EQ(describe(dialect::element_at(array, first + 1)), "String b");
    EXPECT_EQ(describe(dialect::element_at(array, first + 2)), "String c");
    constexpr std::int64_t kFar = INT64_MAX / 2;
    for (const std::int64_t outside : {first - 1, first + 3, kFar, -kFar}) {
      EXPECT_EQ(thrown_by([&] { return describe(dialect::element_at(array, outside)); }), "CallerFailure 9");
    }
  }
}

TEST(ElementAt, HasNoneInAnArrayWithoutElements) {
  const Value value = list({}, 1);
  for (const std::int64_t index : {0, 1, 2}) {
    EXPECT_EQ(thrown_by([&] { return describe(dialect::element_at(dialect::list_in(value), index)); }),
              "CallerFailure 9");
  }
}

}  // namespace
}  // namespace qvr::tests
