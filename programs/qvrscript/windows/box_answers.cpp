#include "qvrscript/windows/box_answers.h"

#include <string_view>

namespace qvr::script_tool::windows {
namespace {

thread_local int answer_to_questions = IDNO;

bool is_box(HWND window) {
  wchar_t kind[16] = L"";
  return GetClassNameW(window, kind, 16) != 0 && std::wstring_view(kind) == L"#32770";
}

}  // namespace

BoxAnswers::BoxAnswers() : hook_(SetWindowsHookExW(WH_CALLWNDPROCRET, hear, nullptr, GetCurrentThreadId())) {
  answer(false);
}

BoxAnswers::~BoxAnswers() {
  if (hook_ != nullptr) UnhookWindowsHookEx(hook_);
}

void BoxAnswers::answer(bool yes) { answer_to_questions = yes ? IDYES : IDNO; }

// A box that has just been made has its buttons, and takes the answer from its own message loop.
LRESULT CALLBACK BoxAnswers::hear(int code, WPARAM from_this_process, LPARAM detail) {
  const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(detail);
  if (code == HC_ACTION && message.message == WM_INITDIALOG && is_box(message.hwnd)) {
    const bool question = GetDlgItem(message.hwnd, IDYES) != nullptr;
    PostMessageW(message.hwnd, WM_COMMAND, static_cast<WPARAM>(question ? answer_to_questions : IDOK), 0);
  }
  return CallNextHookEx(nullptr, code, from_this_process, detail);
}

}  // namespace qvr::script_tool::windows
