// Writes the script for one engine to standard output. Usage: engine_scripts sqlserver|oracle [NUMBER OF A CHECK TO
// BREAK]
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "engines/checked_script.h"

int main(int count, char** arguments) {
  using namespace qvr;
  const std::string_view name = count > 1 ? arguments[1] : "";
  if (name != "sqlserver" && name != "oracle") {
    std::fputs("usage: engine_scripts sqlserver|oracle [NUMBER OF A CHECK TO BREAK]\n", stderr);
    return 2;
  }
  tests::CheckedScript script(name == "oracle" ? Engine::Oracle : Engine::SqlServer,
                              count > 2 ? std::atoi(arguments[2]) : 0);
  tests::add_literals(script);
  tests::add_patterns(script);
  tests::add_clauses(script);
  tests::add_statements(script);
  tests::add_searches(script);
  tests::add_queries(script);
  const std::string text = std::move(script).finished();
  return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() ? 0 : 1;
}
