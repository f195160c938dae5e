// Comments, strings and quoted names by engine.
#include "qvrscript/sql_regions.h"

#include <gtest/gtest.h>

#include "base/utf8.h"
#include "qvrscript/engines.h"

namespace qvr::tests {
namespace {

std::vector<std::string> regions(TextView text, std::int32_t engine) {
  std::vector<std::string> found;
  for (const auto& region : script_tool::regions_of(text, engine)) {
    found.push_back(to_utf8(text.substr(region.begin, region.end - region.begin)) + (region.closed ? "" : " (open)"));
  }
  return found;
}

TEST(SqlRegions, AreFoundByEngine) {
  using namespace script_tool;
  struct Row {
    TextView text;
    std::int32_t engine;
    std::vector<std::string> regions;
  };
  const Row rows[] = {
      {u"a 'b' c", kSqlServer, {"'b'"}},
      {u"'a''b'", kSqlServer, {"'a''b'"}},
      {u"'' ''", kSqlServer, {"''", "''"}},
      {u"'a", kSqlServer, {"'a (open)"}},
      {u"a --b'\r\n'c'", kSqlServer, {"--b'", "'c'"}},
      {u"/*a/*b*/c*/d", kSqlServer, {"/*a/*b*/c*/"}},
      {u"/*a/*b*/c*/d", kOracle, {"/*a/*b*/"}},
      {u"/*/ a */", kSqlServer, {"/*/ a */"}},
      {u"/*", kSqlServer, {"/* (open)"}},
      {u"/*a*", kSqlServer, {"/*a* (open)"}},
      {u"[a'b] [c]]d]", kSqlServer, {"[a'b]", "[c]]d]"}},
      {u"[a\r\n]", kSqlServer, {}},
      {u"x[1]", kOracle, {}},
      {u"[a] --'b'", kJet, {"[a]", "'b'"}},
      {u"/*'a'*/", kJet, {"'a'"}},
      {u"\"a\"\"'\" 'b'", kOracle, {"\"a\"\"'\"", "'b'"}},
      {u"q'[it's]' 'a'", kOracle, {"q'[it's]'", "'a'"}},
      {u"Q'!it's!' q'(a)' 'b", kOracle, {"Q'!it's!'", "q'(a)'", "'b (open)"}},
      {u"nq'[a' q'[b", kOracle, {"'[a'", "q'[b (open)"}},
      {u"q'[it's", kSqlServer, {"'[it'"}},
      {u"", kSqlServer, {}},
  };
  for (const Row& row : rows) EXPECT_EQ(regions(row.text, row.engine), row.regions) << to_utf8(row.text);
}

TEST(SqlRegions, AreLookedUpByPosition) {
  const auto found = script_tool::regions_of(u"a 'b' c", script_tool::kSqlServer);
  EXPECT_EQ(script_tool::region_at(found, 1), nullptr);
  ASSERT_NE(script_tool::region_at(found, 2), nullptr);
  EXPECT_EQ(script_tool::region_at(found, 4)->begin, 2u);
  EXPECT_EQ(script_tool::region_at(found, 5), nullptr);
}

}  // namespace
}  // namespace qvr::tests
