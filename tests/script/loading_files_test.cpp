// Which files of a folder are taken, and in which order.
#include "script/loading_fixture.h"

namespace qvr::tests {
namespace {

class LoadingFilesTest : public LoadingTest {};

TEST_F(LoadingFilesTest, ADefinitionIsNameTagAndOneCharacter) {
  struct Row {
    TextView file;
    bool taken;
  };
  constexpr Row kRows[] = {
      {u"GestionSQL1.cfc", true},       {u"GestionSQLA.cfc", true},
      {u"gestionsqlz.CFC", true},       {u"GestionSQL .cfc", true},
      {u"GestionSQL..cfc", true},       {u"GestionSQL\u00f1.cfc", true},
      {u"GestionSQL[.cfc", true},       {u"GestionSQL.cfc", false},
      {u"GestionSQL10.cfc", false},     {u"GestionSQL\U0001F4C1.cfc", false},
      {u"GestionJET1.cfc", false},      {u"GestionORA1.cfc", false},
      {u"Gestion1.cfc", false},         {u"OtraGestionSQL1.cfc", false},
      {u"Gestion SQL1.cfc", false},     {u"GestionSQL1.cfcx", false},
      {u"GestionSQL1.cfc.bak", false},  {u"GestionSQL1.cf", false},
      {u"GestionSQL1cfc", false},       {u"GestionSQL1,cfc", false},
      {u"Gesti\u00f3nSQL1.cfc", false},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(to_utf8(row.file));
    put_names({row.file});
    EXPECT_EQ(definition(), row.taken ? joined({row.file}) : Text());
  }
}

TEST_F(LoadingFilesTest, EachEngineHasItsTagAndAnyOtherNumberNone) {
  struct Row {
    Engine motor;
    TextView definition, update;
  };
  constexpr Row kRows[] = {{Engine::Jet, u"GestionJET1.cfc", u"Gestion10024a10025JET.cfc"},
                           {Engine::SqlServer, u"GestionSQL1.cfc", u"Gestion10024a10025SQL.cfc"},
                           {Engine::Oracle, u"GestionORA1.cfc", u"Gestion10024a10025ORA.cfc"},
                           {Engine::None, u"Gestion1.cfc", u"Gestion10024a10025.cfc"},
                           {Engine{4}, u"Gestion1.cfc", u"Gestion10024a10025.cfc"},
                           {Engine{-1}, u"Gestion1.cfc", u"Gestion10024a10025.cfc"},
                           {Engine{INT32_MAX}, u"Gestion1.cfc", u"Gestion10024a10025.cfc"},
                           {Engine{INT32_MIN}, u"Gestion1.cfc", u"Gestion10024a10025.cfc"}};
  put_names({u"GestionJET1.cfc", u"GestionSQL1.cfc", u"GestionORA1.cfc", u"Gestion1.cfc", u"Gestion10024a10025JET.cfc",
             u"Gestion10024a10025SQL.cfc", u"Gestion10024a10025ORA.cfc", u"Gestion10024a10025.cfc"});
  for (const Row& row : kRows) {
    SCOPED_TRACE(number_of(row.motor));
    motor = row.motor;
    EXPECT_EQ(definition(), joined({row.definition}));
    EXPECT_EQ(update(10024), joined({row.update}));
  }
}

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
}

TEST_F(LoadingFilesTest, GapsAndOverlapsOfAnUpdateAreNotLookedAt) {
  put_names({u"X10030a10040SQL.cfc", u"X10024a10026SQL.cfc", u"X10025a10026SQL.cfc", u"X10024a10025SQL.cfc",
             u"X10024a10024SQL.cfc", u"X10050a10001SQL.cfc", u"X10060a-----SQL.cfc"});
  EXPECT_EQ(update(10024, u"X"),
            joined({u"X10024a10024SQL.cfc", u"X10024a10025SQL.cfc", u"X10024a10026SQL.cfc", u"X10025a10026SQL.cfc",
                    u"X10030a10040SQL.cfc", u"X10050a10001SQL.cfc", u"X10060a-----SQL.cfc"}));
}

TEST_F(LoadingFilesTest, AnUpdateIsApplicationTwoVersionsAndTag) {
  for (const TextView file :
       {u"X10024a1002SQL.cfc", u"X10024a100255SQL.cfc", u"X10024b10025SQL.cfc", u"X10024-10025SQL.cfc",
        u"X10024a10025JET.cfc", u"X10024a10025SQL1.cfc", u"X10024a10025SQL.cfc2", u"XX10024a10025SQL.cfc",
        u"X 10024a10025SQL.cfc", u"10024a10025SQL.cfc"}) {
    SCOPED_TRACE(to_utf8(file));
    put_names({file});
    EXPECT_EQ(update(10024, u"X"), u"");
  }
}

TEST_F(LoadingFilesTest, VersionsOfEveryWidth) {
  struct Row {
    const char* name;
    std::int32_t version;
    std::vector<TextView> files;
    std::vector<std::size_t> expected;
  };
  const Row kRows[] = {
      {"least of five digits", 10000, {u"X09999a10000SQL.cfc", u"X10000a10001SQL.cfc"}, {1}},
      {"greatest of five digits", 99999, {u"X99998a99999SQL.cfc", u"X99999a00000SQL.cfc"}, {1}},
      {"four digits written with a zero", 1002, {u"X01002a01003SQL.cfc"}, {}},
      {"four digits written so are no file of an update", 1002, {u"X1002a01003SQL.cfc"}, {}},
      {"but let later ones through",
       1002,
       {u"X01001a01002SQL.cfc", u"X01002a01003SQL.cfc", u"X1002a01003SQL.cfc"},
       {1}},
      {"one digit", 7, {u"X7a00008SQL.cfc", u"X00006a00007SQL.cfc", u"X00007a00008SQL.cfc"}, {2}},
      {"zero", 0, {u"X0a00001SQL.cfc", u"X00000a00001SQL.cfc", u"X00001a00002SQL.cfc"}, {1, 2}},
      {"six digits", 100024, {u"X100024a10002SQL.cfc", u"X99999a10002SQL.cfc"}, {}},
      {"negative of five characters",
       -1002,
       {u"X-1003a-1002SQL.cfc", u"X-1002a-1001SQL.cfc", u"X00001a00002SQL.cfc"},
       {1, 2}},
      {"negative of fewer", -5, {u"X-0005a-0004SQL.cfc"}, {}},
      {"negative of more", -10024, {u"X-10024a10025SQL.cfc"}, {}},
      {"negative of more, with later ones", -10024, {u"X-10024a10025SQL.cfc", u"X-9999a00000SQL.cfc"}, {1}},
      {"greatest number", INT32_MAX, {u"X2147483647a10025SQL.cfc", u"X99999a10025SQL.cfc"}, {}},
      {"least number", INT32_MIN, {u"X-2147483648a10025SQL.cfc", u"X-9999a10025SQL.cfc"}, {1}},
      {"what is no number counts as 0", 10024, {u"X10024a10025SQL.cfc", u"Xabcdea10025SQL.cfc"}, {0}},
      {"and is above a negative one", -1002, {u"X-1002a10025SQL.cfc", u"Xabcdea10025SQL.cfc"}, {0, 1}},
      {"a number is read up to where it ends", 10024, {u"X10024a10025SQL.cfc", u"X1003xa10025SQL.cfc"}, {0}},
      {"of too large a number nothing is known", 10024, {u"X10024a10025SQL.cfc", u"X1e999a10025SQL.cfc"}, {}},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    thread.files.memory.clear();
    for (TextView file : row.files) put(file, to_utf8(file));
    Text expected;
    for (std::size_t file : row.expected) expected += joined({row.files[file]});
    EXPECT_EQ(update(row.version, u"X"), expected);
  }
}

}  // namespace
}  // namespace qvr::tests
