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

// The system's own file, whatever lies beside the program.
HMODULE system_library(const wchar_t* name) {
  wchar_t folder[MAX_PATH];
  const std::wstring path = std::wstring(folder, GetSystemDirectoryW(folder, MAX_PATH)) + L"\\" + name;
  return LoadLibraryW(path.c_str());
}

// The functions of bcrypt.dll, which is loaded with the first key instead of being imported: loading it takes longer
// than a program's first list. It stays loaded, as the handles of algorithms stay open.
class Bcrypt {
  struct Found {
    FARPROC address;
    template <class Function>
    operator Function*() const {
      return reinterpret_cast<Function*>(reinterpret_cast<void*>(address));
    }
  };

  Found function(const char* name) const {
    const FARPROC address = library_ == nullptr ? nullptr : GetProcAddress(library_, name);
    if (address == nullptr) {
      throw RuntimeFailure(failure_number::kFile, u"The system's cryptographic library cannot be loaded");
    }
    return {address};
  }

  const HMODULE library_ = system_library(L"bcrypt.dll");

 public:
  const decltype(&BCryptOpenAlgorithmProvider) open_algorithm_provider = function("BCryptOpenAlgorithmProvider");
  const decltype(&BCryptSetProperty) set_property = function("BCryptSetProperty");
  const decltype(&BCryptCreateHash) create_hash = function("BCryptCreateHash");
  const decltype(&BCryptHashData) hash_data = function("BCryptHashData");
  const decltype(&BCryptFinishHash) finish_hash = function("BCryptFinishHash");
  const decltype(&BCryptDestroyHash) destroy_hash = function("BCryptDestroyHash");
  const decltype(&BCryptGenerateSymmetricKey) generate_symmetric_key = function("BCryptGenerateSymmetricKey");
  const decltype(&BCryptEncrypt) encrypt = function("BCryptEncrypt");
  const decltype(&BCryptDestroyKey) destroy_key = function("BCryptDestroyKey");
  const decltype(&BCryptDeriveKeyPBKDF2) derive_key = function("BCryptDeriveKeyPBKDF2");
};

const Bcrypt& bcrypt() {
  static const Bcrypt loaded;
  return loaded;
}

PUCHAR writable(Bytes bytes) { return const_cast<PUCHAR>(bytes.data()); }

// Opened once per process and never closed: closing can unload the provider's DLL, and keys are destroyed at thread
// detach, under the loader lock.
BCRYPT_ALG_HANDLE open_algorithm(LPCWSTR name, ULONG flags) {
  BCRYPT_ALG_HANDLE handle = nullptr;
  require(bcrypt().open_algorithm_provider(&handle, name, nullptr, flags));
  return handle;
}

BCRYPT_ALG_HANDLE aes_in_blocks() {
  static const BCRYPT_ALG_HANDLE handle = [] {
    const BCRYPT_ALG_HANDLE opened = open_algorithm(BCRYPT_AES_ALGORITHM, 0);
    require(bcrypt().set_property(opened, BCRYPT_CHAINING_MODE,
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
    require(bcrypt().create_hash(sha256(), &hash, nullptr, 0, nullptr, 0, 0));
    const std::unique_ptr<void, decltype(&BCryptDestroyHash)> destroy(hash, bcrypt().destroy_hash);
    require(bcrypt().hash_data(hash, writable(password), static_cast<ULONG>(password.size()), 0));
    require(bcrypt().finish_hash(hash, hashed_.data(), static_cast<ULONG>(hashed_.size()), 0));
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
    require(bcrypt().generate_symmetric_key(aes_in_blocks(), &key_, nullptr, 0, writable(key),
                                            static_cast<ULONG>(key.size()), 0));
  }
  ~CngAes() override { bcrypt().destroy_key(key_); }
  CngAes(const CngAes&) = delete;
  CngAes& operator=(const CngAes&) = delete;

  void encrypt(MutableBytes blocks) override {
    ULONG written = 0;
    const auto size = static_cast<ULONG>(blocks.size());
    require(bcrypt().encrypt(key_, blocks.data(), size, nullptr, nullptr, 0, blocks.data(), size, &written, 0));
  }

 private:
  BCRYPT_KEY_HANDLE key_ = nullptr;
};

class Cng final : public Cryptography {
 public:
  std::unique_ptr<BlockCipher> aes(Bytes key) override { return std::make_unique<CngAes>(key); }

  void pbkdf2_hmac_sha256(Bytes password, Bytes salt, std::uint32_t rounds, MutableBytes derived) override {
    const HmacKey key(password);
    require(bcrypt().derive_key(hmac_sha256(), writable(key.bytes()), static_cast<ULONG>(key.bytes().size()),
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
