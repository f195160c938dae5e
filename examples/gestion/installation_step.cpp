#include <utility>

#include "automation.h"
#include "console.h"
#include "database.h"
#include "script_run.h"
#include "steps.h"

namespace gestion {
namespace {

constexpr const wchar_t* kApplication = L"Gestion";
constexpr long kFirstVersion = 10000, kLastVersion = 10100;

// What takes the place of the bracketed words, in the order of the call: the parameters of the connection.
std::vector<Value> accounts(const Setting& setting) {
  const Object parameters = Object::create(L"QVRlib21.QVRcfp");
  expect(parameters.call(L"Crear", {kIdentification, setting.folder, kParameterFile}).truth(), L"Crear answered False");
  return {parameters.call(L"InitialCatalogOTablespace"), parameters.call(L"UsuarioAdm"),
          parameters.call(L"ClaveAdm", {kIdentification}), parameters.call(L"UsuarioCli"),
          parameters.call(L"ClaveCli", {kIdentification})};
}

// `which` is what the member wants to know between the folder and the accounts.
std::wstring loaded(const Setting& setting, const wchar_t* member, const std::vector<Value>& which) {
  std::vector<Value> arguments{kIdentification, kJet, setting.scripts};
  arguments.insert(arguments.end(), which.begin(), which.end());
  for (Value& each : accounts(setting)) arguments.push_back(std::move(each));
  arguments.emplace_back(false);  // encryption, which this engine has not
  const Outcome outcome = call_runner(member, std::move(arguments));
  std::wstring text = outcome.result.text();
  expect(outcome.success == !text.empty(), L"The event of the end and the text that was loaded differ");
  return text;
}

std::wstring loaded_update(const Setting& setting, long version) {
  return loaded(setting, L"CargarActualizacion", {kApplication, version});
}

void run(const BusinessScript& script, const std::wstring& connection_string) {
  item(L"commands", std::to_wstring(script.commands));
  const Database reachable(connection_string);  // tells at once, where the library would ask somebody
  const Outcome outcome = run_script(script.text, connection_string);
  expect(outcome.result.truth(), L"The script did not run to its end");
  expect(outcome.total == script.commands, L"The library counts " + std::to_wstring(outcome.total) + L" commands");
  expect(outcome.done + 1 == outcome.total, L"Not all commands succeeded");
  item(L"progress texts", std::to_wstring(outcome.progress_texts));
}

long version_of(const std::wstring& connection_string) {
  return Database(connection_string).first_value(L"SELECT [Versión] FROM [Esquema]").number();
}

void show_version_of(const std::wstring& connection_string, long expected) {
  const long version = version_of(connection_string);
  item(L"version of the database", std::to_wstring(version));
  expect(version == expected, L"The database should have version " + std::to_wstring(expected));
}

void show_users(const Setting& setting, const std::wstring& connection_string) {
  const std::wstring administrator = accounts(setting)[1].text();
  const std::wstring description = Database(connection_string)
                                       .first_value(L"SELECT [Descripción] FROM [Usuarios] WHERE [Nombre] = '" +
                                                    administrator + L"'")
                                       .text();
  item(L"user " + administrator, description);
}

}  // namespace

BusinessScript show_definition(const Setting& setting, const std::wstring& connection_string) {
  say(L"   CargarDefinicion:");
  std::wstring text = loaded(setting, L"CargarDefinicion", {kApplication});
  expect(!text.empty(), L"There is no definition in " + setting.scripts);
  const BusinessScript script = understood(std::move(text));
  say(L"   EjecutarComandos:");
  run(script, connection_string);
  show_users(setting, connection_string);
  show_version_of(connection_string, kFirstVersion);
  return script;
}

BusinessScript show_updates(const Setting& setting, const BusinessScript& definition,
                            const std::wstring& connection_string) {
  say(L"   CargarActualizacion:");
  std::wstring text = loaded_update(setting, version_of(connection_string));
  expect(!text.empty(), L"There is no update in " + setting.scripts);
  const BusinessScript script = understood(std::move(text), definition.tables);
  say(L"   EjecutarComandos:");
  run(script, connection_string);
  show_version_of(connection_string, kLastVersion);
  say(L"   CargarActualizacion from there:");
  expect(loaded_update(setting, kLastVersion).empty(), L"There is an update that should not be there");
  say(L"   Nothing more to do.");
  return script;
}

}  // namespace gestion
