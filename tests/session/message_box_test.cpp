#include "session/message_box.h"

#include "dialect/dialect_fixture.h"

namespace qvr::tests {
namespace {

class ErrorBoxTest : public DialectTest {
 protected:
  void expect_box(const FailureDetail& failure, TextView text) {
    const auto call = [&] { return show_failure(u"QVRcfp", u"Metodo: @p(INT)", failure), Text(); };
    expect_outcome(told(text), call);
  }
};

TEST_F(ErrorBoxTest, HasThreeLinesInTheUsersLanguage) {
  struct Row {
    TextView language, box;
  };
  constexpr TextView kSpanish = u"Objeto: QVRcfp\r\nM\u00e9todo: Metodo: @p(INT)\r\nError 3708: Mal definido";
  constexpr Row kRows[] = {
      {u"0", kSpanish},
      {u"1", u"Object: QVRcfp\r\nMethod: Metodo: @p(INT)\r\nError 3708: Mal definido"},
      {u"2", kSpanish},
      {u"3", u"Objet: QVRcfp\r\nM\u00e9thode: Metodo: @p(INT)\r\nErreur 3708: Mal definido"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(to_utf8(row.language));
    thread.load_language(row.language);
    expect_box({3708, u"Mal definido", u"ADODB.Parameter"}, row.box);
  }
}

TEST_F(ErrorBoxTest, WritesTheNumberInDecimal) {
  thread.load_language(u"0");
  expect_box({-2147217900, u"", u""}, u"Objeto: QVRcfp\r\nM\u00e9todo: Metodo: @p(INT)\r\nError -2147217900: ");
  expect_box({0, u"a\r\nb", u""}, u"Objeto: QVRcfp\r\nM\u00e9todo: Metodo: @p(INT)\r\nError 0: a\r\nb");
}

}  // namespace
}  // namespace qvr::tests
