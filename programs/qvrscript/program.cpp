#include "qvrscript/program.h"

#include "qvrscript/check.h"
#include "qvrscript/doctor.h"
#include "qvrscript/help.h"
#include "qvrscript/list.h"
#include "session/ov.h"

namespace qvr::script_tool {
namespace {

int act(const Arguments& arguments, const Console& console, MakeAdo make_ado) {
  switch (arguments.action) {
    case Action::Help: console.out << help_text(arguments.topic); break;
    case Action::Version: say(console.out, {u"qvrscript ", Ov::CadenaVersion(own_version())}); break;
    case Action::Check: return check(arguments, console);
    case Action::List: return list(arguments, console);
    case Action::Run: return run(arguments, console, make_ado);
    case Action::Doctor: return doctor(arguments, console);
  }
  return exit_code::kDone;
}

}  // namespace

int run_program(std::span<const Text> words, const Console& console, MakeAdo make_ado) {
  try {
    const int code = act(parse_arguments(words), console, make_ado);
    if (console.out.flush()) return code;
    complain(console, {u"the output cannot be written"});
  } catch (const UsageFailure& failure) {
    complain(console, {failure.message(), u"; qvrscript --help tells more"});
  } catch (const std::exception&) {
    complain(console, {u"unexpected failure"});
  }
  return exit_code::kRefused;
}

}  // namespace qvr::script_tool
