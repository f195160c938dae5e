#include "dialect/engine.h"

#include "dialect/dialect_fixture.h"

namespace qvr::tests {
namespace {

using EngineTest = DialectTest;

constexpr dialect::ByEngine kPieces{u"one", u"two", u"three"};
constexpr Engine kStrangers[] = {0, -1, 4, 99, INT32_MAX, INT32_MIN};

TEST_F(EngineTest, HasTheContractsNumbers) {
  EXPECT_EQ(kJet, 1);
  EXPECT_EQ(kSqlServer, 2);
  EXPECT_EQ(kOracle, 3);
}

TEST_F(EngineTest, PickGivesTheEnginesPiece) {
  EXPECT_EQ(dialect::pick(1, kPieces), u"one");
  EXPECT_EQ(dialect::pick(2, kPieces), u"two");
  EXPECT_EQ(dialect::pick(3, kPieces), u"three");
}

TEST_F(EngineTest, PickIsSilentAboutAStranger) {
  for (const Engine engine : kStrangers) {
    SCOPED_TRACE(engine);
    EXPECT_EQ(dialect::pick(engine, kPieces), std::nullopt);
  }
}

TEST_F(EngineTest, PickOrTellShowsABoxForAStrangerOnly) {
  expect_each({u"one", u"two", u"three", undefined()},
              [](const Engine& engine) { return dialect::pick_or_tell(engine, kPieces); });
}

TEST_F(EngineTest, TheBoxHasTheNumberInDecimal) {
  struct Row {
    Engine engine;
    TextView digits;
  };
  constexpr Row kRows[] = {
      {0, u"0"}, {-1, u"-1"}, {4, u"4"}, {99, u"99"}, {INT32_MAX, u"2147483647"}, {INT32_MIN, u"-2147483648"}};
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.engine);
    const Outcome expected = told(join({u"Motor de Base de Datos no definido: ", row.digits}));
    expect_outcome(expected, [&] { return dialect::undefined_engine(row.engine); });
    expect_outcome(expected, [&] { return dialect::pick_or_tell(row.engine, kPieces); });
  }
}

// The selector is the caller's own field, read when the call is made.
TEST_F(EngineTest, ReadsTheCallersFieldAtEachCall) {
  Engine engine = kJet;
  const auto call = [&] { return dialect::pick_or_tell(engine, kPieces); };
  expect_outcome(u"one", call);
  engine = kOracle;
  expect_outcome(u"three", call);
  engine = kNoEngine;
  expect_outcome(undefined(), call);
}

TEST_F(EngineTest, TellShowsTheTextAsItIs) {
  const auto call = [] { return dialect::tell(u"Aviso: |1 || \u20ac\r\n"), Text(); };
  expect_outcome(told(u"Aviso: |1 || \u20ac\r\n"), call);
}

}  // namespace
}  // namespace qvr::tests
