#include <gtest/gtest.h>

#include <vector>

#include "session/idioma_simple.h"
#include "support/rows.h"
#include "support/test_thread.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

// Identifiers of one language, and what they give before and after the catalogue with its four languages is loaded.
struct Row {
  const char* name;
  std::vector<std::uint16_t> identifiers;
  std::int32_t before, after;
};

const Row kRows[] = {
    {"Basque", {0x042D}, 0, 0},
    {"Catalan", {0x0403}, 0, 0},
    {"English",
     {0x0409, 0x0809, 0x0C09, 0x1009, 0x1409, 0x1809, 0x1C09, 0x2009, 0x2409, 0x2809, 0x2C09, 0x3009, 0x3409},
     1,
     1},
    {"French", {0x040C, 0x080C, 0x0C0C, 0x100C, 0x140C, 0x180C}, 0, 3},
    {"Galician", {0x0456}, 0, 0},
    {"German", {0x0407, 0x0807, 0x0C07, 0x1007, 0x1407}, 0, 1},
    {"Italian", {0x0410, 0x0810}, 0, 2},
    {"Portuguese", {0x0416, 0x0816}, 0, 0},
    {"Spanish",
     {0x040A, 0x080A, 0x0C0A, 0x100A, 0x140A, 0x180A, 0x1C0A, 0x200A, 0x240A, 0x280A, 0x2C0A, 0x300A, 0x340A, 0x380A,
      0x3C0A, 0x400A, 0x440A, 0x500A},
     0,
     0},
    {"Spanish that is not recognised", {0x480A, 0x4C0A}, 1, 1},
    {"others", {0x0411, 0x0000, 0x000A, 0x0009, 0x000C, 0x540A, 0x0419, 0x3809, 0x1C0C, 0xFFFF}, 1, 1},
};

class SystemLanguageTest : public ::testing::Test {
 protected:
  bool load() {
    TextTable table(kMessageCount, language::kCarried);
    CtesMensajes(table);
    return idioma.CargarEnMemoria(0, {0, 1, 2, 3}, table);
  }

  TestThread thread;
  IdiomaSimple idioma{thread.system};
};

using SystemLanguageOf = Rows<SystemLanguageTest, Row>;

TEST_P(SystemLanguageOf, IsSpanishBeforeLoadingWhereTheCatalogueIsNeeded) {
  for (std::uint16_t identifier : GetParam().identifiers) {
    thread.system.language = identifier;
    EXPECT_EQ(idioma.IdiomaDesdeSOP(), GetParam().before) << std::hex << identifier;
  }
}

TEST_P(SystemLanguageOf, IsTheNearestOneAfterLoading) {
  ASSERT_TRUE(load());
  for (std::uint16_t identifier : GetParam().identifiers) {
    thread.system.language = identifier;
    EXPECT_EQ(idioma.IdiomaDesdeSOP(), GetParam().after) << std::hex << identifier;
  }
}

INSTANTIATE_TEST_SUITE_P(, SystemLanguageOf, testing::ValuesIn(kRows), row_name);

TEST_F(SystemLanguageTest, EveryOtherIdentifierIsEnglish) {
  std::vector<bool> listed(0x10000);
  for (const Row& row : kRows) {
    for (std::uint16_t identifier : row.identifiers) listed[identifier] = true;
  }
  for (std::uint32_t identifier = 0; identifier <= 0xFFFF; ++identifier) {
    if (listed[identifier]) continue;
    thread.system.language = static_cast<std::uint16_t>(identifier);
    ASSERT_EQ(idioma.IdiomaDesdeSOP(), 1) << std::hex << identifier;
  }
}

TEST_F(SystemLanguageTest, AsksTheSystemEveryTime) {
  idioma.IdiomaDesdeSOP();
  idioma.IdiomaDesdeSOP();
  EXPECT_EQ(thread.system.language_reads, 2);
}

}  // namespace
}  // namespace qvr::tests
