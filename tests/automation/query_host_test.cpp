// What else hosts do with queries: leave arguments out, hold either class as the contract, pass null pointers.
#include <gtest/gtest.h>

#include "QVRlib21.h"
#include "automation/host.h"
#include "automation/query_views.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

TEST(QueryHost, OptionalArgumentsMayBeLeftOut) {
  const LateObject query(L"QVRlib21.cSQL20");
  const LateAnswer made = query.call(L"iSQL20_Crear", {2, L"x", false, list_of({L"Nombre", L"T"}), L"Clientes"});
  EXPECT_EQ(describe(made.value.raw()), "BOOL true");
  EXPECT_EQ(describe(query.get(L"iSQL20_SQLOriginal").value.raw()), "BSTR SELECT Nombre  FROM Clientes     ");
  EXPECT_EQ(describe(query.call(L"iSQL20_ParteOrder").value.raw()), "BSTR ");
  EXPECT_EQ(describe(query.call(L"iSQL20_AmpliarCondicionWhere", {L"a=1"}).value.raw()), "BOOL true");
  EXPECT_EQ(describe(query.call(L"ParteWhere").value.raw()), "BSTR WHERE (a=1)");
  EXPECT_EQ(describe(query.get(L"iSQL20_CriterioActual").value.raw()), "BSTR ");
}

TEST(QueryHost, NamedArguments) {
  const LateObject query(L"QVRlib21.cSQL20");
  const LateAnswer made = query.call_named(L"iSQL20_Crear", {L"TOP", L"CondicionWHEREInicial"},
                                           {5, L"a=1", 2, L"x", false, list_of({L"Nombre", L"T"}), L"Clientes"});
  EXPECT_EQ(made.result, S_OK);
  EXPECT_EQ(describe(query.get(L"iSQL20_SQL").value.raw()), "BSTR SELECT  TOP 5 Nombre  FROM Clientes  WHERE a=1   ");
}

TEST(QueryHost, EitherClassIsTheContract) {
  for (const wchar_t* name : {L"QVRlib21.cSQL20", L"QVRlib21.uSQL20"}) {
    SCOPED_TRACE(narrow(name));
    const LateObject query(name);
    const ComPtr<_iSQL20> contract = query.as<_iSQL20>();
    ASSERT_NE(contract.Get(), nullptr);
    ComPtr<IUnknown> from_contract, from_default;
    EXPECT_EQ(contract->QueryInterface(IID_PPV_ARGS(&from_contract)), S_OK);
    EXPECT_EQ(query.get()->QueryInterface(IID_PPV_ARGS(&from_default)), S_OK);
    EXPECT_EQ(from_contract.Get(), from_default.Get()) << "one identity";
    ComPtr<ISupportErrorInfo> errors;
    ASSERT_EQ(contract->QueryInterface(IID_PPV_ARGS(&errors)), S_OK);
    EXPECT_EQ(errors->InterfaceSupportsErrorInfo(__uuidof(_iSQL20)), S_OK);
  }
}

TEST(QueryHost, TheContractItselfCannotBeCreated) {
  ComPtr<IUnknown> object;
  EXPECT_EQ(CoCreateInstance(CLSID_iSQL20, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&object)), REGDB_E_CLASSNOTREG);
}

TEST(QueryHost, NullPointersCountAsNothing) {
  const LateObject query(L"QVRlib21.cSQL20");
  const ComPtr<_iSQL20> contract = query.as<_iSQL20>();
  VARIANT_BOOL done = VARIANT_TRUE;
  EXPECT_EQ(contract->Crear(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                            nullptr, nullptr, &done),
            S_OK);
  EXPECT_EQ(done, VARIANT_FALSE);
  EXPECT_EQ(contract->AmpliarCondicionWhere(nullptr, nullptr, &done), S_OK);
  EXPECT_EQ(done, VARIANT_FALSE);
  EXPECT_EQ(contract->AdoptaComoOriginal(nullptr, nullptr, nullptr), S_OK);
  EXPECT_EQ(contract->RestauraOriginal(nullptr, nullptr), S_OK);
  EXPECT_EQ(contract->CambiaOrden(nullptr), S_OK);
  EXPECT_EQ(contract->put_Tag(nullptr), S_OK);
  EXPECT_EQ(contract->put_CriterioActualCompleto(nullptr), S_OK);
  EXPECT_EQ(contract->InterpretarBusqueda(nullptr, nullptr, nullptr, &done), S_OK);
  EXPECT_EQ(done, VARIANT_FALSE);
  EXPECT_EQ(contract->get_SQL(nullptr), E_POINTER);
  EXPECT_EQ(contract->NumColumnas(nullptr), E_POINTER);
  EXPECT_EQ(traced(), (Traces{u"cSQL20.Crear: 13 ColumnasSELECT is not an array"}));
}

}  // namespace
}  // namespace qvr::tests
