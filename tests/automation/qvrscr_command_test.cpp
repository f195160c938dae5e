// What QVRScr does without a script: one command, and the engines' administrators.
#include "automation/both.h"
#include "automation/boxes.h"
#include "automation/database.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

struct QVRScrCommandTest : testing::Test {
  LateObject late{L"QVRlib21.QVRScr"};
  Database database;
};

TEST_F(QVRScrCommandTest, Ejecutar1Comando) {
  const LateObject connection = database.open();
  const LateAnswer ran = late.call(L"Ejecutar1Comando", {connection.get(), L"create table T(N int)", 2});
  Bstr command(L"insert into T values(5)");
  long engine = 2;
  VARIANT_BOOL done = 0;
  auto* raw = reinterpret_cast<Connection*>(connection.get());
  const HRESULT status = late.as<_QVRScr>()->Ejecutar1Comando(&raw, &command, &engine, &done);
  expect_same(ran, status, early_result(done), "BOOL true");
  EXPECT_EQ(database.ask(L"select N from T"), "5");
  connection.call(L"Close");
}

TEST_F(QVRScrCommandTest, Ejecutar1ComandoWithoutAnOpenConnectionReportsAndIsFalse) {
  Person person;
  const LateAnswer nothing = late.call(L"Ejecutar1Comando", {static_cast<IDispatch*>(nullptr), L"select 1", 2});
  EXPECT_EQ(describe(nothing.value.raw()), "BOOL false");
  VARIANT_BOOL done = VARIANT_TRUE;
  EXPECT_EQ(late.as<_QVRScr>()->Ejecutar1Comando(nullptr, nullptr, nullptr, &done), S_OK);
  EXPECT_EQ(done, VARIANT_FALSE);
  const LateObject closed(L"ADODB.Connection");
  EXPECT_EQ(describe(late.call(L"Ejecutar1Comando", {closed.get(), L"select 1", 2}).value.raw()), "BOOL false");
  const LateObject no_connection(L"QVRlib21.Ov");
  EXPECT_EQ(describe(late.call(L"Ejecutar1Comando", {no_connection.get(), L"select 1", 2}).value.raw()), "BOOL false");
  ASSERT_EQ(person.boxes().size(), 4u);
  EXPECT_EQ(person.boxes()[0].text,
            L"Error indeterminado\r\n\r\nError 91: Object variable or With block variable not set (QVRlib21)\r\n\r\n"
            L"M\u00e9todo: Ejecutar1Comando: select 1");
  EXPECT_TRUE(person.boxes()[2].text.starts_with(L"Error indeterminado\r\n\r\nError 3709: "))
      << narrow(person.boxes()[2].text);
  EXPECT_EQ(traced(), (Traces{u"QVRScr.Ejecutar1Comando: 91 Object variable or With block variable not set",
                              u"QVRScr.Ejecutar1Comando: 91 Object variable or With block variable not set",
                              u"QVRScr.Ejecutar1Comando: 3709 told by another component",
                              u"QVRScr.Ejecutar1Comando: 3001 told by another component",
                              u"report_failure: -2147352570 Application-defined or object-defined error"}));
}

TEST_F(QVRScrCommandTest, UsuarioSegunMotor) {
  struct Row {
    long engine;
    const char* expected;
  };
  for (const Row& row : {Row{1, "BSTR Admin"}, {2, "BSTR sa"}, {3, "BSTR System"}, {0, "BSTR "}, {-1, "BSTR "}}) {
    Bstr result;
    long engine = row.engine;
    const HRESULT status = late.as<_QVRScr>()->UsuarioSegunMotor(&engine, &result);
    expect_same(late.call(L"UsuarioSegunMotor", {static_cast<int>(row.engine)}), status, early_result(result),
                row.expected);
  }
}

}  // namespace
}  // namespace qvr::tests
