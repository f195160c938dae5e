// Runs whose commands succeed or are answered for: the log of database calls, events and questions, whole.
#include <algorithm>

#include "script/script_fixture.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

using RunTest = ScriptTest;

const char* const kHost = "Host events";

TEST_F(RunTest, RunsEachCommandInOneTransaction) {
  EXPECT_TRUE(run(u"INSERT 1\r\nGO\r\n\r\n\r\nINSERT 2\r\nGO\r\n"));
  EXPECT_EQ(taken(), together({opening(),
                               {"Progreso: Comandos ejecutados: 0/2"},
                               command_lines("INSERT 1"),
                               {kHost, "Progreso: Comandos ejecutados: 1/2"},
                               command_lines("INSERT 2"),
                               {kHost},
                               closing()}));
}

TEST_F(RunTest, ATextWithoutCommandsCommitsAnEmptyTransaction) {
  for (TextView text : {TextView(u""), TextView(u"SELECT 1"), TextView(u"GO\r\n")}) {
    SCOPED_TRACE(to_utf8(text));
    EXPECT_TRUE(run(text));
    EXPECT_EQ(taken(), together({opening(), closing()}));
  }
}

TEST_F(RunTest, WhatFollowsTheLastSeparatorIsNotRun) {
  EXPECT_TRUE(run(u"A\r\ngo\r\nB"));
  EXPECT_EQ(taken(),
            together({opening(), {"Progreso: Comandos ejecutados: 0/1"}, command_lines("A"), {kHost}, closing()}));
}

TEST_F(RunTest, TheTotalCountsSeparatorsThatAreSkipped) {
  EXPECT_TRUE(run(u"A\r\nGO\r\nGO\r\n"));
  EXPECT_EQ(taken(),
            together({opening(), {"Progreso: Comandos ejecutados: 0/2"}, command_lines("A"), {kHost}, closing()}));
}

TEST_F(RunTest, AnEmptyCommandIsRunAsItIs) {
  EXPECT_TRUE(run(u"\r\nGO\r\n"));
  EXPECT_EQ(taken(),
            together({opening(), {"Progreso: Comandos ejecutados: 0/1"}, command_lines(""), {kHost}, closing()}));
}

struct Identification {
  const char* name;
  TextView given, left;
  bool avoided;
};

constexpr Identification kIdentifications[] = {
    {"the word alone", u"EvitarTransaccion", u"", true},
    {"small letters", u"evitartransaccionApp", u"App", true},
    {"capitals", u"EVITARTRANSACCION x", u" x", true},
    {"the word twice", u"EvitarTransaccionEvitarTransaccion", u"EvitarTransaccion", true},
    {"accent", u"EvitarTransacci\u00f3n", u"EvitarTransacci\u00f3n", false},
    {"empty", u"", u"", false},
    {"blank before", u" EvitarTransaccion", u" EvitarTransaccion", false},
    {"last letter missing", u"EvitarTransaccio", u"EvitarTransaccio", false},
};

using RunIdentification = Rows<ScriptTest, Identification>;

TEST_P(RunIdentification, AvoidsTheTransactionByItsFirstWord) {
  id = GetParam().given;
  EXPECT_TRUE(run(u"A\r\nGO\r\n"));
  EXPECT_EQ(id, GetParam().left);
  EXPECT_EQ(taken(), together({opening(!GetParam().avoided),
                               {"Progreso: Comandos ejecutados: 0/1"},
                               command_lines("A"),
                               {kHost},
                               closing(!GetParam().avoided)}));
}

INSTANTIATE_TEST_SUITE_P(, RunIdentification, testing::ValuesIn(kIdentifications), row_name);

TEST_F(RunTest, AnAvoidedTransactionIsNotRolledBack) {
  id = u"EvitarTransaccionApp";
  thread.ado.fail("Command.Execute", 2, refusal());
  thread.boxes.answer(BoxAnswer::No);
  EXPECT_FALSE(run(u"A\r\nGO\r\nB\r\nGO\r\n"));
  EXPECT_EQ(taken(), together({opening(false),
                               {"Progreso: Comandos ejecutados: 0/2"},
                               command_lines("A"),
                               {kHost, "Progreso: Comandos ejecutados: 1/2"},
                               command_lines("B"),
                               report_line("Ejecutar1Comando: B"),
                               {"Box Yes/No: \u00bfDesea que se ejecuten los restantes comandos?", "Connection.Close",
                                "Connection released", "Terminado: False"}}));
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
}

TEST_F(RunTest, NoAfterAFailedCommandRollsEverythingBack) {
  thread.ado.fail("Command.Execute", 2, refusal());
  thread.boxes.answer(BoxAnswer::No);
  EXPECT_FALSE(run(u"A\r\nGO\r\nB\r\nGO\r\nC\r\nGO\r\n"));
  EXPECT_EQ(taken(), together({opening(),
                               {"Progreso: Comandos ejecutados: 0/3"},
                               command_lines("A"),
                               {kHost, "Progreso: Comandos ejecutados: 1/3"},
                               command_lines("B"),
                               report_line("Ejecutar1Comando: B"),
                               {"Box Yes/No: \u00bfDesea que se ejecuten los restantes comandos?"},
                               rolled_back()}));
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
}

TEST_F(RunTest, AnyAnswerButYesIsNo) {
  thread.ado.fail("Command.Execute", 1, refusal());
  thread.boxes.answer(BoxAnswer::Ok);
  EXPECT_FALSE(run(u"A\r\nGO\r\nB\r\nGO\r\n"));
  EXPECT_EQ(taken(), together({opening(),
                               {"Progreso: Comandos ejecutados: 0/2"},
                               command_lines("A"),
                               report_line("Ejecutar1Comando: A"),
                               {"Box Yes/No: \u00bfDesea que se ejecuten los restantes comandos?"},
                               rolled_back()}));
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
}

TEST_F(RunTest, YesAfterAFailedCommandGoesOnWithoutCountingIt) {
  thread.ado.fail("Command.Execute", 2, refusal());
  thread.boxes.answer(BoxAnswer::Yes);
  EXPECT_TRUE(run(u"A\r\nGO\r\nB\r\nGO\r\nC\r\nGO\r\n"));
  EXPECT_EQ(taken(), together({opening(),
                               {"Progreso: Comandos ejecutados: 0/3"},
                               command_lines("A"),
                               {kHost, "Progreso: Comandos ejecutados: 1/3"},
                               command_lines("B"),
                               report_line("Ejecutar1Comando: B"),
                               {"Box Yes/No: \u00bfDesea que se ejecuten los restantes comandos?", kHost,
                                "Progreso: Comandos ejecutados: 1/3"},
                               command_lines("C"),
                               {kHost},
                               closing()}));
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
}

TEST_F(RunTest, AsksAfterEachFailedCommand) {
  thread.ado.fail("Command.Execute", 1, refusal());
  thread.ado.fail("Command.Execute", 2, refusal());
  thread.boxes.answer(BoxAnswer::Yes);
  thread.boxes.answer(BoxAnswer::Yes);
  EXPECT_TRUE(run(u"A\r\nGO\r\nB\r\nGO\r\n"));
  EXPECT_EQ(thread.boxes.shown.size(), 2u);
  EXPECT_EQ(thread.report.notices.size(), 2u);
  EXPECT_EQ(traced(), Traces(2, u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"));
}

TEST_F(RunTest, ATextToShowIsUsedAsItStands) {
  shown_text = u"Paso ";
  EXPECT_TRUE(run(u"A\r\nGO\r\n"));
  EXPECT_EQ(taken(), together({opening(), {"Progreso: Paso 0/1"}, command_lines("A"), {kHost}, closing()}));
  EXPECT_EQ(shown_text, u"Paso ");
}

TEST_F(RunTest, TheCallerSeesTheDefaultTextToShow) {
  EXPECT_TRUE(run(u""));
  EXPECT_EQ(shown_text, u"Comandos ejecutados: ");
}

TEST_F(RunTest, SpeaksTheThreadsLanguage) {
  struct Row {
    TextView language;
    const char *counting, *done, *question;
  };
  constexpr Row kRows[] = {
      {u"0", "Contando comandos...", "Comandos ejecutados", "\u00bfDesea que se ejecuten los restantes comandos?"},
      {u"1", "Counting commands...", "Commands executed", "Do you want further commands to execute?"},
      {u"2", "Contando comandos...", "Comandos ejecutados", "\u00bfDesea que se ejecuten los restantes comandos?"},
      {u"3", "Comptage des commandes...", "Commandes ex\u00e9cut\u00e9es",
       "Souhaitez-vous ex\u00e9cuter les commandes restantes ?"},
  };
  int executions = 0;
  for (const Row& row : kRows) {
    SCOPED_TRACE(to_utf8(row.language));
    thread.load_language(row.language);
    thread.ado.fail("Command.Execute", ++executions, refusal());
    thread.boxes.answer(BoxAnswer::No);
    shown_text.clear();
    EXPECT_FALSE(run(u"A\r\nGO\r\n"));
    Lines expected = together({opening(),
                               {std::string("Progreso: ") + row.done + ": 0/1"},
                               command_lines("A"),
                               report_line("Ejecutar1Comando: A"),
                               {std::string("Box Yes/No: ") + row.question},
                               rolled_back()});
    expected[4] = std::string("Progreso: ") + row.counting;
    EXPECT_EQ(taken(), expected);
  }
  EXPECT_EQ(traced(), Traces(4, u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"));
}

TEST_F(RunTest, LoadsTheLanguageWhereItIsNotLoadedYet) {
  thread.renew();  // as on a thread that the object was not made on
  EXPECT_TRUE(run(u""));
  EXPECT_EQ(taken(), together({opening(), closing()}));
}

TEST_F(RunTest, CountsThousandsOfCommands) {
  Text commands;
  for (int i = 0; i < 12345; ++i) commands += u"A\r\nGO\r\n";
  EXPECT_TRUE(run(commands));
  const Lines lines = taken();
  EXPECT_EQ(lines.size(), opening().size() + 12345 * 9 + closing().size());
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "Progreso: Comandos ejecutados: 12344/12345"), 1);
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "Terminado: True"), 1);
}

TEST_F(RunTest, EnginesAreOnlyPassedOnToTheReport) {
  motor = Engine{-7};
  thread.ado.fail("Command.Execute", 1, refusal());
  thread.boxes.answer(BoxAnswer::No);
  EXPECT_FALSE(run(u"A\r\nGO\r\n"));
  ASSERT_EQ(thread.report.notices.size(), 1u);
  EXPECT_EQ(thread.report.notices[0].motor, Engine{-7});
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
}

}  // namespace
}  // namespace qvr::tests
