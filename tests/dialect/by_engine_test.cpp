#include "dialect/by_engine.h"
#include "session/message_box.h"

#include "dialect/dialect_fixture.h"

namespace qvr::tests {
namespace {

using EngineTest = DialectTest;

constexpr ByEngine kPieces{u"one", u"two", u"three"};
constexpr Engine kStrangers[] = {Engine::None, Engine{-1}, Engine{4}, Engine{99}, Engine{INT32_MAX}, Engine{INT32_MIN}};

TEST_F(EngineTest, HasTheContractsNumbers) {
  EXPECT_EQ(number_of(Engine::Jet), 1);
  EXPECT_EQ(number_of(Engine::SqlServer), 2);
  EXPECT_EQ(number_of(Engine::Oracle), 3);
}

TEST_F(EngineTest, PickGivesTheEnginesPiece) {
  EXPECT_EQ(pick(Engine::Jet, kPieces), u"one");
  EXPECT_EQ(pick(Engine::SqlServer, kPieces), u"two");
  EXPECT_EQ(pick(Engine::Oracle, kPieces), u"three");
}

TEST_F(EngineTest, PickIsSilentAboutAStranger) {
  for (const Engine engine : kStrangers) {
    SCOPED_TRACE(number_of(engine));
    EXPECT_EQ(pick(engine, kPieces), std::nullopt);
  }
}

TEST_F(EngineTest, PickOrTellShowsABoxForAStrangerOnly) {
  expect_each({u"one", u"two", u"three", undefined()},
              [](Engine engine) { return dialect::pick_or_tell(engine, kPieces); });
}

TEST_F(EngineTest, TheBoxHasTheNumberInDecimal) {
  struct Row {
    Engine engine;
    TextView digits;
  };
  constexpr Row kRows[] = {{Engine::None, u"0"},
                           {Engine{-1}, u"-1"},
                           {Engine{4}, u"4"},
                           {Engine{99}, u"99"},
                           {Engine{INT32_MAX}, u"2147483647"},
                           {Engine{INT32_MIN}, u"-2147483648"}};
  for (const Row& row : kRows) {
    SCOPED_TRACE(number_of(row.engine));
    const Outcome expected = told(join({u"Motor de Base de Datos no definido: ", row.digits}));
    expect_outcome(expected, [&] { return dialect::undefined_engine(row.engine); });
    expect_outcome(expected, [&] { return dialect::pick_or_tell(row.engine, kPieces); });
  }
}

// The selector is the caller's own field, read when the call is made.
TEST_F(EngineTest, ReadsTheCallersFieldAtEachCall) {
  Engine engine = Engine::Jet;
  const auto call = [&] { return dialect::pick_or_tell(engine, kPieces); };
  expect_outcome(u"one", call);
  engine = Engine::Oracle;
  expect_outcome(u"three", call);
  engine = kNoEngine;
  expect_outcome(undefined(), call);
}

TEST_F(EngineTest, TellShowsTheTextAsItIs) {
  const auto call = [] { return tell(u"Aviso: |1 || \u20ac\r\n"), Text(); };
  expect_outcome(told(u"Aviso: |1 || \u20ac\r\n"), call);
}

}  // namespace
}  // namespace qvr::tests
