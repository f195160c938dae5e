#include "base/failure.h"
#include "platform/parts.h"
#include "platform/windows/wide_text.h"

#include <bcrypt.h>

namespace qvr::windows {
namespace {

void require(NTSTATUS status) {
  if (status < 0) {
    throw RuntimeFailure(failure_number::kInvalidArgument, u"The system's cryptographic library refused a call");
  }
}

PUCHAR writable(Bytes bytes) { return const_cast<PUCHAR>(bytes.data()); }

// Opened once per process and never closed: closing can unload the provider's DLL, and keys are destroyed at thread
// detach, under the loader lock.
BCRYPT_ALG_HANDLE open_algorithm(LPCWSTR name, ULONG flags) {
  BCRYPT_ALG_HANDLE handle = nullptr;
  require(BCryptOpenAlgorithmProvider(&handle, name, nullptr, flags));
  return handle;
}

BCRYPT_ALG_HANDLE aes_in_blocks() {
  static const BCRYPT_ALG_HANDLE handle = [] {
    const BCRYPT_ALG_HANDLE opened = open_algorithm(BCRYPT_AES_ALGORITHM, 0);
    require(BCryptSetProperty(opened, BCRYPT_CHAINING_MODE,
                              reinterpret_cast<PUCHAR>(const_cast<wchar_t*>(BCRYPT_CHAIN_MODE_ECB)),
                              sizeof BCRYPT_CHAIN_MODE_ECB, 0));
    return opened;
  }();
  return handle;
}

BCRYPT_ALG_HANDLE hmac_sha256() {
  static const BCRYPT_ALG_HANDLE handle = open_algorithm(BCRYPT_SHA256_ALGORITHM, BCRYPT_ALG_HANDLE_HMAC_FLAG);
  return handle;
}

BCRYPT_ALG_HANDLE sha256() {
  static const BCRYPT_ALG_HANDLE handle = open_algorithm(BCRYPT_SHA256_ALGORITHM, 0);
  return handle;
}

// HMAC takes a key that is longer than a block as its hash. An implementation of PBKDF2 that leaves this to HMAC hashes
// the whole password in every round, as Wine's does; ten thousand characters then take eleven seconds. OpenSSL hashes
// it once for all rounds.
class HmacKey {
 public:
  explicit HmacKey(Bytes password) : key_(password) {
    constexpr std::size_t kBlock = 64;
    if (password.size() <= kBlock) return;
    BCRYPT_HASH_HANDLE hash = nullptr;
    require(BCryptCreateHash(sha256(), &hash, nullptr, 0, nullptr, 0, 0));
    const std::unique_ptr<void, decltype(&BCryptDestroyHash)> destroy(hash, &BCryptDestroyHash);
    require(BCryptHashData(hash, writable(password), static_cast<ULONG>(password.size()), 0));
    require(BCryptFinishHash(hash, hashed_.data(), static_cast<ULONG>(hashed_.size()), 0));
    key_ = hashed_;
  }
  ~HmacKey() { SecureZeroMemory(hashed_.data(), hashed_.size()); }
  HmacKey(const HmacKey&) = delete;
  HmacKey& operator=(const HmacKey&) = delete;
  Bytes bytes() const { return key_; }

 private:
  std::array<std::uint8_t, 32> hashed_{};
  Bytes key_;
};

class CngAes : public BlockCipher {
 public:
  explicit CngAes(Bytes key) {
    require(BCryptGenerateSymmetricKey(aes_in_blocks(), &key_, nullptr, 0, writable(key),
                                       static_cast<ULONG>(key.size()), 0));
  }
  ~CngAes() override { BCryptDestroyKey(key_); }
  CngAes(const CngAes&) = delete;
  CngAes& operator=(const CngAes&) = delete;

  void encrypt(MutableBytes blocks) override {
    ULONG written = 0;
    const auto size = static_cast<ULONG>(blocks.size());
    require(BCryptEncrypt(key_, blocks.data(), size, nullptr, nullptr, 0, blocks.data(), size, &written, 0));
  }

 private:
  BCRYPT_KEY_HANDLE key_ = nullptr;
};

class Cng final : public Cryptography {
 public:
  std::unique_ptr<BlockCipher> aes(Bytes key) override { return std::make_unique<CngAes>(key); }

  void pbkdf2_hmac_sha256(Bytes password, Bytes salt, std::uint32_t rounds, MutableBytes derived) override {
    const HmacKey key(password);
    require(BCryptDeriveKeyPBKDF2(hmac_sha256(), writable(key.bytes()), static_cast<ULONG>(key.bytes().size()),
                                  writable(salt), static_cast<ULONG>(salt.size()), rounds, derived.data(),
                                  static_cast<ULONG>(derived.size()), 0));
  }

  void wipe(MutableBytes secret) override { SecureZeroMemory(secret.data(), secret.size()); }
};

}  // namespace
}  // namespace qvr::windows

qvr::Cryptography& qvr::platform_parts::cryptography() {
  static windows::Cng instance;
  return instance;
}
