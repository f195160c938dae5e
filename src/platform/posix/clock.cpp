#include <ctime>

#include "base/date_text.h"
#include "base/failure.h"
#include "platform/posix/parts.h"

namespace qvr::posix {
namespace {

class SystemClock final : public Clock {
 public:
  Date now() override {
    const std::time_t moment = std::time(nullptr);
    std::tm local{};
    if (::localtime_r(&moment, &local) == nullptr) throw RuntimeFailure(failure_number::kOverflow);
    const int second = local.tm_sec < 60 ? local.tm_sec : 59;  // no calendar of ours has leap seconds
    return date_from({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, second})
        .value();
  }
};

}  // namespace

Clock& clock() {
  static SystemClock instance;
  return instance;
}

}  // namespace qvr::posix
