// Connections that are opened: played ones, and a real database natively.
#include "cfp/cfp_fixture.h"
#include "qvrscript/output/json.h"
#ifndef _WIN32
#include "qvrscript/system.h"
#endif

namespace qvr::tests {
namespace {

using namespace script_tool;

class CfpTest : public CfpCommands {};

class PlayedDatabase final : public Database {
 public:
  explicit PlayedDatabase(DatabaseFacts facts) : facts_(std::move(facts)) {}
  DatabaseFacts facts() override { return facts_; }
  std::vector<std::vector<Value>> rows(TextView) override { return {}; }
  std::vector<services::AdoError> errors() override { return {}; }

 private:
  DatabaseFacts facts_;
};

std::unique_ptr<Database> oracle(TextView, std::int32_t) {
  return std::make_unique<PlayedDatabase>(DatabaseFacts{u"Oracle", u"19.0", Ddl::Commits});
}

std::unique_ptr<Database> silent(TextView, std::int32_t) { return std::make_unique<PlayedDatabase>(DatabaseFacts{}); }

Text opened_string;
std::int32_t opened_timeout = 0;

std::unique_ptr<Database> noted(TextView connection_string, std::int32_t connect_timeout) {
  opened_string = connection_string;
  opened_timeout = connect_timeout;
  return silent(connection_string, connect_timeout);
}

std::unique_ptr<Database> refused(TextView connection_string, std::int32_t) {
  const FailureDetail detail{-2147217843, join({u"Login failed for admin-password in ", connection_string}),
                             u"Provider"};
  throw OpenFailure(detail, {{-2147217843, u"Login failed", u"Driver", u"28000", 18456},
                             {-2147467259, u"PWD=unknown-password", u"Driver", u"", 0}});
}

TEST_F(CfpTest, OpensTheAccountThatIsAskedFor) {
  write();
  played.open_database = noted;
  const ToolAnswer admin = cfp(u"test", {u"--connect-timeout", u"3"});
  EXPECT_EQ(admin.code, 0) << admin.err;
  EXPECT_NE(opened_string.find(u"User ID=\"sa\";Password=\"admin-password\";"), Text::npos);
  EXPECT_EQ(opened_timeout, 3);
  EXPECT_TRUE(admin.out.starts_with(path() + ": connected as the administrator sa\n")) << admin.out;
  const ToolAnswer client = cfp(u"test", {u"--client"});
  EXPECT_NE(opened_string.find(u"User ID=\"app\";"), Text::npos);
  EXPECT_TRUE(client.out.starts_with(path() + ": connected as the client app\n")) << client.out;
}

TEST_F(CfpTest, TellsTheAccountWhereThereIsNoAdministrator) {
  ConnectionParameters parameters = sample();
  parameters.UsuarioAdm.clear();
  parameters.ClaveAdm.clear();
  write(parameters);
  played.open_database = silent;
  EXPECT_TRUE(cfp(u"test").out.starts_with(path() + ": connected as the client app\n"));
  parameters.UsuarioCli.clear();
  write(parameters);
  EXPECT_TRUE(cfp(u"test").out.starts_with(path() + ": connected without a user\n"));
}

TEST_F(CfpTest, TellsWhatTheProviderDoesNotTell) {
  write();
  played.open_database = silent;
  EXPECT_EQ(cfp(u"test").out, path() +
                                  ": connected as the administrator sa\n"
                                  "engine:             SQL Server\n"
                                  "product:            unknown\n"
                                  "version:            unknown\n"
                                  "DDL in transaction: unknown\n");
}

TEST_F(CfpTest, WarnsOfAnotherEnginesProduct) {
  write();
  played.open_database = oracle;
  const ToolAnswer answer = cfp(u"test");
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(
      answer.err,
      "qvrscript: warning: the file says SQL Server, and behind the connection is Oracle: the library would write "
      "SQL for the wrong engine\n");
  EXPECT_EQ(Json::parse(cfp(u"test", {u"--format", u"json"}).out)["engineFits"], false);
  ConnectionParameters parameters = sample();
  parameters.MotorBD = Engine::Oracle;
  write(parameters);
  EXPECT_EQ(cfp(u"test").err, "");
}

TEST_F(CfpTest, TellsEveryErrorOfAFailedConnectionWithoutItsSecrets) {
  write();
  played.open_database = refused;
  const ToolAnswer answer = cfp(u"test");
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.out, "");
  EXPECT_EQ(answer.err, "qvrscript: " + path() +
                            ": the connection cannot be opened: -2147217843 (0x80040E4D) Login failed for *** in *** "
                            "(Provider)\n"
                            "  -2147217843 (0x80040E4D), native 18456, SQL state 28000: Login failed (Driver)\n"
                            "  -2147467259 (0x80004005), native 0, SQL state unknown: PWD=***\n");
}

TEST_F(CfpTest, TellsMachinesOfAFailedConnection) {
  write();
  played.open_database = refused;
  const ToolAnswer answer = cfp(u"test", {u"--format", u"json"});
  EXPECT_EQ(answer.code, 1);
  const Json json = Json::parse(answer.out);
  EXPECT_EQ(json["connected"], false);
  EXPECT_EQ(json["account"], "admin");
  EXPECT_EQ(json["failure"]["number"], -2147217843);
  EXPECT_EQ(json["failure"]["description"], "Login failed for *** in ***");
  EXPECT_EQ(json["errors"].size(), 2u);
  EXPECT_EQ(json["errors"][0]["native"], 18456);
  EXPECT_EQ(json["errors"][0]["sqlState"], "28000");
}

TEST_F(CfpTest, TellsMachinesOfAFileThatCannotBeRead) {
  const ToolAnswer answer = cfp(u"test", {u"--format", u"json"});
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.out, R"({"command":"cfp test","error":"the connection file cannot be read","exitCode":1})"
                        "\n");
  EXPECT_EQ(answer.err, "qvrscript: " + path() + ": no such file\n");
  expect_any_traces();
}

#ifndef _WIN32
class CfpTestOverOdbc : public CfpCommands {
 protected:
  CfpTestOverOdbc() { played.open_database = script_tool::open_database; }
  void write_driver(TextView driver) const {
    ConnectionParameters parameters;
    parameters.MotorBD = Engine::SqlServer;
    parameters.Provider = u"MSDASQL";
    parameters.UsuarioCli = u"app";
    parameters.ClaveCli = u"client-password";
    parameters.OtrosParametros = join(
        {u"Extended Properties=\"DRIVER={", driver, u"};Database=", folder.file(u"test.db").u16string(), u";\""});
    write(parameters);
  }
};

TEST_F(CfpTestOverOdbc, TellsProductAndVersion) {
  write_driver(u"SQLite3");
  const ToolAnswer answer = cfp(u"test");
  EXPECT_EQ(answer.code, 0) << answer.err;
  EXPECT_EQ(answer.err, "");
  EXPECT_TRUE(answer.out.starts_with(path() + ": connected as the client app\n"
                                              "engine:             SQL Server\n"
                                              "product:            SQLite\n"
                                              "version:            3."))
      << answer.out;
  EXPECT_TRUE(answer.out.ends_with("\nDDL in transaction: taken back with it\n")) << answer.out;
}

TEST_F(CfpTestOverOdbc, TellsWhyADriverIsNotLoaded) {
  write_driver(u"no such driver");
  const ToolAnswer answer = cfp(u"test");
  EXPECT_EQ(answer.code, 1);
  EXPECT_TRUE(answer.err.starts_with("qvrscript: " + path() + ": the connection cannot be opened: -2147"))
      << answer.err;
  EXPECT_NE(answer.err.find(", SQL state 01000: "), std::string::npos) << answer.err;
  EXPECT_EQ(answer.err.find("client-password"), std::string::npos) << answer.err;
}

TEST(OpenDatabase, GivesRows) {
  const TemporaryFolder folder;
  const Text string = join({u"Provider=MSDASQL;Extended Properties=\"DRIVER={SQLite3};Database=",
                            folder.file(u"test.db").u16string(), u";\""});
  const auto database = script_tool::open_database(string, 5);
  database->rows(u"create table T(N integer, S varchar(9))");
  database->rows(u"insert into T values(7, 'x')");
  const auto rows = database->rows(u"select N, S from T");
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(*rows[0][0].as<std::int32_t>(), 7);
  EXPECT_EQ(*rows[0][1].as<Text>(), u"x");
  EXPECT_THROW(database->rows(u"nonsense"), RuntimeFailure);
  EXPECT_FALSE(database->errors().empty());
}
#endif

}  // namespace
}  // namespace qvr::tests
