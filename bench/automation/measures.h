// What people wait for, one function each; host_bench.cpp calls them in turn.
#pragma once

#include "automation/timing.h"

namespace qvr::bench {

void measure_first_list(Times& times);
// What a process does that measure_first_list starts with this argument; its exit code is the time in microseconds.
bool starts_first_list(const std::string& argument);
int first_list_in_this_process(const std::string& argument);
void measure_search_box(Times& times);
void measure_connection_file(Times& times);
void measure_inserts(Times& times);
void measure_procedure_call(Times& times);
void measure_installation(Times& times);

}  // namespace qvr::bench
