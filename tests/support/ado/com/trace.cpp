#include "support/ado/com/trace.h"

#include <windows.h>

#include <atomic>
#include <map>
#include <mutex>
#include <string>

#include "base/utf8.h"
#include "support/ado/behaviour.h"

namespace qvr::tests::com {
namespace {

void append(const std::wstring& path, const std::string& line) {
  HANDLE file = CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                            FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return;  // the test misses the lines it expects
  DWORD written = 0;
  WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
}

class Watch {
 public:
  void begin(const wchar_t* failures, const wchar_t* log) {
    const std::lock_guard guard(mutex_);
    failures_ = failures != nullptr ? Text(failures, failures + wcslen(failures)) : Text();
    log_ = log != nullptr ? log : L"";
    calls_.clear();
    under_way_ = failures != nullptr || log != nullptr;
  }

  bool under_way() const { return under_way_; }

  // True when the call is to fail.
  bool note(TextView operation, TextView detail) {
    const std::lock_guard guard(mutex_);
    const Text one_line = replace_all(detail, kLineBreak, u" | ");
    append(log_, to_utf8(join({operation, one_line.empty() ? u"" : u" ", one_line, u"\n"})));
    return asks_for(operation, ++calls_[Text(operation)]);
  }

 private:
  bool asks_for(TextView operation, int call) const {
    const Text numbered = join({operation, u":", decimal(call)});
    TextView rest = failures_;
    while (!rest.empty()) {
      const TextView entry = rest.substr(0, rest.find(u','));
      if (entry == operation || entry == numbered) return true;
      rest.remove_prefix(entry.size() == rest.size() ? entry.size() : entry.size() + 1);
    }
    return false;
  }

  std::mutex mutex_;
  std::atomic<bool> under_way_ = false;
  Text failures_;
  std::wstring log_;
  std::map<Text, int> calls_;
};

struct Listener {
  void (*on_call)(const wchar_t* operation, void* context) = nullptr;
  void* context = nullptr;
};

thread_local Listener listener;

Watch& watch() {
  static Watch only;
  return only;
}

}  // namespace

void trace(TextView operation, TextView detail) {
  if (const Listener now = listener; now.on_call != nullptr) {
    now.on_call(std::wstring(operation.begin(), operation.end()).c_str(), now.context);
  }
  if (!watch().under_way() || !watch().note(operation, detail)) return;
  throw RuntimeFailure(FailureDetail{hresult::kFail, join({u"injected failure: ", operation}), u"testado"});
}

}  // namespace qvr::tests::com

extern "C" void TellCalls(void (*on_call)(const wchar_t* operation, void* context), void* context) {
  qvr::tests::com::listener = {on_call, context};
}

extern "C" void WatchCalls(const wchar_t* failures, const wchar_t* log) {
  qvr::tests::com::watch().begin(failures, log);
}
