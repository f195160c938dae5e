// The program that answers the library's boxes where nobody sits at the screen.
#pragma once

#include <windows.h>

#include <string>

namespace gestion {

class BoxAnswerer {
 public:
  // Answers the next `boxes` boxes; questions with `answer`, which is yes or no.
  BoxAnswerer(const std::wstring& answer, int boxes);
  ~BoxAnswerer();
  BoxAnswerer(const BoxAnswerer&) = delete;
  BoxAnswerer& operator=(const BoxAnswerer&) = delete;

  void expect_all_answered();

 private:
  HANDLE process_ = nullptr;
};

}  // namespace gestion
