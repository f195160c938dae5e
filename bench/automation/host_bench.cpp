// What people wait for, each beside the same done by hand over late binding, under Wine or on Windows: all of it, or
// the subjects that the arguments name. ADO is the one of the tests, into SQLite files, and
// for procedures into the server beside this program (tests/servers/with_server.py).
#include <algorithm>
#include <span>
#include <string_view>

#include "automation/boxes.h"
#include "automation/host.h"
#include "automation/library.h"
#include "automation/measures.h"

namespace {

using namespace qvr::bench;

constexpr struct {
  std::string_view name;
  void (*measure)(Times&);
} kSubjects[] = {
    {"first_list", measure_first_list},           {"search_box", measure_search_box},
    {"connection_file", measure_connection_file}, {"inserts", measure_inserts},
    {"procedure_call", measure_procedure_call},   {"installation", measure_installation},
};

}  // namespace

int main(int count, char** arguments) {
  const std::span wanted(arguments + 1, static_cast<std::size_t>(count - 1));
  // Before anything is loaded.
  if (count == 2 && starts_first_list(arguments[1])) return first_list_in_this_process(arguments[1]);
  OleInitialize(nullptr);
  using namespace qvr::tests;
  const InProcessServer library(beside_program(L"QVRlib21.dll")), ado(beside_program(L"testado.dll"));
  library.register_it();
  ado.register_it();
  Times times;
  {
    const Person person;
    for (const auto& [name, measure] : kSubjects) {
      if (wanted.empty() || std::ranges::find(wanted, name) != wanted.end()) measure(times);
    }
  }
  times.print();
  ado.unregister_it();
  library.unregister_it();
  return 0;
}
