// The library file beside the program, used without registration.
#pragma once

#include <windows.h>

#include <cstdio>
#include <cstdlib>

#include "com/com_ptr.h"

namespace qvr::bench {

using com::ComPtr;

[[noreturn]] inline void give_up(const char* what) {
  std::fprintf(stderr, "%s\n", what);
  std::exit(1);
}

// A class of the library; the caller's reference.
inline IClassFactory* class_object(REFCLSID which) {
  static const HMODULE library = LoadLibraryW(L"QVRlib21.dll");
  using Get = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const auto get = reinterpret_cast<Get>(reinterpret_cast<void*>(GetProcAddress(library, "DllGetClassObject")));
  void* factory = nullptr;
  if (get == nullptr || FAILED(get(which, IID_IClassFactory, &factory))) give_up("the library gives no class object");
  return static_cast<IClassFactory*>(factory);
}

template <class I>
ComPtr<I> created(REFCLSID which) {
  ComPtr<I> object;
  if (FAILED(class_object(which)->CreateInstance(nullptr, __uuidof(I), reinterpret_cast<void**>(&object))))
    give_up("no object");
  return object;
}

}  // namespace qvr::bench
