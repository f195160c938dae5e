// Comments, strings and quoted names by engine.
#include "qvrscript/check/sql_regions.h"

#include <gtest/gtest.h>

#include "base/utf8.h"
#include "qvrscript/engines.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

std::vector<std::string> regions(TextView text, Engine engine) {
  std::vector<std::string> found;
  for (const auto& region : script_tool::regions_of(text, engine)) {
    found.push_back(to_utf8(text.substr(region.begin, region.end - region.begin)) + (region.closed ? "" : " (open)"));
  }
  return found;
}

struct Row {
  const char* name;
  TextView text;
  Engine engine;
  std::vector<std::string> regions;
};

const Row kRows[] = {
    {"string", u"a 'b' c", Engine::SqlServer, {"'b'"}},
    {"doubled apostrophe", u"'a''b'", Engine::SqlServer, {"'a''b'"}},
    {"empty strings", u"'' ''", Engine::SqlServer, {"''", "''"}},
    {"string never closed", u"'a", Engine::SqlServer, {"'a (open)"}},
    {"line comment", u"a --b'\r\n'c'", Engine::SqlServer, {"--b'", "'c'"}},
    {"nested comment", u"/*a/*b*/c*/d", Engine::SqlServer, {"/*a/*b*/c*/"}},
    {"nested comment of Oracle", u"/*a/*b*/c*/d", Engine::Oracle, {"/*a/*b*/"}},
    {"slash behind the mark", u"/*/ a */", Engine::SqlServer, {"/*/ a */"}},
    {"comment never closed", u"/*", Engine::SqlServer, {"/* (open)"}},
    {"comment half closed", u"/*a*", Engine::SqlServer, {"/*a* (open)"}},
    {"names in brackets", u"[a'b] [c]]d]", Engine::SqlServer, {"[a'b]", "[c]]d]"}},
    {"bracket over two lines", u"[a\r\n]", Engine::SqlServer, {}},
    {"bracket never closed", u"[a [b", Engine::SqlServer, {}},
    {"bracket closed by a doubled one only", u"[a]] [b]]\r\n[c]", Engine::SqlServer, {"[c]"}},
    {"bracket in a bracket", u"[a[b] [c", Engine::SqlServer, {"[a[b]"}},
    {"three closing brackets", u"[a]]] b", Engine::SqlServer, {"[a]]]"}},
    {"brackets of Oracle", u"x[1]", Engine::Oracle, {}},
    {"line comment of Jet", u"[a] --'b'", Engine::Jet, {"[a]", "'b'"}},
    {"comment of Jet", u"/*'a'*/", Engine::Jet, {"'a'"}},
    {"quoted name", u"\"a\"\"'\" 'b'", Engine::Oracle, {"\"a\"\"'\"", "'b'"}},
    {"other quotes of Oracle", u"q'[it's]' 'a'", Engine::Oracle, {"q'[it's]'", "'a'"}},
    {"other quotes in capitals", u"Q'!it's!' q'(a)' 'b", Engine::Oracle, {"Q'!it's!'", "q'(a)'", "'b (open)"}},
    {"other quotes never closed", u"nq'[a' q'[b", Engine::Oracle, {"'[a'", "q'[b (open)"}},
    {"other quotes of SQL Server", u"q'[it's", Engine::SqlServer, {"'[it'"}},
    {"nothing", u"", Engine::SqlServer, {}},
};

using SqlRegionsIn = Rows<testing::Test, Row>;

TEST_P(SqlRegionsIn, TheTextAreFoundByEngine) {
  EXPECT_EQ(regions(GetParam().text, GetParam().engine), GetParam().regions);
}

INSTANTIATE_TEST_SUITE_P(, SqlRegionsIn, testing::ValuesIn(kRows), row_name);

TEST(SqlRegions, AreLookedUpByPosition) {
  const auto found = script_tool::regions_of(u"a 'b' c", Engine::SqlServer);
  EXPECT_EQ(script_tool::region_at(found, 1), nullptr);
  ASSERT_NE(script_tool::region_at(found, 2), nullptr);
  EXPECT_EQ(script_tool::region_at(found, 4)->begin, 2u);
  EXPECT_EQ(script_tool::region_at(found, 5), nullptr);
}

}  // namespace
}  // namespace qvr::tests
