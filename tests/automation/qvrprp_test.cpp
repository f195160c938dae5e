#include "automation/both.h"
#include "automation/boxes.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

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
