#include "qvrscript/check/digest.h"

#include <openssl/evp.h>

#include "base/failure.h"

namespace qvr::script_tool {

std::array<std::uint8_t, 32> sha256(std::string_view bytes) {
  std::array<std::uint8_t, 32> digest{};
  unsigned int size = 0;
  if (EVP_Digest(bytes.data(), bytes.size(), digest.data(), &size, EVP_sha256(), nullptr) != 1) {
    throw RuntimeFailure(failure_number::kInvalidArgument, u"The cryptographic library refused a call");
  }
  return digest;
}

}  // namespace qvr::script_tool
