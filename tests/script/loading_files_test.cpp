// Which files of a folder are taken, and in which order.
#include "script/loading_fixture.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

const Text kNoDefinition = u"QVRScr.CargarDefinicion: 75 No script file has such a name",
           kNoUpdate = u"QVRScr.CargarActualizacion: 75 No update script begins with this version",
           kNoFiles = u"QVRScr.CargarActualizacion: 75 No script file has such a name";

class LoadingFilesTest : public LoadingTest {};

struct Named {
  const char* name;
  TextView file;
  bool taken;
};

constexpr Named kDefinitions[] = {
    {"digit", u"GestionSQL1.cfc", true},
    {"capital", u"GestionSQLA.cfc", true},
    {"letter, all in another case", u"gestionsqlz.CFC", true},
    {"blank", u"GestionSQL .cfc", true},
    {"point", u"GestionSQL..cfc", true},
    {"accented letter", u"GestionSQL\u00f1.cfc", true},
    {"bracket", u"GestionSQL[.cfc", true},
    {"no character", u"GestionSQL.cfc", false},
    {"two characters", u"GestionSQL10.cfc", false},
    {"character of two units", u"GestionSQL\U0001F4C1.cfc", false},
    {"tag of Jet", u"GestionJET1.cfc", false},
    {"tag of Oracle", u"GestionORA1.cfc", false},
    {"no tag", u"Gestion1.cfc", false},
    {"more before the name", u"OtraGestionSQL1.cfc", false},
    {"blank behind the name", u"Gestion SQL1.cfc", false},
    {"more behind the extension", u"GestionSQL1.cfcx", false},
    {"another extension behind", u"GestionSQL1.cfc.bak", false},
    {"extension cut", u"GestionSQL1.cf", false},
    {"extension without its point", u"GestionSQL1cfc", false},
    {"extension behind a comma", u"GestionSQL1,cfc", false},
    {"name with an accent", u"Gesti\u00f3nSQL1.cfc", false},
};

using DefinitionFile = Rows<LoadingTest, Named>;

TEST_P(DefinitionFile, IsNameTagAndOneCharacter) {
  put_names({GetParam().file});
  EXPECT_EQ(definition(), GetParam().taken ? joined({GetParam().file}) : Text());
  EXPECT_EQ(traced(), GetParam().taken ? Traces() : Traces{kNoDefinition});
}

INSTANTIATE_TEST_SUITE_P(, DefinitionFile, testing::ValuesIn(kDefinitions), row_name);

struct Tagged {
  const char* name;
  Engine motor;
  TextView definition, update;
};

constexpr Tagged kTagged[] = {
    {"Jet", Engine::Jet, u"GestionJET1.cfc", u"Gestion10024a10025JET.cfc"},
    {"SQL Server", Engine::SqlServer, u"GestionSQL1.cfc", u"Gestion10024a10025SQL.cfc"},
    {"Oracle", Engine::Oracle, u"GestionORA1.cfc", u"Gestion10024a10025ORA.cfc"},
    {"none", Engine::None, u"Gestion1.cfc", u"Gestion10024a10025.cfc"},
    {"unknown", Engine{4}, u"Gestion1.cfc", u"Gestion10024a10025.cfc"},
    {"below zero", Engine{-1}, u"Gestion1.cfc", u"Gestion10024a10025.cfc"},
    {"greatest", Engine{INT32_MAX}, u"Gestion1.cfc", u"Gestion10024a10025.cfc"},
    {"least", Engine{INT32_MIN}, u"Gestion1.cfc", u"Gestion10024a10025.cfc"},
};

using EngineTag = Rows<LoadingTest, Tagged>;

TEST_P(EngineTag, IsInTheNamesOfItsFiles) {
  put_names({u"GestionJET1.cfc", u"GestionSQL1.cfc", u"GestionORA1.cfc", u"Gestion1.cfc", u"Gestion10024a10025JET.cfc",
             u"Gestion10024a10025SQL.cfc", u"Gestion10024a10025ORA.cfc", u"Gestion10024a10025.cfc"});
  motor = GetParam().motor;
  EXPECT_EQ(definition(), joined({GetParam().definition}));
  EXPECT_EQ(update(10024), joined({GetParam().update}));
}

INSTANTIATE_TEST_SUITE_P(, EngineTag, testing::ValuesIn(kTagged), row_name);

TEST_F(LoadingFilesTest, FilesAreJoinedInTheOrderOfTheirNamesInAnyCase) {
  put_names({u"GestionSQLb.cfc", u"gestionSQLC.cfc", u"GestionSQL_.cfc", u"GestionSQL\u00f1.cfc", u"GESTIONSQLA.cfc",
             u"GestionSQL1.cfc", u"GestionSQL\u00d3.cfc"});
  EXPECT_EQ(definition(), joined({u"GestionSQL1.cfc", u"GESTIONSQLA.cfc", u"GestionSQLb.cfc", u"gestionSQLC.cfc",
                                  u"GestionSQL_.cfc", u"GestionSQL\u00f1.cfc", u"GestionSQL\u00d3.cfc"}));
}

TEST_F(LoadingFilesTest, TheCaseOfLettersDoesNotMatter) {
  put_names({u"gesti\u00f3nSql1.Cfc", u"GESTI\u00d3N10024A10025sql.CFC"});
  EXPECT_EQ(definition(u"GESTI\u00d3N"), joined({u"gesti\u00f3nSql1.Cfc"}));
  EXPECT_EQ(update(10024, u"gesti\u00f3n"), joined({u"GESTI\u00d3N10024A10025sql.CFC"}));
}

// The name is a piece of the pattern, with all that a pattern means.
TEST_F(LoadingFilesTest, WildcardsInANameAreWildcards) {
  put_names({u"AbSQL1.cfc", u"AcSQL1.cfc", u"AbcSQL1.cfc", u"SQL1.cfc", u"Ab10024a10025SQL.cfc",
             u"Ac10024a10025SQL.cfc", u"Ab10023a10024SQL.cfc"});
  EXPECT_EQ(definition(u"A?"), joined({u"AbSQL1.cfc", u"AcSQL1.cfc"}));
  EXPECT_EQ(definition(u"A*"), joined({u"AbcSQL1.cfc", u"AbSQL1.cfc", u"AcSQL1.cfc"}));
  EXPECT_EQ(definition(u"*"), joined({u"AbcSQL1.cfc", u"AbSQL1.cfc", u"AcSQL1.cfc", u"SQL1.cfc"}));
  EXPECT_EQ(definition(u""), joined({u"SQL1.cfc"}));
  EXPECT_EQ(definition(u"A["), u"");
  EXPECT_EQ(update(10024, u"A?"), joined({u"Ab10024a10025SQL.cfc", u"Ac10024a10025SQL.cfc"}));
  EXPECT_EQ(traced(), Traces{u"QVRScr.CargarDefinicion: 75 No script file has such a name"});
}

TEST_F(LoadingFilesTest, FolderAndIdentificationReachTheReaderAsTheyAre) {
  const Text folders[] = {u"C:\\Scripts",           u"C:\\Scripts\\", u"\\\\server\\share [1]", u".", u"",
                          u"D:\\Base \u00f1 \u65e5"};
  for (const Text& each : folders) {
    for (const TextView name : {u"", u"* ? [x]", u"EvitarTransaccion \u00f1", u"| %s \\"}) {
      SCOPED_TRACE(to_utf8(join({each, u" / ", name})));
      folder = each;
      id = name;
      put_names({u"GestionSQL1.cfc"});
      taken();
      EXPECT_EQ(definition(), joined({u"GestionSQL1.cfc"}));
      const Lines lines = taken();
      EXPECT_EQ(Lines(lines.begin(), lines.begin() + 2), file_lines(u"GestionSQL1.cfc"));
      EXPECT_EQ(id, Text(name));
    }
  }
}

TEST_F(LoadingFilesTest, AnUpdateTakesEveryFileFromTheVersionOn) {
  put_names({u"X10023a10024SQL.cfc", u"X10024a10025SQL.cfc", u"X10025a10026SQL.cfc"});
  EXPECT_EQ(update(10024, u"X"), joined({u"X10024a10025SQL.cfc", u"X10025a10026SQL.cfc"}));
  EXPECT_EQ(update(10025, u"X"), joined({u"X10025a10026SQL.cfc"}));
  EXPECT_EQ(update(10026, u"X"), u"");
  EXPECT_EQ(update(10022, u"X"), u"");
  EXPECT_EQ(traced(), Traces(2, u"QVRScr.CargarActualizacion: 75 No update script begins with this version"));
}

TEST_F(LoadingFilesTest, GapsAndOverlapsOfAnUpdateAreNotLookedAt) {
  put_names({u"X10030a10040SQL.cfc", u"X10024a10026SQL.cfc", u"X10025a10026SQL.cfc", u"X10024a10025SQL.cfc",
             u"X10024a10024SQL.cfc", u"X10050a10001SQL.cfc", u"X10060a-----SQL.cfc"});
  EXPECT_EQ(update(10024, u"X"),
            joined({u"X10024a10024SQL.cfc", u"X10024a10025SQL.cfc", u"X10024a10026SQL.cfc", u"X10025a10026SQL.cfc",
                    u"X10030a10040SQL.cfc", u"X10050a10001SQL.cfc", u"X10060a-----SQL.cfc"}));
}

constexpr Named kNoUpdates[] = {
    {"second version of four digits", u"X10024a1002SQL.cfc", false},
    {"second version of six digits", u"X10024a100255SQL.cfc", false},
    {"b between", u"X10024b10025SQL.cfc", false},
    {"hyphen between", u"X10024-10025SQL.cfc", false},
    {"tag of another engine", u"X10024a10025JET.cfc", false},
    {"one character behind", u"X10024a10025SQL1.cfc", false},
    {"another extension", u"X10024a10025SQL.cfc2", false},
    {"another application", u"XX10024a10025SQL.cfc", false},
    {"blank behind the application", u"X 10024a10025SQL.cfc", false},
    {"no application", u"10024a10025SQL.cfc", false},
};

using NoUpdateFile = Rows<LoadingTest, Named>;

TEST_P(NoUpdateFile, IsWithoutApplicationTwoVersionsAndTag) {
  put_names({GetParam().file});
  EXPECT_EQ(update(10024, u"X"), u"");
  EXPECT_EQ(traced(), Traces{kNoUpdate});
}

INSTANTIATE_TEST_SUITE_P(, NoUpdateFile, testing::ValuesIn(kNoUpdates), row_name);

struct Versions {
  const char* name;
  std::int32_t version;
  std::vector<TextView> files;
  std::vector<std::size_t> expected;
  Traces traced = {};
};

const Versions kVersions[] = {
    {"least of five digits", 10000, {u"X09999a10000SQL.cfc", u"X10000a10001SQL.cfc"}, {1}},
    {"greatest of five digits", 99999, {u"X99998a99999SQL.cfc", u"X99999a00000SQL.cfc"}, {1}},
    {"four digits written with a zero", 1002, {u"X01002a01003SQL.cfc"}, {}, {kNoUpdate}},
    {"four digits written so are no file of an update", 1002, {u"X1002a01003SQL.cfc"}, {}, {kNoFiles}},
    {"but let later ones through", 1002, {u"X01001a01002SQL.cfc", u"X01002a01003SQL.cfc", u"X1002a01003SQL.cfc"}, {1}},
    {"one digit", 7, {u"X7a00008SQL.cfc", u"X00006a00007SQL.cfc", u"X00007a00008SQL.cfc"}, {2}},
    {"zero", 0, {u"X0a00001SQL.cfc", u"X00000a00001SQL.cfc", u"X00001a00002SQL.cfc"}, {1, 2}},
    {"six digits", 100024, {u"X100024a10002SQL.cfc", u"X99999a10002SQL.cfc"}, {}, {kNoFiles}},
    {"negative of five characters",
     -1002,
     {u"X-1003a-1002SQL.cfc", u"X-1002a-1001SQL.cfc", u"X00001a00002SQL.cfc"},
     {1, 2}},
    {"negative of fewer", -5, {u"X-0005a-0004SQL.cfc"}, {}, {kNoUpdate}},
    {"negative of more", -10024, {u"X-10024a10025SQL.cfc"}, {}, {kNoFiles}},
    {"negative of more, with later ones", -10024, {u"X-10024a10025SQL.cfc", u"X-9999a00000SQL.cfc"}, {1}},
    {"greatest number", INT32_MAX, {u"X2147483647a10025SQL.cfc", u"X99999a10025SQL.cfc"}, {}, {kNoFiles}},
    {"least number", INT32_MIN, {u"X-2147483648a10025SQL.cfc", u"X-9999a10025SQL.cfc"}, {1}},
    {"what is no number counts as 0", 10024, {u"X10024a10025SQL.cfc", u"Xabcdea10025SQL.cfc"}, {0}},
    {"and is above a negative one", -1002, {u"X-1002a10025SQL.cfc", u"Xabcdea10025SQL.cfc"}, {0, 1}},
    {"a number is read up to where it ends", 10024, {u"X10024a10025SQL.cfc", u"X1003xa10025SQL.cfc"}, {0}},
    {"of too large a number nothing is known",
     10024,
     {u"X10024a10025SQL.cfc", u"X1e999a10025SQL.cfc"},
     {},
     {trace_of(u"QVRScr.CargarActualizacion", 6)}},
};

using VersionOfAnyWidth = Rows<LoadingTest, Versions>;

TEST_P(VersionOfAnyWidth, IsComparedWithTheFilesOfAnUpdate) {
  const Versions& row = GetParam();
  for (TextView file : row.files) put(file, to_utf8(file));
  Text expected;
  for (std::size_t file : row.expected) expected += joined({row.files[file]});
  EXPECT_EQ(update(row.version, u"X"), expected);
  EXPECT_EQ(traced(), row.traced);
}

INSTANTIATE_TEST_SUITE_P(, VersionOfAnyWidth, testing::ValuesIn(kVersions), row_name);

}  // namespace
}  // namespace qvr::tests
