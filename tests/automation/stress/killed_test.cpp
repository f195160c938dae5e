// Processes that end in the midst of what they do: a file is the old or the new one, a registration can be made whole
// or taken away.
#include <gtest/gtest.h>

#include <random>

#include "automation/host.h"
#include "automation/library.h"
#include "automation/registry_snapshot.h"
#include "automation/stress/child.h"
#include "automation/stress/child_roles.h"

namespace qvr::tests {
namespace {

// The same moments in every run of the tests, as far as the machine allows.
class Moments {
 public:
  DWORD next(DWORD longest) { return engine_() % (longest + 1); }

 private:
  std::minstd_rand engine_{21};
};

std::string loaded(const LateObject& cfp) {
  const std::string answer = describe(cfp.call(L"Crear", {L"id", work_folder(), L"ended"}).value.raw());
  const Var options = cfp.get(L"OtrosParametros").value;
  return answer + " " + narrow(cfp.get(L"Provider").value.text()) + " " + std::to_string(options.text().size());
}

TEST(Ended, WhileSavingLeavesTheOldOrTheNewFile) {
  const std::string whole[] = {"BOOL true first 10", "BOOL true second 40000"};
  const LateObject cfp(L"QVRlib21.QVRcfp");
  Moments moments;
  for (int round = 0; round < 24; ++round) {
    SCOPED_TRACE(round);
    Child child(kSaves, work_folder());
    ASSERT_TRUE(child.end_after(moments.next(40)));
    const std::string found = loaded(cfp);
    EXPECT_TRUE(found == whole[0] || found == whole[1]) << found;
  }
  // Whatever the last one left beside the file is no obstacle.
  cfp.call(L"Asignar", {L"id", 2, kProviders[0], L"", L"", L"", L"", L"", L"", L"0123456789"});
  EXPECT_EQ(describe(cfp.call(L"Guardar", {L"id", work_folder(), L"ended"}).value.raw()), "BOOL true");
  EXPECT_EQ(loaded(cfp), whole[0]);
}

struct EndedWhileRegistering : testing::TestWithParam<const wchar_t*> {
  void SetUp() override {
    ASSERT_EQ(library().unregister_it(), S_OK);
    ASSERT_TRUE(own_registry_keys().empty());
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
  Moments moments;
  int halves = 0;
  const RegistryLines before = registry_snapshot();
  for (int round = 0; round < 24; ++round) {
    SCOPED_TRACE(round);
    {
      Child child(kRegisters, GetParam());
      ASSERT_TRUE(child.end_after(moments.next(60)));
    }
    const RegistryLines left = own_registry_keys();
    halves += !left.empty() && left != whole;
    if (round % 2 == 0) {
      EXPECT_EQ(library().install(TRUE, command()), S_OK);
      expect_same(whole);
    }
    EXPECT_EQ(library().install(FALSE, command()), S_OK);
    expect_same({});
  }
  EXPECT_TRUE(registry_snapshot() == before) << "also of nobody else's";
  EXPECT_GT(halves, 0) << "no child was ended in the midst, so nothing was shown";
}

INSTANTIATE_TEST_SUITE_P(Scopes, EndedWhileRegistering, testing::Values(L"machine", L"user"),
                         [](const auto& row) { return narrow(row.param); });

}  // namespace
}  // namespace qvr::tests
