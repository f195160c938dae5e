// Comments, strings and quoted names by engine.
#include "qvrscript/sql_regions.h"

#include <gtest/gtest.h>

#include "base/utf8.h"
#include "qvrscript/engines.h"

namespace qvr::tests {
namespace {

std::vector<std::string> regions(TextView text, Engine engine) {
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
    Engine engine;
    std::vector<std::string> regions;
  };
  const Row rows[] = {
      {u"a 'b' c", Engine::SqlServer, {"'b'"}},
      {u"'a''b'", Engine::SqlServer, {"'a''b'"}},
      {u"'' ''", Engine::SqlServer, {"''", "''"}},
      {u"'a", Engine::SqlServer, {"'a (open)"}},
      {u"a --b'\r\n'c'", Engine::SqlServer, {"--b'", "'c'"}},
      {u"/*a/*b*/c*/d", Engine::SqlServer, {"/*a/*b*/c*/"}},
      {u"/*a/*b*/c*/d", Engine::Oracle, {"/*a/*b*/"}},
      {u"/*/ a */", Engine::SqlServer, {"/*/ a */"}},
      {u"/*", Engine::SqlServer, {"/* (open)"}},
      {u"/*a*", Engine::SqlServer, {"/*a* (open)"}},
      {u"[a'b] [c]]d]", Engine::SqlServer, {"[a'b]", "[c]]d]"}},
      {u"[a\r\n]", Engine::SqlServer, {}},
      {u"x[1]", Engine::Oracle, {}},
      {u"[a] --'b'", Engine::Jet, {"[a]", "'b'"}},
      {u"/*'a'*/", Engine::Jet, {"'a'"}},
      {u"\"a\"\"'\" 'b'", Engine::Oracle, {"\"a\"\"'\"", "'b'"}},
      {u"q'[it's]' 'a'", Engine::Oracle, {"q'[it's]'", "'a'"}},
      {u"Q'!it's!' q'(a)' 'b", Engine::Oracle, {"Q'!it's!'", "q'(a)'", "'b (open)"}},
      {u"nq'[a' q'[b", Engine::Oracle, {"'[a'", "q'[b (open)"}},
      {u"q'[it's", Engine::SqlServer, {"'[it'"}},
      {u"", Engine::SqlServer, {}},
  };
  for (const Row& row : rows) EXPECT_EQ(regions(row.text, row.engine), row.regions) << to_utf8(row.text);
}

TEST(SqlRegions, AreLookedUpByPosition) {
  const auto found = script_tool::regions_of(u"a 'b' c", Engine::SqlServer);
  EXPECT_EQ(script_tool::region_at(found, 1), nullptr);
  ASSERT_NE(script_tool::region_at(found, 2), nullptr);
  EXPECT_EQ(script_tool::region_at(found, 4)->begin, 2u);
  EXPECT_EQ(script_tool::region_at(found, 5), nullptr);
}

}  // namespace
}  // namespace qvr::tests
