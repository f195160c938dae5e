// No copy of a password stays in the memory of the process.
#include "automation/both.h"
#include "automation/library.h"

namespace qvr::tests {
namespace {

// The password with inverted units, so that the test program itself does not contain it.
constexpr wchar_t kMask = 0x1555;
constexpr wchar_t masked(wchar_t unit) { return static_cast<wchar_t>(unit ^ kMask); }
constexpr wchar_t kMasked[] = {masked(L'K'), masked(L'3'), masked(L'y'), masked(L'-'), masked(L'o'), masked(L'f'),
                               masked(L'-'), masked(L'n'), masked(L'o'), masked(L'b'), masked(L'o'), masked(L'd'),
                               masked(L'y'), masked(L'-'), masked(L'7'), masked(L'2'), masked(L'9'), masked(L'1'),
                               masked(L'-'), masked(L'5'), masked(L'6'), masked(L'3'), masked(L'0'), masked(L'8')};
constexpr std::size_t kLength = std::size(kMasked);

// A BSTR of the host that is wiped on destruction.
class Password {
 public:
  Password() : string_(SysAllocStringLen(nullptr, kLength)) {
    for (std::size_t i = 0; i < kLength; ++i) string_[i] = static_cast<wchar_t>(kMasked[i] ^ kMask);
  }
  ~Password() { forget(string_); }
  Password(const Password&) = delete;
  Password& operator=(const Password&) = delete;
  BSTR* out() { return &string_; }
  VARIANT variant() const {
    VARIANT argument;
    argument.vt = VT_BSTR;
    argument.bstrVal = string_;
    return argument;
  }
  static void forget(BSTR string) {
    if (string != nullptr) SecureZeroMemory(string, SysStringByteLen(string));
    SysFreeString(string);
  }

 private:
  BSTR string_;
};

template <class Unit>
bool is_password(const Unit* at) {
  for (std::size_t i = 0; i < kLength; ++i) {
    if (static_cast<wchar_t>(at[i] ^ static_cast<Unit>(kMask)) != static_cast<wchar_t>(static_cast<Unit>(kMasked[i])))
      return false;
  }
  return true;
}

std::size_t copies_in(const unsigned char* from, std::size_t size) {
  std::size_t found = 0;
  for (std::size_t at = 0; at + kLength * sizeof(wchar_t) <= size; ++at) {
    if (from[at] != static_cast<unsigned char>(kMasked[0] ^ kMask)) continue;
    if (at % 2 == 0 && is_password(reinterpret_cast<const wchar_t*>(from + at))) ++found;
    if (is_password(from + at)) ++found;
  }
  return found;
}

// Occurrences of the password in writable memory, as UTF-16 or UTF-8.
std::size_t copies_in_memory() {
  std::size_t found = 0;
  MEMORY_BASIC_INFORMATION region;
  for (const unsigned char* at = nullptr; VirtualQuery(at, &region, sizeof region) != 0;) {
    const auto* const start = static_cast<const unsigned char*>(region.BaseAddress);
    constexpr DWORD kWritable = PAGE_READWRITE | PAGE_WRITECOPY;
    const bool readable = region.State == MEM_COMMIT && (region.Protect & kWritable) && !(region.Protect & PAGE_GUARD);
    if (readable) found += copies_in(start, region.RegionSize);
    if (start + region.RegionSize <= at) break;
    at = start + region.RegionSize;
  }
  return found;
}

void use_early(_QVRcfp& cfp) {
  Bstr id(L"id"), text(L"text"), folder(work_folder()), name(L"secrets");
  MotoresBD engine = MotorBDSQLServer;
  Password admin, client;
  VARIANT_BOOL done = VARIANT_FALSE, yes = VARIANT_TRUE;
  BSTR given = nullptr;
  EXPECT_EQ(cfp.Asignar(&id, &engine, &text, &text, &text, &text, admin.out(), &text, client.out(), &text, &done),
            S_OK);
  cfp.CadenaADO(&id, &yes, &given);
  EXPECT_GT(SysStringLen(given), kLength);
  Password::forget(std::exchange(given, nullptr));
  cfp.CadenaADOUsuario(&text, client.out(), &given);
  Password::forget(std::exchange(given, nullptr));
  cfp.get_ClaveAdm(&id, &given);
  EXPECT_EQ(SysStringLen(given), kLength);
  Password::forget(std::exchange(given, nullptr));
  EXPECT_EQ(cfp.Guardar(&id, &folder, &name, &done), S_OK);
  EXPECT_EQ(done, VARIANT_TRUE);
  EXPECT_EQ(cfp.Crear(&id, &folder, &name, &done), S_OK);
  EXPECT_EQ(done, VARIANT_TRUE);
}

void use_late(const LateObject& cfp) {
  const Password client;
  Bstr user(L"user");
  VARIANT arguments[2]{client.variant()};
  arguments[1].vt = VT_BSTR;
  arguments[1].bstrVal = user.get();
  DISPPARAMS parameters{arguments, nullptr, 2, 0};
  LPOLESTR name = const_cast<LPOLESTR>(L"CadenaADOUsuario");
  DISPID id = 0;
  ASSERT_EQ(cfp.get()->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id), S_OK);
  VARIANT result{};
  ASSERT_EQ(cfp.get()->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, &result, nullptr,
                              nullptr),
            S_OK);
  EXPECT_GT(SysStringLen(result.bstrVal), kLength);
  Password::forget(result.bstrVal);
}

TEST(Secrets, TheSearchFindsAPassword) {
  EXPECT_EQ(copies_in_memory(), 0u);
  const Password held;
  EXPECT_EQ(copies_in_memory(), 1u);
}

TEST(Secrets, NoPasswordIsLeftInMemory) {
  {
    const LateObject cfp(L"QVRlib21.QVRcfp");
    use_early(*cfp.as<_QVRcfp>().Get());
    use_late(cfp);
    EXPECT_EQ(copies_in_memory(), 2u) << "those that the object is there for";
  }
  EXPECT_EQ(copies_in_memory(), 0u);
}

}  // namespace
}  // namespace qvr::tests
