#include "qvrscript/command_line/arguments.h"

#include <algorithm>

#include "qvrscript/engines.h"

namespace qvr::script_tool {
namespace {

constexpr unsigned kForCheck = 1, kForList = 2, kForRun = 4, kForDoctor = 8, kForAll = 15;

[[noreturn]] void refuse(std::initializer_list<TextView> message) { throw UsageFailure(join(message)); }

void set_engine(Arguments& arguments, TextView value) {
  arguments.engine = engine_named(value);
  if (!arguments.engine) refuse({u"no such engine: ", value, u" (jet, sqlserver or oracle)"});
}

void set_version(Arguments& arguments, TextView value) {
  if (value.size() != 5 || !all_digits(value) || value.starts_with(u'0')) {
    refuse({u"no version: ", value, u" (five digits, the first no zero)"});
  }
  std::int32_t version = 0;
  for (const char16_t digit : value) version = version * 10 + (digit - u'0');
  arguments.from = version;
}

struct Option {
  TextView name;
  unsigned actions;
  bool takes_value;
  void (*set)(Arguments&, TextView value);
};

constexpr Option kOptions[] = {
    {u"--engine", kForCheck | kForList | kForRun, true, set_engine},
    {u"--from", kForList, true, set_version},
    {u"--connection", kForRun, true, [](Arguments& a, TextView value) { a.connection = Text(value); }},
    {u"--no-transaction", kForRun, false, [](Arguments& a, TextView) { a.use_transaction = false; }},
    {u"--continue", kForRun, false, [](Arguments& a, TextView) { a.go_on = true; }},
    {u"--json", kForAll, false, [](Arguments& a, TextView) { a.json = true; }},
    {u"--verbose", kForAll, false, [](Arguments& a, TextView) { a.verbose = true; }},
};

unsigned bit_of(Action action) {
  switch (action) {
    case Action::Check: return kForCheck;
    case Action::List: return kForList;
    case Action::Run: return kForRun;
    case Action::Doctor: return kForDoctor;
    default: return 0;
  }
}

const Option& option_named(TextView name, Action action) {
  const auto* found = std::ranges::find(kOptions, name, &Option::name);
  if (found == std::end(kOptions)) refuse({u"no such option: ", name});
  if ((found->actions & bit_of(action)) == 0) refuse({name, u" belongs to another command"});
  return *found;
}

class Parser {
 public:
  explicit Parser(std::span<const Text> words) : words_(words) {}

  void take_all(Arguments& arguments) {
    while (!words_.empty()) {
      const TextView word = take();
      if (only_operands_ || word.size() < 2 || !word.starts_with(u'-')) {
        arguments.operands.emplace_back(word);
      } else if (word == u"--") {
        only_operands_ = true;
      } else if (word == u"--help" || word == u"-h") {
        arguments.topic = arguments.action;
      } else {
        take_option(arguments, word);
      }
    }
  }

 private:
  TextView take() {
    const TextView word = words_.front();
    words_ = words_.subspan(1);
    return word;
  }

  void take_option(Arguments& arguments, TextView word) {
    const std::size_t sign = word.find(u'=');
    const TextView name = word.substr(0, sign);
    const Option& option = option_named(name, arguments.action);
    if (!option.takes_value && sign != TextView::npos) refuse({name, u" takes no value"});
    if (option.takes_value && sign == TextView::npos && words_.empty()) refuse({name, u" wants a value"});
    const TextView value = !option.takes_value ? TextView() : sign != TextView::npos ? word.substr(sign + 1) : take();
    option.set(arguments, value);
  }

  std::span<const Text> words_;
  bool only_operands_ = false;
};

void require_complete(const Arguments& arguments) {
  const std::size_t count = arguments.operands.size();
  switch (arguments.action) {
    case Action::Check:
      if (count == 0) refuse({u"check wants a folder or files"});
      break;
    case Action::List:
      if (count != 2) refuse({u"list wants a folder and the name of a definition or application"});
      break;
    case Action::Run:
      if (count != 1) refuse({u"run wants one file"});
      if (!arguments.engine) refuse({u"run wants --engine"});
      if (arguments.connection.empty()) refuse({u"run wants --connection"});
      break;
    case Action::Doctor:
      if (count != 0) refuse({u"doctor takes no files"});
      break;
    default: break;
  }
}

Arguments help_arguments(std::span<const Text> rest) {
  Arguments arguments;
  if (rest.empty()) return arguments;
  arguments.topic = action_named(rest.front());
  if (!arguments.topic) refuse({u"no such command: ", rest.front()});
  return arguments;
}

}  // namespace

std::optional<Action> action_named(TextView word) {
  if (word == u"check") return Action::Check;
  if (word == u"list") return Action::List;
  if (word == u"run") return Action::Run;
  if (word == u"doctor") return Action::Doctor;
  return std::nullopt;
}

Arguments parse_arguments(std::span<const Text> words) {
  if (words.empty()) refuse({u"no command"});
  const TextView first = words.front();
  const auto rest = words.subspan(1);
  if (first == u"--help" || first == u"-h" || first == u"help") return help_arguments(rest);
  Arguments arguments;
  if (first == u"--version") {
    arguments.action = Action::Version;
    return arguments;
  }
  const auto action = action_named(first);
  if (!action) refuse({u"no such command: ", first});
  arguments.action = *action;
  Parser(rest).take_all(arguments);
  if (arguments.topic) {
    arguments.action = Action::Help;
  } else {
    require_complete(arguments);
  }
  return arguments;
}

}  // namespace qvr::script_tool
