#include "dialect/manual_calls.h"

#include "dialect/clauses.h"
#include "dialect/like_pattern.h"
#include "dialect/literals.h"
#include "dialect/statements.h"
#include "dialect/table_relations.h"

namespace qvr::tests {
namespace {

constexpr double kFifthOfJanuary = 40548;  // of 2011
constexpr double kTime = (14 * 3600 + 7 * 60 + 9) / 86400.0;

Value text(TextView content) { return Text(content); }
Value list(std::vector<Value> items) { return Array{std::move(items), 0, 1}; }

ManualPage literals() {
  return {"literals",
          {
              {"ComillasSQL(\"O'Neil\")", [](Engine) { return dialect::ComillasSQL(u"O'Neil"); }},
              {"ExpSQL(\"Ana\")", [](Engine e) { return dialect::ExpSQL(e, text(u"Ana")); }},
              {"ExpSQL(\"AhoraSQL\")", [](Engine e) { return dialect::ExpSQL(e, text(u"AhoraSQL")); }},
              {"ExpSQL(5)", [](Engine e) { return dialect::ExpSQL(e, std::int16_t{5}); }},
              {"ExpSQL(-2.5)", [](Engine e) { return dialect::ExpSQL(e, -2.5); }},
              {"ExpSQL(CSng(0.1))", [](Engine e) { return dialect::ExpSQL(e, 0.1f); }},
              {"ExpSQL(1E+300)", [](Engine e) { return dialect::ExpSQL(e, 1E+300); }},
              {"ExpSQL(CCur(\"12.5\"))", [](Engine e) { return dialect::ExpSQL(e, Currency{125000}); }},
              {"ExpSQL(True)", [](Engine e) { return dialect::ExpSQL(e, true); }},
              {"ExpSQL(Null)", [](Engine e) { return dialect::ExpSQL(e, Null{}); }},
              {"ExpSQL(#1/5/2011#)", [](Engine e) { return dialect::ExpSQL(e, Date{kFifthOfJanuary}); }},
              {"FechaSQL(#1/5/2011#)", [](Engine e) { return dialect::FechaSQL(e, Date{kFifthOfJanuary}); }},
              {"HoraSQL(#2:07:09 PM#)", [](Engine e) { return dialect::HoraSQL(e, Date{kTime}); }},
              {"FechaHoraSQL(#1/5/2011 2:07:09 PM#)",
               [](Engine e) { return dialect::FechaHoraSQL(e, Date{kFifthOfJanuary + kTime}); }},
              {"FechaHoraSQL(\"Ahora\")", [](Engine e) { return dialect::FechaHoraSQL(e, text(u"Ahora")); }},
              {"FechaHoraSQL(\"x\")", [](Engine e) { return dialect::FechaHoraSQL(e, text(u"x")); }},
              {"FechaSQLv(#1/5/2011#)", [](Engine e) { return dialect::FechaSQLv(e, Date{kFifthOfJanuary}); }},
              {"FechaSQLv(#2:07:09 PM#)", [](Engine e) { return dialect::FechaSQLv(e, Date{kTime}); }},
              {"FechaSQLv(#1/5/2011 2:07:09 PM#)",
               [](Engine e) { return dialect::FechaSQLv(e, Date{kFifthOfJanuary + kTime}); }},
              {"LogicoSQL(True)", [](Engine e) { return dialect::LogicoSQL(e, true); }},
              {"LogicoSQL(False)", [](Engine e) { return dialect::LogicoSQL(e, false); }},
              {"sqlEsTrue(\"Activo\")", [](Engine) { return dialect::sqlEsTrue(u"Activo"); }},
              {"sqlEsFalse(\"Activo\")", [](Engine) { return dialect::sqlEsFalse(u"Activo"); }},
              {"sqlFalse()", [](Engine) { return dialect::sqlFalse(); }},
              {"AhoraSQL()", [](Engine e) { return dialect::AhoraSQL(e); }},
              {"sqlFechaSistema()", [](Engine e) { return dialect::sqlFechaSistema(e); }},
              {"CadenaParaLikeSQL(\"Jo*n?\")",
               [](Engine e) { return dialect::PatronLikeMotor(e, u"Jo*n?", false, false); }},
              {"CadenaParaLikeSQL(\" Ana \", True, True)",
               [](Engine e) { return dialect::PatronLikeMotor(e, u" Ana ", true, true); }},
              {"CadenaParaLikeSQL(\"50%_ok\", False, True)",
               [](Engine e) { return dialect::PatronLikeMotor(e, u"50%_ok", false, true); }},
          }};
}

ManualPage clauses() {
  const Value names = list({text(u"Nombre"), text(u"', '"), text(u"Apellido")});
  const Value pairs = list({text(u"1"), text(u"'Alta'"), text(u"2"), text(u"'Baja'"), text(u"'Otra'")});
  const Value even = list({text(u"1"), text(u"'Alta'")});
  const Value inner = list({text(u"C.Id"), text(u"P.IdCliente"), text(u"I")});
  const Value outer = list(
      {text(u"C.Id"), text(u"P.IdCliente"), text(u"L"), text(u"P.IdArt"), text(u"A.Id"), text(u"R")});
  return {"clauses",
          {
              {"sqlTOP(10)", [](Engine e) { return dialect::ClausulaTop(e, 10); }},
              {"sqlTOP(0)", [](Engine e) { return dialect::ClausulaTop(e, 0); }},
              {"sqlRowNum(10, False)", [](Engine e) { return dialect::sqlRowNum(e, 10, false); }},
              {"sqlRowNum(10, True)", [](Engine e) { return dialect::sqlRowNum(e, 10, true); }},
              {"sqlAlias(\"Total\")", [](Engine e) { return dialect::ClausulaAlias(e, u"Total"); }},
              {"sqlConcatenar(Array(\"Nombre\", \"', '\", \"Apellido\"))",
               [=](Engine e) { return dialect::sqlConcatenar(e, names); }},
              {"sqlEsNulo(\"Precio\", \"0\")", [](Engine e) { return dialect::sqlEsNulo(e, u"Precio", u"0"); }},
              {"sqlCASE(\"Estado\", Array(\"1\", \"'Alta'\", \"2\", \"'Baja'\", \"'Otra'\"))",
               [=](Engine e) { return dialect::sqlCASE(e, u"Estado", pairs); }},
              {"sqlCASE(\"Estado\", Array(\"1\", \"'Alta'\"))",
               [=](Engine e) { return dialect::sqlCASE(e, u"Estado", even); }},
              {"sqlWhereRelacionTablas(Array(\"C.Id\", \"P.IdCliente\", \"I\"))",
               [=](Engine e) { return dialect::CondicionWhereRelacionTablas(e, inner); }},
              {"sqlWhereRelacionTablas(Array(\"C.Id\", \"P.IdCliente\", \"L\", \"P.IdArt\", \"A.Id\", \"R\"))",
               [=](Engine e) { return dialect::CondicionWhereRelacionTablas(e, outer); }},
          }};
}

ManualPage statements() {
  const Value fields = list({text(u"Id"), text(u"Nombre"), text(u"Alta")});
  const Value values = list({std::int16_t{5}, text(u"Ana"), Date{kFifthOfJanuary}});
  return {"statements",
          {
              {"SqlINSERT(\"Clientes\", valores)",
               [=](Engine e) { return dialect::SqlINSERT(e, u"Clientes", values); }},
              {"SqlInsert2(\"Clientes\", campos, valores)",
               [=](Engine e) { return dialect::SqlInsert2(e, u"Clientes", fields, values); }},
              {"SqlUPDATE(\"Clientes\", \"ID\", 5, campos, valores)",
               [=](Engine e) { return dialect::SqlUPDATE(e, u"Clientes", u"ID", 5, fields, values); }},
              {"SqlUpdate2(\"Clientes\", campos, valores, \"Baja=0\")",
               [=](Engine e) { return dialect::SqlUpdate2(e, u"Clientes", fields, values, u"Baja=0"); }},
              {"SqlUpdate2(\"Clientes\", campos, valores, \"\")",
               [=](Engine e) { return dialect::SqlUpdate2(e, u"Clientes", fields, values, u""); }},
          }};
}

}  // namespace

std::vector<ManualPage> manual_pages() { return {literals(), clauses(), statements(), query_page()}; }

}  // namespace qvr::tests
