// Script files run into a real database.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "base/utf8.h"
#include "odbc/odbc_ado.h"
#include "odbc/odbc_statement.h"
#include "qvrscript/output/json.h"
#include "session/value_convert.h"
#include "support/temporary_folder.h"
#include "support/traced.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

using script_tool::Json;

class Run : public testing::Test {
 protected:
  ToolAnswer run(std::string_view script, std::vector<Text> more = {}, bool terminal = false) const {
    folder.write(u"x.cfc", script);
    std::vector<Text> words = {u"run",          u"--engine",  u"sqlserver",
                               u"--connection", connection(), folder.file_text(u"x.cfc")};
    words.insert(words.end(), more.begin(), more.end());
    return run_tool(words, terminal, [](const Platform&) { return odbc::make_odbc_ado(); });
  }
  Text connection() const { return join({u"Provider=MSDASQL;Extended Properties=\"", driver_string(), u"\""}); }
  Text driver_string() const {
    return join({u"DRIVER={SQLite3};Database=", folder.file(u"test.db").u16string(), u";"});
  }
  std::string ask(TextView query) const {
    odbc::Connection own;
    own.open(driver_string(), 0);
    return to_utf8(to_text(odbc::execute(own, query, {}, 0).rows.at(0).at(0)));
  }

  TemporaryFolder folder;
};

constexpr std::string_view kMakeTable = "create table T(N varchar(9))\r\nGO\r\n";
constexpr std::string_view kHalfFails =
    "insert into T values('1')\r\nGO\r\nnonsense\r\nGO\r\ninsert into T values('3')\r\nGO\r\n";

TEST_F(Run, DoesAllCommandsAndTellsEach) {
  const ToolAnswer answer = run("create table T(N varchar(9))\nGO\ninsert into T values('Jam\xC3\xB3n')\ngo");
  EXPECT_EQ(answer.code, 0) << answer.err;
  EXPECT_EQ(answer.out, "commands done: 0/2\ncommands done: 1/2\ndone: 2 of 2 commands\n");
  EXPECT_EQ(answer.err, "");
  EXPECT_EQ(ask(u"select N from T"), "Jam\xC3\xB3n");
}

TEST_F(Run, DrawsABarOnATerminal) {
  const ToolAnswer answer = run("create table T(N int)\r\nGO\r\ninsert into T values(1)\r\nGO\r\n", {}, true);
  EXPECT_EQ(answer.out,
            "\r[........................................] 0/2"
            "\r[####################....................] 1/2\n"
            "done: 2 of 2 commands\n");
}

TEST_F(Run, TakesAllBackAfterAFailure) {
  run(kMakeTable);
  const ToolAnswer answer = run(kHalfFails);
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.out, "commands done: 0/3\ncommands done: 1/3\n");
  EXPECT_NE(answer.err.find("near \"nonsense\""), std::string::npos) << answer.err;
  EXPECT_TRUE(answer.err.ends_with(" no\nqvrscript: failed after 1 of 3 commands; all taken back\n")) << answer.err;
  EXPECT_EQ(ask(u"select count(*) from T"), "0");
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
}

// Nobody writes into the pipe: opening it would wait for ever.
TEST_F(Run, DoesNotWaitForAPipe) {
  ASSERT_EQ(::mkfifo(folder.file(u"x.cfc").c_str(), 0600), 0);
  for (const TextView command : {u"run", u"check"}) {
    std::vector<Text> words{Text(command), folder.file_text(u"x.cfc")};
    if (command == u"run") words.insert(words.begin() + 1, {u"--engine", u"sqlserver", u"--connection", connection()});
    const ToolAnswer answer = run_tool(words, false, [](const Platform&) { return odbc::make_odbc_ado(); });
    EXPECT_EQ(answer.code, 2);
    EXPECT_EQ(answer.out, "");
    EXPECT_NE(answer.err.find("x.cfc"), std::string::npos) << answer.err;
  }
  EXPECT_EQ(traced(), (Traces{trace_of(u"commands_in", 75), trace_of(u"names_in", 75)}));
}

TEST_F(Run, GoesOnWhereItIsTold) {
  run(kMakeTable);
  const ToolAnswer answer = run(kHalfFails, {u"--continue"});
  EXPECT_EQ(answer.code, 0);
  EXPECT_TRUE(answer.out.ends_with("done: 2 of 3 commands\n")) << answer.out;
  EXPECT_TRUE(answer.err.ends_with(" yes (--continue)\n")) << answer.err;
  EXPECT_EQ(ask(u"select group_concat(N) from T"), "1,3");
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
}

TEST_F(Run, KeepsWhatRanWithoutATransaction) {
  run(kMakeTable);
  const ToolAnswer answer = run(kHalfFails, {u"--no-transaction"});
  EXPECT_EQ(answer.code, 1);
  EXPECT_TRUE(answer.err.ends_with("qvrscript: failed after 1 of 3 commands; what ran stays\n")) << answer.err;
  EXPECT_EQ(ask(u"select group_concat(N) from T"), "1");
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
}

TEST_F(Run, TellsOfAFileWithoutGo) {
  const ToolAnswer answer = run("create table T(N int)\r\n");
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out, "done: 0 of 0 commands\n");
  EXPECT_EQ(answer.err, "qvrscript: " + to_utf8(folder.file_text(u"x.cfc")) + " has no GO line: nothing is run\n");
}

TEST_F(Run, RefusesAFileThatCannotBeRead) {
  const ToolAnswer zero = run(std::string_view("a\0b\r\nGO\r\n", 9));
  EXPECT_EQ(zero.code, 2);
  EXPECT_EQ(zero.out, "");
  EXPECT_EQ(zero.err, "qvrscript: " + to_utf8(folder.file_text(u"x.cfc")) + " cannot be read\n");
  EXPECT_EQ(run_tool({u"run", u"--engine=jet", u"--connection=x", folder.file_text(u"none.cfc")}).code, 2);
  EXPECT_EQ(traced(), Traces(2, u"commands_in: 75 Path/File access error"));
}

TEST_F(Run, FailsWhereTheDatabaseCannotBeOpened) {
  folder.write(u"x.cfc", kMakeTable);
  const ToolAnswer answer = run_tool({u"run", u"--engine=oracle", u"--connection", u"Data Source=NoSuchDsn",
                                      folder.file_text(u"x.cfc")},
                                     false, [](const Platform&) { return odbc::make_odbc_ado(); });
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.out, "");
  EXPECT_TRUE(answer.err.starts_with("Servidor no encontrado\n\nError ")) << answer.err;
  EXPECT_EQ(traced(), Traces{u"QVRScr.EjecutarComandos: -2147467259 told by another component"});
}

TEST_F(Run, WritesOneJsonDocument) {
  run(kMakeTable);
  const ToolAnswer answer = run(kHalfFails, {u"--json", u"--continue"});
  const Json json = Json::parse(answer.out);
  EXPECT_EQ(json["command"], "run");
  EXPECT_EQ(json["file"], to_utf8(folder.file_text(u"x.cfc")));
  EXPECT_TRUE(json["success"].get<bool>());
  EXPECT_TRUE(json["transaction"].get<bool>());
  EXPECT_EQ(json["executed"], 2);
  EXPECT_EQ(json["total"], 3);
  ASSERT_EQ(json["failures"].size(), 1u);
  EXPECT_NE(json["failures"][0].find("nonsense"), std::string::npos);
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
}

TEST_F(Run, LeavesTheThreadAsItWas) {
  const ThreadState* before = &thread_state();
  run(kMakeTable);
  EXPECT_EQ(&thread_state(), before);
}

}  // namespace
}  // namespace qvr::tests
