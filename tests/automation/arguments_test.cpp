// Late-bound arguments, valid and invalid.
#include "automation/both.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

struct ArgumentsTest : testing::Test {
  LateObject cfp{L"QVRlib21.QVRcfp"};
  LateObject scr{L"QVRlib21.QVRScr"};

  std::string account(Var engine) const {
    return describe(scr.call(L"UsuarioSegunMotor", {std::move(engine)}).value.raw());
  }
  std::string written(Var value) const {
    return describe(cfp.call(L"ValorATexto", {L"T", std::move(value)}).value.raw());
  }
};

TEST_F(ArgumentsTest, NumbersOfAnyTypeForAnInteger) {
  EXPECT_EQ(account(2), "BSTR sa");
  EXPECT_EQ(account(static_cast<short>(3)), "BSTR System");
  EXPECT_EQ(account(1.0), "BSTR Admin");
  EXPECT_EQ(account(L"2"), "BSTR sa");
  EXPECT_EQ(account(Var()), "BSTR ");
  EXPECT_EQ(account(true), "BSTR ");
}

TEST_F(ArgumentsTest, NumbersForAText) {
  const LateAnswer answer = cfp.call(L"TextoAValor", {L"T", 12});
  EXPECT_EQ(describe(answer.value.raw()), "BSTR 12");
  EXPECT_EQ(describe(cfp.call(L"TextoAValor", {L"T", true}).value.raw()), "BSTR True");
}

TEST_F(ArgumentsTest, VariablesByReference) {
  Var engine(2), text_engine(L"3");
  long number = 1;
  short narrow_number = 2;
  Bstr text(L"3");
  EXPECT_EQ(account(Var::by_reference(engine)), "BSTR sa");
  EXPECT_EQ(account(Var::by_reference(text_engine)), "BSTR System");
  EXPECT_EQ(account(Var::by_reference(number)), "BSTR Admin");
  EXPECT_EQ(account(Var::by_reference(narrow_number)), "BSTR sa");
  EXPECT_EQ(account(Var::by_reference(*&text)), "BSTR System");
}

TEST_F(ArgumentsTest, ReferencesOfReferences) {
  Var engine(2);
  Var once = Var::by_reference(engine);
  Var twice = Var::by_reference(once);
  EXPECT_EQ(account(Var::by_reference(twice)), "BSTR sa");
  EXPECT_EQ(written(Var::by_reference(twice)), "BSTR 2");
}

TEST_F(ArgumentsTest, AVariantThatRefersToItselfIsRefused) {
  Var loop;
  loop.raw().vt = VT_BYREF | VT_VARIANT;
  loop.raw().pvarVal = &loop.raw();
  const LateAnswer answer = scr.call(L"UsuarioSegunMotor", {loop});
  EXPECT_EQ(answer.result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(answer.wrong_argument, 0u);
  loop.raw().vt = VT_EMPTY;
  EXPECT_EQ(traced(), (Traces{u"QVRScr.UsuarioSegunMotor: -2147352571 The late-bound call was refused"}));
}

TEST_F(ArgumentsTest, UnconvertibleArgumentsAreNamedByTheirIndex) {
  const LateAnswer last = cfp.call(L"Crear", {L"id", L"folder", Var::null()});
  EXPECT_EQ(last.result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(last.wrong_argument, 0u);
  const LateAnswer first = cfp.call(L"Crear", {Var::null(), L"folder", L"name"});
  EXPECT_EQ(first.result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(first.wrong_argument, 2u);
  EXPECT_EQ(scr.call(L"UsuarioSegunMotor", {L"dos"}).result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(scr.call(L"UsuarioSegunMotor", {3e9}).result, DISP_E_OVERFLOW);
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.Crear: -2147352571 The late-bound call was refused",
                              u"QVRcfp.Crear: -2147352571 The late-bound call was refused",
                              u"QVRScr.UsuarioSegunMotor: -2147352571 The late-bound call was refused",
                              u"QVRScr.UsuarioSegunMotor: -2147352566 The late-bound call was refused"}));
}

TEST_F(ArgumentsTest, WrongCounts) {
  EXPECT_EQ(scr.call(L"UsuarioSegunMotor", {}).result, DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(scr.call(L"UsuarioSegunMotor", {1, 2}).result, DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(cfp.get(L"Provider", {1}).result, DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(scr.call(L"UsuarioSegunMotor", {Var::missing()}).result, DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(traced(), (Traces{u"QVRScr.UsuarioSegunMotor: -2147352561 The late-bound call was refused",
                              u"QVRScr.UsuarioSegunMotor: -2147352562 The late-bound call was refused",
                              u"QVRcfp.Provider: -2147352562 The late-bound call was refused",
                              u"QVRScr.UsuarioSegunMotor: -2147352561 The late-bound call was refused"}));
}

TEST_F(ArgumentsTest, NamedArgumentsInAnyOrder) {
  const LateAnswer answer = cfp.call_named(L"ValorATexto", {L"valor", L"TIPOTNFL"}, {2.5, L"N"});
  EXPECT_EQ(describe(answer.value.raw()), "BSTR 2.5");
  const LateAnswer mixed = cfp.call_named(L"ValorATexto", {L"Valor"}, {2.5, L"N"});
  EXPECT_EQ(describe(mixed.value.raw()), "BSTR 2.5");
  EXPECT_EQ(cfp.call_named(L"ValorATexto", {L"Otro"}, {2.5, L"N"}).result, DISP_E_UNKNOWNNAME);
  EXPECT_EQ(cfp.call_named(L"ValorATexto", {L"TipoTNFL"}, {L"N", 2.5}).result, DISP_E_PARAMNOTFOUND);
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.ValorATexto: -2147352572 The late-bound call was refused"}));
}

TEST_F(ArgumentsTest, UnknownMembersIdsAndFlags) {
  EXPECT_EQ(cfp.call(L"NoExiste").result, DISP_E_UNKNOWNNAME);
  DISPPARAMS none{};
  EXPECT_EQ(cfp.invoke(12345, DISPATCH_METHOD, none).result, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(cfp.put(L"Provider", L"x").result, DISP_E_MEMBERNOTFOUND) << "read-only";
  EXPECT_EQ(cfp.get()->Invoke(0x68030009, IID_IUnknown, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr),
            DISP_E_UNKNOWNINTERFACE);
  EXPECT_EQ(cfp.get()->Invoke(0x68030009, IID_NULL, 0, DISPATCH_PROPERTYGET, nullptr, nullptr, nullptr, nullptr),
            E_INVALIDARG);
  EXPECT_EQ(cfp.get()->Invoke(0x68030009, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr), S_OK)
      << "a host may not want the result";
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.dispatch id 12345: -2147352573 The late-bound call was refused",
                              u"QVRcfp.dispatch id 1745027081: -2147352573 The late-bound call was refused",
                              u"QVRcfp.Provider: -2147024809 The late-bound call was refused"}));
}

TEST_F(ArgumentsTest, NamesWithoutRegardToCase) {
  EXPECT_EQ(cfp.get(L"pROVIDER").result, S_OK);
  EXPECT_EQ(describe(scr.call(L"usuariosegunmotor", {2}).value.raw()), "BSTR sa");
}

TEST_F(ArgumentsTest, ScriptHostsAskForPropertiesAndMethodsAtOnce) {
  constexpr WORD kBoth = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
  EXPECT_EQ(cfp.call(L"Provider", {}, kBoth).result, S_OK);
  EXPECT_EQ(describe(scr.call(L"UsuarioSegunMotor", {3}, kBoth).value.raw()), "BSTR System");
}

TEST_F(ArgumentsTest, ArraysOfAnyKindAreNoText) {
  for (const VARTYPE type : {VT_VARIANT, VT_I4, VT_BSTR, VT_R8, VT_DECIMAL, VT_UI1}) {
    SCOPED_TRACE(type);
    Var array;
    array.raw().vt = static_cast<VARTYPE>(VT_ARRAY | type);
    array.raw().parray = SafeArrayCreateVector(type, -3, 5);
    const LateAnswer answer = cfp.call(L"ValorATexto", {L"T", array});
    EXPECT_EQ(answer.result, S_OK);
    EXPECT_EQ(describe(answer.value.raw()), "BSTR ");
  }
  EXPECT_EQ(traced(), Traces(6, u"QVRcfp.ValorATexto: 13 Type mismatch"));
}

TEST_F(ArgumentsTest, ArraysInsideArraysAreReadToTheDepthThatHostsNest) {
  Var array;
  array.raw().vt = VT_ARRAY | VT_VARIANT;
  array.raw().parray = SafeArrayCreateVector(VT_VARIANT, 0, 1);
  VARIANT* element = nullptr;
  SafeArrayAccessData(array.raw().parray, reinterpret_cast<void**>(&element));
  element->vt = VT_BYREF | VT_ARRAY | VT_VARIANT;  // the array holds itself
  SAFEARRAY* itself = array.raw().parray;
  element->pparray = &itself;
  SafeArrayUnaccessData(array.raw().parray);
  VARIANT passed = array.raw();
  Bstr code(L"T"), result;
  EXPECT_EQ(cfp.as<_QVRcfp>()->ValorATexto(&code, &passed, &result), S_OK);
  EXPECT_EQ(result.text(), L"");
  element->vt = VT_EMPTY;
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.ValorATexto: 13 Type mismatch"}));
}

TEST_F(ArgumentsTest, ArraysOfRecordsAreNoTextWhateverTheRecordsHold) {
  Var array;
  array.raw().vt = VT_ARRAY | VT_RECORD;
  SAFEARRAY* const records = SafeArrayCreateVector(VT_I8, 0, 2);
  const USHORT features = records->fFeatures;
  LONGLONG* content = nullptr;
  SafeArrayAccessData(records, reinterpret_cast<void**>(&content));
  content[0] = content[1] = 0x7777777777777777;  // taken for a pointer, this would end the host
  SafeArrayUnaccessData(records);
  records->fFeatures = FADF_RECORD;
  array.raw().parray = records;
  Bstr code(L"T"), result;
  EXPECT_EQ(cfp.as<_QVRcfp>()->ValorATexto(&code, &array.raw(), &result), S_OK);
  EXPECT_EQ(result.text(), L"");
  records->fFeatures = features;
  array.raw().vt = VT_ARRAY | VT_I8;
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.ValorATexto: 13 Type mismatch"}));
}

TEST_F(ArgumentsTest, ObjectsAreNoTextAndNothingIsNoConnection) {
  EXPECT_EQ(written(cfp.get()), "BSTR ");
  EXPECT_EQ(written(static_cast<IDispatch*>(nullptr)), "BSTR ");
  EXPECT_EQ(scr.call(L"Ejecutar1Comando", {L"no object", L"SELECT 1", 2}).result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.ValorATexto: 13 Type mismatch", u"QVRcfp.ValorATexto: 13 Type mismatch",
                              u"QVRScr.Ejecutar1Comando: -2147352571 The late-bound call was refused"}));
}

TEST_F(ArgumentsTest, AReferenceToNowhereIsRefused) {
  Var nowhere;
  nowhere.raw().vt = VT_BYREF | VT_BSTR;
  nowhere.raw().byref = nullptr;
  EXPECT_EQ(cfp.call(L"ValorATexto", {L"T", nowhere}).result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(cfp.call(L"TextoAValor", {L"T", nowhere}).result, DISP_E_TYPEMISMATCH);
  nowhere.raw().vt = VT_EMPTY;
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.ValorATexto: -2147352571 The late-bound call was refused",
                              u"QVRcfp.TextoAValor: -2147352571 The late-bound call was refused"}));
}

// Re-entrance during conversion: the default property of one argument changes the variable of another.
class ValueThatReplaces final : public IDispatch {
 public:
  explicit ValueThatReplaces(Var& variable) : variable_(variable) {}
  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override {
    *found = id == IID_IUnknown || id == IID_IDispatch ? this : nullptr;
    return *found != nullptr ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return 2; }
  STDMETHODIMP_(ULONG) Release() noexcept override { return 1; }
  STDMETHODIMP GetTypeInfoCount(UINT*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) noexcept override {
    variable_ = Var(L"a text that takes the other one's place");
    result->vt = VT_BSTR;
    result->bstrVal = SysAllocString(L"12");
    return S_OK;
  }

 private:
  Var& variable_;
};

TEST_F(ArgumentsTest, ATextThatGoesWhileAnotherArgumentIsConvertedWasTakenBefore) {
  Var type(L"N");
  ValueThatReplaces value(type);
  const LateAnswer answer = cfp.call(L"TextoAValor", {Var::by_reference(type), &value});
  EXPECT_EQ(describe(answer.value.raw()), "R8 12.000000");
  EXPECT_EQ(describe(type.raw()), "BSTR a text that takes the other one's place");
}

}  // namespace
}  // namespace qvr::tests
