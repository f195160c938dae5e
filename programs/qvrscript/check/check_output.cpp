#include "qvrscript/check/check_output.h"

#include <algorithm>

#include "base/utf8.h"
#include "qvrscript/output/json.h"

namespace qvr::script_tool {
namespace {

constexpr Severity kSeverities[] = {Severity::Error, Severity::Warning, Severity::Note};

Text text_of(std::string_view ascii) { return Text(ascii.begin(), ascii.end()); }

Text number_of(std::size_t count) { return decimal(static_cast<std::int64_t>(count)); }

// "1 error, 2 warnings, 0 notes".
Text counts_text(const Counts& counts) {
  Text text = joined(kSeverities, u", ", [&](Severity severity) {
    const std::size_t count = counts.of(severity);
    return join({number_of(count), u" ", text_of(severity_word(severity)), count == 1 ? u"" : u"s"});
  });
  return counts.silenced == 0 ? text : join({text, u", ", number_of(counts.silenced), u" silenced"});
}

Colour colour_of(Severity severity) {
  switch (severity) {
    case Severity::Error: return Colour::Red;
    case Severity::Warning: return Colour::Yellow;
    case Severity::Note: break;
  }
  return Colour::None;
}

class TextOutput final : public CheckOutput {
 public:
  TextOutput(bool quiet, Console& console) : quiet_(quiet), console_(console) {}

  void finding(TextView file, const Finding& finding, Severity severity) override {
    const Text line = finding.line == 0 ? Text() : join({u":", number_of(finding.line)});
    console_.say({file, line, u": ", text_of(severity_word(severity)), u": ", finding.message, u" [",
                  text_of(finding.rule), u"]"},
                 colour_of(severity));
  }
  void silenced(TextView, const Finding&, Severity) override {}

  void end(const CheckTotals& totals) override {
    if (totals.omitted.all() > 0) console_.say({omitted_text(totals.omitted)});
    if (quiet_) return;
    if (totals.found.all() > 0) {
      console_.say({number_of(totals.files), totals.files == 1 ? u" file: " : u" files: ", counts_text(totals.found)});
    }
    if (totals.locked.value_or(0) > 0) {
      console_.say({number_of(*totals.locked), *totals.locked == 1 ? u" script locked" : u" scripts locked"});
    }
  }

 private:
  bool quiet_;
  Console& console_;
};

Json counts_json(const Counts& counts) {
  Json json;
  for (const Severity severity : kSeverities) json[std::string(severity_word(severity))] = counts.of(severity);
  json["silenced"] = counts.silenced;
  return json;
}

Json texts_json(const std::vector<Text>& texts) {
  Json json = Json::array();
  for (const Text& text : texts) json.push_back(json_of(text));
  return json;
}

class JsonOutput final : public CheckOutput {
 public:
  explicit JsonOutput(Console& console) : console_(console) {}

  void finding(TextView file, const Finding& finding, Severity severity) override {
    findings_.push_back(described(file, finding, severity));
  }

  void silenced(TextView file, const Finding& finding, Severity severity) override {
    Json json = described(file, finding, severity);
    json["reason"] = json_of(*finding.reason);
    silenced_.push_back(std::move(json));
  }

  void end(const CheckTotals& totals) override {
    Json json = {{"command", "check"},
                 {"files", totals.files},
                 {"findings", std::move(findings_)},
                 {"silenced", std::move(silenced_)},
                 {"unreadable", texts_json(totals.unreadable)},
                 {"empty", texts_json(totals.empty)},
                 {"problems", texts_json(totals.problems)},
                 {"counts", counts_json(totals.found)},
                 {"omitted", counts_json(totals.omitted)}};
    if (totals.locked) json["locked"] = *totals.locked;
    json["exitCode"] = totals.exit_code;
    write_json(json, console_);
  }

 private:
  static Json described(TextView file, const Finding& finding, Severity severity) {
    return {{"file", json_of(file)},
            {"line", finding.line},
            {"rule", finding.rule},
            {"severity", severity_word(severity)},
            {"message", json_of(finding.message)}};
  }

  Console& console_;
  Json findings_ = Json::array(), silenced_ = Json::array();
};

// The commands that a workflow of GitHub takes from a program's output.
class GitHubOutput final : public CheckOutput {
 public:
  explicit GitHubOutput(Console& console) : console_(console) {}

  void finding(TextView file, const Finding& finding, Severity severity) override {
    const Text line = finding.line == 0 ? Text() : join({u",line=", number_of(finding.line)});
    console_.say({u"::", command(severity), u" file=", path_property(file), line, u",title=",
                  property(text_of(finding.rule)), u"::", data(finding.message)});
  }
  void silenced(TextView, const Finding&, Severity) override {}

  void end(const CheckTotals& totals) override {
    for (const Text& path : totals.unreadable) {
      console_.say({u"::error file=", path_property(path), u"::", data(path), u" cannot be read"});
    }
    for (const Text& folder : totals.empty) console_.say({u"::error::", data(folder), u" holds no script (*.cfc)"});
    for (const Text& problem : totals.problems) console_.say({u"::error::", data(problem)});
    if (totals.omitted.all() > 0) console_.say({u"::warning::", data(omitted_text(totals.omitted))});
  }

 private:
  static TextView command(Severity severity) {
    switch (severity) {
      case Severity::Error: return u"error";
      case Severity::Warning: return u"warning";
      case Severity::Note: break;
    }
    return u"notice";
  }

  static Text data(TextView text) {
    Text escaped = replace_all(Text(text), u"%", u"%25");
    escaped = replace_all(std::move(escaped), u"\r", u"%0D");
    return replace_all(std::move(escaped), u"\n", u"%0A");
  }

  static Text property(TextView text) { return replace_all(replace_all(data(text), u":", u"%3A"), u",", u"%2C"); }

  // With the separators that a repository has.
  static Text path_property(TextView path) { return property(replace_all(Text(path), u"\\", u"/")); }

  Console& console_;
};

}  // namespace

std::string_view severity_word(Severity severity) {
  switch (severity) {
    case Severity::Error: return "error";
    case Severity::Warning: return "warning";
    case Severity::Note: break;
  }
  return "note";
}

Text omitted_text(const Counts& omitted) {
  return join({number_of(omitted.all()), u" more findings are not listed: ", counts_text(omitted)});
}

std::unique_ptr<CheckOutput> make_check_output(Format format, bool quiet, Console& console) {
  switch (format) {
    case Format::Json: return std::make_unique<JsonOutput>(console);
    case Format::GitHub: return std::make_unique<GitHubOutput>(console);
    case Format::Sarif: return make_sarif_output(console);
    default: return std::make_unique<TextOutput>(quiet, console);
  }
}

}  // namespace qvr::script_tool
