#include "qvrscript/run/plan.h"

#include <algorithm>

#include "base/utf8.h"
#include "qvrscript/engines.h"
#include "qvrscript/output/json.h"

namespace qvr::script_tool {
namespace {

struct Replacement {
  TextView placeholder;
  Text by;
  bool password = false;
  std::size_t count = 0;
};

// In the text as the scripts have it, as replacing counts them: not overlapping.
std::size_t occurrences(TextView text, TextView what) {
  std::size_t count = 0;
  for (auto at = find_no_case(text, what); at != TextView::npos; at = find_no_case(text, what, at + what.size())) {
    ++count;
  }
  return count;
}

std::size_t occurrences(const Assembly& assembly, TextView what) {
  std::size_t count = 0;
  for (const ReadScript& script : assembly.scripts()) count += occurrences(join({script.text, kLineBreak}), what);
  return count;
}

std::vector<Replacement> replacements(const Plan& plan) {
  const ScriptAccounts& accounts = plan.accounts;
  std::vector<Replacement> all = {
      {u"[NombreBD]", accounts.NombreBaseOTablespace},
      {u"[UsuarioQVRAdm]", accounts.UsuarioQVRAdm},
      {u"[ClaveUsuarioQVRAdm]", {}, true},
      {u"[UsuarioQVRCli]", accounts.UsuarioQVRCli},
      {u"[ClaveUsuarioQVRCli]", {}, true},
  };
  if (plan.load.options.engine == Engine::Oracle) {
    all.insert(all.begin() + 1, {u"[LogFile]", join({accounts.NombreBaseOTablespace, u"hhmm"})});
  }
  for (Replacement& each : all) each.count = occurrences(plan.assembly, each.placeholder);
  return all;
}

bool encrypts(const Plan& plan) { return plan.load.encrypt && plan.load.options.engine == Engine::SqlServer; }

std::size_t encrypted_bodies(const Plan& plan) {
  return encrypts(plan) ? occurrences(plan.assembly, u"\r\nAS\r\n") : 0;
}

std::size_t commands_in(const Plan& plan, std::size_t script) {
  return static_cast<std::size_t>(std::ranges::count(plan.assembly.commands(), script, &AssembledCommand::script));
}

Text number(std::size_t value) { return decimal(static_cast<std::int64_t>(value)); }

Text counted(std::size_t count, TextView thing) { return join({number(count), u" ", thing, count == 1 ? u"" : u"s"}); }

Text kind_of(const Plan& plan) {
  return plan.load.update ? join({u"update from ", decimal(plan.version)}) : Text(u"definition");
}

void write_lines(const Plan& plan, Console& console) {
  console.say({plan.load.name, u", ", kind_of(plan), u", ", engine_title(plan.load.options.engine), u": ",
               counted(plan.names.pending.size(), u"file"), u", ",
               counted(plan.assembly.commands().size(), u"command")});
  for (const Text& name : plan.names.done) console.say({u"  ", name, u": already in the database"});
  for (std::size_t i = 0; i < plan.names.pending.size(); ++i) {
    console.say({u"  ", plan.names.pending[i], u": ", counted(commands_in(plan, i), u"command")});
  }
  for (const Replacement& each : replacements(plan)) {
    if (each.count == 0) continue;
    const Text by = each.password ? Text(u"(password)") : join({u"\"", each.by, u"\""});
    console.say({u"  ", each.placeholder, u" becomes ", by, u": ", counted(each.count, u"time")});
  }
  if (const std::size_t bodies = encrypted_bodies(plan); bodies > 0) {
    console.say({u"  AS becomes WITH ENCRYPTION AS: ", counted(bodies, u"time")});
  }
}

void write_document(const Plan& plan, Console& console) {
  Json files = Json::array(), placeholders = Json::array(), not_run = Json::array();
  for (const Text& name : plan.names.done) files.push_back({{"name", json_of(name)}, {"pending", false}});
  for (std::size_t i = 0; i < plan.names.pending.size(); ++i) {
    files.push_back({{"name", json_of(plan.names.pending[i])}, {"pending", true}, {"commands", commands_in(plan, i)}});
  }
  for (const Replacement& each : replacements(plan)) {
    placeholders.push_back({{"placeholder", json_of(each.placeholder)},
                            {"by", each.password ? Json() : json_of(each.by)},
                            {"password", each.password},
                            {"count", each.count}});
  }
  if (const auto& rest = plan.assembly.not_run()) {
    not_run.push_back(
        {{"file", json_of(rest->place.file)}, {"line", rest->place.line}, {"text", json_of(beginning(rest->text))}});
  }
  write_json({{"command", json_of(plan.request.command)},
              {"plan", true},
              {"name", json_of(plan.load.name)},
              {"engine", json_of(engine_word(plan.load.options.engine))},
              {"from", plan.load.update ? Json(plan.version) : Json()},
              {"files", files},
              {"commands", plan.assembly.commands().size()},
              {"placeholders", placeholders},
              {"encrypted", encrypted_bodies(plan)},
              {"notRun", not_run}},
             console);
}

}  // namespace

void write_plan(const Plan& plan, Console& console) {
  if (plan.request.format == Format::Json) {
    write_document(plan, console);
  } else {
    write_lines(plan, console);
  }
}

}  // namespace qvr::script_tool
