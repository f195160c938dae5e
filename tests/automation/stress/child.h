// A process of this program in a role, ended from outside.
#pragma once

#include <windows.h>

#include <string>

namespace qvr::tests {

class Child {
 public:
  // Starts it and waits until it has begun.
  Child(const wchar_t* role, const std::wstring& argument);
  ~Child();
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  static constexpr int kEndedFromOutside = 9;

  // Lets it work so long and ends it where it is. Its exit code: that one, or its own when it had ended by itself; -1
  // when it had not even begun.
  int end_after(DWORD milliseconds);

  // Lets it work until it ends by itself: what it says then; the longest wait is five minutes.
  int answer();

 private:
  HANDLE process_ = nullptr;
  bool begun_ = false;
};

}  // namespace qvr::tests
