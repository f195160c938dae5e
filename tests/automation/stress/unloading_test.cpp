// The library is loaded, used and let go a thousand times in one process.
#include <gtest/gtest.h>

#include "automation/in_use.h"
#include "automation/library.h"
#include "automation/stress/classes.h"

namespace qvr::tests {
namespace {

// Under a path of its own, beside the library that is loaded for the whole run.
class Copy {
 public:
  Copy() : path(work_folder() + L"\\copy.dll") {
    EXPECT_TRUE(CopyFileW(beside_program(L"QVRlib21.dll").c_str(), path.c_str(), FALSE));
  }
  ~Copy() { EXPECT_TRUE(DeleteFileW(path.c_str())) << "it is still in use"; }
  Copy(const Copy&) = delete;
  Copy& operator=(const Copy&) = delete;

  bool loaded() const { return GetModuleHandleW(path.c_str()) != nullptr; }

  const std::wstring path;
};

void load_use_and_let_go(const Copy& copy, const ClassUnderStress& row) {
  {
    const Server server(copy.path);
    ASSERT_TRUE(server.loaded());
    ASSERT_EQ(server.can_unload(), S_OK);
    ComPtr<IClassFactory> factory;
    ASSERT_EQ(server.class_object(row.id, __uuidof(IClassFactory), reinterpret_cast<void**>(&factory)), S_OK);
    EXPECT_EQ(server.can_unload(), S_FALSE) << "a class object lives";
    {
      const LateObject object(created_by(*factory.Get()));
      factory.Reset();
      EXPECT_EQ(row.use(object), row.expected);
      EXPECT_EQ(server.can_unload(), S_FALSE) << "an object lives";
    }
    ASSERT_EQ(server.can_unload(), S_OK);
    ASSERT_TRUE(copy.loaded());
  }
  ASSERT_FALSE(copy.loaded());
}

void run_rounds(const Copy& copy, std::size_t count) {
  const auto rows = classes_under_stress();
  for (std::size_t i = 0; i < count && !testing::Test::HasFatalFailure(); ++i) {
    load_use_and_let_go(copy, rows[i % rows.size()]);
  }
}

DWORD next_slot() {
  const DWORD slot = TlsAlloc();
  TlsFree(slot);
  return slot;
}

// More rounds than a process has slots of thread-local storage. The compiler's run-time inside the library loses five
// small blocks a round, together less than a hundred pointers' worth, that nobody can give back.
TEST(Unloading, AThousandTimesLeavesNothingBehind) {
  constexpr std::size_t kRounds = 1200;
  const Copy copy;
  stop_string_cache();
  run_rounds(copy, 60);
  const InUse before = in_use();
  const DWORD slot = next_slot();
  run_rounds(copy, kRounds);
  const InUse after = in_use();
  EXPECT_EQ(next_slot(), slot);
  EXPECT_LT(after.blocks, before.blocks + kRounds * 6);
  EXPECT_LT(after.bytes, before.bytes + kRounds * 110 * sizeof(void*));
  EXPECT_LT(after.handles, before.handles + 20);
}

}  // namespace
}  // namespace qvr::tests
