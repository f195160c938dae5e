// The manual's tables of texts, row by row.
#include "dialect/manual_calls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "support/test_thread.h"

namespace qvr::tests {
namespace {

using dialect::kJet;
using dialect::kOracle;
using dialect::kSqlServer;

constexpr std::string_view kHeading = "| call | Jet | SQL Server | Oracle |";

// A text as a table shows it: blanks at its ends as dots, so that a reader sees them; a bar would end the cell.
std::string cell(const Text& text) {
  std::string shown = to_utf8(text);
  if (shown.empty()) return "(empty)";
  if (shown.back() == ' ') shown.replace(shown.size() - 1, 1, "\u00b7");
  if (shown.front() == ' ') shown.replace(0, 1, "\u00b7");
  for (std::size_t at = 0; (at = shown.find('|', at)) != std::string::npos; at += 2) shown.insert(at, "\\");
  return "`" + shown + "`";
}

std::string row_of(const ManualCall& each) {
  return "| `" + each.call + "` | " + cell(each.text(kJet)) + " | " + cell(each.text(kSqlServer)) + " | " +
         cell(each.text(kOracle)) + " |";
}

// The rows of the page's tables under that heading.
std::vector<std::string> rows_in(const std::string& page) {
  std::ifstream file(std::string(QVR_TESTS_MANUAL) + "/en/" + page + ".md");
  EXPECT_TRUE(file.good()) << page;
  std::vector<std::string> rows;
  bool inside = false;
  for (std::string line; std::getline(file, line);) {
    if (line == kHeading) {
      inside = true;
    } else if (!line.starts_with("|")) {
      inside = false;
    } else if (inside && !line.starts_with("|---")) {
      rows.push_back(line);
    }
  }
  return rows;
}

TEST(Manual, ShowsWhatEachEngineGets) {
  TestThread thread;
  constexpr int kCallsThatJetLacks = 4;  // each shows a box
  for (int i = 0; i < kCallsThatJetLacks; ++i) thread.boxes.answer(BoxAnswer::Ok);
  for (const ManualPage& page : manual_pages()) {
    std::vector<std::string> expected;
    for (const ManualCall& each : page.calls) expected.push_back(row_of(each));
    const std::vector<std::string> rows = rows_in(page.name);
    EXPECT_EQ(rows.size(), expected.size()) << page.name;
    for (const std::string& row : expected) {
      EXPECT_NE(std::ranges::find(rows, row), rows.end()) << page.name << " lacks the row\n" << row;
    }
  }
  thread.log.take();
}

}  // namespace
}  // namespace qvr::tests
