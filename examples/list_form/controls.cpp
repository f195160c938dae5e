#include "controls.h"

namespace list_form {
namespace {

// The font that the user chose for what programs show.
HFONT usual_font() {
  static const HFONT font = [] {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return CreateFontIndirectW(&metrics.lfMessageFont);
  }();
  return font;
}

}  // namespace

HWND make_window(const wchar_t* class_name, const wchar_t* title, WNDPROC procedure, void* owner, SIZE client) {
  WNDCLASSW description{};
  description.lpfnWndProc = procedure;
  description.hInstance = GetModuleHandleW(nullptr);
  description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  description.lpszClassName = class_name;
  RegisterClassW(&description);
  RECT area{0, 0, client.cx, client.cy};
  AdjustWindowRect(&area, WS_OVERLAPPEDWINDOW, FALSE);
  return CreateWindowExW(WS_EX_CONTROLPARENT, class_name, title, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT,
                         CW_USEDEFAULT, area.right - area.left, area.bottom - area.top, nullptr, nullptr,
                         description.hInstance, owner);
}

HWND make_control(HWND parent, const wchar_t* class_name, const wchar_t* text, DWORD style, int id) {
  const HWND control = CreateWindowExW(0, class_name, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, parent,
                                       reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr),
                                       nullptr);
  SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(usual_font()), TRUE);
  return control;
}

std::wstring text_of(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

}  // namespace list_form
