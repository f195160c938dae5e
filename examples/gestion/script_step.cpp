#include <memory>

#include "automation.h"
#include "boxes.h"
#include "console.h"
#include "database.h"
#include "script_run.h"
#include "steps.h"

namespace gestion {
namespace {

constexpr const wchar_t* kTable = L"Clientes";
constexpr int kBoxesPerFailure = 2;  // the report of the failure, and the question whether to go on

std::wstring insert_client(int number, const wchar_t* name, const wchar_t* town) {
  return L"INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Alta])\r\nVALUES (" +
         std::to_wstring(number) + L", '" + name + L"', '" + town + L"', 28, '2024-09-02')";
}

// Five commands, the third of which names a table that does not exist.
std::vector<std::wstring> commands_with_mistake() {
  return {
      insert_client(901, L"Panadería Núñez", L"Alcalá de Henares"),
      insert_client(902, L"Óptica Ibáñez", L"Móstoles"),
      L"UPDATE [Clinetes] SET [Nombre] = 'Almacén' WHERE [Código] = 901",
      insert_client(904, L"Cafetería La Peña", L"Getafe"),
      insert_client(905, L"Ferretería Güell", L"Leganés"),
  };
}

long clients(const std::wstring& connection_string) { return Database(connection_string).rows_of(kTable); }

// True when the script was told to go on. Where nobody answers for the person, both answers are right.
bool run_with_mistake(const Setting& setting, const std::wstring& connection_string, const wchar_t* answer) {
  std::unique_ptr<BoxAnswerer> answerer;
  if (setting.answer_boxes) answerer = std::make_unique<BoxAnswerer>(answer, kBoxesPerFailure);
  say(std::wstring(L"   The library will report the failure, then ask. Please answer: ") + answer);
  const bool result = run_script(script_of(commands_with_mistake()), connection_string).result.truth();
  if (answerer != nullptr) {
    answerer->expect_all_answered();
    expect(result == (std::wstring(answer) == L"yes"), L"The answer had no effect");
  }
  return result;
}

// The rows that the run left behind.
long show_failure(const Setting& setting, const std::wstring& connection_string, const wchar_t* answer) {
  const long before = clients(connection_string);
  item(L"rows of Clientes before", std::to_wstring(before));
  const bool went_on = run_with_mistake(setting, connection_string, answer);
  const long added = clients(connection_string) - before;
  item(L"rows of Clientes after", std::to_wstring(before + added));
  const long expected = went_on ? static_cast<long>(commands_with_mistake().size()) - 1 : 0;
  expect(added == expected, L"The run left " + std::to_wstring(added) + L" rows and not " + std::to_wstring(expected));
  say(went_on ? L"   The wrong command was left out, the others were applied."
              : L"   Everything was taken back, the first two commands too.");
  return added;
}

}  // namespace

void show_failures(const Setting& setting, BusinessScript& script, const std::wstring& connection_string) {
  long left = 0;
  for (const wchar_t* answer : {L"no", L"yes"}) {
    left += show_failure(setting, connection_string, answer);
    if (left == 0) say();
  }
  for (TableInScript& table : script.tables) {
    if (table.name == kTable) table.inserts += left;
  }
}

void show_rows(const BusinessScript& script, const std::wstring& connection_string) {
  const Database database(connection_string);
  for (const TableInScript& table : script.tables) {
    const long rows = database.rows_of(table.name);
    item(table.name, std::to_wstring(rows) + L" rows");
    expect(rows == table.inserts, L"The commands inserted " + std::to_wstring(table.inserts) + L" rows");
  }
}

}  // namespace gestion
