#include "qvrscript/run/loading.h"

#include <algorithm>

#include "qvrscript/check/silence.h"
#include "qvrscript/engines.h"
#include "qvrscript/paths.h"
#include "qvrscript/run/run_thread.h"
#include "qvrscript/tool_failure.h"
#include "script/script_files.h"

namespace qvr::script_tool {
namespace {

constexpr std::size_t kDigits = 5;

// The two versions in the name of an update.
struct Versions {
  TextView from, to;
};

Versions versions_in(const LoadRequest& load, TextView name) {
  return {name.substr(load.name.size(), kDigits), name.substr(load.name.size() + kDigits + 1, kDigits)};
}

[[noreturn]] void nothing_found(const LoadRequest& load) {
  const TextView pattern = load.update ? u"?????a?????" : u"";
  const TextView last = load.update ? u"" : u"?";
  throw ToolFailure(
      {u"no script ", load.name, pattern, engine_tag(load.options.engine), last, u".cfc in ", folder_of(load)});
}

// Systems that tell names in two cases apart can have both; the library takes them for two scripts.
void require_different(const std::vector<Text>& names) {
  const auto twice = std::ranges::adjacent_find(names,
                                                [](const Text& a, const Text& b) { return equal_no_case(a, b); });
  if (twice != names.end()) {
    throw ToolFailure({*twice, u" and ", *std::next(twice), u" are one name to the library: both would run"});
  }
}

void check_chain(const LoadRequest& load, ScriptNames& names) {
  for (const Text& name : names.pending) {
    const Versions own = versions_in(load, name);
    if (!all_digits(own.from) || !all_digits(own.to)) throw ToolFailure({name, u": its versions are not five digits"});
    if (own.to <= own.from) throw ToolFailure({name, u": this updates from ", own.from, u" to ", own.to});
  }
  for (std::size_t i = 1; i < names.pending.size(); ++i) {
    const Text &before = names.pending[i - 1], &next = names.pending[i];
    const TextView reached = versions_in(load, before).to, from = versions_in(load, next).from;
    if (from < reached) {
      throw ToolFailure({next, u" would run after ", before, u", which has reached ", reached,
                         u" already: versions overlap, and nothing was run"});
    }
    if (from > reached) {
      names.gaps.push_back(join({u"nothing updates from ", reached, u" to ", from, u": ", next, u" follows ", before}));
    }
  }
}

ScriptNames update_names(const LoadRequest& load, std::int32_t version) {
  ScriptNames names;
  const Engine engine = load.options.engine;
  std::vector<Text> all = update_files(folder_of(load), load.name, 0, engine);
  if (all.empty()) nothing_found(load);
  const Text own = decimal(version);
  for (const Text& name : all) {
    if (versions_in(load, name).to == own) names.up_to_date = true;
  }
  if (has_update_from(folder_of(load), load.name, version, engine)) {
    names.up_to_date = false;
    names.pending = update_files(folder_of(load), load.name, version, engine);
  } else if (!names.up_to_date) {
    throw ToolFailure({u"no update of ", load.name, u" for ", engine_title(engine), u" begins with version ", own,
                       u", and none ends there"});
  }
  std::ranges::set_difference(all, names.pending, std::back_inserter(names.done), less_no_case);
  require_different(names.pending);
  check_chain(load, names);
  return names;
}

}  // namespace

TextView folder_of(const LoadRequest& load) { return without_last_separator(load.folder); }

ScriptNames script_names(const LoadRequest& load, std::int32_t version) {
  if (!names_in(folder_of(load))) throw ToolFailure({folder_of(load), u" is no folder that can be read"});
  if (load.update) return update_names(load, version);
  ScriptNames names;
  names.pending = definition_files(folder_of(load), load.name, load.options.engine);
  if (names.pending.empty()) nothing_found(load);
  require_different(names.pending);
  return names;
}

Assembly loaded(const LoadRequest& load, std::int32_t version, const std::vector<Text>& names,
                const ScriptAccounts& accounts, TextView identification) {
  std::vector<ReadScript> scripts;
  const auto shown_path = [&](std::size_t script) { return join({folder_of(load), u"/", names[script]}); };
  Text text;
  {
    RunHooks hooks;
    hooks.read = [&](TextView, const std::optional<Text>& read) {
      if (read && !read->empty() && scripts.size() < names.size()) {
        scripts.push_back({shown_path(scripts.size()), *read});
      }
    };
    const RunThread thread(std::move(hooks));
    Silence silence;
    QVRScr runner(silence);
    const Engine engine = load.options.engine;
    text = load.update
               ? runner.CargarActualizacion(identification, engine, folder_of(load), load.name, version, accounts,
                                            load.encrypt)
               : runner.CargarDefinicion(identification, engine, folder_of(load), load.name, accounts, load.encrypt);
  }
  if (scripts.size() < names.size()) {
    throw ToolFailure({shown_path(scripts.size()), u" is empty or cannot be read: nothing is run"});
  }
  if (text.empty()) throw ToolFailure({u"the scripts of ", load.name, u" could not be put together"});
  return {std::move(text), load.options.engine, std::move(scripts)};
}

}  // namespace qvr::script_tool
