// Calls with each engine and with a number that is none: what they give, what they show, what they throw.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "base/engine.h"
#include "base/failure.h"
#include "support/test_thread.h"

namespace qvr::tests {

using Engine::Jet;
using Engine::Oracle;
using Engine::SqlServer;

inline constexpr Engine kNoEngine = Engine::None;

// The name generator of a suite that runs with each of the three.
inline constexpr auto engine_name = [](const auto& info) {
  constexpr const char* kNames[] = {"Jet", "SqlServer", "Oracle"};
  return std::string(kNames[number_of(info.param) - 1]);
};

// What a call gives, and the message boxes with an OK button that it shows.
struct Outcome {
  Outcome(const char16_t* given) : text(given) {}
  Outcome(Text given, std::vector<Text> shown = {}) : text(std::move(given)), boxes(std::move(shown)) {}

  Text text;
  std::vector<Text> boxes;
};

// The empty text, after a message box.
inline Outcome told(TextView box) { return {Text(), {Text(box)}}; }

// The message box for a number that is no engine, as often as this, and what is given all the same.
inline Outcome undefined(Text text = {}, std::size_t times = 1) {
  return {std::move(text), std::vector<Text>(times, u"Motor de Base de Datos no definido: 0")};
}

struct EachEngine {
  Outcome jet, sql_server, oracle, none;
};
inline EachEngine all_engines(const Text& text) { return {text, text, text, text}; }

inline Value list(std::vector<Value> items, std::int32_t lower = 0) { return Array{std::move(items), lower, 1}; }
inline Value square(std::vector<Value> items) { return Array{std::move(items), 0, 2}; }
inline Value shapeless() { return Array{{}, 0, 0}; }  // an array without dimensions
inline Value object() { return ObjectRef(std::make_shared<Object>()); }

// The failure that a call throws, as "RuntimeFailure 13" or "CallerFailure 5"; empty when it throws none.
template <class Call>
std::string thrown_by(const Call& call) {
  try {
    static_cast<void>(call());
    return {};
  } catch (const CallerFailure& failure) {
    return "CallerFailure " + std::to_string(failure.detail().number);
  } catch (const RuntimeFailure& failure) {
    return "RuntimeFailure " + std::to_string(failure.detail().number);
  }
}

class DialectTest : public ::testing::Test {
 protected:
  template <class Call>
  void expect_outcome(const Outcome& expected, const Call& call) {
    Lines boxes;
    for (const Text& box : expected.boxes) {
      boxes.push_back("Box OK: " + to_utf8(box));
      thread.boxes.answer(BoxAnswer::Ok);
    }
    EXPECT_EQ(call(), expected.text);
    EXPECT_EQ(thread.log.take(), boxes);
  }

  // `call` gets the engine.
  template <class Call>
  void expect_each(const EachEngine& expected, const Call& call) {
    const struct {
      Engine engine;
      const Outcome& outcome;
    } columns[] = {{Engine::Jet, expected.jet},
                   {Engine::SqlServer, expected.sql_server},
                   {Engine::Oracle, expected.oracle},
                   {kNoEngine, expected.none}};
    for (const auto& column : columns) {
      SCOPED_TRACE(number_of(column.engine));
      expect_outcome(column.outcome, [&] { return call(column.engine); });
    }
  }

  TestThread thread;
};

}  // namespace qvr::tests
