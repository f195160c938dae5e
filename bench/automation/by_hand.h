// A host that does by hand, over late binding, what the library does for it.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <span>

#include "automation/arrays.h"
#include "automation/database.h"
#include "automation/host.h"

namespace qvr::bench {

// Ends the program when a call fails: its time would mean nothing.
inline void require(bool succeeded, const std::string& what) {
  if (succeeded) return;
  std::fprintf(stderr, "the benchmark failed: %s\n", what.c_str());
  std::exit(1);
}

inline void require(const tests::LateAnswer& answer) {
  require(SUCCEEDED(answer.result), tests::narrow(answer.description));
}

inline void require_true(const tests::LateAnswer& answer) {
  require(answer);
  require(answer.value.raw().boolVal == VARIANT_TRUE, "a member answered False");
}

// Calls with the least that they need: the id of the member is asked for once, and nothing is allocated.

DISPID id_of(const tests::LateObject& object, const wchar_t* member);
void put(const tests::LateObject& object, DISPID member, VARIANT value, WORD kind = DISPATCH_PROPERTYPUT);
// Arguments from the last to the first.
void call(const tests::LateObject& object, DISPID member, std::span<VARIANT> arguments = {}, VARIANT* result = nullptr);
tests::Var get(const tests::LateObject& object, DISPID member, std::span<VARIANT> arguments = {});
tests::LateObject object_in(const tests::Var& value);

// The database's connection string. Commits do not wait for the disk, which is the most unsteady part of both.
std::wstring connection_string(const tests::Database& database);

// Handles the messages of this thread's windows, so that they stay alive in a long run.
void look_for_messages();

inline constexpr DISPID kProgreso = 1;

// Executes the commands on a connection of their own, in one transaction, with one kept ADODB.Command. Looks for
// messages after each, and tells each sink before it how far the run has come.
void run_by_hand(const std::wstring& connection_string, std::span<const tests::Var> commands,
                 std::span<IDispatch* const> sinks = {});

}  // namespace qvr::bench
