// A run as people read it.
#include <algorithm>
#include <array>
#include <charconv>

#include "base/utf8.h"
#include "qvrscript/run/report.h"

namespace qvr::script_tool {
namespace {

Text number(std::size_t value) { return decimal(static_cast<std::int64_t>(value)); }

Text counted(std::size_t done, std::size_t all) { return join({number(done), u" of ", number(all), u" commands"}); }

// "12.3 ms", "4.567 s"
Text duration(double milliseconds) {
  const bool short_one = milliseconds < 1000;
  std::array<char, 400> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                 short_one ? milliseconds : milliseconds / 1000, std::chars_format::fixed,
                                 short_one ? 1 : 3);
  return join({Text(digits.data(), end.ptr), short_one ? u" ms" : u" s"});
}

std::string bar(std::size_t done, std::size_t all) {
  constexpr std::size_t kWidth = 40;
  const std::size_t filled = all == 0 ? kWidth : std::min(done, all) * kWidth / all;
  return "[" + std::string(filled, '#') + std::string(kWidth - filled, '.') + "] " + std::to_string(done) + "/" +
         std::to_string(all);
}

const AssembledCommand* command_of(const RunReport& report, std::size_t command) {
  return command == 0 || command > report.assembly.commands().size() ? nullptr
                                                                     : &report.assembly.commands()[command - 1];
}

// A description can have several lines.
void tell_field(TextView name, TextView value, Console& console) {
  constexpr std::size_t kWidth = 10;
  Text shown_name(name);
  shown_name.resize(kWidth, u' ');
  for (const TextView line : split(value, u"\n")) {
    console.complain_more({u"  ", shown_name, without_white_end(line)});
    shown_name.assign(kWidth, u' ');
  }
}

void tell_error(TextView name, const services::AdoError& error, Console& console) {
  const Text state = error.sql_state.empty() ? Text() : join({u"state ", error.sql_state, u", "});
  tell_field(name, join({state, u"native ", decimal(error.native_error), u": ", error.description}), console);
}

Text ending_of(const RunReport& report, const Outcome& outcome) {
  const auto statement = [&] {
    const Committing& last = *outcome.kept_up_to;
    return join({last.statement, u" in command ", number(last.command), u" (",
                 shown(report.assembly.commands()[last.command - 1].place), u")"});
  };
  switch (outcome.ending) {
    case Ending::Nothing: return u"nothing was run";
    case Ending::Committed: return u"committed";
    case Ending::PerhapsCommitted:
      return u"committed, but the database may have taken back what ran before a failure, or all of it";
    case Ending::Rehearsed:
    case Ending::TakenBack: return u"all taken back";
    case Ending::Kept: return u"what ran stays";
    case Ending::PartlyKept: return join({u"rolled back, but what ran stays up to ", statement()});
    case Ending::PerhapsKept: return join({u"rolled back, but it is not known what stays because of ", statement()});
    case Ending::RollbackFailed: break;
  }
  const Text why = outcome.rollback_failure ? join({u" (", outcome.rollback_failure->description, u")"}) : Text();
  return join({u"the rollback failed", why, u": what the database kept is not known"});
}

}  // namespace

void tell_begun(const RunReport& report, std::size_t command, Console& console) {
  const std::size_t all = report.assembly.commands().size();
  if (report.request.quiet || report.request.format != Format::Text) return;
  if (console.shows_status()) {
    console.status(bar(command - 1, all));
  } else if (!report.options.timing) {
    console.say({u"commands done: ", number(command - 1), u"/", number(all)});
  }
}

void tell_ended(const RunReport& report, std::size_t command, double milliseconds, Console& console) {
  const AssembledCommand* const of = command_of(report, command);
  if (!report.options.timing || report.request.format != Format::Text || of == nullptr) return;
  console.say({u"command ", number(command), u" of ", number(report.assembly.commands().size()), u": ",
               duration(milliseconds), u", ", shown(of->place)});
}

void tell_failure(const RunReport& report, const RunFailure& failure, Console& console) {
  const AssembledCommand* const command = command_of(report, failure.command);
  if (command != nullptr) {
    console.complain_more({shown(command->place), u": command ", number(failure.command), u" of ",
                           number(report.assembly.commands().size()), u" failed"},
                          Colour::Red);
    tell_field(u"command", beginning(command->text), console);
  } else {
    console.complain_more({u"the run failed outside its commands"}, Colour::Red);
  }
  tell_field(u"error", failure.failure.description, console);
  tell_field(u"number",
             join({decimal(failure.failure.number), u" (0x",
                   hexadecimal(static_cast<std::uint32_t>(failure.failure.number), 8), u")"}),
             console);
  if (!failure.failure.source.empty()) tell_field(u"source", failure.failure.source, console);
  if (!failure.errors.empty()) {
    const services::AdoError& first = failure.errors.front();
    tell_field(u"native", decimal(first.native_error), console);
    if (!first.sql_state.empty()) tell_field(u"state", first.sql_state, console);
  }
  for (std::size_t i = 1; i < failure.errors.size(); ++i) tell_error(u"also", failure.errors[i], console);
}

// A failure is told beside a document too.
void tell_outcome(const RunReport& report, const Outcome& outcome, Console& console) {
  const Text counts = counted(outcome.executed, report.assembly.commands().size());
  const Text ending = ending_of(report, outcome);
  const bool whole = exit_code_of(outcome, report.assembly) == exit_code::kDone;
  console.done_all_the_same = join({u"; the run itself: ", counts, u"; ", ending});
  if (whole) {
    const bool rehearsed = outcome.ending == Ending::Rehearsed;
    if (!report.request.quiet && report.request.format == Format::Text) {
      console.say({rehearsed ? u"rehearsed: " : u"done: ", counts, rehearsed ? u"; all taken back" : u""},
                  Colour::Green);
    }
  } else if (outcome.ending == Ending::Nothing && outcome.failures.empty() && !outcome.interrupted) {
    console.complain({u"nothing was run"});
  } else if (outcome.interrupted) {
    console.complain({u"interrupted after ", counts, u"; ", ending});
  } else if (outcome.success) {
    console.complain({u"not everything ran: ", counts, u"; ", ending});
  } else {
    console.complain({u"failed after ", counts, u"; ", ending});
  }
  if (report.options.timing && report.request.format == Format::Text)
    console.say({u"in all: ", duration(outcome.whole_milliseconds)});
}

void complain_of_remainder(const Assembly& assembly, Console& console) {
  if (!assembly.not_run()) return;
  const Remainder& rest = *assembly.not_run();
  console.complain({shown(rest.place),
                    assembly.commands().empty() ? u": there is no GO line, and nothing of this is run: "
                                                : u": no GO line follows this, and it is not run: ",
                    beginning(rest.text)});
}

int exit_code_of(const Outcome& outcome, const Assembly& assembly) {
  if (outcome.interrupted) return exit_code::kInterrupted;
  if (outcome.success && outcome.ending == Ending::Nothing) return exit_code::kDone;  // nothing had to be run
  const bool kept = outcome.ending == Ending::Committed || outcome.ending == Ending::Kept ||
                    outcome.ending == Ending::Rehearsed;
  const bool whole = outcome.success && kept && outcome.failures.empty() && !assembly.not_run() &&
                     outcome.executed == assembly.commands().size();
  return whole ? exit_code::kDone : exit_code::kFailed;
}

}  // namespace qvr::script_tool
