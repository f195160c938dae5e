#include "frame/failure.h"
#include "frame/windows/parts.h"

#include <bcrypt.h>

namespace qvr::windows {
namespace {

void require(NTSTATUS status) {
  if (status < 0) {
    throw RuntimeFailure(failure_number::kInvalidArgument, u"The system's cryptographic library refused a call");
  }
}

PUCHAR writable(Bytes bytes) { return const_cast<PUCHAR>(bytes.data()); }

class Algorithm {
 public:
  Algorithm(LPCWSTR name, ULONG flags) { require(BCryptOpenAlgorithmProvider(&handle_, name, nullptr, flags)); }
  ~Algorithm() { BCryptCloseAlgorithmProvider(handle_, 0); }
  Algorithm(const Algorithm&) = delete;
  Algorithm& operator=(const Algorithm&) = delete;
  BCRYPT_ALG_HANDLE get() const { return handle_; }

 private:
  BCRYPT_ALG_HANDLE handle_ = nullptr;
};

class CngAes : public BlockCipher {
 public:
  explicit CngAes(Bytes key) : algorithm_(BCRYPT_AES_ALGORITHM, 0) {
    require(BCryptSetProperty(algorithm_.get(), BCRYPT_CHAINING_MODE,
                              reinterpret_cast<PUCHAR>(const_cast<wchar_t*>(BCRYPT_CHAIN_MODE_ECB)),
                              sizeof BCRYPT_CHAIN_MODE_ECB, 0));
    require(BCryptGenerateSymmetricKey(algorithm_.get(), &key_, nullptr, 0, writable(key),
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
  Algorithm algorithm_;
  BCRYPT_KEY_HANDLE key_ = nullptr;
};

class Cng final : public Cryptography {
 public:
  std::unique_ptr<BlockCipher> aes(Bytes key) override { return std::make_unique<CngAes>(key); }

  void pbkdf2_hmac_sha256(Bytes password, Bytes salt, std::uint32_t rounds, MutableBytes derived) override {
    const Algorithm hmac(BCRYPT_SHA256_ALGORITHM, BCRYPT_ALG_HANDLE_HMAC_FLAG);
    require(BCryptDeriveKeyPBKDF2(hmac.get(), writable(password), static_cast<ULONG>(password.size()), writable(salt),
                                  static_cast<ULONG>(salt.size()), rounds, derived.data(),
                                  static_cast<ULONG>(derived.size()), 0));
  }

  void wipe(MutableBytes secret) override { SecureZeroMemory(secret.data(), secret.size()); }
};

}  // namespace

Cryptography& cryptography() {
  static Cng instance;
  return instance;
}

}  // namespace qvr::windows
