// Whatever the values are, a statement has exactly the tokens of its parts.
#include "dialect/statements.h"

#include <cmath>
#include <cstdlib>

#include "base/date_text.h"
#include "base/failure.h"
#include "dialect/clauses.h"
#include "dialect/expected_tokens.h"
#include "dialect/literals.h"
#include "dialect/table_relations.h"
#include "fuzz/fuzz_input.h"
#include "fuzz/fuzz_thread.h"
#include "query/csql20.h"
#include "query/search/search.h"

namespace qvr::tests {
namespace {

using enum TokenKind;

// The number that a value is for an engine, if it is one.
std::optional<double> number_in(const Value& value) {
  if (const auto* held = value.as<std::uint8_t>()) return *held;
  if (const auto* held = value.as<std::int16_t>()) return *held;
  if (const auto* held = value.as<std::int32_t>()) return *held;
  if (const auto* held = value.as<float>()) return std::isfinite(*held) ? std::optional<double>(*held) : std::nullopt;
  if (const auto* held = value.as<double>()) return std::isfinite(*held) ? std::optional(*held) : std::nullopt;
  if (const auto* held = value.as<Currency>()) return static_cast<double>(held->scaled) / 10000;
  if (const auto* held = value.as<Decimal>()) {
    const double whole = std::ldexp(held->high, 64) + std::ldexp(held->mid, 32) + held->low;
    return (held->negative ? -whole : whole) / std::pow(10.0, held->scale);
  }
  return std::nullopt;
}

// Of a Single, the digits that tell it from other Singles are enough.
bool is_number(const Value& value, double number, double read) {
  if (value.is<float>()) return static_cast<float>(read) == static_cast<float>(number);
  return read == number || std::fabs(read - number) <= 1e-14 * std::fabs(number);
}

// What an engine must read of the value; the digits of numbers and dates are those of the literal, once they are right.
Tokens tokens_for(Engine engine, const Value& value) {
  const Tokens literal = tokens_of(engine, dialect::ExpSQL(engine, value));
  const Tokens null = {{Word, u"Null"}};
  if (const Text* text = value.as<Text>()) {
    const Text held = engine == Engine::Oracle ? text->substr(0, 4000) : *text;
    if (!equal_no_case(*text, u"AhoraSQL")) return {{String, held}};
    const Tokens clocks[] = {{{Word, u"Now"}, {Punctuation, u"("}, {Punctuation, u")"}},
                             {{Word, u"GetDate"}, {Punctuation, u"("}, {Punctuation, u")"}},
                             {{Word, u"SYSDATE"}}};
    return clocks[number_of(engine) - 1];
  }
  if (const bool* truth = value.as<bool>()) {
    if (engine == Engine::Jet) return {{Word, *truth ? u"True" : u"False"}};
    return {{Number, *truth ? u"1" : u"0"}};
  }
  if (const auto* date = value.as<qvr::Date>()) {
    if (!has_calendar_time(*date)) return null;
    require(literal.size() == 1 && literal[0].kind == Date, "a date is one", {dialect::ExpSQL(engine, value)});
    return literal;
  }
  const auto number = number_in(value);
  if (!number) return null;
  require(literal.size() == 1 && literal[0].kind == Number, "a number is one", {dialect::ExpSQL(engine, value)});
  const std::string digits(literal[0].content.begin(), literal[0].content.end());
  require(is_number(value, *number, std::strtod(digits.c_str(), nullptr)), "the same", {literal[0].content});
  return literal;
}

void require_tokens(Engine engine, const Text& sql, const Tokens& expected) {
  require(tokens_of(engine, sql) == expected, "the tokens of its parts", {sql});
}

// Fields f0, f1... with these values.
void check_statements(Engine engine, std::int32_t lower, const std::vector<Value>& values) {
  std::vector<Value> names;
  std::vector<Sample> samples;
  for (const Value& value : values) {
    names.push_back(u"f" + decimal(static_cast<std::int64_t>(names.size())));
    Sample sample{value, {}};
    sample.tokens[static_cast<std::size_t>(engine) - 1] = tokens_for(engine, value);
    samples.push_back(std::move(sample));
  }
  const Value fields = Array{names, lower, 1}, list = Array{values, lower, 1};
  ExpectedTokens insert(engine), insert2(engine), update(engine), update2(engine);
  insert.words({u"INSERT", u"INTO", u"t", u"VALUES"}).values(samples);
  require_tokens(engine, dialect::SqlINSERT(engine, u"t", list), insert.tokens());
  insert2.words({u"INSERT", u"INTO", u"t"}).fields(samples.size()).words({u"VALUES"}).values(samples);
  require_tokens(engine, dialect::SqlInsert2(engine, u"t", fields, list), insert2.tokens());
  update2.words({u"UPDATE", u"t", u"SET"}).assignments(samples, samples.size());
  require_tokens(engine, dialect::SqlUpdate2(engine, u"t", fields, list, u""), update2.tokens());
  if (samples.size() > 1) {
    update.words({u"UPDATE", u"t", u"SET"}).assignments(samples, 1).words({u"WHERE", u"F1"}).sign(u'=').number(u"-7");
    require_tokens(engine, dialect::SqlUPDATE(engine, u"t", u"F1", -7, fields, list), update.tokens());
  }
}

// Lists that do not fit: a failure of the library's own, or a text.
template <class Call>
void may_fail(const Call& call) {
  try {
    static_cast<void>(call());
  } catch (const RuntimeFailure& failure) {
    require(failure.detail().number > 0 && failure.detail().number < 100, "a failure with a number of the family");
  }
}

void check_odd_lists(Engine engine, std::int32_t lower, const std::vector<Value>& values) {
  const Value list = Array{values, lower, 1}, other = Array{values, lower + 1, 1};
  const Value single = values.empty() ? Value() : values[0];
  for (const Value& each : {list, single}) {
    may_fail([&] { return dialect::SqlInsert2(engine, u"t", list, other); });
    may_fail([&] { return dialect::SqlUPDATE(engine, u"t", u"k", 1, each, other); });
    may_fail([&] { return dialect::SqlINSERT(engine, u"t", each); });
    may_fail([&] { return dialect::sqlConcatenar(engine, each); });
    may_fail([&] { return dialect::sqlCASE(engine, u"c", each); });
    may_fail([&] { return dialect::CondicionWhereRelacionTablas(engine, each); });
  }
  QueryRequest request;
  request.MotorBD = engine;
  request.ColumnasSELECT = list;
  request.RelacionTablas = list;
  request.TablasFROM = u"t a,u";
  request.NumColumnasGROUPBY = 2;
  cSQL20 query;
  const bool created = query.Crear(request);
  require(created == query.Creado() && query.SQL() == join({query.SQLSinOrden(), u" ", query.ParteOrder(false)}),
          "a statement and its order");
}

// The search's condition in parentheses, and nothing of the user's outside.
void check_query(Engine engine, const Text& typed) {
  QueryRequest request;
  request.MotorBD = engine;
  request.ColumnasSELECT = Array{{Value(u"X"), Value(u"T")}, 0, 1};
  request.TablasFROM = u"t";
  cSQL20 query;
  require(query.Crear(request), "created");
  const auto found = query::interpret_search(engine, {u"X", u'T'}, typed, u"X");
  require(query.InterpretarBusqueda(u"x", typed, u"X") == found.has_value(), "the query searches so", {typed});
  if (!found) return;
  ExpectedTokens expected(engine);
  expected.words({u"SELECT", u"X", u"FROM", u"t", u"WHERE"}).sign(u'(');
  expected.value({{},
                  {tokens_of(engine, found->condition), tokens_of(engine, found->condition),
                   tokens_of(engine, found->condition)}});
  expected.sign(u')');
  require_tokens(engine, query.SQL(), expected.tokens());
}

}  // namespace

// The engine, a lower bound, what is typed for a search, then values.
void fuzz(FuzzInput& input) {
  fuzz_thread().speak(0);
  const auto engine = static_cast<Engine>(1 + input.choice("123"));
  constexpr std::int32_t kLowers[] = {-1, 0, 1, INT32_MIN, INT32_MAX - 20};
  const std::int32_t lower = kLowers[input.choice("012nx")];
  check_query(engine, input.text());
  std::vector<Value> values;
  while (input.more() && values.size() < 12) values.push_back(input.value());
  if (!values.empty()) check_statements(engine, lower, values);
  check_odd_lists(engine, lower, values);
  static_cast<void>(fuzz_thread().take_boxes());
}

}  // namespace qvr::tests
