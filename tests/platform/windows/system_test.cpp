// The message loop that runs pending messages of the host.
#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <functional>

#include "platform/platform.h"

namespace qvr::tests {
namespace {

constexpr UINT kPing = WM_APP + 1;
constexpr UINT_PTR kTimer = 7;
constexpr int kForEver = 5000;  // where a message that always has a next one ends after all, so that a test fails

bool take_message(MSG& message) { return PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE; }

// A window that counts what it is sent.
class Window {
 public:
  explicit Window(HWND parent = HWND_MESSAGE)
      : handle_(CreateWindowExW(WS_EX_NOACTIVATE, L"STATIC", L"", parent == nullptr ? WS_POPUP | WS_VISIBLE : 0, 0, 0,
                                20, 20, parent, nullptr, nullptr, nullptr)) {
    SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Window::procedure));
  }
  ~Window() { DestroyWindow(handle_); }
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  HWND get() const { return handle_; }
  void ping() const { PostMessageW(handle_, kPing, 0, 0); }

  int pings = 0, timers = 0, paintings = 0;
  std::function<void()> on_ping = [] {}, on_timer = [] {};
  bool validates = true;

 private:
  static LRESULT CALLBACK procedure(HWND target, UINT message, WPARAM w, LPARAM l) {
    auto& self = *reinterpret_cast<Window*>(GetWindowLongPtrW(target, GWLP_USERDATA));
    if (message == kPing) ++self.pings, self.on_ping();
    if (message == WM_TIMER) ++self.timers, self.on_timer();
    if (message == WM_PAINT) {
      ++self.paintings;
      if (!self.validates && self.paintings < kForEver) return 0;
      ValidateRect(target, nullptr);
    }
    return DefWindowProcW(target, message, w, l);
  }

  HWND handle_;
};

class ProcessEvents : public ::testing::Test {
 protected:
  ~ProcessEvents() override { empty_queue(); }
  static void empty_queue() {
    MSG rest;
    while (take_message(rest)) DispatchMessageW(&rest);
  }
  static void process() { system_platform().system.process_events(); }
  // Sees that timers of this interval are due.
  static void wait(DWORD milliseconds) { Sleep(3 * milliseconds); }

  Window window;
};

TEST_F(ProcessEvents, MessagesReachTheirWindow) {
  ASSERT_NE(window.get(), nullptr);
  for (int i = 0; i < 3; ++i) window.ping();
  EXPECT_EQ(window.pings, 0);
  process();
  EXPECT_EQ(window.pings, 3);
}

TEST_F(ProcessEvents, LeavesTheEndOfTheApplicationToItsOwnLoop) {
  window.ping();
  PostQuitMessage(42);
  process();
  MSG message{};
  while (take_message(message) && message.message != WM_QUIT) {
  }
  EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
  EXPECT_EQ(message.wParam, 42u);
}

TEST_F(ProcessEvents, LeavesAnEndThatAHandlerAsksForToo) {
  window.on_ping = [] { PostQuitMessage(43); };
  window.ping();
  process();
  MSG message{};
  while (take_message(message) && message.message != WM_QUIT) {
  }
  EXPECT_EQ(message.wParam, 43u);
}

TEST_F(ProcessEvents, ReturnsWhereThereAreNone) {
  process();
  EXPECT_EQ(window.pings, 0);
}

TEST_F(ProcessEvents, EndsAlthoughAWindowAlwaysPostsToItself) {
  window.on_ping = [this] {
    Sleep(1);
    if (window.pings < kForEver) window.ping();
  };
  window.ping();
  process();
  EXPECT_GE(window.pings, 1);
  EXPECT_LT(window.pings, kForEver);
  window.on_ping = [] {};
}

TEST_F(ProcessEvents, EndsAlthoughEveryMessageHasManyNext) {
  window.on_ping = [this] {
    for (int i = 0; i < 3 && window.pings < kForEver; ++i) window.ping();
  };
  window.ping();
  process();
  EXPECT_GE(window.pings, 1);
  EXPECT_LT(window.pings, kForEver);
  window.on_ping = [] {};
}

TEST_F(ProcessEvents, ATimerThatIsSlowerThanItsIntervalHasOneTurn) {
  window.on_timer = [this] {
    wait(10);
    if (window.timers == 50) KillTimer(window.get(), kTimer);
  };
  SetTimer(window.get(), kTimer, 10, nullptr);
  wait(10);
  process();
  EXPECT_EQ(window.timers, 1);
  KillTimer(window.get(), kTimer);
}

TEST_F(ProcessEvents, EveryTimerHasItsTurn) {
  Window other;
  for (const Window* each : {&window, &other}) {
    SetTimer(each->get(), kTimer, 10, nullptr);
    SetTimer(each->get(), kTimer + 1, 10, nullptr);
  }
  wait(10);
  process();
  EXPECT_EQ(window.timers, 2);
  EXPECT_EQ(other.timers, 2);
  for (const Window* each : {&window, &other}) {
    KillTimer(each->get(), kTimer);
    KillTimer(each->get(), kTimer + 1);
  }
}

TEST_F(ProcessEvents, ATimerHasItsTurnAlthoughAWindowAlwaysPostsToItself) {
  window.on_ping = [this] {
    wait(10);
    if (window.pings < 50) window.ping();
  };
  SetTimer(window.get(), kTimer, 10, nullptr);
  window.ping();
  wait(10);
  process();
  EXPECT_EQ(window.timers, 1);
  EXPECT_LT(window.pings, 50);
  KillTimer(window.get(), kTimer);
  window.on_ping = [] {};
}

TEST_F(ProcessEvents, AWindowThatNeverValidatesIsPaintedOnce) {
  Window shown(nullptr);
  empty_queue();
  shown.paintings = 0;
  shown.validates = false;
  InvalidateRect(shown.get(), nullptr, FALSE);
  process();
  EXPECT_EQ(shown.paintings, 1);
  shown.validates = true;
}

}  // namespace
}  // namespace qvr::tests
