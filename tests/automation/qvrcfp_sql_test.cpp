// Every member that writes SQL, as both kinds of host get it.
#include "automation/sql_members.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

struct Member {
  const char* name;
  EarlyCall slot;
  std::vector<Var> arguments;
  std::wstring expected, of_null_pointers;
  int engine = 2;
  TextView trace_of_null_pointers = {};
};

constexpr double kMoment = 40548 + (14 * 3600 + 7 * 60 + 9) / 86400.0;  // 5 January 2011

std::vector<Member> members() {
  const Var fields = array_of({L"Id", L"Nombre"}), values = array_of({5, L"Ana"});
  return {
      {"ComillasSQL", bound(&_QVRcfp::ComillasSQL), {L"O'Hara \u00f1 \u20ac"}, L"'O''Hara \u00f1 \u20ac'", L"''"},
      {"ExpSQL", bound(&_QVRcfp::ExpSQL), {L"O'Hara"}, L"'O''Hara'", L"Null"},
      {"FechaSQL", bound(&_QVRcfp::FechaSQL), {Var::date(kMoment)}, L"{ d '2011-01-05'}", L"Null"},
      {"HoraSQL", bound(&_QVRcfp::HoraSQL), {Var::date(kMoment)}, L"{ t '14:07:09'}", L"Null"},
      {"FechaHoraSQL", bound(&_QVRcfp::FechaHoraSQL), {L"ahora"}, L"GetDate()", L"Null"},
      {"FechaSQLv", bound(&_QVRcfp::FechaSQLv), {L"2011-01-05 14:07:09"}, L"{ ts '2011-01-05 14:07:09'}", L"Null"},
      {"LogicoSQL", bound(&_QVRcfp::LogicoSQL), {true}, L"1", L"0"},
      {"AhoraSQL", bound(&_QVRcfp::AhoraSQL), {}, L"GetDate()", L"GetDate()"},
      {"sqlEsTrue", bound(&_QVRcfp::sqlEsTrue), {L"C.Activo"}, L" C.Activo<>0 ", L" <>0 "},
      {"sqlEsFalse", bound(&_QVRcfp::sqlEsFalse), {L"C.Activo"}, L" C.Activo=0 ", L" =0 "},
      {"sqlFalse", bound(&_QVRcfp::sqlFalse), {}, L"0", L"0"},
      {"CadenaParaLikeSQL", bound(&_QVRcfp::CadenaParaLikeSQL), {L" 5%", false, true}, L"N'5!%%' ESCAPE '!' ", L"N'' "},
      {"sqlFechaSistema",
       bound(&_QVRcfp::sqlFechaSistema),
       {},
       L"SELECT TOP 1 GetDate() As FechaSistema FROM master.dbo.spt_values",
       L"SELECT TOP 1 GetDate() As FechaSistema FROM master.dbo.spt_values"},
      {"sqlTOP", bound(&_QVRcfp::sqlTOP), {2147483647}, L" TOP 2147483647 ", L""},
      {"sqlRowNum", bound(&_QVRcfp::sqlRowNum), {10, true}, L" And RowNum<=10 ", L"", 3},
      {"sqlAlias", bound(&_QVRcfp::sqlAlias), {L"Total"}, L" As [Total]", L" As []"},
      {"sqlEsNulo", bound(&_QVRcfp::sqlEsNulo), {L"Precio", L"0"}, L" IsNull(Precio,0) ", L" IsNull(,) "},
      {"sqlConcatenar",
       bound(&_QVRcfp::sqlConcatenar),
       {array_of({1, 2.5, true, Var()}, 1)},
       L" 1 + 2.5 + True +  ",
       L"",
       2,
       u"QVRcfp.sqlConcatenar: 13 Type mismatch"},
      {"sqlCASE",
       bound(&_QVRcfp::sqlCASE),
       {L"Estado", array_of({1, L"'Alta'", L"'Otra'"}, -3)},
       L" CASE Estado WHEN 1 THEN 'Alta' ELSE 'Otra' END ",
       L"",
       2,
       u"QVRcfp.sqlCASE: 13 Type mismatch"},
      {"sqlWhereRelacionTablas",
       bound(&_QVRcfp::sqlWhereRelacionTablas),
       {array_of({L"C.Id", L"P.IdCliente", L"l", L"P.IdArt", L"A.Id", L"I"}, 1, VT_BSTR)},
       L" (C.Id*=P.IdCliente And P.IdArt=A.Id) ",
       L""},
      {"SqlINSERT",
       bound(&_QVRcfp::SqlINSERT),
       {L"T", array_of({5, true, Var::null()})},
       L"INSERT INTO T VALUES ( 5, 1, Null)",
       L"",
       2,
       u"QVRcfp.SqlINSERT: 13 Type mismatch"},
      {"SqlUPDATE",
       bound(&_QVRcfp::SqlUPDATE),
       {L"T", L"ID", 7, fields, values},
       L"UPDATE T SET Nombre='Ana' WHERE ID=7",
       L"",
       2,
       u"QVRcfp.SqlUPDATE: 13 Type mismatch"},
      {"SqlInsert2",
       bound(&_QVRcfp::SqlInsert2),
       {L"T", fields, values},
       L"INSERT INTO T(Id,Nombre) VALUES( 5,'Ana')",
       L"",
       2,
       u"QVRcfp.SqlInsert2: 13 Type mismatch"},
      {"SqlUpdate2",
       bound(&_QVRcfp::SqlUpdate2),
       {L"T", fields, values, L"Id=7"},
       L"UPDATE T SET Id= 5,Nombre='Ana' WHERE Id=7",
       L"",
       2,
       u"QVRcfp.SqlUpdate2: 13 Type mismatch"},
  };
}

using SqlMember = Rows<SqlMembers, Member>;

TEST_P(SqlMember, AnswersAlikeEarlyAndLate) {
  use(GetParam().engine);
  expect(GetParam().name, GetParam().slot, GetParam().arguments, GetParam().expected);
}

TEST_P(SqlMember, TakesNullPointersForEmptyOrMissing) {
  use(GetParam().engine);
  Bstr result;
  const TextView failing = GetParam().trace_of_null_pointers;
  const bool raises = std::string_view(GetParam().name) == "sqlConcatenar";
  EXPECT_EQ(GetParam().slot(*early.Get(), nullptr, &result), raises ? static_cast<HRESULT>(0x800A000D) : S_OK);
  EXPECT_EQ(result.get() == nullptr, raises) << "an empty text is a text";
  EXPECT_EQ(narrow(result.text()), narrow(GetParam().of_null_pointers));
  EXPECT_EQ(traced(), failing.empty() ? Traces() : Traces{Text(failing)});
  EXPECT_EQ(GetParam().slot(*early.Get(), nullptr, nullptr), E_POINTER);
}

INSTANTIATE_TEST_SUITE_P(, SqlMember, testing::ValuesIn(members()), row_name);

class SqlTexts : public SqlMembers {};

TEST_F(SqlTexts, AreThoseOfTheObjectsEngine) {
  const Outcome expected[] = {told(L"Motor de Base de Datos no definido: 0"), L"Now()", L"GetDate()", L"SYSDATE"};
  for (int engine = 0; engine < 4; ++engine) {
    SCOPED_TRACE(engine);
    use(engine);
    expect("AhoraSQL", &_QVRcfp::AhoraSQL, {}, expected[engine]);
  }
}

TEST_F(SqlTexts, OfAnObjectThatHasNoParametersAreThoseOfNoEngine) {
  const LateObject fresh(L"QVRlib21.QVRcfp");
  EXPECT_EQ(describe(fresh.call(L"SqlINSERT", {L"T", array_of({5, L"Ana"})}).value.raw()),
            "BSTR INSERT INTO T VALUES ( 5, 'Ana')");
  EXPECT_EQ(describe(fresh.call(L"sqlAlias", {L"x"}).value.raw()), "BSTR ");
}

TEST_F(SqlTexts, ThatCannotBeWrittenAreTold) {
  expect("sqlWhereRelacionTablas", &_QVRcfp::sqlWhereRelacionTablas, {array_of({L"a", L"b", L"\u00f1"})},
         told(L"Relaci\u00f3n incorrecta en CondicionWhereRelacionTablas: \u00d1"));
  use(1);
  expect("sqlWhereRelacionTablas", &_QVRcfp::sqlWhereRelacionTablas, {array_of({L"a", L"b", L"I"})},
         told(L"La funci\u00f3n CondicionWhereRelacionTablas no soporta Motor Jet"));
  expect("sqlCASE", &_QVRcfp::sqlCASE, {L"c", array_of({1, L"a"})},
         told(L"Funci\u00f3n CASE no implementada para Motor Jet"));
}

TEST_F(SqlTexts, MayHoldAZero) {
  const std::wstring text(L"a\0'b", 4), literal(L"'a\0''b'", 7);
  Bstr given(text), result;
  EXPECT_EQ(early->ComillasSQL(&given, &result), S_OK);
  EXPECT_EQ(result.text(), literal);
  EXPECT_EQ(late.call(L"ComillasSQL", {text}).value.text(), literal);
}

TEST_F(SqlTexts, OfNumbersOfAnyTypeFromAScript) {
  for (const Var& five : {Var(short{5}), Var(5.0), Var(L"5"), Var(4.6)}) {
    EXPECT_EQ(describe(late.call(L"sqlTOP", {five}).value.raw()), "BSTR  TOP 5 ") << describe(five.raw());
  }
  EXPECT_EQ(late.call(L"sqlTOP", {L"cinco"}).result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(late.call(L"sqlTOP", {3e9}).result, DISP_E_OVERFLOW);
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.sqlTOP: -2147352571 The late-bound call was refused",
                              u"QVRcfp.sqlTOP: -2147352566 The late-bound call was refused"}));
}

TEST_F(SqlTexts, OfWhatScriptsSendForTrueAndOtherLanguagesCallIt) {
  for (const Var& value : {Var(-1), Var(1), Var(0.5), Var(L"True"), Var(L"1")}) {
    EXPECT_EQ(describe(late.call(L"LogicoSQL", {value}).value.raw()), "BSTR 1") << describe(value.raw());
  }
  EXPECT_EQ(describe(late.call(L"LogicoSQL", {Var()}).value.raw()), "BSTR 0");
  VARIANT_BOOL one = 1;
  Bstr result;
  EXPECT_EQ(early->LogicoSQL(&one, &result), S_OK);
  EXPECT_EQ(result.text(), L"1");
}

// The only member of these that has optional arguments.
class CadenaParaLikeSQL : public SqlMembers {
 protected:
  CadenaParaLikeSQL() { use(1); }
  std::string asked(std::vector<Var> arguments) const {
    return describe(late.call(L"CadenaParaLikeSQL", std::move(arguments)).value.raw());
  }
  std::string asked(std::vector<const wchar_t*> names, std::vector<Var> arguments) const {
    return describe(late.call_named(L"CadenaParaLikeSQL", std::move(names), std::move(arguments)).value.raw());
  }
};

TEST_F(CadenaParaLikeSQL, WithoutSomeOfItsWildcards) {
  const Var text(L"ab");
  EXPECT_EQ(asked({text}), "BSTR 'ab' ");
  EXPECT_EQ(asked({text, true}), "BSTR '%ab' ");
  EXPECT_EQ(asked({text, Var::missing(), true}), "BSTR 'ab%' ");
  EXPECT_EQ(asked({text, Var::missing(), Var::missing()}), "BSTR 'ab' ");
  EXPECT_EQ(late.call(L"CadenaParaLikeSQL").result, DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(late.call(L"CadenaParaLikeSQL", {text, true, true, true}).result, DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.CadenaParaLikeSQL: -2147352561 The late-bound call was refused",
                              u"QVRcfp.CadenaParaLikeSQL: -2147352562 The late-bound call was refused"}));
}

TEST_F(CadenaParaLikeSQL, WithNamedArguments) {
  EXPECT_EQ(asked({L"ComodinFinal"}, {true, L"ab"}), "BSTR 'ab%' ");
  EXPECT_EQ(asked({L"comodinfinal", L"Cadena"}, {true, L"ab"}), "BSTR 'ab%' ");
  EXPECT_EQ(asked({L"Cadena", L"ComodinInicial", L"ComodinFinal"}, {L"ab", true, false}), "BSTR '%ab' ");
  EXPECT_EQ(late.call_named(L"CadenaParaLikeSQL", {L"ComodinFinal"}, {true}).result, DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.CadenaParaLikeSQL: -2147352561 The late-bound call was refused"}));
}

TEST_F(CadenaParaLikeSQL, TakesNullPointersForFalse) {
  Bstr text(L"ab"), without, leading;
  VARIANT_BOOL wanted = VARIANT_TRUE;
  EXPECT_EQ(early->CadenaParaLikeSQL(&text, nullptr, nullptr, &without), S_OK);
  EXPECT_EQ(without.text(), L"'ab' ");
  EXPECT_EQ(early->CadenaParaLikeSQL(&text, &wanted, nullptr, &leading), S_OK);
  EXPECT_EQ(leading.text(), L"'%ab' ");
}

}  // namespace
}  // namespace qvr::tests
