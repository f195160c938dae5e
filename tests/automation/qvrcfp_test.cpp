#include <filesystem>
#include <fstream>
#include <iterator>

#include "automation/both.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

struct QVRcfpTest : testing::Test {
  LateObject late{L"QVRlib21.QVRcfp"};
  LateObject other{L"QVRlib21.QVRcfp"};
  ComPtr<_QVRcfp> early = other.as<_QVRcfp>();
  Bstr id{L"mi aplicaci\u00f3n"};
  MotoresBD engine = MotorBDSQLServer;
  Bstr provider{L"SQLOLEDB"}, source{L"SRV01"}, catalogue{L"Gesti\u00f3n"}, adm{L"sa"}, adm_key{L"cl\u00e1ve"},
      cli{L"app"}, cli_key{L"pw"}, others{L"Mode=Read"};

  HRESULT assign_early(VARIANT_BOOL& done) {
    return early->Asignar(&id, &engine, &provider, &source, &catalogue, &adm, &adm_key, &cli, &cli_key, &others, &done);
  }
  LateAnswer assign_late() const {
    return late.call(L"Asignar", {id.get(), 2, provider.get(), source.get(), catalogue.get(), adm.get(), adm_key.get(),
                                  cli.get(), cli_key.get(), others.get()});
  }
  void assign_both() {
    VARIANT_BOOL done = 0;
    const HRESULT status = assign_early(done);
    expect_same(assign_late(), status, early_result(done), "BOOL true");
  }

  using TextGetter = HRESULT (STDMETHODCALLTYPE _QVRcfp::*)(BSTR*);
  void expect_property(const wchar_t* name, TextGetter getter, const std::string& expected) {
    SCOPED_TRACE(narrow(name));
    Bstr result(L"left over");
    BSTR raw = nullptr;
    const HRESULT status = (early.Get()->*getter)(&raw);
    *&result = raw;
    expect_same(late.get(name), status, early_result(result), expected);
  }
};

TEST_F(QVRcfpTest, AsignarAndEveryProperty) {
  assign_both();
  expect_property(L"Archivo", &_QVRcfp::get_Archivo, "BSTR ");
  expect_property(L"Provider", &_QVRcfp::get_Provider, "BSTR SQLOLEDB");
  expect_property(L"DataSource", &_QVRcfp::get_DataSource, "BSTR SRV01");
  expect_property(L"InitialCatalogOTablespace", &_QVRcfp::get_InitialCatalogOTablespace, "BSTR Gesti\u00f3n");
  expect_property(L"UsuarioAdm", &_QVRcfp::get_UsuarioAdm, "BSTR sa");
  expect_property(L"UsuarioCli", &_QVRcfp::get_UsuarioCli, "BSTR app");
  expect_property(L"OtrosParametros", &_QVRcfp::get_OtrosParametros, "BSTR Mode=Read");
  MotoresBD held{};
  const HRESULT status = early->get_MotorBD(&held);
  expect_same(late.get(L"MotorBD"), status, early_result(static_cast<long>(held)), "I4 2");
}

TEST_F(QVRcfpTest, Passwords) {
  assign_both();
  Bstr first, second;
  const HRESULT status = early->get_ClaveAdm(&id, &first);
  expect_same(late.get(L"ClaveAdm", {id.get()}), status, early_result(first), "BSTR cl\u00e1ve");
  const HRESULT again = early->get_ClaveCli(&id, &second);
  expect_same(late.get(L"ClaveCli", {id.get()}), again, early_result(second), "BSTR pw");
}

TEST_F(QVRcfpTest, FreshObjectIsEmpty) {
  expect_property(L"Provider", &_QVRcfp::get_Provider, "BSTR ");
  MotoresBD held = MotorBDOracle;
  const HRESULT status = early->get_MotorBD(&held);
  expect_same(late.get(L"MotorBD"), status, early_result(static_cast<long>(held)), "I4 0");
}

TEST_F(QVRcfpTest, ConnectionStrings) {
  assign_both();
  VARIANT_BOOL adm_wanted = VARIANT_TRUE, cli_wanted = VARIANT_FALSE;
  Bstr first, second, third;
  const HRESULT of_adm = early->CadenaADO(&id, &adm_wanted, &first);
  expect_same(late.call(L"CadenaADO", {id.get(), true}), of_adm, early_result(first),
              "BSTR Provider=SQLOLEDB;Data Source=\"SRV01\";Persist Security Info=False;User ID=\"sa\";"
              "Password=\"cl\u00e1ve\";Initial Catalog=Gesti\u00f3n;Mode=Read;");
  const HRESULT of_cli = early->CadenaADO(&id, &cli_wanted, &second);
  expect_same(late.call(L"CadenaADO", {id.get(), false}), of_cli, early_result(second),
              "BSTR Provider=SQLOLEDB;Data Source=\"SRV01\";Persist Security Info=False;User ID=\"app\";"
              "Password=\"pw\";Initial Catalog=Gesti\u00f3n;Mode=Read;");
  Bstr user(L"ana"), key(L"");
  const HRESULT of_user = early->CadenaADOUsuario(&user, &key, &third);
  expect_same(late.call(L"CadenaADOUsuario", {L"ana", L""}), of_user, early_result(third),
              "BSTR Provider=SQLOLEDB;Data Source=\"SRV01\";Persist Security Info=False;User ID=\"ana\";"
              "Initial Catalog=Gesti\u00f3n;Mode=Read;");
}

TEST_F(QVRcfpTest, GuardarAndCrear) {
  assign_both();
  Bstr folder(work_folder()), name(L"enlace"), result_text;
  VARIANT_BOOL saved = 0, loaded = 0, refused = VARIANT_TRUE;
  const HRESULT status = early->Guardar(&id, &folder, &name, &saved);
  expect_same(late.call(L"Guardar", {id.get(), work_folder(), L"enlace"}), status, early_result(saved), "BOOL true");
  const HRESULT loading = early->Crear(&id, &folder, &name, &loaded);
  expect_same(late.call(L"Crear", {id.get(), work_folder(), L"enlace"}), loading, early_result(loaded), "BOOL true");
  expect_property(L"Archivo", &_QVRcfp::get_Archivo, "BSTR enlace");
  expect_property(L"InitialCatalogOTablespace", &_QVRcfp::get_InitialCatalogOTablespace, "BSTR Gesti\u00f3n");
  Bstr stranger(L"otra");
  const HRESULT refusing = early->Crear(&stranger, &folder, &name, &refused);
  expect_same(late.call(L"Crear", {L"otra", work_folder(), L"enlace"}), refusing, early_result(refused), "BOOL false");
  expect_property(L"Archivo", &_QVRcfp::get_Archivo, "BSTR ");
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.Crear: 5 The protected text is damaged or was written with another key",
                              u"QVRcfp.Crear: 5 The protected text is damaged or was written with another key"}));
}

struct Typed {
  const char* name;
  const wchar_t* code;
  Var value;
  const char* expected;
  TextView trace = {};  // of each of the two calls
};

void expect_traced(TextView line) { EXPECT_EQ(traced(), line.empty() ? Traces() : Traces(2, Text(line))); }

const Typed kTexts[] = {
    {"text", L"T", L"abc", "BSTR abc"},
    {"number", L"n", L"2.5kg", "R8 2.500000"},
    {"false", L"L", L"0", "BOOL false"},
    {"true", L"L", L"1", "BOOL true"},
    {"date", L"F", L"2011-01-05", "DATE 40548.000000"},
    {"no date", L"F", L"ma\u00f1ana", "Empty", u"QVRcfp.TextoAValor: 13 Type mismatch"},
    {"unknown code", L"X", L"abc", "Empty"},
};

using TextoAValor = Rows<QVRcfpTest, Typed>;

TEST_P(TextoAValor, GivesAValueOfThatType) {
  Bstr code(GetParam().code);
  Var text = GetParam().value, result;
  const HRESULT status = early->TextoAValor(&code, &text.raw().bstrVal, &result.raw());
  expect_same(late.call(L"TextoAValor", {GetParam().code, text}), status, result, GetParam().expected);
  expect_traced(GetParam().trace);
}

INSTANTIATE_TEST_SUITE_P(, TextoAValor, testing::ValuesIn(kTexts), row_name);

const Typed kValues[] = {
    {"truth", L"L", true, "BSTR 1"},
    {"number", L"n", 2.5, "BSTR 2.5"},
    {"whole number", L"N", -3, "BSTR -3"},
    {"date", L"F", Var::date(40548.75), "BSTR 2011/01/05"},
    {"text", L"T", L"\u00f1", "BSTR \u00f1"},
    {"Null", L"T", Var::null(), "BSTR ", u"QVRcfp.ValorATexto: 94 Invalid use of Null"},
    {"unknown code", L"X", 1, "BSTR "},
};

using ValorATexto = Rows<QVRcfpTest, Typed>;

TEST_P(ValorATexto, GivesTheTextOfThatType) {
  Bstr code(GetParam().code), result;
  Var value = GetParam().value;
  const HRESULT status = early->ValorATexto(&code, &value.raw(), &result);
  expect_same(late.call(L"ValorATexto", {GetParam().code, value}), status, early_result(result), GetParam().expected);
  expect_traced(GetParam().trace);
}

INSTANTIATE_TEST_SUITE_P(, ValorATexto, testing::ValuesIn(kValues), row_name);

TEST_F(QVRcfpTest, NullPointersAndNullStringsCountAsEmpty) {
  VARIANT_BOOL done = 0;
  BSTR null_text = nullptr;
  EXPECT_EQ(early->Asignar(nullptr, nullptr, nullptr, &null_text, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                           &done),
            S_OK);
  EXPECT_EQ(done, VARIANT_TRUE);
  Bstr result;
  EXPECT_EQ(early->CadenaADO(nullptr, nullptr, &result), S_OK);
  EXPECT_EQ(result.text(), L"Provider=;Data Source=\"\";Persist Security Info=False;");
  Bstr folder(work_folder());
  EXPECT_EQ(early->Guardar(nullptr, &folder, nullptr, &done), S_OK);
  EXPECT_EQ(done, VARIANT_TRUE) << "an identification and a name without text are still some";
  EXPECT_EQ(early->Crear(&null_text, &folder, &null_text, &done), S_OK);
  EXPECT_EQ(done, VARIANT_TRUE);
  EXPECT_EQ(early->Asignar(&id, &engine, &provider, &source, &catalogue, &adm, &adm_key, &cli, &cli_key, &others,
                           nullptr),
            E_POINTER);
}

TEST_F(QVRcfpTest, AFolderThatDoesNotExistIsFalse) {
  assign_both();
  const LateAnswer saved = late.call(L"Guardar", {id.get(), work_folder() + L"\\nowhere", L"x"});
  EXPECT_EQ(describe(saved.value.raw()), "BOOL false");
  const LateAnswer loaded = late.call(L"Crear", {id.get(), work_folder() + L"\\nowhere", L"x"});
  EXPECT_EQ(describe(loaded.value.raw()), "BOOL false");
  EXPECT_EQ(traced(),
            (Traces{u"QVRcfp.Guardar: 75 Path/File access error", u"QVRcfp.Crear: 75 Path/File access error"}));
}

TEST_F(QVRcfpTest, AFileWithOtherLineEndsIsRead) {
  assign_both();
  ASSERT_EQ(describe(late.call(L"Guardar", {id.get(), work_folder(), L"linux"}).value.raw()), "BOOL true");
  const std::filesystem::path path = work_folder() + L"\\linux.cfp";
  std::string bytes;
  {
    std::ifstream file(path);  // as text: the line ends are LF
    bytes.assign(std::istreambuf_iterator<char>(file), {});
  }
  std::ofstream(path, std::ios::binary) << bytes.substr(0, bytes.size() - 1);
  Bstr folder(work_folder()), name(L"linux");
  VARIANT_BOOL loaded = 0;
  const HRESULT loading = early->Crear(&id, &folder, &name, &loaded);
  expect_same(late.call(L"Crear", {id.get(), work_folder(), L"linux"}), loading, early_result(loaded), "BOOL true");
  expect_property(L"DataSource", &_QVRcfp::get_DataSource, "BSTR SRV01");
}

// Opening one of these would reach a device and could wait for it for ever.
TEST_F(QVRcfpTest, AFileThatIsADeviceOrAPipeIsFalse) {
  assign_both();
  const HANDLE pipe = CreateNamedPipeW(L"\\\\.\\pipe\\qvr.cfp", PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE, 1, 0, 0, 0,
                                       nullptr);
  ASSERT_NE(pipe, INVALID_HANDLE_VALUE);
  const std::pair<std::wstring, const wchar_t*> places[] = {
      {work_folder(), L"Aux"},  {work_folder(), L"COM1"},   {work_folder(), L"nul"},  {work_folder(), L"CON"},
      {work_folder(), L"LPT1"}, {work_folder(), L"CONIN$"}, {L"\\\\.\\pipe", L"qvr"}, {L"\\\\.", L"COM1"},
  };
  for (const auto& [folder, name] : places) {
    SCOPED_TRACE(narrow(name));
    Bstr in(folder), of(name);
    VARIANT_BOOL saved = VARIANT_TRUE, loaded = VARIANT_TRUE;
    const HRESULT saving = early->Guardar(&id, &in, &of, &saved);
    expect_same(late.call(L"Guardar", {id.get(), folder, name}), saving, early_result(saved), "BOOL false");
    const HRESULT loading = early->Crear(&id, &in, &of, &loaded);
    expect_same(late.call(L"Crear", {id.get(), folder, name}), loading, early_result(loaded), "BOOL false");
    const Text saving_refused = u"QVRcfp.Guardar: 75 Path/File access error",
               loading_refused = u"QVRcfp.Crear: 75 Path/File access error";
    EXPECT_EQ(traced(), (Traces{saving_refused, saving_refused, loading_refused, loading_refused}));
    assign_both();
  }
  EXPECT_TRUE(CloseHandle(pipe));
}

}  // namespace
}  // namespace qvr::tests
