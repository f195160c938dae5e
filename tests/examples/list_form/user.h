// Somebody at the screen: types, presses and clicks, and reads what the windows show.
#pragma once

#include <windows.h>

#include <array>
#include <ostream>
#include <string>
#include <vector>

namespace qvr::tests {

constexpr std::size_t kColumns = 6;
enum Column : std::size_t { kNumber, kCustomer, kTown, kDate, kAmount, kServed };

// The program as somebody starts it. It has ended with this object.
class Program {
 public:
  explicit Program(const std::wstring& folder);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  HANDLE process() const { return running_.hProcess; }
  bool ended() const { return WaitForSingleObject(running_.hProcess, 0) == WAIT_OBJECT_0; }
  // When it has ended.
  DWORD exit_code() const;

 private:
  PROCESS_INFORMATION running_{};
};

// What a person sees of the form, all of it.
struct Sight {
  std::vector<std::string> rows;  // cells with ", " between them
  std::string line;               // below the list
  std::string arrow;              // a column's number and where the arrow points
  std::array<std::string, kColumns> boxes;
  std::vector<std::size_t> refused;  // columns whose box is in another colour

  bool operator==(const Sight&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Sight& sight);

class Form {
 public:
  // Waits for the window.
  explicit Form(const Program& program);

  HWND window() const { return window_; }
  void type(std::size_t column, const std::wstring& text) const;
  void press_enter(std::size_t column) const;
  void search(std::size_t column, const std::wstring& text) const;
  void click_heading(std::size_t column) const;
  void press_clear() const;
  void save_filter(const std::wstring& name) const;
  // The first one is number 1.
  void pick_filter(int number) const;
  void close() const;

  Sight sight() const;
  // Waits until the form looks so, and answers with what it looks like then.
  Sight becomes(const Sight& expected) const;
  std::vector<std::string> filters() const;

 private:
  HWND box(std::size_t column) const;
  bool refused(std::size_t column) const;
  std::string arrow() const;
  std::vector<std::string> rows() const;
  std::string cell(int row, int column) const;

  const Program& program_;
  HWND window_ = nullptr, list_ = nullptr;
};

// The box of a message, when it has come.
struct Message {
  HWND window = nullptr;
  std::string text;
};
Message message(const wchar_t* title);
void answer(const Message& message, int button);

HWND visible_window(const wchar_t* class_name);
std::string utf8(const std::wstring& text);

}  // namespace qvr::tests
