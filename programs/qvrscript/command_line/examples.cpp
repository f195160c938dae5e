#include "qvrscript/command_line/examples.h"

#include "qvrscript/check/rule.h"

namespace qvr::script_tool::examples {
namespace {

constexpr std::size_t kWidth = 100;

// The rules of each group as a comma-separated list.
std::string rules_by_group() {
  std::string text;
  std::string_view group;
  std::size_t column = 0;
  for (const Rule& rule : rules()) {
    const bool opens = rule.group != group;
    if (opens) {
      text += (group.empty() ? "" : "\n") + std::string(rule.group) + "\n  ";
      group = rule.group;
      column = 2;
    } else if (column + rule.name.size() + 2 > kWidth) {
      text += ",\n  ";
      column = 2;
    } else {
      text += ", ";
      column += 2;
    }
    text += rule.name;
    column += rule.name.size();
  }
  return text + "\n";
}

constexpr const char* kCheckFirst =
    R"(  scripts/GestionSQL1.cfc:41: error: "GO;" separates nothing: the line must hold only GO [go-semicolon]

A comment in a script silences rules for the command that follows it, with the reason:

  -- qvrscript: ignore no-transaction: the installer runs this file by itself

Rules
)";

constexpr const char* kCheckLast = R"(
Examples
  qvrscript check scripts
  qvrscript check --engine oracle tablas.txt
  qvrscript check --format sarif scripts > findings.sarif
  qvrscript check --lock scripts/released.lock --update scripts

Exit codes: 0 nothing from the severity of --fail-on on, 1 findings or unreadable files, 2 the command line.)";

}  // namespace

const char* const kProgram = R"(Examples
  qvrscript check scripts
  qvrscript install --engine sqlserver --plan scripts Gestion
  qvrscript update --engine sqlserver --cfp datos gestion --id-env GESTION_ID --from 10024 scripts Gestion
  qvrscript COMMAND --help

Exit codes: 0 done, 1 something is wrong with what was looked at or run, 2 the command line, 130 interrupted.)";

const char* const kInstall =
    R"(The scripts are NAME, the engine's tag (JET, SQL or ORA), one character, .cfc: for example GestionSQL1.cfc. They
run in the order of their names, in one transaction. With a connection file, placeholders are replaced by what it says.

Examples
  qvrscript install --engine sqlserver --plan scripts Gestion
  qvrscript install --engine sqlserver --cfp datos gestion --id-env GESTION_ID scripts Gestion
  qvrscript install --engine oracle --connection-env ORA --database GESTION --admin-user ADM
                    --admin-password-env ADM_PASSWORD --rehearse scripts Gestion

Exit codes: 0 every command ran and was committed, 1 not so, 2 the command line, 130 interrupted.)";

const char* const kUpdate =
    R"(The scripts are APP, two versions of five digits with an "a" between, the engine's tag (JET, SQL or ORA), .cfc: for
example Gestion10024a10025SQL.cfc. Every one from the database's version on runs; one must begin with exactly it.

Examples
  qvrscript update --engine sqlserver --from 10024 --plan scripts Gestion
  qvrscript update --engine sqlserver --from-query "SELECT Version FROM Parametros" --cfp datos gestion
                   --id-env GESTION_ID scripts Gestion

Exit codes: 0 every command ran and was committed, 1 not so, 2 the command line, 130 interrupted.)";

const char* const kRun =
    R"(One connection, one transaction, the commands one after the other. When one fails, everything is taken back, where the
engine can do so. On Windows the system's ADO opens the connection. Elsewhere it goes to ODBC:
"Provider=MSDASQL;Data Source=NAME" or "Provider=MSDASQL;Extended Properties=\"DRIVER={...};...\"".

Examples
  qvrscript run --engine sqlserver --connection "Provider=MSDASQL;Data Source=prueba" GestionSQL1.cfc
  qvrscript run --engine jet --continue --connection "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=c:\a.mdb" arreglo.cfc
  qvrscript run --engine oracle --connection-env ORA --format junit carga.cfc > carga.xml

Exit codes: 0 every command ran and was committed, 1 not so, 2 the command line, 130 interrupted.)";

const char* const kCfp = R"(Examples
  qvrscript cfp new --id-env GESTION_ID --engine sqlserver --provider SQLOLEDB --data-source SRV01 --catalog Gestion
                    --client-user app --client-password-env APP_PASSWORD datos gestion
  qvrscript cfp test --id-env GESTION_ID --client datos gestion

Exit codes: 0 done, 1 the file or the connection is not as it should be, 2 the command line.)";

const char* const kDoctor =
    R"(  error  registration   64-bit programs, for the user: leads to D:\old\QVRlib21.dll, which is not there
                        -> Register the library where it is now, which writes the same keys: ...

  process        width, version of Windows, version of this program
  library        the file beside this program: width, version and place by its own Ov
  registration   for user and machine and each width: which file, whether it is there, of that width, the same version
  type library   whether it is registered and loads
  ado            whether ADODB.Connection can be made, and its version
  providers      by engine, those that are there in this width
  components     text protection, error report and script reader of the application family, where registered
  language       the language of the library's texts, and why
  desktop        whether message boxes can be seen

Run the qvrscript.exe of the width that the application has. A note is worth knowing and fails nothing. Nothing is
changed, and no connection is opened. Elsewhere than on Windows only process and language can be told.

  qvrscript doctor --try --report report.txt
  qvrscript doctor --try --connection-env GESTION_CONNECTION --engine sqlserver

With --try the library is used as applications use it: classes by name and by interface, a connection file, values,
queries, a database, a script with a mistake, events, a procedure. It makes an empty database with Jet or ACE, SQL
Server LocalDB or SQLite, or works in a table of its own in the database that is given, and takes all of it away again.

Exit codes: 0 no errors, 1 errors found, 2 the command line, 130 interrupted.)";

std::string check() { return kCheckFirst + rules_by_group() + kCheckLast; }

}  // namespace qvr::script_tool::examples
