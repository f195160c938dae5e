#include "events.h"

#include <atomic>

namespace gestion {
namespace {

class EventSink final : public IDispatch {
 public:
  EventSink(ComPtr<ITypeInfo> events, const IID& interface_id, EventHandler handler)
      : events_(std::move(events)), interface_id_(interface_id), handler_(std::move(handler)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** found) noexcept override {
    const bool known = id == IID_IUnknown || id == IID_IDispatch || id == interface_id_;
    *found = known ? this : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() noexcept override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override { return *count = 0, S_OK; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                                   UINT*) noexcept override {
    try {
      const bool argument = parameters->cArgs != 0;
      handler_(name_of(event), argument ? Value::copy_of(parameters->rgvarg[parameters->cArgs - 1]) : Value());
      return S_OK;
    } catch (...) {
      return E_FAIL;
    }
  }

 private:
  std::wstring name_of(DISPID event) const {
    BSTR name = nullptr;
    UINT count = 0;
    require(events_->GetNames(event, &name, 1, &count), L"Looking up the name of an event");
    std::wstring text(name, SysStringLen(name));
    SysFreeString(name);
    return text;
  }

  std::atomic<ULONG> references_ = 0;
  ComPtr<ITypeInfo> events_;
  IID interface_id_;
  EventHandler handler_;
};

ComPtr<IConnectionPoint> first_source(const Object& object) {
  ComPtr<IConnectionPointContainer> container;
  require(object.dispatch()->QueryInterface(IID_IConnectionPointContainer,
                                            reinterpret_cast<void**>(container.ReleaseAndGetAddressOf())),
          L"Asking an object for its events");
  ComPtr<IEnumConnectionPoints> sources;
  require(container->EnumConnectionPoints(sources.ReleaseAndGetAddressOf()), L"Listing the sources of events");
  ComPtr<IConnectionPoint> source;
  ULONG fetched = 0;
  require(sources->Next(1, source.ReleaseAndGetAddressOf(), &fetched), L"Listing the sources of events");
  expect(fetched == 1, L"The object has no events");
  return source;
}

// The description of the events, from the type library that describes the object.
ComPtr<ITypeInfo> description_of(const Object& object, const IID& events) {
  ComPtr<ITypeInfo> own, found;
  require(object.dispatch()->GetTypeInfo(0, LOCALE_USER_DEFAULT, own.ReleaseAndGetAddressOf()),
          L"Asking an object for its description");
  ComPtr<ITypeLib> library;
  UINT index = 0;
  require(own->GetContainingTypeLib(library.ReleaseAndGetAddressOf(), &index), L"Asking for the type library");
  require(library->GetTypeInfoOfGuid(events, found.ReleaseAndGetAddressOf()), L"Looking up the events");
  return found;
}

}  // namespace

Subscription::Subscription(const Object& source, EventHandler handler) : point_(first_source(source)) {
  IID events;
  require(point_->GetConnectionInterface(&events), L"Asking for the interface of the events");
  const ComPtr<EventSink> sink(new EventSink(description_of(source, events), events, std::move(handler)));
  require(point_->Advise(sink.Get(), &cookie_), L"Listening to the events");
}

Subscription::~Subscription() { point_->Unadvise(cookie_); }

}  // namespace gestion
