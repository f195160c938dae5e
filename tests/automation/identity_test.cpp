// COM's rules for objects and class objects: identity, QueryInterface, aggregation.
#include "automation/both.h"
#include "automation/library.h"

namespace qvr::tests {
namespace {

struct ClassUnderTest {
  const char* name;
  const wchar_t* program_id;
  const CLSID& id;
  const IID& default_interface;
  bool has_events;
};

template <class I>
void** out(ComPtr<I>& pointer) {
  return reinterpret_cast<void**>(&pointer);
}

class EveryClass : public testing::TestWithParam<ClassUnderTest> {};

TEST_P(EveryClass, HasOneIdentityThroughAllItsInterfaces) {
  const LateObject object(GetParam().program_id);
  const auto identity = object.as<IUnknown>();
  for (const IID& id : {IID_IDispatch, GetParam().default_interface, IID_ISupportErrorInfo, IID_IProvideClassInfo,
                        IID_IProvideClassInfo2}) {
    ComPtr<IUnknown> other, back;
    ASSERT_EQ(object.get()->QueryInterface(id, out(other)), S_OK);
    ASSERT_EQ(other.As(&back), S_OK);
    EXPECT_EQ(back.Get(), identity.Get());
  }
  ComPtr<IUnknown> events;
  EXPECT_EQ(object.get()->QueryInterface(IID_IConnectionPointContainer, out(events)),
            GetParam().has_events ? S_OK : E_NOINTERFACE);
  void* none = &none;
  EXPECT_EQ(object.get()->QueryInterface(IID_IPersistFile, &none), E_NOINTERFACE);
  EXPECT_EQ(none, nullptr);
}

TEST_P(EveryClass, TellsItsClassAndItsErrors) {
  const LateObject object(GetParam().program_id);
  const auto info = object.as<IProvideClassInfo2>();
  ComPtr<ITypeInfo> type;
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(info->GetClassInfo(&type), S_OK);
  ASSERT_EQ(type->GetTypeAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->guid, GetParam().id);
  EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
  type->ReleaseTypeAttr(attributes);
  GUID events;
  EXPECT_EQ(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), GetParam().has_events ? S_OK : E_INVALIDARG);
  EXPECT_EQ(events, GetParam().has_events ? __uuidof(__QVRScr) : GUID_NULL);
  const auto errors = object.as<ISupportErrorInfo>();
  EXPECT_EQ(errors->InterfaceSupportsErrorInfo(GetParam().default_interface), S_OK);
  EXPECT_EQ(errors->InterfaceSupportsErrorInfo(IID_IClassFactory), S_FALSE);
}

TEST_P(EveryClass, GivesTypeInformationOfItsDefaultInterface) {
  const LateObject object(GetParam().program_id);
  UINT count = 0;
  ComPtr<ITypeInfo> type;
  TYPEATTR* attributes = nullptr;
  EXPECT_EQ(object.get()->GetTypeInfoCount(&count), S_OK);
  EXPECT_EQ(count, 1u);
  EXPECT_EQ(object.get()->GetTypeInfo(1, 0, &type), DISP_E_BADINDEX);
  ASSERT_EQ(object.get()->GetTypeInfo(0, 0, &type), S_OK);
  ASSERT_EQ(type->GetTypeAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->guid, GetParam().default_interface);
  type->ReleaseTypeAttr(attributes);
}

TEST_P(EveryClass, IsMadeByItsClassObject) {
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(library().class_object(GetParam().id, IID_IClassFactory, out(factory)), S_OK);
  ComPtr<IUnknown> object, refused;
  EXPECT_EQ(factory->CreateInstance(nullptr, GetParam().default_interface, out(object)), S_OK);
  EXPECT_EQ(factory->CreateInstance(object.Get(), IID_IUnknown, out(refused)), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IPersistFile, out(refused)), E_NOINTERFACE);
}

TEST_P(EveryClass, KeepsTheLibraryLoadedWhileItLives) {
  ASSERT_EQ(library().can_unload(), S_OK);
  {
    const LateObject object(GetParam().program_id);
    EXPECT_EQ(library().can_unload(), S_FALSE);
  }
  EXPECT_EQ(library().can_unload(), S_OK);
}

INSTANTIATE_TEST_SUITE_P(Library, EveryClass,
                         testing::Values(ClassUnderTest{"Ov", L"QVRlib21.Ov", CLSID_Ov, IID__Ov, false},
                                         ClassUnderTest{"QVRcfp", L"QVRlib21.QVRcfp", CLSID_QVRcfp, IID__QVRcfp, false},
                                         ClassUnderTest{"QVRScr", L"QVRlib21.QVRScr", CLSID_QVRScr, IID__QVRScr, true},
                                         ClassUnderTest{"cSQL20", L"QVRlib21.cSQL20", CLSID_cSQL20, IID__cSQL20, false},
                                         ClassUnderTest{"uSQL20", L"QVRlib21.uSQL20", CLSID_uSQL20, IID__uSQL20, false},
                                         ClassUnderTest{"QVRprp", L"QVRlib21.QVRprp", CLSID_QVRprp, IID__QVRprp,
                                                        false}),
                         [](const auto& row) { return row.param.name; });

TEST(ClassObjects, OfUnknownClassesDoNotExist) {
  void* none = &none;
  EXPECT_EQ(library().class_object(IID_IUnknown, IID_IClassFactory, &none), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(none, nullptr);
}

TEST(ClassObjects, LockTheLibrary) {
  ComPtr<IClassFactory> factory;
  library().class_object(CLSID_Ov, IID_IClassFactory, out(factory));
  factory->LockServer(TRUE);
  factory.Reset();
  EXPECT_EQ(library().can_unload(), S_FALSE);
  library().class_object(CLSID_Ov, IID_IClassFactory, out(factory));
  factory->LockServer(FALSE);
  factory.Reset();
  EXPECT_EQ(library().can_unload(), S_OK);
}

TEST(ConnectionPoints, AreEnumeratedAndFound) {
  const LateObject runner(L"QVRlib21.QVRScr");
  const auto container = runner.as<IConnectionPointContainer>();
  ComPtr<IEnumConnectionPoints> points, copy;
  ASSERT_EQ(container->EnumConnectionPoints(&points), S_OK);
  ASSERT_EQ(points->Clone(&copy), S_OK);
  ComPtr<IConnectionPoint> point, second;
  ULONG given = 0;
  EXPECT_EQ(points->Next(1, &point, &given), S_OK);
  EXPECT_EQ(points->Next(1, &second, &given), S_FALSE);
  EXPECT_EQ(given, 0u);
  EXPECT_EQ(points->Reset(), S_OK);
  EXPECT_EQ(points->Skip(1), S_OK);
  EXPECT_EQ(points->Skip(1), S_FALSE);
  EXPECT_EQ(copy->Next(1, &second, nullptr), S_OK);
  EXPECT_EQ(point.Get(), second.Get());
  IID events;
  EXPECT_EQ(point->GetConnectionInterface(&events), S_OK);
  EXPECT_EQ(events, __uuidof(__QVRScr));
  ComPtr<IConnectionPointContainer> back;
  EXPECT_EQ(point->GetConnectionPointContainer(&back), S_OK);
  EXPECT_EQ(back.Get(), container.Get());
  ComPtr<IConnectionPoint> none;
  EXPECT_EQ(container->FindConnectionPoint(IID_IDispatch, &none), CONNECT_E_NOCONNECTION);
  EXPECT_EQ(container->FindConnectionPoint(__uuidof(__QVRScr), nullptr), E_POINTER);
}

}  // namespace
}  // namespace qvr::tests
