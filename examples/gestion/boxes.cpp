#include "boxes.h"

#include "automation.h"

namespace gestion {
namespace {

constexpr DWORD kPatience = 330'000;

std::wstring beside_this_program(const wchar_t* name) {
  wchar_t own[4096];
  const DWORD length = GetModuleFileNameW(nullptr, own, static_cast<DWORD>(std::size(own)));
  expect(length != 0 && length < std::size(own), L"This program does not know where it is");
  std::wstring path(own, length);
  return path.replace(path.find_last_of(L'\\') + 1, std::wstring::npos, name);
}

}  // namespace

BoxAnswerer::BoxAnswerer(const std::wstring& answer, int boxes) {
  const std::wstring program = beside_this_program(L"answer_boxes.exe");
  std::wstring command = L"\"" + program + L"\" " + answer + L" " + std::to_wstring(boxes);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
  start.hStdOutput = GetStdHandle(STD_OUTPUT_HANDLE);
  start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  PROCESS_INFORMATION started{};
  expect(CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                        &started) != FALSE,
         L"The program that answers boxes cannot be started: " + program);
  CloseHandle(started.hThread);
  process_ = started.hProcess;
}

BoxAnswerer::~BoxAnswerer() {
  if (WaitForSingleObject(process_, 0) == WAIT_TIMEOUT) TerminateProcess(process_, 3);
  CloseHandle(process_);
}

void BoxAnswerer::expect_all_answered() {
  expect(WaitForSingleObject(process_, kPatience) == WAIT_OBJECT_0, L"The program that answers boxes does not end");
  DWORD code = 1;
  GetExitCodeProcess(process_, &code);
  expect(code == 0, L"Not all boxes came, or one could not be answered");
}

}  // namespace gestion
