#include "qvrscript/run/commands.h"

#include <filesystem>

#include "base/failure.h"
#include "base/utf8.h"
#include "qvrscript/command_line/usage_failure.h"
#include "qvrscript/connection/connection.h"
#include "qvrscript/engines.h"
#include "qvrscript/output/json.h"
#include "qvrscript/paths.h"
#include "qvrscript/run/plan.h"
#include "qvrscript/run/reported_run.h"
#include "qvrscript/run/runner.h"
#include "qvrscript/tool_failure.h"
#include "session/thread_state.h"
#include "session/value_convert.h"

namespace qvr::script_tool {
namespace {

constexpr TextView kAdminPassword = u"[ClaveUsuarioQVRAdm]", kClientPassword = u"[ClaveUsuarioQVRCli]";

void require_engine(Engine engine, const Connection& connection) {
  if (!connection.parameters || connection.parameters->MotorBD == engine) return;
  const TextView title = engine_title(connection.parameters->MotorBD);
  throw ToolFailure({u"the connection file is for ", title.empty() ? u"no known engine" : title, u", not for ",
                     engine_title(engine)});
}

std::optional<Connection> connection_for(const RunOptions& options, const Surroundings& surroundings,
                                         Console& console) {
  if (!options.connection) return std::nullopt;
  auto connection = connection_of(*options.connection, surroundings, console);
  if (!connection) throw ToolFailure({u"the connection file cannot be used"}, true);
  require_engine(options.engine, *connection);
  return connection;
}

// The only number of the only row, as a version.
std::int32_t asked_version(const LoadRequest& load, TextView connection_string, const Surroundings& surroundings,
                           Console& console) {
  const auto database = opened_database(connection_string, load.options.connection->connect_timeout, surroundings,
                                        [&](TextView why) { console.complain({why}); });
  const auto rows = database->rows(*load.from_query);
  if (rows.size() != 1 || rows.front().size() != 1) {
    throw ToolFailure({u"--from-query must give one row with one number: it gave ",
                       decimal(static_cast<std::int64_t>(rows.size())), u" rows",
                       rows.empty()
                           ? Text()
                           : join({u" of ", decimal(static_cast<std::int64_t>(rows.front().size())), u" columns"})});
  }
  const Text text(trimmed(or_default({}, Text(), [&] { return to_text(rows.front().front()); })));
  if (text.size() != 5 || !all_digits(text) || text.starts_with(u'0')) {
    throw ToolFailure({u"--from-query gave no version of five digits: \"", text, u"\""});
  }
  std::int32_t version = 0;
  for (const char16_t digit : text) version = version * 10 + (digit - u'0');
  return version;
}

std::int32_t version_of(const LoadRequest& load, const std::optional<Connection>& connection,
                        const Surroundings& surroundings, Console& console) {
  if (load.from) return *load.from;
  if (!load.from_query) return 0;
  try {
    return asked_version(load, connection->string, surroundings, console);
  } catch (const RuntimeFailure& failure) {
    throw ToolFailure({u"--from-query failed: ", failure.detail().description});
  }
}

Text password_of(const AccountChoice& account, const Text* of_file, const Surroundings& surroundings,
                 Console& console) {
  Text password = of_file != nullptr ? *of_file : Text();
  if (account.password_variable) {
    auto value = surroundings.environment_variable(*account.password_variable);
    if (!value) throw UsageFailure({u"the environment variable ", *account.password_variable, u" is not set"});
    password = std::move(*value);
  }
  console.secrets.add(password);
  return password;
}

// What replaces the placeholders; `passwords`: else theirs stay as they are.
ScriptAccounts accounts_of(const LoadRequest& load, const std::optional<Connection>& connection, bool passwords,
                           const Surroundings& surroundings, Console& console) {
  const ConnectionParameters* const file = connection && connection->parameters ? &*connection->parameters : nullptr;
  ScriptAccounts accounts;
  if (file != nullptr) {
    accounts.NombreBaseOTablespace = file->InitialCatalogOTablespace;
    accounts.UsuarioQVRAdm = file->UsuarioAdm;
    accounts.UsuarioQVRCli = file->UsuarioCli;
  }
  if (load.database) accounts.NombreBaseOTablespace = *load.database;
  if (load.admin.user) accounts.UsuarioQVRAdm = *load.admin.user;
  if (load.client.user) accounts.UsuarioQVRCli = *load.client.user;
  accounts.ClaveUsuarioQVRAdm = kAdminPassword;
  accounts.ClaveUsuarioQVRCli = kClientPassword;
  if (passwords) {
    accounts.ClaveUsuarioQVRAdm = password_of(load.admin, file != nullptr ? &file->ClaveAdm : nullptr, surroundings,
                                              console);
    accounts.ClaveUsuarioQVRCli = password_of(load.client, file != nullptr ? &file->ClaveCli : nullptr, surroundings,
                                              console);
  }
  return accounts;
}

// Whole or not at all.
void write_out(const LoadRequest& load, const Assembly& assembly, const Request& request, Console& console) {
  Files& files = thread_state().platform().files;
  const bool written = or_default({}, false, [&] {
    if (load.with_passwords) {
      // Nobody else's to read, from its first byte on.
      files.create(*load.out)->close();
      std::filesystem::permissions(system_path(*load.out),
                                   std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    }
    const auto file = files.create(*load.out);
    file->write(to_utf8(assembly.text()));
    file->close();
    return true;
  });
  if (!written) throw ToolFailure({*load.out, u" could not be written"});
  const Text count = decimal(static_cast<std::int64_t>(assembly.commands().size()));
  if (load.with_passwords) console.complain({*load.out, u" holds the accounts' passwords: whoever reads it has them"});
  if (request.format == Format::Json) {
    write_json(
        {{"command", json_of(request.command)}, {"out", json_of(*load.out)}, {"commands", assembly.commands().size()}},
        console);
  } else if (!request.quiet) {
    console.say({*load.out, u": ", count, u" commands"});
  }
}

// The database has what the scripts lead to.
int up_to_date(const LoadRequest& load, const Request& request, std::int32_t version, Console& console) {
  Outcome outcome;
  outcome.success = true;
  const Assembly nothing({}, load.options.engine, {});
  if (request.format == Format::Json) write_run_json({request, load.options, nothing}, outcome, console);
  if (request.format == Format::JUnit) write_run_junit({request, load.options, nothing}, outcome, console);
  if (request.format == Format::Text && !request.quiet) {
    console.say({u"up to date: ", load.name, u" has no update from ", decimal(version)});
  }
  return exit_code::kDone;
}

}  // namespace

int run(const RunRequest& run, const Request& request, const Surroundings& surroundings, Console& console) {
  const Assembly assembly = assembled_file(run.file, run.options.engine);
  const auto connection = connection_for(run.options, surroundings, console);
  return run_and_report({request, run.options, assembly}, connection->string, surroundings, console);
}

int install_or_update(const LoadRequest& load, const Request& request, const Surroundings& surroundings,
                      Console& console) {
  const auto connection = connection_for(load.options, surroundings, console);
  const std::int32_t version = version_of(load, connection, surroundings, console);
  const ScriptNames names = script_names(load, version);
  if (names.up_to_date) return up_to_date(load, request, version, console);
  for (const Text& gap : names.gaps) console.complain({gap});
  const bool passwords = !load.plan && (!load.out || load.with_passwords);
  const ScriptAccounts accounts = accounts_of(load, connection, passwords, surroundings, console);
  const TextView identification = connection ? TextView(connection->identification) : TextView();
  const Assembly assembly = loaded(load, version, names.pending, accounts, identification);
  if (!load.plan && !load.out) {
    return run_and_report({request, load.options, assembly}, connection->string, surroundings, console);
  }
  complain_of_remainder(assembly, console);
  if (load.plan) write_plan({request, load, version, names, assembly, accounts}, console);
  if (load.out) write_out(load, assembly, request, console);
  return assembly.not_run() || assembly.commands().empty() ? exit_code::kFailed : exit_code::kDone;
}

}  // namespace qvr::script_tool
