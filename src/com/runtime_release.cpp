// The compiler's run-time is linked into the library. It takes a slot of thread-local storage when it is loaded and
// memory for exceptions in want of memory, and gives neither back when it goes. A process has about a thousand slots: a
// host that loads and unloads the library so often would have none left, and end. So the slots that are taken from
// inside this library are remembered here and given back as the very last thing.
#include <windows.h>

#include <algorithm>
#include <iterator>

namespace __gnu_cxx {
void __freeres();  // the run-time's own, for memory that it keeps until the end
}

namespace {

// Without a destructor and without a guard: the run-time takes its slot before anything else is ready.
DWORD taken[16];
volatile LONG taken_count = 0;

template <class Function>
Function of_system(const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32"), name)));
}

DWORD WINAPI take_slot() {
  const DWORD slot = of_system<DWORD(WINAPI*)()>("TlsAlloc")();
  if (slot == TLS_OUT_OF_INDEXES) return slot;
  const LONG at = InterlockedIncrement(&taken_count) - 1;
  if (static_cast<std::size_t>(at) < std::size(taken)) taken[at] = slot;
  return slot;
}

BOOL WINAPI give_slot_back(DWORD slot) {
  std::replace(std::begin(taken), std::end(taken), slot, TLS_OUT_OF_INDEXES);
  return of_system<BOOL(WINAPI*)(DWORD)>("TlsFree")(slot);
}

struct LastToGo {
  ~LastToGo() {
    __gnu_cxx::__freeres();
    const auto count = std::min(static_cast<std::size_t>(taken_count), std::size(taken));
    for (std::size_t i = 0; i < count; ++i) {
      if (taken[i] != TLS_OUT_OF_INDEXES) give_slot_back(taken[i]);
    }
  }
};

// Made before every other object of the library, so it goes after them.
[[gnu::init_priority(101)]] const LastToGo last_to_go;

}  // namespace

// Calls of these two from inside the library go through here instead of the system's import library.
extern "C" {
#ifdef _WIN64
extern DWORD(WINAPI* const imported_take)() asm("__imp_TlsAlloc");
extern BOOL(WINAPI* const imported_give_back)(DWORD) asm("__imp_TlsFree");
#else
extern DWORD(WINAPI* const imported_take)() asm("__imp__TlsAlloc@0");
extern BOOL(WINAPI* const imported_give_back)(DWORD) asm("__imp__TlsFree@4");
#endif
DWORD(WINAPI* const imported_take)() = take_slot;
BOOL(WINAPI* const imported_give_back)(DWORD) = give_slot_back;
}
