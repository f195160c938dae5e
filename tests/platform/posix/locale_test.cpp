// The native locale by its name.
#include <gtest/gtest.h>

#include "platform/platform.h"
#include "platform/posix/environment_variable.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

constexpr std::nullopt_t kNone = std::nullopt;

struct Row {
  const char* name;
  TextView date, number;
  std::uint16_t language;
};

// 5 March 2024, and 1234.5.
constexpr Row kRows[] = {
    {"es_ES.UTF-8", u"05/03/2024", u"1234,5", 0x0C0A}, {"es_MX", u"05/03/2024", u"1234.5", 0x080A},
    {"es_CO.UTF-8", u"05/03/2024", u"1234,5", 0x0C0A}, {"en_US.UTF-8", u"03/05/2024", u"1234.5", 0x0409},
    {"en_GB", u"05/03/2024", u"1234.5", 0x0809},       {"fr_FR@euro", u"05/03/2024", u"1234,5", 0x040C},
    {"fr_CH.UTF-8", u"05.03.2024", u"1234.5", 0x100C}, {"de_DE", u"05.03.2024", u"1234,5", 0x0407},
    {"de_CH", u"05.03.2024", u"1234.5", 0x0807},       {"C", u"03/05/2024", u"1234.5", 0x0409},
    {"xx_YY", u"03/05/2024", u"1234.5", 0x0409},
};

using NativeLocaleNamed = Rows<testing::Test, Row>;

TEST_P(NativeLocaleNamed, FollowsTheName) {
  Locale& locale = system_platform().locale;
  const Row& row = GetParam();
  const EnvironmentVariable name("LC_ALL", row.name);
  EXPECT_EQ(locale.date_text(Date{45356}), Text(row.date));
  const auto date = locale.parse_date(row.date);
  ASSERT_TRUE(date);
  EXPECT_EQ(date->days, 45356);
  EXPECT_EQ(locale.parse_number(row.number), 1234.5);
  EXPECT_EQ(locale.decimal_separator(), row.number[4]);
  EXPECT_EQ(system_platform().system.user_language(), row.language);
}

INSTANTIATE_TEST_SUITE_P(, NativeLocaleNamed, testing::ValuesIn(kRows), row_name);

TEST(NativeLocale, TakesTheFirstVariableThatHasAName) {
  const EnvironmentVariable all("LC_ALL", ""), time("LC_TIME", "de_DE.UTF-8"), lang("LANG", "en_US.UTF-8");
  EXPECT_EQ(system_platform().locale.date_text(Date{45356}), u"05.03.2024");
}

TEST(NativeLocale, IsPlainWithoutAName) {
  const EnvironmentVariable all("LC_ALL", kNone), time("LC_TIME", kNone), lang("LANG", kNone);
  EXPECT_EQ(system_platform().locale.date_text(Date{45356}), u"03/05/2024");
  EXPECT_EQ(system_platform().system.user_language(), 0x0409);
}

struct Form {
  const char* name;
  TextView text;
  double days;
};

constexpr Form kForms[] = {
    {"year in front", u"2024-03-05", 45356},
    {"hyphens", u"5-3-2024", 45356},
    {"points and two digits of the year", u"5.3.24", 45356},
    {"blanks around", u" 05/03/2024 ", 45356},
    {"last year of this century", u"5/3/29", 47182},
    {"first year of the last century", u"5/3/30", 11022},
    {"hour and minute", u"05/03/2024 06:00", 45356.25},
    {"hour, minute and second", u"05/03/2024 18:00:00", 45356.75},
    {"time alone", u"6:00", 0.25},
};

using NativeLocaleForm = Rows<testing::Test, Form>;

TEST_P(NativeLocaleForm, OfADateIsRead) {
  const EnvironmentVariable name("LC_ALL", "es_ES");
  const auto date = system_platform().locale.parse_date(GetParam().text);
  ASSERT_TRUE(date);
  EXPECT_EQ(date->days, GetParam().days);
}

INSTANTIATE_TEST_SUITE_P(, NativeLocaleForm, testing::ValuesIn(kForms), row_name);

// A time is written alone on day zero only, also when it is only the rounding that leaves that day or midnight.
constexpr Form kAroundDayZero[] = {
    {"midnight", u"30/12/1899", 0},
    {"rounded to midnight", u"30/12/1899", 1e-9},
    {"morning", u"06:00:00", 0.25},
    {"morning, counted back", u"06:00:00", -0.25},
    {"rounded to the next day", u"31/12/1899", 0.999999},
    {"next day", u"31/12/1899 06:00:00", 1.25},
    {"day before", u"29/12/1899 06:00:00", -1.25},
};

using NativeLocaleTime = Rows<testing::Test, Form>;

TEST_P(NativeLocaleTime, IsWrittenAloneOnDayZeroOnly) {
  const EnvironmentVariable name("LC_ALL", "es_ES");
  EXPECT_EQ(system_platform().locale.date_text(Date{GetParam().days}), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(, NativeLocaleTime, testing::ValuesIn(kAroundDayZero), row_name);

TEST(NativeLocale, SkipsItsThousandsSeparator) {
  const EnvironmentVariable name("LC_ALL", "es_ES");
  EXPECT_EQ(system_platform().locale.parse_number(u"1.234,5"), 1234.5);
  EXPECT_EQ(system_platform().locale.parse_number(u"1.234.567"), 1234567.0);
  EXPECT_EQ(system_platform().locale.parse_number(u".5"), std::nullopt);
  EXPECT_EQ(system_platform().locale.parse_number(u"1,5,5"), std::nullopt);
}

}  // namespace
}  // namespace qvr::tests
