// What creating and releasing an object costs beside one of a class that does nothing, through class objects. The first
// object of a thread, which reads the language and fills the catalogue, is measured apart, on threads of its own.
#include <functional>

#include "automation/library.h"
#include "automation/timing.h"

#include <oleauto.h>

#include "QVRlib21.h"

namespace {

using namespace qvr::bench;

class Nothing final : public IUnknown {
 public:
  virtual ~Nothing() = default;
  STDMETHODIMP QueryInterface(REFIID id, void** object) noexcept override {
    if (id != IID_IUnknown) return E_NOINTERFACE;
    AddRef();
    *object = static_cast<IUnknown*>(this);
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return static_cast<ULONG>(InterlockedIncrement(&count_)); }
  STDMETHODIMP_(ULONG) Release() noexcept override {
    const LONG left = InterlockedDecrement(&count_);
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }

 private:
  LONG count_ = 0;
};

class NothingClass final : public IClassFactory {
 public:
  virtual ~NothingClass() = default;
  STDMETHODIMP QueryInterface(REFIID, void**) noexcept override { return E_NOINTERFACE; }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return 1; }
  STDMETHODIMP_(ULONG) Release() noexcept override { return 1; }
  STDMETHODIMP CreateInstance(IUnknown*, REFIID id, void** object) noexcept override {
    return (new Nothing)->QueryInterface(id, object);
  }
  STDMETHODIMP LockServer(BOOL) noexcept override { return S_OK; }
};

void create(IClassFactory* factory) {
  IUnknown* object = nullptr;
  if (FAILED(factory->CreateInstance(nullptr, IID_IUnknown, reinterpret_cast<void**>(&object)))) give_up("no object");
  object->Release();
}

using Body = std::function<void()>;

DWORD WINAPI run_body(void* body) {
  (*static_cast<const Body*>(body))();
  return 0;
}

void run_thread(const Body& body) {
  const HANDLE thread = CreateThread(nullptr, 0, run_body, const_cast<Body*>(&body), 0, nullptr);
  WaitForSingleObject(thread, INFINITE);
  CloseHandle(thread);
}

}  // namespace

int main() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  Times times;
  NothingClass nothing;
  const struct {
    const char* name;
    IClassFactory* factory;
  } classes[] = {{"Ov", class_object(__uuidof(Ov))},         {"QVRcfp", class_object(__uuidof(QVRcfp))},
                 {"cSQL20", class_object(__uuidof(cSQL20))}, {"uSQL20", class_object(__uuidof(uSQL20))},
                 {"QVRScr", class_object(__uuidof(QVRScr))}, {"QVRprp", class_object(__uuidof(QVRprp))}};
  // What is measured first takes longer, whatever it is.
  Times dropped;
  dropped.take("Nothing", "", [&] { create(&nothing); });
  for (const auto& each : classes) {
    times.take("Nothing", each.name, [&] { create(&nothing); });
    times.take("Create", each.name, [&] { create(each.factory); });
  }
  const Body first_nothing = [&] { create(&nothing); }, first = [&] { create(classes[1].factory); };
  times.take(
      "Nothing", "first on a thread", [&] { run_thread(first_nothing); }, 50);
  times.take(
      "Create", "first on a thread", [&] { run_thread(first); }, 50);
  times.print();
  return 0;
}
