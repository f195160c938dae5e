// Re-entrance from the events of a run.
#include "script/script_fixture.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

class RunEventsTest : public ScriptTest {
 protected:
  bool nested_run() {
    if (++attempts > 5) return true;  // a run that is let in must not go on for ever
    Text nested_id = u"EvitarTransaccionOther", nested_text;
    const bool result = runner.EjecutarComandos(nested_id, Engine::Jet, u"B\r\nGO\r\n", u"other", nested_text);
    EXPECT_EQ(nested_id, u"EvitarTransaccionOther") << "a refused run leaves its arguments alone";
    EXPECT_EQ(nested_text, u"");
    return result;
  }

  int attempts = 0;
  const Lines whole_run = together(
      {opening(), {"Progreso: Comandos ejecutados: 0/1"}, command_lines("A"), {"Host events"}, closing()});
};

TEST_F(RunEventsTest, ARunFromProgresoIsRefusedWithoutEvents) {
  int refused = 0;
  events.on_progress = [&] { refused += nested_run() ? 0 : 1; };
  EXPECT_TRUE(run(u"A\r\nGO\r\n"));
  EXPECT_EQ(refused, 2);
  EXPECT_EQ(taken(), whole_run);
  EXPECT_EQ(traced(), Traces(2, u"QVRScr.EjecutarComandos: 5 A run of this object is under way"));
}

TEST_F(RunEventsTest, TheNextRunMayBeginInsideTerminado) {
  bool inner_result = false;
  events.on_end = [&] {
    if (++attempts == 1) inner_result = run(u"A\r\nGO\r\n");
  };
  EXPECT_TRUE(run(u"A\r\nGO\r\n"));
  EXPECT_TRUE(inner_result);
  EXPECT_EQ(attempts, 2);
  EXPECT_EQ(taken(), together({whole_run, whole_run}));
}

TEST_F(RunEventsTest, ARunFromProgresoOfTheNextRunIsRefused) {
  int ended = 0;
  events.on_end = [&] {
    if (++ended > 1) return;
    events.on_progress = [&] { EXPECT_FALSE(nested_run()); };
    EXPECT_TRUE(run(u"A\r\nGO\r\n"));
  };
  EXPECT_TRUE(run(u"A\r\nGO\r\n"));
  EXPECT_EQ(attempts, 2);
  EXPECT_EQ(taken(), together({whole_run, whole_run}));
  EXPECT_EQ(traced(), Traces(2, u"QVRScr.EjecutarComandos: 5 A run of this object is under way"));
}

TEST_F(RunEventsTest, AChainOfRunsHasAnEnd) {
  int begun = 1, refused = 0;
  events.on_end = [&] {
    ASSERT_LT(begun, 100);
    ++begun;
    if (!run(u"")) ++refused, --begun;
  };
  EXPECT_TRUE(run(u""));
  EXPECT_EQ(begun, 32);
  EXPECT_EQ(refused, 1);
  events.on_end = nullptr;
  taken();
  EXPECT_TRUE(run(u"A\r\nGO\r\n"));
  EXPECT_EQ(taken(), whole_run) << "the next one that the host starts runs";
  EXPECT_EQ(traced(), Traces{u"QVRScr.EjecutarComandos: 5 A run of this object is under way"});
}

TEST_F(RunEventsTest, ARunFromTheHostsMessagesIsRefusedToo) {
  int refused = 0;
  thread.system.on_events = [&] { refused += nested_run() ? 0 : 1; };
  EXPECT_TRUE(run(u"A\r\nGO\r\n"));
  EXPECT_EQ(refused, 1);
  EXPECT_EQ(taken(), whole_run);
  EXPECT_EQ(traced(), Traces{u"QVRScr.EjecutarComandos: 5 A run of this object is under way"});
}

TEST_F(RunEventsTest, ARunThatCannotBeginIsToldAsEnded) {
  runner.end_unbegun();
  EXPECT_EQ(taken(), Lines{"Terminado: False"});
  events.on_progress = [&] { runner.end_unbegun(); };
  EXPECT_TRUE(run(u"A\r\nGO\r\n"));
  EXPECT_EQ(taken(), whole_run) << "during a run it is not told";
}

TEST_F(RunEventsTest, AnotherRunFollowsWhenTheFirstHasEnded) {
  EXPECT_TRUE(run(u"A\r\nGO\r\n"));
  EXPECT_EQ(taken(), whole_run);
  EXPECT_TRUE(run(u"A\r\nGO\r\n"));
  EXPECT_EQ(taken(), whole_run);
}

TEST_F(RunEventsTest, AnotherObjectMayRunFromInside) {
  LoggingEvents other_events(thread.log);
  QVRScr other(other_events);
  bool inner_result = false;
  events.on_end = [&] {
    Text other_id = u"x", other_text;
    inner_result = other.EjecutarComandos(other_id, Engine::Jet, u"", u"Provider=P;", other_text);
  };
  EXPECT_TRUE(run(u"A\r\nGO\r\n"));
  EXPECT_TRUE(inner_result);
  EXPECT_EQ(taken(), together({whole_run, opening(), closing()}));
}

TEST_F(RunEventsTest, OneCommandMayRunFromInside) {
  const auto connection = thread.ado.new_connection();
  taken();
  bool inner_result = false;
  thread.system.on_events = [&] { inner_result = runner.Ejecutar1Comando(connection.get(), u"X", Engine::SqlServer); };
  EXPECT_TRUE(run(u"A\r\nGO\r\n"));
  EXPECT_TRUE(inner_result);
  EXPECT_EQ(taken(), together({opening(),
                               {"Progreso: Comandos ejecutados: 0/1"},
                               command_lines("A"),
                               {"Host events"},
                               command_lines("X"),
                               closing()}));
}

TEST_F(RunEventsTest, AChangedLanguageIsKeptForTheNextText) {
  events.on_progress = [] { thread_state().idioma.Idioma(1); };
  thread.ado.fail("Command.Execute", 1, refusal());
  thread.boxes.answer(BoxAnswer::No);
  EXPECT_FALSE(run(u"A\r\nGO\r\n"));
  EXPECT_EQ(thread.boxes.shown.at(0), u"Do you want further commands to execute?");
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
}

}  // namespace
}  // namespace qvr::tests
