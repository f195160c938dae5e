// Engines by their words and by the names of files.
#include "qvrscript/engines.h"

#include <gtest/gtest.h>

#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

using namespace script_tool;

TEST(Engines, HaveWords) {
  for (const Engine engine : kEngines) EXPECT_EQ(engine_named(engine_word(engine)), engine);
  EXPECT_EQ(engine_named(u"SQLServer"), Engine::SqlServer);
  EXPECT_EQ(engine_named(u""), std::nullopt);
  EXPECT_EQ(engine_named(u"sql"), std::nullopt);
}

struct File {
  const char* name;
  TextView file;
  Engine engine;
};

constexpr File kFiles[] = {
    {"definition of Jet", u"GestionJET1.cfc", Engine::Jet},
    {"definition in another case", u"gestionsqlA.CFC", Engine::SqlServer},
    {"definition of Oracle", u"GestionORA\u00f1.cfc", Engine::Oracle},
    {"update", u"Gestion10024a10025SQL.cfc", Engine::SqlServer},
    {"no place", u"GestionORA.cfc", Engine::Oracle},
    {"two places", u"GestionSQL10.cfc", Engine::None},
    {"another extension", u"GestionSQL1.txt", Engine::None},
    {"tag alone", u"SQL", Engine::None},
    {"nothing", u"", Engine::None},
};

using EngineOfFile = Rows<testing::Test, File>;

TEST_P(EngineOfFile, IsToldByItsName) { EXPECT_EQ(engine_of_file(GetParam().file), GetParam().engine); }

INSTANTIATE_TEST_SUITE_P(, EngineOfFile, testing::ValuesIn(kFiles), row_name);

}  // namespace
}  // namespace qvr::tests
