// Engines by their words and by the names of files.
#include "qvrscript/engines.h"

#include <gtest/gtest.h>

#include "base/utf8.h"

namespace qvr::tests {
namespace {

using namespace script_tool;

TEST(Engines, HaveWords) {
  for (const Engine engine : kEngines) EXPECT_EQ(engine_named(engine_word(engine)), engine);
  EXPECT_EQ(engine_named(u"SQLServer"), Engine::SqlServer);
  EXPECT_EQ(engine_named(u""), std::nullopt);
  EXPECT_EQ(engine_named(u"sql"), std::nullopt);
}

TEST(Engines, AreToldByTheNamesOfFiles) {
  const struct {
    TextView name;
    Engine engine;
  } rows[] = {
      {u"GestionJET1.cfc", Engine::Jet},
      {u"gestionsqlA.CFC", Engine::SqlServer},
      {u"GestionORA\u00f1.cfc", Engine::Oracle},
      {u"Gestion10024a10025SQL.cfc", Engine::SqlServer},
      {u"GestionORA.cfc", Engine::Oracle},
      {u"GestionSQL10.cfc", Engine::None},
      {u"GestionSQL1.txt", Engine::None},
      {u"SQL", Engine::None},
      {u"", Engine::None},
  };
  for (const auto& row : rows) EXPECT_EQ(engine_of_file(row.name), row.engine) << to_utf8(row.name);
}

}  // namespace
}  // namespace qvr::tests
