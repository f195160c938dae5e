#include "com/clients/component.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/failure.h"
#include "com/clients/late_class.h"
#include "com/module.h"
#include "platform/windows/floating_point.h"
#include "platform/windows/thread_pointer.h"
#include "session/thread_state.h"

namespace qvr::com {
namespace {

// Hears from COM on each thread that has components, before an apartment ends. Lives as long as the pinned module.
class ApartmentWatch final : public IInitializeSpy {
 public:
  // COM keeps it as long as the thread lives, through any number of apartments.
  void watch_this_thread() noexcept {
    ULARGE_INTEGER cookie;
    if (watched_.get() == nullptr && SUCCEEDED(CoRegisterInitializeSpy(this, &cookie))) watched_.set(this);
  }

  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override {
    if (found == nullptr) return E_POINTER;
    *found = id == IID_IUnknown || id == __uuidof(IInitializeSpy) ? this : nullptr;
    return *found != nullptr ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return 1; }
  STDMETHODIMP_(ULONG) Release() noexcept override { return 1; }

  STDMETHODIMP PreInitialize(DWORD, DWORD) noexcept override { return S_OK; }
  STDMETHODIMP PostInitialize(HRESULT initialized, DWORD, DWORD) noexcept override { return initialized; }
  STDMETHODIMP PreUninitialize(DWORD references) noexcept override {
    const windows::DefaultFloatingPoint calculating;
    if (references == 1) let_services_go();
    return S_OK;
  }
  STDMETHODIMP PostUninitialize(DWORD) noexcept override { return S_OK; }

 private:
  const windows::ThreadPointer watched_;
};

ApartmentWatch apartment_watch;

}  // namespace

Component Component::create(const wchar_t* program_id) {
  Component created(program_id, LateObject(LateClass(program_id).create()));
  apartment_watch.watch_this_thread();
  return created;
}

// While the thread detaches, COM must not be called, not even Release: the loader lock is held, and the apartment may
// be gone.
Component::~Component() {
  if (!ThreadDetach::under_way() || !object_.abandon()) return;
  std::array<char16_t, 64> owner;
  const std::wstring_view name = std::wstring_view(program_id_).substr(0, owner.size());
  std::ranges::copy(name, owner.begin());
  trace({{owner.data(), name.size()},
         "Release",
         failure_number::kObjectNotSet,
         u"A thread ended without CoUninitialize and still holds the component",
         SourcePlace::here()});
}

}  // namespace qvr::com
