// The virtual screen that the tests look at: a desktop of its own, so that the others of the prefix need none.
#pragma once

#include <windows.h>

#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace qvr::tests {

// Waits for what a person would wait for; false when it has not come within a minute.
bool comes_true(const std::function<bool()>& condition);

// Makes the desktop and moves this thread onto it. It has ended with this object.
class Screen {
 public:
  Screen();
  ~Screen();
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  static const wchar_t* desktop() { return L"list_form"; }

 private:
  PROCESS_INFORMATION shell_{};
};

COLORREF colour_at(POINT place);

// A piece of the screen.
class Picture {
 public:
  explicit Picture(HWND window);
  void save(const std::filesystem::path& file) const;
  std::set<std::uint32_t> colours() const;
  // How much of the row in the middle has the colour that it has at the left, of a window with a frame.
  double filled() const;

 private:
  SIZE size_{};
  std::vector<std::uint32_t> points_;
};

}  // namespace qvr::tests
