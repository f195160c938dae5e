#include "qvrscript/engines.h"

#include "base/wildcards.h"
#include "script/script_files.h"

namespace qvr::script_tool {
namespace {

constexpr TextView kWords[] = {u"", u"jet", u"sqlserver", u"oracle"};
constexpr TextView kTitles[] = {u"", u"Jet", u"SQL Server", u"Oracle"};

bool has_tag(TextView name, std::int32_t engine) {
  const TextView tag = engine_tag(engine);
  return matches_wildcards(name, join({u"*", tag, u".cfc"})) || matches_wildcards(name, join({u"*", tag, u"?.cfc"}));
}

}  // namespace

std::optional<std::int32_t> engine_named(TextView word) {
  for (const std::int32_t engine : kEngines) {
    if (equal_no_case(word, engine_word(engine))) return engine;
  }
  return std::nullopt;
}

TextView engine_word(std::int32_t engine) { return kWords[engine]; }

TextView engine_title(std::int32_t engine) { return kTitles[engine]; }

std::int32_t engine_of_file(TextView name) {
  for (const std::int32_t engine : kEngines) {
    if (has_tag(name, engine)) return engine;
  }
  return kUnknownEngine;
}

}  // namespace qvr::script_tool
