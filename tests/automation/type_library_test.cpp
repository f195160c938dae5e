// The type library as text, compared with the approved one.
#include <fstream>
#include <iterator>
#include <sstream>

#include "automation/both.h"

namespace qvr::tests {
namespace {

std::string type_name(ITypeInfo& info, const TYPEDESC& type) {
  if (type.vt == VT_PTR) return type_name(info, *type.lptdesc) + "*";
  if (type.vt == VT_USERDEFINED) {
    ComPtr<ITypeInfo> referred;
    BSTR name = nullptr;
    if (FAILED(info.GetRefTypeInfo(type.hreftype, &referred))) return "(unresolved)";
    referred->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
    Bstr owned;
    *&owned = name;
    return narrow(owned.text());
  }
  switch (type.vt) {
    case VT_BSTR: return "BSTR";
    case VT_I2: return "short";
    case VT_I4: return "long";
    case VT_BOOL: return "VARIANT_BOOL";
    case VT_VARIANT: return "VARIANT";
    case VT_HRESULT: return "HRESULT";
    case VT_VOID: return "void";
    default: return "type" + std::to_string(type.vt);
  }
}

std::string flags_text(USHORT flags) {
  std::string text;
  const auto add = [&](USHORT flag, const char* name) {
    if (flags & flag) text += text.empty() ? name : std::string(",") + name;
  };
  add(PARAMFLAG_FIN, "in");
  add(PARAMFLAG_FOUT, "out");
  add(PARAMFLAG_FRETVAL, "retval");
  add(PARAMFLAG_FOPT, "optional");
  add(PARAMFLAG_FHASDEFAULT, "default");
  return "[" + text + "] ";
}

// " = 1" behind a parameter that has a default value.
std::string default_text(const PARAMDESC& described) {
  if (!(described.wParamFlags & PARAMFLAG_FHASDEFAULT) || described.pparamdescex == nullptr) return "";
  Var text;
  VariantChangeType(&text.raw(), &described.pparamdescex->varDefaultValue, 0, VT_BSTR);
  return " = " + narrow(text.text());
}

void write_function(std::ostream& out, ITypeInfo& info, UINT index) {
  FUNCDESC* function = nullptr;
  ASSERT_EQ(info.GetFuncDesc(index, &function), S_OK);
  BSTR raw[20] = {};
  UINT count = 0;
  info.GetNames(function->memid, raw, 20, &count);
  const char* kind = function->invkind == INVOKE_FUNC ? "" : function->invkind == INVOKE_PROPERTYGET ? "get " : "put ";
  out << "  " << std::hex << "0x" << function->memid << std::dec << " slot "
      << function->oVft / static_cast<int>(sizeof(void*)) << " " << kind << narrow(raw[0]) << "(";
  for (SHORT i = 0; i < function->cParams; ++i) {
    const ELEMDESC& element = function->lprgelemdescParam[i];
    out << (i > 0 ? ", " : "") << flags_text(element.paramdesc.wParamFlags) << type_name(info, element.tdesc);
    if (static_cast<UINT>(i) + 1 < count) out << " " << narrow(raw[i + 1]) << default_text(element.paramdesc);
  }
  out << ") " << type_name(info, function->elemdescFunc.tdesc) << "\n";
  for (UINT i = 0; i < count; ++i) SysFreeString(raw[i]);
  info.ReleaseFuncDesc(function);
}

std::string guid_text(REFGUID id) {
  wchar_t text[40];
  StringFromGUID2(id, text, 40);
  return narrow(text);
}

void write_members(std::ostream& out, ITypeInfo& info, const TYPEATTR& type) {
  for (UINT i = 0; i < type.cFuncs; ++i) write_function(out, info, i);
  for (UINT i = 0; i < type.cVars; ++i) {
    VARDESC* value = nullptr;
    BSTR name = nullptr;
    UINT count = 0;
    info.GetVarDesc(i, &value);
    info.GetNames(value->memid, &name, 1, &count);
    out << "  " << narrow(name) << " = " << value->lpvarValue->lVal << "\n";
    SysFreeString(name);
    info.ReleaseVarDesc(value);
  }
  for (UINT i = 0; type.typekind == TKIND_COCLASS && i < type.cImplTypes; ++i) {
    HREFTYPE reference = 0;
    INT flags = 0;
    ComPtr<ITypeInfo> implemented;
    BSTR name = nullptr;
    info.GetRefTypeOfImplType(i, &reference);
    info.GetImplTypeFlags(i, &flags);
    info.GetRefTypeInfo(reference, &implemented);
    implemented->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
    out << "  implements " << narrow(name) << (flags & IMPLTYPEFLAG_FDEFAULT ? " default" : "")
        << (flags & IMPLTYPEFLAG_FSOURCE ? " source" : "") << "\n";
    SysFreeString(name);
  }
}

void write_type(std::ostream& out, ITypeLib& library, UINT index) {
  ComPtr<ITypeInfo> info;
  TYPEATTR* type = nullptr;
  BSTR name = nullptr;
  library.GetTypeInfo(index, &info);
  info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
  info->GetTypeAttr(&type);
  const bool dual = (type->wTypeFlags & TYPEFLAG_FDUAL) != 0;
  const char* const kinds[] = {"enum", "record", "module", "interface", "dispinterface", "coclass"};
  out << (dual ? "dual interface" : kinds[type->typekind]) << " " << narrow(name) << " " << guid_text(type->guid)
      << (type->wTypeFlags & TYPEFLAG_FHIDDEN ? " hidden" : "")
      << (type->wTypeFlags & TYPEFLAG_FNONEXTENSIBLE ? " nonextensible" : "")
      << (type->wTypeFlags & TYPEFLAG_FOLEAUTOMATION ? " oleautomation" : "")
      << (type->wTypeFlags & TYPEFLAG_FCANCREATE ? " creatable" : "") << "\n";
  SysFreeString(name);
  ComPtr<ITypeInfo> slots = info;
  HREFTYPE reference = 0;
  if (dual) {
    info->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference);
    info->GetRefTypeInfo(reference, &slots);
  }
  info->ReleaseTypeAttr(type);
  slots->GetTypeAttr(&type);
  if (dual) out << "  as an interface:" << (type->wTypeFlags & TYPEFLAG_FOLEAUTOMATION ? " oleautomation" : "") << "\n";
  write_members(out, *slots.Get(), *type);
  slots->ReleaseTypeAttr(type);
}

std::string dump(ITypeLib& library) {
  std::ostringstream out;
  TLIBATTR* attributes = nullptr;
  library.GetLibAttr(&attributes);
  out << "library QVRlib21 " << guid_text(attributes->guid) << " version " << attributes->wMajorVerNum << "."
      << attributes->wMinorVerNum << " locale " << std::hex << attributes->lcid << std::dec << "\n";
  library.ReleaseTLibAttr(attributes);
  for (UINT i = 0; i < library.GetTypeInfoCount(); ++i) write_type(out, library, i);
  return out.str();
}

TEST(TypeLibrary, IsTheApprovedContract) {
  ComPtr<ITypeLib> own;
  ASSERT_EQ(LoadTypeLibEx(beside_program(L"QVRlib21.dll").c_str(), REGKIND_NONE, &own), S_OK);
  const std::string actual = dump(*own.Get());
  std::ifstream file(QVR_APPROVED_FOLDER "/QVRlib21.approved.txt", std::ios::binary);
  const std::string approved{std::istreambuf_iterator<char>(file), {}};
  if (actual == approved) return;
  std::ofstream(beside_program(L"QVRlib21.received.txt").c_str(), std::ios::binary) << actual;
  FAIL() << "differs from the approved text; what was found:\n" << actual;
}

}  // namespace
}  // namespace qvr::tests
