#include "update_window.h"

#include "controls.h"

namespace list_form {
namespace {

constexpr SIZE kClient{420, 90};

// A run is not cut short, so the window is not closed by hand.
LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM word, LPARAM more) {
  return message == WM_CLOSE ? 0 : DefWindowProcW(window, message, word, more);
}

class UpdateWindow {
 public:
  UpdateWindow() {
    MoveWindow(label_, 16, 14, kClient.cx - 32, 20, TRUE);
    MoveWindow(bar_, 16, 42, kClient.cx - 32, 22, TRUE);
    ShowWindow(window_, SW_SHOWNORMAL);
  }
  ~UpdateWindow() { DestroyWindow(window_); }
  UpdateWindow(const UpdateWindow&) = delete;
  UpdateWindow& operator=(const UpdateWindow&) = delete;

  void show(long done, long all) const {
    SendMessageW(bar_, PBM_SETRANGE32, 0, all);
    SendMessageW(bar_, PBM_SETPOS, static_cast<WPARAM>(done), 0);
    SetWindowTextW(label_, (L"Command " + std::to_wstring(done) + L" of " + std::to_wstring(all)).c_str());
    // At once: behind each command the library lets the window paint only what is left.
    RedrawWindow(window_, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  }

 private:
  HWND window_ = make_window(L"list_form_update", L"Updating the database", procedure, nullptr, kClient);
  HWND label_ = make_control(window_, WC_STATICW, L"", SS_LEFT, 1);
  HWND bar_ = make_control(window_, PROGRESS_CLASSW, L"", PBS_SMOOTH, 2);
};

}  // namespace

void show_update(const Database& database) {
  if (database.up_to_date()) return;
  const UpdateWindow window;
  database.update([&](long done, long all) { window.show(done, all); });
}

}  // namespace list_form
