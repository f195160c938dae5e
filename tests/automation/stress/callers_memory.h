// The memory of a caller: whatever its arguments hold and refer to, released at the end, comparable before.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <deque>
#include <string>
#include <string_view>

namespace qvr::tests {

class CallersMemory {
 public:
  CallersMemory() = default;
  ~CallersMemory();
  CallersMemory(const CallersMemory&) = delete;
  CallersMemory& operator=(const CallersMemory&) = delete;

  // A variable that holds this text.
  BSTR& text(std::wstring_view content);
  BSTR& bytes_as_text(std::string_view bytes);
  BSTR& no_text();
  // A variable whose bits the caller makes; nothing in it is released.
  VARIANT& variant();
  VARIANT& variant(VARTYPE type, void* refers_to);
  // A typed variable of up to 64 bytes.
  void* variable();
  // An array and a variable that holds it.
  SAFEARRAY*& array(VARTYPE type, LONG lower, ULONG count);
  SAFEARRAY*& array(VARTYPE type, std::initializer_list<SAFEARRAYBOUND> bounds);
  SAFEARRAY*& no_array();

  // All of it as bits.
  std::string picture() const;

 private:
  struct Variable {
    alignas(16) unsigned char bytes[64];
  };
  SAFEARRAY*& keep(SAFEARRAY* array);

  std::deque<BSTR> texts_;
  std::deque<VARIANT> variants_;
  std::deque<Variable> variables_;
  std::deque<SAFEARRAY*> arrays_;
};

// A variant of this type, with this content or reference.
VARIANT variant_of(VARTYPE type, void* content = nullptr);

}  // namespace qvr::tests
