// Runs that end because something other than a command fails, at each call there is.
#include "script/script_fixture.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using RunFailureTest = ScriptTest;

struct Row {
  const char* operation;
  Lines lines;  // between the first call and the end of the run, for one command "A"
};

const Lines kCommand = together({{"Progreso: Comandos ejecutados: 0/1"}, command_lines("A"), {"Host events"}});
const Lines kReport = report_line("EjecutarComandos");
const Lines kReleased = {"Connection released", "Terminado: False"};
const Lines kClosed = {"Connection.Close", "Connection released", "Terminado: False"};

// The first `count` lines of an opening.
Lines opened(std::size_t count) {
  Lines lines = opening();
  lines.resize(count);
  return lines;
}

const Row kRows[] = {
    {"new Connection", together({opened(1), kReport, {"Terminado: False"}})},
    {"Connection.ConnectionString", together({opened(2), kReport, kReleased})},
    {"Connection.Open", together({opened(3), kReport, kReleased})},
    {"Connection.BeginTrans", together({opened(4), kReport, kClosed})},
    {"Connection.CommitTrans", together({opening(), kCommand, {"Connection.CommitTrans"}, kReport, rolled_back()})},
    {"Connection.Close",
     together({opening(), kCommand, {"Connection.CommitTrans", "Connection.Close"}, kReport, kClosed})},
};

TEST_F(RunFailureTest, EachFailingCallEndsTheRunOnce) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.operation);
    TestThread inner;
    LoggingEvents inner_events(inner.log);
    QVRScr inner_runner(inner_events);
    inner.ado.fail(row.operation, 1, refusal());
    Text shown;
    EXPECT_FALSE(inner_runner.EjecutarComandos(id, Engine::SqlServer, u"A\r\nGO\r\n", u"Provider=P;", shown));
    EXPECT_EQ(inner.log.take(), row.lines);
    shown.clear();
    EXPECT_TRUE(inner_runner.EjecutarComandos(id, Engine::SqlServer, u"A\r\nGO\r\n", u"Provider=P;", shown))
        << "usable again";
    EXPECT_EQ(inner.log.take(), together({opening(), kCommand, closing()}));
  }
  EXPECT_EQ(traced(), Traces(6, u"QVRScr.EjecutarComandos: -2147217900 told by another component"));
}

// A command that cannot even be made or filled is a failed command: reported, and the user is asked.
TEST_F(RunFailureTest, EachFailingCallOfACommandIsAFailedCommand) {
  const Lines command = command_lines("A");
  const char* const kOperations[] = {"new Command",         "Command.ActiveConnection", "Command.CommandType",
                                     "Command.CommandText", "Command.CommandTimeout",   "Command.Execute"};
  for (std::size_t i = 0; i < std::size(kOperations); ++i) {
    SCOPED_TRACE(kOperations[i]);
    TestThread inner;
    LoggingEvents inner_events(inner.log);
    QVRScr inner_runner(inner_events);
    inner.ado.fail(kOperations[i], 1, refusal());
    inner.boxes.answer(BoxAnswer::No);
    Text shown;
    EXPECT_FALSE(inner_runner.EjecutarComandos(id, Engine::SqlServer, u"A\r\nGO\r\n", u"Provider=P;", shown));
    Lines made(command.begin(), command.begin() + static_cast<std::ptrdiff_t>(i) + 1);
    if (i > 0) made.push_back("Command released");
    EXPECT_EQ(inner.log.take(), together({opening(),
                                          {"Progreso: Comandos ejecutados: 0/1"},
                                          made,
                                          report_line("Ejecutar1Comando: A"),
                                          {"Box Yes/No: \u00bfDesea que se ejecuten los restantes comandos?"},
                                          rolled_back()}));
  }
  EXPECT_EQ(traced(), Traces(6, u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"));
}

TEST_F(RunFailureTest, AFailingRollbackStillCloses) {
  thread.ado.fail("Command.Execute", 1, refusal());
  thread.ado.fail("Connection.RollbackTrans", 1, refusal());
  thread.boxes.answer(BoxAnswer::No);
  EXPECT_FALSE(run(u"A\r\nGO\r\n"));
  const Lines lines = taken();
  const Lines expected_end = together({{"Connection.RollbackTrans"}, report_line("EjecutarComandos"), kClosed});
  ASSERT_GE(lines.size(), expected_end.size());
  EXPECT_EQ(Lines(lines.end() - static_cast<std::ptrdiff_t>(expected_end.size()), lines.end()), expected_end);
  EXPECT_EQ(traced(), (Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component",
                              u"QVRScr.EjecutarComandos: -2147217900 told by another component"}));
}

TEST_F(RunFailureTest, EverythingFailingAtTheEndIsReportedOnce) {
  thread.ado.fail("Connection.CommitTrans", 1, refusal());
  thread.ado.fail("Connection.RollbackTrans", 1, {1, u"rollback", u""});
  thread.ado.fail("Connection.Close", 1, {2, u"close", u""});
  EXPECT_FALSE(run(u""));
  EXPECT_EQ(taken(), together({opening(),
                               {"Connection.CommitTrans"},
                               kReport,
                               {"Connection.RollbackTrans", "Connection.Close"},
                               kReleased}));
  EXPECT_EQ(traced(), (Traces{u"QVRScr.EjecutarComandos: -2147217900 told by another component",
                              u"QVRScr.EjecutarComandos: 1 told by another component",
                              u"QVRScr.EjecutarComandos: 2 told by another component"}));
}

TEST_F(RunFailureTest, ACloseThatFailsAgainAndAgainEndsTheRun) {
  thread.ado.fail("Connection.Close", 1, refusal());
  thread.ado.fail("Connection.Close", 2, refusal());
  EXPECT_FALSE(run(u""));
  EXPECT_EQ(taken(),
            together(
                {opening(), {"Connection.CommitTrans", "Connection.Close"}, kReport, {"Connection.Close"}, kReleased}));
  EXPECT_EQ(traced(), Traces(2, u"QVRScr.EjecutarComandos: -2147217900 told by another component"));
}

TEST_F(RunFailureTest, TheReportHasTheConnectionsErrors) {
  thread.ado.fail("Connection.Open", 1, refusal(),
                  {{-1, u"first", u"P", u"08001", 17}, {-2147217900, u"second", u"P", u"", 0}});
  EXPECT_FALSE(run(u"A\r\nGO\r\n"));
  ASSERT_EQ(thread.report.notices.size(), 1u);
  const services::ErrorNotice& notice = thread.report.notices[0];
  EXPECT_EQ(notice.failure.number, -2147217900);
  EXPECT_EQ(notice.failure.source, u"Provider");
  EXPECT_EQ(notice.motor, Engine::SqlServer);
  EXPECT_EQ(notice.label, u"EjecutarComandos");
  EXPECT_EQ(notice.captions.object, u"Objeto");
  ASSERT_EQ(notice.errors.size(), 2u);
  EXPECT_EQ(notice.errors[0].description, u"first");
  EXPECT_EQ(notice.errors[0].native_error, 17);
  EXPECT_EQ(notice.errors[1].description, u"second");
  EXPECT_EQ(traced(), Traces{u"QVRScr.EjecutarComandos: -2147217900 told by another component"});
}

// The connection keeps them until its provider fails again.
TEST_F(RunFailureTest, TheReportHasNoErrorsOfFormerCalls) {
  thread.ado.fail("Connection.Open", 1, {3709, u"The connection is closed", u"ADODB.Connection"},
                  {{-2147217873, u"of a call before", u"P", u"23505", 2627}});
  EXPECT_FALSE(run(u"A\r\nGO\r\n"));
  ASSERT_EQ(thread.report.notices.size(), 1u);
  EXPECT_EQ(thread.report.notices[0].failure.number, 3709);
  EXPECT_TRUE(thread.report.notices[0].errors.empty());
  EXPECT_EQ(traced(), Traces{u"QVRScr.EjecutarComandos: 3709 told by another component"});
}

TEST_F(RunFailureTest, AConnectionThatCannotTellItsErrorsIsReportedAllTheSame) {
  thread.ado.fail("Connection.Open", 1, refusal(), {{-1, u"lost", u"", u"", 0}});
  thread.ado.fail("Connection.Errors", 1, refusal());
  EXPECT_FALSE(run(u""));
  EXPECT_EQ(taken(), together({opened(3), kReport, kReleased}));
  EXPECT_EQ(traced(), (Traces{u"QVRScr.EjecutarComandos: -2147217900 told by another component",
                              u"report_failure: -2147217900 told by another component"}));
}

TEST_F(RunFailureTest, AReportThatFailsChangesNothing) {
  thread.report.fails = true;
  thread.ado.fail("Connection.Open", 1, refusal());
  EXPECT_FALSE(run(u""));
  EXPECT_EQ(taken(), together({opened(3), kReport, kReleased}));
  thread.ado.fail("Command.Execute", 1, refusal());
  thread.boxes.answer(BoxAnswer::Yes);
  EXPECT_TRUE(run(u"A\r\nGO\r\n"));
  EXPECT_EQ(traced(), (Traces{u"QVRScr.EjecutarComandos: -2147217900 told by another component",
                              u"QVRScr.EjecutarComandos: 429 ActiveX component can't create object",
                              u"QVRScr.Ejecutar1Comando: -2147217900 told by another component",
                              u"QVRScr.Ejecutar1Comando: 429 ActiveX component can't create object"}));
}

TEST_F(RunFailureTest, AQuestionThatCannotBeAskedEndsTheRun) {
  thread.ado.fail("Command.Execute", 1, refusal());
  thread.boxes.fail_next();
  EXPECT_FALSE(run(u"A\r\nGO\r\nB\r\nGO\r\n"));
  EXPECT_EQ(taken(), together({opening(),
                               {"Progreso: Comandos ejecutados: 0/2"},
                               command_lines("A"),
                               report_line("Ejecutar1Comando: A"),
                               {"Box Yes/No: \u00bfDesea que se ejecuten los restantes comandos?",
                                "Report: 5|no box today|QVRlib21|2|EjecutarComandos"},
                               rolled_back()}));
  EXPECT_EQ(traced(), (Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component",
                              u"QVRScr.EjecutarComandos: 5 no box today"}));
}

TEST_F(RunFailureTest, AHostThatFailsEndsTheRun) {
  thread.system.on_events = [] { throw std::bad_alloc(); };
  EXPECT_FALSE(run(u"A\r\nGO\r\n"));
  EXPECT_EQ(taken(),
            together({opening(), kCommand, {"Report: 7|Out of memory|QVRlib21|2|EjecutarComandos"}, rolled_back()}));
  EXPECT_EQ(traced(), Traces{u"QVRScr.EjecutarComandos: 7 Out of memory"});
}

}  // namespace
}  // namespace qvr::tests
