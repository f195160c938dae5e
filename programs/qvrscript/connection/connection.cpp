#include "qvrscript/connection/connection.h"

#include <cstdlib>

#include "qvrscript/command_line/usage_failure.h"
#include "qvrscript/connection/asked_secret.h"
#include "qvrscript/connection/cfp_reading.h"
#include "qvrscript/connection/opening_watch.h"

namespace qvr::script_tool {
namespace {

Text from_argument(TextView text, Console& console) {
  if (names_password(text)) {
    console.complain(
        {u"warning: others can see a password that stands in an argument, in the list of processes and the "
         u"shell's history; --connection-env, --connection - and --cfp keep it to you"});
  }
  return Text(text);
}

Text from_standard_input(const Surroundings& surroundings) {
  auto line = surroundings.standard_input_line();
  if (!line || is_blank(*line, kWhiteSpace)) {
    throw UsageFailure({u"the standard input has no connection string in its first line"});
  }
  return std::move(*line);
}

Text from_variable(TextView variable, const Surroundings& surroundings) {
  auto value = surroundings.environment_variable(variable);
  if (!value) throw UsageFailure({u"the environment variable ", variable, u" is not set"});
  if (is_blank(*value, kWhiteSpace)) throw UsageFailure({u"the environment variable ", variable, u" is empty"});
  return std::move(*value);
}

void keep_secret(TextView connection_string, Secrets& secrets) {
  secrets.add_passwords_of(connection_string);
  // A mere data source name is in other texts as well, and no secret.
  if (connection_string.find(u'=') != TextView::npos) secrets.add(connection_string);
}

std::optional<Connection> from_file(const ConnectionChoice& choice, const Surroundings& surroundings,
                                    Console& console) {
  const SecretText id = asked_identification(choice.cfp->id_variable, surroundings, console);
  CfpReading reading = read_connection_file(*choice.cfp, id);
  for (const Text& line : explanation(reading, *choice.cfp)) console.complain({line});
  if (reading.state != CfpState::Fine) return std::nullopt;
  console.secrets.add(reading.parameters.ClaveAdm);
  console.secrets.add(reading.parameters.ClaveCli);
  QVRcfp library;
  library.Asignar(id, reading.parameters);
  Connection connection(library.CadenaADO(id, !choice.client), Text(TextView(id)));
  connection.parameters = std::exchange(reading.parameters, {});
  keep_secret(connection.string, console.secrets);
  return connection;
}

}  // namespace

std::optional<Connection> connection_of(const ConnectionChoice& choice, const Surroundings& surroundings,
                                        Console& console) {
  if (choice.cfp) return from_file(choice, surroundings, console);
  Connection connection(choice.text             ? from_argument(*choice.text, console)
                        : choice.standard_input ? from_standard_input(surroundings)
                                                : from_variable(choice.variable.value_or(Text()), surroundings));
  keep_secret(connection.string, console.secrets);
  return connection;
}

std::unique_ptr<Database> opened_database(TextView connection_string, std::int32_t connect_timeout,
                                          const Surroundings& surroundings,
                                          const std::function<void(TextView why)>& give_up) {
  const OpeningWatch watch(connect_timeout, [&] {
    give_up(not_opened(connect_timeout));
    std::_Exit(exit_code::kFailed);
  });
  return surroundings.open_database(connection_string, connect_timeout);
}

}  // namespace qvr::script_tool
