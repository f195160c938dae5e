// The system's locale: properties that hold for every locale.
#include <gtest/gtest.h>

#include <random>

#include "base/date_text.h"
#include "base/utf8.h"
#include "platform/platform.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

Locale& locale() { return system_platform().locale; }

TEST(SystemLocale, ReadsNumbersWithItsOwnSeparator) {
  const Text point(1, locale().decimal_separator());
  EXPECT_EQ(locale().parse_number(u"12"), 12.0);
  EXPECT_EQ(locale().parse_number(u"-12"), -12.0);
  EXPECT_EQ(locale().parse_number(u" 7 "), 7.0);
  EXPECT_EQ(locale().parse_number(u"2" + point + u"5"), 2.5);
  EXPECT_EQ(locale().parse_number(u"-0" + point + u"25"), -0.25);
  EXPECT_EQ(locale().parse_number(u"1E3"), 1000.0);
}

struct Refused {
  const char* name;
  Text text;
};

const Refused kNoNumbers[] = {
    {"empty", u""},
    {"blank", u" "},
    {"letters", u"abc"},
    {"letters behind", u"12abc"},
    {"sign alone", u"-"},
    {"two numbers", u"1 2"},
    {"two signs", u"--1"},
    {"digit of another script", u"\u0661"},
    {"zero unit behind", Text(u"12\0x", 4)},
    {"zero unit alone", Text(1, u'\0')},
};

using SystemLocaleNumber = Rows<testing::Test, Refused>;

TEST_P(SystemLocaleNumber, IsNoneOfWhatIsNoNumber) { EXPECT_EQ(locale().parse_number(GetParam().text), std::nullopt); }

INSTANTIATE_TEST_SUITE_P(, SystemLocaleNumber, testing::ValuesIn(kNoNumbers), row_name);

TEST(SystemLocale, ReadsTheDatesThatItWrites) {
  const auto first = date_from({1930, 1, 1}), last = date_from({2029, 12, 31});
  ASSERT_TRUE(first && last);
  std::mt19937 random(17);
  std::uniform_int_distribution<int> day(static_cast<int>(first->days), static_cast<int>(last->days)), second(0, 86399);
  for (int round = 0; round < 3000; ++round) {
    const Date whole{static_cast<double>(day(random))};
    const Date with_time{whole.days + second(random) / 86400.0};
    for (const Date date : {whole, with_time}) {
      const Text text = locale().date_text(date);
      const auto read = locale().parse_date(text);
      ASSERT_TRUE(read) << to_utf8(text);
      ASSERT_NEAR(read->days, date.days, 0.4 / 86400) << to_utf8(text);
    }
  }
}

TEST(SystemLocale, ReadsATimeAlone) {
  const auto noon = locale().parse_date(locale().date_text(Date{0.5}));
  ASSERT_TRUE(noon);
  EXPECT_EQ(noon->days, 0.5);
}

// What typed texts of dates are written as, and the form that is the same everywhere.
TEST(SystemLocale, ReadsAYearInFrontAsYearMonthDay) {
  for (const TextView text : {u"2024-03-01", u"2024/03/01", u"2024-3-1", u"2024-03-01 00:00:00"}) {
    const auto date = locale().parse_date(text);
    ASSERT_TRUE(date) << to_utf8(text);
    EXPECT_EQ(date->days, 45352) << to_utf8(text);
  }
}

const Refused kNoDates[] = {
    {"empty", u""},
    {"letters", u"abc"},
    {"day 32 of month 13", u"32/13/2000"},
    {"30 February", u"30/02/2000"},
    {"day 0", u"0/0/2000"},
    {"hour 25", u"1/1/2000 25:00:00"},
    {"five numbers", u"1/2/3/4/5"},
    {"zero unit behind", Text(u"1/1/2000\0x", 10)},
};

using SystemLocaleDate = Rows<testing::Test, Refused>;

TEST_P(SystemLocaleDate, IsNoneOfWhatIsNoDate) {
  const auto date = locale().parse_date(GetParam().text);
  EXPECT_FALSE(date) << date->days;
}

INSTANTIATE_TEST_SUITE_P(, SystemLocaleDate, testing::ValuesIn(kNoDates), row_name);

}  // namespace
}  // namespace qvr::tests
