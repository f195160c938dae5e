// The base of the automation objects: reference counting, and calls by name through a table of members.
#pragma once

#include <atomic>
#include <functional>
#include <utility>
#include <vector>

#include "support/ado/com/call.h"
#include "support/ado/com/identifiers.h"
#include "support/ado/com/module.h"

namespace qvr::tests::com {

class DispatchObject;

enum class Kind { Get, Put, Method };

// A property that can be read and written is two members of one id.
struct Member {
  DISPID id;
  TextView name;
  Kind kind;
  unsigned required;  // the fewest and the most arguments, the value of a Put included
  unsigned most;
  std::function<void(DispatchObject&, Call&)> body;
};

using Members = std::vector<Member>;

class DispatchObject : public IDispatch {
 public:
  DispatchObject(const DispatchObject&) = delete;
  DispatchObject& operator=(const DispatchObject&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* arguments,
                                   VARIANT* result, EXCEPINFO* exception, UINT* argument_error) override;

 protected:
  DispatchObject() = default;
  virtual ~DispatchObject() = default;  // through Release

  virtual const Members& members() const = 0;
  virtual bool implements(REFIID) const { return false; }  // beyond IDispatch, under the same pointer

 private:
  void call(DISPID id, WORD flags, const DISPPARAMS& arguments, VARIANT* result);

  ModuleLock lock_;
  std::atomic<ULONG> references_{0};
};

// A counted reference to an object, ours or another's.
template <class T>
class Ref {
 public:
  Ref() = default;
  explicit Ref(T* object) : object_(object) {
    if (object_ != nullptr) object_->AddRef();
  }
  Ref(const Ref& other) : Ref(other.object_) {}
  Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ~Ref() {
    if (object_ != nullptr) object_->Release();
  }
  Ref& operator=(Ref other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }

  T* get() const { return object_; }
  T* operator->() const { return object_; }
  T& operator*() const { return *object_; }
  explicit operator bool() const { return object_ != nullptr; }

 private:
  T* object_ = nullptr;
};

template <class T, class... Arguments>
Ref<T> make(Arguments&&... arguments) {
  return Ref<T>(new T(std::forward<Arguments>(arguments)...));
}

// What a class's table is written with.
template <class Self>
struct Table {
  using Body = void (*)(Self&, Call&);

  static Member get(DISPID id, TextView name, Body body, unsigned most = 0) {
    return entry(id, name, Kind::Get, 0, most, body);
  }
  static Member put(DISPID id, TextView name, Body body) { return entry(id, name, Kind::Put, 1, 1, body); }
  static Member method(DISPID id, TextView name, unsigned required, unsigned most, Body body) {
    return entry(id, name, Kind::Method, required, most, body);
  }

 private:
  static Member entry(DISPID id, TextView name, Kind kind, unsigned required, unsigned most, Body body) {
    return {id,       name, kind,
            required, most, [body](DispatchObject& object, Call& call) { body(static_cast<Self&>(object), call); }};
  }
};

// The object behind a passed interface when it is one of ours and of the class asked for; null otherwise.
template <class T>
Ref<T> own_object(IUnknown* object) {
  void* found = nullptr;
  if (object == nullptr || FAILED(object->QueryInterface(kOwnObject, &found))) return {};
  auto* own = static_cast<DispatchObject*>(found);
  Ref<T> result(dynamic_cast<T*>(own));
  own->Release();
  return result;
}

}  // namespace qvr::tests::com
