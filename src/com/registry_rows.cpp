#include "com/registry_rows.h"

#include "QVRlib21.h"
#include "com/class_table.h"
#include "com/late_failure.h"
#include "com/text_bstr.h"
#include "com/type_library.h"
#include "platform/windows/wide_text.h"

namespace qvr::com {
namespace {

constexpr wchar_t kTypeLibraryVersion[] = L"1.1";
constexpr const wchar_t* kPlatform = sizeof(void*) == 8 ? L"win64" : L"win32";
// The system's proxy/stub classes: the type library marshaller (PSOAInterface) and the one for dispinterfaces
// (PSDispatch).
constexpr wchar_t kDualMarshaller[] = L"{00020424-0000-0000-C000-000000000046}";
constexpr wchar_t kDispatchMarshaller[] = L"{00020420-0000-0000-C000-000000000046}";

std::wstring text_of(REFGUID id) {
  wchar_t buffer[40];
  StringFromGUID2(id, buffer, static_cast<int>(std::size(buffer)));
  return buffer;
}

std::wstring folder_of(const std::wstring& file) { return file.substr(0, file.find_last_of(L'\\')); }

void add_class(RegistryRows& rows, const ClassRow& row, const std::wstring& file) {
  const std::wstring program_id = std::wstring(windows::kLibraryName) + L"." + windows::wide(row.name);
  const std::wstring key = L"CLSID\\" + text_of(row.id);
  rows.values.insert(rows.values.end(), {
                                            {key, {}, program_id},
                                            {key + L"\\InprocServer32", {}, file},
                                            {key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
                                            {key + L"\\ProgID", {}, program_id},
                                            {key + L"\\Programmable", {}, {}},
                                            {key + L"\\TypeLib", {}, text_of(LIBID_QVRlib21)},
                                            {key + L"\\Version", {}, kTypeLibraryVersion},
                                            {program_id, {}, program_id},
                                            {program_id + L"\\CLSID", {}, text_of(row.id)},
                                        });
  rows.trees.push_back({key, false});
  rows.trees.push_back({program_id, true});
}

void add_interface(RegistryRows& rows, REFGUID id, const std::wstring& name, bool dual) {
  const std::wstring key = L"Interface\\" + text_of(id);
  rows.values.insert(rows.values.end(),
                     {
                         {key, {}, name},
                         {key + L"\\ProxyStubClsid32", {}, dual ? kDualMarshaller : kDispatchMarshaller},
                         {key + L"\\TypeLib", {}, text_of(LIBID_QVRlib21)},
                         {key + L"\\TypeLib", L"Version", kTypeLibraryVersion},
                     });
  rows.trees.push_back({key, false});
}

// Every interface of the type library, for marshalling between apartments.
void add_interfaces(RegistryRows& rows) {
  const ComPtr<ITypeLib> library = own_type_library();
  for (UINT index = 0; index < library->GetTypeInfoCount(); ++index) {
    ComPtr<ITypeInfo> info;
    TYPEATTR* attributes = nullptr;
    OwnedBstr name;
    require(library->GetTypeInfo(index, &info));
    require(info->GetTypeAttr(&attributes));
    const TYPEATTR type = *attributes;
    info->ReleaseTypeAttr(attributes);
    if (type.typekind != TKIND_DISPATCH && type.typekind != TKIND_INTERFACE) continue;
    require(info->GetDocumentation(MEMBERID_NIL, name.out(), nullptr, nullptr, nullptr));
    const bool dual = type.typekind == TKIND_INTERFACE || (type.wTypeFlags & TYPEFLAG_FDUAL) != 0;
    add_interface(rows, type.guid, std::wstring(name.get(), SysStringLen(name.get())), dual);
  }
}

std::wstring description_of_library() {
  OwnedBstr text;
  require(own_type_library()->GetDocumentation(MEMBERID_NIL, nullptr, text.out(), nullptr, nullptr));
  return std::wstring(text.get(), SysStringLen(text.get()));
}

// The keys of RegisterTypeLib, and the library under the neutral locale as well: hosts ask with their own locale, and
// the system falls back from it to the neutral one only.
void add_type_library(RegistryRows& rows, const std::wstring& file) {
  const std::wstring key = L"TypeLib\\" + text_of(LIBID_QVRlib21);
  const std::wstring version = key + L"\\" + kTypeLibraryVersion;
  rows.values.insert(rows.values.end(), {
                                            {version, {}, description_of_library()},
                                            {version + L"\\409\\" + kPlatform, {}, file},
                                            {version + L"\\0\\" + kPlatform, {}, file},
                                            {version + L"\\FLAGS", {}, L"0"},
                                            {version + L"\\HELPDIR", {}, folder_of(file)},
                                        });
  rows.trees.push_back({version + L"\\409\\" + kPlatform, false});
  rows.trees.push_back({version + L"\\0\\" + kPlatform, false});
  rows.trees.push_back({version, true});
  rows.trees.push_back({key, true, true});
}

}  // namespace

RegistryRows registry_rows(const std::wstring& library_file) {
  RegistryRows rows;
  for (const ClassRow& row : class_table()) add_class(rows, row, library_file);
  add_interfaces(rows);
  add_type_library(rows, library_file);
  return rows;
}

}  // namespace qvr::com
