// Ten thousand threads create and use an object; nothing leaks.
#include <gtest/gtest.h>

#include "automation/in_use.h"
#include "automation/library.h"
#include "automation/stress/classes.h"

namespace qvr::tests {
namespace {

constexpr LONG kThreads = 10000, kWarmUp = 200, kAtOnce = 5;

volatile LONG next_thread, failed_threads;

ComPtr<IDispatch> new_object(const ClassUnderStress& row, bool through_system) {
  ComPtr<IDispatch> object;
  if (through_system) {
    CoCreateInstance(row.id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&object));
    return object;
  }
  ComPtr<IClassFactory> factory;
  library().class_object(row.id, __uuidof(IClassFactory), reinterpret_cast<void**>(&factory));
  return factory ? created_by(*factory.Get()) : object;
}

// Apartments of one thread and of many take turns; among the former, objects that the system makes and those made
// without its help. For the latter apartments the system would make objects on a thread of its own, where Wine 8 loses
// a class object each time.
bool visit(LONG number) {
  const auto rows = classes_under_stress();
  const ClassUnderStress& row = rows[static_cast<std::size_t>(number / 4) % rows.size()];
  const COINIT apartment = number % 2 == 0 ? COINIT_APARTMENTTHREADED : COINIT_MULTITHREADED;
  if (FAILED(CoInitializeEx(nullptr, apartment))) return false;
  bool works = false;
  if (ComPtr<IDispatch> made = new_object(row, number % 4 == 0)) works = row.works(LateObject(std::move(made)));
  CoUninitialize();
  return works;
}

// No assertions here: the test framework keeps something for every thread that makes one.
DWORD WINAPI run_visit(void*) {
  if (!visit(InterlockedIncrement(&next_thread))) InterlockedIncrement(&failed_threads);
  return 0;
}

void run_threads(LONG count) {
  for (LONG done = 0; done < count; done += kAtOnce) {
    HANDLE threads[kAtOnce];
    for (HANDLE& thread : threads) thread = CreateThread(nullptr, 0, run_visit, nullptr, 0, nullptr);
    ASSERT_LT(WaitForMultipleObjects(kAtOnce, threads, TRUE, 300000), WAIT_OBJECT_0 + kAtOnce);
    for (const HANDLE thread : threads) CloseHandle(thread);
  }
}

// A state left behind by one thread in two hundred would be 50 states of several blocks.
TEST(Threads, TenThousandLeaveNothingBehind) {
  stop_string_cache();
  failed_threads = 0;
  run_threads(kWarmUp);
  const InUse before = in_use();
  run_threads(kThreads);
  const InUse after = in_use();
  EXPECT_EQ(failed_threads, 0);
  EXPECT_EQ(library().can_unload(), S_OK);
  EXPECT_LT(after.blocks, before.blocks + 50);
  EXPECT_LT(after.bytes, before.bytes + 10000);
  EXPECT_LT(after.handles, before.handles + 10);
}

}  // namespace
}  // namespace qvr::tests
