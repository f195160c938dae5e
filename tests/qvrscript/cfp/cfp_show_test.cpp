#include "cfp/cfp_fixture.h"
#include "qvrscript/output/json.h"

namespace qvr::tests {
namespace {

using script_tool::Json;

class CfpShow : public CfpCommands {};

TEST_F(CfpShow, ShowsEveryFieldAndNoPassword) {
  write();
  const ToolAnswer answer = cfp(u"show");
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out, "file:                     " + path() +
                            "\n"
                            "engine:                   SQL Server\n"
                            "provider:                 SQLOLEDB\n"
                            "data source:              SRV01\n"
                            "catalogue or tablespace:  Gesti\u00f3n\n"
                            "administrator:            sa\n"
                            "administrator's password: ********\n"
                            "client:                   app\n"
                            "client's password:        (none)\n"
                            "other parameters:         Mode=Read;Jet OLEDB:Database Password=***\n");
  EXPECT_EQ(answer.err, "");
}

TEST_F(CfpShow, RevealsPasswordsAndSaysSo) {
  write();
  const ToolAnswer answer = cfp(u"show", {u"--reveal"});
  EXPECT_EQ(answer.code, 0);
  EXPECT_NE(answer.out.find("administrator's password: admin-password\n"), std::string::npos) << answer.out;
  EXPECT_NE(answer.out.find("client's password:        (none)\n"), std::string::npos) << answer.out;
  EXPECT_NE(answer.out.find("Database Password=file-password\n"), std::string::npos) << answer.out;
  EXPECT_EQ(answer.err, "qvrscript: the passwords are shown as they are\n");
}

TEST_F(CfpShow, ShowsAUserWhosePasswordIsTheSame) {
  ConnectionParameters parameters = sample();
  parameters.ClaveAdm = parameters.UsuarioAdm;
  write(parameters);
  EXPECT_NE(cfp(u"show").out.find("administrator:            sa\nadministrator's password: ********\n"),
            std::string::npos);
}

TEST_F(CfpShow, ShowsWhatATerminalWouldObey) {
  ConnectionParameters parameters = sample();
  parameters.DataSource = u"\x1b[2J\nfine";
  write(parameters);
  for (const std::vector<Text>& more : {std::vector<Text>{}, {u"--reveal"}}) {
    EXPECT_NE(cfp(u"show", more).out.find("data source:              \\x1b[2J\\x0afine\n"), std::string::npos);
  }
}

TEST_F(CfpShow, ShowsTheNumberOfAnUnknownEngine) {
  ConnectionParameters parameters = sample();
  parameters.MotorBD = Engine{7};
  write(parameters);
  EXPECT_NE(cfp(u"show").out.find("engine:                   unknown engine 7\n"), std::string::npos);
  const Json json = Json::parse(cfp(u"show", {u"--format", u"json"}).out);
  EXPECT_TRUE(json["engine"].is_null());
  EXPECT_EQ(json["engineNumber"], 7);
}

TEST_F(CfpShow, TellsMachinesWhetherThereArePasswords) {
  write();
  const ToolAnswer answer = cfp(u"show", {u"--format", u"json"});
  EXPECT_EQ(answer.out.find("-password"), std::string::npos);
  const Json json = Json::parse(answer.out);
  EXPECT_EQ(json["command"], "cfp show");
  EXPECT_EQ(json["file"], path());
  EXPECT_EQ(json["engine"], "sqlserver");
  EXPECT_EQ(json["catalog"], "Gesti\u00f3n");
  EXPECT_EQ(json["adminUser"], "sa");
  EXPECT_TRUE(json["adminPassword"].is_null());
  EXPECT_EQ(json["adminPasswordSet"], true);
  EXPECT_TRUE(json["clientPassword"].is_null());
  EXPECT_EQ(json["clientPasswordSet"], false);
  EXPECT_EQ(json["other"], "Mode=Read;Jet OLEDB:Database Password=***");
}

TEST_F(CfpShow, RevealsPasswordsToMachines) {
  write();
  const Json json = Json::parse(cfp(u"show", {u"--format", u"json", u"--reveal"}).out);
  EXPECT_EQ(json["adminPassword"], "admin-password");
  EXPECT_EQ(json["clientPassword"], "");
  EXPECT_EQ(json["other"], "Mode=Read;Jet OLEDB:Database Password=file-password");
}

TEST_F(CfpShow, ExplainsAFileThatCannotBeRead) {
  write(sample(), u"another");
  const ToolAnswer answer = cfp(u"show");
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.out, "");
  EXPECT_EQ(answer.err, "qvrscript: " + path() +
                            ": another identification, or no connection file: no line can be read with this one\n");
  const Json json = Json::parse(cfp(u"show", {u"--format", u"json"}).out);
  EXPECT_EQ(json["state"], "other-identification");
  EXPECT_EQ(json["messages"].size(), 1u);
  expect_any_traces();
}

}  // namespace
}  // namespace qvr::tests
