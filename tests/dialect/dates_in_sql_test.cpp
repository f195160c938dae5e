// Dates and times as literals.
#include <limits>

#include "dialect/dialect_fixture.h"
#include "dialect/literals.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

constexpr double kSecond = 1.0 / 86400;
constexpr double kFifthOfJanuary = 40548;                      // 5 January 2011
constexpr double kClock = (14 * 3600 + 7 * 60 + 9) * kSecond;  // 14:07:09
constexpr double kNearlyMidnight = (23 * 3600 + 59 * 60 + 59.6) * kSecond;
constexpr double kFirstDay = -657434, kLastDay = 2958465;

class DatesInSqlTest : public DialectTest {
 protected:
  using Member = Text (*)(Engine, const Value&);
  static constexpr Member kMembers[] = {dialect::FechaSQL, dialect::HoraSQL, dialect::FechaHoraSQL, dialect::FechaSQLv};
};

// The three forms of one date, and the one that is just wide enough for it.
enum class Narrowest { Date, Time, Both };
struct DateRow {
  const char* name;
  double days;
  const char* date;
  const char* time;
  Narrowest narrowest;
};

constexpr DateRow kDates[] = {
    {"a day", kFifthOfJanuary, "2011-01-05", "00:00:00", Narrowest::Date},
    {"a day and a time", kFifthOfJanuary + kClock, "2011-01-05", "14:07:09", Narrowest::Both},
    {"a time", kClock, "1899-12-30", "14:07:09", Narrowest::Time},
    {"midnight of day zero", 0, "1899-12-30", "00:00:00", Narrowest::Date},
    {"negative zero", -0.0, "1899-12-30", "00:00:00", Narrowest::Date},
    {"a time with a minus sign", -kClock, "1899-12-30", "14:07:09", Narrowest::Time},
    {"day one", 1, "1899-12-31", "00:00:00", Narrowest::Date},
    {"the day before day zero", -1, "1899-12-29", "00:00:00", Narrowest::Date},
    {"before day zero with a time", -1.25, "1899-12-29", "06:00:00", Narrowest::Both},
    {"long before day zero", -36522, "1800-01-01", "00:00:00", Narrowest::Date},
    {"long before day zero with a time", -36522 - kClock, "1800-01-01", "14:07:09", Narrowest::Both},
    {"after 1999", 36526, "2000-01-01", "00:00:00", Narrowest::Date},
    {"leap day", 36585.5, "2000-02-29", "12:00:00", Narrowest::Both},
    {"one digit in every part", 37654 + 3723 * kSecond, "2003-02-02", "01:02:03", Narrowest::Both},
    {"59.6 seconds", kFifthOfJanuary + 59.6 * kSecond, "2011-01-05", "00:01:00", Narrowest::Both},
    // Which form it is depends on the value, not on what is left of it after rounding.
    {"a third of a second", kFifthOfJanuary + 0.3 * kSecond, "2011-01-05", "00:00:00", Narrowest::Both},
    {"23:59:59.6", kNearlyMidnight, "1899-12-31", "00:00:00", Narrowest::Time},
    {"23:59:59.6 of a day", kFifthOfJanuary + kNearlyMidnight, "2011-01-06", "00:00:00", Narrowest::Both},
    {"23:59:59.6 of a year's last day", 40543 + kNearlyMidnight, "2011-01-01", "00:00:00", Narrowest::Both},
    {"first day", kFirstDay, "0100-01-01", "00:00:00", Narrowest::Date},
    {"last second of the first day", kFirstDay - 86399 * kSecond, "0100-01-01", "23:59:59", Narrowest::Both},
    {"last day", kLastDay, "9999-12-31", "00:00:00", Narrowest::Date},
    {"last second", kLastDay + 86399 * kSecond, "9999-12-31", "23:59:59", Narrowest::Both},
    // The calendar ends here, so that these are not rounded up.
    {"23:59:59.6 of the last day", kLastDay + kNearlyMidnight, "9999-12-31", "23:59:59", Narrowest::Both},
    {"23:59:59.997 of the last day", kLastDay + 86399.997 * kSecond, "9999-12-31", "23:59:59", Narrowest::Both},
};

Text wide(const std::string& narrow) { return Text(narrow.begin(), narrow.end()); }

EachEngine literal(const std::string& jet_and_content, const std::string& sql_server, const std::string& mask) {
  const Text content = wide(jet_and_content);
  return {u"#" + content + u"#", join({u"{ ", wide(sql_server), u" '", content, u"'}"}),
          join({u" TO_DATE('", content, u"','", wide(mask), u"') "}), undefined()};
}
EachEngine date_literal(const DateRow& row) { return literal(row.date, "d", "YYYY-MM-DD"); }
EachEngine time_literal(const DateRow& row) { return literal(row.time, "t", "HH24:MI:SS"); }
EachEngine date_time_literal(const DateRow& row) {
  return literal(std::string(row.date) + " " + row.time, "ts", "YYYY-MM-DD HH24:MI:SS");
}
EachEngine narrowest_literal(const DateRow& row) {
  switch (row.narrowest) {
    case Narrowest::Date: return date_literal(row);
    case Narrowest::Time: return time_literal(row);
    default: return date_time_literal(row);
  }
}

TEST_F(DatesInSqlTest, AreWrittenInFullAsTheContractHasThem) {
  const Value moment = Date{kFifthOfJanuary + kClock};
  expect_each({u"#2011-01-05#", u"{ d '2011-01-05'}", u" TO_DATE('2011-01-05','YYYY-MM-DD') ", undefined()},
              [&](Engine engine) { return dialect::FechaSQL(engine, moment); });
  expect_each({u"#14:07:09#", u"{ t '14:07:09'}", u" TO_DATE('14:07:09','HH24:MI:SS') ", undefined()},
              [&](Engine engine) { return dialect::HoraSQL(engine, moment); });
  expect_each({u"#2011-01-05 14:07:09#", u"{ ts '2011-01-05 14:07:09'}",
               u" TO_DATE('2011-01-05 14:07:09','YYYY-MM-DD HH24:MI:SS') ", undefined()},
              [&](Engine engine) { return dialect::FechaHoraSQL(engine, moment); });
}

class EveryDateInSql : public Rows<DialectTest, DateRow> {
 protected:
  const Value date_ = Date{GetParam().days};
};

TEST_P(EveryDateInSql, IsWrittenInEveryForm) {
  const DateRow& row = GetParam();
  expect_each(date_literal(row), [&](Engine engine) { return dialect::FechaSQL(engine, date_); });
  expect_each(time_literal(row), [&](Engine engine) { return dialect::HoraSQL(engine, date_); });
  expect_each(date_time_literal(row), [&](Engine engine) { return dialect::FechaHoraSQL(engine, date_); });
  expect_each(narrowest_literal(row), [&](Engine engine) { return dialect::FechaSQLv(engine, date_); });
  expect_each(narrowest_literal(row), [&](Engine engine) { return dialect::ExpSQL(engine, date_); });
}

TEST_P(EveryDateInSql, DoesNotFollowTheLocale) {
  thread.locale.date_separator = u'.';
  thread.locale.decimal = u',';
  thread.locale.day_first = false;
  expect_each(date_time_literal(GetParam()), [&](Engine engine) { return dialect::FechaHoraSQL(engine, date_); });
}

INSTANTIATE_TEST_SUITE_P(, EveryDateInSql, ::testing::ValuesIn(kDates), row_name);

// No engine is asked about what is no date, so that it is Null also where the engine is unknown.
struct NoDateInSqlRow {
  const char* name;
  Value value;
};
const NoDateInSqlRow kNoDateInSqlRows[] = {
    {"text", u"x"},
    {"empty text", u""},
    {"text ma\u00f1ana", u"ma\u00f1ana"},
    {"31 February", u"31/02/2011"},
    {"number", 40548},
    {"Double", 40548.5},
    {"true", true},
    {"Empty", Empty{}},
    {"Null", Null{}},
    {"missing", Missing{}},
    {"error", ErrorValue{448}},
    {"object", object()},
    {"Nothing", ObjectRef()},
    {"array with a date", list({Date{kFifthOfJanuary}})},
    {"array of two dimensions", square({Date{1}, Date{2}})},
    {"array without bounds", shapeless()},
    {"year 99", Date{kFirstDay - 1}},
    {"year 10000", Date{kLastDay + 1}},
    {"far away", Date{1e300}},
    {"infinite", Date{std::numeric_limits<double>::infinity()}},
    {"no number", Date{std::numeric_limits<double>::quiet_NaN()}},
};

using NoDateInSql = Rows<DatesInSqlTest, NoDateInSqlRow>;

TEST_P(NoDateInSql, IsNull) {
  const NoDateInSqlRow& row = GetParam();
  for (const Member member : kMembers) {
    expect_each(all_engines(u"Null"), [&](Engine engine) { return member(engine, row.value); });
  }
  if (!row.value.is<Date>()) return;
  expect_each(all_engines(u"Null"), [&](Engine engine) { return dialect::ExpSQL(engine, row.value); });
}

INSTANTIATE_TEST_SUITE_P(, NoDateInSql, ::testing::ValuesIn(kNoDateInSqlRows), row_name);

struct DateTextInSqlRow {
  const char* name;
  bool day_first;
  char16_t separator;
  Value text;
  Text date;  // for Jet
};
const DateTextInSqlRow kDateTextInSqlRows[] = {
    {"day first", true, u'/', u"05/01/2011", u"#2011-01-05#"},
    {"month first", false, u'/', u"05/01/2011", u"#2011-05-01#"},
    {"points", true, u'.', u"31.12.2010", u"#2010-12-31#"},
    {"dashes, month first", false, u'-', u"12-31-2010", u"#2010-12-31#"},
    {"month first, but no such month", false, u'/', u"31/12/2010", u"Null"},
    {"with a time", true, u'/', u"05/01/2011 14:07:09", u"#2011-01-05#"},
    {"year 100", true, u'/', u"01/01/100", u"#0100-01-01#"},
    {"year 99", true, u'/', u"31/12/99", u"Null"},
};

using DateTextInSql = Rows<DialectTest, DateTextInSqlRow>;

TEST_P(DateTextInSql, IsReadAsTheLocaleReadsIt) {
  const DateTextInSqlRow& row = GetParam();
  thread.locale.day_first = row.day_first;
  thread.locale.date_separator = row.separator;
  expect_outcome(row.date, [&] { return dialect::FechaSQL(Engine::Jet, row.text); });
}

INSTANTIATE_TEST_SUITE_P(, DateTextInSql, ::testing::ValuesIn(kDateTextInSqlRows), row_name);

TEST_F(DatesInSqlTest, TextsGiveTheirTimeToo) {
  const Value moment = u"05/01/2011 14:07:09", day = u"05/01/2011";
  expect_outcome(u"{ t '14:07:09'}", [&] { return dialect::HoraSQL(Engine::SqlServer, moment); });
  expect_outcome(u"{ ts '2011-01-05 14:07:09'}", [&] { return dialect::FechaHoraSQL(Engine::SqlServer, moment); });
  expect_outcome(u"{ ts '2011-01-05 14:07:09'}", [&] { return dialect::FechaSQLv(Engine::SqlServer, moment); });
  expect_outcome(u"{ d '2011-01-05'}", [&] { return dialect::FechaSQLv(Engine::SqlServer, day); });
  expect_outcome(undefined(), [&] { return dialect::FechaSQLv(kNoEngine, day); });
}

TEST_F(DatesInSqlTest, FechaHoraSQLKnowsTheWordsForNow) {
  const EachEngine kClockText{u"Now()", u"GetDate()", u"SYSDATE", undefined()};
  for (const TextView word : {u"Ahora", u"ahora", u"AHORA", u"AhoraSQL", u"ahorasql", u"AHORASQL"}) {
    SCOPED_TRACE(to_utf8(word));
    expect_each(kClockText, [&](Engine engine) { return dialect::FechaHoraSQL(engine, Text(word)); });
    for (const Member other : {dialect::FechaSQL, dialect::HoraSQL, dialect::FechaSQLv}) {
      expect_each(all_engines(u"Null"), [&](Engine engine) { return other(engine, Text(word)); });
    }
  }
  for (const TextView word : {u"Ahora ", u" AhoraSQL", u"Ahora()", u"Now()", u"Ahor", u"AhoraSQL2"}) {
    SCOPED_TRACE(to_utf8(word));
    expect_each(all_engines(u"Null"), [&](Engine engine) { return dialect::FechaHoraSQL(engine, Text(word)); });
  }
}

TEST_F(DatesInSqlTest, LiteralFechaMotorTakesItsMasksFromTheCaller) {
  const Value moment = Date{kFifthOfJanuary + kClock};
  const auto call = [&](Engine engine) {
    return dialect::LiteralFechaMotor(engine, moment, u"dd/mm/yyyy hh.nn", u"DD/MM/YYYY HH24.MI");
  };
  expect_each({u"#05/01/2011 14.07#", u"{ d '05/01/2011 14.07'}", u" TO_DATE('05/01/2011 14.07','DD/MM/YYYY HH24.MI') ",
               undefined()},
              call);
  expect_each(all_engines(u"Null"),
              [](Engine engine) { return dialect::LiteralFechaMotor(engine, Null{}, u"dd", u"DD"); });
}

}  // namespace
}  // namespace qvr::tests
