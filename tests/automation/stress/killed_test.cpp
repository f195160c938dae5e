// Processes that end in the midst of what they do: a file is the old or the new one, a registration can be made whole
// or taken away.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <random>

#include "automation/host.h"
#include "automation/library.h"
#include "automation/registry_snapshot.h"
#include "automation/stress/child.h"
#include "automation/stress/child_roles.h"

namespace qvr::tests {
namespace {

// Ends so many children, each after at most so many milliseconds, and more until one was in the midst: on a busy
// machine many have not come that far. `left_half` looks at what the child has left, the last time with the answer
// true.
void end_children(const wchar_t* role, const std::wstring& argument, DWORD longest,
                  const std::function<bool()>& left_half) {
  constexpr int kChildren = 24, kMostChildren = 1000;
  std::minstd_rand moments(21);
  bool half = false;
  for (int round = 0; round < kChildren || !half; ++round) {
    SCOPED_TRACE(round);
    ASSERT_LT(round, kMostChildren) << "no child was ended in the midst, so nothing was shown";
    {
      Child child(role, argument);
      ASSERT_EQ(child.end_after(moments() % (longest + 1)), Child::kEndedFromOutside);
    }
    half = left_half();
  }
}

std::string loaded(const LateObject& cfp) {
  const std::string answer = describe(cfp.call(L"Crear", {L"id", work_folder(), L"ended"}).value.raw());
  const Var options = cfp.get(L"OtrosParametros").value;
  return answer + " " + narrow(cfp.get(L"Provider").value.text()) + " " + std::to_string(options.text().size());
}

std::ptrdiff_t left_beside() {
  const std::filesystem::directory_iterator all(work_folder());
  return std::count_if(begin(all), end(all), [](const auto& entry) {
    return entry.path().filename().wstring().starts_with(L"ended.cfp.qvr");
  });
}

TEST(Ended, WhileSavingLeavesTheOldOrTheNewFile) {
  const std::string whole[] = {"BOOL true first 10", "BOOL true second 40000"};
  const LateObject cfp(L"QVRlib21.QVRcfp");
  end_children(kSaves, work_folder(), 40, [&] {
    const std::string found = loaded(cfp);
    EXPECT_TRUE(found == whole[0] || found == whole[1]) << found;
    return left_beside() > 0;
  });
  // Whatever they left beside the file is no obstacle, and goes with the next saving.
  cfp.call(L"Asignar", {L"id", 2, kProviders[0], L"", L"", L"", L"", L"", L"", L"0123456789"});
  EXPECT_EQ(describe(cfp.call(L"Guardar", {L"id", work_folder(), L"ended"}).value.raw()), "BOOL true");
  EXPECT_EQ(loaded(cfp), whole[0]);
  EXPECT_EQ(left_beside(), 0);
}

struct EndedWhileRegistering : testing::TestWithParam<const wchar_t*> {
  void SetUp() override {
    ASSERT_EQ(library().unregister_it(), S_OK);
    expect_same({});
    ASSERT_EQ(library().install(TRUE, command()), S_OK);
    whole = own_registry_keys();
    ASSERT_GT(whole.size(), 100u);
    ASSERT_EQ(library().install(FALSE, command()), S_OK);
  }
  void TearDown() override { ASSERT_EQ(library().register_it(), S_OK); }

  const wchar_t* command() const { return std::wstring(GetParam()) == L"user" ? L"user" : nullptr; }

  static void expect_same(const RegistryLines& expected) {
    const RegistryLines found = own_registry_keys();
    for (const auto& line : added(expected, found)) ADD_FAILURE() << "too much: " << narrow(line);
    for (const auto& line : added(found, expected)) ADD_FAILURE() << "missing: " << narrow(line);
  }

  RegistryLines whole;
};

TEST_P(EndedWhileRegistering, CanBeMadeWholeOrTakenAway) {
  const RegistryLines before = registry_snapshot();
  bool make_whole = false;
  end_children(kRegisters, GetParam(), 60, [&] {
    const RegistryLines left = own_registry_keys();
    make_whole = !make_whole;
    if (make_whole) {
      EXPECT_EQ(library().install(TRUE, command()), S_OK);
      expect_same(whole);
    }
    EXPECT_EQ(library().install(FALSE, command()), S_OK);
    expect_same({});
    return !left.empty() && left != whole;
  });
  EXPECT_TRUE(registry_snapshot() == before) << "also of nobody else's";
}

INSTANTIATE_TEST_SUITE_P(Scopes, EndedWhileRegistering, testing::Values(L"machine", L"user"),
                         [](const auto& row) { return narrow(row.param); });

}  // namespace
}  // namespace qvr::tests
