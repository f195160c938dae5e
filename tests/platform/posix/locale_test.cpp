// The native build's conventions by the locale's name.
#include <gtest/gtest.h>

#include "platform/platform.h"
#include "platform/posix/environment_variable.h"

namespace qvr::tests {
namespace {

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

TEST(NativeLocale, FollowsTheName) {
  Locale& locale = system_platform().locale;
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    const EnvironmentVariable name("LC_ALL", row.name);
    EXPECT_EQ(locale.date_text(Date{45356}), Text(row.date));
    const auto date = locale.parse_date(row.date);
    ASSERT_TRUE(date);
    EXPECT_EQ(date->days, 45356);
    EXPECT_EQ(locale.parse_number(row.number), 1234.5);
    EXPECT_EQ(locale.decimal_separator(), row.number[4]);
    EXPECT_EQ(system_platform().user_language.default_identifier(), row.language);
  }
}

TEST(NativeLocale, TakesTheFirstVariableThatHasAName) {
  const EnvironmentVariable all("LC_ALL", ""), time("LC_TIME", "de_DE.UTF-8"), lang("LANG", "en_US.UTF-8");
  EXPECT_EQ(system_platform().locale.date_text(Date{45356}), u"05.03.2024");
}

TEST(NativeLocale, IsPlainWithoutAName) {
  const EnvironmentVariable all("LC_ALL", kNone), time("LC_TIME", kNone), lang("LANG", kNone);
  EXPECT_EQ(system_platform().locale.date_text(Date{45356}), u"03/05/2024");
  EXPECT_EQ(system_platform().user_language.default_identifier(), 0x0409);
}

TEST(NativeLocale, ReadsOtherFormsOfADate) {
  const EnvironmentVariable name("LC_ALL", "es_ES");
  struct Form {
    TextView text;
    double days;
  };
  constexpr Form kForms[] = {
      {u"2024-03-05", 45356},
      {u"5-3-2024", 45356},
      {u"5.3.24", 45356},
      {u" 05/03/2024 ", 45356},
      {u"5/3/29", 47182},
      {u"5/3/30", 11022},
      {u"05/03/2024 06:00", 45356.25},
      {u"05/03/2024 18:00:00", 45356.75},
      {u"6:00", 0.25},
  };
  for (const Form& form : kForms) {
    SCOPED_TRACE(::testing::PrintToString(Text(form.text)));
    const auto date = system_platform().locale.parse_date(form.text);
    ASSERT_TRUE(date);
    EXPECT_EQ(date->days, form.days);
  }
}

// A time is written alone on day zero only, also when it is only the rounding that leaves that day or midnight.
TEST(NativeLocale, WritesATimeAloneOnDayZeroOnly) {
  const EnvironmentVariable name("LC_ALL", "es_ES");
  struct Form {
    double days;
    TextView text;
  };
  constexpr Form kForms[] = {
      {0, u"30/12/1899"},
      {1e-9, u"30/12/1899"},
      {0.25, u"06:00:00"},
      {-0.25, u"06:00:00"},
      {0.999999, u"31/12/1899"},
      {1.25, u"31/12/1899 06:00:00"},
      {-1.25, u"29/12/1899 06:00:00"},
  };
  for (const Form& form : kForms) EXPECT_EQ(system_platform().locale.date_text(Date{form.days}), form.text);
}

TEST(NativeLocale, SkipsItsThousandsSeparator) {
  const EnvironmentVariable name("LC_ALL", "es_ES");
  EXPECT_EQ(system_platform().locale.parse_number(u"1.234,5"), 1234.5);
  EXPECT_EQ(system_platform().locale.parse_number(u"1.234.567"), 1234567.0);
  EXPECT_EQ(system_platform().locale.parse_number(u".5"), std::nullopt);
  EXPECT_EQ(system_platform().locale.parse_number(u"1,5,5"), std::nullopt);
}

}  // namespace
}  // namespace qvr::tests
