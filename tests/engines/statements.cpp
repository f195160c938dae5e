// Whole statements, and what the rows hold after them.
#include "dialect/statements.h"
#include "dialect/literals.h"
#include "engines/checked_script.h"
#include "engines/hostile_texts.h"

namespace qvr::tests {
namespace {

Array fields(std::int32_t lower) {
  return {{Value(Text(u"Id")), Value(Text(u"Content")), Value(Text(u"Amount")), Value(Text(u"Since")),
           Value(Text(u"Active"))},
          lower,
          1};
}

Array values(std::int32_t id, const Text& text, std::int32_t lower) {
  return {{Value(id), Value(text), Value(Currency{-12345}), Value(Date{40548}), Value(true)}, lower, 1};
}

// The row with this number has this text, and the other values that `values` gives.
void check_row(CheckedScript& script, const std::string& name, std::int32_t id, TextView text) {
  const auto of_row = [&](TextView expression) {
    return join({u"(SELECT ", expression, u" FROM Stock WHERE Id=", decimal(id), u")"});
  };
  script.check_text(name + ": text", of_row(u"Content"), text);
  script.check(name + ": amount", join({of_row(u"Amount"), u"=-1.2345"}));
  script.check(name + ": truth", join({of_row(u"Active"), u"=1"}));
  script.check_text(name + ": date",
                    of_row(script.oracle() ? u"TO_CHAR(Since,'YYYY-MM-DD')" : u"FORMATDATETIME(Since,'yyyy-MM-dd')"),
                    u"2011-01-05");
}

}  // namespace

void add_statements(CheckedScript& script) {
  const Engine engine = script.engine();
  script.run(u"CREATE TABLE Stock (Id INT, Content VARCHAR(5000), Amount NUMERIC(20,4), Since TIMESTAMP, Active INT)");
  std::int32_t id = 0;
  for (const HostileText& row : hostile_texts()) {
    script.run(dialect::SqlINSERT(engine, u"Stock", values(++id, row.text, 0)));
    check_row(script, std::string("inserted: ") + row.name, id, row.text);
    script.run(dialect::SqlInsert2(engine, u"Stock", fields(1), values(++id, row.text, 1)));
    check_row(script, std::string("inserted by columns: ") + row.name, id, row.text);
    script.run(join({u"INSERT INTO Stock (Id, Content) VALUES (", decimal(++id), u", 'old')"}));
    script.run(dialect::SqlUPDATE(engine, u"Stock", u"ID", id, fields(0), values(id, row.text, 0)));
    check_row(script, std::string("updated by key: ") + row.name, id, row.text);
    script.run(join({u"INSERT INTO Stock (Id, Content) VALUES (", decimal(++id), u", 'old')"}));
    script.run(dialect::SqlUpdate2(engine, u"Stock", fields(-2), values(id, row.text, -2), u"Id=" + decimal(id)));
    check_row(script, std::string("updated by a condition: ") + row.name, id, row.text);
  }
  script.check("no statement touched another row", join({u"(SELECT Count(*) FROM Stock WHERE Content='old')=0"}));
  script.check("no row is missing", join({u"(SELECT Count(*) FROM Stock)=", decimal(id)}));
  script.run(
      dialect::SqlUpdate2(engine, u"Stock", Array{{Value(Text(u"Content"))}, 0, 1}, Array{{Value(Null{})}, 0, 1}, u""));
  script.check("updated without a condition",
               join({u"(SELECT Count(*) FROM Stock WHERE Content IS NULL)=", decimal(id)}));
}

}  // namespace qvr::tests
