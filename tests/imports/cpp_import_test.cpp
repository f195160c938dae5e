// The classes of the C++ import as a program uses them: values, what is left out, failures, events; and their answers
// beside those of late calls.
#include <gtest/gtest.h>

#include "QVRlib21.hpp"
#include "automation/database.h"
#include "automation/host.h"
#include "automation/library.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using namespace qvrlib21;

std::wstring late_text(const LateAnswer& answer) { return answer.value.text(); }

TEST(CppImportValue, KeepsItsType) {
  EXPECT_TRUE(Value().is_empty());
  EXPECT_TRUE(Value(Null()).is_null());
  EXPECT_EQ(Value(true).get().vt, VT_BOOL);
  EXPECT_EQ(Value(true).get().boolVal, VARIANT_TRUE);
  EXPECT_EQ(Value(short{7}).get().vt, VT_I2);
  EXPECT_EQ(Value(7).get().vt, VT_I4);
  EXPECT_EQ(Value(7L).get().vt, VT_I4);
  EXPECT_EQ(Value(7.5).get().vt, VT_R8);
  EXPECT_EQ(Value(Date{45352}).get().vt, VT_DATE);
  EXPECT_EQ(Value(L"text").get().vt, VT_BSTR);
  EXPECT_EQ(Value::missing().get().vt, VT_ERROR);
  EXPECT_EQ(Value({1, L"two"}).get().vt, VT_ARRAY | VT_VARIANT);
}

TEST(CppImportValue, IsReadAsWhatItHolds) {
  EXPECT_EQ(Value(std::wstring(L"a\0b", 3)).text(), std::wstring(L"a\0b", 3));
  EXPECT_EQ(Value(-3).number(), -3);
  EXPECT_EQ(Value(7).text(), L"7");
  EXPECT_TRUE(Value(-1).truth());
  EXPECT_EQ(Value(Date{45352.5}).date().days, 45352.5);
  const std::vector<Value> list = Value({1, L"two", Value({3.5})}).list();
  ASSERT_EQ(list.size(), 3u);
  EXPECT_EQ(list[0].number(), 1);
  EXPECT_EQ(list[1].text(), L"two");
  EXPECT_EQ(list[2].list().at(0).number(), 3.5);
  EXPECT_TRUE(Value(std::vector<Value>()).list().empty());
}

TEST(CppImportValue, IsCopiedWhole) {
  Value first({L"a"});
  const Value second = first;
  first = Value(2);
  EXPECT_EQ(second.list().at(0).text(), L"a");
  EXPECT_EQ(first.number(), 2);
}

TEST(CppImportValue, RefusesWhatItIsNot) {
  EXPECT_THROW(Value(L"word").number(), Failure);
  EXPECT_THROW(Value(Null()).text(), Failure);
  EXPECT_THROW(Value(1).list(), Failure);
}

TEST(CppImportClasses, AnswerAsLateCallsDo) {
  library();
  const auto cfp = create<QVRcfp>();
  const LateObject late(L"QVRlib21.QVRcfp");
  ASSERT_TRUE(cfp.Asignar(L"id", MotorBDOracle, L"p", L"d", L"c", L"ua", L"ka", L"uc", L"kc", L"o"));
  ASSERT_EQ(late.call(L"Asignar", {L"id", 3, L"p", L"d", L"c", L"ua", L"ka", L"uc", L"kc", L"o"}).result, S_OK);
  EXPECT_EQ(cfp.MotorBD(), MotorBDOracle);
  EXPECT_EQ(cfp.CadenaADO(L"id", true), late_text(late.call(L"CadenaADO", {L"id", true})));
  EXPECT_EQ(cfp.CadenaADO(L"id", false), late_text(late.call(L"CadenaADO", {L"id", false})));
  EXPECT_NE(cfp.CadenaADO(L"id", true), cfp.CadenaADO(L"id", false));
  EXPECT_EQ(cfp.ClaveAdm(L"id"), L"ka");
  EXPECT_EQ(cfp.ExpSQL(L"it's"), late_text(late.call(L"ExpSQL", {L"it's"})));
  EXPECT_EQ(cfp.ExpSQL(Null()), L"Null");
  EXPECT_EQ(cfp.SqlInsert2(L"T", {L"A", L"B"}, {1, Null()}), L"INSERT INTO T(A,B) VALUES( 1,Null)");
  EXPECT_EQ(cfp.TextoAValor(L"N", L"2").number(), 2);
  EXPECT_EQ(cfp.CadenaParaLikeSQL(L"a*"), late_text(late.call(L"CadenaParaLikeSQL", {L"a*"})));
  EXPECT_EQ(cfp.CadenaParaLikeSQL(L"a*", true, true), late_text(late.call(L"CadenaParaLikeSQL", {L"a*", true, true})));
}

TEST(CppImportClasses, ReachTheContractOfQueries) {
  library();
  const auto query = create<cSQL20>();
  ASSERT_TRUE(query.Crear(MotorBDJet, L"Q", false, {L"C.Name", L"T+", L"Sum(L.Amount)", L"N>Total"}, L"C, L",
                          Value::missing(), L"", 1));
  EXPECT_TRUE(query.InterpretarBusqueda(L"Name", L"ana"));
  EXPECT_TRUE(query.AmpliarCondicionHaving(L"Sum(L.Amount)>5"));
  EXPECT_EQ(query.ParteWhere(true), L"(C.Name LIKE '%ana%')");
  EXPECT_EQ(query.Name(), L"cSQL20");
  query.Tag(L"mine");
  query.TOP(5);
  EXPECT_EQ(query.Tag(), L"mine");
  EXPECT_EQ(query.TOP(), 5);
  const auto second = create<uSQL20>();
  EXPECT_EQ(second.Name(), L"uSQL20");
  EXPECT_FALSE(second.Creado());
  const auto copy = create<cSQL20>();
  ASSERT_TRUE(copy.CrearDesdeTextoDefinicion(query.TextoDefinicion()));
  EXPECT_EQ(copy.CriterioActual(), query.CriterioActual());
}

TEST(CppImportClasses, ReadAndWriteIndexedProperties) {
  library();
  const auto properties = create<QVRprp>();
  properties.CreaPropiedad(L"T", L"Title", L"Orders");
  properties.Item(L"Title", L"Offers");
  EXPECT_EQ(properties.Item(0).text(), L"Offers");
  EXPECT_EQ(properties.NombrePropiedad(0), L"Title");
}

TEST(CppImportClasses, ThrowWhatTheLibraryRaises) {
  library();
  expect_any_traces();
  const auto cfp = create<QVRcfp>();
  ASSERT_TRUE(cfp.Asignar(L"id", MotorBDJet, L"", L"", L"", L"", L"", L"", L"", L""));
  try {
    cfp.sqlConcatenar(1);
    FAIL() << "nothing was thrown";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.code(), static_cast<HRESULT>(0x800A000D));
    EXPECT_EQ(failure.description(), L"Type mismatch");
  }
}

// An error that nobody asked for stays with the thread: it tells nothing of later calls.
void leave_error(const wchar_t* description) {
  ICreateErrorInfo* made = nullptr;
  IErrorInfo* info = nullptr;
  BSTR text = SysAllocString(description);
  ASSERT_EQ(CreateErrorInfo(&made), S_OK);
  ASSERT_EQ(made->SetDescription(text), S_OK);
  ASSERT_EQ(made->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&info)), S_OK);
  ASSERT_EQ(SetErrorInfo(0, info), S_OK);
  info->Release();
  made->Release();
  SysFreeString(text);
}

TEST(CppImportValue, DoesNotTakeAnErrorOfOthersForItsOwn) {
  leave_error(L"of an earlier call");
  try {
    Value(L"word").number();
    FAIL() << "nothing was thrown";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.code(), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(failure.description(), L"");
  }
  SetErrorInfo(0, nullptr);
}

TEST(CppImportClasses, TellTheirOwnErrorAfterOneOfOthers) {
  library();
  expect_any_traces();
  const auto cfp = create<QVRcfp>();
  leave_error(L"of an earlier call");
  try {
    cfp.sqlConcatenar(1);
    FAIL() << "nothing was thrown";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.description(), L"Type mismatch");
  }
}

// An object that has no errors of its own to tell.
struct Silent final : IUnknown {
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
  ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
};

TEST(CppImportClasses, ReadNoErrorOfAnObjectThatTellsNone) {
  Silent silent;
  leave_error(L"of an earlier call");
  try {
    detail::check(detail::Reference<IUnknown>(&silent), E_FAIL);
    FAIL() << "nothing was thrown";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.code(), E_FAIL);
    EXPECT_EQ(failure.description(), L"");
  }
  SetErrorInfo(0, nullptr);
}

TEST(CppImportClasses, AreMadeFromAFileWithoutRegistration) {
  const LibraryFile file(beside_program(L"QVRlib21.dll"));
  EXPECT_EQ(file.create<Ov>().PathCompleto(), beside_program(L"QVRlib21.dll"));
  EXPECT_THROW(LibraryFile(beside_program(L"missing.dll")), Failure);
}

struct CppImportEvents : testing::Test {
  void SetUp() override {
    library();
    test_ado();
  }

  bool run(const std::wstring& commands) const {
    return script.EjecutarComandos(L"id", MotorBDSQLServer, commands, database.connection_string());
  }

  Database database;
  QVRScr script = create<QVRScr>();
  std::vector<std::wstring> heard;
  ScriptEvents all{[this](const std::wstring& message) { heard.push_back(message); },
                   [this](bool success) { heard.push_back(success ? L"done" : L"failed"); }};
};

TEST_F(CppImportEvents, ArriveInOrderUntilTheConnectionEnds) {
  {
    const ScriptEventsConnection connection(script, all);
    EXPECT_TRUE(run(L"CREATE TABLE T (A INTEGER)\r\nGO\r\n"));
  }
  EXPECT_EQ(heard, (std::vector<std::wstring>{L"Counting commands...", L"Commands executed: 0/1", L"done"}));
  heard.clear();
  EXPECT_TRUE(run(L"CREATE TABLE U (A INTEGER)\r\nGO\r\n"));
  EXPECT_TRUE(heard.empty());
}

TEST_F(CppImportEvents, MayThrowAndBeLeftOut) {
  const ScriptEventsConnection throwing(
      script, {[](const std::wstring&) { throw std::runtime_error("a host's own failure"); }, nullptr});
  const ScriptEventsConnection connection(script, all);
  EXPECT_TRUE(run(L"CREATE TABLE T (A INTEGER)\r\nGO\r\n"));
  EXPECT_EQ(heard.back(), L"done");
}

TEST_F(CppImportEvents, GiveTheShownTextBack) {
  std::wstring shown = L"Installing ";
  EXPECT_TRUE(script.EjecutarComandos(L"id", MotorBDSQLServer, L"CREATE TABLE T (A INTEGER)\r\nGO\r\n",
                                      database.connection_string(), &shown));
  EXPECT_EQ(shown, L"Installing ");
  shown.clear();
  EXPECT_TRUE(script.EjecutarComandos(L"id", MotorBDSQLServer, L"CREATE TABLE U (A INTEGER)\r\nGO\r\n",
                                      database.connection_string(), &shown));
  EXPECT_EQ(shown, L"Commands executed: ");
}

}  // namespace
}  // namespace qvr::tests
