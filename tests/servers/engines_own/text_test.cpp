// How the text of a command arrives: empty, long, with marks of ODBC in it, in every alphabet.
#include "servers/engines_own/engine_run.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

struct Blank {
  const char* name;
  TextView command;
  bool in_mariadb, in_postgresql;  // the answer
};

const Blank kBlanks[] = {
    {"nothing", u"", false, false},
    {"blanks", u"  ", false, true},
    {"lines", u"\r\n\r\n", false, true},
    {"a mark", u";", false, true},
    {"a comment of a line", u"-- nada", true, true},
    {"a comment in a line", u"/* nada */", true, true},
    {"a comment before a mark", u"-- nada\r\n;", true, true},
    {"a command in comments", u"-- antes\r\nselect 1 /* entre */ -- detr\u00e1s", true, true},
};

using EngineRunBlank = Rows<EngineRun, Blank>;

TEST_P(EngineRunBlank, IsRefusedOrPassedOver) {
  answer(BoxAnswer::Yes);
  EXPECT_TRUE(runs({GetParam().command, u"insert into T(N) values(1)"}));
  EXPECT_EQ(failures() == 0, by_server(GetParam().in_mariadb, GetParam().in_postgresql));
  EXPECT_EQ(numbers(), u"1");
}

INSTANTIATE_TEST_SUITE_P(, EngineRunBlank, testing::ValuesIn(kBlanks), row_name);

// As they stand between quotes. Drivers know `?` as a parameter and braces as ODBC's escapes.
const Text kMarked[] = {u"{ts ?}",
                        u"\u00bfqu\u00e9? ?",
                        u"{d ''2024-01-01''}",
                        u"{fn now()}",
                        u"{ ? = call x }",
                        u":x $1 @p",
                        u"%s %% \u20ac",
                        u"-- ?",
                        u"/* ? */",
                        u"}{",
                        u"A\r\nB\tC",
                        u"\U0001F600 \u0141",
                        u"[NombreBD] \"T\" `x`",
                        u"; ''; ?"};

TEST_F(EngineRun, MarksInTextsArriveAsTheyAre) {
  Text commands;
  int number = 0;
  for (const Text& each : kMarked) {
    commands += join({u"insert into T values(", decimal(++number), u", '", each, u"')\r\nGO\r\n"});
  }
  EXPECT_TRUE(run(commands));
  number = 0;
  for (const Text& each : kMarked) {
    EXPECT_EQ(ask(join({u"select X from T where N = ", decimal(++number)})), replace_all(each, u"''", u"'"));
  }
}

TEST_F(EngineRun, MarksOutsideTextsAreTheDriversOrTheServers) {
  EXPECT_TRUE(runs({u"insert into T /* ? {d */ values(1, 'uno') -- ? {fn", u"insert into T values(2, {d '2024-01-02'})",
                    u"insert into T values(3, {fn concat('a', 'b')})"}));
  EXPECT_EQ(ask(u"select X from T where N = 2"), u"2024-01-02");
  EXPECT_EQ(ask(u"select X from T where N = 3"), u"ab");
}

TEST_F(EngineRun, ABackslashIsMariaDbsEscape) {
  EXPECT_TRUE(runs({u"insert into T values(1, 'C:\\\\Datos')"}));
  EXPECT_EQ(ask(u"select X from T"), by_server<TextView>(u"C:\\Datos", u"C:\\\\Datos"));
}

TEST_F(EngineRun, LongCommandsArriveWhole) {
  constexpr std::size_t kMegabyte = 1'000'000;
  const TextView table = by_server<TextView>(u"create table L(X longtext)", u"create table L(X text)");
  for (const std::size_t size : {kMegabyte, 20 * kMegabyte}) {
    const Text command = join({u"insert into L values('", Text(size, u'x'), u"\u00f1')"});
    EXPECT_TRUE(runs({table, command, u"insert into T(N) values(1)"}, {}, Text(kNoTransaction)));
    EXPECT_EQ(ask(u"select char_length(X) from L"), decimal(static_cast<std::int64_t>(size + 1)));
    Session session(server.odbc_string());
    session.run(u"drop table L");
    session.run(u"delete from T");
  }
}

// MariaDB's for one command, while this lives. Sessions that begin then have it.
class PacketLimit {
 public:
  explicit PacketLimit(const DatabaseServer& server) : server_(server) { set(u"1048576"); }
  ~PacketLimit() { set(u"67108864"); }
  PacketLimit(const PacketLimit&) = delete;
  PacketLimit& operator=(const PacketLimit&) = delete;

 private:
  void set(TextView bytes) const {
    if (server_.kind() != ServerKind::MariaDb) return;
    Session(server_.administrator_string()).run(join({u"set global max_allowed_packet = ", bytes}));
  }
  const DatabaseServer& server_;
};

TEST_F(EngineRun, ACommandBeyondTheServersLimitEndsTheConnection) {
  const PacketLimit limit(server);
  const Text longer = join({u"insert into T values(2, left('", Text(2'000'000, u'x'), u"', 3))"});
  answer(BoxAnswer::Yes);
  EXPECT_EQ(runs({u"insert into T(N) values(1)", longer, u"insert into T(N) values(3)"}), by_server(false, true));
  EXPECT_EQ(was_told(u"Server has gone away"), by_server(true, false));
  EXPECT_EQ(numbers(), by_server<TextView>(u"", u"1,2,3"));
}

TEST_F(EngineRun, AByteOrderMarkIsNotTheCommands) {
  answer(BoxAnswer::Yes);
  EXPECT_TRUE(runs({u"\ufeffinsert into T(N) values(1)", u"insert into T(N) values(2)"}));
  EXPECT_EQ(failures(), 1u);
  EXPECT_EQ(numbers(), u"2");
}

// What is behind it is not run, and nothing says so.
TEST_F(EngineRun, ANulEndsTheCommand) {
  EXPECT_TRUE(runs({TextView(u"insert into T(N) values(1)\0 nonsense", 36)}));
  EXPECT_EQ(numbers(), u"1");
}

TEST_F(EngineRun, ANulInATextCutsTheCommand) {
  answer(BoxAnswer::Yes);
  EXPECT_TRUE(runs({TextView(u"insert into T values(1, 'a\0b')", 30)}));
  EXPECT_EQ(failures(), 1u);
  EXPECT_EQ(numbers(), u"");
}

TEST_F(EngineRun, NamesAndTextsHaveAllLetters) {
  EXPECT_TRUE(runs({u"create table A\u00f1\u00f3(\u00d1u varchar(20))",
                    u"insert into A\u00f1\u00f3(\u00d1u) values('Jam\u00f3n \u20ac \U0001F600 \u4e2d')"}));
  EXPECT_TRUE(has_table(by_server<TextView>(u"A\u00f1\u00f3", u"a\u00f1\u00f3")));
  EXPECT_EQ(ask(u"select \u00d1u from A\u00f1\u00f3"), u"Jam\u00f3n \u20ac \U0001F600 \u4e2d");
}

TEST_F(EngineRun, NamesBeyondTheBasicPlaneAreNotMariaDbs) {
  answer(BoxAnswer::No);
  EXPECT_EQ(runs({by_server<TextView>(u"create table `\U0001F600`(N int)", u"create table \"\U0001F600\"(N int)")}),
            by_server(false, true));
}

}  // namespace
}  // namespace qvr::tests
