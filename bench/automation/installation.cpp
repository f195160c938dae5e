// Installing the database of the example.
#include <algorithm>

#include "automation/by_hand.h"
#include "automation/measures.h"

namespace qvr::bench {
namespace {

using namespace qvr::tests;

constexpr int kJet = 1, kRounds = 40;
constexpr const wchar_t* kInsertLine = L"INSERT INTO [L\u00edneas]";

std::wstring definition(const LateObject& runner) {
  const LateAnswer loaded = runner.call(L"CargarDefinicion", {L"bench", kJet, QVR_BENCH_SCRIPTS, L"Gestion", L"Gestion",
                                                              L"adm", L"clave1", L"cli", L"clave2", false});
  require(loaded);
  return loaded.value.text();
}

std::vector<std::wstring> commands_of(const std::wstring& script) {
  static const std::wstring separator = L"\r\nGO\r\n";
  std::vector<std::wstring> commands;
  std::size_t start = 0;
  for (auto at = script.find(separator); at != std::wstring::npos; at = script.find(separator, start)) {
    commands.push_back(script.substr(script.find_first_not_of(L"\r\n", start), at - start));
    start = at + separator.size();
  }
  return commands;
}

// An empty database.
struct Place {
  explicit Place(std::ptrdiff_t lines) : expected(std::to_string(lines)) {}
  void check() const {
    require(database.ask(L"select count(*) from [L\u00edneas]") == expected, "not all lines of orders are there");
  }

  Database database;
  std::string expected;
};

void by_library(Place& place) {
  const LateObject runner(L"QVRlib21.QVRScr");
  require_true(
      runner.call(L"EjecutarComandos", {L"bench", kJet, definition(runner), connection_string(place.database)}));
}

}  // namespace

void measure_installation(Times& times) {
  const std::vector<std::wstring> commands = commands_of(definition(LateObject(L"QVRlib21.QVRScr")));
  const std::vector<Var> ready(commands.begin(), commands.end());
  const auto lines = std::ranges::count_if(commands, [](const auto& each) { return each.starts_with(kInsertLine); });
  require(lines > 0, "the definition has no lines of orders");
  times.beside_on(
      "Installation", [&] { return Place(lines); }, by_library,
      [&](Place& place) { run_by_hand(connection_string(place.database), ready); }, kRounds);
}

}  // namespace qvr::bench
