// Opening a connection file: the first time on a thread, which derives its key, and again.
#include <windows.h>

#include <bcrypt.h>

#include <array>
#include <string_view>

#include "automation/by_hand.h"
#include "automation/measures.h"

namespace qvr::bench {
namespace {

using namespace qvr::tests;

constexpr wchar_t kIdentification[] = L"bench", kName[] = L"tienda", kServer[] = L"servidor";

std::wstring file_path() { return work_folder() + L"\\" + kName + L".cfp"; }

void save() {
  const LateObject parameters(L"QVRlib21.QVRcfp");
  require_true(parameters.call(L"Asignar", {kIdentification, 2, L"SQLOLEDB", kServer, L"Tienda", L"sa", L"secreta",
                                            L"caja", L"otra", L"Connect Timeout=5"}));
  require_true(parameters.call(L"Guardar", {kIdentification, work_folder(), kName}));
}

void open_with(const LateObject& parameters) {
  require_true(parameters.call(L"Crear", {kIdentification, work_folder(), kName}));
}

void require_contents(const LateObject& parameters) {
  require(parameters.get(L"DataSource").value.text() == kServer, "the file has other parameters");
}

void open_first() {
  on_fresh_thread([] {
    const LateObject parameters(L"QVRlib21.QVRcfp");
    open_with(parameters);
    require_contents(parameters);
  });
}

// What the built-in text protection derives for this identification.
void derive_key() {
  on_fresh_thread([] {
    std::string password = "<bench>", salt = "QVRlib21 text protection 1";
    std::array<UCHAR, 64> key{};
    BCRYPT_ALG_HANDLE algorithm = nullptr;
    BCryptOpenAlgorithmProvider(&algorithm, BCRYPT_SHA256_ALGORITHM, nullptr, BCRYPT_ALG_HANDLE_HMAC_FLAG);
    const NTSTATUS derived = BCryptDeriveKeyPBKDF2(algorithm, reinterpret_cast<PUCHAR>(password.data()),
                                                   static_cast<ULONG>(password.size()),
                                                   reinterpret_cast<PUCHAR>(salt.data()),
                                                   static_cast<ULONG>(salt.size()), 100000, key.data(), key.size(), 0);
    BCryptCloseAlgorithmProvider(algorithm, 0);
    require(derived >= 0 && key != decltype(key){}, "the key cannot be derived");
  });
}

void read_by_hand() {
  const HANDLE file = CreateFileW(file_path().c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  std::array<char, 8192> bytes;
  DWORD count = 0;
  const bool read = ReadFile(file, bytes.data(), bytes.size(), &count, nullptr) != FALSE;
  CloseHandle(file);
  require(read && std::string_view(bytes.data(), count).ends_with("\r\n"), "the file cannot be read");
}

}  // namespace

void measure_connection_file(Times& times) {
  save();
  times.beside("ConnectionFileFirst", open_first, derive_key, 1, 15);
  const LateObject parameters(L"QVRlib21.QVRcfp");
  times.beside(
      "ConnectionFileAgain", [&] { open_with(parameters); }, read_by_hand, 100, 15);
  require_contents(parameters);
}

}  // namespace qvr::bench
