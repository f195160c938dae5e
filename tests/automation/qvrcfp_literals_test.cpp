// Literals, as both kinds of host get them.
#include "automation/sql_members.h"

namespace qvr::tests {
namespace {

class Literals : public SqlMembers {};

constexpr double kDay = 40548;  // 5 January 2011
constexpr double kMoment = kDay + (14 * 3600 + 7 * 60 + 9) / 86400.0;
const EachEngine kClock{L"Now()", L"GetDate()", L"SYSDATE", undefined()};
const EachEngine kDateLiteral{L"#2011-01-05#", L"{ d '2011-01-05'}", L" TO_DATE('2011-01-05','YYYY-MM-DD') ",
                              undefined()};
const EachEngine kTimeLiteral{L"#14:07:09#", L"{ t '14:07:09'}", L" TO_DATE('14:07:09','HH24:MI:SS') ", undefined()};
const EachEngine kMomentLiteral{L"#2011-01-05 14:07:09#", L"{ ts '2011-01-05 14:07:09'}",
                                L" TO_DATE('2011-01-05 14:07:09','YYYY-MM-DD HH24:MI:SS') ", undefined()};

TEST_F(Literals, ComillasSQL) {
  expect(L"ComillasSQL", &_QVRcfp::ComillasSQL, {L"O'Hara"}, all_engines(L"'O''Hara'"));
  expect(L"ComillasSQL", &_QVRcfp::ComillasSQL, {L""}, all_engines(L"''"));
  expect(L"ComillasSQL", &_QVRcfp::ComillasSQL, {L"\u00f1 \u20ac ''"}, all_engines(L"'\u00f1 \u20ac '''''"));
}

TEST_F(Literals, TextsMayHoldAZero) {
  const std::wstring text(L"a\0'b", 4), literal(L"'a\0''b'", 7);
  Bstr given(text), result;
  EXPECT_EQ(early->ComillasSQL(&given, &result), S_OK);
  EXPECT_EQ(result.text(), literal);
  EXPECT_EQ(late.call(L"ComillasSQL", {text}).value.text(), literal);
}

TEST_F(Literals, Dates) {
  for (const Var& moment : {Var::date(kMoment), Var(L"2011-01-05 14:07:09")}) {
    expect(L"FechaSQL", &_QVRcfp::FechaSQL, {moment}, kDateLiteral);
    expect(L"HoraSQL", &_QVRcfp::HoraSQL, {moment}, kTimeLiteral);
    expect(L"FechaHoraSQL", &_QVRcfp::FechaHoraSQL, {moment}, kMomentLiteral);
    expect(L"FechaSQLv", &_QVRcfp::FechaSQLv, {moment}, kMomentLiteral);
  }
}

TEST_F(Literals, WhatIsNoDateIsNullWithoutAskingForTheEngine) {
  for (const Var& value : {Var(), Var::null(), Var(L"ma\u00f1ana"), Var(40548), Var(2.5), Var(true), Var::nothing(),
                           array_of({L"2011-01-05"})}) {
    SCOPED_TRACE(describe(value.raw()));
    expect(L"FechaSQL", &_QVRcfp::FechaSQL, {value}, all_engines(L"Null"));
    expect(L"HoraSQL", &_QVRcfp::HoraSQL, {value}, all_engines(L"Null"));
    expect(L"FechaHoraSQL", &_QVRcfp::FechaHoraSQL, {value}, all_engines(L"Null"));
    expect(L"FechaSQLv", &_QVRcfp::FechaSQLv, {value}, all_engines(L"Null"));
  }
}

TEST_F(Literals, FechaHoraSQLKnowsTheClock) {
  expect(L"FechaHoraSQL", &_QVRcfp::FechaHoraSQL, {L"ahora"}, kClock);
  expect(L"FechaHoraSQL", &_QVRcfp::FechaHoraSQL, {L"AHORASQL"}, kClock);
  expect(L"FechaSQL", &_QVRcfp::FechaSQL, {L"Ahora"}, all_engines(L"Null"));
}

TEST_F(Literals, FechaSQLvWritesTheNarrowest) {
  expect(L"FechaSQLv", &_QVRcfp::FechaSQLv, {Var::date(kDay)}, kDateLiteral);
  expect(L"FechaSQLv", &_QVRcfp::FechaSQLv, {Var::date(kMoment - kDay)}, kTimeLiteral);
  expect(L"FechaSQLv", &_QVRcfp::FechaSQLv, {Var::date(0)},
         {L"#1899-12-30#", L"{ d '1899-12-30'}", L" TO_DATE('1899-12-30','YYYY-MM-DD') ", undefined()});
}

TEST_F(Literals, LogicoSQL) {
  expect(L"LogicoSQL", &_QVRcfp::LogicoSQL, {true}, {L"True", L"1", L"1", undefined()});
  expect(L"LogicoSQL", &_QVRcfp::LogicoSQL, {false}, {L"False", L"0", L"0", undefined()});
}

TEST_F(Literals, LogicoSQLFromWhatScriptsSendAndWhatOtherLanguagesCallTrue) {
  use(1);
  for (const Var& value : {Var(-1), Var(1), Var(0.5), Var(L"True"), Var(L"1")}) {
    EXPECT_EQ(describe(late.call(L"LogicoSQL", {value}).value.raw()), "BSTR True") << describe(value.raw());
  }
  EXPECT_EQ(describe(late.call(L"LogicoSQL", {Var()}).value.raw()), "BSTR False");
  VARIANT_BOOL one = 1;
  Bstr result;
  EXPECT_EQ(early->LogicoSQL(&one, &result), S_OK);
  EXPECT_EQ(result.text(), L"True");
}

TEST_F(Literals, TheClockAndTheStatementThatReadsIt) {
  expect(L"AhoraSQL", &_QVRcfp::AhoraSQL, {}, kClock);
  expect(L"sqlFechaSistema", &_QVRcfp::sqlFechaSistema, {},
         {L"SELECT TOP 1 Now() As FechaSistema FROM MsysObjects",
          L"SELECT TOP 1 GetDate() As FechaSistema FROM master.dbo.spt_values",
          L"SELECT SYSDATE FechaSistema FROM Dual", undefined()});
}

TEST_F(Literals, TruthOfAField) {
  expect(L"sqlEsTrue", &_QVRcfp::sqlEsTrue, {L"C.Activo"}, all_engines(L" C.Activo<>0 "));
  expect(L"sqlEsFalse", &_QVRcfp::sqlEsFalse, {L"C.Activo"}, all_engines(L" C.Activo=0 "));
  expect(L"sqlFalse", &_QVRcfp::sqlFalse, {}, all_engines(L"0"));
}

TEST_F(Literals, CadenaParaLikeSQL) {
  expect(L"CadenaParaLikeSQL", &_QVRcfp::CadenaParaLikeSQL, {L" ab ", true, true},
         {L"'%ab%' ", L"N'%ab%' ", L"'%ab%' ", L"'%ab%' "});
  expect(L"CadenaParaLikeSQL", &_QVRcfp::CadenaParaLikeSQL, {L"50%_ok", false, true},
         {L"'50!%!_ok%' ESCAPE '!' ", L"N'50!%!_ok%' ESCAPE '!' ", L"'50!%!_ok%' ESCAPE '!' ",
          L"'50!%!_ok%' ESCAPE '!' "});
}

TEST_F(Literals, CadenaParaLikeSQLWithoutSomeOfItsWildcards) {
  use(1);
  const Var text(L"ab");
  const auto asked = [&](std::vector<Var> arguments) {
    return describe(late.call(L"CadenaParaLikeSQL", std::move(arguments)).value.raw());
  };
  EXPECT_EQ(asked({text}), "BSTR 'ab' ");
  EXPECT_EQ(asked({text, true}), "BSTR '%ab' ");
  EXPECT_EQ(asked({text, Var::missing(), true}), "BSTR 'ab%' ");
  EXPECT_EQ(asked({text, Var::missing(), Var::missing()}), "BSTR 'ab' ");
  EXPECT_EQ(late.call(L"CadenaParaLikeSQL").result, DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(late.call(L"CadenaParaLikeSQL", {text, true, true, true}).result, DISP_E_BADPARAMCOUNT);
}

TEST_F(Literals, CadenaParaLikeSQLWithNamedArguments) {
  use(1);
  const auto asked = [&](std::vector<const wchar_t*> names, std::vector<Var> arguments) {
    return describe(late.call_named(L"CadenaParaLikeSQL", std::move(names), std::move(arguments)).value.raw());
  };
  EXPECT_EQ(asked({L"ComodinFinal"}, {true, L"ab"}), "BSTR 'ab%' ");
  EXPECT_EQ(asked({L"comodinfinal", L"Cadena"}, {true, L"ab"}), "BSTR 'ab%' ");
  EXPECT_EQ(asked({L"Cadena", L"ComodinInicial", L"ComodinFinal"}, {L"ab", true, false}), "BSTR '%ab' ");
  EXPECT_EQ(late.call_named(L"CadenaParaLikeSQL", {L"ComodinFinal"}, {true}).result, DISP_E_PARAMNOTOPTIONAL);
}

TEST_F(Literals, CadenaParaLikeSQLTakesNullPointersForFalse) {
  use(1);
  Bstr text(L"ab"), without, leading;
  VARIANT_BOOL wanted = VARIANT_TRUE;
  EXPECT_EQ(early->CadenaParaLikeSQL(&text, nullptr, nullptr, &without), S_OK);
  EXPECT_EQ(without.text(), L"'ab' ");
  EXPECT_EQ(early->CadenaParaLikeSQL(&text, &wanted, nullptr, &leading), S_OK);
  EXPECT_EQ(leading.text(), L"'%ab' ");
}

}  // namespace
}  // namespace qvr::tests
