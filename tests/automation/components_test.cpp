// The application family's components take over from the built-in services where they are registered.
#include <thread>

#include "automation/both.h"
#include "automation/boxes.h"
#include "automation/database.h"
#include "automation/family_component.h"
#include "automation/script_folder.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

// A reversible protection that nobody would take for a good one.
LateAnswer rot(const std::wstring& member, const std::vector<Var>& arguments) {
  LateAnswer answer;
  answer.result = arguments.size() == 2 ? S_OK : DISP_E_BADPARAMCOUNT;
  std::wstring text = arguments[1].text();
  const int shift = member == L"Cifrar" ? 1 : -1;
  for (wchar_t& unit : text) unit = static_cast<wchar_t>(unit + shift);
  answer.value = Var(text);
  return answer;
}

void save_and_load(const wchar_t* name, bool expected) {
  const LateObject written(L"QVRlib21.QVRcfp"), read(L"QVRlib21.QVRcfp");
  written.call(L"Asignar", {L"id", 1, L"PROV", L"", L"", L"", L"", L"", L"", L""});
  EXPECT_EQ(describe(written.call(L"Guardar", {L"id", work_folder(), name}).value.raw()),
            expected ? "BOOL true" : "BOOL false");
  EXPECT_EQ(describe(read.call(L"Crear", {L"id", work_folder(), name}).value.raw()),
            expected ? "BOOL true" : "BOOL false");
  EXPECT_EQ(describe(read.get(L"Provider").value.raw()), expected ? "BSTR PROV" : "BSTR ");
}

TEST(TextProtectionComponent, ProtectsTheFileWhenItIsRegistered) {
  on_fresh_thread([] {
    FamilyComponent component(L"QVRServicios.ProteccionTexto", {L"Cifrar", L"Descifrar"}, rot);
    save_and_load(L"component", true);
    // Ten lines written and, before and after they are in the file, read with the check line written again: all
    // through the component.
    EXPECT_EQ(component.calls().size(), 30u);
    EXPECT_EQ(component.calls()[1], "Cifrar(BSTR id, BSTR PROV)");
    EXPECT_EQ(component.calls()[10], "Descifrar(BSTR id, BSTR 2)");
  });
}

// Such a line ends early, for this library or another reader of the file.
TEST(TextProtectionComponent, DoesNotReplaceAFileByOneThatCannotBeRead) {
  for (const wchar_t* end : {L"\r\n", L"\n", L",", L"\"", L" "}) {
    SCOPED_TRACE(narrow(end));
    on_fresh_thread([] { save_and_load(L"kept", true); });
    on_fresh_thread([end] {
      FamilyComponent component(L"QVRServicios.ProteccionTexto", {L"Cifrar", L"Descifrar"},
                                [end](const std::wstring& member, const std::vector<Var>& arguments) {
                                  LateAnswer answer = rot(member, arguments);
                                  if (member == L"Cifrar") answer.value = Var(answer.value.text() + end);
                                  return answer;
                                });
      const LateObject written(L"QVRlib21.QVRcfp");
      written.call(L"Asignar", {L"id", 1, L"PROV", L"", L"", L"", L"", L"", L"", L""});
      EXPECT_EQ(describe(written.call(L"Guardar", {L"id", work_folder(), L"kept"}).value.raw()), "BOOL false");
    });
    on_fresh_thread([] {
      const LateObject read(L"QVRlib21.QVRcfp");
      EXPECT_EQ(describe(read.call(L"Crear", {L"id", work_folder(), L"kept"}).value.raw()), "BOOL true");
    });
  }
  EXPECT_EQ(
      traced(),
      Traces(
          5,
          u"QVRcfp.Guardar: 5 The text protection wrote a line break, a comma, a double quote or a blank at an end"));
}

TEST(TextProtectionComponent, FailsTheMembersWhenItFails) {
  on_fresh_thread([] {
    FamilyComponent component(L"QVRServicios.ProteccionTexto", {L"Cifrar", L"Descifrar"}, [](auto&, auto&) {
      LateAnswer answer;
      answer.result = E_FAIL;
      return answer;
    });
    save_and_load(L"failing", false);
  });
  EXPECT_EQ(traced(),
            (Traces{u"QVRcfp.Guardar: -2147467259 Call failed.", u"QVRcfp.Crear: 75 Path/File access error"}));
}

TEST(TextProtectionComponent, FailsTheMembersWhenItAnswersWithoutAText) {
  on_fresh_thread([] {
    FamilyComponent component(L"QVRServicios.ProteccionTexto", {L"Cifrar", L"Descifrar"},
                              [](auto& member, auto& arguments) {
                                LateAnswer answer = rot(member, arguments);
                                answer.value = Var(5);
                                return answer;
                              });
    save_and_load(L"without_text", false);
  });
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.Guardar: 13 Type mismatch", u"QVRcfp.Crear: 75 Path/File access error"}));
}

TEST(TextProtectionComponent, IsNotReplacedWhenItIsRegisteredButCannotBeCreated) {
  on_fresh_thread([] {
    FamilyComponent component(L"QVRServicios.ProteccionTexto", {L"Cifrar", L"Descifrar"}, rot);
    component.revoke();
    save_and_load(L"absent", false);
  });
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.Guardar: 429 ActiveX component can't create object",
                              u"QVRcfp.Crear: 75 Path/File access error"}));
}

TEST(ErrorReportComponent, GetsTheFailureInsteadOfTheBox) {
  on_fresh_thread([] {
    FamilyComponent component(L"QVRServicios.InformeErrores", {L"Informar"}, [](auto&, auto&) {
      LateAnswer answer;
      answer.result = S_OK;
      return answer;
    });
    Person person;
    const std::wstring command = L"select " + std::wstring(1000, L'1');  // longer than a box shows
    const LateObject runner(L"QVRlib21.QVRScr");
    EXPECT_EQ(describe(runner.call(L"Ejecutar1Comando", {static_cast<IDispatch*>(nullptr), command, 3}).value.raw()),
              "BOOL false");
    EXPECT_TRUE(person.boxes().empty());
    EXPECT_EQ(component.calls(),
              std::vector<std::string>{
                  "Informar(I4 91, BSTR Object variable or With block variable not set, BSTR QVRlib21, "
                  "I4 3, BSTR Ejecutar1Comando: " +
                  narrow(command) +
                  ", {BSTR Servidor no encontrado; BSTR Registro "
                  "duplicado; BSTR Error indeterminado; BSTR M\u00e9todo; BSTR Objeto})"});
  });
  EXPECT_EQ(traced(), (Traces{u"QVRScr.Ejecutar1Comando: 91 Object variable or With block variable not set"}));
}

TEST(ErrorReportComponent, LeavesTheFailureToTheBoxWhenItFailsOrCannotBeCreated) {
  for (const bool created : {true, false}) {
    on_fresh_thread([created] {
      FamilyComponent component(L"QVRServicios.InformeErrores", {L"Informar"},
                                [](auto&, auto&) { return LateAnswer(); });
      if (!created) component.revoke();
      Person person;
      const LateObject runner(L"QVRlib21.QVRScr");
      runner.call(L"Ejecutar1Comando", {static_cast<IDispatch*>(nullptr), L"select 1", 3});
      EXPECT_EQ(component.calls().size(), created ? 1u : 0u);
      ASSERT_EQ(person.boxes().size(), 1u);
      EXPECT_TRUE(person.boxes()[0].text.ends_with(L"Ejecutar1Comando: select 1")) << narrow(person.boxes()[0].text);
    });
  }
  EXPECT_EQ(traced(), (Traces{u"QVRScr.Ejecutar1Comando: 91 Object variable or With block variable not set",
                              u"Informar: -2147467259 Call failed.",
                              u"QVRScr.Ejecutar1Comando: 91 Object variable or With block variable not set",
                              u"make_error_report: 429 ActiveX component can't create object"}));
}

LateAnswer taken(const std::wstring&, const std::vector<Var>&) {
  LateAnswer answer;
  answer.result = S_OK;
  answer.value = Var(false);
  return answer;
}

// Uses all three components, one after the other: they have one class. Only the library holds them afterwards.
void use_components() {
  {
    FamilyComponent protection(L"QVRServicios.ProteccionTexto", {L"Cifrar", L"Descifrar"}, rot);
    save_and_load(L"thread", true);
    EXPECT_EQ(protection.calls().size(), 30u);  // written, read back, and loaded
  }
  {
    FamilyComponent report(L"QVRServicios.InformeErrores", {L"Informar"}, taken);
    const LateObject runner(L"QVRlib21.QVRScr");
    runner.call(L"Ejecutar1Comando", {static_cast<IDispatch*>(nullptr), L"select 1", 3});
    EXPECT_EQ(report.calls().size(), 1u);
  }
  FamilyComponent reader(L"QVRServicios.LectorScripts", {L"Leer"}, taken);
  ScriptFolder folder(L"reader");
  folder.write(L"GestionSQL1.cfc", "text");
  const LateObject runner(L"QVRlib21.QVRScr");
  runner.call(L"CargarDefinicion", {L"app", 2, folder.path(), L"Gestion", L"BD", L"", L"", L"", L"", false});
  EXPECT_EQ(reader.calls().size(), 1u);
  EXPECT_EQ(traced(), (Traces{u"QVRScr.Ejecutar1Comando: 91 Object variable or With block variable not set",
                              u"QVRScr.CargarDefinicion: 75 Path/File access error"}));
}

TEST(Components, NoneIsLeftWhenAHundredThreadsHaveEnded) {
  const long before = FamilyComponent::living();
  for (int i = 0; i < 100; ++i) on_fresh_thread(use_components);
  EXPECT_EQ(FamilyComponent::living(), before);
}

TEST(Components, AreKeptUntilTheApartmentEndsAndMadeAnewInTheNext) {
  const long before = FamilyComponent::living();
  on_fresh_thread([before] {
    use_components();
    EXPECT_EQ(FamilyComponent::living(), before + 3);
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    CoUninitialize();
    EXPECT_EQ(FamilyComponent::living(), before + 3) << "the apartment has not ended";
    CoUninitialize();
    EXPECT_EQ(FamilyComponent::living(), before);
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    use_components();
  });
  EXPECT_EQ(FamilyComponent::living(), before);
}

// Nothing can be released any more when such a thread ends.
TEST(Components, StayWhereAThreadEndsWithItsApartment) {
  const long before = FamilyComponent::living();
  std::thread([] {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    use_components();
  }).join();
  EXPECT_EQ(FamilyComponent::living(), before + 3);
  EXPECT_EQ(
      traced(),
      (Traces{
          u"QVRServicios.LectorScripts.Release: 91 A thread ended without CoUninitialize and still holds the component",
          u"QVRServicios.InformeErrores.Release: 91 A thread ended without CoUninitialize and still holds the component",
          u"QVRServicios.ProteccionTexto.Release: 91 A thread ended without CoUninitialize and still holds the component"}));
}

}  // namespace
}  // namespace qvr::tests
