// Pieces of clauses inside whole statements.
#include "dialect/clauses.h"
#include "dialect/literals.h"
#include "dialect/table_relations.h"
#include "engines/checked_script.h"

namespace qvr::tests {
namespace {

Array list(std::initializer_list<TextView> items) {
  Array list;
  for (const TextView item : items) list.items.emplace_back(Text(item));
  return list;
}

void add_limits(CheckedScript& script) {
  const Engine engine = script.engine();
  if (script.oracle()) {
    const auto rows = [](TextView condition) {
      return join({u"(SELECT Count(*) FROM Numbers WHERE N>0", condition, u")=3"});
    };
    script.check("limit as a condition", rows(dialect::sqlRowNum(engine, 3, true)));
    script.check("limit in parentheses", rows(dialect::CondicionRowNum(engine, 3, true)));
    script.check("limit alone",
                 join({u"(SELECT Count(*) FROM Numbers WHERE", dialect::sqlRowNum(engine, 3, false), u")=3"}));
    return;
  }
  script.check("limit before the list", join({u"(SELECT Sum(N) FROM (SELECT ", dialect::ClausulaTop(engine, 3),
                                              u"N FROM Numbers ORDER BY N) Q)=6"}));
}

void add_relations(CheckedScript& script) {
  const Engine engine = script.engine();
  script.run(u"CREATE TABLE Pairs (A INT, B INT)");
  script.run(u"INSERT INTO Pairs VALUES (1,5)");
  script.run(u"INSERT INTO Pairs VALUES (2,4)");
  const auto sum = [&](TextView condition) {
    return join({u"(SELECT Sum(M.N) FROM Numbers M, Pairs P WHERE", condition, u")"});
  };
  script.check("inner relation",
               join({sum(dialect::CondicionWhereRelacionTablas(engine, list({u"M.N", u"P.B", u"i"}))), u"=9"}));
  script.check(
      "two inner relations",
      join({sum(dialect::CondicionWhereRelacionTablas(engine, list({u"M.N", u"P.B", u"I", u"P.A", u"2", u"I"}))),
            u"=4"}));
  if (script.oracle()) {
    script.check("inner relation in its other spelling",
                 join({sum(dialect::CondicionWhereRelacionTablas(engine, list({u"M.N", u"P.A", u"A"}))), u"=3"}));
  }
}

}  // namespace

void add_clauses(CheckedScript& script) {
  const Engine engine = script.engine();
  script.run(u"CREATE TABLE Numbers (N INT, Name VARCHAR(20))");
  for (const TextView row : {u"1,'one'", u"2,'two'", u"3,'three'", u"4,NULL", u"5,'five'"}) {
    script.run(join({u"INSERT INTO Numbers VALUES (", row, u")"}));
  }
  add_limits(script);
  add_relations(script);

  const Text alias = dialect::ClausulaAlias(engine, u"Total ni\u00f1os");
  const TextView named = script.oracle() ? u"\"Total ni\u00f1os\"" : u"[Total ni\u00f1os]";
  script.check("alias", join({u"(SELECT ", named, u" FROM (SELECT Sum(N)", alias, u" FROM Numbers) Q)=15"}));

  const Text one = dialect::ComillasSQL(u"a'"), two = dialect::ComillasSQL(u"|b");
  const auto of_row = [](TextView expression, TextView row) {
    return join({u"(SELECT ", expression, u" FROM Numbers WHERE N=", row, u")"});
  };
  script.check_text("concatenation", of_row(dialect::sqlConcatenar(engine, list({one, two, u"Name"})), u"1"),
                    u"a'|bone");

  const Text replaced = dialect::sqlEsNulo(engine, u"Name", dialect::ComillasSQL(u"none"));
  script.check_text("null replaced", of_row(replaced, u"4"), u"none");
  script.check_text("no null, not replaced", of_row(replaced, u"5"), u"five");

  const Text with_default = dialect::sqlCASE(engine, u"N", list({u"1", u"'a'", u"2", u"'b'", u"'else'"}));
  const Text without = dialect::sqlCASE(engine, u"N", list({u"1", u"'a'", u"2", u"'b'"}));
  script.check_text("mapped value", of_row(with_default, u"2"), u"b");
  script.check_text("mapped by default", of_row(with_default, u"3"), u"else");
  script.check("not mapped", join({of_row(without, u"3"), u" IS NULL"}));
}

}  // namespace qvr::tests
