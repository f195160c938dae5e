// Natively a pthread key destroys the state at thread exit; on Windows DllMain does.
#include <gtest/gtest.h>

#include <thread>

#include "session/thread_state.h"

namespace qvr::tests {
namespace {

class Mortal final : public services::TextProtection {
 public:
  ~Mortal() override { ++ended; }
  Text Cifrar(TextView, TextView Texto) override { return Text(Texto); }
  Text Descifrar(TextView, TextView Texto) override { return Text(Texto); }

  static inline int ended = 0;
};

std::unique_ptr<services::TextProtection> make_mortal(const Platform&) { return std::make_unique<Mortal>(); }

TEST(ThreadEnd, TakesTheStateAlong) {
  Mortal::ended = 0;
  std::thread([] {
    const Environment& usual = environment();
    const Environment mortal{usual.platform, make_mortal, usual.make_error_report, usual.make_ado,
                             usual.make_script_reader};
    exchange_thread_state(std::make_unique<ThreadState>(mortal));
    thread_state().text_protection();
    EXPECT_EQ(Mortal::ended, 0);
  }).join();
  EXPECT_EQ(Mortal::ended, 1);
}

}  // namespace
}  // namespace qvr::tests
