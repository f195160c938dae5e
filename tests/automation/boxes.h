// Answers the message boxes of this thread and records their texts. Of several the one who came last does.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace qvr::tests {

class Person {
 public:
  // Presses this button in boxes that have it (IDYES, IDNO), else OK.
  explicit Person(int answer = IDNO);
  ~Person();
  Person(const Person&) = delete;
  Person& operator=(const Person&) = delete;

  struct Box {
    std::wstring title, text;
    bool question;
  };
  const std::vector<Box>& boxes() const { return boxes_; }

 private:
  static LRESULT CALLBACK on_event(int code, WPARAM window, LPARAM detail);
  static void CALLBACK on_timer(HWND box, UINT message, UINT_PTR timer, DWORD time);
  static void CALLBACK look_around(HWND none, UINT message, UINT_PTR timer, DWORD time);
  static BOOL CALLBACK notice_box(HWND window, LPARAM);
  void notice(HWND box);
  void answer(HWND box);

  static thread_local Person* present_;
  Person* const before_ = present_;
  int answer_;
  HHOOK hook_;
  UINT_PTR glances_;
  HWND last_ = nullptr;
  std::vector<Box> boxes_;
};

}  // namespace qvr::tests
