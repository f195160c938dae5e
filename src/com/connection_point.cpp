#include "com/connection_point.h"

#include <algorithm>

#include "com/answer.h"
#include "com/enumerator.h"

namespace qvr::com {
namespace {

struct Connections {
  using Interface = IEnumConnections;
  using Item = CONNECTDATA;
  using Stored = std::pair<HostPtr<IUnknown>, DWORD>;
  static CONNECTDATA give(const Stored& sink) noexcept { return {HostPtr<IUnknown>(sink.first).Detach(), sink.second}; }
};

struct Points {
  using Interface = IEnumConnectionPoints;
  using Item = IConnectionPoint*;
  using Stored = ComPtr<IConnectionPoint>;
  static IConnectionPoint* give(const Stored& point) noexcept { return ComPtr<IConnectionPoint>(point).Detach(); }
};

template <class Traits>
HRESULT new_enumerator(std::vector<typename Traits::Stored> items, typename Traits::Interface** out) {
  *out = new Enumerator<Traits>(std::make_shared<const std::vector<typename Traits::Stored>>(std::move(items)));
  return S_OK;
}

void invoke_sink(IDispatch& sink, DISPID event, OwnedVariant& argument) noexcept {
  VARIANT passed;
  passed.vt = static_cast<VARTYPE>(VT_BYREF | argument->vt);
  passed.byref = &argument->llVal;
  DISPPARAMS arguments{&passed, nullptr, 1, 0};
  OwnedVariant result;
  EXCEPINFO exception{};
  const HostFloatingPoint host;
  if (FAILED(sink.Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &arguments, result.get(), &exception,
                         nullptr))) {
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
  }
}

}  // namespace

// By ascending cookie and not over a copy of the list: a sink that is disconnected meanwhile hears nothing more, and
// Terminado needs no memory to be fired.
void ConnectionPoint::fire(DISPID event, const std::function<void(VARIANT&)>& put) noexcept {
  const DWORD end = next_cookie_;
  for (DWORD told = 0;;) {
    const auto next = std::ranges::find_if(sinks_,
                                           [=](const Sink& sink) { return sink.cookie > told && sink.cookie < end; });
    if (next == sinks_.end()) return;
    told = next->cookie;
    const HostPtr<IDispatch> kept = next->dispatch;
    OwnedVariant argument;
    put(*argument.get());
    invoke_sink(*kept.Get(), event, argument);
  }
}

HRESULT ConnectionPoint::QueryInterface(REFIID id, void** found) noexcept {
  if (found == nullptr) return E_POINTER;
  *found = id == IID_IUnknown || id == IID_IConnectionPoint ? this : nullptr;
  if (*found == nullptr) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

HRESULT ConnectionPoint::GetConnectionInterface(IID* id) noexcept {
  if (id == nullptr) return E_POINTER;
  *id = events_;
  return S_OK;
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) noexcept {
  if (container == nullptr) return E_POINTER;
  *container = &container_;
  container_.AddRef();
  return S_OK;
}

HRESULT ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) noexcept {
  if (sink == nullptr || cookie == nullptr) return E_POINTER;
  *cookie = 0;
  return guarded(GUID_NULL, E_OUTOFMEMORY, [&] {
    HostPtr<IDispatch> dispatch;
    void** const out = reinterpret_cast<void**>(&dispatch);
    // Some sinks implement the event interface's IID, others only IDispatch.
    const auto answers_to = [&](REFIID id) {
      return SUCCEEDED(by_host([&] { return sink->QueryInterface(id, out); }));
    };
    if (!answers_to(events_) && !answers_to(IID_IDispatch)) return CONNECT_E_CANNOTCONNECT;
    sinks_.push_back({next_cookie_, std::move(dispatch)});
    *cookie = next_cookie_++;
    return S_OK;
  });
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie) noexcept {
  const auto sink = std::ranges::find(sinks_, cookie, &Sink::cookie);
  if (sink == sinks_.end()) return CONNECT_E_NOCONNECTION;
  const Sink leaving = std::move(*sink);  // released last, as Release can re-enter
  sinks_.erase(sink);
  return S_OK;
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections** connections) noexcept {
  if (connections == nullptr) return E_POINTER;
  *connections = nullptr;
  return guarded(GUID_NULL, E_OUTOFMEMORY, [&] {
    std::vector<Connections::Stored> items;
    for (const Sink& sink : sinks_) items.emplace_back(HostPtr<IUnknown>(sink.dispatch.Get()), sink.cookie);
    return new_enumerator<Connections>(std::move(items), connections);
  });
}

HRESULT enumerate_points(IConnectionPoint& point, IEnumConnectionPoints** points) noexcept {
  if (points == nullptr) return E_POINTER;
  *points = nullptr;
  return guarded(GUID_NULL, E_OUTOFMEMORY, [&] { return new_enumerator<Points>({Points::Stored(&point)}, points); });
}

HRESULT find_point(ConnectionPoint& point, REFIID id, IConnectionPoint** found) noexcept {
  if (found == nullptr) return E_POINTER;
  *found = nullptr;
  IID events;
  point.GetConnectionInterface(&events);
  if (id != events) return CONNECT_E_NOCONNECTION;
  *found = &point;
  point.AddRef();
  return S_OK;
}

}  // namespace qvr::com
