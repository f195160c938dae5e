#include "qvrscript/doctor/try/trial.h"

#include <filesystem>
#include <random>

#include "qvrscript/command_line/usage_failure.h"
#include "qvrscript/paths.h"
#include "qvrscript/run/interruption.h"
#include "qvrscript/tool_failure.h"
#include "session/value_convert.h"

namespace qvr::script_tool {
namespace {

constexpr TextView kKeepReport =
    u"Write a report with --report FILE and give it to whoever looks after the application.";

struct Step {
  std::string_view subject;
  StepAnswer (*run)(Trial& trial);
};

constexpr Step kSteps[] = {
    {"try classes", try_classes}, {"try cfp", try_connection_file}, {"try values", try_values},
    {"try queries", try_queries}, {"try database", try_database},   {"try script", try_failing_script},
    {"try events", try_events},   {"try procedure", try_procedure},
};

// Calls and tells what went wrong; the empty text where nothing did.
template <class Call>
Text trouble_of(Call&& call) {
  try {
    call();
    return {};
  } catch (const StepFailure& failure) {
    return failure.message();
  } catch (const RuntimeFailure& failure) {
    return failure_text(failure.detail());
  } catch (const std::filesystem::filesystem_error&) {
    return u"a file or folder could not be made or taken away";
  }
}

Diagnosis diagnosis_of(const Step& step, Trial& trial) {
  if (trial.without_library && step.run != try_database) {
    return {Level::Note, step.subject, u"Not tried: the library cannot be created", u"See the line of the classes."};
  }
  StepAnswer answer;
  const Text trouble = trouble_of([&] { answer = step.run(trial); });
  if (!trouble.empty()) return {Level::Error, step.subject, trouble, Text(kKeepReport)};
  return {answer.level, step.subject, answer.message, answer.advice};
}

// Takes away the rest where one thing cannot be.
Text take_away(Trial& trial) {
  Text troubles;
  while (!trial.undoing.empty()) {
    const auto undo = std::move(trial.undoing.back());
    trial.undoing.pop_back();
    const Text trouble = trouble_of(undo);
    if (!trouble.empty()) troubles += join({troubles.empty() ? u"" : u"; ", trouble});
  }
  return troubles;
}

Text new_mark() {
  std::random_device source;
  return hexadecimal(source(), 8);
}

Text text_of(const std::filesystem::path& path) { return path.u16string(); }

template <class Work>
TriedStep timed(Work&& work) {
  using Clock = std::chrono::steady_clock;
  const auto begin = Clock::now();
  Diagnosis diagnosis = work();
  return {std::move(diagnosis), std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - begin)};
}

Diagnosis tidied(Trial& trial) {
  const Text left = take_away(trial);
  if (left.empty()) return {Level::Ok, "try tidying", u"Nothing of the trial is left", {}};
  return {Level::Error, "try tidying",
          join({u"Something is left of the trial, with ", trial.mark, u" in its name: ", left}),
          u"Take it away by hand."};
}

}  // namespace

// The system's failures are known by their hexadecimal numbers.
Text failure_text(const FailureDetail& failure) {
  const Text number = failure.number >= 0 ? decimal(failure.number)
                                          : u"0x" + hexadecimal(static_cast<std::uint32_t>(failure.number), 8);
  return join({u"failure ", number, failure.description.empty() ? u"" : u": ", failure.description});
}

void expect_text(TextView what, TextView expected, TextView came) {
  if (came != expected) throw StepFailure({what, u": expected ", expected, u", came ", came});
}

void expect_value(TextView what, const Value& expected, const Value& came) {
  expect_text(what, shown_value(expected), shown_value(came));
}

Text shown_value(const Value& value) {
  if (const auto* text = value.as<Text>()) return join({u"\"", *text, u"\""});
  if (const auto* truth = value.as<bool>()) return *truth ? u"True" : u"False";
  if (value.is<Empty>() || value.is<Missing>()) return u"Empty";
  if (value.is<Null>()) return u"Null";
  if (value.is<ObjectRef>()) return u"an object";
  if (value.is<Array>()) return u"an array";
  return or_default({}, Text(u"a value of another type"), [&] { return to_text(value); });
}

StepAnswer without_database() {
  return {Level::Note, u"Not tried: it wants a database", u"See the line of the database."};
}

TrialResult try_library(const std::optional<GivenDatabase>& given, std::int32_t connect_timeout) {
  const std::unique_ptr<TriedMachine> machine = machine_to_try();
  if (machine == nullptr) {
    throw UsageFailure(
        {u"--try uses the library, which exists on Windows only; "
         u"qvrscript run --rehearse tries a connection and a script here"});
  }
  const Text mark = new_mark();
  const std::filesystem::path folder = std::filesystem::temp_directory_path() /
                                       system_path(join({u"qvrscript-try-", mark}));
  const Interruption::Ending ending(interruption(), [] {});  // the step ends, and what it made is taken away
  std::filesystem::create_directory(folder);
  Trial trial{*machine, given, connect_timeout, text_of(folder), mark};
  trial.undoing.push_back([&] { std::filesystem::remove_all(folder); });
  TrialResult result;
  for (const Step& step : kSteps) {
    if (interruption().requested()) break;
    result.steps.push_back(timed([&] { return diagnosis_of(step, trial); }));
  }
  result.interrupted = interruption().requested();
  result.steps.push_back(timed([&] { return tidied(trial); }));
  return result;
}

}  // namespace qvr::script_tool
