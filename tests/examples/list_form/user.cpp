#include "user.h"

#include <commctrl.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "screen.h"

namespace qvr::tests {
namespace {

// The numbers of the form's controls.
enum Id { kFilterBox = 10, kSave, kClear, kRows, kLine, kFirstBox = 100 };

constexpr COLORREF kRefused = RGB(255, 190, 190);

void expect(bool met, const char* what) {
  if (!met) throw std::runtime_error(what);
}

std::wstring beside_this_program(const wchar_t* name) {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  return std::filesystem::path(path).parent_path() / name;
}

std::wstring command_line(const std::wstring& folder) {
  const std::string connection = std::getenv("QVR_TESTS_CONNECTION");
  return L"\"" + beside_this_program(L"list_form.exe") + L"\" \"" + folder + L"\" MSDASQL \"Extended Properties=\\\"" +
         std::wstring(connection.begin(), connection.end()) + L"\\\"\"";
}

std::wstring wide_text_of(HWND window) {
  wchar_t text[1024] = L"";
  SendMessageW(window, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
  return text;
}

void type_into(HWND box, const std::wstring& text) {
  PostMessageW(box, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 4));
  PostMessageW(box, WM_LBUTTONUP, 0, MAKELPARAM(4, 4));
  PostMessageW(box, EM_SETSEL, 0, -1);
  PostMessageW(box, WM_CHAR, VK_BACK, 1);
  for (const wchar_t letter : text) PostMessageW(box, WM_CHAR, letter, 1);
}

void press(HWND window, WPARAM key) {
  PostMessageW(window, WM_KEYDOWN, key, 1);
  PostMessageW(window, WM_KEYUP, key, 1);
}

// A structure that a window of another process is asked to fill in.
template <class Structure>
class Lent {
 public:
  Lent(HANDLE process, const Structure& value) : process_(process) {
    place_ = VirtualAllocEx(process, nullptr, sizeof value, MEM_COMMIT, PAGE_READWRITE);
    expect(place_ != nullptr && WriteProcessMemory(process, place_, &value, sizeof value, nullptr) != 0, "lending");
  }
  ~Lent() { VirtualFreeEx(process_, place_, 0, MEM_RELEASE); }
  Lent(const Lent&) = delete;
  Lent& operator=(const Lent&) = delete;

  Structure* place() const { return static_cast<Structure*>(place_); }
  Structure value() const {
    Structure value;
    expect(ReadProcessMemory(process_, place_, &value, sizeof value, nullptr) != 0, "reading");
    return value;
  }

 private:
  HANDLE process_;
  void* place_;
};

struct AskedCell {
  LVITEMW item;
  wchar_t text[128];
};

}  // namespace

std::string utf8(const std::wstring& text) {
  const int length = static_cast<int>(text.size());
  std::string bytes(text.size() * 3, '\0');
  bytes.resize(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(),
                                                            static_cast<int>(bytes.size()), nullptr, nullptr)));
  return bytes;
}

Program::Program(const std::wstring& folder) {
  std::wstring command = command_line(folder), desktop = Screen::desktop();
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.lpDesktop = desktop.data();
  expect(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &running_) != 0,
         "list_form does not start");
}

Program::~Program() {
  TerminateProcess(running_.hProcess, 99);
  WaitForSingleObject(running_.hProcess, INFINITE);
  CloseHandle(running_.hProcess);
  CloseHandle(running_.hThread);
}

DWORD Program::exit_code() const {
  expect(comes_true([&] { return ended(); }), "list_form does not end");
  DWORD code = 0;
  GetExitCodeProcess(running_.hProcess, &code);
  return code;
}

HWND visible_window(const wchar_t* class_name) {
  const HWND window = FindWindowW(class_name, nullptr);
  return window != nullptr && IsWindowVisible(window) ? window : nullptr;
}

Form::Form(const Program& program) : program_(program) {
  expect(comes_true([&] { return (window_ = visible_window(L"list_form")) != nullptr; }), "the form does not open");
  list_ = GetDlgItem(window_, kRows);
}

HWND Form::box(std::size_t column) const { return GetDlgItem(window_, kFirstBox + static_cast<int>(column)); }

void Form::type(std::size_t column, const std::wstring& text) const { type_into(box(column), text); }

void Form::press_enter(std::size_t column) const { press(box(column), VK_RETURN); }

void Form::search(std::size_t column, const std::wstring& text) const {
  type(column, text);
  press_enter(column);
}

// Each box is above its column.
void Form::click_heading(std::size_t column) const {
  const auto header = reinterpret_cast<HWND>(SendMessageW(list_, LVM_GETHEADER, 0, 0));
  RECT above, headings;
  GetWindowRect(box(column), &above);
  GetWindowRect(header, &headings);
  const LPARAM place = MAKELPARAM((above.left + above.right) / 2 - headings.left, (headings.bottom - headings.top) / 2);
  PostMessageW(header, WM_LBUTTONDOWN, MK_LBUTTON, place);
  PostMessageW(header, WM_LBUTTONUP, 0, place);
}

void Form::press_clear() const { PostMessageW(GetDlgItem(window_, kClear), BM_CLICK, 0, 0); }

void Form::save_filter(const std::wstring& name) const {
  type_into(FindWindowExW(GetDlgItem(window_, kFilterBox), nullptr, L"Edit", nullptr), name);
  PostMessageW(GetDlgItem(window_, kSave), BM_CLICK, 0, 0);
}

void Form::pick_filter(int number) const {
  const HWND filters = GetDlgItem(window_, kFilterBox);
  SendMessageW(filters, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  for (int i = 0; i < number; ++i) press(FindWindowExW(filters, nullptr, L"Edit", nullptr), VK_DOWN);
}

void Form::close() const { PostMessageW(window_, WM_CLOSE, 0, 0); }

std::vector<std::string> Form::filters() const {
  const HWND box = GetDlgItem(window_, kFilterBox);
  std::vector<std::string> names;
  for (LRESULT i = 0; i < SendMessageW(box, CB_GETCOUNT, 0, 0); ++i) {
    wchar_t name[256] = L"";
    SendMessageW(box, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(name));
    names.push_back(utf8(name));
  }
  return names;
}

std::string Form::cell(int row, int column) const {
  AskedCell asked{};
  const Lent<AskedCell> lent(program_.process(), asked);
  asked.item.iSubItem = column;
  asked.item.pszText = lent.place()->text;
  asked.item.cchTextMax = static_cast<int>(std::size(asked.text));
  WriteProcessMemory(program_.process(), lent.place(), &asked, sizeof asked.item, nullptr);
  SendMessageW(list_, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(lent.place()));
  return utf8(lent.value().text);
}

std::vector<std::string> Form::rows() const {
  std::vector<std::string> rows(static_cast<std::size_t>(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0)));
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (std::size_t column = 0; column < kColumns; ++column) {
      rows[row] += (column == 0 ? "" : ", ") + cell(static_cast<int>(row), static_cast<int>(column));
    }
  }
  return rows;
}

std::string Form::arrow() const {
  const auto header = reinterpret_cast<HWND>(SendMessageW(list_, LVM_GETHEADER, 0, 0));
  std::string arrows;
  for (std::size_t column = 0; column < kColumns; ++column) {
    HDITEMW asked{};
    asked.mask = HDI_FORMAT;
    const Lent<HDITEMW> lent(program_.process(), asked);
    SendMessageW(header, HDM_GETITEMW, column, reinterpret_cast<LPARAM>(lent.place()));
    const int format = lent.value().fmt;
    if ((format & HDF_SORTUP) != 0) arrows += std::to_string(column) + " up";
    if ((format & HDF_SORTDOWN) != 0) arrows += std::to_string(column) + " down";
  }
  return arrows;
}

bool Form::refused(std::size_t column) const {
  RECT place;
  GetWindowRect(box(column), &place);
  return colour_at({place.right - 4, (place.top + place.bottom) / 2}) == kRefused;
}

Sight Form::sight() const {
  Sight seen{rows(), utf8(wide_text_of(GetDlgItem(window_, kLine))), arrow(), {}, {}};
  for (std::size_t column = 0; column < kColumns; ++column) {
    seen.boxes[column] = utf8(wide_text_of(box(column)));
    if (refused(column)) seen.refused.push_back(column);
  }
  return seen;
}

Sight Form::becomes(const Sight& expected) const {
  Sight seen;
  comes_true([&] { return program_.ended() || (seen = sight()) == expected; });
  return seen;
}

Message message(const wchar_t* title) {
  Message found;
  const auto shown = [&] {
    found.window = FindWindowW(L"#32770", title);
    return found.window != nullptr && IsWindowVisible(found.window);
  };
  expect(comes_true(shown), "no message comes");
  found.text = utf8(wide_text_of(GetDlgItem(found.window, 0xFFFF)));
  return found;
}

void answer(const Message& message, int button) {
  PostMessageW(message.window, WM_COMMAND, static_cast<WPARAM>(button), 0);
  expect(comes_true([&] { return !IsWindow(message.window) || !IsWindowVisible(message.window); }),
         "the message stays");
}

std::ostream& operator<<(std::ostream& out, const Sight& sight) {
  for (const std::string& row : sight.rows) out << "\n  " << row;
  out << "\n  line: " << sight.line << "\n  arrow: " << sight.arrow << "\n  boxes:";
  for (const std::string& box : sight.boxes) out << " [" << box << "]";
  out << "\n  refused:";
  for (const std::size_t column : sight.refused) out << ' ' << column;
  return out << '\n';
}

}  // namespace qvr::tests
