// Engines by their words and by the names of files.
#include "qvrscript/engines.h"

#include <gtest/gtest.h>

#include "base/utf8.h"

namespace qvr::tests {
namespace {

using namespace script_tool;

TEST(Engines, HaveWords) {
  for (const std::int32_t engine : kEngines) EXPECT_EQ(engine_named(engine_word(engine)), engine);
  EXPECT_EQ(engine_named(u"SQLServer"), kSqlServer);
  EXPECT_EQ(engine_named(u""), std::nullopt);
  EXPECT_EQ(engine_named(u"sql"), std::nullopt);
}

TEST(Engines, AreToldByTheNamesOfFiles) {
  const struct {
    TextView name;
    std::int32_t engine;
  } rows[] = {
      {u"GestionJET1.cfc", kJet},
      {u"gestionsqlA.CFC", kSqlServer},
      {u"GestionORA\u00f1.cfc", kOracle},
      {u"Gestion10024a10025SQL.cfc", kSqlServer},
      {u"GestionORA.cfc", kOracle},
      {u"GestionSQL10.cfc", kUnknownEngine},
      {u"GestionSQL1.txt", kUnknownEngine},
      {u"SQL", kUnknownEngine},
      {u"", kUnknownEngine},
  };
  for (const auto& row : rows) EXPECT_EQ(engine_of_file(row.name), row.engine) << to_utf8(row.name);
}

}  // namespace
}  // namespace qvr::tests
