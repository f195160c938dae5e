#include "base/utf8.h"
#include "qvrscript/check/check_output.h"
#include "qvrscript/check/rule.h"
#include "qvrscript/output/json.h"
#include "session/ov.h"

namespace qvr::script_tool {
namespace {

constexpr const char* kSchema =
    "https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/sarif-schema-2.1.0.json";

bool is_unreserved(char byte) {
  return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') || byte == '-' ||
         byte == '.' || byte == '_' || byte == '~' || byte == '/';
}

std::string percent_encoded(std::string_view path) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string encoded;
  for (const char each : path) {
    const auto byte = static_cast<unsigned char>(each);
    if (is_unreserved(each)) {
      encoded.push_back(each);
    } else {
      encoded += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
    }
  }
  return encoded;
}

// Relative to the folder in which the program runs, as the path is.
std::string uri_of(TextView file) {
  const std::string path = to_utf8(replace_all(Text(file), u"\\", u"/"));
  const bool drive = path.size() > 2 && path[1] == ':' && path[2] == '/';
  if (drive) return "file:///" + path.substr(0, 2) + percent_encoded(path.substr(2));
  if (path.starts_with("//")) return "file:" + percent_encoded(path);
  if (path.starts_with('/')) return "file://" + percent_encoded(path);
  return percent_encoded(path.starts_with("./") ? path.substr(2) : path);
}

Json message_of(std::string_view utf8) { return {{"text", utf8}}; }

Json location_of(TextView file, std::size_t line) {
  Json physical = {{"artifactLocation", {{"uri", uri_of(file)}}}};
  if (line > 0) physical["region"] = {{"startLine", line}};
  return {{"physicalLocation", std::move(physical)}};
}

Json rules_json() {
  Json json = Json::array();
  for (const Rule& rule : rules()) {
    json.push_back({{"id", rule.name},
                    {"shortDescription", message_of(rule.summary)},
                    {"defaultConfiguration", {{"level", severity_word(rule.severity)}}}});
  }
  return json;
}

class SarifOutput final : public CheckOutput {
 public:
  explicit SarifOutput(Console& console) : console_(console) {}

  void finding(TextView file, const Finding& finding, Severity severity) override {
    results_.push_back(result(file, finding, severity));
  }

  void silenced(TextView file, const Finding& finding, Severity severity) override {
    Json json = result(file, finding, severity);
    json["suppressions"].push_back({{"kind", "inSource"}, {"justification", to_utf8(*finding.reason)}});
    results_.push_back(std::move(json));
  }

  void end(const CheckTotals& totals) override {
    Json driver = {{"name", "qvrscript"},
                   {"version", to_utf8(Ov::CadenaVersion(own_version()))},
                   {"rules", rules_json()}};
    Json run = {{"tool", {{"driver", std::move(driver)}}},
                {"invocations", Json::array({invocation(totals)})},
                {"results", std::move(results_)}};
    write_json({{"$schema", kSchema}, {"version", "2.1.0"}, {"runs", Json::array({std::move(run)})}}, console_);
  }

 private:
  // With suppressions in each result, as a reader takes their absence for not knowing of any.
  static Json result(TextView file, const Finding& finding, Severity severity) {
    return {{"ruleId", finding.rule},
            {"ruleIndex", rule_named(finding.rule) - rules().data()},
            {"level", severity_word(severity)},
            {"message", message_of(to_utf8(finding.message))},
            {"locations", Json::array({location_of(file, finding.line)})},
            {"suppressions", Json::array()}};
  }

  static Json notification(Severity level, TextView message) {
    return {{"level", severity_word(level)}, {"message", message_of(to_utf8(message))}};
  }

  static Json invocation(const CheckTotals& totals) {
    Json notifications = Json::array();
    for (const Text& path : totals.unreadable) {
      Json json = notification(Severity::Error, join({path, u" cannot be read"}));
      json["locations"] = Json::array({location_of(path, 0)});
      notifications.push_back(std::move(json));
    }
    for (const Text& folder : totals.empty) {
      notifications.push_back(notification(Severity::Error, join({folder, u" holds no script (*.cfc)"})));
    }
    for (const Text& problem : totals.problems) notifications.push_back(notification(Severity::Error, problem));
    if (totals.omitted.all() > 0) {
      notifications.push_back(notification(Severity::Warning, omitted_text(totals.omitted)));
    }
    const bool successful = totals.unreadable.empty() && totals.empty.empty() && totals.problems.empty();
    return {{"executionSuccessful", successful},
            {"exitCode", totals.exit_code},
            {"toolExecutionNotifications", std::move(notifications)}};
  }

  Console& console_;
  Json results_ = Json::array();
};

}  // namespace

std::unique_ptr<CheckOutput> make_sarif_output(Console& console) { return std::make_unique<SarifOutput>(console); }

}  // namespace qvr::script_tool
