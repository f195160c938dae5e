// The steps that run commands through QVRScr and QVRcfp.
#include "qvrscript/doctor/try/trial.h"
#include "session/value_convert.h"

namespace qvr::script_tool {
namespace {

constexpr TextView kProgress = u"qvrscript: ";

// What a run answered and told.
struct HeardRun {
  Value answer;
  std::vector<Text> progress;
  std::vector<Value> ends;
};

HeardRun run(Trial& trial, std::initializer_list<TextView> commands) {
  HeardRun heard;
  Text text;
  for (const TextView command : commands) text += join({command, u"\r\nGO\r\n"});
  const Tried runner = Tried::of_library(trial.machine, u"QVRScr");
  const auto listening = trial.machine.listen(runner.value(), [&](std::int32_t event, const Value& argument) {
    constexpr std::int32_t kProgreso = 1, kTerminado = 2;
    if (event == kProgreso) heard.progress.push_back(to_text(argument));
    if (event == kTerminado) heard.ends.push_back(argument);
  });
  heard.answer = runner.call(u"EjecutarComandos", {Text(u"qvrscript doctor"), number_of(trial.engine), text,
                                                   trial.connection_string, Text(kProgress)});
  return heard;
}

Text insert(const Trial& trial, TextView number) {
  return join({u"INSERT INTO ", trial.table, u" VALUES (", number, u")"});
}

void expect_rows(const Trial& trial, TextView when, std::int32_t expected) {
  expect_text(join({u"Rows ", when}), decimal(expected), decimal(rows_of_table(trial)));
}

// Two commands around one that names a table that is not there.
void run_with_failure(Trial& trial, bool go_on) {
  trial.machine.answer_questions(go_on);
  const Text wrong = join({u"DELETE FROM ", trial.table, u"_missing"});
  const HeardRun heard = run(trial, {insert(trial, u"1"), wrong, insert(trial, u"2")});
  trial.machine.answer_questions(false);
  const TextView when = go_on ? u"when the rest was to run" : u"when all was to be taken back";
  expect_value(join({u"EjecutarComandos ", when}), go_on, heard.answer);
  expect_rows(trial, when, go_on ? 2 : 0);
}

// First a text in the user's language, then one before each of the three commands.
void expect_progress(std::vector<Text> texts) {
  if (!texts.empty()) texts.erase(texts.begin());
  expect_text(u"Progreso behind its first text", join({kProgress, u"0/3, ", kProgress, u"1/3, ", kProgress, u"2/3"}),
              join(texts, u", "));
}

}  // namespace

StepAnswer try_failing_script(Trial& trial) {
  if (trial.connection_string.empty()) return without_database();
  const Boxes boxes = trial.machine.boxes();
  if (boxes == Boxes::Elsewhere) {
    return {Level::Note, u"Not tried: QVRServicios.InformeErrores, or the system, shows boxes that nobody answers here",
            u"Run a script with a mistake in the application itself."};
  }
  run_with_failure(trial, false);
  if (boxes == Boxes::TakenAsNo) {
    return {Level::Note,
            u"A script with a failing command was taken back whole; without a desktop no other answer comes",
            u"To have the other answer tried too, run it in a user's session."};
  }
  run_with_failure(trial, true);
  execute(trial, join({u"DELETE FROM ", trial.table}));
  return {Level::Ok, u"A script with a failing command was taken back whole, and went on without it, as was answered"};
}

StepAnswer try_events(Trial& trial) {
  if (trial.connection_string.empty()) return without_database();
  const HeardRun heard = run(trial, {insert(trial, u"1"), insert(trial, u"2"), insert(trial, u"3")});
  expect_value(u"EjecutarComandos", true, heard.answer);
  expect_rows(trial, u"after the script", 3);
  expect_progress(heard.progress);
  expect_text(u"How often Terminado came", u"1", decimal(static_cast<std::int64_t>(heard.ends.size())));
  expect_value(u"Terminado", true, heard.ends.front());
  return {Level::Ok, join({u"A script ran; Progreso came ", decimal(static_cast<std::int64_t>(heard.progress.size())),
                           u" times in order, Terminado once with True"})};
}

StepAnswer try_procedure(Trial& trial) {
  if (trial.connection_string.empty()) return without_database();
  if (trial.engine != Engine::SqlServer) {
    return {Level::Note, u"Not tried: this engine has no procedures that EjecutarProcSQL7 calls",
            u"Give a database of SQL Server, with --engine sqlserver."};
  }
  const Text name = join({u"qvrscript_try_p_", trial.mark});
  execute(trial, join({u"CREATE PROCEDURE ", name, u" @uno INT, @dos INT OUTPUT AS SET @dos = @uno + 1; RETURN 0"}));
  trial.undoing.emplace_back([&trial, name] { execute(trial, join({u"DROP PROCEDURE ", name})); });
  const Tried parameters = Tried::of_library(trial.machine, u"QVRcfp");
  expect_value(u"QVRcfp.Asignar", true,
               parameters.call(u"Asignar", {Text(u"qvrscript doctor"), number_of(Engine::SqlServer), Text(), Text(),
                                            Text(), Text(), Text(), Text(), Text(), Text()}));
  const Tried connection = Tried::of_ado(trial.machine, u"ADODB.Connection");
  connection.call(u"Open", {trial.connection_string});
  Array values;
  values.items = {std::int32_t{7}, std::int32_t{0}};
  const Value answer = trial.machine.changed_by(parameters.value(), u"EjecutarProcSQL7", {connection.value(), name},
                                                values);
  connection.call(u"Close");
  expect_value(u"QVRcfp.EjecutarProcSQL7", true, answer);
  expect_value(u"The procedure's output", std::int32_t{8}, values.items.at(1));
  return {Level::Ok, u"A procedure was called and its output came back"};
}

}  // namespace qvr::script_tool
