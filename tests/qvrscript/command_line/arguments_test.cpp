// The command line.
#include "qvrscript/command_line/arguments.h"

#include <gtest/gtest.h>

#include "support/rows.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

using namespace script_tool;

Arguments parse(std::vector<Text> words) { return parse_arguments(words); }

TEST(Arguments, OfCheck) {
  const Arguments arguments = parse({u"check", u"--json", u"a", u"--engine", u"Oracle", u"b c"});
  EXPECT_EQ(arguments.action, Action::Check);
  EXPECT_EQ(arguments.operands, (std::vector<Text>{u"a", u"b c"}));
  EXPECT_EQ(arguments.engine, Engine::Oracle);
  EXPECT_TRUE(arguments.json);
}

TEST(Arguments, OfList) {
  const Arguments arguments = parse({u"list", u"folder", u"Gestion", u"--from=10024", u"--engine=jet"});
  EXPECT_EQ(arguments.action, Action::List);
  EXPECT_EQ(arguments.operands, (std::vector<Text>{u"folder", u"Gestion"}));
  EXPECT_EQ(arguments.from, 10024);
  EXPECT_EQ(arguments.engine, Engine::Jet);
  EXPECT_FALSE(arguments.json);
}

TEST(Arguments, OfRun) {
  const Arguments plain = parse({u"run", u"--engine", u"sqlserver", u"--connection", u"Data Source=x;a=b", u"f"});
  EXPECT_EQ(plain.action, Action::Run);
  EXPECT_EQ(plain.connection, u"Data Source=x;a=b");
  EXPECT_TRUE(plain.use_transaction);
  EXPECT_FALSE(plain.go_on);
  const Arguments all = parse(
      {u"run", u"--engine=sqlserver", u"--connection=a=b", u"--no-transaction", u"--continue", u"--", u"-f"});
  EXPECT_EQ(all.connection, u"a=b");
  EXPECT_FALSE(all.use_transaction);
  EXPECT_TRUE(all.go_on);
  EXPECT_EQ(all.operands, std::vector<Text>{u"-f"});
}

TEST(Arguments, AskForHelp) {
  for (const Text word : {u"--help", u"-h", u"help"}) {
    EXPECT_EQ(parse({word}).action, Action::Help);
    EXPECT_FALSE(parse({word}).topic);
    EXPECT_EQ(parse({word, u"run"}).topic, Action::Run);
  }
  const Arguments of_list = parse({u"list", u"--help"});
  EXPECT_EQ(of_list.action, Action::Help);
  EXPECT_EQ(of_list.topic, Action::List);
  EXPECT_EQ(parse({u"--version"}).action, Action::Version);
}

struct Refused {
  const char* name;
  std::vector<Text> words;
  std::string message;
};

const Refused kRefused[] = {
    {"nothing", {}, "no command"},
    {"command in another case", {u"Check"}, "no such command: Check"},
    {"help of no command", {u"help", u"x"}, "no such command: x"},
    {"check of nothing", {u"check"}, "check wants a folder or files"},
    {"option of another command", {u"check", u"x", u"--from", u"10024"}, "--from belongs to another command"},
    {"unknown engine", {u"check", u"x", u"--engine", u"mysql"}, "no such engine: mysql (jet, sqlserver or oracle)"},
    {"option without its value", {u"check", u"x", u"--engine"}, "--engine wants a value"},
    {"option with a value too many", {u"check", u"x", u"--json=1"}, "--json takes no value"},
    {"unknown option", {u"check", u"x", u"--colour"}, "no such option: --colour"},
    {"unknown short option", {u"check", u"x", u"-j"}, "no such option: -j"},
    {"list without a name", {u"list", u"x"}, "list wants a folder and the name of a definition or application"},
    {"version of four digits",
     {u"list", u"x", u"y", u"--from", u"1024"},
     "no version: 1024 (five digits, the first no zero)"},
    {"version with a zero in front",
     {u"list", u"x", u"y", u"--from", u"01024"},
     "no version: 01024 (five digits, the first no zero)"},
    {"version with a letter",
     {u"list", u"x", u"y", u"--from", u"1002x"},
     "no version: 1002x (five digits, the first no zero)"},
    {"run of nothing", {u"run", u"--engine", u"jet", u"--connection", u"x"}, "run wants one file"},
    {"run without an engine", {u"run", u"--connection", u"x", u"f"}, "run wants --engine"},
    {"run without a connection", {u"run", u"--engine", u"jet", u"f"}, "run wants --connection"},
};

using RefusedArguments = Rows<testing::Test, Refused>;

TEST_P(RefusedArguments, AreToldAndNothingIsDone) {
  const ToolAnswer answer = run_tool(GetParam().words);
  EXPECT_EQ(answer.code, 2);
  EXPECT_EQ(answer.out, "");
  EXPECT_EQ(answer.err, "qvrscript: " + GetParam().message + "; qvrscript --help tells more\n");
}

INSTANTIATE_TEST_SUITE_P(, RefusedArguments, testing::ValuesIn(kRefused), row_name);

}  // namespace
}  // namespace qvr::tests
