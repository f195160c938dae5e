// Where the commands of an assembled text come from.
#include "qvrscript/run/assembly.h"

#include <gtest/gtest.h>

#include "base/utf8.h"
#include "qvrscript/check/silence.h"
#include "qvrscript/run/loading.h"
#include "qvrscript/tool_failure.h"
#include "script/command_splitter.h"
#include "support/rows.h"
#include "support/temporary_folder.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using namespace script_tool;

std::vector<std::string> places(const Assembly& assembly) {
  std::vector<std::string> found;
  for (const AssembledCommand& command : assembly.commands()) found.push_back(to_utf8(shown(command.place)));
  return found;
}

class Assembled : public testing::Test {
 protected:
  LoadRequest load() const {
    LoadRequest request;
    request.options.engine = Engine::SqlServer;
    request.folder = folder.text();
    request.name = u"G";
    return request;
  }
  std::vector<std::string> shown_in_folder(std::initializer_list<const char*> places) const {
    std::vector<std::string> shown;
    for (const char* each : places) shown.push_back(to_utf8(folder.text()) + "/" + each);
    return shown;
  }

  TemporaryFolder folder;
};

TEST_F(Assembled, CommandsHaveTheLineOfTheirFirstVisibleCharacter) {
  folder.write(u"x.cfc", "\n\n  a\nb\nGO\n\n\nc\nGO\nd\nGO");
  const Assembly assembly = assembled_file(folder.file_text(u"x.cfc"), Engine::SqlServer);
  const std::string file = to_utf8(folder.file_text(u"x.cfc"));
  EXPECT_EQ(places(assembly), (std::vector<std::string>{file + ":3", file + ":8", file + ":10"}));
  EXPECT_EQ(assembly.commands()[0].text, u"\r\n\r\n  a\r\nb");
  EXPECT_FALSE(assembly.not_run());
}

TEST_F(Assembled, PlacesAreThoseOfTheScriptsWhateverReplacedTheirTexts) {
  folder.write(u"GSQL1.cfc",
               "create proc P\nAS\nselect '[NombreBD]'\nGO\ncreate trigger X\nFOR INSERT\nAS\nselect 1\nGO\n");
  folder.write(u"GSQL2.cfc", "\nuse [NombreBD]\nGO\n-- rest");
  folder.write(u"GSQL3.cfc", "joined\nGO\nlast\nGO\n");
  const LoadRequest request = load();
  const ScriptNames names = script_names(request, 0);
  ScriptAccounts accounts;
  accounts.NombreBaseOTablespace = u"two\r\nlines";
  const Assembly assembly = loaded(request, 0, names.pending, accounts, {});
  EXPECT_EQ(places(assembly),
            shown_in_folder({"GSQL1.cfc:1", "GSQL1.cfc:5", "GSQL2.cfc:2", "GSQL2.cfc:4", "GSQL3.cfc:3"}));
  EXPECT_EQ(assembly.commands()[0].text, u"create proc P\r\nWITH ENCRYPTION AS\r\nselect 'two\r\nlines'");
  EXPECT_EQ(assembly.commands()[1].text, u"create trigger X\r\nWITH ENCRYPTION FOR INSERT AS\r\nselect 1");
  EXPECT_EQ(assembly.commands()[3].text, u"-- rest\r\njoined");
  EXPECT_EQ(assembly.commands()[3].script, 1u);
}

TEST_F(Assembled, PlacesAreThoseOfTheTextWhereAReplacementSeparates) {
  folder.write(u"GSQL1.cfc", "a [NombreBD]\nGO\n");
  const LoadRequest request = load();
  ScriptAccounts accounts;
  accounts.NombreBaseOTablespace = u"b\r\nGO\r\nc";
  const Assembly assembly = loaded(request, 0, {u"GSQL1.cfc"}, accounts, {});
  EXPECT_EQ(places(assembly), (std::vector<std::string>{"assembled text:1", "assembled text:3"}));
}

// Loading puts a line end behind each script; a text that a program hands over itself stays as it is.
TEST_F(Assembled, ALastGoWithoutALineEndRunsAsItDoesInTheLibrary) {
  folder.write(u"GSQL1.cfc", "a\r\nGO\r\nb\r\nGO");
  EXPECT_EQ(assembled_file(folder.file_text(u"GSQL1.cfc"), Engine::SqlServer).commands().size(), 2u);
  Silence silence;
  const Text text = QVRScr(silence).CargarDefinicion(u"", Engine::SqlServer, folder.text(), u"G", {}, false);
  EXPECT_EQ(count_separators(text), 2);
  EXPECT_EQ(count_separators(u"a\r\nGO\r\nb\r\nGO"), 1);
}

struct Rest {
  const char* name;
  const char* text;
  Engine engine;
  const char* place;  // behind "x.cfc:"; null: nothing is missed
};

const Rest kRests[] = {
    {"nothing", "a\nGO\n", Engine::SqlServer, nullptr},
    {"white space", "a\nGO\n \n\t\n", Engine::SqlServer, nullptr},
    {"a comment", "a\nGO\n-- b\n/* c */\n", Engine::SqlServer, nullptr},
    {"a comment of Jet", "a\nGO\n-- b\n", Engine::Jet, "3"},
    {"a statement", "a\nGO\n\nb\nc", Engine::Oracle, "4"},
    {"a statement behind a comment", "a\nGO\n-- b\nc", Engine::SqlServer, "3"},
    {"a second GO", "a\nGO\nGO\n", Engine::SqlServer, nullptr},
    {"GO with a semicolon", "a\nGO;\n", Engine::SqlServer, "1"},
    {"everything", "\na", Engine::SqlServer, "2"},
};

using Rests = Rows<Assembled, Rest>;

TEST_P(Rests, AreToldWhereSomethingIsMissed) {
  folder.write(u"x.cfc", GetParam().text);
  const Assembly assembly = assembled_file(folder.file_text(u"x.cfc"), GetParam().engine);
  ASSERT_EQ(assembly.not_run().has_value(), GetParam().place != nullptr);
  if (GetParam().place == nullptr) return;
  EXPECT_EQ(to_utf8(shown(assembly.not_run()->place)), to_utf8(folder.file_text(u"x.cfc")) + ":" + GetParam().place);
}

INSTANTIATE_TEST_SUITE_P(, Rests, testing::ValuesIn(kRests), row_name);

TEST(Beginning, IsOneLineWithoutWhiteSpaceAround) {
  EXPECT_EQ(beginning(u"\r\n  select\t 1,\r\n\r\n 2 \r\n"), u"select 1, 2");
  EXPECT_EQ(beginning(u""), u"");
  EXPECT_EQ(beginning(Text(160, u'x')), Text(160, u'x') + u"...");
  EXPECT_EQ(beginning(Text(159, u'x')), Text(159, u'x'));
  EXPECT_EQ(beginning(Text(159, u'x') + u"\U0001F600y"), Text(159, u'x') + u"...");
}

}  // namespace
}  // namespace qvr::tests
