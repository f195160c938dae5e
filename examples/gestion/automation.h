// Late-bound automation: classes by their names, members by theirs. Nothing here knows the library it is used with.
#pragma once

#include <windows.h>

#include <oleauto.h>
#include <wrl/client.h>

#include <initializer_list>
#include <stdexcept>
#include <string>
#include <vector>

namespace gestion {

using Microsoft::WRL::ComPtr;

// Something is not as it should be; the text is UTF-8 and for the person at the screen.
class Failure : public std::runtime_error {
 public:
  explicit Failure(const std::wstring& text);
};

std::wstring hexadecimal(HRESULT result);
void require(HRESULT result, const std::wstring& what);
void expect(bool as_expected, const std::wstring& otherwise);

class Object;

// A VARIANT with an owner.
class Value {
 public:
  Value() noexcept { VariantInit(&variant_); }
  Value(const wchar_t* text);
  Value(const std::wstring& text);
  Value(bool truth) noexcept;
  Value(int number) noexcept : Value(static_cast<long>(number)) {}
  Value(long number) noexcept;
  Value(const Object& object) noexcept;
  Value(std::initializer_list<const wchar_t*> texts);  // a list, as scripts pass one
  Value(const Value& other) noexcept;
  Value(Value&& other) noexcept;
  Value& operator=(Value other) noexcept;
  ~Value() { VariantClear(&variant_); }

  const VARIANT& variant() const { return variant_; }
  VARIANT* out() { return &variant_; }

  std::wstring text() const;
  long number() const;
  bool truth() const;
  Object object() const;

  // What an event passes, by value or by reference.
  static Value copy_of(const VARIANT& variant);

 private:
  Value as(VARTYPE type) const;
  VARIANT variant_;
};

class Object {
 public:
  explicit Object(ComPtr<IDispatch> dispatch) : dispatch_(std::move(dispatch)) {}
  static Object create(const std::wstring& class_name);

  // Calls a method or reads a property, as scripts do: who has the object decides which of them it is.
  Value call(const wchar_t* member, std::vector<Value> arguments = {}) const;
  void put(const wchar_t* member, const Value& value) const;
  IDispatch* dispatch() const { return dispatch_.Get(); }

 private:
  DISPID id_of(const wchar_t* member) const;
  Value invoke(const wchar_t* member, WORD flags, DISPPARAMS& parameters) const;

  ComPtr<IDispatch> dispatch_;
};

}  // namespace gestion
