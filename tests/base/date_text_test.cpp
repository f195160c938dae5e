#include "base/date_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "base/failure.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

constexpr double kSecond = 1.0 / 86400;

struct Moment {
  const char* name;
  double days;
  CalendarTime time;
};

constexpr Moment kMoments[] = {
    {"day zero", 0, {1899, 12, 30, 0, 0, 0}},
    {"the day after", 1, {1899, 12, 31, 0, 0, 0}},
    {"the day before", -1, {1899, 12, 29, 0, 0, 0}},
    {"fraction counts forward before day zero", -1.25, {1899, 12, 29, 6, 0, 0}},
    {"fraction of day zero, either sign", -0.5, {1899, 12, 30, 12, 0, 0}},
    {"half past six", 36526.0 + 18.5 / 24, {2000, 1, 1, 18, 30, 0}},
    {"leap day", 36585, {2000, 2, 29, 0, 0, 0}},
    {"no leap day in 1900", 61, {1900, 3, 1, 0, 0, 0}},
    {"59.4 seconds round down", 36526 + 86399.4 * kSecond, {2000, 1, 1, 23, 59, 59}},
    {"59.6 seconds round up to the next day", 36526 + 86399.6 * kSecond, {2000, 1, 2, 0, 0, 0}},
    {"rounding up at the end of a year", 36890 + 0.5 + 0.4999999, {2000, 12, 31, 0, 0, 0}},
    {"rounding up before day zero", -2 - 86399.6 * kSecond, {1899, 12, 29, 0, 0, 0}},
    {"first day", -657434, {100, 1, 1, 0, 0, 0}},
    {"last second of the first day", -657434 - 86399 * kSecond, {100, 1, 1, 23, 59, 59}},
    {"last day", 2958465, {9999, 12, 31, 0, 0, 0}},
    {"last second", 2958465 + 86399 * kSecond, {9999, 12, 31, 23, 59, 59}},
};

void expect_equal(const CalendarTime& a, const CalendarTime& b) {
  EXPECT_EQ(a.year, b.year);
  EXPECT_EQ(a.month, b.month);
  EXPECT_EQ(a.day, b.day);
  EXPECT_EQ(a.hour, b.hour);
  EXPECT_EQ(a.minute, b.minute);
  EXPECT_EQ(a.second, b.second);
}

using CalendarTimeOf = Rows<testing::Test, Moment>;

TEST_P(CalendarTimeOf, IsTheDateTakenApart) { expect_equal(calendar_time(Date{GetParam().days}), GetParam().time); }

INSTANTIATE_TEST_SUITE_P(, CalendarTimeOf, testing::ValuesIn(kMoments), row_name);

struct NoMoment {
  const char* name;
  double days;
};

constexpr NoMoment kNoMoments[] = {
    {"the day before the first", -657435.0},
    {"the day after the last", 2958466.0},
    {"huge", 1e300},
    {"huge and negative", -1e300},
    {"infinite", std::numeric_limits<double>::infinity()},
    {"no number", std::numeric_limits<double>::quiet_NaN()},
};

using CalendarTimeOutside = Rows<testing::Test, NoMoment>;

TEST_P(CalendarTimeOutside, TheYears100To9999Overflows) {
  try {
    const CalendarTime time = calendar_time(Date{GetParam().days});
    ADD_FAILURE() << "year " << time.year;
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.detail().number, failure_number::kOverflow);
  }
}

INSTANTIATE_TEST_SUITE_P(, CalendarTimeOutside, testing::ValuesIn(kNoMoments), row_name);

TEST(DateFrom, GivesBackWhatCalendarTimeTookApart) {
  std::mt19937 random(5);
  std::uniform_int_distribution<int> year(100, 9999), month(1, 12), day(1, 28), hour(0, 23), sixtieth(0, 59);
  for (int round = 0; round < 20000; ++round) {
    const CalendarTime time{year(random), month(random), day(random), hour(random), sixtieth(random), sixtieth(random)};
    const auto date = date_from(time);
    ASSERT_TRUE(date) << "round " << round;
    expect_equal(calendar_time(*date), time);
    ASSERT_FALSE(HasFailure()) << "round " << round;
  }
}

struct NoDate {
  const char* name;
  CalendarTime time;
};

constexpr NoDate kNoDates[] = {
    {"year 99", {99, 12, 31}},
    {"year 10000", {10000, 1, 1}},
    {"month 0", {2000, 0, 1}},
    {"month 13", {2000, 13, 1}},
    {"day 0", {2000, 1, 0}},
    {"day 32", {2000, 1, 32}},
    {"30 February", {2000, 2, 30}},
    {"29 February 1900", {1900, 2, 29}},
    {"31 April", {2001, 4, 31}},
    {"hour 24", {2000, 1, 1, 24}},
    {"hour -1", {2000, 1, 1, -1}},
    {"minute 60", {2000, 1, 1, 0, 60}},
    {"second 60", {2000, 1, 1, 0, 0, 60}},
    {"month -1", {2000, -1, 1}},
    {"month 257", {2000, 257, 1}},
    {"day 257", {2000, 1, 257}},
    {"year far away", {100000, 1, 1}},
};

using DateFromParts = Rows<testing::Test, NoDate>;

TEST_P(DateFromParts, OutOfRangeIsNone) { EXPECT_FALSE(date_from(GetParam().time)); }

INSTANTIATE_TEST_SUITE_P(, DateFromParts, testing::ValuesIn(kNoDates), row_name);

TEST(FormattedDate, WritesPartsAtTheirFullWidth) {
  EXPECT_EQ(formatted_date(Date{36526}, u"yyyy/mm/dd"), u"2000/01/01");
  EXPECT_EQ(formatted_date(Date{-657434}, u"yyyy-mm-dd hh:nn:ss"), u"0100-01-01 00:00:00");
  EXPECT_EQ(formatted_date(Date{2958465.75}, u"yyyy-mm-dd hh:nn:ss"), u"9999-12-31 18:00:00");
  EXPECT_EQ(formatted_date(Date{36526 + 86399.6 * kSecond}, u"yyyy.mm.dd hh:nn:ss"), u"2000.01.02 00:00:00");
  EXPECT_EQ(formatted_date(Date{36526 + 3723 * kSecond}, u"'hh' n:nn/ss"), u"'01' n:02/03");
  EXPECT_EQ(formatted_date(Date{36526}, u""), u"");
  EXPECT_THROW(formatted_date(Date{1e9}, u"yyyy"), RuntimeFailure);
  EXPECT_FALSE(has_calendar_time(Date{1e9}));
  EXPECT_TRUE(has_calendar_time(Date{2958465 + 86399 * kSecond}));
  EXPECT_TRUE(has_calendar_time(Date{2958465 + 86399.6 * kSecond}));
  EXPECT_FALSE(has_calendar_time(Date{2958466}));
}

}  // namespace
}  // namespace qvr::tests
