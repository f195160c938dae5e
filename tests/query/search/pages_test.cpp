// The manual's search pages, row by row: each search gives the criterion that the page shows, on every engine.
#include <fstream>

#include "base/utf8.h"
#include "query/search/search_fixture.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;
struct Page {
  const char* name;
  UserLanguage language;
  const char *text, *number, *date, *truth;  // what the columns are called there
};
constexpr Page kPages[] = {{"es", kSpanish, "Nombre", "Precio", "Alta", "Activo"},
                           {"en", kEnglish, "Name", "Price", "Joined", "Active"},
                           {"fr", kFrench, "Nom", "Prix", "Inscription", "Actif"}};

struct PageRow {
  std::string typed, shown;
};

// The text of a cell in back quotes.
std::string quoted(const std::string& cell) {
  const std::size_t first = cell.find('`'), last = cell.rfind('`');
  std::string text = first == last ? "" : cell.substr(first + 1, last - first - 1);
  for (std::size_t at; (at = text.find("\\|")) != std::string::npos;) text.erase(at, 1);
  return text;
}

// Table rows of three cells, headings left out.
std::vector<PageRow> rows_of(const Page& page) {
  std::ifstream file(std::string(QVR_TESTS_MANUAL) + "/" + page.name + "/search.md");
  EXPECT_TRUE(file.good()) << page.name;
  std::vector<PageRow> rows;
  for (std::string line; std::getline(file, line);) {
    if (!line.starts_with("| `")) continue;
    std::vector<std::size_t> bars;
    for (std::size_t i = 0; i < line.size(); ++i) {
      if (line[i] == '|' && (i == 0 || line[i - 1] != '\\')) bars.push_back(i);
    }
    EXPECT_EQ(bars.size(), 4u) << line;
    rows.push_back({quoted(line.substr(bars[0], bars[1] - bars[0])), quoted(line.substr(bars[2], bars[3] - bars[2]))});
  }
  return rows;
}

char16_t type_of(const Page& page, const std::string& label) {
  if (label == page.text) return u'T';
  if (label == page.number) return u'N';
  if (label == page.date) return u'F';
  return label == page.truth ? u'L' : u'?';
}

class SearchPages : public ::testing::TestWithParam<Page> {};

TEST_P(SearchPages, ShowWhatIsShown) {
  TestThread thread;
  speak(thread, GetParam().language);
  const auto rows = rows_of(GetParam());
  EXPECT_GT(rows.size(), 40u);
  for (const PageRow& row : rows) {
    const std::string label = row.shown.substr(0, row.shown.find(' '));
    const char16_t type = type_of(GetParam(), label);
    ASSERT_NE(type, u'?') << row.typed << " is shown as " << row.shown;
    for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle}) {
      const Text typed = from_utf8(row.typed).value(), name = from_utf8(label).value();
      const auto found = query::interpret_search(engine, {u"X", type}, typed, name);
      EXPECT_EQ(found ? to_utf8(found->criterion) : "no search", row.shown) << row.typed;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(, SearchPages, ::testing::ValuesIn(kPages), row_name);

}  // namespace
}  // namespace qvr::tests
