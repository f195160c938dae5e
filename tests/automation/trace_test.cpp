// The trace in the debugger's output, as the manual shows it.
#include <fstream>

#include "automation/arrays.h"
#include "automation/both.h"
#include "automation/boxes.h"
#include "automation/library.h"
#include "automation/script_folder.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

// The lines of the page that begin with the library's name, without it.
Traces lines_of_manual(const std::string& language) {
  std::ifstream page(QVR_TESTS_MANUAL "/" + language + "/troubleshooting.md");
  EXPECT_TRUE(page.good());
  const std::string prefix = "QVRlib21: ";
  Traces lines;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with(prefix))
      lines.emplace_back(line.begin() + static_cast<std::ptrdiff_t>(prefix.size()), line.end());
  }
  return lines;
}

// The failures of the manual, in its order.
void fail_in_all_ways() {
  const std::wstring folder = work_folder();
  const LateObject parameters(L"QVRlib21.QVRcfp"), runner(L"QVRlib21.QVRScr"), query(L"QVRlib21.cSQL20");
  EXPECT_EQ(describe(parameters.call(L"CadenaADO", {L"id", true}).value.raw()), "BSTR ");
  EXPECT_EQ(describe(parameters.call(L"Crear", {L"id", folder, L"nada"}).value.raw()), "BOOL false");
  parameters.call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""});
  EXPECT_EQ(describe(parameters.call(L"Guardar", {L"id", folder, L"traza"}).value.raw()), "BOOL true");
  EXPECT_EQ(describe(parameters.call(L"Crear", {L"otra", folder, L"traza"}).value.raw()), "BOOL false");
  EXPECT_EQ(describe(parameters.call(L"TextoAValor", {L"F", L"ma\u00f1ana"}).value.raw()), "Empty");
  EXPECT_EQ(describe(parameters.call(L"ExpSQL", {query.get()}).value.raw()), "BSTR Null");
  EXPECT_EQ(describe(parameters.call(L"SqlINSERT", {L"T", 5}).value.raw()), "BSTR ");
  const LateAnswer ran = runner.call(L"EjecutarComandos", {L"id", 2, L"select 1\r\nGO\r\n", L"Provider=Ninguno"});
  EXPECT_EQ(describe(ran.value.raw()), "BOOL false");
  const LateAnswer loaded = runner.call(L"CargarDefinicion",
                                        {L"id", 2, folder, L"nada", L"BD", L"", L"", L"", L"", false});
  EXPECT_EQ(describe(loaded.value.raw()), "BSTR ");
  EXPECT_EQ(describe(query.call(L"iSQL20_Crear", {2, L"", false, 5, L"T"}).value.raw()), "BOOL false");
  EXPECT_EQ(runner.call(L"UsuarioSegunMotor", {L"dos"}).result, DISP_E_TYPEMISMATCH);
}

class TraceOfManual : public testing::TestWithParam<std::string> {};

TEST_P(TraceOfManual, IsWhatIsWritten) {
  const Person person;  // one report
  const Traces expected = lines_of_manual(GetParam());
  EXPECT_EQ(expected.size(), 10u);
  fail_in_all_ways();
  EXPECT_EQ(traced(), expected);
}

INSTANTIATE_TEST_SUITE_P(Languages, TraceOfManual, testing::Values("en", "es"),
                         [](const auto& each) { return each.param; });

// By name, as hosts call, and through the slot.
TEST(Trace, NamesTheMemberOfAnErrorThatReachesTheCaller) {
  const LateObject late(L"QVRlib21.QVRcfp");
  EXPECT_EQ(late.call(L"sqlConcatenar", {5}).result, DISP_E_EXCEPTION);
  Var list(5);
  Bstr result;
  EXPECT_EQ(late.as<_QVRcfp>()->sqlConcatenar(&list.raw(), &result), static_cast<HRESULT>(0x800A000D));
  EXPECT_EQ(traced(), Traces(2, u"QVRcfp.sqlConcatenar: 13 Type mismatch"));
}

TEST(Trace, NamesTheClassBehindTheContract) {
  const LateObject query(L"QVRlib21.uSQL20");
  EXPECT_EQ(describe(query.call(L"iSQL20_Crear", {2, L"", false, 5, L"T"}).value.raw()), "BOOL false");
  EXPECT_EQ(query.call(L"iSQL20_Crear", {L"dos", L"", false, 5, L"T"}).result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(traced(), (Traces{u"cSQL20.Crear: 13 ColumnasSELECT is not an array",
                              u"uSQL20.iSQL20_Crear: -2147352571 The late-bound call was refused"}));
}

TEST(Trace, HoldsNothingOfWhatIsSecret) {
  const Person person;
  const LateObject runner(L"QVRlib21.QVRScr"), parameters(L"QVRlib21.QVRcfp");
  runner.call(L"EjecutarComandos", {L"secreto1", 2, L"secreto2\r\nGO\r\n",
                                    L"Provider=MSDASQL;Data Source=secreto3;User ID=secreto4;Password=secreto5"});
  parameters.call(L"Crear", {L"secreto6", work_folder(), L"nada"});
  parameters.call(L"TextoAValor", {L"F", L"secreto7"});
  const Traces lines = traced();
  EXPECT_EQ(lines.size(), 3u);
  for (const Text& line : lines) EXPECT_EQ(line.find(u"secreto"), Text::npos);
}

}  // namespace
}  // namespace qvr::tests
