// Late-bound calls of objects outside the library.
#pragma once

#include <initializer_list>
#include <optional>
#include <span>

#include "com/variant.h"

namespace qvr::com {

// Every call throws RuntimeFailure with the object's error (EXCEPINFO).
class LateObject {
 public:
  explicit LateObject(HostPtr<IDispatch> object) : object_(std::move(object)) {}

  // Creates an object; throws failure 429 when that fails.
  static LateObject create(REFCLSID id);

  Value call(const wchar_t* name, std::initializer_list<Value> arguments) const;
  // With one more argument at the end, a text by reference, which the object may change.
  Value call(const wchar_t* name, std::initializer_list<Value> arguments, Text& by_reference) const;
  Value get(const wchar_t* name, std::initializer_list<Value> arguments = {}) const;
  // With text arguments only, which are wiped afterwards.
  Value call_with_secrets(const wchar_t* name, std::initializer_list<TextView> arguments) const;
  void put(const wchar_t* name, const Value& value) const;
  void put_secret(const wchar_t* name, TextView text) const;
  void put_object(const wchar_t* name, const LateObject& object) const;
  LateObject get_object(const wchar_t* name) const;

  ObjectRef as_value() const { return std::make_shared<DispatchObject>(object_.Get()); }
  // Leaks the reference on purpose: no Release. False where there is none.
  bool abandon() noexcept { return object_.Detach() != nullptr; }

 private:
  Value invoke(const wchar_t* name, WORD flags, std::span<const Value> arguments) const;
  Value invoke(const wchar_t* name, WORD flags, DISPPARAMS& parameters) const;

  HostPtr<IDispatch> object_;
};

// The CLSID of this ProgID; nothing when it is not registered.
std::optional<CLSID> registered_class(const wchar_t* program_id);

// The object in a value; throws failure 91 for Nothing, 13 for anything else.
LateObject object_in(const Value& value);

}  // namespace qvr::com
