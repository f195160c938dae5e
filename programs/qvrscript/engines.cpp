#include "qvrscript/engines.h"

#include "base/wildcards.h"
#include "script/script_files.h"

namespace qvr::script_tool {
namespace {

constexpr ByEngine kWords{u"jet", u"sqlserver", u"oracle"};
constexpr ByEngine kTitles{u"Jet", u"SQL Server", u"Oracle"};

bool has_tag(TextView name, Engine engine) {
  const TextView tag = engine_tag(engine);
  return matches_wildcards(name, join({u"*", tag, u".cfc"})) || matches_wildcards(name, join({u"*", tag, u"?.cfc"}));
}

}  // namespace

std::optional<Engine> engine_named(TextView word) {
  for (Engine engine : kEngines) {
    if (equal_no_case(word, engine_word(engine))) return engine;
  }
  return std::nullopt;
}

TextView engine_word(Engine engine) { return pick(engine, kWords).value_or(TextView()); }

TextView engine_title(Engine engine) { return pick(engine, kTitles).value_or(TextView()); }

Engine engine_of_file(TextView name) {
  for (Engine engine : kEngines) {
    if (has_tag(name, engine)) return engine;
  }
  return Engine::None;
}

}  // namespace qvr::script_tool
