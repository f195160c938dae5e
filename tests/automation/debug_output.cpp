#include "automation/debug_output.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <mutex>
#include <string_view>
#include <utility>

#include "support/traced.h"

namespace qvr::tests {
namespace {

constexpr std::wstring_view kPrefix = L"QVRlib21: ", kEnd = L"\r\n";

// The place in the source at the end of a traced line: " (folder/file.cpp:12)".
std::size_t place_in(std::wstring_view line) {
  const std::size_t at = line.rfind(L" (");
  const bool place = at != line.npos && line.ends_with(L')') && line.find(L".cpp:", at) != line.npos;
  return place || (at != line.npos && line.find(L".h:", at) != line.npos) ? at : line.npos;
}

// In fixed memory, as the handler runs where memory may be short.
class Lines {
 public:
  void add(std::wstring_view text) {
    const std::lock_guard lock(mutex_);
    if (count_ < kept_.size()) {
      Line& kept = kept_[count_];
      kept.size = std::min(text.size(), kept.text.size());
      std::copy_n(text.begin(), kept.size, kept.text.begin());
    }
    ++count_;
  }

  // Those of one kind; the others stay.
  std::vector<std::wstring> take(bool wanted_traced) {
    const std::lock_guard lock(mutex_);
    std::vector<std::wstring> taken;
    std::size_t staying = 0;
    for (std::size_t i = 0; i < std::min(count_, kept_.size()); ++i) {
      const std::wstring_view line(kept_[i].text.data(), kept_[i].size);
      const std::size_t place = place_in(line.substr(0, line.size() - std::min(line.size(), kEnd.size())));
      if ((place != line.npos) != wanted_traced) {
        kept_[staying++] = kept_[i];
      } else {
        taken.emplace_back(wanted_traced ? line.substr(kPrefix.size(), place - kPrefix.size()) : line);
      }
    }
    if (count_ > kept_.size()) taken.push_back(L"and more");
    count_ = staying;
    return taken;
  }

 private:
  struct Line {
    std::size_t size;
    std::array<wchar_t, 1500> text;
  };
  std::array<Line, 200> kept_;
  std::size_t count_ = 0;
  std::mutex mutex_;
};

Lines lines;
bool any_expected = false;

LONG CALLBACK on_exception(EXCEPTION_POINTERS* pointers) {
  constexpr DWORD kPrinted = 0x40010006, kPrintedWide = 0x4001000A;  // the second on newer systems only
  const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
  if (record.ExceptionCode != kPrinted && record.ExceptionCode != kPrintedWide) return EXCEPTION_CONTINUE_SEARCH;
  wchar_t buffer[1500];
  const auto* text = reinterpret_cast<const wchar_t*>(record.ExceptionInformation[1]);
  if (record.ExceptionCode == kPrinted) {
    const auto* bytes = reinterpret_cast<const char*>(record.ExceptionInformation[1]);
    if (MultiByteToWideChar(CP_ACP, 0, bytes, -1, buffer, static_cast<int>(std::size(buffer))) == 0) {
      return EXCEPTION_CONTINUE_SEARCH;
    }
    text = buffer;
  }
  if (std::wstring_view(text).starts_with(kPrefix)) lines.add(text);
  return EXCEPTION_CONTINUE_EXECUTION;
}

class TracesAreAnnounced : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override {
    handler_ = AddVectoredExceptionHandler(1, on_exception);
    any_expected = false;
    box_lines();
    traced();
  }
  void OnTestEnd(const testing::TestInfo&) override {
    RemoveVectoredExceptionHandler(handler_);
    const auto left = lines.take(true);
    if (any_expected) return;
    for (const std::wstring& line : left) {
      ADD_FAILURE() << "traced, but not announced: " << testing::PrintToString(line);
    }
  }
  void* handler_ = nullptr;
};

// Owned by the list of listeners.
[[maybe_unused]] const auto* const listening = [] {
  auto* const listener = new TracesAreAnnounced;
  testing::UnitTest::GetInstance()->listeners().Append(listener);
  return listener;
}();

}  // namespace

std::vector<std::wstring> box_lines() { return lines.take(false); }

std::vector<Text> traced() {
  std::vector<Text> taken;
  for (const std::wstring& line : lines.take(true)) taken.emplace_back(line.begin(), line.end());
  return taken;
}

void expect_any_traces() { any_expected = true; }

}  // namespace qvr::tests
