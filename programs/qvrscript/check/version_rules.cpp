#include "qvrscript/check/version_rules.h"

#include <algorithm>
#include <map>

#include "base/wildcards.h"
#include "qvrscript/engines.h"
#include "script/script_files.h"

namespace qvr::script_tool {
namespace {

constexpr std::size_t kDigits = 5;
constexpr TextView kVersions = u"?????a?????";

struct Update {
  Text name, application, from, to;
  Engine engine;
};

// Collects what is found in one name.
class OfName {
 public:
  OfName(TextView folder, TextView name, std::vector<NameFinding>& found)
      : path_(join({folder, u"/", name})), found_(found) {}
  void add(std::string_view rule, std::initializer_list<TextView> message) {
    found_.push_back({path_, {0, rule, join(message), std::nullopt}});
  }

 private:
  Text path_;
  std::vector<NameFinding>& found_;
};

bool fits(TextView name, std::initializer_list<TextView> pattern) { return matches_wildcards(name, join(pattern)); }

bool is_update(TextView name, Engine engine) { return fits(name, {u"*", kVersions, engine_tag(engine), u".cfc"}); }

Update parts_of(const Text& name, Engine engine) {
  const std::size_t tail = kVersions.size() + engine_tag(engine).size() + TextView(u".cfc").size();
  const std::size_t versions = name.size() - tail;
  return {name, name.substr(0, versions), name.substr(versions, kDigits), name.substr(versions + kDigits + 1, kDigits),
          engine};
}

bool has_trailing_unit(TextView name, Engine engine) {
  return fits(name, {u"*", kVersions, engine_tag(engine), u"?.cfc"});
}

bool is_found(TextView name, Engine engine) {
  return is_update(name, engine) || fits(name, {u"*", engine_tag(engine), u"?.cfc"});
}

// Why loading ignores or misreads a name of this engine; empty for other names.
TextView why_missed(TextView name, Engine engine) {
  const TextView tag = engine_tag(engine);
  if (has_trailing_unit(name, engine)) {
    return u"an update's name ends in the engine's tag: as it stands this is a file of a definition";
  }
  if (fits(name, {u"*", tag, u".cfc"})) {
    return u"no search finds this: a definition has one character behind the engine's tag, an update two versions of "
           u"five digits before it";
  }
  if (fits(name, {u"*", tag, u"??.cfc"}) || fits(name, {u"*", tag, u"???.cfc"})) {
    return u"no search finds this: there is room for one character only behind the engine's tag";
  }
  return {};
}

// Empty for a correct name.
TextView why_missed(TextView name) {
  const auto any = [&](auto&& test) {
    return std::ranges::any_of(kEngines, [&](auto each) { return test(name, each); });
  };
  if (any(is_found) && !any(has_trailing_unit)) return {};
  for (Engine engine : kEngines) {
    if (const TextView why = why_missed(name, engine); !why.empty()) return why;
  }
  return u"no search finds this: the name has no engine's tag (JET, SQL or ORA) where it belongs";
}

void check_versions(const Update& update, OfName& findings) {
  if (!all_digits(update.from) || !all_digits(update.to)) {
    findings.add("version-digits", {u"the versions ", update.from, u" and ", update.to, u" are not five digits each"});
  } else if (update.from.starts_with(u'0')) {
    findings.add("version-zero", {u"an update from ", update.from,
                                  u" cannot begin: the current version is looked for without zeros in "
                                  u"front"});
  } else if (update.to <= update.from) {
    findings.add("version-backwards", {u"this updates from ", update.from, u" to ", update.to});
  }
}

void check_next(const Update& before, const Update& next, OfName& findings) {
  if (next.from > before.to) {
    findings.add("version-gap", {u"nothing updates from ", before.to, u" to ", next.from, u"; ", before.name,
                                 u" is followed by this all the same"});
  } else if (next.from < before.to) {
    findings.add("version-overlap", {u"this runs after ", before.name, u", which has reached ", before.to,
                                     u" already: every file from the current version on is taken"});
  }
}

void check_chain(TextView folder, const std::vector<Update>& chain, std::vector<NameFinding>& found) {
  for (std::size_t i = 0; i < chain.size(); ++i) {
    OfName findings(folder, chain[i].name, found);
    check_versions(chain[i], findings);
    const bool numbers = all_digits(chain[i].from) && all_digits(chain[i].to);
    if (i > 0 && numbers && all_digits(chain[i - 1].to)) check_next(chain[i - 1], chain[i], findings);
  }
}

}  // namespace

std::vector<NameFinding> check_names(TextView folder, const std::vector<Text>& names) {
  std::vector<NameFinding> found;
  std::vector<Text> sorted = names;
  std::ranges::sort(sorted, less_no_case);
  std::map<std::pair<Engine, Text>, std::vector<Update>> chains;  // by engine and folded application
  for (const Text& name : sorted) {
    const TextView why = why_missed(name);
    if (!why.empty()) {
      OfName(folder, name, found).add("name-missed", {why});
      continue;
    }
    for (Engine engine : kEngines) {
      if (!is_update(name, engine)) continue;
      Update update = parts_of(name, engine);
      Text key = update.application;
      std::ranges::transform(key, key.begin(), fold);
      chains[{engine, std::move(key)}].push_back(std::move(update));
    }
  }
  for (const auto& [key, chain] : chains) check_chain(folder, chain, found);
  return found;
}

}  // namespace qvr::script_tool
