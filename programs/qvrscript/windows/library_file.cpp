#include "qvrscript/windows/library_file.h"

#include <vector>

#include "QVRlib21.h"
#include "com/com.h"
#include "com/text_bstr.h"
#include "platform/windows/disk_path.h"
#include "platform/windows/wide_text.h"

namespace qvr::script_tool::windows {
namespace {

using com::ComPtr;
using com::OwnedBstr;

class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  ~Handle() {
    if (handle_ != INVALID_HANDLE_VALUE) CloseHandle(handle_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  template <class T>
  bool read(LONG at, T& into) const {
    DWORD count = 0;
    return handle_ != INVALID_HANDLE_VALUE &&
           SetFilePointer(handle_, at, nullptr, FILE_BEGIN) != INVALID_SET_FILE_POINTER &&
           ReadFile(handle_, &into, sizeof into, &count, nullptr) && count == sizeof into;
  }

 private:
  HANDLE handle_;
};

struct ImageStart {
  DWORD signature;
  IMAGE_FILE_HEADER header;
};

unsigned width_of(const std::wstring& path) {
  const Handle file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
  IMAGE_DOS_HEADER dos{};
  ImageStart image{};
  if (!file.read(0, dos) || dos.e_magic != IMAGE_DOS_SIGNATURE) return 0;
  if (!file.read(dos.e_lfanew, image) || image.signature != IMAGE_NT_SIGNATURE) return 0;
  if (image.header.Machine == IMAGE_FILE_MACHINE_I386) return 32;
  return image.header.Machine == IMAGE_FILE_MACHINE_AMD64 ? 64 : 0;
}

Text version_of(const std::wstring& path) {
  DWORD ignored = 0;
  std::vector<char> block(GetFileVersionInfoSizeW(path.c_str(), &ignored));
  VS_FIXEDFILEINFO* info = nullptr;
  UINT size = 0;
  if (block.empty() || !GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(block.size()), block.data()) ||
      !VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&info), &size)) {
    return {};
  }
  return join({decimal(HIWORD(info->dwFileVersionMS)), u".", decimal(LOWORD(info->dwFileVersionMS)), u".",
               decimal(HIWORD(info->dwFileVersionLS))});
}

ComPtr<_Ov> create_ov(HMODULE module) {
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const FARPROC found = GetProcAddress(module, "DllGetClassObject");
  ComPtr<IClassFactory> factory;
  ComPtr<_Ov> ov;
  if (found == nullptr) return ov;
  const auto class_object = reinterpret_cast<GetClassObject>(reinterpret_cast<void*>(found));
  if (FAILED(class_object(__uuidof(Ov), IID_IClassFactory, reinterpret_cast<void**>(&factory)))) return ov;
  factory->CreateInstance(nullptr, __uuidof(_Ov), reinterpret_cast<void**>(&ov));
  return ov;
}

OvMembers members_of(_Ov& ov) {
  OvMembers members;
  long version = 0;
  OwnedBstr version_text, folder, whole_path;
  members.asked = SUCCEEDED(ov.Version(&version)) && SUCCEEDED(ov.CadenaVersion(version_text.out())) &&
                  SUCCEEDED(ov.Path(folder.out())) && SUCCEEDED(ov.PathCompleto(whole_path.out()));
  members.version = static_cast<std::int32_t>(version);
  members.version_text = version_text.text();
  members.folder = folder.text();
  members.whole_path = whole_path.text();
  return members;
}

}  // namespace

bool exists(const std::wstring& path) {
  // What the registry names can be anything, and a device would be waited for.
  if (!qvr::windows::is_disk_path(qvr::windows::text_from(path))) return false;
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

LibraryFile library_file(const std::wstring& path) {
  const Text text = qvr::windows::text_from(path);
  if (!exists(path)) return {text, false, 0, {}};
  return {text, true, width_of(path), version_of(path)};
}

OvMembers ov_of(const std::wstring& path) {
  const HMODULE module = LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  if (module == nullptr) return {};
  OvMembers members;
  {
    const ComPtr<_Ov> ov = create_ov(module);
    if (ov.Get() != nullptr) members = members_of(*ov.Get());
  }
  FreeLibrary(module);
  return members;
}

}  // namespace qvr::script_tool::windows
