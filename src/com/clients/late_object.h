// Calls by name on objects outside the library.
#pragma once

#include <initializer_list>
#include <optional>
#include <span>

#include "com/variant.h"

namespace qvr::com {

// Every call throws RuntimeFailure with what the object said of its error.
class LateObject {
 public:
  explicit LateObject(HostPtr<IDispatch> object) : object_(std::move(object)) {}

  // A new object of the class; throws failure 429 when it cannot be created.
  static LateObject create(REFCLSID id);

  Value call(const wchar_t* name, std::initializer_list<Value> arguments) const;
  // With one more argument behind the others: a text by reference, which the object may change.
  Value call(const wchar_t* name, std::initializer_list<Value> arguments, Text& by_reference) const;
  Value get(const wchar_t* name, std::initializer_list<Value> arguments = {}) const;
  // All of the arguments texts, of which no copy stays in memory.
  Value call_with_secrets(const wchar_t* name, std::initializer_list<TextView> arguments) const;
  void put(const wchar_t* name, const Value& value) const;
  void put_secret(const wchar_t* name, TextView text) const;
  void put_object(const wchar_t* name, const LateObject& object) const;
  LateObject get_object(const wchar_t* name) const;

  ObjectRef as_value() const { return std::make_shared<DispatchObject>(object_.Get()); }
  // Gives the reference up without releasing it.
  void abandon() noexcept { static_cast<void>(object_.Detach()); }

 private:
  Value invoke(const wchar_t* name, WORD flags, std::span<const Value> arguments) const;
  Value invoke(const wchar_t* name, WORD flags, DISPPARAMS& parameters) const;

  HostPtr<IDispatch> object_;
};

// The class registered under this program id; nothing when there is none.
std::optional<CLSID> registered_class(const wchar_t* program_id);

// The object in a value; throws failure 91 for Nothing, 13 for anything else.
LateObject object_in(const Value& value);

}  // namespace qvr::com
