// An empty database with what the machine has, or a table in the database that was given.
#include "qvrscript/doctor/try/trial.h"
#include "session/value_convert.h"

namespace qvr::script_tool {
namespace {

// A way to an empty database; `make` throws where the machine does not have it, and notes how it is taken away.
struct Candidate {
  TextView name;
  void (*make)(Trial& trial, TextView with);
  std::vector<TextView> with;  // one after the other
};

Tried opened(TriedMachine& machine, TextView connection_string, std::int32_t connect_timeout) {
  const Tried connection = Tried::of_ado(machine, u"ADODB.Connection");
  connection.put(u"ConnectionTimeout", connect_timeout);
  connection.call(u"Open", {Text(connection_string)});
  return connection;
}

void execute_on(const Trial& trial, TextView connection_string, TextView statement) {
  const Tried connection = opened(trial.machine, connection_string, trial.connect_timeout);
  connection.call(u"Execute", {Text(statement)});
  connection.call(u"Close");
}

void make_with_adox(Trial& trial, TextView provider) {
  trial.connection_string = join({u"Provider=", provider, u";Data Source=", trial.folder, u"\\prueba.mdb"});
  trial.engine = Engine::Jet;
  const Tried catalog = Tried::of_ado(trial.machine, u"ADOX.Catalog");
  catalog.call(u"Create", {trial.connection_string});
  catalog.object(u"ActiveConnection").call(u"Close");
  // A pooled connection would keep the file open, which then cannot be removed.
  trial.connection_string += u";OLE DB Services=-4";
}

void make_with_local_server(Trial& trial, TextView provider) {
  const Text server = join({u"Provider=", provider, u";Data Source=(localdb)\\MSSQLLocalDB;Integrated Security=SSPI",
                            provider == u"MSOLEDBSQL19" ? u";Use Encryption for Data=Optional" : u""});
  const Text name = join({u"qvrscript_try_", trial.mark});
  execute_on(trial, server,
             join({u"CREATE DATABASE [", name, u"] ON (NAME = datos, FILENAME = '", trial.folder,
                   u"\\prueba.mdf') LOG ON (NAME = registro, FILENAME = '", trial.folder, u"\\prueba.ldf')"}));
  trial.undoing.emplace_back([&trial, server, name] {
    execute_on(trial, server,
               join({u"ALTER DATABASE [", name, u"] SET SINGLE_USER WITH ROLLBACK IMMEDIATE; DROP DATABASE [", name,
                     u"]"}));
  });
  trial.connection_string = join({server, u";Initial Catalog=", name});
  trial.engine = Engine::SqlServer;
}

void make_with_sqlite(Trial& trial, TextView driver) {
  trial.connection_string = join({u"Provider=MSDASQL;Extended Properties=\"DRIVER={", driver, u"};Database=",
                                  trial.machine.path_for_drivers(join({trial.folder, u"\\prueba.db"})), u";\""});
  trial.engine = Engine::Jet;
}

const std::vector<Candidate>& candidates() {
  static const std::vector<Candidate> rows = {
      {u"Jet or ACE through ADOX",
       make_with_adox,
       {u"Microsoft.ACE.OLEDB.16.0", u"Microsoft.ACE.OLEDB.12.0", u"Microsoft.Jet.OLEDB.4.0"}},
      {u"SQL Server LocalDB", make_with_local_server, {u"MSOLEDBSQL", u"MSOLEDBSQL19", u"SQLNCLI11"}},
      {u"SQLite through ODBC", make_with_sqlite, {u"SQLite3 ODBC Driver", u"SQLite3"}},
  };
  return rows;
}

// A database counts when it keeps a row: some stand-ins of ADO open whatever they are given and run nothing.
void make_table(Trial& trial) {
  trial.table = join({u"qvrscript_try_", trial.mark});
  execute(trial, join({u"CREATE TABLE ", trial.table, u" (Numero INTEGER)"}));
  // An own database goes with its table.
  if (trial.given) trial.undoing.emplace_back([&trial] { execute(trial, join({u"DROP TABLE ", trial.table})); });
  execute(trial, join({u"INSERT INTO ", trial.table, u" VALUES (0)"}));
  expect_text(u"Rows of a table with one row", u"1", decimal(rows_of_table(trial)));
  execute(trial, join({u"DELETE FROM ", trial.table}));
}

bool made(Trial& trial, const Candidate& candidate, TextView with) {
  const bool done = or_default({}, false, [&] {
    candidate.make(trial, with);
    make_table(trial);
    return true;
  });
  if (!done) {
    trial.connection_string.clear();
    trial.table.clear();
  }
  return done;
}

StepAnswer use_given(Trial& trial) {
  trial.connection_string = trial.given->connection_string;
  trial.engine = trial.given->engine;
  make_table(trial);
  return {Level::Ok,
          join({u"The database that was given, in the table ", trial.table, u" only, which is dropped again"})};
}

}  // namespace

void execute(const Trial& trial, TextView statement) { execute_on(trial, trial.connection_string, statement); }

std::int32_t rows_of_table(const Trial& trial) {
  const Tried connection = opened(trial.machine, trial.connection_string, trial.connect_timeout);
  const Tried rows{trial.machine, connection.call(u"Execute", {join({u"SELECT COUNT(*) FROM ", trial.table})})};
  const Value count = rows.object(u"Fields").object(u"Item", {std::int32_t{0}}).get(u"Value");
  rows.call(u"Close");
  connection.call(u"Close");
  return to_long(count);
}

StepAnswer try_database(Trial& trial) {
  if (trial.given) return use_given(trial);
  std::vector<Text> tried;
  for (const Candidate& candidate : candidates()) {
    for (const TextView with : candidate.with) {
      if (made(trial, candidate, with)) {
        return {Level::Ok, join({u"An empty database was made with ", candidate.name, u" (", with, u")"})};
      }
    }
    tried.emplace_back(candidate.name);
  }
  return {Level::Note, join({u"No empty database could be made with ", join(tried, u", nor with ")}),
          u"Install the Access Database Engine of this width, or give a database with --connection-env or --cfp."};
}

}  // namespace qvr::script_tool
