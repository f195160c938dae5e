#include "business_script.h"

#include <utility>

#include "automation.h"
#include "text.h"

namespace gestion {
namespace {

constexpr std::wstring_view kGo = L"\r\nGO\r\n";

// What stands in brackets after `lead`; empty when the command does not hold `lead`.
std::wstring name_after(const std::wstring& command, std::wstring_view lead) {
  const auto at = command.find(lead);
  if (at == std::wstring::npos) return {};
  const auto from = at + lead.size();
  return command.substr(from, command.find(L']', from) - from);
}

void note_command(BusinessScript& script, const std::wstring& command) {
  if (const std::wstring created = name_after(command, L"CREATE TABLE ["); !created.empty()) {
    script.tables.push_back({created, 0});
  }
  const std::wstring filled = name_after(command, L"INSERT INTO [");
  for (TableInScript& table : script.tables) {
    if (table.name == filled) ++table.inserts;
  }
}

}  // namespace

BusinessScript understood(std::wstring text, std::vector<TableInScript> before) {
  BusinessScript script{std::move(text), 0, std::move(before)};
  std::vector<std::wstring> commands = split(script.text, kGo);
  expect(trimmed(commands.back()).empty(), L"The last command of the script has no GO line");
  commands.pop_back();
  script.commands = static_cast<long>(commands.size());
  for (const std::wstring& command : commands) note_command(script, command);
  expect(!script.tables.empty(), L"The script creates no table");
  return script;
}

std::wstring script_of(const std::vector<std::wstring>& commands) {
  std::wstring text;
  for (const std::wstring& command : commands) text.append(command).append(kGo);
  return text;
}

}  // namespace gestion
