// The manual's Spanish pages beside the English ones: the same pages with the same headings, examples and tables. Links
// from the reference find a translated heading by its place.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

namespace qvr::tests {
namespace {

const std::filesystem::path kManual = QVR_TESTS_MANUAL;
constexpr const char* kUsersPage = "search.md";  // what is typed there is in the reader's language

std::set<std::string> pages_in(const char* language) {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(kManual / language)) {
    if (entry.path().extension() == ".md") names.insert(entry.path().filename().string());
  }
  return names;
}

// The names in back quotes of a row's first cell, and how many cells there are; a bar behind a back slash is text.
std::string row_shape(const std::string& row, bool with_names) {
  std::string shape = "row";
  int cells = -1;
  bool quoted = false;
  for (std::size_t i = 0; i < row.size(); ++i) {
    if (row[i] == '|' && (i == 0 || row[i - 1] != '\\')) ++cells;
    if (row[i] == '`') quoted = !quoted;
    if (with_names && cells == 0 && (quoted || row[i] == '`')) shape += row[i];
  }
  return shape + " of " + std::to_string(cells);
}

std::vector<std::string> shape_of(const char* language, const std::string& page) {
  std::ifstream file(kManual / language / page);
  std::vector<std::string> shape;
  bool code = false;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("```")) {
      if (!code) shape.push_back(line);
      code = !code;
    } else if (!code && line.starts_with("#")) {
      shape.push_back(line.substr(0, line.find(' ')));
    } else if (!code && line.starts_with("|")) {
      shape.push_back(row_shape(line, page != kUsersPage));
    }
  }
  return shape;
}

TEST(ManualLanguages, HaveTheSamePages) { EXPECT_EQ(pages_in("es"), pages_in("en")); }

TEST(ManualLanguages, HaveTheSameHeadingsExamplesAndTables) {
  for (const std::string& page : pages_in("en")) {
    const std::vector<std::string> english = shape_of("en", page);
    EXPECT_GT(english.size(), 3u) << page;
    EXPECT_EQ(shape_of("es", page), english) << page;
  }
}

}  // namespace
}  // namespace qvr::tests
