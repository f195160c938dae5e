#include "servers/faults/fault_table.h"

#include <fstream>
#include <functional>
#include <stdexcept>
#include <utility>

namespace qvr::tests {
namespace {

using Strings = std::vector<std::string>;

std::string trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == text.npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

Strings divided(const std::string& text, const std::string& divider) {
  Strings parts;
  std::size_t from = 0;
  for (std::size_t at; (at = text.find(divider, from)) != text.npos; from = at + divider.size()) {
    parts.push_back(trimmed(text.substr(from, at - from)));
  }
  parts.push_back(trimmed(text.substr(from)));
  return parts;
}

// The rows of the section's tables without their headings, each with its table's first heading.
void for_each_row(const std::function<void(const std::string& heading, const Strings& cells)>& row) {
  std::ifstream file(QVR_TESTS_FAILURES);
  if (!file) throw std::runtime_error(QVR_TESTS_FAILURES " cannot be read");
  bool in_section = false;
  std::string heading;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("## ")) in_section = line == "## On a server that fails";
    if (!line.starts_with("|")) heading.clear();
    if (!in_section || !line.starts_with("|") || line.starts_with("|---")) continue;
    Strings cells = divided(line.substr(1, line.rfind('|') - 1), "|");
    if (heading.empty()) {
      heading = cells.front();
    } else {
      row(heading, cells);
    }
  }
}

std::vector<ServerKind> servers_of(const std::string& cell) {
  if (cell == "both") return {ServerKind::MariaDb, ServerKind::PostgreSql};
  return {cell == "MariaDB" ? ServerKind::MariaDb : ServerKind::PostgreSql};
}

void add_cases(FaultTable& table, const Strings& cells) {
  for (const std::string& fault : divided(cells.at(0), ",")) {
    for (const std::string& when : divided(cells.at(1), ",")) {
      for (const ServerKind server : servers_of(cells.at(2))) {
        for (const std::string& answer : divided(cells.at(3), ",")) {
          const bool asked = answer == "Yes" || answer == "No";
          const std::string name = fault + " " + when + (asked ? " " + answer : "");
          table.cases.push_back({name, fault, when, server, answer == "Yes", cells.at(4), cells.at(5)});
        }
      }
    }
  }
}

void add_messages(FaultTable& table, const Strings& cells) {
  for (const auto& [server, column] : {std::pair{ServerKind::MariaDb, 1u}, {ServerKind::PostgreSql, 2u}}) {
    const Strings quoted = divided(cells.at(column), "`");
    for (std::size_t each = 1; each < quoted.size(); each += 2) {
      for (const std::string& fault : divided(cells.at(0), ",")) {
        table.messages.push_back({fault, server, quoted[each]});
      }
    }
  }
}

void add_unseen(FaultTable& table, const Strings& cells) {
  for (const std::string& fault : divided(cells.at(0), ",")) {
    for (const std::string& when : divided(cells.at(1), ",")) {
      for (const ServerKind server : servers_of(cells.at(2))) table.unseen.push_back({fault, when, server});
    }
  }
}

FaultTable read() {
  FaultTable table;
  for_each_row([&](const std::string& heading, const Strings& cells) {
    if (heading == "what fails") add_cases(table, cells);
    if (heading == "message of") add_messages(table, cells);
    if (heading == "not seen") add_unseen(table, cells);
  });
  return table;
}

}  // namespace

std::string listed_commands(const std::vector<std::string>& numbers) {
  std::string text = numbers.size() == 1 ? "command " : "commands ";
  for (std::size_t each = 0; each < numbers.size(); ++each) {
    if (each > 0) text += each + 1 == numbers.size() ? " and " : ", ";
    text += numbers[each];
  }
  return text;
}

const FaultTable& FaultTable::of_the_manual() {
  static const FaultTable only = read();
  return only;
}

}  // namespace qvr::tests
