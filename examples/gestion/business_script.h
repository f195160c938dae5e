// A script as the library put it together: what it holds, before anything of it runs.
#pragma once

#include <string>
#include <vector>

namespace gestion {

struct TableInScript {
  std::wstring name;
  long inserts = 0;
};

struct BusinessScript {
  std::wstring text;
  long commands = 0;
  std::vector<TableInScript> tables;
};

// What the text holds; its tables come behind those that were there before.
BusinessScript understood(std::wstring text, std::vector<TableInScript> before = {});

// A text of these commands, each followed by its GO line.
std::wstring script_of(const std::vector<std::wstring>& commands);

}  // namespace gestion
