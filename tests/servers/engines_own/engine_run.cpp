#include "servers/engines_own/engine_run.h"

#include <algorithm>

#include "support/traced.h"

namespace qvr::tests {

void EngineRun::SetUp() {
  ServerRun::SetUp();
  Session(server.odbc_string()).run(u"create table T(N int primary key, X varchar(20))");
}

bool EngineRun::runs(std::initializer_list<TextView> commands, TextView options, Text id) {
  Text text;
  for (const TextView each : commands) text.append(each).append(u"\r\nGO\r\n");
  return runs_text(text, options, std::move(id));
}

bool EngineRun::runs_text(TextView text, TextView options, Text id) {
  Text shown = u"Hecho: ";
  return runner.EjecutarComandos(
      id, Engine::SqlServer, text,
      join({u"Provider=MSDASQL;Extended Properties=\"", server.odbc_string(), u";", options, u"\""}), shown);
}

void EngineRun::answer(BoxAnswer answer) {
  thread.boxes.always = answer;
  expect_any_traces();
}

std::size_t EngineRun::failures() const { return thread.boxes.shown.size() / 2; }

bool EngineRun::was_told(TextView text) const {
  return std::ranges::any_of(thread.boxes.shown, [&](const Text& each) { return each.find(text) != Text::npos; });
}

Text EngineRun::numbers() const {
  return ask(by_server<TextView>(u"select coalesce(group_concat(N order by N), '') from T",
                                 u"select coalesce(string_agg(N::text, ',' order by N), '') from T"));
}

bool EngineRun::has_table(TextView name) const {
  return ask(join({u"select count(*) from information_schema.tables where table_schema = '",
                   by_server<TextView>(u"gestion", u"public"), u"' and table_name = '", name, u"'"})) != u"0";
}

}  // namespace qvr::tests
