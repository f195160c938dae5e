#include "qvrscript/command_line/help.h"

namespace qvr::script_tool {
namespace {

constexpr std::string_view kProgram = R"(qvrscript - for those who write script files (.cfc) of SQL commands

A script is text in which each command is followed by a line that holds only GO.

  qvrscript check FOLDER|FILE...   what the runner would do that you may not mean
  qvrscript list FOLDER NAME       which files a definition or an update would run
  qvrscript run ... FILE           run a file on a database
  qvrscript doctor                 what this machine lacks for the library, and what to do
  qvrscript COMMAND --help         more about one of them, with examples
  qvrscript --version

With --verbose every command also writes the failures inside the library to the error output, one line each:

  trace: QVRScr.EjecutarComandos: 429 ActiveX component can't create object (clients/com_ado.cpp:99)

Try it:
  qvrscript check scripts
  qvrscript list scripts Gestion --engine sqlserver
  qvrscript run --engine sqlserver --connection "Provider=MSDASQL;Data Source=prueba" scripts/GestionSQL1.cfc

Exit codes: 0 fine, 1 something found or failed, 2 a command line or file that cannot be read.
)";

constexpr std::string_view kCheck = R"(qvrscript check [--engine jet|sqlserver|oracle] [--json] FOLDER|FILE...

Looks over scripts and writes a line for whatever the runner would do that you may not mean:

  scripts/GestionSQL1.cfc:41: "GO;" separates nothing: the line must hold only GO [go-semicolon]

A folder stands for all its .cfc files, and their names are looked at too. The engine is told by the file's name
(JET, SQL or ORA before the end); --engine tells it for files that are named otherwise. Files of unknown engine are
taken for SQL Server's.

Separators
  go-in-comment, go-in-string   a GO line cuts a command in two wherever it stands
  unclosed-comment, unclosed-string
  go-count, go-semicolon, go-comment, go-blanks
                                "GO 5", "GO;", "GO --x", " GO " separate nothing
  go-first-line, go-twice       GO with no command before it is sent to the database
Commands
  empty-command, comment-command
  no-go, no-last-go             what no GO line follows is never run
Encoding and line ends
  byte-order-mark, utf-16, ansi-page, nul-byte, broken-encoding, empty-file
  lf-only, cr-only, mixed-line-ends
Placeholders
  placeholder-misspelt, placeholder-unknown, placeholder-of-oracle
Encryption (SQL Server): AS alone on its line becomes WITH ENCRYPTION AS
  not-encrypted, as-line, trigger-for-line, encryption-behind-with
Transactions (SQL Server)
  no-transaction                such as CREATE DATABASE, BACKUP or RECONFIGURE
Names in a folder
  name-missed                   no definition and no update finds this file
  version-gap, version-overlap, version-backwards, version-digits, version-zero

Examples:
  qvrscript check scripts                          every script of a folder
  qvrscript check --engine oracle tablas.txt       one file, whatever its name
  qvrscript check --json scripts > findings.json   {"command","files","findings":[{"file","line","rule","message"}],
                                                    "unreadable":[]}; line 0 is the whole file

Exit codes: 0 nothing found, 1 findings, 2 a file that cannot be read or a folder without scripts.
)";

constexpr std::string_view kList =
    R"(qvrscript list [--engine jet|sqlserver|oracle] [--from VERSION] [--json] FOLDER NAME

Shows what would be run, in order, and how many commands begin in each file. Without --from, NAME is the name of a
definition and its files are NAME, the engine's tag, one character, .cfc:

  qvrscript list scripts Gestion
    Gestion, definition, SQL Server: 2 files, 14 commands
      GestionSQL1.cfc: 10 commands
      GestionSQL2.cfc: 4 commands

With --from, NAME is an application and its files are NAME, two versions of five digits with an "a" between, the tag,
.cfc. Every file from that version on is taken; one must begin with exactly it:

  qvrscript list scripts Gestion --engine sqlserver --from 10024
    Gestion, update from 10024, SQL Server: 2 files, 5 commands
      Gestion10024a10025SQL.cfc: 3 commands
      Gestion10025a10026SQL.cfc: 2 commands

Without --engine all engines are shown that have files. With --json: {"command","name","from","engines":[{"engine",
"runs","commands","files":[{"name","commands","readable"}]}]}.

Exit codes: 0 something would be run, 1 nothing would, 2 no such folder.
)";

constexpr std::string_view kRun =
    R"(qvrscript run --engine jet|sqlserver|oracle --connection STRING [--no-transaction] [--continue] [--json] FILE

Runs a script as the library does: a connection of its own, one transaction, the commands one after the other. When one
fails, the failure is written to the error output and everything is taken back.

  --connection STRING   as ADO takes it. On Windows the system's ADO opens it. Elsewhere it goes to ODBC:
                        "Provider=MSDASQL;Data Source=NAME;User ID=...;Password=..." or
                        "Provider=MSDASQL;Extended Properties=\"DRIVER={...};...\"". Others can see the arguments of a
                        program while it runs: a data source need not have its password there.
  --no-transaction      what ran stays, whatever comes after (the identification EvitarTransaccion)
  --continue            answers yes to the runner's question: a command that fails is left out and the others run. The
                        run then counts as done; see the error output for what failed

The file is run as it is: placeholders such as [NombreBD] stay, and nothing is encrypted.

  qvrscript run --engine sqlserver --connection "Provider=MSDASQL;Data Source=prueba" GestionSQL1.cfc
  qvrscript run --engine jet --continue --connection "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=c:\a.mdb" arreglo.cfc
  qvrscript run --engine oracle --connection "Provider=MSDASQL;Data Source=ora" --json carga.cfc

On a terminal a bar shows how far it is, otherwise a line is written for each command. With --json: {"command","file",
"success","executed","total","transaction","failures":[]}.

Exit codes: 0 done, 1 failed, 2 a command line or file that cannot be read.
)";

constexpr std::string_view kDoctor = R"(qvrscript doctor [--json]

Looks this machine over for what the library needs in programs of this program's width, and says in a sentence what to
do where something is missing. Run the qvrscript.exe of the width that the application has: a provider, a component or
a registration of the other width is of no use to it.

  error  registration   64-bit programs, for the user: leads to D:\old\QVRlib21.dll, which is not there
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

A note is worth knowing and fails nothing. Nothing is changed, and no connection is opened. Elsewhere than on Windows
only process and language can be told.

  qvrscript doctor
  qvrscript doctor --json        {"command","errors","findings":[{"level","subject","message","advice"}]}

Exit codes: 0 no errors, 1 errors found, 2 a command line that cannot be read.
)";

}  // namespace

std::string_view help_text(std::optional<Action> topic) {
  if (topic == Action::Check) return kCheck;
  if (topic == Action::List) return kList;
  if (topic == Action::Run) return kRun;
  if (topic == Action::Doctor) return kDoctor;
  return kProgram;
}

}  // namespace qvr::script_tool
