#include "services/builtin_error_report.h"

#include <gtest/gtest.h>

#include "support/rows.h"
#include "support/test_thread.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

using services::AdoError;
using services::BuiltinErrorReport;
using services::ErrorNotice;

ErrorNotice notice_of(Engine motor, FailureDetail failure, std::vector<AdoError> errors = {}) {
  ErrorNotice notice;
  notice.failure = std::move(failure);
  notice.motor = motor;
  notice.label = u"EjecutarComandos";
  notice.errors = std::move(errors);
  return notice;
}

// The one box that the report shows.
Text box_for(const ErrorNotice& notice) {
  TestThread thread;
  thread.boxes.answer(BoxAnswer::Ok);
  BuiltinErrorReport report(thread.boxes);
  report.Informar(notice);
  EXPECT_EQ(thread.log.take().at(0).substr(0, 7), "Box OK:");
  return thread.boxes.shown.at(0);
}

TEST(BuiltinErrorReport, ShowsAFailureWithoutDatabaseErrors) {
  EXPECT_EQ(box_for(notice_of(Engine::Jet, {13, u"Type mismatch", u"QVRlib21"})),
            u"Error indeterminado\r\n\r\nError 13: Type mismatch (QVRlib21)\r\n\r\nM\u00e9todo: EjecutarComandos");
  EXPECT_EQ(box_for(notice_of(Engine::None, {429, u"No object", u""})),
            u"Error indeterminado\r\n\r\nError 429: No object\r\n\r\nM\u00e9todo: EjecutarComandos");
}

TEST(BuiltinErrorReport, ShowsADuplicateRecord) {
  const FailureDetail failure{-2147217873, u"Duplicate key", u"Provider"};
  EXPECT_EQ(box_for(
                notice_of(Engine::SqlServer, failure, {{-2147217873, u"Duplicate key", u"Provider", u"23000", 2627}})),
            u"Registro duplicado\r\n\r\nError -2147217873: Duplicate key (Provider)\r\n\r\n"
            u"M\u00e9todo: EjecutarComandos");
}

TEST(BuiltinErrorReport, ShowsAMissingServer) {
  const FailureDetail failure{-2147467259, u"Server not there", u"Provider"};
  EXPECT_EQ(box_for(notice_of(Engine::Oracle, failure, {{-2147467259, u"Server not there", u"Provider", u"", 12154}})),
            u"Servidor no encontrado\r\n\r\nError -2147467259: Server not there (Provider)\r\n\r\n"
            u"M\u00e9todo: EjecutarComandos");
}

TEST(BuiltinErrorReport, ShowsEveryErrorOfTheConnectionInOrder) {
  const FailureDetail failure{5, u"first", u"P"};
  const Text box = box_for(
      notice_of(Engine::SqlServer, failure,
                {{5, u"first", u"P", u"", 0}, {6, u"second", u"P", u"", 0}, {7, u"third", u"", u"", 2601}}));
  EXPECT_EQ(box,
            u"Registro duplicado\r\n\r\nError 5: first (P)\r\nError 6: second (P)\r\nError 7: third\r\n\r\n"
            u"M\u00e9todo: EjecutarComandos");
}

struct Kind {
  const char* name;
  Engine motor;
  std::int32_t native;
  TextView sql_state, caption;
};

constexpr TextView kDuplicate = u"Registro duplicado", kServer = u"Servidor no encontrado",
                   kUnknown = u"Error indeterminado";
constexpr Kind kKinds[] = {
    {"Jet duplicate", Engine::Jet, -1605, u"", kDuplicate},
    {"Jet duplicate of a later version", Engine::Jet, -105121349, u"", kDuplicate},
    {"Jet no server", Engine::Jet, -1811, u"", kServer},
    {"SQL Server duplicate index", Engine::SqlServer, 2601, u"", kDuplicate},
    {"SQL Server duplicate key", Engine::SqlServer, 2627, u"", kDuplicate},
    {"SQL Server no server", Engine::SqlServer, 17, u"", kServer},
    {"SQL Server no server by name", Engine::SqlServer, 53, u"", kServer},
    {"Oracle duplicate", Engine::Oracle, 1, u"", kDuplicate},
    {"Oracle no service name", Engine::Oracle, 12154, u"", kServer},
    {"Oracle no answer in time", Engine::Oracle, 12170, u"", kServer},
    {"Oracle no listener for the service", Engine::Oracle, 12514, u"", kServer},
    {"Oracle timed out", Engine::Oracle, 12535, u"", kServer},
    {"Oracle no listener", Engine::Oracle, 12541, u"", kServer},
    {"Jet with a number of SQL Server", Engine::Jet, 2627, u"", kUnknown},
    {"SQL Server with a number of Oracle", Engine::SqlServer, 1, u"", kUnknown},
    {"Oracle with a number of SQL Server", Engine::Oracle, 2601, u"", kUnknown},
    {"no engine with a number of SQL Server", Engine::None, 2627, u"", kUnknown},
    {"unknown engine with a number of Oracle", Engine{99}, 1, u"", kUnknown},
    {"state of a duplicate", Engine::None, 0, u"23505", kDuplicate},
    {"state of a duplicate of Jet", Engine::Jet, 0, u"3022", kDuplicate},
    {"state without a connection", Engine::SqlServer, 0, u"08001", kServer},
    {"state of a refused connection", Engine::Oracle, 0, u"08004", kServer},
    {"state of a lost connection", Engine::None, 0, u"08S01", kServer},
    {"state in small letters", Engine::None, 0, u"08s01", kServer},
    {"state without a driver", Engine::None, 0, u"IM002", kServer},
    {"another state", Engine::None, 0, u"42000", kUnknown},
    {"neither number nor state", Engine::None, 0, u"", kUnknown},
};

using KindOfError = Rows<testing::Test, Kind>;

TEST_P(KindOfError, IsToldByEngine) {
  const Kind& row = GetParam();
  const Text text = services::error_report_text(
      notice_of(row.motor, {5, u"d", u""}, {{5, u"d", u"", Text(row.sql_state), row.native}}));
  EXPECT_EQ(text, join({row.caption, u"\r\n\r\nError 5: d\r\n\r\nM\u00e9todo: EjecutarComandos"}));
}

INSTANTIATE_TEST_SUITE_P(, KindOfError, testing::ValuesIn(kKinds), row_name);

TEST(BuiltinErrorReport, AbbreviatesALongCommand) {
  ErrorNotice notice = notice_of(Engine::SqlServer, {5, u"d", u"s"});
  notice.label = u"Ejecutar1Comando: INSERT\r\nINTO " + Text(1000, u'x');
  const Text head = u"Ejecutar1Comando: INSERT INTO ";
  EXPECT_EQ(box_for(notice), u"Error indeterminado\r\n\r\nError 5: d (s)\r\n\r\nM\u00e9todo: " + head +
                                 Text(250 - head.size(), u'x') + u"\r\n\r\n...\r\n\r\n" + Text(250, u'x'));
}

TEST(BuiltinErrorReport, NamesTheObjectBeforeTheMethod) {
  ErrorNotice notice = notice_of(Engine::SqlServer, {2812, u"No procedure", u"P"},
                                 {{2812, u"No procedure", u"P", u"", 2812}, {1, u"also", u"", u"", 0}});
  notice.label = u"EjecutarProc";
  notice.object = u"dbo.Alta";
  EXPECT_EQ(box_for(notice),
            u"Error indeterminado\r\n\r\nError 2812: No procedure (P)\r\nError 1: also\r\n\r\n"
            u"Objeto: dbo.Alta\r\nM\u00e9todo: EjecutarProc");
  notice.errors.clear();
  notice.captions.object = u"Object";
  notice.object = Text(600, u'x');
  EXPECT_EQ(box_for(notice), u"Error indeterminado\r\n\r\nError 2812: No procedure (P)\r\n\r\nObject: " +
                                 Text(250, u'x') + u"\r\n\r\n...\r\n\r\n" + Text(250, u'x') +
                                 u"\r\nM\u00e9todo: EjecutarProc");
}

TEST(BuiltinErrorReport, UsesTheCaptionsOfTheNotice) {
  ErrorNotice notice = notice_of(Engine::SqlServer, {5, u"d", u"s"}, {{5, u"d", u"s", u"", 17}});
  notice.captions.server_not_found = u"No server";
  notice.captions.method = u"Method";
  EXPECT_EQ(box_for(notice), u"No server\r\n\r\nError 5: d (s)\r\n\r\nMethod: EjecutarComandos");
}

TEST(Captions, AreTheFixedFive) {
  const services::Captions captions;
  EXPECT_EQ(captions.server_not_found, u"Servidor no encontrado");
  EXPECT_EQ(captions.duplicate_record, u"Registro duplicado");
  EXPECT_EQ(captions.unknown_error, u"Error indeterminado");
  EXPECT_EQ(captions.method, u"M\u00e9todo");
  EXPECT_EQ(captions.object, u"Objeto");
}

}  // namespace
}  // namespace qvr::tests
