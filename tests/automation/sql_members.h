// The members that write SQL, each called early and late and in every way of passing an argument. Which text an engine
// gets for a value is the core's to test; here SQL Server stands for all of them.
#pragma once

#include <tuple>
#include <utility>

#include "automation/arrays.h"
#include "automation/both.h"
#include "support/traced.h"

namespace qvr::tests {

// What a member answers, and what the user and the trace are told on the way.
struct Outcome {
  Outcome(const wchar_t* expected) : text(expected) {}
  Outcome(std::wstring expected, std::wstring shown = {}, Text traced = {})
      : text(std::move(expected)), box(std::move(shown)), trace(std::move(traced)) {}
  std::wstring text, box;  // no box: empty
  Text trace;              // no failure: empty
};

inline Outcome told(const wchar_t* box) { return {L"", box}; }
inline Outcome failed(Text trace, const wchar_t* text = L"") { return {text, {}, std::move(trace)}; }

// Arguments of one call in one way of passing them; the variables stay the owners.
struct Passed {
  std::vector<Var> variables, arguments;
};

// What a slot takes for an argument: variants as they are passed, all else by the place of its content.
inline void place(Passed& passed, std::size_t i, VARIANT*& at) { at = &passed.arguments[i].raw(); }
inline void place(Passed& passed, std::size_t i, BSTR*& at) { at = &passed.variables[i].raw().bstrVal; }
inline void place(Passed& passed, std::size_t i, LONG*& at) { at = &passed.variables[i].raw().lVal; }
inline void place(Passed& passed, std::size_t i, VARIANT_BOOL*& at) { at = &passed.variables[i].raw().boolVal; }

// A slot with its arguments still to come, for null pointers in their place where there are none. The last parameter of
// each is its result.
using EarlyCall = std::function<HRESULT(_QVRcfp&, Passed*, BSTR*)>;

template <class... P, std::size_t... I>
EarlyCall bound(HRESULT (STDMETHODCALLTYPE _QVRcfp::*slot)(P...), std::index_sequence<I...>) {
  return [slot](_QVRcfp& object, Passed* passed, BSTR* result) {
    std::tuple<P...> arguments{};
    if (passed != nullptr) (place(*passed, I, std::get<I>(arguments)), ...);
    std::get<sizeof...(I)>(arguments) = result;
    return std::apply([&](P... each) { return (object.*slot)(each...); }, arguments);
  };
}

template <class... P>
EarlyCall bound(HRESULT (STDMETHODCALLTYPE _QVRcfp::*slot)(P...)) {
  return bound(slot, std::make_index_sequence<sizeof...(P) - 1>());
}

class SqlMembers : public testing::Test {
 protected:
  SqlMembers() { use(2); }

  // Assigns this engine to both objects.
  void use(int engine);

  // Calls the member early and late, with the arguments by value and by reference, and expects this text, this box and
  // unchanged arguments.
  void expect(const std::string& name, const EarlyCall& slot, const std::vector<Var>& arguments,
              const Outcome& expected);
  template <class... P>
  void expect(const std::string& name, HRESULT (STDMETHODCALLTYPE _QVRcfp::*slot)(P...),
              const std::vector<Var>& arguments, const Outcome& expected) {
    expect(name, bound(slot), arguments, expected);
  }

  LateObject late{L"QVRlib21.QVRcfp"};
  LateObject other{L"QVRlib21.QVRcfp"};
  ComPtr<_QVRcfp> early = other.as<_QVRcfp>();

 private:
  void expect_outcome(const std::string& name, const EarlyCall& slot, Passed passed, const Outcome& expected);
};

}  // namespace qvr::tests
