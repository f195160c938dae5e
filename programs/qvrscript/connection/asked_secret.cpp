#include "qvrscript/connection/asked_secret.h"

#include "qvrscript/command_line/usage_failure.h"

namespace qvr::script_tool {
namespace {

SecretText in_variable(TextView variable, const Surroundings& surroundings) {
  auto value = surroundings.environment_variable(variable);
  if (!value) throw UsageFailure({u"the environment variable ", variable, u" is not set"});
  return SecretText(std::move(*value));
}

SecretText typed(TextView prompt, TextView option, const Surroundings& surroundings) {
  auto answer = surroundings.ask_secret(prompt);
  if (!answer) throw UsageFailure({u"nobody answers on a terminal: ", option, u" names a variable with the secret"});
  return SecretText(std::move(*answer));
}

SecretText typed(const SecretQuestion& question, const Surroundings& surroundings) {
  SecretText first = typed(join({question.prompt, u": "}), question.option, surroundings);
  if (!question.twice) return first;
  const SecretText second = typed(join({question.prompt, u", once more: "}), question.option, surroundings);
  if (TextView(first) != TextView(second)) throw UsageFailure({u"what was typed the second time differs"});
  return first;
}

SecretText not_empty(SecretText identification, const std::optional<Text>& variable) {
  if (!TextView(identification).empty()) return identification;
  if (variable) throw UsageFailure({u"the identification in the environment variable ", *variable, u" is empty"});
  throw UsageFailure({u"the identification is empty"});
}

}  // namespace

SecretText asked_secret(const SecretQuestion& question, const Surroundings& surroundings, Console& console) {
  SecretText secret = question.variable ? in_variable(*question.variable, surroundings) : typed(question, surroundings);
  console.secrets.add(secret);
  return secret;
}

SecretText asked_identification(const std::optional<Text>& variable, const Surroundings& surroundings,
                                Console& console) {
  return not_empty(asked_secret({variable, u"--id-env", u"Identification"}, surroundings, console), variable);
}

SecretText asked_new_identification(const std::optional<Text>& variable, TextView option,
                                    const Surroundings& surroundings, Console& console) {
  const SecretQuestion question{variable, option, u"New identification", true};
  return not_empty(asked_secret(question, surroundings, console), variable);
}

}  // namespace qvr::script_tool
