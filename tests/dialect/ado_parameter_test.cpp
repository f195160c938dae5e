#include "dialect/ado_parameter.h"

#include "dialect/dialect_fixture.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using dialect::ParameterRequest;
using tests::PrintTo;

class AdoParameterTest : public DialectTest {
 protected:
  AdoParameterTest() {
    thread.load_language(u"0");
    command = thread.ado.new_command();
    thread.log.take();
  }

  bool append(Engine engine, const ParameterRequest& request) {
    return dialect::AgregarParametroADO(engine, command.get(), request);
  }

  std::unique_ptr<services::AdoCommand> command;
};

// The whole life of a parameter of this type.
Lines parameter_log(const Lines& type, const Lines& name_and_value = {"Parameter.Name: @p", "Parameter.Direction: 1"}) {
  Lines log = {"new Parameter"};
  log.insert(log.end(), type.begin(), type.end());
  log.insert(log.end(), name_and_value.begin(), name_and_value.end());
  log.insert(log.end(), {"Parameters.Append", "Parameter released"});
  return log;
}

ParameterRequest request_for(TextView type, std::int32_t width = 0) { return {type, u"@p", Missing{}, width}; }

struct AdoParameterTypeRow {
  const char* name;
  TextView type;
  Lines sql_server, oracle;
};
const AdoParameterTypeRow kAdoParameterTypeRows[] = {
    {"INT",
     u"INT",
     {"Parameter.Type: 3", "Parameter.Precision: 10"},
     {"Parameter.Type: 131", "Parameter.Precision: 15", "Parameter.NumericScale: 0"}},
    {"BIT",
     u"BIT",
     {"Parameter.Type: 11"},
     {"Parameter.Type: 131", "Parameter.Precision: 15", "Parameter.NumericScale: 0"}},
    {"REAL", u"REAL", {"Parameter.Type: 4"}, {"Parameter.Type: 5", "Parameter.Precision: 15"}},
    {"NVARCHAR",
     u"NVARCHAR",
     {"Parameter.Type: 202", "Parameter.Size: 50"},
     {"Parameter.Type: 200", "Parameter.Size: 100"}},
    {"NVARCHAR in lower case",
     u"nvarchar",
     {"Parameter.Type: 202", "Parameter.Size: 50"},
     {"Parameter.Type: 200", "Parameter.Size: 100"}},
    {"DATETIME", u"DATETIME", {"Parameter.Type: 135"}, {"Parameter.Type: 135"}},
    {"DATETIME in mixed case", u"DateTime", {"Parameter.Type: 135"}, {"Parameter.Type: 135"}},
    {"INT in lower case",
     u"int",
     {"Parameter.Type: 3", "Parameter.Precision: 10"},
     {"Parameter.Type: 131", "Parameter.Precision: 15", "Parameter.NumericScale: 0"}},
};

using AdoParameterType = Rows<AdoParameterTest, AdoParameterTypeRow>;

TEST_P(AdoParameterType, FitsTheEngine) {
  const AdoParameterTypeRow& row = GetParam();
  EXPECT_TRUE(append(Engine::SqlServer, request_for(row.type, 50)));
  EXPECT_EQ(thread.log.take(), parameter_log(row.sql_server));
  EXPECT_TRUE(append(Engine::Oracle, request_for(row.type, 50)));
  EXPECT_EQ(thread.log.take(), parameter_log(row.oracle));
  for (const Engine engine : {Engine::Jet, kNoEngine, Engine{99}}) {
    EXPECT_TRUE(append(engine, request_for(row.type, 50)));
    EXPECT_EQ(thread.log.take(), parameter_log({}));
  }
}

INSTANTIATE_TEST_SUITE_P(, AdoParameterType, ::testing::ValuesIn(kAdoParameterTypeRows), row_name);

TEST_F(AdoParameterTest, HasTheWidthThatTheEngineCounts) {
  struct Row {
    std::int32_t width;
    std::string sql_server, oracle;
  };
  constexpr std::int32_t kHalf = INT32_MAX / 2;
  const Row kRows[] = {{0, "0", "0"},
                       {1, "1", "2"},
                       {-1, "-1", "-2"},
                       {4000, "4000", "8000"},
                       {kHalf, "1073741823", "2147483646"},
                       {-kHalf - 1, "-1073741824", "-2147483648"}};
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.width);
    EXPECT_TRUE(append(Engine::SqlServer, request_for(u"NVARCHAR", row.width)));
    EXPECT_EQ(thread.log.take(), parameter_log({"Parameter.Type: 202", "Parameter.Size: " + row.sql_server}));
    EXPECT_TRUE(append(Engine::Oracle, request_for(u"NVARCHAR", row.width)));
    EXPECT_EQ(thread.log.take(), parameter_log({"Parameter.Type: 200", "Parameter.Size: " + row.oracle}));
  }
  for (const std::int32_t width : {kHalf + 1, INT32_MAX, INT32_MIN}) {
    SCOPED_TRACE(width);
    EXPECT_TRUE(append(Engine::SqlServer, request_for(u"NVARCHAR", width)));
    EXPECT_EQ(thrown_by([&] { return append(Engine::Oracle, request_for(u"NVARCHAR", width)); }), "RuntimeFailure 6");
    EXPECT_TRUE(append(Engine::Oracle, request_for(u"INT", width))) << "a width that no one asked for";
  }
}

TEST_F(AdoParameterTest, HasAValueOnlyWhenOneWasGiven) {
  struct Row {
    Value value;
    Lines log;
  };
  const Row kRows[] = {
      {Missing{}, {}},
      {5, {"Parameter.Value: Long 5"}},
      {u"Ana", {"Parameter.Value: String Ana"}},
      {Null{}, {"Parameter.Value: Null"}},
      {Empty{}, {"Parameter.Value: Empty"}},
      {false, {"Parameter.Value: Boolean False"}},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.log.empty() ? "missing" : row.log[0]);
    for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle}) {
      Lines expected = {"Parameter.Name: nombre", "Parameter.Direction: 3"};
      expected.insert(expected.end(), row.log.begin(), row.log.end());
      EXPECT_TRUE(append(engine, {u"DATETIME", u"nombre", row.value, 0, 3}));
      EXPECT_EQ(thread.log.take(),
                parameter_log(engine == Engine::Jet ? Lines() : Lines{"Parameter.Type: 135"}, expected));
    }
  }
}

TEST_F(AdoParameterTest, OracleHasNoReturnValue) {
  const ParameterRequest returned{u"INT", u"@r", Missing{}, 0, 4}, strange{u"no type", u"@r", Missing{}, 0, 4};
  EXPECT_TRUE(append(Engine::Oracle, returned));
  EXPECT_TRUE(append(Engine::Oracle, strange));
  EXPECT_TRUE(dialect::AgregarParametroADO(Engine::Oracle, nullptr, returned));
  EXPECT_EQ(thread.log.take(), Lines());
  const Lines kNamed = {"Parameter.Name: @r", "Parameter.Direction: 4"};
  EXPECT_TRUE(append(Engine::SqlServer, returned));
  EXPECT_EQ(thread.log.take(), parameter_log({"Parameter.Type: 3", "Parameter.Precision: 10"}, kNamed));
  EXPECT_TRUE(append(Engine::Jet, returned));
  EXPECT_EQ(thread.log.take(), parameter_log({}, kNamed));
}

TEST_F(AdoParameterTest, AnUnexpectedTypeIsToldInTheUsersLanguage) {
  struct Row {
    TextView language;
    std::string message;
  };
  const Row kRows[] = {{u"0", "Tipo inesperado en AgregarParametroADO: @p (TEXT)"},
                       {u"1", "Unexpected type in AgregarParametroADO: @p (TEXT)"},
                       {u"2", "Tipo inesperado en AgregarParametroADO: @p (TEXT)"},
                       {u"3", "Type inattendu dans AgregarParametroADO: @p (TEXT)"}};
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.message);
    thread.load_language(row.language);
    for (const Engine engine : {Engine::SqlServer, Engine::Oracle}) {
      thread.boxes.answer(BoxAnswer::Ok);
      EXPECT_FALSE(append(engine, request_for(u"TEXT")));
      EXPECT_EQ(thread.log.take(), (Lines{"new Parameter", "Box OK: " + row.message, "Parameter released"}));
    }
    EXPECT_TRUE(append(Engine::Jet, request_for(u"TEXT")));
    EXPECT_EQ(thread.log.take(), parameter_log({}));
  }
}

TEST_F(AdoParameterTest, TypesAreWholeNames) {
  for (const TextView type : {u"", u"INT ", u" INT", u"INTEGER", u"VARCHAR", u"NVARCHAR(50)", u"BI"}) {
    SCOPED_TRACE(to_utf8(type));
    thread.boxes.answer(BoxAnswer::Ok);
    EXPECT_FALSE(append(Engine::SqlServer, request_for(type)));
    EXPECT_EQ(thread.log.take()[1], "Box OK: Tipo inesperado en AgregarParametroADO: @p (" + to_utf8(type) + ")");
  }
}

TEST_F(AdoParameterTest, WithoutACommandItIsNotSet) {
  for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle}) {
    SCOPED_TRACE(number_of(engine));
    EXPECT_EQ(thrown_by([&] { return dialect::AgregarParametroADO(engine, nullptr, request_for(u"BIT")); }),
              "RuntimeFailure 91");
    EXPECT_EQ(thread.log.take().back(), "Parameter released");
  }
}

TEST_F(AdoParameterTest, IsAnInputParameterUnlessToldOtherwise) { EXPECT_EQ(ParameterRequest().Direction, 1); }

}  // namespace
}  // namespace qvr::tests
