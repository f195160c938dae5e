#include <openssl/crypto.h>
#include <openssl/evp.h>

#include "base/failure.h"
#include "platform/parts.h"

namespace qvr::posix {
namespace {

void require(bool worked) {
  if (!worked) throw RuntimeFailure(failure_number::kInvalidArgument, u"The cryptographic library refused a call");
}

const EVP_CIPHER* ecb_for(std::size_t key_size) {
  switch (key_size) {
    case 16: return EVP_aes_128_ecb();
    case 24: return EVP_aes_192_ecb();
    case 32: return EVP_aes_256_ecb();
    default: return nullptr;
  }
}

class OpensslAes : public BlockCipher {
 public:
  explicit OpensslAes(Bytes key) : context_(EVP_CIPHER_CTX_new(), EVP_CIPHER_CTX_free) {
    const EVP_CIPHER* cipher = ecb_for(key.size());
    require(cipher != nullptr && context_ != nullptr);
    require(EVP_EncryptInit_ex(context_.get(), cipher, nullptr, key.data(), nullptr) == 1);
    EVP_CIPHER_CTX_set_padding(context_.get(), 0);
  }

  void encrypt(MutableBytes blocks) override {
    int written = 0;
    require(EVP_EncryptUpdate(context_.get(), blocks.data(), &written, blocks.data(),
                              static_cast<int>(blocks.size())) == 1 &&
            static_cast<std::size_t>(written) == blocks.size());
  }

 private:
  std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> context_;
};

class OpensslCryptography final : public Cryptography {
 public:
  std::unique_ptr<BlockCipher> aes(Bytes key) override { return std::make_unique<OpensslAes>(key); }

  void pbkdf2_hmac_sha256(Bytes password, Bytes salt, std::uint32_t rounds, MutableBytes derived) override {
    require(PKCS5_PBKDF2_HMAC(reinterpret_cast<const char*>(password.data()), static_cast<int>(password.size()),
                              salt.data(), static_cast<int>(salt.size()), static_cast<int>(rounds), EVP_sha256(),
                              static_cast<int>(derived.size()), derived.data()) == 1);
  }

  void wipe(MutableBytes secret) override { OPENSSL_cleanse(secret.data(), secret.size()); }
};

}  // namespace
}  // namespace qvr::posix

qvr::Cryptography& qvr::platform_parts::cryptography() {
  static posix::OpensslCryptography instance;
  return instance;
}
