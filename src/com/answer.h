// Conversion of arguments and results between automation and the core. The only place where an exception becomes an
// HRESULT.
#pragma once

#include "QVRlib21.h"
#include "base/engine.h"
#include "base/secret_text.h"
#include "com/class_table.h"
#include "com/com.h"
#include "com/late_failure.h"
#include "com/text_bstr.h"
#include "com/variant.h"
#include "platform/windows/floating_point.h"

namespace qvr::com {

// Arguments. Early-bound callers may pass null pointers and null strings.
inline Text text_of(BSTR* argument) { return argument != nullptr ? text_from(*argument) : Text(); }
inline SecretText secret_of(BSTR* argument) { return SecretText(text_of(argument)); }
inline bool truth_of(const VARIANT_BOOL* argument) { return argument != nullptr && *argument != VARIANT_FALSE; }
inline std::int16_t short_of(const SHORT* argument) { return argument != nullptr ? *argument : std::int16_t{0}; }
template <class Number>
std::int32_t number_of(const Number* argument) {
  return argument != nullptr ? static_cast<std::int32_t>(*argument) : 0;
}
template <class Number>
Engine engine_of(const Number* argument) {
  return Engine{number_of(argument)};
}
inline Value value_of(const VARIANT* argument) {
  return argument != nullptr ? value_from(*argument) : Value(Missing{});
}

// An object of another library; any interface will do, as it is called late-bound.
template <class Interface>
IDispatch* object_of(Interface** argument) {
  return argument != nullptr ? reinterpret_cast<IDispatch*>(*argument) : nullptr;
}

// Writes a text back to the caller's variable if the member changed it. Otherwise the variable is not touched: the host
// may have written to it meanwhile.
inline void give_back(BSTR* argument, const Text& taken, const Text& left) {
  if (argument == nullptr || taken == left) return;
  OwnedBstr changed(left);
  std::swap(*argument, *changed.out());
}

// Results, by the type in the core: VARIANT_BOOL and a 16-bit integer are the same C++ type.
inline void put_result(VARIANT_BOOL* out, bool result) { *out = result ? VARIANT_TRUE : VARIANT_FALSE; }
inline void put_result(SHORT* out, std::int16_t result) { *out = result; }
inline void put_result(BSTR* out, const Text& result) { *out = new_bstr(result); }
inline void put_result(BSTR* out, const SecretText& result) { *out = new_bstr(result); }
inline void put_result(VARIANT* out, const Value& result) { put_value(*out, result); }
inline void put_result(LONG* out, std::int32_t result) { *out = result; }
inline void put_result(MotoresBD* out, Engine result) { *out = static_cast<MotoresBD>(result); }

// Runs the body under the default floating-point state. RuntimeFailure becomes its HRESULT with error info, out of
// memory `out_of_memory`, any other exception E_FAIL. All are traced as failures of this class.
template <class Body>
HRESULT guarded(REFCLSID owner, HRESULT out_of_memory, Body&& body, SourcePlace place = SourcePlace::here()) noexcept {
  const windows::DefaultFloatingPoint calculating;
  try {
    return std::forward<Body>(body)();
  } catch (const RuntimeFailure& failure) {
    trace_current_failure(class_name(owner), place);
    set_error_info(failure.detail());
    return result_of(failure.detail().number);
  } catch (const std::bad_alloc&) {
    trace_current_failure(class_name(owner), place);
    return out_of_memory;
  } catch (...) {
    trace_current_failure(class_name(owner), place);
    return E_FAIL;
  }
}

// Runs a member's body and returns its result. Out of memory while converting arguments gives the default result.
template <class Out, class Body>
HRESULT answer(REFCLSID owner, Out* out, Body&& body, SourcePlace place = SourcePlace::here()) noexcept {
  if (out == nullptr) return E_POINTER;
  *out = Out{};
  const auto put = [&] {
    put_result(out, std::forward<Body>(body)());
    return S_OK;
  };
  return guarded(owner, S_OK, put, place);
}

// The same for members without a result.
template <class Body>
HRESULT perform(REFCLSID owner, Body&& body, SourcePlace place = SourcePlace::here()) noexcept {
  const auto run = [&] {
    std::forward<Body>(body)();
    return S_OK;
  };
  return guarded(owner, S_OK, run, place);
}

}  // namespace qvr::com
