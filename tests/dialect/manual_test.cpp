// The manual's tables of texts, row by row.
#include "dialect/manual_calls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "support/test_thread.h"

namespace qvr::tests {
namespace {

using Engine::Jet;
using Engine::Oracle;
using Engine::SqlServer;

struct Manual {
  const char *language, *heading, *empty;
};
constexpr Manual kManuals[] = {{"en", "| call | Jet | SQL Server | Oracle |", "(empty)"},
                               {"es", "| llamada | Jet | SQL Server | Oracle |", "(vac\u00edo)"}};

// A text as a table shows it: blanks at its ends as dots, so that a reader sees them; a bar would end the cell.
std::string cell(const Manual& manual, const Text& text) {
  std::string shown = to_utf8(text);
  if (shown.empty()) return manual.empty;
  if (shown.back() == ' ') shown.replace(shown.size() - 1, 1, "\u00b7");
  if (shown.front() == ' ') shown.replace(0, 1, "\u00b7");
  for (std::size_t at = 0; (at = shown.find('|', at)) != std::string::npos; at += 2) shown.insert(at, "\\");
  return "`" + shown + "`";
}

std::string row_of(const Manual& manual, const ManualCall& each) {
  std::string row = "| `" + each.call + "` |";
  for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle})
    row += " " + cell(manual, each.text(engine)) + " |";
  return row;
}

// The rows of the page's tables under that heading.
std::vector<std::string> rows_in(const Manual& manual, const std::string& page) {
  std::ifstream file(std::string(QVR_TESTS_MANUAL) + "/" + manual.language + "/" + page + ".md");
  EXPECT_TRUE(file.good()) << page;
  std::vector<std::string> rows;
  bool inside = false;
  for (std::string line; std::getline(file, line);) {
    if (line == manual.heading) {
      inside = true;
    } else if (!line.starts_with("|")) {
      inside = false;
    } else if (inside && !line.starts_with("|---")) {
      rows.push_back(line);
    }
  }
  return rows;
}

class Manuals : public ::testing::TestWithParam<Manual> {};

TEST_P(Manuals, ShowWhatEachEngineGets) {
  TestThread thread;
  constexpr int kCallsThatJetLacks = 4;  // each shows a box
  for (int i = 0; i < kCallsThatJetLacks; ++i) thread.boxes.answer(BoxAnswer::Ok);
  for (const ManualPage& page : manual_pages()) {
    std::vector<std::string> expected;
    for (const ManualCall& each : page.calls) expected.push_back(row_of(GetParam(), each));
    const std::vector<std::string> rows = rows_in(GetParam(), page.name);
    EXPECT_EQ(rows.size(), expected.size()) << page.name;
    for (const std::string& row : expected) {
      EXPECT_NE(std::ranges::find(rows, row), rows.end()) << page.name << " lacks the row\n" << row;
    }
  }
  thread.log.take();
}

INSTANTIATE_TEST_SUITE_P(Languages, Manuals, ::testing::ValuesIn(kManuals),
                         [](const auto& each) { return std::string(each.param.language); });

}  // namespace
}  // namespace qvr::tests
