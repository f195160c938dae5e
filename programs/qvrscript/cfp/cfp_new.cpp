#include <algorithm>
#include <optional>

#include "connection/cfp_file.h"
#include "qvrscript/cfp/cfp.h"
#include "qvrscript/cfp/cfp_parts.h"
#include "qvrscript/command_line/usage_failure.h"
#include "qvrscript/connection/asked_secret.h"
#include "qvrscript/paths.h"
#include "qvrscript/tool_failure.h"
#include "session/thread_state.h"

namespace qvr::script_tool {
namespace {

// The library puts the values into a connection string as they stand.
void require_usable(TextView value, TextView what, TextView ending, TextView why) {
  if (value.find_first_of(ending) != TextView::npos) throw UsageFailure({what, why});
  const bool controls = std::ranges::any_of(value, [](char16_t unit) { return unit < 0x20 || unit == 0x7F; });
  if (controls) throw UsageFailure({what, u" has a control character in it"});
}

void require_quotable(TextView value, TextView what) {
  require_usable(value, what, u"\"", u" has a double quote in it, which would end it in the connection string");
}

void require_plain(TextView value, TextView what) {
  require_usable(value, what, u"\";",
                 u" has a double quote or a semicolon in it, which would end it in the connection "
                 u"string");
}

void require_account(const AccountChoice& account, TextView what) {
  require_quotable(account.user.value_or(Text()), what);
  if (account.password_variable && account.user.value_or(Text()).empty()) {
    throw UsageFailure({what, u" has a password and no name: connection strings have a password with a user only"});
  }
}

void require_values(const CfpNewRequest& asked) {
  require_plain(asked.provider, u"the provider");
  require_quotable(asked.data_source, u"the data source");
  require_plain(asked.catalog, u"the catalogue");
  require_usable(asked.other, u"the text of --other", {}, {});
  require_account(asked.admin, u"the administrator");
  require_account(asked.client, u"the client");
}

// Whatever its attributes and its case: files are copied between machines.
bool exists(const CfpChoice& cfp) {
  constexpr std::int32_t kHidden = 2, kSystem = 4, kDirectory = 16;
  return thread_state().platform().files.any_entry(cfp_path(cfp.folder, cfp.name), kHidden | kSystem | kDirectory);
}

// Whether it takes the place of a file. Throws ToolFailure where it may not be written.
bool replaces(const CfpNewRequest& asked) {
  if (!names_in(asked.cfp.folder)) throw ToolFailure({asked.cfp.folder, u": no folder, or one that cannot be read"});
  const bool there = exists(asked.cfp);
  if (there && !asked.replace) {
    throw ToolFailure({shown_path(asked.cfp), u": exists already; --replace writes it anew"});
  }
  return there;
}

Text password_of(const AccountChoice& account, TextView option, TextView whose, const Surroundings& surroundings,
                 Console& console) {
  if (account.user.value_or(Text()).empty()) return {};
  const Text prompt = join({u"Password of the ", whose, u" ", *account.user, u" (may be empty)"});
  const SecretText password = asked_secret({account.password_variable, option, prompt, true}, surroundings, console);
  require_quotable(password, join({u"the password of the ", whose}));
  return Text(TextView(password));
}

void warn(const CfpNewRequest& asked, Console& console) {
  if (asked.provider.empty()) {
    console.complain({u"warning: without --provider the connection strings name none, and cannot be opened"});
  }
  if (names_password(asked.other)) {
    console.complain(
        {u"warning: others can see the password in --other while the program runs, and in the shell's "
         u"history"});
  }
}

void tell(const CfpNewRequest& asked, const Request& request, bool replaced, Console& console) {
  if (request.format == Format::Json) {
    Json document = begun_document(request, asked.cfp);
    document["engine"] = json_engine(asked.engine);
    document["replaced"] = replaced;
    write_json(document, console);
  } else if (!request.quiet) {
    console.say(
        {shown_path(asked.cfp), replaced ? u": written anew" : u": written", u" (", title_of(asked.engine), u")"});
  }
}

}  // namespace

int cfp_new(const CfpNewRequest& asked, const Request& request, const Surroundings& surroundings, Console& console) {
  require_names(asked.cfp);
  require_values(asked);
  const bool replaced = replaces(asked);
  console.secrets.add_passwords_of(asked.other);
  const SecretText id = asked_new_identification(asked.cfp.id_variable, u"--id-env", surroundings, console);
  PassingParameters made;
  ConnectionParameters& parameters = made.parameters;
  parameters.MotorBD = asked.engine;
  parameters.Provider = asked.provider;
  parameters.DataSource = asked.data_source;
  parameters.InitialCatalogOTablespace = asked.catalog;
  parameters.UsuarioAdm = asked.admin.user.value_or(Text());
  parameters.ClaveAdm = password_of(asked.admin, u"--admin-password-env", u"administrator", surroundings, console);
  parameters.UsuarioCli = asked.client.user.value_or(Text());
  parameters.ClaveCli = password_of(asked.client, u"--client-password-env", u"client", surroundings, console);
  parameters.OtrosParametros = asked.other;
  warn(asked, console);
  write_connection_file(asked.cfp, id, parameters);
  tell(asked, request, replaced, console);
  return exit_code::kDone;
}

}  // namespace qvr::script_tool
