// Pieces of clauses, as both kinds of host get them.
#include "automation/sql_members.h"

namespace qvr::tests {
namespace {

class Clauses : public SqlMembers {};

const Outcome kNoCase = told(L"Funci\u00f3n CASE no implementada para Motor Jet");
const Outcome kNoJoin = told(L"La funci\u00f3n CondicionWhereRelacionTablas no soporta Motor Jet");

Outcome unknown_relation(const wchar_t* code) {
  return {L"", std::wstring(L"Relaci\u00f3n incorrecta en CondicionWhereRelacionTablas: ") + code};
}

TEST_F(Clauses, SqlTOP) {
  expect(L"sqlTOP", &_QVRcfp::sqlTOP, {5}, {L" TOP 5 ", L" TOP 5 ", L"", L""});
  expect(L"sqlTOP", &_QVRcfp::sqlTOP, {2147483647}, {L" TOP 2147483647 ", L" TOP 2147483647 ", L"", L""});
  expect(L"sqlTOP", &_QVRcfp::sqlTOP, {0}, all_engines(L""));
  expect(L"sqlTOP", &_QVRcfp::sqlTOP, {-1}, all_engines(L""));
}

TEST_F(Clauses, SqlRowNum) {
  expect(L"sqlRowNum", &_QVRcfp::sqlRowNum, {10, true}, {L"", L"", L" And RowNum<=10 ", L""});
  expect(L"sqlRowNum", &_QVRcfp::sqlRowNum, {5, false}, {L"", L"", L" RowNum<=5 ", L""});
  expect(L"sqlRowNum", &_QVRcfp::sqlRowNum, {0, true}, all_engines(L""));
}

TEST_F(Clauses, NumbersOfAnyTypeFromAScript) {
  use(1);
  for (const Var& five : {Var(short{5}), Var(5.0), Var(L"5"), Var(4.6)}) {
    EXPECT_EQ(describe(late.call(L"sqlTOP", {five}).value.raw()), "BSTR  TOP 5 ") << describe(five.raw());
  }
  EXPECT_EQ(late.call(L"sqlTOP", {L"cinco"}).result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(late.call(L"sqlTOP", {3e9}).result, DISP_E_OVERFLOW);
}

TEST_F(Clauses, SqlAlias) {
  expect(L"sqlAlias", &_QVRcfp::sqlAlias, {L"Total"}, {L" As [Total]", L" As [Total]", L" \"Total\"", L""});
}

TEST_F(Clauses, SqlEsNulo) {
  expect(L"sqlEsNulo", &_QVRcfp::sqlEsNulo, {L"Precio", L"0"},
         {L" IIf(IsNull(Precio),0,Precio) ", L" IsNull(Precio,0) ", L" NVL(Precio,0) ", L""});
}

TEST_F(Clauses, SqlConcatenar) {
  expect(L"sqlConcatenar", &_QVRcfp::sqlConcatenar, {array_of({L"a", L"b"})},
         {L" a & b ", L" a + b ", L" a || b ", L" ab "});
  expect(L"sqlConcatenar", &_QVRcfp::sqlConcatenar, {array_of({L"a"})}, all_engines(L" a "));
  expect(L"sqlConcatenar", &_QVRcfp::sqlConcatenar, {array_of({1, 2.5, true, Var()}, 1)},
         {L" 1 & 2.5 & True &  ", L" 1 + 2.5 + True +  ", L" 1 || 2.5 || True ||  ", L" 12.5True "});
}

TEST_F(Clauses, SqlCASE) {
  const Var odd = array_of({L"1", L"'Alta'", L"2", L"'Baja'", L"'Otra'"});
  expect(L"sqlCASE", &_QVRcfp::sqlCASE, {L"Estado", odd},
         {kNoCase, L" CASE Estado WHEN 1 THEN 'Alta' WHEN 2 THEN 'Baja' ELSE 'Otra' END ",
          L" DECODE(Estado,1,'Alta',2,'Baja','Otra') ", L""});
  expect(L"sqlCASE", &_QVRcfp::sqlCASE, {L"Estado", array_of({1, L"'Alta'"}, -3)},
         {kNoCase, L" CASE Estado WHEN 1 THEN 'Alta' END ", L" DECODE(Estado,1,'Alta') ", L""});
}

TEST_F(Clauses, SqlWhereRelacionTablas) {
  const Var triples = array_of({L"C.Id", L"P.IdCliente", L"l", L"P.IdArt", L"A.Id", L"I"});
  expect(L"sqlWhereRelacionTablas", &_QVRcfp::sqlWhereRelacionTablas, {triples},
         {kNoJoin, L" (C.Id*=P.IdCliente And P.IdArt=A.Id) ", L" (C.Id=P.IdCliente(+) And P.IdArt=A.Id) ", L""});
  expect(L"sqlWhereRelacionTablas", &_QVRcfp::sqlWhereRelacionTablas, {array_of({L"a", L"b", L"R"}, 1, VT_BSTR)},
         {kNoJoin, L" (a=*b) ", L" (a(+)=b) ", L""});
}

TEST_F(Clauses, SqlWhereRelacionTablasTellsAnUnknownRelation) {
  expect(L"sqlWhereRelacionTablas", &_QVRcfp::sqlWhereRelacionTablas, {array_of({L"a", L"b", L"a"})},
         {kNoJoin, unknown_relation(L"A"), L" (a=b) ", L""});
  const Var second_unknown = array_of({L"a", L"b", L"I", L"c", L"d", L"\u00f1"});
  expect(L"sqlWhereRelacionTablas", &_QVRcfp::sqlWhereRelacionTablas, {second_unknown},
         {kNoJoin, unknown_relation(L"\u00d1"), unknown_relation(L"\u00d1"), L""});
}

}  // namespace
}  // namespace qvr::tests
