// A host that knows only automation, and one that knows the interfaces.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "automation/variant_list.h"
#include "com/com_ptr.h"

namespace qvr::tests {

using com::ComPtr;

// All that a late-bound call answers.
struct LateAnswer {
  HRESULT result = E_FAIL;
  Var value;
  UINT wrong_argument = 0xFFFF;  // as given back; 0xFFFF when nothing was
  HRESULT code = S_OK;           // of the exception
  std::wstring description, source;
};

class LateObject {
 public:
  // By program id; the test fails where the class cannot be created.
  explicit LateObject(const wchar_t* program_id);
  explicit LateObject(ComPtr<IDispatch> object) : object_(std::move(object)) {}

  LateAnswer call(const wchar_t* name, std::vector<Var> arguments = {}, WORD flags = DISPATCH_METHOD) const;
  LateAnswer get(const wchar_t* name, std::vector<Var> arguments = {}) const {
    return call(name, std::move(arguments), DISPATCH_PROPERTYGET);
  }
  LateAnswer put(const wchar_t* name, Var value) const;
  // The first `named.size()` arguments belong to these names, the others to positions.
  LateAnswer call_named(const wchar_t* name, std::vector<const wchar_t*> named, std::vector<Var> arguments) const;
  LateAnswer invoke(DISPID id, WORD flags, DISPPARAMS& parameters) const;

  IDispatch* get() const { return object_.Get(); }
  template <class I>
  ComPtr<I> as() const {
    ComPtr<I> found;
    object_.As(&found);
    return found;
  }

 private:
  ComPtr<IDispatch> object_;
};

// A BSTR variable of an early-bound host.
class Bstr {
 public:
  Bstr() = default;
  Bstr(const wchar_t* text) : text_(text != nullptr ? SysAllocString(text) : nullptr) {}
  Bstr(const std::wstring& text) : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
  ~Bstr() { SysFreeString(text_); }
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  BSTR* operator&() { return &text_; }
  BSTR get() const { return text_; }
  std::wstring text() const { return std::wstring(text_ != nullptr ? text_ : L"", SysStringLen(text_)); }

 private:
  BSTR text_ = nullptr;
};

// Runs the body on a thread of its own with an apartment: the language and the services are chosen once per thread.
void on_fresh_thread(const std::function<void()>& body);

// The same with this setting of the user's for the language: "0" Spanish, "1" English, "3" French.
void on_thread_in_language(const wchar_t* setting, const std::function<void()>& body);

// Path of a file beside the running test program.
std::wstring beside_program(const wchar_t* name);

// A folder of this test process's own, removed at its end.
const std::wstring& work_folder();

}  // namespace qvr::tests
