// A host's own command, with parameters that AgregarParametroADO has appended to it, executed on the server.
#include "automation/parameter_host.h"
#include "servers/procedures/server_procedures.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

class AppendedParameters : public ServerProcedures {
 protected:
  LateObject command_for(const wchar_t* procedure) const {
    LateObject command(L"ADODB.Command");
    EXPECT_EQ(command.put(L"ActiveConnection", connection.get()).result, S_OK);
    EXPECT_EQ(command.put(L"CommandText", procedure).result, S_OK);
    EXPECT_EQ(command.put(L"CommandType", 4).result, S_OK);
    return command;
  }

  // Appends by both kinds of host, each to a command of its own, executes, and gives each parameter's value.
  std::string executed(const wchar_t* procedure, const std::vector<ParameterRequest>& requests) const {
    const LateObject early_command = command_for(procedure), late_command = command_for(procedure);
    for (const ParameterRequest& each : requests) {
      EXPECT_EQ(host.append_early(early_command.get(), each), "BOOL true");
      EXPECT_EQ(host.append_late(late_command.get(), each), "BOOL true");
    }
    const std::string values = values_of(early_command);
    EXPECT_EQ(values_of(late_command), values);
    return values;
  }

  ParameterHost host;

 private:
  static std::string values_of(const LateObject& command) {
    const LateAnswer executed = command.call(L"Execute");
    EXPECT_EQ(executed.result, S_OK) << narrow(executed.description);
    std::string values;
    for (int i = 0; i < count_of_parameters(command); ++i) {
      const std::string one = described_parameter(command, i);
      values += (i > 0 ? "; " : "") + one.substr(one.rfind(", ") + 2);
    }
    return values;
  }
};

struct Sent {
  const char* name;
  ByServer type;
  const wchar_t* requested;
  Var value, width;
  const wchar_t* condition;  // on what arrived, `dato`
  const char* held;
};

const Sent kSent[] = {
    {"INT", L"int", L"INT", -7, 0, L"dato = -7", "I4 -7"},
    {"BIT", {L"bit(1)", L"boolean"}, L"BIT", true, 0, L"dato = true", "BOOL true"},
    {"REAL", {L"float", L"real"}, L"REAL", 0.5, 0, L"dato = 0.5", "R4 0.5"},
    {"NVARCHAR", L"varchar(50)", L"NVARCHAR", L"\u0141ukasz \U0001F600", 50,
     L"md5(dato) = md5('\u0141ukasz \U0001F600')", "BSTR \u0141ukasz \U0001F600"},
    {"DATETIME",
     {L"datetime", L"timestamp"},
     L"DATETIME",
     Var::date(40548.5),
     0,
     L"dato = timestamp '2011-01-05 12:00:00'",
     "DATE 40548.500000"},
    {"Null", L"varchar(50)", L"NVARCHAR", Var::null(), 50, L"dato is null", "Null"},
};

TEST_F(AppendedParameters, SendEachType) {
  host.use(2);
  for_rows_here(kSent, [&](const Sent& row) {
    define(L"uno", std::wstring(L"in dato ") + row.type.here(),
           std::wstring(L"select case when ") + row.condition + L" then 0 else 1 end into r;");
    EXPECT_EQ(executed(L"uno", {{L"INT", L"r", Var::missing(), 0, 2}, {row.requested, L"dato", row.value, row.width}}),
              std::string("I4 0; ") + row.held);
  });
}

struct Received {
  const char* name;
  ByServer type;
  const wchar_t* requested;
  Var width;
  const wchar_t* expression;
  const char* value;
};

const Received kReceived[] = {
    {"INT", L"int", L"INT", 0, L"-7", "I4 -7"},
    {"BIT", {nullptr, L"boolean"}, L"BIT", 0, L"true", "BOOL true"},
    {"REAL", {L"float", L"real"}, L"REAL", 0, L"0.5", "R4 0.5"},
    {"NVARCHAR", {nullptr, L"varchar"}, L"NVARCHAR", 50, L"'\u0141ukasz \U0001F600'", "BSTR \u0141ukasz \U0001F600"},
    {"DATETIME", {nullptr, L"timestamp"}, L"DATETIME", 0, L"timestamp '2011-01-05 12:00:00'", "DATE 40548.500000"},
};

TEST_F(AppendedParameters, ReceiveEachType) {
  host.use(2);
  for_rows_here(kReceived, [&](const Received& row) {
    define(L"uno", std::wstring(L"out dato ") + row.type.here(),
           std::wstring(L"select ") + row.expression + L" into dato;");
    const ParameterRequest returned{L"INT", L"r", Var::missing(), 0, 2};
    EXPECT_EQ(executed(L"uno", {returned, {row.requested, L"dato", Var::missing(), row.width, 2}}),
              std::string("I4 0; ") + row.value);
  });
}

TEST_F(AppendedParameters, GoBothWays) {
  host.use(2);
  define(L"doble", L"inout dato int, in otro int", L"select dato * otro into dato;");
  EXPECT_EQ(executed(L"doble",
                     {{L"INT", L"r", Var::missing(), 0, 2}, {L"INT", L"dato", 21, 0, 3}, {L"INT", L"otro", 2}}),
            "I4 0; I4 42; I4 2");
}

// Oracle's types, by which numbers are decimals; its procedures return no value.
TEST_F(AppendedParameters, SendOraclesTypes) {
  host.use(3);
  define(L"varios", L"in n decimal(15,0), in d double precision, in t varchar(50), inout m decimal(15,0)",
         L"select case when n = 5 and d = 0.1 and t = 'Ana' then 0 else 1 end into r; select m + 1 into m;");
  EXPECT_EQ(executed(L"varios", {{L"INT", L"nada", Var::missing(), 0, 4},
                                 {L"INT", L"r", Var::missing(), 0, 2},
                                 {L"INT", L"n", 5},
                                 {L"REAL", L"d", 0.1},
                                 {L"NVARCHAR", L"t", L"Ana", 50},
                                 {L"INT", L"m", 7, 0, 3}}),
            "DECIMAL 0; DECIMAL 5; R8 0.100000; BSTR Ana; DECIMAL 8");
}

}  // namespace
}  // namespace qvr::tests
