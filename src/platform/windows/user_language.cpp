#include "platform/windows/parts.h"

namespace qvr::windows {
namespace {

class SystemUserLanguage final : public UserLanguage {
 public:
  std::uint16_t default_identifier() override { return GetUserDefaultLangID(); }
};

}  // namespace

UserLanguage& user_language() {
  static SystemUserLanguage instance;
  return instance;
}

}  // namespace qvr::windows
