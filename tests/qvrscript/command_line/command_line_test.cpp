// The command line.
#include "qvrscript/command_line/command_line.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/utf8.h"
#include "qvrscript/program.h"
#include "support/rows.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

using namespace script_tool;

Request parse(const std::vector<std::string>& words) { return CommandLine().parse(words); }

template <class What>
What parsed(const std::vector<std::string>& words) {
  return std::get<What>(parse(words).what);
}

TEST(CommandLine, OfCheck) {
  const auto plain = parsed<CheckRequest>({"check", "a"});
  EXPECT_EQ(plain.paths, std::vector<Text>{u"a"});
  EXPECT_EQ(parsed<CheckRequest>({"check", "--", "-c", "d"}).paths, (std::vector<Text>{u"-c", u"d"}));
  EXPECT_EQ(plain.engine, std::nullopt);
  EXPECT_EQ(plain.fail_on, Severity::Warning);
  EXPECT_TRUE(plain.encryption);
  const Request all = parse({"check", "--json", "a", "--engine", "Oracle", "b c", "--fail-on=note", "--ignore", "x",
                             "--ignore=y", "--no-encryption", "--lock", "l", "--update", "--quiet"});
  const auto& check = std::get<CheckRequest>(all.what);
  EXPECT_EQ(check.paths, (std::vector<Text>{u"a", u"b c"}));
  EXPECT_EQ(check.engine, Engine::Oracle);
  EXPECT_EQ(check.fail_on, Severity::Note);
  EXPECT_EQ(check.ignored, (std::vector<Text>{u"x", u"y"}));
  EXPECT_FALSE(check.encryption);
  EXPECT_EQ(check.lock, u"l");
  EXPECT_TRUE(check.update_lock);
  EXPECT_EQ(all.command, u"check");
  EXPECT_EQ(all.format, Format::Json);
  EXPECT_TRUE(all.quiet);
  EXPECT_FALSE(all.verbose);
}

TEST(CommandLine, OfRun) {
  const auto plain = parsed<RunRequest>({"run", "--engine", "sqlserver", "--connection", "Data Source=x;a=b", "f"});
  EXPECT_EQ(plain.file, u"f");
  EXPECT_EQ(plain.options.engine, Engine::SqlServer);
  EXPECT_EQ(plain.options.connection->text, u"Data Source=x;a=b");
  EXPECT_EQ(plain.options.connection->connect_timeout, 15);
  EXPECT_TRUE(plain.options.use_transaction);
  EXPECT_FALSE(plain.options.go_on);
  const Request all = parse({"run", "--engine=jet", "--connection", "-", "--continue", "--no-transaction", "--timing",
                             "--log", "l", "--connect-timeout", "3", "--format", "junit", "--verbose", "--", "-f"});
  const auto& run = std::get<RunRequest>(all.what);
  EXPECT_EQ(run.file, u"-f");
  EXPECT_TRUE(run.options.connection->standard_input);
  EXPECT_EQ(run.options.connection->text, std::nullopt);
  EXPECT_EQ(run.options.connection->connect_timeout, 3);
  EXPECT_FALSE(run.options.use_transaction);
  EXPECT_TRUE(run.options.go_on);
  EXPECT_TRUE(run.options.timing);
  EXPECT_EQ(run.options.log, u"l");
  EXPECT_EQ(all.format, Format::JUnit);
  EXPECT_TRUE(all.verbose);
  EXPECT_TRUE(parsed<RunRequest>({"run", "--engine=jet", "--connection=x", "--rehearse", "f"}).options.rehearse);
}

TEST(CommandLine, OfTheConnection) {
  const auto variable = parsed<RunRequest>({"run", "--engine=jet", "--connection-env", "V", "f"}).options.connection;
  EXPECT_EQ(variable->variable, u"V");
  for (const std::vector<std::string>& options :
       {std::vector<std::string>{"--cfp", "a b", "n", "--id-env", "V", "--client"},
        {"--client", "--id-env=V", "--cfp", "a b", "n"}}) {
    std::vector<std::string> words = {"run", "--engine=jet"};
    words.insert(words.end(), options.begin(), options.end());
    words.emplace_back("f");
    const auto file = parsed<RunRequest>(words).options.connection;
    EXPECT_EQ(file->cfp->folder, u"a b");
    EXPECT_EQ(file->cfp->name, u"n");
    EXPECT_EQ(file->cfp->id_variable, u"V");
    EXPECT_TRUE(file->client);
  }
}

TEST(CommandLine, OfInstallAndUpdate) {
  const auto plan = parsed<LoadRequest>({"install", "--engine", "sqlserver", "--plan", "d", "Gestion"});
  EXPECT_FALSE(plan.update);
  EXPECT_TRUE(plan.plan);
  EXPECT_EQ(plan.folder, u"d");
  EXPECT_EQ(plan.name, u"Gestion");
  EXPECT_TRUE(plan.encrypt);
  EXPECT_EQ(plan.database, std::nullopt);
  EXPECT_FALSE(plan.options.connection);
  const auto all = parsed<LoadRequest>({"update",
                                        "--engine",
                                        "oracle",
                                        "--from",
                                        "10024",
                                        "--out",
                                        "o",
                                        "--with-passwords",
                                        "--no-encryption",
                                        "--database",
                                        "B",
                                        "--admin-user",
                                        "A",
                                        "--admin-password-env",
                                        "PA",
                                        "--client-user",
                                        "",
                                        "--client-password-env",
                                        "PC",
                                        "d",
                                        "Gestion"});
  EXPECT_TRUE(all.update);
  EXPECT_EQ(all.from, 10024);
  EXPECT_EQ(all.out, u"o");
  EXPECT_TRUE(all.with_passwords);
  EXPECT_FALSE(all.encrypt);
  EXPECT_EQ(all.database, u"B");
  EXPECT_EQ(all.admin.user, u"A");
  EXPECT_EQ(all.admin.password_variable, u"PA");
  EXPECT_EQ(all.client.user, u"");
  EXPECT_EQ(all.client.password_variable, u"PC");
  const auto asked = parsed<LoadRequest>(
      {"update", "--engine", "jet", "--from-query", "select V from P", "--connection", "x", "--plan", "d", "Gestion"});
  EXPECT_EQ(asked.from_query, u"select V from P");
  EXPECT_EQ(asked.from, std::nullopt);
  EXPECT_TRUE(asked.plan);
}

TEST(CommandLine, OfConnectionFiles) {
  const auto made = parsed<CfpNewRequest>({"cfp",
                                           "new",
                                           "--id-env",
                                           "I",
                                           "--engine",
                                           "oracle",
                                           "--provider",
                                           "P",
                                           "--data-source",
                                           "D",
                                           "--catalog",
                                           "C",
                                           "--admin-user",
                                           "A",
                                           "--admin-password-env",
                                           "PA",
                                           "--client-user",
                                           "U",
                                           "--client-password-env",
                                           "PU",
                                           "--other",
                                           "x=1;",
                                           "d",
                                           "n"});
  EXPECT_EQ(made.cfp.id_variable, u"I");
  EXPECT_EQ(made.cfp.folder, u"d");
  EXPECT_EQ(made.cfp.name, u"n");
  EXPECT_EQ(made.engine, Engine::Oracle);
  EXPECT_EQ(made.provider, u"P");
  EXPECT_EQ(made.data_source, u"D");
  EXPECT_EQ(made.catalog, u"C");
  EXPECT_EQ(made.admin.user, u"A");
  EXPECT_EQ(made.admin.password_variable, u"PA");
  EXPECT_EQ(made.client.user, u"U");
  EXPECT_EQ(made.client.password_variable, u"PU");
  EXPECT_EQ(made.other, u"x=1;");
  EXPECT_FALSE(made.replace);
  EXPECT_FALSE(parsed<CfpShowRequest>({"cfp", "show", "d", "n"}).reveal);
  EXPECT_EQ(parsed<CfpCheckRequest>({"cfp", "check", "--id-env=I", "d", "n"}).cfp.id_variable, u"I");
  EXPECT_EQ(parsed<CfpRekeyRequest>({"cfp", "rekey", "--id-env=I", "--new-id-env=N", "d", "n"}).new_id_variable, u"N");
  const Request test = parse({"cfp", "test", "--client", "--connect-timeout=0", "d", "n"});
  const auto& connection = std::get<CfpTestRequest>(test.what).connection;
  EXPECT_EQ(test.command, u"cfp test");
  EXPECT_EQ(connection.cfp->name, u"n");
  EXPECT_EQ(connection.cfp->id_variable, std::nullopt);
  EXPECT_TRUE(connection.client);
  EXPECT_EQ(connection.connect_timeout, 0);
}

struct Refused {
  const char* name;
  std::vector<Text> words;
  std::string message;
};

const Refused kRefused[] = {
    {"nothing", {}, "A subcommand is required"},
    {"command in another case", {u"Check"}, "no such command: Check"},
    {"unknown command of connection files", {u"cfp", u"write", u"d", u"n"}, "no such command: write"},
    {"connection files alone", {u"cfp"}, "A subcommand is required"},
    {"check of nothing", {u"check"}, "PATH is required"},
    {"option of another command",
     {u"check", u"x", u"--from", u"10024"},
     "The following argument was not expected: --from"},
    {"unknown engine",
     {u"check", u"x", u"--engine", u"mysql"},
     "no such value of --engine: mysql (jet|sqlserver|oracle)"},
    {"option without its value", {u"check", u"x", u"--engine"}, "--engine: 1 required TEXT missing"},
    {"unknown option", {u"check", u"x", u"--colour"}, "The following argument was not expected: --colour"},
    {"unknown short option", {u"check", u"x", u"-j"}, "The following argument was not expected: -j"},
    {"format of another command",
     {u"check", u"x", u"--format", u"junit"},
     "no such value of --format: junit (text|json|github|sarif)"},
    {"update of no lock", {u"check", u"x", u"--update"}, "--update requires --lock"},
    {"unknown severity",
     {u"check", u"x", u"--fail-on", u"fatal"},
     "no such value of --fail-on: fatal (error|warning|note)"},
    {"run without an engine", {u"run", u"--connection", u"x", u"f"}, "--engine is required"},
    {"run without a connection",
     {u"run", u"--engine", u"jet", u"f"},
     "run wants a connection: --connection, --connection-env or --cfp"},
    {"run with the time limit of no connection",
     {u"run", u"--engine", u"jet", u"--connect-timeout", u"5", u"f"},
     "run wants a connection: --connection, --connection-env or --cfp"},
    {"run of nothing", {u"run", u"--engine", u"jet", u"--connection", u"x"}, "FILE is required"},
    {"run of two files",
     {u"run", u"--engine", u"jet", u"--connection", u"x", u"f", u"g"},
     "The following argument was not expected: g"},
    {"two connections",
     {u"run", u"--engine", u"jet", u"--connection", u"x", u"--connection-env", u"y", u"f"},
     "--connection excludes --connection-env"},
    {"client of no file",
     {u"run", u"--engine", u"jet", u"--connection", u"x", u"--client", u"f"},
     "--client requires --cfp"},
    {"identification of no file",
     {u"run", u"--engine", u"jet", u"--connection", u"x", u"--id-env", u"v", u"f"},
     "--id-env requires --cfp"},
    {"no seconds",
     {u"run", u"--engine", u"jet", u"--connection", u"x", u"--connect-timeout", u"soon", u"f"},
     "no number of seconds: soon (0 to 99999)"},
    {"rehearsal without a transaction",
     {u"run", u"--engine", u"jet", u"--connection", u"x", u"--rehearse", u"--no-transaction", u"f"},
     "--no-transaction excludes --rehearse"},
    {"option twice",
     {u"run", u"--engine", u"jet", u"--engine", u"jet", u"--connection", u"x", u"f"},
     "--engine: At Most 1 required but received 2"},
    {"install without a connection",
     {u"install", u"--engine", u"jet", u"d", u"n"},
     "install wants a connection: --connection, --connection-env or --cfp; or --plan, or --out"},
    {"name with a wildcard",
     {u"install", u"--engine", u"jet", u"--plan", u"d", u"n*"},
     "no name of a definition, an application or a file: n*"},
    {"name with a folder", {u"cfp", u"show", u"d", u"../x"}, "no name of a definition, an application or a file: ../x"},
    {"rehearsed plan",
     {u"install", u"--engine", u"jet", u"--plan", u"--rehearse", u"d", u"n"},
     "--plan excludes --rehearse"},
    {"passwords of no text",
     {u"install", u"--engine", u"jet", u"--with-passwords", u"--plan", u"d", u"n"},
     "--with-passwords requires --out"},
    {"update from nowhere",
     {u"update", u"--engine", u"jet", u"--plan", u"d", u"n"},
     "update wants --from or --from-query"},
    {"update from both",
     {u"update", u"--engine", u"jet", u"--plan", u"--from", u"10024", u"--from-query", u"x", u"d", u"n"},
     "--from excludes --from-query"},
    {"query without a connection",
     {u"update", u"--engine", u"jet", u"--plan", u"--from-query", u"x", u"d", u"n"},
     "update wants a connection: --connection, --connection-env or --cfp"},
    {"query with the time limit of no connection",
     {u"update", u"--engine", u"jet", u"--plan", u"--connect-timeout", u"5", u"--from-query", u"x", u"d", u"n"},
     "update wants a connection: --connection, --connection-env or --cfp"},
    {"version of four digits",
     {u"update", u"--engine", u"jet", u"--plan", u"--from", u"1024", u"d", u"n"},
     "no version: 1024 (five digits, the first no zero)"},
    {"version with a zero in front",
     {u"update", u"--engine", u"jet", u"--plan", u"--from", u"01024", u"d", u"n"},
     "no version: 01024 (five digits, the first no zero)"},
    {"version with a letter",
     {u"update", u"--engine", u"jet", u"--plan", u"--from", u"1002x", u"d", u"n"},
     "no version: 1002x (five digits, the first no zero)"},
    {"new file without an engine", {u"cfp", u"new", u"d", u"n"}, "--engine is required"},
};

using RefusedCommandLine = Rows<testing::Test, Refused>;

TEST_P(RefusedCommandLine, IsToldAndNothingIsDone) {
  const ToolAnswer answer = run_tool(GetParam().words);
  EXPECT_EQ(answer.code, 2);
  EXPECT_EQ(answer.out, "");
  EXPECT_EQ(answer.err, "qvrscript: " + GetParam().message + "; qvrscript --help tells more\n");
}

TEST(CommandLine, RefusedIsToldAsJsonToo) {
  for (const Text format : {u"--json", u"--format=json"}) {
    const ToolAnswer answer = run_tool({u"check", u"x", format, u"--colour"});
    EXPECT_EQ(answer.code, 2);
    EXPECT_EQ(answer.out,
              "{\"command\":null,\"error\":\"The following argument was not expected: --colour\",\"exitCode\":2}\n");
    EXPECT_EQ(answer.err,
              "qvrscript: The following argument was not expected: --colour; qvrscript --help tells more\n");
  }
}

TEST(CommandLine, OfOtherEncodingsIsRefused) {
  std::ostringstream out, err;
  EXPECT_EQ(run_program({"check", "caf\xE9"}, {out, err}, {}), 2);
  EXPECT_EQ(err.str(), "qvrscript: an argument is no UTF-8; qvrscript --help tells more\n");
  EXPECT_EQ(out.str(), "");
}

INSTANTIATE_TEST_SUITE_P(, RefusedCommandLine, testing::ValuesIn(kRefused), row_name);

}  // namespace
}  // namespace qvr::tests
