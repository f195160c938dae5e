// How much memory loading and preparing scripts takes at most, beside the finished text: 1 is two bytes for each of its
// units. The same on every run, since bytes are counted and not what the system makes of them.
#include <gtest/gtest.h>

#include <functional>

#include "base/utf8.h"
#include "script/qvrscr.h"
#include "script/script_preparation.h"
#include "services/builtin_script_reader.h"
#include "support/peak_memory.h"
#include "support/rows.h"
#include "support/temporary_folder.h"
#include "support/test_thread.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

constexpr std::size_t kUnits = std::size_t{QVR_TESTS_LARGE_TEXT_MIB} * 1024 * 1024 / 40;
constexpr double kMost = 3.0;

struct NoEvents final : ScriptEvents {
  void Progreso(const Text&) noexcept override {}
  void Terminado(bool) noexcept override {}
};

struct Row {
  const char* name;
  TextView page;  // again and again in the files
  std::function<std::string(TextView)> bytes = to_utf8;
  int files = 1;
  ScriptAccounts accounts = {u"Gestion", u"adm", u"clave1", u"cli", u"clave2"};
};

constexpr TextView kStatements =
    u"INSERT INTO Articulos VALUES ( 1, 'Tornillo de cabeza plana', 12.5)\r\nGO\r\n"
    u"CREATE TRIGGER Alta\r\nFOR DELETE\r\nAS\r\nUSE [NombreBD]\r\n"
    u"GRANT ALL TO [UsuarioQVRAdm], [UsuarioQVRCli]\r\nGO\r\n";

std::string utf16(TextView text) {
  std::string bytes = "\xFF\xFE";
  for (const char16_t unit : text) bytes.append({static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)});
  return bytes;
}

const Row kRows[] = {
    {"one file", kStatements},
    {"seven files", kStatements, to_utf8, 7},
    {"nothing to replace", u"INSERT INTO Articulos VALUES ( 1, 'Tornillo de cabeza plana', 12.5)\r\nGO\r\n"},
    {"words everywhere", u"[NombreBD][UsuarioQVRAdm]\r\nAS\r\n"},
    {"words that become longer",
     u"[NombreBD][UsuarioQVRCli]\r\nGO\r\n",
     to_utf8,
     2,
     {Text(100, u'n'), u"adm", u"clave1", Text(70, u'c'), u"clave2"}},
    {"lone line feeds", u"INSERT INTO [NombreBD]\nGO\n"},
    {"UTF-16", kStatements, utf16},
    {"letters of two bytes", u"\u0410\u0440\u0442\u0438\u043a\u0443\u043b [NombreBD]\r\nGO\r\n"},
    {"letters of four bytes", u"\U0001F4C1\U0001F4C1\U0001F4C1\U0001F4C1\U0001F4C1 [NombreBD]\r\nGO\r\n"},
    {"letters of three bytes", u"\u5546\u54c1\u5546\u54c1\u5546\u54c1\u5546\u54c1 [NombreBD]\r\nGO\r\n"},
};

class LoadingMemory : public testing::TestWithParam<Row> {
 protected:
  LoadingMemory() {
    thread.make_script_reader = [this] { return std::make_unique<services::BuiltinScriptReader>(thread.files); };
  }

  // The finished text of scripts under these names, and the most memory beside it.
  template <class Load>
  void expect_little(const Row& row, const std::vector<Text>& names, const Load& load) {
    write(row, names);
    const PeakMemory memory;
    const Text text = load();
    const std::size_t bytes = memory.bytes();
    ASSERT_GT(text.size(), kUnits / 3);
    EXPECT_EQ(text.find(u"[NombreBD]"), Text::npos);
    const double peak = static_cast<double>(bytes) / static_cast<double>(text.size() * sizeof(char16_t));
    EXPECT_LE(peak, kMost);
    EXPECT_GE(peak, 1) << "the text itself is not counted";
    RecordProperty("peak", std::to_string(peak));
  }

  void write(const Row& row, const std::vector<Text>& names) const {
    Text text;
    while (text.size() < kUnits / names.size()) text += row.page;
    for (const Text& name : names) folder.write(name, row.bytes(text));
  }

  TestThread thread;
  TemporaryFolder folder;
  NoEvents events;
  QVRScr runner{events};
};

TEST_P(LoadingMemory, OfADefinitionIsAtMostThreeTexts) {
  const Row& row = GetParam();
  std::vector<Text> names;
  for (int i = 1; i <= row.files; ++i) names.push_back(join({u"GestionSQL", decimal(i), u".cfc"}));
  expect_little(row, names, [&] {
    return runner.CargarDefinicion(u"app", Engine::SqlServer, folder.text(), u"Gestion", row.accounts, true);
  });
}

TEST_P(LoadingMemory, OfAnUpdateIsAtMostThreeTexts) {
  const Row& row = GetParam();
  std::vector<Text> names;
  for (int i = 1; i <= row.files; ++i) {
    names.push_back(join({u"Gestion1000", decimal(i), u"a1000", decimal(i + 1), u"SQL.cfc"}));
  }
  expect_little(row, names, [&] {
    return runner.CargarActualizacion(u"app", Engine::SqlServer, folder.text(), u"Gestion", 10001, row.accounts, true);
  });
}

INSTANTIATE_TEST_SUITE_P(, LoadingMemory, testing::ValuesIn(kRows), row_name);

}  // namespace
}  // namespace qvr::tests
