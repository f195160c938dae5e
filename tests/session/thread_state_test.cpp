#include "session/thread_state.h"

#include <gtest/gtest.h>

#include <thread>

#include "support/test_thread.h"

namespace qvr::tests {
namespace {

TEST(ThreadState, MakesEachServiceOnce) {
  TestThread thread;
  services::TextProtection& first = thread_state().text_protection();
  EXPECT_EQ(&thread_state().text_protection(), &first);
  EXPECT_EQ(thread.protections_made, 1);
  EXPECT_EQ(&thread_state().error_report(), &thread_state().error_report());
  thread.renew();
  thread_state().text_protection();
  EXPECT_EQ(thread.protections_made, 2);
}

TEST(ThreadState, MakesNoServiceBeforeItIsWanted) {
  TestThread thread;
  thread_state().idioma.IdiomaDesdeSOP();
  EXPECT_EQ(thread.protections_made, 0);
}

TEST(ThreadState, AsksAgainForAServiceThatCouldNotBeMade) {
  TestThread thread;
  thread.make_text_protection = []() -> std::unique_ptr<services::TextProtection> {
    throw RuntimeFailure(failure_number::kCannotCreateObject);
  };
  EXPECT_THROW(thread_state().text_protection(), RuntimeFailure);
  thread.make_text_protection = [] { return std::make_unique<CheapProtection>(); };
  EXPECT_EQ(thread_state().text_protection().Cifrar(u"", u""), u"x");
}

TEST(ThreadState, BelongsToItsThread) {
  const TestThread here;
  const ThreadState* const mine = &thread_state();
  const ThreadState* theirs = nullptr;
  std::thread([&theirs] {
    theirs = &thread_state();  // made by the first use
    EXPECT_EQ(&thread_state(), theirs);
    exchange_thread_state(nullptr);
  }).join();
  EXPECT_NE(theirs, mine);
  EXPECT_EQ(&thread_state(), mine);
}

TEST(ThreadState, StandsBackForAnotherAndReturns) {
  TestThread outer;
  outer.load_language(u"3");
  {
    TestThread inner;
    inner.load_language(u"1");
    EXPECT_EQ(thread_state().idioma.Idioma(), 1);
  }
  EXPECT_EQ(thread_state().idioma.Idioma(), 3);
}

// Records its destruction.
class Mortal final : public services::TextProtection {
 public:
  explicit Mortal(bool& alive) : alive_(alive) { alive_ = true; }
  ~Mortal() override { alive_ = false; }
  Text Cifrar(TextView, TextView Texto) override { return Text(Texto); }
  Text Descifrar(TextView, TextView Texto) override { return Text(Texto); }

 private:
  bool& alive_;
};

TEST(ThreadState, TakesItsServicesAlong) {
  bool alive = false;
  TestThread thread;
  thread.make_text_protection = [&alive] { return std::make_unique<Mortal>(alive); };
  thread_state().text_protection();
  EXPECT_TRUE(alive);
  thread.renew();
  EXPECT_FALSE(alive);
}

TEST(ThreadState, HasTheBuiltInProtectionWhereNothingElseIsPut) {
  std::thread([] {
    services::TextProtection& protection = thread_state().text_protection();
    EXPECT_EQ(protection.Descifrar(u"key", protection.Cifrar(u"key", u"text")), u"text");
    exchange_thread_state(nullptr);
  }).join();
}

}  // namespace
}  // namespace qvr::tests
