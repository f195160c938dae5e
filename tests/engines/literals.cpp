// Every literal, read back by the engine and compared with the value told in another way.
#include <cstdio>
#include <limits>

#include "dialect/literals.h"
#include "engines/checked_script.h"
#include "engines/hostile_texts.h"
#include "support/describe.h"

namespace qvr::tests {
namespace {

using dialect::ExpSQL;

Text ascii(const std::string& text) { return Text(text.begin(), text.end()); }

// As the C library spells it, with all the digits that tell it from its neighbours.
std::string spelled(double number, int digits) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*g", digits, number);
  return text;
}

// As the same number in this type, spelled by the C library.
void check_number(CheckedScript& script, const Value& value, const std::string& text, TextView type) {
  const Text literal = ExpSQL(script.engine(), value);
  const std::string described = describe(value), type_name = described.substr(0, described.find(' '));
  script.check(type_name + " " + text,
               join({u"CAST(", literal, u" AS ", type, u")=CAST('", ascii(text), u"' AS ", type, u")"}));
}

void add_numbers(CheckedScript& script) {
  for (const int number : {0, 1, 255}) {
    check_number(script, static_cast<std::uint8_t>(number), std::to_string(number), u"INT");
  }
  for (const int number : {-32768, -1, 0, 32767}) {
    check_number(script, static_cast<std::int16_t>(number), std::to_string(number), u"INT");
  }
  for (const std::int32_t number : {INT32_MIN, -1, 0, INT32_MAX}) {
    check_number(script, number, std::to_string(number), u"BIGINT");
  }
  for (const float number : {0.0f, 0.1f, -2.5f, 16777217.0f, 3.4028235e38f, 1.17549435e-38f}) {
    check_number(script, number, spelled(static_cast<double>(number), 9), u"REAL");
  }
  for (const double number : {0.0, 0.1, -0.25, 1e300, -1e300, 1e-300, 123456789.125, 0.1 + 0.2, 1e15, 1e16,
                              std::numeric_limits<double>::max(), std::numeric_limits<double>::min()}) {
    check_number(script, number, spelled(number, 17), u"DOUBLE PRECISION");
  }
  const struct {
    std::int64_t scaled;
    const char* text;
  } amounts[] = {{0, "0"},
                 {1, "0.0001"},
                 {-12345, "-1.2345"},
                 {INT64_MAX, "922337203685477.5807"},
                 {INT64_MIN, "-922337203685477.5808"}};
  for (const auto& [scaled, text] : amounts) check_number(script, Currency{scaled}, text, u"NUMERIC(38,8)");
  const struct {
    Decimal number;
    const char* text;
  } decimals[] = {{{0, 0, 25, 2, false}, "0.25"},
                  {{0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0, true}, "-79228162514264337593543950335"},
                  {{0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 28, false}, "7.9228162514264337593543950335"},
                  {{0, 0, 1, 28, false}, "0.0000000000000000000000000001"}};
  for (const auto& [number, text] : decimals) check_number(script, number, text, u"NUMERIC(60,28)");
}

// Dates with the text that the engine itself gives them.
struct DatedRow {
  double days;
  const char *date, *time;
};
constexpr double kSecond = 1.0 / 86400;
constexpr DatedRow kDates[] = {
    {-657434, "0100-01-01", "00:00:00"},
    {-1, "1899-12-29", "00:00:00"},
    {-1.25, "1899-12-29", "06:00:00"},
    {1, "1899-12-31", "00:00:00"},
    {40548, "2011-01-05", "00:00:00"},
    {40548 + 50829 * kSecond, "2011-01-05", "14:07:09"},
    {40548 + 86399.6 * kSecond, "2011-01-06", "00:00:00"},
    {2958465, "9999-12-31", "00:00:00"},
    {2958465 + 86399 * kSecond, "9999-12-31", "23:59:59"},
};

Text formatted_by_engine(CheckedScript& script, TextView literal, bool with_time) {
  if (script.oracle()) {
    return join({u"TO_CHAR(", literal, with_time ? u",'YYYY-MM-DD HH24:MI:SS')" : u",'YYYY-MM-DD')"});
  }
  return join({u"FORMATDATETIME(", literal, with_time ? u",'yyyy-MM-dd HH:mm:ss')" : u",'yyyy-MM-dd')"});
}

void add_dates(CheckedScript& script) {
  for (const DatedRow& row : kDates) {
    const std::string name = std::string(row.date) + " " + row.time;
    const Date date{row.days};
    script.check_text("date " + name, formatted_by_engine(script, dialect::FechaSQL(script.engine(), date), false),
                      ascii(row.date));
    const Text moment = dialect::FechaHoraSQL(script.engine(), date);
    script.check_text("date and time " + name, formatted_by_engine(script, moment, true), ascii(name));
    const Text time = dialect::HoraSQL(script.engine(), date);
    const Text told = script.oracle() ? join({u"TO_CHAR(", time, u",'HH24:MI:SS')"})
                                      : join({u"CAST(", time, u" AS VARCHAR)"});
    script.check_text("time " + name, told, ascii(row.time));
  }
  const Text narrowest = dialect::FechaSQLv(script.engine(), Date{0.25});
  script.check("a time alone", script.oracle() ? join({u"TO_CHAR(", narrowest, u",'HH24:MI:SS')='06:00:00'"})
                                               : join({narrowest, u"=CAST('06:00:00' AS TIME)"}));
}

void add_truths(CheckedScript& script) {
  script.run(u"CREATE TABLE Truths (Id INT, Active INT)");
  script.run(join({u"INSERT INTO Truths VALUES (1,", dialect::LogicoSQL(script.engine(), true), u")"}));
  script.run(join({u"INSERT INTO Truths VALUES (2,", dialect::LogicoSQL(script.engine(), false), u")"}));
  script.run(u"INSERT INTO Truths VALUES (3,-1)");
  const auto sum_of = [](TextView condition) { return join({u"(SELECT Sum(Id) FROM Truths WHERE", condition, u")"}); };
  script.check("true", join({sum_of(dialect::sqlEsTrue(u"Active")), u"=4"}));
  script.check("false", join({sum_of(dialect::sqlEsFalse(u"Active")), u"=2"}));
  script.check("the false constant", join({u"(SELECT Id FROM Truths WHERE Active=", dialect::sqlFalse(), u")=2"}));
}

void add_clocks(CheckedScript& script) {
  const Text clock = dialect::AhoraSQL(script.engine());
  script.check("the clock is within this century", join({u"EXTRACT(YEAR FROM ", clock, u") BETWEEN 2020 AND 2199"}));
  if (!script.oracle()) {
    // Its own system table, made for it: what counts is that the statement is understood.
    script.run(u"CREATE SCHEMA dbo");
    script.run(u"CREATE TABLE dbo.spt_values (Name INT)");
    script.run(u"INSERT INTO dbo.spt_values VALUES (1)");
  }
  script.check("the query of the clock",
               join({u"EXTRACT(YEAR FROM (SELECT FechaSistema FROM (", dialect::sqlFechaSistema(script.engine()),
                     u") Q)) BETWEEN 2020 AND 2199"}));
  script.check("the clock by its name",
               join({u"EXTRACT(YEAR FROM ", ExpSQL(script.engine(), u"ahoraSQL"), u") BETWEEN 2020 AND 2199"}));
}

}  // namespace

void add_literals(CheckedScript& script) {
  for (const HostileText& row : hostile_texts()) {
    script.check_text(std::string("text: ") + row.name, ExpSQL(script.engine(), row.text), row.text);
  }
  const Text longer = Text(4000, u'a') + u"b";
  script.check_text("text: 4001 characters", ExpSQL(script.engine(), longer),
                    script.oracle() ? TextView(longer).substr(0, 4000) : TextView(longer));
  for (const Value& value : {Value(Null{}), Value(Empty{}), Value(ErrorValue{5}), Value(Array{})}) {
    script.check("no value: " + describe(value), join({ExpSQL(script.engine(), value), u" IS NULL"}));
  }
  add_numbers(script);
  add_dates(script);
  add_truths(script);
  add_clocks(script);
}

}  // namespace qvr::tests
