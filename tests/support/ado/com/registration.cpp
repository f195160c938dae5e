#include "support/ado/com/registration.h"

#include <array>

#include "support/ado/com/classes.h"
#include "support/ado/com/module.h"

namespace qvr::tests::com {
namespace {

constexpr TextView kRoot = u"Software\\Classes\\";

const wchar_t* wide(const Text& text) { return reinterpret_cast<const wchar_t*>(text.c_str()); }

Text spelled(REFGUID id) {
  std::array<wchar_t, 40> buffer{};
  StringFromGUID2(id, buffer.data(), static_cast<int>(buffer.size()));
  return reinterpret_cast<const char16_t*>(buffer.data());
}

Text module_path() {
  std::array<wchar_t, 1024> buffer{};
  GetModuleFileNameW(module_instance(), buffer.data(), static_cast<DWORD>(buffer.size()));
  return reinterpret_cast<const char16_t*>(buffer.data());
}

struct RegistryFailure {
  HRESULT result;
};

void write(std::initializer_list<TextView> key, TextView name, TextView value) {
  const Text path = join({kRoot, join(key)});
  const Text text(value);
  const Text value_name(name);
  const LSTATUS status = RegSetKeyValueW(HKEY_LOCAL_MACHINE, wide(path), name.empty() ? nullptr : wide(value_name),
                                         REG_SZ, wide(text), static_cast<DWORD>((text.size() + 1) * sizeof(char16_t)));
  if (status != ERROR_SUCCESS) throw RegistryFailure{HRESULT_FROM_WIN32(static_cast<unsigned long>(status))};
}

void remove(std::initializer_list<TextView> key) {
  const Text path = join({kRoot, join(key)});
  const LSTATUS status = RegDeleteTreeW(HKEY_LOCAL_MACHINE, wide(path));
  if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND) {
    throw RegistryFailure{HRESULT_FROM_WIN32(static_cast<unsigned long>(status))};
  }
}

void write_class(const Class& each, TextView path) {
  const Text id = spelled(each.id);
  const Text program = join({u"ADODB.", each.name});
  write({u"CLSID\\", id}, {}, program);
  write({u"CLSID\\", id, u"\\InprocServer32"}, {}, path);
  write({u"CLSID\\", id, u"\\InprocServer32"}, u"ThreadingModel", u"Apartment");
  write({u"CLSID\\", id, u"\\ProgID"}, {}, program);
  write({u"CLSID\\", id, u"\\TypeLib"}, {}, spelled(kLibrary));
  write({program}, {}, program);
  write({program, u"\\CLSID"}, {}, id);
}

void remove_class(const Class& each) {
  remove({u"CLSID\\", spelled(each.id)});
  remove({u"ADODB.", each.name});
}

void write_type_library(const Text& path) {
  ITypeLib* loaded = nullptr;
  const HRESULT result = LoadTypeLibEx(wide(path), REGKIND_REGISTER, &loaded);
  if (loaded != nullptr) loaded->Release();
  if (FAILED(result)) throw RegistryFailure{result};
}

template <class Body>
HRESULT result_of(Body&& body) {
  try {
    body();
    return S_OK;
  } catch (const RegistryFailure& failure) {
    return failure.result;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

}  // namespace

HRESULT register_module() {
  return result_of([] {
    const Text path = module_path();
    for (const Class& each : classes()) write_class(each, path);
    write_type_library(path);
  });
}

HRESULT unregister_module() {
  return result_of([] {
    for (const Class& each : classes()) remove_class(each);
    constexpr SYSKIND kSystem = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;
    UnRegisterTypeLib(kLibrary, 2, 5, LOCALE_NEUTRAL, kSystem);
  });
}

}  // namespace qvr::tests::com
