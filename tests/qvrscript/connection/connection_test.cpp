#include "qvrscript/connection/connection.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/utf8.h"
#include "connection/played_surroundings.h"
#include "qvrscript/command_line/usage_failure.h"
#include "qvrscript/connection/cfp_reading.h"
#include "support/temporary_folder.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using namespace script_tool;

ConnectionChoice argument(TextView text) {
  ConnectionChoice choice;
  choice.text = text;
  return choice;
}

ConnectionChoice standard_input() {
  ConnectionChoice choice;
  choice.standard_input = true;
  return choice;
}

ConnectionChoice variable(TextView name) {
  ConnectionChoice choice;
  choice.variable = name;
  return choice;
}

class ConnectionChoices : public testing::Test {
 protected:
  std::optional<Text> string_of(const ConnectionChoice& choice) {
    const auto connection = connection_of(choice, played.surroundings(), console);
    if (!connection) return std::nullopt;
    return Text(TextView(connection->string));
  }
  std::string refusal_of(const ConnectionChoice& choice) {
    try {
      connection_of(choice, played.surroundings(), console);
      return "not refused";
    } catch (const UsageFailure& failure) {
      return to_utf8(failure.message());
    }
  }
  std::string left_out(TextView text) const { return to_utf8(console.secrets.left_out(text)); }

  ConnectionChoice file() {
    ConnectionParameters parameters;
    parameters.MotorBD = Engine::SqlServer;
    parameters.Provider = u"SQLOLEDB";
    parameters.DataSource = u"SRV01";
    parameters.UsuarioAdm = u"sa";
    parameters.ClaveAdm = u"admin-password";
    parameters.UsuarioCli = u"app";
    parameters.ClaveCli = u"client-password";
    QVRcfp cfp;
    EXPECT_TRUE(cfp.Asignar(u"the-id", parameters));
    EXPECT_TRUE(cfp.Guardar(u"the-id", folder.text(), u"shop"));
    ConnectionChoice choice;
    choice.cfp = {folder.text(), u"shop", u"ID"};
    return choice;
  }

  TemporaryFolder folder;
  PlayedSurroundings played;
  std::ostringstream out, err;
  Console console{{out, err}};
};

TEST_F(ConnectionChoices, TakeAnArgument) {
  EXPECT_EQ(string_of(argument(u"DSN=x;UID=u")), u"DSN=x;UID=u");
  EXPECT_EQ(err.str(), "");
}

TEST_F(ConnectionChoices, WarnOfAPasswordInAnArgument) {
  EXPECT_EQ(string_of(argument(u"DSN=x;PWD=hushhush")), u"DSN=x;PWD=hushhush");
  EXPECT_EQ(
      err.str(),
      "qvrscript: warning: others can see a password that stands in an argument, in the list of processes and the "
      "shell's history; --connection-env, --connection - and --cfp keep it to you\n");
  EXPECT_EQ(left_out(u"no hushhush: DSN=x;PWD=hushhush"), "no ***: ***");
}

TEST_F(ConnectionChoices, TakeTheStandardInput) {
  played.input = u"DSN=x;PWD=hushhush";
  EXPECT_EQ(string_of(standard_input()), u"DSN=x;PWD=hushhush");
  EXPECT_EQ(err.str(), "");
  EXPECT_EQ(left_out(u"hushhush"), "***");
}

TEST_F(ConnectionChoices, RefuseAStandardInputWithoutALine) {
  EXPECT_EQ(refusal_of(standard_input()), "the standard input has no connection string in its first line");
  played.input = u" ";
  EXPECT_EQ(refusal_of(standard_input()), "the standard input has no connection string in its first line");
}

TEST_F(ConnectionChoices, TakeAnEnvironmentVariable) {
  played.variables[u"DB"] = u"DSN=x;PWD=hushhush";
  EXPECT_EQ(string_of(variable(u"DB")), u"DSN=x;PWD=hushhush");
  EXPECT_EQ(err.str(), "");
  EXPECT_EQ(left_out(u"hushhush"), "***");
  EXPECT_EQ(refusal_of(variable(u"OTHER")), "the environment variable OTHER is not set");
  played.variables[u"DB"] = u"";
  EXPECT_EQ(refusal_of(variable(u"DB")), "the environment variable DB is empty");
}

TEST_F(ConnectionChoices, DoNotHideAMereDataSourceName) {
  EXPECT_EQ(string_of(argument(u"sales")), u"sales");
  EXPECT_EQ(left_out(u"sales.cfc"), "sales.cfc");
}

TEST_F(ConnectionChoices, TakeTheAccountsOfAConnectionFile) {
  ConnectionChoice choice = file();
  played.variables[u"ID"] = u"the-id";
  EXPECT_EQ(string_of(choice),
            u"Provider=SQLOLEDB;Data Source=\"SRV01\";Persist Security Info=False;User "
            u"ID=\"sa\";Password=\"admin-password\";");
  choice.client = true;
  EXPECT_EQ(string_of(choice),
            u"Provider=SQLOLEDB;Data Source=\"SRV01\";Persist Security Info=False;User "
            u"ID=\"app\";Password=\"client-password\";");
  EXPECT_EQ(err.str(), "");
}

TEST_F(ConnectionChoices, GiveTheParametersOfAConnectionFile) {
  const ConnectionChoice choice = file();
  played.variables[u"ID"] = u"the-id";
  const auto connection = connection_of(choice, played.surroundings(), console);
  ASSERT_TRUE(connection && connection->parameters);
  EXPECT_EQ(connection->parameters->MotorBD, Engine::SqlServer);
  EXPECT_EQ(connection->parameters->UsuarioCli, u"app");
  EXPECT_EQ(connection->parameters->ClaveCli, u"client-password");
}

TEST_F(ConnectionChoices, HideBothPasswordsAndTheIdentificationOfAConnectionFile) {
  const ConnectionChoice choice = file();
  played.variables[u"ID"] = u"the-id";
  ASSERT_TRUE(string_of(choice));
  EXPECT_EQ(left_out(u"admin-password, client-password, the-id, sa"), "***, ***, ***, sa");
}

TEST_F(ConnectionChoices, AskForAnIdentification) {
  ConnectionChoice choice = file();
  choice.cfp->id_variable.reset();
  played.answers = {u"the-id"};
  EXPECT_TRUE(string_of(choice));
  EXPECT_EQ(played.prompts, std::vector<Text>{u"Identification: "});
  EXPECT_EQ(refusal_of(choice), "nobody answers on a terminal: --id-env names a variable with the secret");
}

TEST_F(ConnectionChoices, RefuseAnEmptyIdentification) {
  ConnectionChoice choice = file();
  played.variables[u"ID"] = u"";
  EXPECT_EQ(refusal_of(choice), "the identification in the environment variable ID is empty");
  choice.cfp->id_variable.reset();
  played.answers = {u""};
  EXPECT_EQ(refusal_of(choice), "the identification is empty");
}

TEST_F(ConnectionChoices, ExplainAConnectionFileThatCannotBeRead) {
  const ConnectionChoice choice = file();
  played.variables[u"ID"] = u"another-id";
  EXPECT_EQ(string_of(choice), std::nullopt);
  EXPECT_EQ(err.str(), "qvrscript: " + to_utf8(shown_path(*choice.cfp)) +
                           ": another identification, or no connection file: no line can be read with this "
                           "one\n");
  expect_any_traces();
}

}  // namespace
}  // namespace qvr::tests
