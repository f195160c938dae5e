// Answers the message boxes of this thread, so that none waits for a person.
#pragma once

#include <windows.h>

namespace qvr::script_tool::windows {

// One at a time on a thread.
class BoxAnswers {
 public:
  BoxAnswers();
  ~BoxAnswers();
  BoxAnswers(const BoxAnswers&) = delete;
  BoxAnswers& operator=(const BoxAnswers&) = delete;

  bool hooked() const { return hook_ != nullptr; }
  // Of questions from now on; the first answer is No.
  void answer(bool yes);

 private:
  static LRESULT CALLBACK hear(int code, WPARAM from_this_process, LPARAM detail);

  HHOOK hook_;
};

}  // namespace qvr::script_tool::windows
