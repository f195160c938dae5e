// What people wait for, each beside the same done by hand over late binding, under Wine or on Windows. ADO is the one
// of the tests, into SQLite files.
#include "automation/boxes.h"
#include "automation/host.h"
#include "automation/library.h"
#include "automation/measures.h"

int main(int count, char** arguments) {
  using namespace qvr;
  if (count > 1) return bench::first_list_in_this_process(arguments[1]);
  OleInitialize(nullptr);
  const tests::Server library(tests::beside_program(L"QVRlib21.dll")), ado(tests::beside_program(L"testado.dll"));
  library.register_it();
  ado.register_it();
  bench::Times times;
  {
    const tests::Person person;
    bench::measure_first_list(times);
    bench::measure_connection_file(times);
    bench::measure_inserts(times);
    bench::measure_procedure_call(times);
    bench::measure_installation(times);
  }
  times.print();
  ado.unregister_it();
  library.unregister_it();
  return 0;
}
