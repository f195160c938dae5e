#include "database.h"

#include "ado.h"
#include "update_commands.h"

namespace list_form {
namespace {

using qvrlib21::Failure;

constexpr const wchar_t* kId = L"list form of QVRlib21";
constexpr const wchar_t* kFile = L"list_form";
constexpr long kHalfMade = -1;

qvrlib21::QVRcfp opened_parameters(const Access& access) {
  auto parameters = qvrlib21::create<qvrlib21::QVRcfp>();
  if (parameters.Crear(kId, access.folder, kFile)) return parameters;
  const auto made = qvrlib21::create<qvrlib21::QVRcfp>();
  const bool kept = made.Asignar(kId, qvrlib21::MotorBDSQLServer, access.provider, L"(local)", L"tempdb", L"", L"", L"",
                                 L"", access.options) &&
                    made.Guardar(kId, access.folder, kFile);
  parameters = qvrlib21::create<qvrlib21::QVRcfp>();
  if (!kept || !parameters.Crear(kId, access.folder, kFile)) {
    throw Problem(L"The connection file in " + access.folder + L" can be neither read nor written.");
  }
  return parameters;
}

// Of a message "...: 3/20". Before each command the library tells how many have succeeded so far.
struct Progress {
  long done = 0, all = 0;

  bool read(const std::wstring& message) {
    const std::size_t colon = message.rfind(L": ");
    return colon != std::wstring::npos && swscanf(message.c_str() + colon, L": %ld/%ld", &done, &all) == 2;
  }
};

}  // namespace

Database::Database(const Access& access) : parameters_(opened_parameters(access)) {}

std::wstring Database::connection_string() const { return parameters_.CadenaADO(kId, true); }

// 0 for a database that has nothing of this program yet.
long Database::version() const {
  const Connection connection(connection_string());
  try {
    const std::vector<Row> rows = connection.rows(L"SELECT Version FROM Esquema", 1);
    return rows.empty() ? 0 : static_cast<long>(rows.front().front().number());
  } catch (const Failure&) {
    return 0;
  }
}

bool Database::up_to_date() const {
  const long found = version();
  if (found == kHalfMade) throw Problem(L"The database is half made: an update of it left commands out.");
  if (found > kVersion) throw Problem(L"The database is newer than this program.");
  return found == kVersion;
}

void Database::update(const std::function<void(long, long)>& progress) const {
  Progress last;
  const auto script = qvrlib21::create<qvrlib21::QVRScr>();
  const qvrlib21::ScriptEventsConnection events(script, {[&](const std::wstring& message) {
                                                           if (last.read(message)) progress(last.done, last.all);
                                                         },
                                                         [&](bool success) {
                                                           if (success) progress(last.all, last.all);
                                                         }});
  const bool ran = script.EjecutarComandos(kId, parameters_.MotorBD(), update_commands(parameters_),
                                           connection_string());
  check_update(ran, last.done == last.all - 1);
}

// Whoever answers that a run shall go on behind a failed command leaves that command out, and the run succeeds. Such a
// database is marked, so that no later start takes it for a whole one.
void Database::check_update(bool ran, bool whole) const {
  if (!ran) throw Problem(L"The database could not be brought up to date. Nothing of the update stays in it.");
  if (!whole) Connection(connection_string()).execute(L"UPDATE Esquema SET Version = " + std::to_wstring(kHalfMade));
  if (!up_to_date()) throw Problem(L"The database is not up to date after its update.");
}

}  // namespace list_form
