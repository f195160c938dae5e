// Events of loading, and re-entrance from them.
#include "script/loading_fixture.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

constexpr TextView kFirst = u"GestionSQL1.cfc", kSecond = u"GestionSQL2.cfc", kUpdate = u"Gestion10024a10025SQL.cfc";
const Lines kEncryption = {"Progreso: Procesando 1/5", "Progreso: Procesando 2/5", "Progreso: Procesando 3/5",
                           "Progreso: Procesando 4/5", "Progreso: Procesando 5/5"};
const Lines kAccounts = {"Progreso: Procesando 1/6", "Progreso: Procesando 3/6", "Progreso: Procesando 4/6",
                         "Progreso: Procesando 5/6", "Progreso: Procesando 6/6"};
const Lines kOracleAccounts = {"Progreso: Procesando 1/6", "Progreso: Procesando 2/6", "Progreso: Procesando 3/6",
                               "Progreso: Procesando 4/6", "Progreso: Procesando 5/6", "Progreso: Procesando 6/6"};
const Lines kSucceeded = {"Terminado: True"}, kFailed = {"Terminado: False"};

class LoadingProgressTest : public LoadingTest {
 protected:
  LoadingProgressTest() { put_names({kFirst, kSecond, kUpdate}); }

  Lines whole_definition() const { return together({file_lines(kFirst), file_lines(kSecond), kAccounts, kSucceeded}); }
  Lines whole_update() const { return together({file_lines(kUpdate), kAccounts, kSucceeded}); }
  const Text definition_text = joined({kFirst, kSecond});
};

struct Steps {
  const char* name;
  Engine motor;
  bool encrypt;
  TextView tag;
  Lines steps;
};

const Steps kSteps[] = {
    {"Jet", Engine::Jet, false, u"JET", kAccounts},
    {"Jet, encrypted", Engine::Jet, true, u"JET", kAccounts},
    {"SQL Server", Engine::SqlServer, false, u"SQL", kAccounts},
    {"SQL Server, encrypted", Engine::SqlServer, true, u"SQL", together({kEncryption, kAccounts})},
    {"Oracle", Engine::Oracle, false, u"ORA", kOracleAccounts},
    {"Oracle, encrypted", Engine::Oracle, true, u"ORA", kOracleAccounts},
    {"none", Engine::None, false, u"", kAccounts},
    {"none, encrypted", Engine::None, true, u"", kAccounts},
    {"unknown, encrypted", Engine{5}, true, u"", kAccounts},
};

using LoadingSteps = Rows<LoadingTest, Steps>;

TEST_P(LoadingSteps, AreToldInOrder) {
  const Steps& row = GetParam();
  motor = row.motor, encrypt = row.encrypt;
  const Text one = join({u"Gestion", row.tag, u"1.cfc"}), two = join({u"Gestion", row.tag, u"2.cfc"});
  const Text next = join({u"Gestion10024a10025", row.tag, u".cfc"}),
             last = join({u"Gestion10025a10026", row.tag, u".cfc"});
  put_names({one, two, next, last});
  EXPECT_EQ(definition(), joined({one, two}));
  EXPECT_EQ(taken(), together({file_lines(one), file_lines(two), row.steps, kSucceeded}));
  EXPECT_EQ(update(10024), joined({next, last}));
  EXPECT_EQ(taken(), together({file_lines(next), file_lines(last), row.steps, kSucceeded}));
  EXPECT_EQ(update(10025), joined({last}));
  EXPECT_EQ(taken(), together({file_lines(last), row.steps, kSucceeded})) << "a file that is skipped is not told";
}

INSTANTIATE_TEST_SUITE_P(, LoadingSteps, testing::ValuesIn(kSteps), row_name);

TEST_F(LoadingProgressTest, TheTextsAreTheSameInEveryLanguage) {
  for (const TextView language : {u"0", u"1", u"2", u"3"}) {
    SCOPED_TRACE(to_utf8(language));
    thread.load_language(language);
    EXPECT_EQ(definition(), definition_text);
    EXPECT_EQ(taken(), whole_definition());
  }
}

TEST_F(LoadingProgressTest, ADefinitionWithoutFilesGoesThroughItsStepsAndFails) {
  EXPECT_EQ(definition(u"Otra"), u"");
  EXPECT_EQ(taken(), together({kAccounts, kFailed}));
  EXPECT_EQ(traced(), Traces{u"QVRScr.CargarDefinicion: 75 No script file has such a name"});
}

TEST_F(LoadingProgressTest, AnUpdateWithoutFilesTellsItsEndOnly) {
  EXPECT_EQ(update(10024, u"Otra"), u"");
  EXPECT_EQ(taken(), kFailed);
  EXPECT_EQ(update(10023), u"") << "none from exactly this version";
  EXPECT_EQ(taken(), kFailed);
  put_names({u"Gestion1002a10025SQL.cfc"});
  EXPECT_EQ(update(1002), u"") << "one from this version that is no file of an update";
  EXPECT_EQ(taken(), kFailed);
  EXPECT_EQ(traced(), (Traces{u"QVRScr.CargarActualizacion: 75 No update script begins with this version",
                              u"QVRScr.CargarActualizacion: 75 No update script begins with this version",
                              u"QVRScr.CargarActualizacion: 75 No script file has such a name"}));
}

// A reader that does what the test tells it for the second file.
class SecondFileReader final : public services::ScriptReader {
 public:
  explicit SecondFileReader(std::function<std::optional<Text>()> second) : second_(std::move(second)) {}
  std::optional<Text> Leer(TextView, TextView Ruta) override {
    return Ruta.ends_with(u"2.cfc") ? second_() : std::optional<Text>(u"text");
  }

 private:
  std::function<std::optional<Text>()> second_;
};

TEST_F(LoadingProgressTest, WhateverTheReaderFailsInEndsTheLoading) {
  const std::pair<const char*, std::function<std::optional<Text>()>> kFailures[] = {
      {"nothing", [] { return std::nullopt; }},
      {"no text", [] { return Text(); }},
      {"a failure of a file", []() -> std::optional<Text> { throw RuntimeFailure(failure_number::kFile); }},
      {"out of memory", []() -> std::optional<Text> { throw std::bad_alloc(); }},
      {"something unknown", []() -> std::optional<Text> { throw 7; }},
  };
  for (const auto& [name, failure] : kFailures) {
    SCOPED_TRACE(name);
    thread.make_script_reader = [&failed = failure] { return std::make_unique<SecondFileReader>(failed); };
    thread.renew();
    EXPECT_EQ(definition(), u"");
    EXPECT_EQ(taken(), (Lines{"Progreso: Procesando GestionSQL1.cfc", "Progreso: Procesando GestionSQL2.cfc",
                              "Terminado: False"}));
  }
  EXPECT_EQ(traced(),
            (Traces{u"QVRScr.CargarDefinicion: 75 Path/File access error",
                    u"QVRScr.CargarDefinicion: 75 Path/File access error",
                    u"QVRScr.CargarDefinicion: 75 Path/File access error", u"QVRScr.CargarDefinicion: 7 Out of memory",
                    u"QVRScr.CargarDefinicion: 5 Unforeseen exception"}));
}

TEST_F(LoadingProgressTest, AReaderThatCannotBeMadeIsTriedAgainTheNextTime) {
  int tries = 0;
  const auto make = thread.make_script_reader;
  thread.make_script_reader = [&]() -> std::unique_ptr<services::ScriptReader> {
    if (++tries == 1) throw RuntimeFailure(failure_number::kCannotCreateObject);
    return make();
  };
  EXPECT_EQ(definition(), u"");
  EXPECT_EQ(taken(), (Lines{"Progreso: Procesando GestionSQL1.cfc", "Terminado: False"}));
  EXPECT_EQ(definition(), definition_text);
  EXPECT_EQ(update(10024), joined({kUpdate}));
  EXPECT_EQ(tries, 2) << "one reader serves the whole thread";
  EXPECT_EQ(traced(), Traces{u"QVRScr.CargarDefinicion: 429 ActiveX component can't create object"});
}

TEST_F(LoadingProgressTest, AClockOutsideTheCalendarFailsForOracleOnly) {
  thread.system.moment = Date{1e10};
  EXPECT_EQ(definition(), definition_text);
  taken();
  motor = Engine::Oracle;
  put_names({u"GestionORA1.cfc"});
  EXPECT_EQ(definition(), u"");
  EXPECT_EQ(taken(), together({file_lines(u"GestionORA1.cfc"), kFailed}));
  EXPECT_EQ(traced(), Traces{u"QVRScr.CargarDefinicion: 6 Overflow"});
}

// Everything of the same object that begins a run: refused, without events and without a look at its arguments.
TEST_F(LoadingProgressTest, NoOtherRunBeginsFromInside) {
  int refused = 0, entered = 0;
  const auto intrude = [&] {
    if (++entered > 50) return;  // a run that is let in must not go on for ever
    Text other_id = u"EvitarTransaccionOther", shown;
    const bool ran = runner.EjecutarComandos(other_id, Engine::Jet, u"B\r\nGO\r\n", u"other", shown);
    const bool loaded = !definition().empty() || !update(10024).empty();
    EXPECT_EQ(traced(), (Traces{u"QVRScr.EjecutarComandos: 5 A run of this object is under way",
                                u"QVRScr.CargarDefinicion: 5 A run of this object is under way",
                                u"QVRScr.CargarActualizacion: 5 A run of this object is under way"}));
    if (!ran && !loaded && other_id == u"EvitarTransaccionOther" && shown.empty()) ++refused;
  };
  events.on_progress = intrude;
  EXPECT_EQ(definition(), definition_text);
  EXPECT_EQ(taken(), whole_definition());
  EXPECT_EQ(refused, 7) << "two files, five steps";
  EXPECT_EQ(update(10024), joined({kUpdate}));
  EXPECT_EQ(taken(), whole_update());
  EXPECT_EQ(refused, 13);
}

TEST_F(LoadingProgressTest, TheNextRunOrLoadBeginsInsideTerminado) {
  Text updated;
  bool ran = false;
  int ended = 0;
  events.on_end = [&] {
    ++ended;
    if (ended == 1) updated = update(10024);
    if (ended == 2) ran = run(u"");
  };
  EXPECT_EQ(definition(), definition_text);
  EXPECT_EQ(updated, joined({kUpdate}));
  EXPECT_TRUE(ran);
  EXPECT_EQ(ended, 3);
  EXPECT_EQ(taken(), together({whole_definition(), whole_update(), opening(), closing()}));
}

TEST_F(LoadingProgressTest, NoLoadingBeginsInsideARunOfCommands) {
  int refused = 0;
  const auto intrude = [&] { refused += definition().empty() && update(10024).empty() ? 1 : 0; };
  events.on_progress = thread.system.on_events = intrude;
  EXPECT_TRUE(run(u"A\r\nGO\r\n"));
  EXPECT_EQ(refused, 3);
  EXPECT_EQ(taken(),
            together(
                {opening(), {"Progreso: Comandos ejecutados: 0/1"}, command_lines("A"), {"Host events"}, closing()}));
  EXPECT_EQ(traced(), (Traces{u"QVRScr.CargarDefinicion: 5 A run of this object is under way",
                              u"QVRScr.CargarActualizacion: 5 A run of this object is under way",
                              u"QVRScr.CargarDefinicion: 5 A run of this object is under way",
                              u"QVRScr.CargarActualizacion: 5 A run of this object is under way",
                              u"QVRScr.CargarDefinicion: 5 A run of this object is under way",
                              u"QVRScr.CargarActualizacion: 5 A run of this object is under way"}));
}

TEST_F(LoadingProgressTest, AnotherObjectMayLoadFromInside) {
  LoggingEvents other_events(thread.log);
  QVRScr other(other_events);
  Text inner;
  events.on_end = [&] {
    inner = other.CargarActualizacion(id, Engine::SqlServer, folder, u"Gestion", 10024, accounts, false);
  };
  EXPECT_EQ(definition(), definition_text);
  EXPECT_EQ(inner, joined({kUpdate}));
  EXPECT_EQ(taken(), together({whole_definition(), whole_update()}));
}

TEST_F(LoadingProgressTest, EachEndLeavesTheObjectUsable) {
  EXPECT_EQ(definition(u"Otra"), u"");
  thread.files.search_fails = true;
  EXPECT_EQ(definition(), u"");
  EXPECT_EQ(update(10024), u"");
  thread.files.search_fails = false;
  taken();
  EXPECT_EQ(definition(), definition_text);
  EXPECT_EQ(taken(), whole_definition());
  EXPECT_EQ(update(10024), joined({kUpdate}));
  EXPECT_EQ(taken(), whole_update());
  EXPECT_EQ(traced(), (Traces{u"QVRScr.CargarDefinicion: 75 No script file has such a name",
                              u"QVRScr.CargarDefinicion: 75 Path/File access error",
                              u"Global.ExisteArchivo: 75 Path/File access error",
                              u"QVRScr.CargarActualizacion: 75 No update script begins with this version"}));
}

TEST_F(LoadingProgressTest, WhatIsLoadedCanBeRun) {
  put(kFirst, "create database [NombreBD]\nGO\n");
  put(kSecond, "grant [UsuarioQVRCli]\r\ngo\r\n");
  const Text commands = definition();
  EXPECT_EQ(commands, u"create database Ventas\r\nGO\r\n\r\ngrant cli\r\ngo\r\n\r\n");
  taken();
  EXPECT_TRUE(run(commands));
  EXPECT_EQ(taken(), together({opening(),
                               {"Progreso: Comandos ejecutados: 0/2"},
                               command_lines("create database Ventas"),
                               {"Host events", "Progreso: Comandos ejecutados: 1/2"},
                               command_lines("grant cli"),
                               {"Host events"},
                               closing()}));
}

}  // namespace
}  // namespace qvr::tests
