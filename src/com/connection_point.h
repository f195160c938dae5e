// Events: the connection point through which a host receives them.
#pragma once

#include <utility>
#include <vector>

#include "com/com.h"
#include "com/host_ptr.h"

namespace qvr::com {

// The one connection point of an object, for a pure dispatch event interface. It lives inside the object that fires the
// events and shares its count.
class ConnectionPoint final : public IConnectionPoint {
 public:
  ConnectionPoint(IConnectionPointContainer& container, const IID& events) : container_(container), events_(events) {}

  // A sink that goes may come back here to unadvise.
  ~ConnectionPoint() { const std::vector<Sink> leaving = std::exchange(sinks_, {}); }
  ConnectionPoint(const ConnectionPoint&) = delete;
  ConnectionPoint& operator=(const ConnectionPoint&) = delete;

  // Fires the event to every sink that is connected now. A sink that fails, leaves or connects another meanwhile does
  // not disturb the rest. Each gets the argument by reference, as a copy of its own: what one sink writes to it is
  // seen by nobody else.
  void fire(DISPID event, const VARIANT& argument) noexcept;

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

  void fire_without_memory(DISPID event, const VARIANT& argument) noexcept;

  IConnectionPointContainer& container_;
  const IID events_;
  std::vector<Sink> sinks_;
  DWORD next_cookie_ = 1;
};

// The container's two members for an object with this one point.
HRESULT enumerate_points(IConnectionPoint& point, IEnumConnectionPoints** points) noexcept;
HRESULT find_point(ConnectionPoint& point, REFIID id, IConnectionPoint** found) noexcept;

}  // namespace qvr::com
