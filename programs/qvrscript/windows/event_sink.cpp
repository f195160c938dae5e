#include "qvrscript/windows/event_sink.h"

#include "com/late_failure.h"
#include "com/variant.h"

namespace qvr::script_tool::windows {
namespace {

using com::ComPtr;

class EventSink final : public IDispatch {
 public:
  EventSink(REFIID events, TriedMachine::Heard heard) : events_(events), heard_(std::move(heard)) {}

  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override {
    const bool known = id == IID_IUnknown || id == IID_IDispatch || id == events_;
    *found = known ? this : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() noexcept override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override { return *count = 0, S_OK; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                      UINT*) noexcept override {
    return or_default({}, E_FAIL, [&] {
      heard_(event, parameters->cArgs == 0 ? Value() : com::value_from(parameters->rgvarg[0]));
      return S_OK;
    });
  }

 private:
  ~EventSink() = default;

  ULONG references_ = 0;  // of one thread
  const IID events_;
  const TriedMachine::Heard heard_;
};

}  // namespace

std::shared_ptr<void> listening(IDispatch& source, REFIID events, TriedMachine::Heard heard) {
  ComPtr<IConnectionPointContainer> container;
  ComPtr<IConnectionPoint> point;
  com::require(source.QueryInterface(IID_PPV_ARGS(&container)));
  com::require(container->FindConnectionPoint(events, &point));
  const ComPtr<IDispatch> sink(new EventSink(events, std::move(heard)));
  DWORD cookie = 0;
  com::require(point->Advise(sink.Get(), &cookie));
  IConnectionPoint* const held = point.Detach();
  return std::shared_ptr<void>(held, [cookie](void* advised) {
    auto* const connection = static_cast<IConnectionPoint*>(advised);
    connection->Unadvise(cookie);
    connection->Release();
  });
}

}  // namespace qvr::script_tool::windows
