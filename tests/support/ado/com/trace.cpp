#include "support/ado/com/trace.h"

#include <windows.h>

#include <map>
#include <mutex>
#include <string>

#include "base/utf8.h"
#include "support/ado/behaviour.h"

namespace qvr::tests::com {
namespace {

Text environment(const wchar_t* name) {
  Text value(64, u'\0');
  for (;;) {
    const DWORD size = static_cast<DWORD>(value.size());
    const DWORD needed = GetEnvironmentVariableW(name, reinterpret_cast<wchar_t*>(value.data()), size);
    const bool complete = needed < size;
    value.resize(needed);
    if (complete) return value;
  }
}

void append(const Text& path, const std::string& line) {
  HANDLE file = CreateFileW(reinterpret_cast<const wchar_t*>(path.c_str()), FILE_APPEND_DATA,
                            FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return;  // the test misses the lines it expects
  DWORD written = 0;
  WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
}

void log(TextView operation, TextView detail) {
  const Text path = environment(L"TESTADO_LOG");
  if (path.empty()) return;
  const Text one_line = replace_all(detail, kLineBreak, u" | ");
  append(path, to_utf8(join({operation, one_line.empty() ? u"" : u" ", one_line, u"\n"})));
}

// Counts the calls of each operation against the list that was in force.
class FailurePlan {
 public:
  bool fails(TextView operation) {
    const std::lock_guard guard(mutex_);
    if (Text list = environment(L"TESTADO_FAIL"); list != list_) {
      list_ = std::move(list);
      calls_.clear();
    }
    return asks_for(operation, ++calls_[Text(operation)]);
  }

 private:
  bool asks_for(TextView operation, int call) const {
    const Text numbered = join({operation, u":", decimal(call)});
    TextView rest = list_;
    while (!rest.empty()) {
      const TextView entry = rest.substr(0, rest.find(u','));
      if (entry == operation || entry == numbered) return true;
      rest.remove_prefix(entry.size() == rest.size() ? entry.size() : entry.size() + 1);
    }
    return false;
  }

  std::mutex mutex_;
  Text list_;
  std::map<Text, int> calls_;
};

FailurePlan& failure_plan() {
  static FailurePlan plan;
  return plan;
}

}  // namespace

void trace(TextView operation, TextView detail) {
  log(operation, detail);
  if (!failure_plan().fails(operation)) return;
  throw RuntimeFailure(FailureDetail{hresult::kFail, join({u"injected failure: ", operation}), u"testado"});
}

}  // namespace qvr::tests::com
