// The script as the business wrote it: what it holds, before anything of it runs.
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

BusinessScript read_script(const std::wstring& path);

// A text of these commands, each followed by its GO line.
std::wstring script_of(const std::vector<std::wstring>& commands);

}  // namespace gestion
