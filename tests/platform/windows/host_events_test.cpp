// The message loop that runs pending messages of the host.
#include <gtest/gtest.h>
#include <windows.h>

#include "platform/platform.h"

namespace qvr::tests {
namespace {

constexpr UINT kPing = WM_APP + 1;

bool take_message(MSG& message) { return PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE; }

// A window that counts what it is sent.
class HostEventsTest : public ::testing::Test {
 protected:
  HostEventsTest()
      : window(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr)) {
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&HostEventsTest::procedure));
    pings = 0;
  }
  ~HostEventsTest() override {
    DestroyWindow(window);
    MSG rest;
    while (take_message(rest)) {
    }
  }

  static LRESULT CALLBACK procedure(HWND target, UINT message, WPARAM w, LPARAM l) {
    if (message == kPing) ++pings;
    return DefWindowProcW(target, message, w, l);
  }

  HWND window;
  static inline int pings = 0;
};

TEST_F(HostEventsTest, ReachTheirWindow) {
  ASSERT_NE(window, nullptr);
  for (int i = 0; i < 3; ++i) PostMessageW(window, kPing, 0, 0);
  EXPECT_EQ(pings, 0);
  system_platform().system.process_events();
  EXPECT_EQ(pings, 3);
}

TEST_F(HostEventsTest, LeaveTheEndOfTheApplicationToItsOwnLoop) {
  PostMessageW(window, kPing, 0, 0);
  PostQuitMessage(42);
  system_platform().system.process_events();
  MSG message{};
  while (take_message(message) && message.message != WM_QUIT) {
  }
  EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
  EXPECT_EQ(message.wParam, 42u);
}

TEST_F(HostEventsTest, ReturnWhereThereAreNone) {
  system_platform().system.process_events();
  EXPECT_EQ(pings, 0);
}

}  // namespace
}  // namespace qvr::tests
