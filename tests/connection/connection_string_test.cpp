#include "connection/connection_string.h"

#include <gtest/gtest.h>

#include "support/rows.h"
#include "support/test_thread.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;
struct Fields {
  Engine motor;
  TextView catalogue, user_adm, password_adm, user_cli, password_cli, other;
};

ConnectionParameters parameters_of(const Fields& fields) {
  ConnectionParameters parameters;
  parameters.MotorBD = fields.motor;
  parameters.Provider = u"PROV";
  parameters.DataSource = u"SRC";
  parameters.InitialCatalogOTablespace = fields.catalogue;
  parameters.UsuarioAdm = fields.user_adm;
  parameters.ClaveAdm = fields.password_adm;
  parameters.UsuarioCli = fields.user_cli;
  parameters.ClaveCli = fields.password_cli;
  parameters.OtrosParametros = fields.other;
  return parameters;
}

// What follows `Provider=PROV;Data Source="SRC";Persist Security Info=False;`.
struct PartsRow {
  const char* name;
  Fields fields;
  TextView administrator, client;
};

constexpr PartsRow kParts[] = {
    {"nothing else", {Engine::Jet, u"", u"", u"", u"", u"", u""}, u"", u""},
    {"both accounts",
     {Engine::Jet, u"", u"adm", u"pa", u"cli", u"pc", u""},
     u"User ID=\"adm\";Password=\"pa\";",
     u"User ID=\"cli\";Password=\"pc\";"},
    {"no administrator",
     {Engine::Jet, u"", u"", u"pa", u"cli", u"pc", u""},
     u"User ID=\"cli\";Password=\"pc\";",
     u"User ID=\"cli\";Password=\"pc\";"},
    {"no client", {Engine::Jet, u"", u"adm", u"pa", u"", u"pc", u""}, u"User ID=\"adm\";Password=\"pa\";", u""},
    {"no passwords", {Engine::Jet, u"", u"adm", u"", u"cli", u"", u""}, u"User ID=\"adm\";", u"User ID=\"cli\";"},
    {"administrator without password keeps to itself",
     {Engine::Jet, u"", u"adm", u"", u"cli", u"pc", u""},
     u"User ID=\"adm\";",
     u"User ID=\"cli\";Password=\"pc\";"},
    {"passwords without users", {Engine::SqlServer, u"", u"", u"pa", u"", u"pc", u""}, u"", u""},
    {"quotes are not escaped",
     {Engine::Jet, u"", u"a\"d", u"p\"a", u"", u"", u""},
     u"User ID=\"a\"d\";Password=\"p\"a\";",
     u""},
    {"catalogue, Jet", {Engine::Jet, u"Cat", u"", u"", u"", u"", u""}, u"", u""},
    {"catalogue, SQL Server",
     {Engine::SqlServer, u"Cat", u"", u"", u"", u"", u""},
     u"Initial Catalog=Cat;",
     u"Initial Catalog=Cat;"},
    {"catalogue, Oracle", {Engine::Oracle, u"Cat", u"", u"", u"", u"", u""}, u"", u""},
    {"catalogue, no engine", {Engine::None, u"Cat", u"", u"", u"", u"", u""}, u"", u""},
    {"catalogue, unknown engine", {Engine{99}, u"Cat", u"", u"", u"", u"", u""}, u"", u""},
    {"options without end", {Engine::Jet, u"", u"", u"", u"", u"", u"Mode=Read"}, u"Mode=Read;", u"Mode=Read;"},
    {"options with end", {Engine::Jet, u"", u"", u"", u"", u"", u"Mode=Read;"}, u"Mode=Read;", u"Mode=Read;"},
    {"options with two ends", {Engine::Jet, u"", u"", u"", u"", u"", u"A=1;;"}, u"A=1;;", u"A=1;;"},
    {"options of an end only", {Engine::Jet, u"", u"", u"", u"", u"", u";"}, u";", u";"},
    {"options with a blank behind", {Engine::Jet, u"", u"", u"", u"", u"", u"A=1; "}, u"A=1; ;", u"A=1; ;"},
    {"everything, SQL Server",
     {Engine::SqlServer, u"Cat", u"adm", u"pa", u"cli", u"pc", u"Mode=Read"},
     u"User ID=\"adm\";Password=\"pa\";Initial Catalog=Cat;Mode=Read;",
     u"User ID=\"cli\";Password=\"pc\";Initial Catalog=Cat;Mode=Read;"},
    {"everything, Oracle",
     {Engine::Oracle, u"Tab", u"adm", u"pa", u"cli", u"pc", u"Mode=Read"},
     u"User ID=\"adm\";Password=\"pa\";Mode=Read;",
     u"User ID=\"cli\";Password=\"pc\";Mode=Read;"},
};

const Text kHead = u"Provider=PROV;Data Source=\"SRC\";Persist Security Info=False;";

using CadenaADOParts = Rows<::testing::Test, PartsRow>;

TEST_P(CadenaADOParts, AreJoinedInOrder) {
  TestThread thread;
  QVRcfp cfp;
  ASSERT_TRUE(cfp.Asignar(u"id", parameters_of(GetParam().fields)));
  EXPECT_EQ(cfp.CadenaADO(u"id", true), kHead + Text(GetParam().administrator));
  EXPECT_EQ(cfp.CadenaADO(u"other", false), kHead + Text(GetParam().client));
}

INSTANTIATE_TEST_SUITE_P(, CadenaADOParts, ::testing::ValuesIn(kParts), row_name);

TEST(CadenaADO, WritesAWholeSqlServerString) {
  TestThread thread;
  QVRcfp cfp;
  ConnectionParameters parameters;
  parameters.MotorBD = Engine::SqlServer;
  parameters.Provider = u"SQLOLEDB";
  parameters.DataSource = u"SRV01";
  parameters.InitialCatalogOTablespace = u"Gestion";
  parameters.UsuarioCli = u"app";
  parameters.ClaveCli = u"pw";
  ASSERT_TRUE(cfp.Asignar(u"id", parameters));
  EXPECT_EQ(cfp.CadenaADO(u"id", false),
            u"Provider=SQLOLEDB;Data Source=\"SRV01\";Persist Security Info=False;User ID=\"app\";Password=\"pw\";"
            u"Initial Catalog=Gestion;");
}

TEST(CadenaADO, WritesTheFrameOfEmptyParameters) {
  TestThread thread;
  QVRcfp cfp;
  ASSERT_TRUE(cfp.Asignar(u"id", ConnectionParameters()));
  EXPECT_EQ(cfp.CadenaADO(u"id", true), u"Provider=;Data Source=\"\";Persist Security Info=False;");
}

TEST(CadenaADOUsuario, UsesTheGivenAccount) {
  TestThread thread;
  struct Account {
    const char* name;
    Fields fields;
    TextView user, password, rest;
  };
  constexpr Account kAccounts[] = {
      {"user and password",
       {Engine::Jet, u"", u"adm", u"pa", u"cli", u"pc", u""},
       u"me",
       u"mine",
       u"User ID=\"me\";Password=\"mine\";"},
      {"user alone", {Engine::Jet, u"", u"adm", u"pa", u"cli", u"pc", u""}, u"me", u"", u"User ID=\"me\";"},
      {"password alone", {Engine::Jet, u"", u"adm", u"pa", u"cli", u"pc", u""}, u"", u"mine", u""},
      {"neither", {Engine::Jet, u"", u"adm", u"pa", u"cli", u"pc", u""}, u"", u"", u""},
      {"SQL Server with all",
       {Engine::SqlServer, u"Cat", u"", u"", u"", u"", u"A=1"},
       u"me",
       u"mine",
       u"User ID=\"me\";Password=\"mine\";Initial Catalog=Cat;A=1;"},
      {"Oracle with all", {Engine::Oracle, u"Cat", u"", u"", u"", u"", u"A=1;"}, u"me", u"", u"User ID=\"me\";A=1;"},
  };
  for (const Account& row : kAccounts) {
    SCOPED_TRACE(row.name);
    QVRcfp cfp;
    ASSERT_TRUE(cfp.Asignar(u"id", parameters_of(row.fields)));
    EXPECT_EQ(cfp.CadenaADOUsuario(row.user, row.password), kHead + Text(row.rest));
  }
}

}  // namespace
}  // namespace qvr::tests
