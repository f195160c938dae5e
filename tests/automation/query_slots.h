// The slots of the contract on each interface that has it, by member name, so that a test can call them generically.
#pragma once

#include <map>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

#include "automation/query_views.h"

namespace qvr::tests {

template <class I>
using SlotCall = std::function<SlotAnswer(I&, std::vector<Var>&)>;

template <class P>
P slot_argument(Var& var) {
  VARIANT& raw = var.raw();
  if constexpr (std::is_same_v<P, BSTR*>) return &raw.bstrVal;
  else if constexpr (std::is_same_v<P, BSTR>) return raw.bstrVal;
  else if constexpr (std::is_same_v<P, VARIANT*>) return &raw;
  else if constexpr (std::is_same_v<P, SHORT*>) return &raw.iVal;  // also truth values
  else if constexpr (std::is_pointer_v<P>) return reinterpret_cast<P>(&raw.lVal);
  else return static_cast<P>(raw.lVal);
}

// The result's type is that of the last parameter; a 16-bit one is left for the late-bound answer to name.
template <class P>
VARTYPE result_type() {
  if constexpr (std::is_same_v<P, BSTR*>) return VT_BSTR;
  else if constexpr (std::is_same_v<P, SHORT*>) return VT_I2;
  else return VT_I4;
}

template <class I, class... P>
SlotCall<I> slot(HRESULT (STDMETHODCALLTYPE I::*member)(P...)) {
  return [member](I& object, std::vector<Var>& arguments) {
    SlotAnswer outcome;
    const bool has_result = arguments.size() + 1 == sizeof...(P);
    std::vector<Var*> all;
    for (Var& argument : arguments) all.push_back(&argument);
    if (has_result) {
      using Last = std::tuple_element_t<sizeof...(P) - 1, std::tuple<P...>>;
      outcome.value.raw().vt = result_type<Last>();
      all.push_back(&outcome.value);
    }
    outcome.status = [&]<std::size_t... At>(std::index_sequence<At...>) {
      return (object.*member)(slot_argument<P>(*all.at(At))...);
    }
    (std::index_sequence_for<P...>());
    return outcome;
  };
}

template <class I>
struct Slots {
  std::map<std::wstring, SlotCall<I>> methods, readers, writers;
};

const Slots<_iSQL20>& contract_slots();
const Slots<_cSQL20>& select_slots();
const Slots<_uSQL20>& union_slots();

}  // namespace qvr::tests
