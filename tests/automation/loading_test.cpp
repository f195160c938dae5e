// Scripts put together from a folder of files, by name and through the slots.
#include "automation/both.h"
#include "automation/family_component.h"
#include "automation/script_folder.h"
#include "automation/sink.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

struct Loading : testing::Test {
  LateObject late{L"QVRlib21.QVRScr"};
  LateObject other{L"QVRlib21.QVRScr"};
  ComPtr<_QVRScr> early = other.as<_QVRScr>();
  Bstr id{L"app"}, database{L"Gesti\u00f3n"}, admin{L"sa"}, admin_key{L"k"}, client{L"app"}, client_key{L"[NombreBD]"};

  void expect_definition(const std::wstring& folder, long engine, bool encrypt, const std::string& expected) {
    Bstr path(folder), name(L"Gestion"), result;
    VARIANT_BOOL wanted = encrypt ? VARIANT_TRUE : VARIANT_FALSE;
    const HRESULT status = early->CargarDefinicion(&id, &engine, &path, &name, &database, &admin, &admin_key, &client,
                                                   &client_key, &wanted, &result);
    const LateAnswer answer = late.call(L"CargarDefinicion",
                                        {id.get(), static_cast<int>(engine), folder, L"Gestion", database.get(),
                                         admin.get(), admin_key.get(), client.get(), client_key.get(), encrypt});
    expect_same(answer, status, early_result(result), expected);
  }

  void expect_update(const std::wstring& folder, long version, const std::string& expected) {
    long engine = 2;
    Bstr path(folder), name(L"Gestion"), result;
    VARIANT_BOOL encrypt = VARIANT_FALSE;
    const HRESULT status = early->CargarActualizacion(&id, &engine, &path, &name, &version, &database, &admin,
                                                      &admin_key, &client, &client_key, &encrypt, &result);
    const LateAnswer answer = late.call(L"CargarActualizacion",
                                        {id.get(), 2, folder, L"Gestion", static_cast<int>(version), database.get(),
                                         admin.get(), admin_key.get(), client.get(), client_key.get(), false});
    expect_same(answer, status, early_result(result), expected);
  }
};

TEST_F(Loading, ADefinitionInTheOrderOfItsNames) {
  ScriptFolder folder(L"definition");
  folder.write(L"GestionSQL2.cfc", "USE [nombrebd]\r\nGO\r\n");
  folder.write(L"GestionSQL1.cfc",
               "\xEF\xBB\xBF-- ma\xC3\xB1"
               "ana\nGO\n");
  folder.write(L"GestionSQL10.cfc", "never\r\nGO\r\n");
  Connected connected(late);
  expect_definition(folder.path(), 2, false, "BSTR -- ma\u00f1ana\r\nGO\r\n\r\nUSE Gesti\u00f3n\r\nGO\r\n\r\n");
  const std::vector<std::string> expected{"Progreso BSTR* Procesando GestionSQL1.cfc",
                                          "Progreso BSTR* Procesando GestionSQL2.cfc",
                                          "Progreso BSTR* Procesando 1/6",
                                          "Progreso BSTR* Procesando 3/6",
                                          "Progreso BSTR* Procesando 4/6",
                                          "Progreso BSTR* Procesando 5/6",
                                          "Progreso BSTR* Procesando 6/6",
                                          "Terminado BOOL* true"};
  EXPECT_EQ(connected.events(), expected);
}

TEST_F(Loading, Encryption) {
  ScriptFolder folder(L"encryption");
  folder.write(L"GestionSQL1.cfc", "create trigger T on C\r\nFOR INSERT\r\nas\r\nselect 1\r\nGO\r\n");
  expect_definition(folder.path(), 2, true,
                    "BSTR create trigger T on C\r\nWITH ENCRYPTION FOR INSERT AS\r\nselect 1\r\nGO\r\n\r\n");
}

TEST_F(Loading, NothingToLoadIsAnEmptyTextAndTerminadoFalse) {
  ScriptFolder folder(L"nothing");
  Connected connected(late);
  expect_definition(folder.path() + L"\\none", 2, false, "BSTR ");
  EXPECT_EQ(connected.events(), std::vector<std::string>{"Terminado BOOL* false"});
  EXPECT_EQ(traced(), (Traces{u"QVRScr.CargarDefinicion: 75 Path/File access error",
                              u"QVRScr.CargarDefinicion: 75 Path/File access error"}));
}

TEST_F(Loading, UpdatesFromAVersionOn) {
  ScriptFolder folder(L"updates");
  folder.write(L"Gestion10023a10024SQL.cfc", "old\r\nGO\r\n");
  folder.write(L"Gestion10024a10025SQL.cfc", "first\r\nGO\r\n");
  folder.write(L"Gestion10025a10026SQL.cfc", "second [ClaveUsuarioQVRCli]\r\nGO\r\n");
  expect_update(folder.path(), 10024, "BSTR first\r\nGO\r\n\r\nsecond [NombreBD]\r\nGO\r\n\r\n");
  expect_update(folder.path(), 10026, "BSTR ");
  EXPECT_EQ(traced(), (Traces{u"QVRScr.CargarActualizacion: 75 No update script begins with this version",
                              u"QVRScr.CargarActualizacion: 75 No update script begins with this version"}));
}

TEST_F(Loading, TheRegisteredReaderReadsInsteadOfTheBuiltInOne) {
  ScriptFolder folder(L"reader");
  folder.write(L"GestionSQL1.cfc", "scrambled");
  on_fresh_thread([&] {
    // The text comes back by reference.
    FamilyComponent component(L"QVRServicios.LectorScripts", {L"Leer"}, [](auto&, std::vector<Var>& arguments) {
      LateAnswer answer;
      answer.result = arguments.size() == 3 ? S_OK : DISP_E_BADPARAMCOUNT;
      arguments.back() = Var(L"clear [NombreBD]\r\nGO\r\n");
      answer.value = Var(true);
      return answer;
    });
    const LateObject runner(L"QVRlib21.QVRScr");
    const LateAnswer loaded = runner.call(L"CargarDefinicion",
                                          {L"app", 2, folder.path(), L"Gestion", L"BD", L"", L"", L"", L"", false});
    EXPECT_EQ(describe(loaded.value.raw()), "BSTR clear BD\r\nGO\r\n\r\n");
    ASSERT_EQ(component.calls().size(), 1u);
    EXPECT_EQ(component.calls()[0].substr(0, 19), "Leer(BSTR app, BSTR");
  });
}

TEST_F(Loading, AReaderThatCannotReadLeavesNothing) {
  ScriptFolder folder(L"failing");
  folder.write(L"GestionSQL1.cfc", "scrambled");
  on_fresh_thread([&] {
    FamilyComponent component(L"QVRServicios.LectorScripts", {L"Leer"}, [](auto&, auto&) {
      LateAnswer answer;
      answer.result = S_OK;
      answer.value = Var(false);
      return answer;
    });
    const LateObject runner(L"QVRlib21.QVRScr");
    Connected connected(runner);
    const LateAnswer loaded = runner.call(L"CargarDefinicion",
                                          {L"app", 2, folder.path(), L"Gestion", L"BD", L"", L"", L"", L"", false});
    EXPECT_EQ(describe(loaded.value.raw()), "BSTR ");
    EXPECT_EQ(connected.events().back(), "Terminado BOOL* false");
  });
  EXPECT_EQ(traced(), (Traces{u"QVRScr.CargarDefinicion: 75 Path/File access error"}));
}

}  // namespace
}  // namespace qvr::tests
