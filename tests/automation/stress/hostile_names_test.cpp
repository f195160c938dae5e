// Names and ids that there are not, and the slots themselves with null pointers.
#include <limits>

#include "automation/stress/hostile_caller.h"

namespace qvr::tests {
namespace {

using HostileNames = HostileCaller;

HRESULT look_up(const Subject& subject, std::vector<std::wstring> names, std::vector<DISPID>& ids) {
  std::vector<LPOLESTR> pointers;
  for (std::wstring& name : names) pointers.push_back(name.data());
  ids.assign(names.size(), 0);
  return subject.object().GetIDsOfNames(IID_NULL, pointers.data(), static_cast<UINT>(names.size()), 0, ids.data());
}

std::wstring in_case(std::wstring name, bool upper) {
  upper ? CharUpperW(name.data()) : CharLowerW(name.data());
  return name;
}

TEST_P(HostileNames, OfMembers) {
  attack_every_member([](const Subject& subject, const DescribedMember& member) {
    std::vector<DISPID> ids;
    for (const std::wstring& name : {member.name, in_case(member.name, true), in_case(member.name, false)}) {
      EXPECT_EQ(look_up(subject, {name}, ids), S_OK);
      EXPECT_EQ(ids[0], member.id);
    }
    for (const std::wstring& name : {std::wstring(), member.name + L" ", L" " + member.name, member.name + member.name,
                                     L"get_" + member.name, std::wstring(70000, L'a'), std::wstring(L"\xD800")}) {
      EXPECT_EQ(look_up(subject, {name, member.name}, ids), DISP_E_UNKNOWNNAME) << narrow(name.substr(0, 100));
      EXPECT_EQ(ids, (std::vector<DISPID>{DISPID_UNKNOWN, DISPID_UNKNOWN}));
    }
  });
}

TEST_P(HostileNames, OfArguments) {
  attack_every_member([](const Subject& subject, const DescribedMember& member) {
    std::vector<DISPID> ids;
    std::vector<std::wstring> names{member.name};
    std::vector<DISPID> expected{member.id};
    for (std::size_t i = 0; i < member.parameters.size(); ++i) {
      if (member.parameters[i].name.empty() || member.parameters[i].name == L"Resultado") continue;
      names.push_back(in_case(member.parameters[i].name, i % 2 == 0));
      expected.push_back(static_cast<DISPID>(i));
    }
    EXPECT_EQ(look_up(subject, names, ids), S_OK);
    EXPECT_EQ(ids, expected);
    names.insert(names.begin() + 1, L"NoHay");
    expected.insert(expected.begin() + 1, DISPID_UNKNOWN);
    EXPECT_EQ(look_up(subject, names, ids), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(ids, expected);
  });
}

TEST_P(HostileNames, AndPointersToNowhere) {
  attack_every_member([](const Subject& subject, const DescribedMember& member) {
    std::wstring name = member.name;
    LPOLESTR names[] = {name.data(), nullptr};
    DISPID ids[2] = {};
    IDispatch& object = subject.object();
    EXPECT_EQ(object.GetIDsOfNames(IID_IUnknown, names, 1, 0, ids), DISP_E_UNKNOWNINTERFACE);
    EXPECT_EQ(object.GetIDsOfNames(IID_NULL, nullptr, 1, 0, ids), E_INVALIDARG);
    EXPECT_EQ(object.GetIDsOfNames(IID_NULL, names, 0, 0, ids), E_INVALIDARG);
    EXPECT_EQ(object.GetIDsOfNames(IID_NULL, names, 1, 0, nullptr), E_INVALIDARG);
    EXPECT_EQ(object.GetIDsOfNames(IID_NULL, names + 1, 1, 0, ids), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(object.GetIDsOfNames(IID_NULL, names, 2, 0xFFFFFFFF, ids), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(ids[0], member.id);
    EXPECT_EQ(ids[1], DISPID_UNKNOWN);
  });
}

TEST_P(HostileNames, OfTypeInformation) {
  attack_every_member([](const Subject& subject, const DescribedMember&) {
    ComPtr<ITypeInfo> info;
    UINT count = 0;
    IDispatch& object = subject.object();
    EXPECT_EQ(object.GetTypeInfoCount(nullptr), E_POINTER);
    EXPECT_EQ(object.GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 1u);
    EXPECT_EQ(object.GetTypeInfo(0, 0, nullptr), E_POINTER);
    for (const UINT index : {1u, 2u, std::numeric_limits<UINT>::max()}) {
      EXPECT_EQ(object.GetTypeInfo(index, 0, &info), DISP_E_BADINDEX);
    }
    EXPECT_EQ(object.GetTypeInfo(0, 0xFFFFFFFF, &info), S_OK);
    EXPECT_NE(info.Get(), nullptr);
  });
}

TEST_P(HostileNames, IdsThatThereAreNot) {
  attack_every_member([this](const Subject& subject, const DescribedMember& member) {
    constexpr DISPID kLowest = std::numeric_limits<DISPID>::min(), kHighest = std::numeric_limits<DISPID>::max();
    const DISPID ids[] = {
        DISPID_VALUE, DISPID_UNKNOWN, DISPID_NEWENUM,         DISPID_PROPERTYPUT, DISPID_EVALUATE, -999, 1, 2,
        kLowest,      kHighest,       member.id ^ 0x08000000, member.id + 0x1000, 0x60020003};
    constexpr WORD kKinds[] = {DISPATCH_METHOD, DISPATCH_PROPERTYGET, DISPATCH_PROPERTYPUT, 0xFFFF};
    Arguments arguments(member, subject.good_arguments(member));
    for (const DISPID id : ids) {
      for (const WORD kind : kKinds) {
        const bool enumerates = id == DISPID_NEWENUM && interface_under_attack().name == L"_QVRprp";
        if (enumerates || interface_under_attack().has(id, kind)) continue;
        SCOPED_TRACE(std::to_string(id) + " as " + std::to_string(kind));
        EXPECT_EQ(invoke(subject, {id, kind, &arguments.parameters()}).result, DISP_E_MEMBERNOTFOUND);
      }
    }
  });
}

// Early-bound: a slot with null for whatever may be null, and for its result.
HRESULT call_slot(const Subject& subject, const DescribedMember& member, void* result) {
  std::vector<VARTYPE> types;
  std::vector<VARIANT> values;
  for (const MemberParameter& parameter : member.parameters) {
    types.push_back(parameter.by_reference ? static_cast<VARTYPE>(VT_BYREF | VT_I4) : parameter.type);
    values.push_back(VARIANT{});
  }
  if (member.gives_result()) {
    types.push_back(VT_BYREF | VT_I4);
    values.push_back(VARIANT{});
    values.back().byref = result;
  }
  std::vector<VARIANT*> pointers;
  for (VARIANT& value : values) pointers.push_back(&value);
  VARIANT returned{};
  EXPECT_EQ(DispCallFunc(&subject.object(), static_cast<ULONG_PTR>(member.slot_offset), CC_STDCALL, VT_ERROR,
                         static_cast<UINT>(types.size()), types.data(), pointers.data(), &returned),
            S_OK);
  return returned.scode;
}

TEST_P(HostileNames, SlotsWithNullPointers) {
  attack_every_member([](const Subject& subject, const DescribedMember& member) {
    EXPECT_TRUE(!member.gives_result() || call_slot(subject, member, nullptr) == E_POINTER);
    union {
      VARIANT value;
      BSTR text;
    } result{};
    const bool raises = member.name == L"sqlConcatenar";  // a missing list is none
    EXPECT_EQ(call_slot(subject, member, &result), raises ? static_cast<HRESULT>(0x800A000D) : S_OK);
    if (member.result_type == VT_VARIANT) VariantClear(&result.value);
    if (member.result_type == VT_BSTR) SysFreeString(result.text);
  });
}

INSTANTIATE_TEST_SUITE_P(Every, HostileNames, testing::Range(std::size_t{0}, std::size(kInterfaces)), interface_name);

// The one call that no type library tells of.
TEST(HostileCallers, EnumeratingTheProperties) {
  const LateObject list(L"QVRlib21.QVRprp");
  VARIANT value{};
  DISPID name = 0;
  const auto call = [&](DISPPARAMS* parameters, WORD flags, REFIID reserved = IID_NULL) {
    Var result;
    return list.get()->Invoke(DISPID_NEWENUM, reserved, 0, flags, parameters, &result.raw(), nullptr, nullptr);
  };
  DISPPARAMS none{}, one{&value, nullptr, 1, 0}, only_a_name{nullptr, &name, 0, 1};
  EXPECT_EQ(call(&none, DISPATCH_PROPERTYGET), S_OK);
  EXPECT_EQ(call(&none, DISPATCH_METHOD), S_OK);
  EXPECT_EQ(call(&one, DISPATCH_PROPERTYGET), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(call(&only_a_name, DISPATCH_PROPERTYGET), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(call(nullptr, DISPATCH_PROPERTYGET), E_INVALIDARG);
  EXPECT_EQ(call(&none, DISPATCH_PROPERTYGET, IID_IUnknown), DISP_E_UNKNOWNINTERFACE);
  EXPECT_EQ(call(&none, DISPATCH_PROPERTYPUT), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(call(&none, 0), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(traced(), Traces(2, u"QVRprp.dispatch id -4: -2147352573 The late-bound call was refused"));
}

// The attacks are made on what the type library tells of: on all of it.
TEST(HostileCallers, KnowEveryInterface) {
  std::vector<std::string> names;
  std::size_t members = 0;
  for (const DescribedInterface& each : described_interfaces()) {
    names.push_back(narrow(each.name));
    members += each.members.size();
  }
  EXPECT_EQ(names, std::vector<std::string>(std::begin(kInterfaces), std::end(kInterfaces)));
  EXPECT_GE(members, 140u);
}

}  // namespace
}  // namespace qvr::tests
