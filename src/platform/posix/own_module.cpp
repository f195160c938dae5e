#include <unistd.h>

#include <array>

#include "base/failure.h"
#include "base/utf8.h"
#include "platform/posix/parts.h"

namespace qvr::posix {
namespace {

class ProgramModule final : public OwnModule {
 public:
  Text path() override {
    std::array<char, 4096> buffer;
    const ssize_t size = ::readlink("/proc/self/exe", buffer.data(), buffer.size());
    if (size <= 0) throw RuntimeFailure(failure_number::kFile);
    return from_utf8({buffer.data(), static_cast<std::size_t>(size)}).value_or(Text());
  }
};

}  // namespace

OwnModule& own_module() {
  static ProgramModule instance;
  return instance;
}

}  // namespace qvr::posix
