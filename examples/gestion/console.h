// What the person at the screen reads. A terminal gets the text itself, a pipe or a file gets UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace gestion {

void say(std::wstring_view line = {});
void heading(std::wstring_view title);  // numbered in the order of showing
void item(std::wstring_view label, std::wstring_view value);
// The next line that somebody types; false at the end of the input.
bool ask(std::wstring_view question, std::wstring& line);
void complain(std::string_view utf8);

// A line that changes: rewritten in place on a terminal; elsewhere every so many texts, and the last one.
class ProgressLine {
 public:
  explicit ProgressLine(int every) : every_(every) {}
  void show(const std::wstring& text, int done, bool last);
  void finish();

 private:
  int every_;
  std::size_t width_ = 0;
};

}  // namespace gestion
