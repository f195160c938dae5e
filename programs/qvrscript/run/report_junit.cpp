// A run as a JUnit report: each command is a test case.
#include <array>
#include <charconv>

#include "base/utf8.h"
#include "qvrscript/run/report.h"

namespace qvr::script_tool {
namespace {

std::string seconds(double milliseconds) {
  std::array<char, 400> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), milliseconds / 1000,
                                 std::chars_format::fixed, 3);
  return {digits.data(), end.ptr};
}

// XML has no control characters, not even escaped: `printable` shows them.
std::string escaped(TextView text, const Console& console) {
  std::string bytes;
  for (const char each : to_utf8(printable(console.secrets.left_out(text)))) {
    switch (each) {
      case '&': bytes += "&amp;"; break;
      case '<': bytes += "&lt;"; break;
      case '>': bytes += "&gt;"; break;
      case '"': bytes += "&quot;"; break;
      default: bytes.push_back(each);
    }
  }
  return bytes;
}

std::string attribute(std::string_view name, TextView value, const Console& console) {
  return " " + std::string(name) + "=\"" + escaped(value, console) + "\"";
}

struct Case {
  Text file, name;
  std::string time = "0.000";
  std::string content;
};

std::string written(const Case& each, const Console& console) {
  const std::string head = "  <testcase" + attribute("classname", each.file, console) +
                           attribute("name", each.name, console) + " time=\"" + each.time + "\"";
  return each.content.empty() ? head + "/>\n" : head + ">" + each.content + "</testcase>\n";
}

std::string failure_element(const RunFailure& failure, const Console& console) {
  const services::AdoError* const first = failure.errors.empty() ? nullptr : &failure.errors.front();
  const Text type = first != nullptr && !first->sql_state.empty() ? first->sql_state : decimal(failure.failure.number);
  std::string text = "<failure" + attribute("message", failure.failure.description, console) +
                     attribute("type", type, console) + ">";
  for (const services::AdoError& error : failure.errors) {
    text += escaped(join({error.sql_state, u" ", decimal(error.native_error), u" ", error.description, u" (",
                          error.source, u")"}),
                    console) +
            "\n";
  }
  return text + "</failure>";
}

Text case_name(std::size_t command, const AssembledCommand& of) {
  return join({decimal(static_cast<std::int64_t>(command)), u": line ",
               decimal(static_cast<std::int64_t>(of.place.line)), u": ", beginning(of.text)});
}

std::vector<Case> cases_of(const RunReport& report, const Outcome& outcome, const Console& console) {
  std::vector<Case> cases;
  const auto& commands = report.assembly.commands();
  for (std::size_t i = 0; i < commands.size(); ++i) {
    Case each{commands[i].place.file, case_name(i + 1, commands[i]), {}, {}};
    const bool begun = i < outcome.milliseconds.size();
    each.time = seconds(begun ? outcome.milliseconds[i] : 0);
    if (!begun) each.content = "<skipped/>";
    cases.push_back(std::move(each));
  }
  for (const RunFailure& failure : outcome.failures) {
    if (failure.command == 0 || failure.command > cases.size()) {
      cases.push_back({u"run", u"connection and transaction", "0.000", failure_element(failure, console)});
    } else {
      cases[failure.command - 1].content = failure_element(failure, console);
    }
  }
  if (const auto& rest = report.assembly.not_run()) {
    cases.push_back(
        {rest->place.file,
         join({u"line ", decimal(static_cast<std::int64_t>(rest->place.line)), u": ", beginning(rest->text)}), "0.000",
         "<failure message=\"no GO line follows, and it is not run\"/>"});
  }
  if (outcome.interrupted) {
    cases.push_back({u"run", u"interruption", "0.000", "<failure message=\"interrupted\"/>"});
  }
  return cases;
}

std::string suite(TextView name, const std::vector<Case>& cases, std::string_view time, const Console& console) {
  const auto count = [&](std::string_view element) {
    std::size_t found = 0;
    for (const Case& each : cases) found += each.content.starts_with(element) ? 1u : 0u;
    return std::to_string(found);
  };
  std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuite" + attribute("name", name, console) +
                     " tests=\"" + std::to_string(cases.size()) + "\" failures=\"" + count("<failure") +
                     "\" errors=\"" + count("<error") + "\" skipped=\"" + count("<skipped") + "\" time=\"" +
                     std::string(time) + "\">\n";
  for (const Case& each : cases) text += written(each, console);
  return text + "</testsuite>";
}

}  // namespace

void write_run_junit(const RunReport& report, const Outcome& outcome, Console& console) {
  console.document(suite(join({u"qvrscript ", report.request.command}), cases_of(report, outcome, console),
                         seconds(outcome.whole_milliseconds), console));
}

void write_refusal_junit(const Request& request, TextView message, Console& console) {
  const Case refusal{u"run", u"preparation", "0.000", "<error" + attribute("message", message, console) + "/>"};
  console.document(suite(join({u"qvrscript ", request.command}), {refusal}, "0.000", console));
}

}  // namespace qvr::script_tool
