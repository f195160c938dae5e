// As little late-bound automation as the example needs.
#pragma once

#include <windows.h>

#include <oleauto.h>
#include <wrl/client.h>

#include <initializer_list>
#include <stdexcept>
#include <string>
#include <vector>

namespace registration_free {

using Microsoft::WRL::ComPtr;

// Throws with what was tried and COM's own number.
void require(HRESULT result, const std::wstring& what);

// A VARIANT with an owner.
class Value {
 public:
  Value() { VariantInit(&variant_); }
  Value(const wchar_t* text);
  Value(long number);
  Value(bool truth);
  static Value list(std::initializer_list<const wchar_t*> texts);
  Value(const Value& other);
  Value& operator=(const Value&) = delete;
  ~Value() { VariantClear(&variant_); }

  std::wstring text() const;
  const VARIANT& variant() const { return variant_; }
  VARIANT* out() { return &variant_; }
  BSTR* out_text();

 private:
  VARIANT variant_;
};

class LateObject {
 public:
  explicit LateObject(const wchar_t* program_id);
  // Calls a method or reads a property, as scripts do.
  Value call(const wchar_t* member, std::vector<Value> arguments) const;

 private:
  ComPtr<IDispatch> object_;
};

}  // namespace registration_free
