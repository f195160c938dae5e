#include "automation/boxes.h"

namespace qvr::tests {

namespace {

bool is_box(HWND window) {
  wchar_t kind[16] = L"";
  return GetClassNameW(window, kind, 16) != 0 && std::wstring(kind) == L"#32770";
}

}  // namespace

thread_local Person* Person::present_ = nullptr;

// Boxes are found by the CBT hook when they are activated. On a busy machine Windows may not activate them, so a timer
// looks for them as well.
Person::Person(int answer)
    : answer_(answer),
      hook_(SetWindowsHookExW(WH_CBT, on_event, nullptr, GetCurrentThreadId())),
      glances_(SetTimer(nullptr, 0, 250, look_around)) {
  present_ = this;
}

Person::~Person() {
  KillTimer(nullptr, glances_);
  UnhookWindowsHookEx(hook_);
  present_ = before_;
}

LRESULT CALLBACK Person::on_event(int code, WPARAM window, LPARAM detail) {
  const auto handle = reinterpret_cast<HWND>(window);
  if (code == HCBT_ACTIVATE && is_box(handle)) present_->notice(handle);
  if (code == HCBT_DESTROYWND && handle == present_->last_) present_->last_ = nullptr;
  return CallNextHookEx(nullptr, code, window, detail);
}

// A box may be activated before it has its text, and more than once: it is answered once, from its own message loop.
void Person::notice(HWND box) {
  constexpr UINT_PTR kTimer = 0x5156;
  if (box == last_) return;
  last_ = box;
  SetTimer(box, kTimer, USER_TIMER_MINIMUM, on_timer);
}

void CALLBACK Person::look_around(HWND, UINT, UINT_PTR, DWORD) {
  EnumThreadWindows(GetCurrentThreadId(), notice_box, 0);
}

BOOL CALLBACK Person::notice_box(HWND window, LPARAM) {
  if (is_box(window) && IsWindowVisible(window)) present_->notice(window);
  return TRUE;
}

void CALLBACK Person::on_timer(HWND box, UINT, UINT_PTR timer, DWORD) {
  KillTimer(box, timer);
  present_->answer(box);
}

void Person::answer(HWND box) {
  constexpr int kTextControl = 0xFFFF;
  std::vector<wchar_t> text(1 << 16);
  wchar_t title[256] = L"";
  GetDlgItemTextW(box, kTextControl, text.data(), static_cast<int>(text.size()));
  GetWindowTextW(box, title, 256);
  const bool question = GetDlgItem(box, IDYES) != nullptr;
  boxes_.push_back({title, text.data(), question});
  PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(question ? answer_ : IDOK), 0);
}

}  // namespace qvr::tests
