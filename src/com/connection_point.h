// Events: the connection point.
#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "com/com.h"
#include "com/host_ptr.h"

namespace qvr::com {

// The single connection point of an object, for a dispinterface. It is a member of the object that fires the events and
// shares its reference count.
class ConnectionPoint final : public IConnectionPoint {
 public:
  ConnectionPoint(IConnectionPointContainer& container, const IID& events) : container_(container), events_(events) {}

  // Releasing a sink can re-enter Unadvise.
  ~ConnectionPoint() { const std::vector<Sink> leaving = std::exchange(sinks_, {}); }
  ConnectionPoint(const ConnectionPoint&) = delete;
  ConnectionPoint& operator=(const ConnectionPoint&) = delete;

  // Fires the event to every connected sink. Sinks may fail, unadvise and advise others meanwhile (re-entrance): one
  // that is disconnected before its turn hears nothing, one that is connected meanwhile hears the next event first. The
  // argument goes by reference. It is put into an empty variant for each sink, so that no sink sees what another one
  // wrote; `put` must not throw.
  void fire(DISPID event, const std::function<void(VARIANT&)>& put) noexcept;

  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override;
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return container_.AddRef(); }
  STDMETHODIMP_(ULONG) Release() noexcept override { return container_.Release(); }

  STDMETHODIMP GetConnectionInterface(IID* id) noexcept override;
  STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) noexcept override;
  STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) noexcept override;
  STDMETHODIMP Unadvise(DWORD cookie) noexcept override;
  STDMETHODIMP EnumConnections(IEnumConnections** connections) noexcept override;

 private:
  struct Sink {
    DWORD cookie;
    HostPtr<IDispatch> dispatch;
  };

  IConnectionPointContainer& container_;
  const IID events_;
  std::vector<Sink> sinks_;
  DWORD next_cookie_ = 1;
};

// IConnectionPointContainer for an object with a single connection point.
HRESULT enumerate_points(IConnectionPoint& point, IEnumConnectionPoints** points) noexcept;
HRESULT find_point(ConnectionPoint& point, REFIID id, IConnectionPoint** found) noexcept;

}  // namespace qvr::com
