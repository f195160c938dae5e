#include "support/ado/stored_procedure.h"

#include <algorithm>

#include "support/ado/behaviour.h"

namespace qvr::tests {
namespace {

constexpr TextView kParameters =
    u"select name, type, size, direction from ado_parameters where procedure = ? order by position";
constexpr TextView kSteps = u"select statement, sets from ado_steps where procedure = ? order by step";

// The tables' columns have types of their own, so that nothing is left to convert.
Text text_in(const Value& value) {
  const Text* text = value.as<Text>();
  return text != nullptr ? *text : Text();
}

std::int32_t number_in(const Value& value) {
  const auto* number = value.as<std::int32_t>();
  return number != nullptr ? *number : 0;
}

bool in_name(char16_t unit) { return unit == u'_' || is_digit(unit) || is_ascii_letter(unit); }

// "@name" at the start of the text; only the first unit when no name follows.
TextView name_at(TextView text) {
  const auto end = std::find_if_not(text.begin() + 1, text.end(), in_name);
  return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

}  // namespace

StoredProcedure::StoredProcedure(AdoSession& session, TextView name, std::int32_t timeout)
    : session_(session), name_(name), timeout_(timeout) {
  for (const std::vector<Value>& row : ask(kParameters, {name_}).rows) {
    parameters_.push_back({text_in(row[0]), number_in(row[1]), number_in(row[2]), number_in(row[3])});
  }
  if (!parameters_.empty()) return;
  fail_provider(hresult::kParametersUnavailable, u"The provider cannot tell the command's parameters.");
}

std::size_t StoredProcedure::parameter_at(TextView statement) const {
  const TextView name = name_at(statement);
  const auto found = std::find_if(parameters_.begin(), parameters_.end(),
                                  [&](const ProcedureParameter& each) { return equal_no_case(each.name, name); });
  if (found == parameters_.end()) fail_provider(hresult::kErrorsInCommand, u"The procedure has no such parameter.");
  return static_cast<std::size_t>(found - parameters_.begin());
}

void StoredProcedure::call(std::vector<Value>& values) const {
  values[0] = std::int32_t{0};  // what a procedure returns that says nothing
  for (const std::vector<Value>& step : ask(kSteps, {name_}).rows) {
    const Text statement = text_in(step[0]);
    Text marked;
    std::vector<Value> passed;
    bool quoted = false;
    for (std::size_t at = 0; at < statement.size(); ++at) {
      if (statement[at] == u'\'') quoted = !quoted;
      const bool parameter = statement[at] == u'@' && !quoted;
      marked += parameter ? u'?' : statement[at];
      if (!parameter) continue;
      const TextView rest = TextView(statement).substr(at);
      passed.push_back(values[parameter_at(rest)]);
      at += name_at(rest).size() - 1;
    }
    const odbc::ResultSet result = ask(marked, passed);
    if (!step[1].is<Null>()) values.at(static_cast<std::size_t>(number_in(step[1]))) = result.rows.at(0).at(0);
  }
}

}  // namespace qvr::tests
