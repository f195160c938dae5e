// Parameters that a host has appended to its own command: what arrives there.
#include "automation/parameter_host.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

struct AdoParameter : testing::Test {
  ParameterHost host;
};

TEST_F(AdoParameter, CanBeMadeOnItsOwn) {
  const LateObject made(L"ADODB.Parameter"), command(L"ADODB.Command");
  EXPECT_EQ(made.put(L"Type", 3).result, S_OK);
  EXPECT_EQ(made.put(L"Name", L"@p").result, S_OK);
  const LateObject all{ComPtr<IDispatch>(command.get(L"Parameters").value.raw().pdispVal)};
  EXPECT_EQ(all.call(L"Append", {made.get()}).result, S_OK);
  EXPECT_EQ(described_parameter(command, 0), "@p: type 3, size 0, precision 0, scale 0, direction 1, Empty");
}

struct Request {
  const char* name;
  ParameterRequest request;
  const char* expected;
  int engine = 2;
};

const Request kRequests[] = {
    {"INT", {L"INT"}, "@p: type 3, size 0, precision 10, scale 0, direction 1, I4 5"},
    {"BIT", {L"bit", L"@b", true}, "@b: type 11, size 0, precision 0, scale 0, direction 1, BOOL true"},
    {"REAL", {L"Real", L"@r", 0.5}, "@r: type 4, size 0, precision 0, scale 0, direction 1, R4 0.5"},
    {"NVARCHAR",
     {L"nvarchar", L"@n", L"Ana", 50},
     "@n: type 202, size 50, precision 0, scale 0, direction 1, BSTR Ana"},
    {"DATETIME, both directions",
     {L"DateTime", L"@d", Var::date(40548.5), 0, 3},
     "@d: type 135, size 0, precision 0, scale 0, direction 3, DATE 40548.500000"},
    {"return value", {L"INT", L"", Var::null(), 0, 4}, ": type 3, size 0, precision 10, scale 0, direction 4, Null"},
    {"number with decimals of Oracle",
     {L"int"},
     "@p: type 131, size 0, precision 15, scale 0, direction 1, DECIMAL 5",
     3},
};

using AdoParameterOf = Rows<AdoParameter, Request>;

TEST_P(AdoParameterOf, ThisRequestArrives) {
  host.use(GetParam().engine);
  host.expect_appended(GetParam().request, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(, AdoParameterOf, testing::ValuesIn(kRequests), row_name);

TEST_F(AdoParameter, ArgumentsMayBeLeftOut) {
  host.use(2);
  const LateObject command(L"ADODB.Command");
  const Var target(command.get());
  const auto added = [&](std::vector<Var> arguments) {
    arguments.insert(arguments.begin(), target);
    return describe(host.object().call(L"AgregarParametroADO", std::move(arguments)).value.raw());
  };
  EXPECT_EQ(added({L"INT", L"@a"}), "BOOL true");
  EXPECT_EQ(added({L"NVARCHAR", L"@b", Var::missing(), 7}), "BOOL true");
  EXPECT_EQ(added({L"INT", L"@c", 5, Var::missing(), 3}), "BOOL true");
  const LateAnswer named = host.object().call_named(L"AgregarParametroADO", {L"Direction", L"Ancho"},
                                                    {2, 9, target, L"nvarchar", L"@d"});
  EXPECT_EQ(describe(named.value.raw()), "BOOL true");
  auto* raw = reinterpret_cast<Command*>(command.get());
  Bstr type(L"INT"), name(L"@e");
  VARIANT_BOOL done = 0;
  EXPECT_EQ(host.slots()->AgregarParametroADO(&raw, &type, &name, nullptr, nullptr, nullptr, &done), S_OK);
  EXPECT_EQ(done, VARIANT_TRUE);
  const char* const expected[] = {"@a: type 3, size 0, precision 10, scale 0, direction 1, Empty",
                                  "@b: type 202, size 7, precision 0, scale 0, direction 1, Empty",
                                  "@c: type 3, size 0, precision 10, scale 0, direction 3, I4 5",
                                  "@d: type 202, size 9, precision 0, scale 0, direction 2, Empty",
                                  "@e: type 3, size 0, precision 10, scale 0, direction 1, Empty"};
  ASSERT_EQ(count_of_parameters(command), 5);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(described_parameter(command, i), expected[i]);
  EXPECT_EQ(host.object().call(L"AgregarParametroADO", {target, L"INT"}).result, DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.AgregarParametroADO: -2147352561 The late-bound call was refused"}));
}

TEST_F(AdoParameter, AScriptsVariables) {
  host.use(2);
  const LateObject command(L"ADODB.Command");
  Var target(command.get()), type(L"INT"), name(L"@p"), value(L"7"), width, direction(L"2");
  std::vector<Var> passed;
  for (Var* const each : {&target, &type, &name, &value, &width, &direction}) {
    passed.push_back(Var::by_reference(*each));
  }
  const LateAnswer answer = host.object().call(L"AgregarParametroADO", passed);
  EXPECT_EQ(describe(answer.value.raw()), "BOOL true");
  EXPECT_EQ(described_parameter(command, 0), "@p: type 3, size 0, precision 10, scale 0, direction 2, I4 7");
  EXPECT_EQ(describe(value.raw()) + ", " + describe(width.raw()) + ", " + describe(direction.raw()),
            "BSTR 7, Empty, BSTR 2")
      << "no variable is changed";
}

}  // namespace
}  // namespace qvr::tests
