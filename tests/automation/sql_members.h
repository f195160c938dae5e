// The members that write SQL, each called early and late, for every engine and in every way of passing an argument.
#pragma once

#include <tuple>
#include <utility>

#include "automation/arrays.h"
#include "automation/both.h"

namespace qvr::tests {

// What a member answers, and what the user is told on the way.
struct Outcome {
  Outcome(const wchar_t* expected) : text(expected) {}
  Outcome(std::wstring expected, std::wstring shown) : text(std::move(expected)), box(std::move(shown)) {}
  std::wstring text, box;  // no box: empty
};

inline Outcome told(const wchar_t* box) { return {L"", box}; }
// The box for a number that is no engine; 0 is what an object holds that was assigned none.
inline Outcome undefined(const wchar_t* text = L"") { return {text, L"Motor de Base de Datos no definido: 0"}; }

struct EachEngine {
  Outcome jet, sql_server, oracle, none;
};
inline EachEngine all_engines(const wchar_t* text) { return {text, text, text, text}; }

// Arguments of one call in one way of passing them; the variables stay the owners.
struct Passed {
  std::vector<Var> variables, arguments;
};

// What a slot takes for an argument: variants as they are passed, all else by the place of its content.
inline void place(Passed& passed, std::size_t i, VARIANT*& at) { at = &passed.arguments[i].raw(); }
inline void place(Passed& passed, std::size_t i, BSTR*& at) { at = &passed.variables[i].raw().bstrVal; }
inline void place(Passed& passed, std::size_t i, LONG*& at) { at = &passed.variables[i].raw().lVal; }
inline void place(Passed& passed, std::size_t i, VARIANT_BOOL*& at) { at = &passed.variables[i].raw().boolVal; }

// A slot with its arguments still to come. The last parameter of each is its result.
using EarlyCall = std::function<HRESULT(_QVRcfp&, Passed&, BSTR*)>;

template <class... P, std::size_t... I>
EarlyCall bound(HRESULT (STDMETHODCALLTYPE _QVRcfp::*slot)(P...), std::index_sequence<I...>) {
  return [slot](_QVRcfp& object, [[maybe_unused]] Passed& passed, BSTR* result) {
    std::tuple<P...> arguments;
    (place(passed, I, std::get<I>(arguments)), ...);
    std::get<sizeof...(I)>(arguments) = result;
    return std::apply([&](P... each) { return (object.*slot)(each...); }, arguments);
  };
}

class SqlMembers : public testing::Test {
 protected:
  // Assigns this engine to both objects.
  void use(int engine);

  // Calls the member early and late for each engine, with the arguments by value and by reference, and expects this
  // text, this box and unchanged arguments.
  template <class... P>
  void expect(const wchar_t* name, HRESULT (STDMETHODCALLTYPE _QVRcfp::*slot)(P...), const std::vector<Var>& arguments,
              const EachEngine& expected) {
    expect_engines(name, bound(slot, std::make_index_sequence<sizeof...(P) - 1>()), arguments, expected);
  }

  LateObject late{L"QVRlib21.QVRcfp"};
  LateObject other{L"QVRlib21.QVRcfp"};
  ComPtr<_QVRcfp> early = other.as<_QVRcfp>();

 private:
  void expect_engines(const wchar_t* name, const EarlyCall& slot, const std::vector<Var>& arguments,
                      const EachEngine& expected);
  void expect_outcome(const wchar_t* name, const EarlyCall& slot, Passed passed, const Outcome& expected);
};

}  // namespace qvr::tests
