// The manual's tables of dates in words are the tables that the search box reads.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <vector>

#include "base/utf8.h"
#include "query/search/date_words.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using query::Language;
using query::Unit;
using tests::PrintTo;

// The names of columns and rows.
struct Page {
  const char* name;
  TextView languages, days, days_beside, weeks, months, quarters, years, named_months, named_quarters, with_year,
      named_days, last, next;
};
const Page kPages[] = {
    {"es", u"| periodo | espa\u00f1ol | ingl\u00e9s | franc\u00e9s |", u"d\u00edas", u"d\u00edas antes y despu\u00e9s",
     u"semanas", u"meses", u"trimestres", u"a\u00f1os", u"un mes", u"un trimestre", u"de un a\u00f1o", u"un d\u00eda",
     u"los \u00faltimos", u"los pr\u00f3ximos"},
    {"en", u"| period | Spanish | English | French |", u"days", u"days before and after", u"weeks", u"months",
     u"quarters", u"years", u"a month", u"a quarter", u"of a year", u"a day", u"the last", u"the next"},
    {"fr", u"| p\u00e9riode | espagnol | anglais | fran\u00e7ais |", u"jours", u"jours avant et apr\u00e8s",
     u"semaines", u"mois", u"trimestres", u"ann\u00e9es", u"un mois", u"un trimestre", u"d\u2019une ann\u00e9e",
     u"un jour", u"les derniers", u"les prochains"},
};

using Phrases = std::vector<Text>;

Text with_article(TextView article, TextView phrase) {
  if (article.empty()) return Text(phrase);
  const TextView blank = article.ends_with(u' ') ? u" " : u"";
  return join({u"(", article.substr(0, article.size() - blank.size()), u")", blank, phrase});
}

Text typed(const Phrases& phrases) { return join({u"`", join(phrases, u"`, `"), u"`"}); }

Text units_beside(Language language, Unit unit) {
  Phrases phrases;
  for (const auto& row : query::periods_beside()) {
    if (row.language == language && row.unit == unit) phrases.push_back(with_article(row.article, row.phrase));
  }
  return typed(phrases);
}

Text days_beside(Language language) {
  const Text today(std::ranges::find(query::periods_beside(), language, &query::PeriodBeside::language)->phrase);
  return typed({today + u"-7", today + u" + 7"});
}

Text names(Language language, Unit unit) {
  Phrases cells;
  for (const auto& row : query::named_periods()) {
    if (row.language != language || row.unit != unit) continue;
    Phrases known;
    for (const TextView name : row.names) {
      if (!name.empty()) known.emplace_back(name);
    }
    cells.push_back(typed(known));
  }
  return join(cells, u"; ");
}

// What may stand beside a name, shown with the first month and quarter.
const query::NameWords& words_of(Language language) {
  return *std::ranges::find(query::name_words(), language, &query::NameWords::language);
}
TextView first_name(Language language, Unit unit) {
  const auto is_first = [&](const auto& row) { return row.language == language && row.unit == unit; };
  return std::ranges::find_if(query::named_periods(), is_first)->names[0];
}

Text with_year(Language language) {
  const TextView month = first_name(language, Unit::Month);
  Phrases phrases{join({month, u" 2011"})};
  for (const TextView word : words_of(language).before_year) {
    if (!word.empty()) phrases.push_back(join({month, u" ", word, u" 2011"}));
  }
  phrases.push_back(join({first_name(language, Unit::Quarter), u" 2011"}));
  return typed(phrases);
}

Text named_days(Language language) {
  const query::NameWords& words = words_of(language);
  const TextView month = first_name(language, Unit::Month);
  const Text of_month = words.before_month.empty() ? join({u" ", month})
                                                   : join({u" ", words.before_month, u" ", month});
  Phrases phrases{with_article(words.article, join({u"5 ", month}))};
  if (!words.before_month.empty()) phrases.push_back(with_article(words.article, u"5" + of_month));
  int day = 0;
  for (const TextView ending : words.behind_day_number) {
    if (!ending.empty()) phrases.push_back(with_article(words.article, join({decimal(++day), ending, of_month})));
  }
  if (words.day_may_follow) phrases.push_back(join({month, u" 5, 2011"}));
  return typed(phrases);
}

// The French say the number first.
Text counted(Language language, bool future) {
  Phrases words, units;
  for (const auto& row : query::count_words()) {
    if (row.language != language || row.future != future) continue;
    const bool number_first = language == Language::French;
    words.push_back(with_article(row.article, number_first ? join({u"7 ", row.many}) : join({row.many, u" 7"})));
  }
  for (const auto& row : query::unit_names()) {
    if (row.language == language) units.push_back(Text(row.many));
  }
  return join({typed(words), u" + ", typed(units)});
}

template <class Cell>
Text row(TextView label, Cell cell) {
  return join({u"| ", label, u" | ", cell(Language::Spanish), u" | ", cell(Language::English), u" | ",
               cell(Language::French), u" |\n"});
}

Text table_of(const Page& page) {
  const auto units = [](Unit unit) { return [=](Language language) { return units_beside(language, unit); }; };
  const auto named = [](Unit unit) { return [=](Language language) { return names(language, unit); }; };
  const auto counts = [](bool future) { return [=](Language language) { return counted(language, future); }; };
  return join({page.languages, u"\n|---|---|---|---|\n", row(page.days, units(Unit::Day)),
               row(page.days_beside, days_beside), row(page.weeks, units(Unit::Week)),
               row(page.months, units(Unit::Month)), row(page.quarters, units(Unit::Quarter)),
               row(page.years, units(Unit::Year)), row(page.named_months, named(Unit::Month)),
               row(page.named_quarters, named(Unit::Quarter)), row(page.with_year, with_year),
               row(page.named_days, named_days), row(page.last, counts(false)), row(page.next, counts(true))});
}

// The page's table below this line of headings.
std::string shown_table(const Page& page) {
  std::ifstream file(std::string(QVR_TESTS_MANUAL) + "/" + page.name + "/search.md");
  EXPECT_TRUE(file.good()) << page.name;
  std::string table;
  for (std::string line; std::getline(file, line);) {
    if (line == to_utf8(page.languages) || (!table.empty() && line.starts_with('|'))) table += line + "\n";
    if (!table.empty() && !line.starts_with('|')) break;
  }
  return table;
}

class DateFormsPages : public ::testing::TestWithParam<Page> {};

TEST_P(DateFormsPages, HaveTheTableOfTheWords) {
  const std::string expected = to_utf8(table_of(GetParam()));
  EXPECT_EQ(shown_table(GetParam()), expected) << "The table is\n" << expected;
}

INSTANTIATE_TEST_SUITE_P(, DateFormsPages, ::testing::ValuesIn(kPages), row_name);

}  // namespace
}  // namespace qvr::tests
