#include "automation/arrays.h"
#include "automation/both.h"
#include "automation/boxes.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

// One list by name and one through its slots; whatever is done to one is done to the other.
struct QVRprpTest : testing::Test {
  LateObject late{L"QVRlib21.QVRprp"};
  LateObject other{L"QVRlib21.QVRprp"};
  ComPtr<_QVRprp> early = other.as<_QVRprp>();

  void create(const wchar_t* type, const wchar_t* name, Var value) {
    Bstr type_text(type), name_text(name);
    EXPECT_EQ(late.call(L"CreaPropiedad", {type, name, value}).result, S_OK);
    EXPECT_EQ(early->CreaPropiedad(&type_text, &name_text, &value.raw()), S_OK);
  }
  void expect_item(Var which, const std::string& expected) {
    Var result;
    Var copy = which;
    const HRESULT status = early->get_Item(&copy.raw(), &result.raw());
    expect_same(late.get(L"Item", {which}), status, result, expected);
    expect_same(late_default({which}, DISPATCH_PROPERTYGET), status, result, expected);
  }
  void put_item(Var which, Var value) {
    VARIANT raw[] = {value.raw(), which.raw()};
    DISPID name = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{raw, &name, 2, 1};
    EXPECT_EQ(late.invoke(DISPID_VALUE, DISPATCH_PROPERTYPUT, parameters).result, S_OK);
    EXPECT_EQ(early->put_Item(&which.raw(), value.raw()), S_OK);
  }
  LateAnswer late_default(std::vector<Var> arguments, WORD flags) const {
    std::vector<VARIANT> raw;
    for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument) raw.push_back(argument->raw());
    DISPPARAMS parameters{raw.data(), nullptr, static_cast<UINT>(raw.size()), 0};
    return late.invoke(DISPID_VALUE, flags, parameters);
  }
  void expect_count(long expected) {
    long count = -1;
    const HRESULT status = early->get_NumPropiedades(&count);
    expect_same(late.get(L"NumPropiedades"), status, early_result(count), "I4 " + std::to_string(expected));
  }
};

TEST_F(QVRprpTest, CreatesReadsAndWrites) {
  expect_count(0);
  create(L"T", L"Nombre", L"Ana");
  create(L"n", L"Precio", 2.5);
  create(L"F", L"Alta", Var::date(40548));
  create(L"L", L"Activo", true);
  expect_count(4);
  expect_item(L"nombre", "BSTR Ana");
  expect_item(1, "R8 2.500000");
  expect_item(L"2", "DATE 40548.000000");
  expect_item(L"Activo", "BOOL true");
  expect_item(L"Nada", "Empty");
  expect_item(7, "Empty");
  put_item(L"Precio", 3);
  expect_item(L"Precio", "I4 3");
  put_item(L"Nada", 3);
  expect_count(4);
}

TEST_F(QVRprpTest, Names) {
  create(L"T", L"Ancho", 1);
  long index = 0, beyond = 1;
  Bstr name, none;
  const HRESULT status = early->get_NombrePropiedad(&index, &name);
  expect_same(late.get(L"NombrePropiedad", {0}), status, early_result(name), "BSTR Ancho");
  const HRESULT past = early->get_NombrePropiedad(&beyond, &none);
  expect_same(late.get(L"NombrePropiedad", {1}), past, early_result(none), "BSTR ");
}

TEST_F(QVRprpTest, AnotherTypeIsToldAndNothingAdded) {
  Person person;
  create(L"X", L"Ancho", 1);
  ASSERT_EQ(person.boxes().size(), 2u);
  for (const Person::Box& box : person.boxes()) {
    EXPECT_EQ(box.title, L"QVRlib21");
    EXPECT_EQ(box.text, L"Tipo inesperado (X) al agregar propiedad (Ancho)");
    EXPECT_FALSE(box.question);
  }
  expect_count(0);
}

TEST_F(QVRprpTest, Borra) {
  create(L"T", L"Nombre", L"Ana");
  EXPECT_EQ(late.call(L"Borra").result, S_OK);
  EXPECT_EQ(early->Borra(), S_OK);
  expect_count(0);
  expect_item(L"Nombre", "Empty");
}

TEST_F(QVRprpTest, KeepsObjectsAlive) {
  const LateObject held(L"QVRlib21.Ov");
  const ULONG before = (held.get()->AddRef(), held.get()->Release());
  create(L"T", L"Objeto", Var(held.get()));
  EXPECT_EQ((held.get()->AddRef(), held.get()->Release()), before + 2);
  put_item(L"Objeto", 1);
  EXPECT_EQ((held.get()->AddRef(), held.get()->Release()), before);
}

struct Kept {
  const char* name;
  Var value;
  const char* expected;
};

const Kept kKept[] = {
    {"UI1", Var(200).as(VT_UI1), "UI1 200"},
    {"I1", Var(-5).as(VT_I1), "I2 -5"},
    {"I2", Var(-5).as(VT_I2), "I2 -5"},
    {"UI2", Var(5).as(VT_UI2), "I4 5"},
    {"UI2, greatest", Var(65535).as(VT_UI2), "I4 65535"},
    {"I4", Var(5), "I4 5"},
    {"INT", Var(5).as(VT_INT), "I4 5"},
    {"UI4", Var(5).as(VT_UI4), "R8 5.000000"},
    {"UI4, greatest", Var(4294967295.0).as(VT_UI4), "R8 4294967295.000000"},
    {"UINT", Var(5).as(VT_UINT), "R8 5.000000"},
    {"I8", Var(5).as(VT_I8), "I8 5"},
    {"UI8", Var(5).as(VT_UI8), "UI8 5"},
    {"R4", Var(0.5).as(VT_R4), "R4 0.5"},
    {"CY", Var(L"12.3456").as(VT_CY), "CY 12.3456"},
    {"DECIMAL", Var(L"12.345").as(VT_DECIMAL), "DECIMAL 12.345"},
    {"Null", Var::null(), "Null"},
    {"ERROR", Var::error(E_FAIL), "ERROR -2147467259"},
    {"Nothing", Var::nothing(), "DISPATCH Nothing"},
    {"array", array_of({1, L"a", Var::null(), true}), "VARIANT(0) {I4 1; BSTR a; Null; BOOL true}"},
    {"array with integers", array_of({Var(5).as(VT_I1), Var(5).as(VT_UI2)}), "VARIANT(0) {I2 5; I4 5}"},
    {"array in an array", array_of({array_of({1, 2}, 1, VT_I4)}), "VARIANT(0) {I4(1) {I4 1; I4 2}}"},
    {"array of I2", array_of({1, 2}, 1, VT_I2), "I2(1) {I2 1; I2 2}"},
    {"array of I4", array_of({1, 2}, -3, VT_I4), "I4(-3) {I4 1; I4 2}"},
    {"array of R8", array_of({0.5}, 0, VT_R8), "R8(0) {R8 0.500000}"},
    {"array of UI1", array_of({1, 2}, 0, VT_UI1), "UI1(0) {UI1 1; UI1 2}"},
    {"array of BSTR", array_of({L"a", L""}, 0, VT_BSTR), "BSTR(0) {BSTR a; BSTR }"},
    {"array of DATE", array_of({Var::date(40548)}, 0, VT_DATE), "DATE(0) {DATE 40548.000000}"},
    {"array of BOOL", array_of({true}, 0, VT_BOOL), "BOOL(0) {BOOL true}"},
    {"array without elements", array_of({}), "VARIANT(0) {}"},
    {"array of I4 without elements", array_of({}, 0, VT_I4), "I4(0) {}"},
};

using KeptValue = Rows<QVRprpTest, Kept>;

TEST_P(KeptValue, ComesBackAsItWasGivenOrAsVisualBasicHasIt) {
  Var value = GetParam().value;
  create(L"T", L"Created", value);
  expect_item(L"Created", GetParam().expected);
  create(L"T", L"ByReference", Var::by_reference(value));
  expect_item(L"ByReference", GetParam().expected);
  create(L"T", L"Content", value.type() <= VT_NULL ? value : Var::by_content(value));
  expect_item(L"Content", GetParam().expected);
  create(L"T", L"Written", 1);
  put_item(L"Written", value);
  expect_item(L"Written", GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(, KeptValue, testing::ValuesIn(kKept), row_name);

Var two_dimensions(VARTYPE type, const std::vector<Var>& items) {
  Var array;
  SAFEARRAYBOUND bounds[] = {{2, 1}, {3, -1}};
  array.raw().vt = static_cast<VARTYPE>(VT_ARRAY | type);
  array.raw().parray = SafeArrayCreate(type, 2, bounds);
  for (std::size_t i = 0; i < items.size(); ++i) {
    LONG index[] = {static_cast<LONG>(i % 2) + 1, static_cast<LONG>(i / 2) - 1};
    Var item = items[i];
    void* content = type == VT_VARIANT ? static_cast<void*>(&item.raw()) : &item.raw().llVal;
    EXPECT_EQ(SafeArrayPutElement(array.raw().parray, index, content), S_OK);
  }
  return array;
}

std::string bounds_and_elements(const Var& array, VARTYPE type) {
  if (array.type() != (VT_ARRAY | type)) return describe(array.raw());
  SAFEARRAY* const raw = array.raw().parray;
  std::string text;
  for (UINT dimension = 1; dimension <= SafeArrayGetDim(raw); ++dimension) {
    LONG lower = 0, upper = 0;
    SafeArrayGetLBound(raw, dimension, &lower);
    SafeArrayGetUBound(raw, dimension, &upper);
    text += std::to_string(lower) + " To " + std::to_string(upper) + ", ";
  }
  for (LONG i = 0; i < 6; ++i) {
    LONG index[] = {i % 2 + 1, i / 2 - 1};
    Var item;
    SafeArrayGetElement(raw, index, type == VT_VARIANT ? static_cast<void*>(&item.raw()) : &item.raw().llVal);
    if (type != VT_VARIANT) item.raw().vt = type;
    text += describe(item.raw()) + "; ";
  }
  return text;
}

TEST_F(QVRprpTest, AnArrayOfTwoDimensionsComesBackWithBoth) {
  const Var numbers = two_dimensions(VT_I4, {1, 2, 3, 4, 5, 6});
  const Var any = two_dimensions(VT_VARIANT, {1, L"a", Var::null(), 0.5, true, array_of({1})});
  create(L"N", L"Numbers", numbers);
  create(L"N", L"Any", any);
  EXPECT_EQ(bounds_and_elements(late.get(L"Item", {L"Numbers"}).value, VT_I4),
            "1 To 2, -1 To 1, I4 1; I4 2; I4 3; I4 4; I4 5; I4 6; ");
  EXPECT_EQ(bounds_and_elements(late.get(L"Item", {L"Any"}).value, VT_VARIANT),
            "1 To 2, -1 To 1, I4 1; BSTR a; Null; R8 0.500000; BOOL true; VARIANT(0) {I4 1}; ");
}

// What the host does with its own array, or with what it got, does not change what is kept.
TEST_F(QVRprpTest, AnArrayIsKeptAsACopy) {
  LONG first = 0;
  long changed = 9;
  Var referred(L"before");
  Var given = array_of({1, 2}, 0, VT_I4), holding = array_of({Var()});
  VARIANT* element = nullptr;
  ASSERT_EQ(SafeArrayPtrOfIndex(holding.raw().parray, &first, reinterpret_cast<void**>(&element)), S_OK);
  element->vt = VT_BYREF | VT_VARIANT;
  element->pvarVal = &referred.raw();
  create(L"N", L"Given", Var::by_reference(given));
  create(L"N", L"Holding", Var::by_reference(holding));
  SafeArrayPutElement(given.raw().parray, &first, &changed);
  referred = Var(L"after");
  const LateAnswer got = late.get(L"Item", {L"Given"});
  SafeArrayPutElement(got.value.raw().parray, &first, &changed);
  expect_item(L"Given", "I4(0) {I4 1; I4 2}");
  expect_item(L"Holding", "VARIANT(0) {BSTR before}");
  VariantInit(element);
}

TEST_F(QVRprpTest, AnArrayKeepsObjectsAlive) {
  const LateObject held(L"QVRlib21.Ov");
  const auto references = [&] { return held.get()->AddRef(), held.get()->Release(); };
  const ULONG before = references();
  for (const VARTYPE type : {VT_VARIANT, VT_DISPATCH}) {
    const Var list = array_of({Var(held.get())}, 0, type);
    ASSERT_EQ(references(), before + 1);
    create(L"T", L"Objetos", list);
    EXPECT_EQ(references(), before + 3);
    late.call(L"Borra");
    early->Borra();
    EXPECT_EQ(references(), before + 1);
  }
  EXPECT_EQ(references(), before);
}

// Set Propiedades("Objeto") = ...
TEST_F(QVRprpTest, AnObjectIsPutByReferenceToo) {
  const LateObject held(L"QVRlib21.Ov");
  const ULONG before = (held.get()->AddRef(), held.get()->Release());
  late.call(L"CreaPropiedad", {L"T", L"Objeto", 1});
  Var object(held.get()), which(L"Objeto");
  for (const WORD flags : {WORD{DISPATCH_PROPERTYPUTREF}, WORD{DISPATCH_PROPERTYPUTREF | DISPATCH_PROPERTYPUT}}) {
    late.call(L"CreaPropiedad", {L"T", L"Otro", 1});
    VARIANT raw[] = {object.raw(), which.raw()};
    DISPID name = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{raw, &name, 2, 1};
    EXPECT_EQ(late.invoke(DISPID_VALUE, flags, parameters).result, S_OK);
    EXPECT_EQ(describe(late.get(L"Item", {L"Objeto"}).value.raw()), "DISPATCH object");
    EXPECT_EQ((held.get()->AddRef(), held.get()->Release()), before + 2);
  }
  DISPID name = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{&object.raw(), &name, 1, 1};
  EXPECT_EQ(late.invoke(0x68030000 + 3, DISPATCH_PROPERTYPUTREF, parameters).result, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(traced(), (Traces{u"QVRprp.dispatch id 1745027075: -2147352573 The late-bound call was refused"}));
}

TEST_F(QVRprpTest, ForEachWalksOverTheValues) {
  create(L"T", L"Nombre", L"Ana");
  create(L"N", L"Precio", 2);
  DISPPARAMS none{};
  LateAnswer asked = late.invoke(DISPID_NEWENUM, DISPATCH_METHOD | DISPATCH_PROPERTYGET, none);
  ASSERT_EQ(asked.result, S_OK);
  ASSERT_EQ(asked.value.type(), VT_UNKNOWN);
  ComPtr<IEnumVARIANT> values;
  ASSERT_EQ(asked.value.raw().punkVal->QueryInterface(IID_PPV_ARGS(&values)), S_OK);
  create(L"T", L"Tarde", L"later");  // those that were there when the walk began
  Var first, second, third;
  ULONG given = 0;
  EXPECT_EQ(values->Next(1, &first.raw(), &given), S_OK);
  EXPECT_EQ(values->Next(1, &second.raw(), nullptr), S_OK);
  EXPECT_EQ(values->Next(1, &third.raw(), &given), S_FALSE);
  EXPECT_EQ(describe(first.raw()), "BSTR Ana");
  EXPECT_EQ(describe(second.raw()), "I4 2");
  EXPECT_EQ(given, 0u);
  DISPPARAMS one{&first.raw(), nullptr, 1, 0};
  EXPECT_EQ(late.invoke(DISPID_NEWENUM, DISPATCH_PROPERTYGET, one).result, DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(late.invoke(DISPID_NEWENUM, DISPATCH_PROPERTYPUT, none).result, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(traced(), (Traces{u"QVRprp.dispatch id -4: -2147352573 The late-bound call was refused"}));
}

}  // namespace
}  // namespace qvr::tests
