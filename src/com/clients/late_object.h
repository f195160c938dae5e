// Late-bound calls of objects outside the library.
#pragma once

#include <array>
#include <concepts>
#include <memory>

#include "com/clients/dispatch_ids.h"
#include "com/text_bstr.h"
#include "com/variant.h"

namespace qvr::com {

// A text argument that the object may change.
struct ByReference {
  OwnedBstr& text;
};

// Every call throws RuntimeFailure with the object's error (EXCEPINFO). An argument is a text, which goes into the
// object's string without another copy and is wiped afterwards, a LateObject, a ByReference or anything that a Value
// holds.
class LateObject {
 public:
  // With `ids`, the dispatch ids of its interface are kept there, also those of the objects that it gives; without, the
  // object is asked by each call.
  explicit LateObject(HostPtr<IDispatch> object, std::shared_ptr<DispatchIds> ids = nullptr);

  template <class... Arguments>
  void call(const wchar_t* name, const Arguments&... arguments) const {
    OwnedVariant dropped;
    invoke(name, DISPATCH_METHOD, Passed<sizeof...(Arguments)>(arguments...), dropped.get());
  }
  template <class... Arguments>
  Value result_of(const wchar_t* name, const Arguments&... arguments) const {
    OwnedVariant result;
    invoke(name, DISPATCH_METHOD, Passed<sizeof...(Arguments)>(arguments...), result.get());
    return value_from(*result);
  }
  template <class... Arguments>
  Value get(const wchar_t* name, const Arguments&... arguments) const {
    OwnedVariant result;
    invoke(name, DISPATCH_PROPERTYGET, Passed<sizeof...(Arguments)>(arguments...), result.get());
    return value_from(*result);
  }
  // Throws failure 91 for Nothing, 13 for anything but an object.
  template <class... Arguments>
  LateObject get_object(const wchar_t* name, const Arguments&... arguments) const {
    return object_in(get(name, arguments...));
  }
  template <class Argument>
  void put(const wchar_t* name, const Argument& value) const {
    constexpr bool kObject = std::same_as<Argument, LateObject>;
    invoke(name, kObject ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT, Passed<1>(value), nullptr);
  }

  // Leaks the reference on purpose: no Release. False where there is none.
  bool abandon() noexcept { return object_.Detach() != nullptr; }

 private:
  // Arguments in reverse order, as Invoke takes them.
  template <std::size_t count>
  struct Passed {
    template <class... Arguments>
    explicit Passed(const Arguments&... arguments) {
      std::size_t at = count;
      (put_argument(*owned[--at].get(), arguments), ...);
      for (std::size_t i = 0; i < count; ++i) shallow[i] = *owned[i];
    }

    std::array<OwnedVariant, count> owned;
    std::array<VARIANT, count> shallow;  // copies in one array, for Invoke
  };

  template <class Argument>
  static void put_argument(VARIANT& variant, const Argument& argument) {
    if constexpr (std::convertible_to<const Argument&, TextView>) {
      put_text(variant, argument);
    } else if constexpr (std::same_as<Argument, LateObject>) {
      variant.pdispVal = HostPtr<IDispatch>(argument.object_).Detach();
      variant.vt = VT_DISPATCH;
    } else if constexpr (std::same_as<Argument, ByReference>) {
      variant.pbstrVal = argument.text.out();
      variant.vt = VT_BYREF | VT_BSTR;
    } else {
      put_value(variant, argument);
    }
  }
  static void put_text(VARIANT& variant, TextView text);

  template <std::size_t count>
  void invoke(const wchar_t* name, WORD flags, Passed<count> passed, VARIANT* result) const {
    invoke(name, flags, passed.shallow.data(), count, result);
  }
  void invoke(const wchar_t* name, WORD flags, VARIANT* reversed, UINT count, VARIANT* result) const;
  LateObject object_in(const Value& value) const;

  HostPtr<IDispatch> object_;
  std::shared_ptr<DispatchIds> ids_;
  InterfaceIds* kept_;  // of its interface, in ids_; null: none are kept
};

}  // namespace qvr::com
