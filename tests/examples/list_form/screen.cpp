#include "screen.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace qvr::tests {
namespace {

constexpr DWORD kPatience = 60'000, kPause = 5;

BITMAPINFO description_of(SIZE size) {
  BITMAPINFO description{};
  description.bmiHeader.biSize = sizeof description.bmiHeader;
  description.bmiHeader.biWidth = size.cx;
  description.bmiHeader.biHeight = size.cy;
  description.bmiHeader.biPlanes = 1;
  description.bmiHeader.biBitCount = 32;
  return description;
}

}  // namespace

bool comes_true(const std::function<bool()>& condition) {
  for (const ULONGLONG until = GetTickCount64() + kPatience; !condition(); Sleep(kPause)) {
    if (GetTickCount64() > until) return false;
  }
  return true;
}

// Wine's own shell makes a desktop with the driver that is named, whatever the prefix has for the others.
Screen::Screen() {
  wchar_t command[] = L"explorer.exe /desktop=list_form,1000x700,x11";
  STARTUPINFOW start{};
  start.cb = sizeof start;
  if (CreateProcessW(nullptr, command, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &shell_) == 0 ||
      WaitForInputIdle(shell_.hProcess, kPatience) != 0) {
    throw std::runtime_error("there is no shell for the screen");
  }
  HDESK made = nullptr;
  const auto there = [&] { return (made = OpenDesktopW(desktop(), 0, FALSE, GENERIC_ALL)) != nullptr; };
  if (!comes_true(there) || SetThreadDesktop(made) == 0) throw std::runtime_error("there is no desktop for the screen");
}

Screen::~Screen() {
  TerminateProcess(shell_.hProcess, 0);
  CloseHandle(shell_.hProcess);
  CloseHandle(shell_.hThread);
}

COLORREF colour_at(POINT place) {
  const HDC screen = GetDC(nullptr);
  const COLORREF colour = GetPixel(screen, place.x, place.y);
  ReleaseDC(nullptr, screen);
  return colour;
}

Picture::Picture(HWND window) {
  RECT place;
  GetWindowRect(window, &place);
  size_ = {place.right - place.left, place.bottom - place.top};
  const BITMAPINFO description = description_of(size_);
  const HDC screen = GetDC(nullptr), memory = CreateCompatibleDC(screen);
  void* points = nullptr;
  const HBITMAP bitmap = CreateDIBSection(memory, &description, DIB_RGB_COLORS, &points, nullptr, 0);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, size_.cx, size_.cy, screen, place.left, place.top, SRCCOPY);
  GdiFlush();
  const auto* const first = static_cast<const std::uint32_t*>(points);
  points_.assign(first, first + size_.cx * size_.cy);
  SelectObject(memory, before);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
}

void Picture::save(const std::filesystem::path& file) const {
  const BITMAPINFO description = description_of(size_);
  const auto bytes = static_cast<DWORD>(points_.size() * sizeof points_[0]);
  BITMAPFILEHEADER heading{};
  heading.bfType = 0x4D42;
  heading.bfOffBits = sizeof heading + sizeof description.bmiHeader;
  heading.bfSize = heading.bfOffBits + bytes;
  std::filesystem::create_directories(file.parent_path());
  std::ofstream out(file, std::ios::binary);
  out.write(reinterpret_cast<const char*>(&heading), sizeof heading);
  out.write(reinterpret_cast<const char*>(&description.bmiHeader), sizeof description.bmiHeader);
  out.write(reinterpret_cast<const char*>(points_.data()), bytes);
  if (!out.flush()) throw std::runtime_error("the picture cannot be written");
}

std::set<std::uint32_t> Picture::colours() const { return {points_.begin(), points_.end()}; }

double Picture::filled() const {
  constexpr std::ptrdiff_t kFrame = 2;
  const auto row = points_.begin() + size_.cy / 2 * size_.cx;
  const auto first = row + kFrame, last = row + size_.cx - kFrame;
  return static_cast<double>(std::count(first, last, *first)) / static_cast<double>(last - first);
}

}  // namespace qvr::tests
