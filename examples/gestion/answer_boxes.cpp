// Answers the library's message boxes in place of a person: shows the text of each box and the button it presses.
// Ends with 0 when as many boxes as asked for were answered, with 1 when they did not come in time.

#include <windows.h>

#include "automation.h"
#include "console.h"
#include "text.h"

namespace gestion {
namespace {

constexpr DWORD kPause = 50;
constexpr UINT kPatience = 60'000;
constexpr int kTextOfBox = 0xFFFF;

struct Button {
  int id;
  HWND window;
};

struct Order {
  int answer = IDNO;
  int boxes = 1;
  ULONGLONG until = 0;
};

// GetWindowText does not ask windows of other programs.
std::wstring text_of(HWND window) {
  wchar_t buffer[8192];
  DWORD_PTR length = 0;
  const LRESULT asked = SendMessageTimeoutW(window, WM_GETTEXT, std::size(buffer), reinterpret_cast<LPARAM>(buffer),
                                            SMTO_NORMAL, kPatience, &length);
  expect(asked != 0, L"A box does not tell its text");
  return std::wstring(buffer, length);
}

// A box that is visible has got its buttons; before, it has those of every kind of box.
HWND find_box() {
  HWND box = nullptr;
  do {
    box = FindWindowExW(nullptr, box, L"#32770", L"QVRlib21");
  } while (box != nullptr && !IsWindowVisible(box));
  return box;
}

// The button of the answer; the only one of a box that asks nothing.
Button button_of(HWND box, int answer) {
  for (const int id : {answer, IDOK, IDCANCEL}) {
    const HWND window = GetDlgItem(box, id);
    if (window != nullptr) return {id, window};
  }
  return {0, nullptr};
}

const wchar_t* name_of(int id) { return id == IDYES ? L"Yes" : id == IDNO ? L"No" : L"OK"; }

void show_box(const std::wstring& text, const Button& button) {
  std::wstring lines;
  for (const std::wstring& line : split(text, L"\n")) {
    lines += L"     | " + std::wstring(trimmed(line)) + L"\r\n";
  }
  say(lines + L"     +-- pressing " + name_of(button.id));
}

bool gone(HWND box, const Order& order) {
  while (IsWindow(box) && IsWindowVisible(box)) {
    if (GetTickCount64() > order.until) return false;
    Sleep(kPause);
  }
  return true;
}

bool answer_box(HWND box, const Order& order) {
  const Button button = button_of(box, order.answer);
  expect(button.window != nullptr, L"A box has no button that could be pressed");
  show_box(text_of(GetDlgItem(box, kTextOfBox)), button);
  PostMessageW(box, WM_COMMAND, MAKEWPARAM(button.id, BN_CLICKED), reinterpret_cast<LPARAM>(button.window));
  return gone(box, order);
}

int answer_boxes(const Order& order) {
  for (int answered = 0; answered < order.boxes;) {
    if (GetTickCount64() > order.until) throw Failure(L"the boxes did not come in time");
    const HWND box = find_box();
    if (box == nullptr) {
      Sleep(kPause);
    } else if (answer_box(box, order)) {
      ++answered;
    }
  }
  return 0;
}

Order read_order(int count, wchar_t** arguments) {
  const std::wstring answer = count > 1 ? arguments[1] : L"";
  expect((answer == L"yes" || answer == L"no") && count <= 4, L"usage: answer_boxes yes|no [BOXES [SECONDS]]");
  Order order;
  order.answer = answer == L"yes" ? IDYES : IDNO;
  if (count > 2) order.boxes = _wtoi(arguments[2]);
  const int seconds = count > 3 ? _wtoi(arguments[3]) : 300;
  order.until = GetTickCount64() + static_cast<ULONGLONG>(seconds) * 1000;
  return order;
}

}  // namespace
}  // namespace gestion

int wmain(int count, wchar_t** arguments) {
  try {
    return gestion::answer_boxes(gestion::read_order(count, arguments));
  } catch (const std::exception& surprise) {
    gestion::complain(surprise.what());
    return 1;
  }
}
