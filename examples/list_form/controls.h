// What the windows of the program share: making them and their texts.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

namespace list_form {

// A window of this program's own; `owner` comes to its procedure with WM_NCCREATE.
HWND make_window(const wchar_t* class_name, const wchar_t* title, WNDPROC procedure, void* owner, SIZE client);

HWND make_control(HWND parent, const wchar_t* class_name, const wchar_t* text, DWORD style, int id);

std::wstring text_of(HWND window);

}  // namespace list_form
