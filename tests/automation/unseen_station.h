// A window station that nobody sees, as of a service: boxes are written to the debug output instead.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

namespace qvr::tests {

inline bool station_is_visible() {
  USEROBJECTFLAGS flags{};
  DWORD needed = 0;
  GetUserObjectInformationW(GetProcessWindowStation(), UOI_FLAGS, &flags, sizeof flags, &needed);
  return (flags.dwFlags & WSF_VISIBLE) != 0;
}

// The process on a station of its own for as long as this lives. Where it is on an unseen one already, it stays there.
class UnseenStation {
 public:
  UnseenStation() : before_(GetProcessWindowStation()) {
    if (!station_is_visible()) return;
    station_ = CreateWindowStationW(nullptr, 0, WINSTA_ALL_ACCESS, nullptr);
    EXPECT_NE(station_, nullptr) << GetLastError();
    EXPECT_NE(SetProcessWindowStation(station_), FALSE) << GetLastError();
  }
  ~UnseenStation() {
    if (station_ == nullptr) return;
    SetProcessWindowStation(before_);
    CloseWindowStation(station_);
  }
  UnseenStation(const UnseenStation&) = delete;
  UnseenStation& operator=(const UnseenStation&) = delete;

 private:
  HWINSTA before_, station_ = nullptr;
};

}  // namespace qvr::tests
