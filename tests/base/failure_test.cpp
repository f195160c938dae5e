#include "base/failure.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

template <class Thrown>
FailureDetail seen_when(const Thrown& thrown) {
  try {
    throw thrown;
  } catch (...) {
    return current_failure();
  }
}

void expect_detail(const FailureDetail& detail, std::int32_t number, TextView description, TextView source) {
  EXPECT_EQ(detail.number, number);
  EXPECT_EQ(detail.description, description);
  EXPECT_EQ(detail.source, source);
}

TEST(CurrentFailure, KeepsWhatOurOwnSays) {
  expect_detail(seen_when(RuntimeFailure(13)), 13, u"Type mismatch", u"QVRlib21");
  expect_detail(seen_when(RuntimeFailure(5, u"own text")), 5, u"own text", u"QVRlib21");
  expect_detail(seen_when(RuntimeFailure(5, u"own text", u"QVRScr")), 5, u"own text", u"QVRScr");
  expect_detail(seen_when(RuntimeFailure(FailureDetail{-2147467259, u"", u""})), -2147467259, u"", u"");
}

TEST(CurrentFailure, NamesWhatOthersThrow) {
  expect_detail(seen_when(std::bad_alloc()), 7, u"Out of memory", u"QVRlib21");
  expect_detail(seen_when(std::bad_array_new_length()), 7, u"Out of memory", u"QVRlib21");
  expect_detail(seen_when(std::logic_error("any")), 5, u"Invalid procedure call or argument", u"QVRlib21");
  expect_detail(seen_when(42), 5, u"Invalid procedure call or argument", u"QVRlib21");
}

struct Description {
  const char* name;
  std::int32_t number;
  TextView text;
};

constexpr Description kDescriptions[] = {
    {"invalid argument", 5, u"Invalid procedure call or argument"},
    {"overflow", 6, u"Overflow"},
    {"out of memory", 7, u"Out of memory"},
    {"subscript", 9, u"Subscript out of range"},
    {"type mismatch", 13, u"Type mismatch"},
    {"file", 75, u"Path/File access error"},
    {"object not set", 91, u"Object variable or With block variable not set"},
    {"use of Null", 94, u"Invalid use of Null"},
    {"cannot create object", 429, u"ActiveX component can't create object"},
    {"any other number", 12345, u"Application-defined or object-defined error"},
};

using DescriptionOf = Rows<testing::Test, Description>;

TEST_P(DescriptionOf, IsTheHostsText) { EXPECT_EQ(description_of(GetParam().number), Text(GetParam().text)); }

INSTANTIATE_TEST_SUITE_P(, DescriptionOf, testing::ValuesIn(kDescriptions), row_name);

TEST(OrDefault, GivesTheResultOrTheFallback) {
  EXPECT_EQ(or_default(u"Class", 1, [] { return 2; }), 2);
  EXPECT_EQ(or_default(u"Class", 1, []() -> int { throw RuntimeFailure(5); }), 1);
  EXPECT_EQ(or_default(u"Class", 1, []() -> int { throw std::bad_alloc(); }), 1);
  EXPECT_EQ(or_default(u"Class", 1, []() -> int { throw 0; }), 1);
  EXPECT_EQ(traced(), (Traces{u"Class.TestBody: 5 Invalid procedure call or argument",
                              u"Class.TestBody: 7 Out of memory", u"Class.TestBody: 5 Unforeseen exception"}));
}

TEST(OrBuiltSoFar, KeepsWhatWasAppended) {
  EXPECT_EQ(or_built_so_far(u"Class", [](Text& built) { built = u"whole"; }), u"whole");
  EXPECT_EQ(or_built_so_far(u"Class",
                            [](Text& built) {
                              built += u"first";
                              throw RuntimeFailure(5);
                            }),
            u"first");
  EXPECT_EQ(or_built_so_far(u"Class", [](Text&) { throw 0; }), u"");
  EXPECT_EQ(traced(), (Traces{u"Class.TestBody: 5 Invalid procedure call or argument",
                              u"Class.TestBody: 5 Unforeseen exception"}));
}

TEST(OrRaised, LetsOnlyWhatIsMeantForTheCallerOut) {
  EXPECT_EQ(or_raised(u"Class", 1, [] { return 2; }), 2);
  EXPECT_EQ(or_raised(u"Class", 1, []() -> int { throw RuntimeFailure(9); }), 1);
  EXPECT_EQ(or_raised(u"Class", 1, []() -> int { throw std::bad_alloc(); }), 1);
  EXPECT_EQ(or_raised(u"Class", 1, []() -> int { throw 0; }), 1);
  try {
    const int result = or_raised(u"Class", 1, []() -> int { throw CallerFailure(9); });
    ADD_FAILURE() << "result " << result;
  } catch (const CallerFailure& failure) {
    expect_detail(failure.detail(), 9, u"Subscript out of range", u"QVRlib21");
  }
  EXPECT_EQ(traced(), (Traces{u"Class.TestBody: 9 Subscript out of range", u"Class.TestBody: 7 Out of memory",
                              u"Class.TestBody: 5 Unforeseen exception"}));
}

TEST(CallerFailure, IsOneLikeAnyOtherForTheOtherPolicies) {
  expect_detail(seen_when(CallerFailure(5)), 5, u"Invalid procedure call or argument", u"QVRlib21");
  expect_detail(seen_when(CallerFailure(5, u"own text", u"own source")), 5, u"own text", u"own source");
  const auto fail = []() -> bool { throw CallerFailure(5); };
  EXPECT_TRUE(or_default(u"Class", true, fail));
  EXPECT_EQ(or_built_so_far(u"Class", [&](Text& built) { built = fail() ? u"" : u"built"; }), u"");
  std::int32_t reported = 0;
  EXPECT_FALSE(or_reported(u"Class", false, fail, [&](const FailureDetail& detail) { reported = detail.number; }));
  EXPECT_EQ(reported, 5);
  EXPECT_EQ(traced(), Traces(3, u"Class.TestBody: 5 Invalid procedure call or argument"));
}

TEST(OrReported, ReportsOnlyWhatWasThrown) {
  int reports = 0;
  const auto report = [&reports](const FailureDetail& detail) {
    ++reports;
    EXPECT_EQ(detail.number, 13);
  };
  EXPECT_TRUE(or_reported(
      u"Class", false, [] { return true; }, report));
  EXPECT_FALSE(or_reported(
      u"Class", false, [] { return false; }, report));
  EXPECT_EQ(reports, 0);
  EXPECT_FALSE(or_reported(
      u"Class", false, []() -> bool { throw RuntimeFailure(13); }, report));
  EXPECT_EQ(reports, 1);
  EXPECT_EQ(traced(), Traces{u"Class.TestBody: 13 Type mismatch"});
}

TEST(OrReported, DropsAFailingReport) {
  bool asked = false;
  const auto failing = [&asked](const FailureDetail&) {
    asked = true;
    throw RuntimeFailure(429);
  };
  EXPECT_FALSE(or_reported(
      u"Class", false, []() -> bool { throw std::bad_alloc(); }, failing));
  EXPECT_TRUE(asked);
  EXPECT_EQ(traced(),
            (Traces{u"Class.TestBody: 7 Out of memory", u"Class.TestBody: 429 ActiveX component can't create object"}));
}

}  // namespace
}  // namespace qvr::tests
