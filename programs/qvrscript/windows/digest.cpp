#include "qvrscript/check/digest.h"

#include <windows.h>

#include <bcrypt.h>

#include <memory>

#include "base/failure.h"

namespace qvr::script_tool {
namespace {

void require(NTSTATUS status) {
  if (status < 0) {
    throw RuntimeFailure(failure_number::kInvalidArgument, u"The system's cryptographic library refused a call");
  }
}

void close_algorithm(BCRYPT_ALG_HANDLE handle) { BCryptCloseAlgorithmProvider(handle, 0); }

PUCHAR writable(std::string_view bytes) { return reinterpret_cast<PUCHAR>(const_cast<char*>(bytes.data())); }

}  // namespace

std::array<std::uint8_t, 32> sha256(std::string_view bytes) {
  std::array<std::uint8_t, 32> digest{};
  BCRYPT_ALG_HANDLE algorithm = nullptr;
  require(BCryptOpenAlgorithmProvider(&algorithm, BCRYPT_SHA256_ALGORITHM, nullptr, 0));
  const std::unique_ptr<void, decltype(&close_algorithm)> opened(algorithm, close_algorithm);
  BCRYPT_HASH_HANDLE hash = nullptr;
  require(BCryptCreateHash(algorithm, &hash, nullptr, 0, nullptr, 0, 0));
  const std::unique_ptr<void, decltype(&BCryptDestroyHash)> made(hash, BCryptDestroyHash);
  require(BCryptHashData(hash, writable(bytes), static_cast<ULONG>(bytes.size()), 0));
  require(BCryptFinishHash(hash, digest.data(), static_cast<ULONG>(digest.size()), 0));
  return digest;
}

}  // namespace qvr::script_tool
