#include "base/trace.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

Text last_line;

// The lines as the sink gets them, with the place.
class Trace : public testing::Test {
 protected:
  Trace() : former_(set_trace_sink([](TextView line) noexcept { last_line = line; })) {}
  ~Trace() override { set_trace_sink(former_); }

 private:
  TraceSink former_;
};

constexpr SourcePlace kPlace{"anywhere/src/connection/qvrcfp.cpp", 12, "Crear"};

TEST_F(Trace, IsOneLineWithClassMemberNumberDescriptionAndPlace) {
  trace({u"QVRcfp", "Crear", 75, u"Path/File access error", kPlace});
  EXPECT_EQ(last_line, u"QVRcfp.Crear: 75 Path/File access error (connection/qvrcfp.cpp:12)");
  trace({{}, "Advise", -2147024882, u"Out of memory", {"module.cpp", 3, ""}});
  EXPECT_EQ(last_line, u"Advise: -2147024882 Out of memory (module.cpp:3)");
  trace({{}, "Advise", 7, u"Out of memory", {"/module.cpp", 3, ""}});
  EXPECT_EQ(last_line, u"Advise: 7 Out of memory (module.cpp:3)");
}

TEST_F(Trace, HasNoLineBreaks) {
  trace({u"QVRcfp", "Crear", 5, u"first\r\nsecond\tthird", kPlace});
  EXPECT_EQ(last_line, u"QVRcfp.Crear: 5 first  second third (connection/qvrcfp.cpp:12)");
}

TEST_F(Trace, CutsALongDescriptionAndKeepsThePlace) {
  trace({u"QVRcfp", "Crear", 5, Text(1000, u'x'), kPlace});
  EXPECT_EQ(last_line, u"QVRcfp.Crear: 5 " + Text(300, u'x') + u" (connection/qvrcfp.cpp:12)");
  trace({Text(1000, u'x'), "Crear", 5, u"y", kPlace});
  EXPECT_EQ(last_line, Text(600, u'x'));
}

TEST_F(Trace, SaysWhereTheFailureWasThrown) {
  or_default(u"Class", 0, []() -> int { throw RuntimeFailure(13); });
  const int line = __LINE__ - 1;
  EXPECT_EQ(last_line, u"Class.TestBody: 13 Type mismatch (base/trace_test.cpp:" + decimal(line) + u")");
}

TEST_F(Trace, SaysWhichPolicyMetAnExceptionOfOthers) {
  or_default(u"Class", 0, []() -> int { throw std::bad_alloc(); });
  EXPECT_EQ(last_line, u"Class.TestBody: 7 Out of memory (base/trace_test.cpp:" + decimal(__LINE__ - 1) + u")");
  or_default(u"Class", 0, []() -> int { throw 42; });
  EXPECT_EQ(last_line, u"Class.TestBody: 5 Unforeseen exception (base/trace_test.cpp:" + decimal(__LINE__ - 1) + u")");
}

TEST_F(Trace, LeavesOutWhatOthersSay) {
  or_default(u"Class", 0, []() -> int { throw RuntimeFailure(-1, u"Login failed: Password=x", u"Provider"); });
  EXPECT_EQ(last_line.substr(0, last_line.rfind(u" (")), u"Class.TestBody: -1 told by another component");
}

TEST_F(Trace, TellsNothingWhenNothingFails) {
  last_line = u"none";
  EXPECT_EQ(or_default(u"Class", 0, [] { return 1; }), 1);
  EXPECT_EQ(last_line, u"none");
}

TEST_F(Trace, GoesNowhereWithoutASink) {
  set_trace_sink(nullptr);
  last_line = u"none";
  or_default(u"Class", 0, []() -> int { throw RuntimeFailure(13); });
  EXPECT_EQ(last_line, u"none");
}

TEST_F(Trace, LetsACallerFailurePassUntold) {
  last_line = u"none";
  EXPECT_THROW(or_raised(u"Class", 0, []() -> int { throw CallerFailure(9); }), CallerFailure);
  EXPECT_EQ(last_line, u"none");
}

TEST(Traced, GivesTheLinesWithoutTheirPlace) {
  or_default(u"Class", 0, []() -> int { throw RuntimeFailure(13); });
  or_default(u"Other", 0, []() -> int { throw RuntimeFailure(5, u"own text"); });
  EXPECT_EQ(traced(), (std::vector<Text>{u"Class.TestBody: 13 Type mismatch", u"Other.TestBody: 5 own text"}));
  EXPECT_TRUE(traced().empty());
}

}  // namespace
}  // namespace qvr::tests
