#include "base/date_text.h"
#include "platform/windows/parts.h"

namespace qvr::windows {
namespace {

class SystemClock final : public Clock {
 public:
  Date now() override {
    SYSTEMTIME local;
    GetLocalTime(&local);
    return date_from({local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond}).value();
  }
};

}  // namespace

Clock& clock() {
  static SystemClock instance;
  return instance;
}

}  // namespace qvr::windows
