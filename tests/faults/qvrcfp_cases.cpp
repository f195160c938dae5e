// QVRcfp, and the library's own text protection under it.
#include "connection/qvrcfp.h"

#include <algorithm>
#include <filesystem>

#include "connection/sample_parameters.h"
#include "dialect/dialect_fixture.h"
#include "faults/fault_case.h"
#include "faults/run_log.h"
#include "services/builtin_text_protection.h"
#include "support/temporary_folder.h"

namespace qvr::tests {
namespace {

constexpr TextView kFolder = u"C:\\Program Files\\Gestion", kName = u"Production", kId = u"the identification";

const Value kMoment = Date{40548.5}, kText = u"a text to write", kDayInText = u"05/01/2011";
const Value kPairs = list(
    {u"a first value", u"a first result", u"a second value", u"a second result", u"any other one"});
const Value kTriples = list({u"Clientes.Id", u"Pedidos.IdCliente", u"L", u"Pedidos.Id", u"Lineas.IdPedido", u"I"});
const Value kFields = list({u"Nombre del cliente", u"Alta", u"Importe"});
const Value kValues = list({u"O'Hara y compa\u00f1\u00eda", Date{40548}, 1234567.0625});

Lines texts_of(const QVRcfp& cfp) {
  Lines all;
  for (const Text* field :
       {&cfp.Archivo(), &cfp.Provider(), &cfp.DataSource(), &cfp.InitialCatalogOTablespace(), &cfp.UsuarioAdm(),
        &cfp.ClaveAdm(kId), &cfp.UsuarioCli(), &cfp.ClaveCli(kId), &cfp.OtrosParametros()}) {
    all.push_back(shown(*field));
  }
  return all;
}

// An object with parameters, and a file in memory that holds others.
struct Cfp {
  Cfp() {
    thread.files.keep_in_memory();
    ConnectionParameters other = sample_parameters();
    other.Provider = u"A provider that is in the file only";
    QVRcfp writer;
    writer.Asignar(kId, other);
    writer.Guardar(kId, kFolder, kName);
    cfp.Asignar(kId, sample_parameters());
  }
  Lines texts() {
    Lines all = texts_of(cfp);
    for (const auto& [path, bytes] : thread.files.memory) all.insert(all.end(), {shown(path), bytes});
    return all;
  }
  TestThread thread;
  QVRcfp cfp;
};

struct NamedCfp : Cfp {
  NamedCfp() { cfp.Guardar(kId, kFolder, u"Named"); }
};

std::string open_descriptors() {
  const std::filesystem::directory_iterator all("/proc/self/fd");
  return std::to_string(std::distance(begin(all), end(all))) + " open files";
}

// The same over files of the system.
struct SystemCfp {
  SystemCfp() {
    cfp.Asignar(kId, sample_parameters());
    folder.write(kOverwritten, "what was there");
  }
  Lines texts() {
    Lines all = texts_of(cfp);
    all.insert(all.end(), {folder.read(kOverwritten), open_descriptors()});
    return all;
  }
  static constexpr TextView kOverwritten = u"An older one.cfp";
  TestThread thread;
  TemporaryFolder folder;
  const Text path = folder.text();
  QVRcfp cfp;
};

struct WrittenCfp : SystemCfp {
  WrittenCfp() { cfp.Guardar(kId, path, kName); }
};

// The system's cryptography, with a key that is quickly derived.
struct QuickCryptography final : Cryptography {
  std::unique_ptr<BlockCipher> aes(Bytes key) override { return system_platform().cryptography.aes(key); }
  void pbkdf2_hmac_sha256(Bytes password, Bytes salt, std::uint32_t, MutableBytes derived) override {
    system_platform().cryptography.pbkdf2_hmac_sha256(password, salt, 1, derived);
  }
  void wipe(MutableBytes secret) override { system_platform().cryptography.wipe(secret); }
};

struct Protection {
  Lines texts() { return {shown(protection.Cifrar(u"", u"a text without an identification"))}; }
  TestThread thread;
  QuickCryptography cryptography;
  services::BuiltinTextProtection protection{cryptography};
};

// What ended processes left is looked for when the file is saved: without memory it stays, and the file is saved.
FaultCase with_cleaning(FaultCase row) {
  row.may_succeed = true;
  return row;
}

template <class Call>
FaultCase on(const char* name, Call call) {
  return fault_case<Cfp>(name, [call](Cfp& f) { return call(f.cfp); });
}

FaultCases property_cases() {
  return {
      fault_case<NamedCfp>("QVRcfp.Archivo", [](NamedCfp& f) { return TextView(f.cfp.Archivo()); }),
      on("QVRcfp.MotorBD", [](QVRcfp& f) { return f.MotorBD(); }),
      on("QVRcfp.Provider", [](QVRcfp& f) { return TextView(f.Provider()); }),
      on("QVRcfp.DataSource", [](QVRcfp& f) { return TextView(f.DataSource()); }),
      on("QVRcfp.InitialCatalogOTablespace", [](QVRcfp& f) { return TextView(f.InitialCatalogOTablespace()); }),
      on("QVRcfp.UsuarioAdm", [](QVRcfp& f) { return TextView(f.UsuarioAdm()); }),
      on("QVRcfp.UsuarioCli", [](QVRcfp& f) { return TextView(f.UsuarioCli()); }),
      on("QVRcfp.OtrosParametros", [](QVRcfp& f) { return TextView(f.OtrosParametros()); }),
      on("QVRcfp.ClaveAdm", [](QVRcfp& f) { return TextView(f.ClaveAdm(kId)); }),
      on("QVRcfp.ClaveCli", [](QVRcfp& f) { return TextView(f.ClaveCli(kId)); }),
  };
}

FaultCases file_cases() {
  static const ConnectionParameters kOther{Engine::Oracle,           u"",
                                           u"MSDAORA.1 as provider", u"A data source",
                                           u"A tablespace",          u"An administrator",
                                           u"A password of it",      u"A client",
                                           u"Another password",      u"Mode=ReadWrite"};
  const Text written = Protection().protection.Cifrar(kId, u"a text to protect");
  return {
      on("QVRcfp.Asignar", [](QVRcfp& f) { return f.Asignar(kId, kOther); }),
      on("QVRcfp.Crear", [](QVRcfp& f) { return f.Crear(kId, kFolder, kName); }),
      on("QVRcfp.Guardar", [](QVRcfp& f) { return f.Guardar(kId, kFolder, kName); }),
      fault_case<NamedCfp>("QVRcfp.Guardar, a new file",
                           [](NamedCfp& f) { return f.cfp.Guardar(kId, kFolder, u"Another connection"); }),
      with_cleaning(fault_case<SystemCfp>("QVRcfp.Guardar, over the system",
                                          [](SystemCfp& f) { return f.cfp.Guardar(kId, f.path, u"An older one"); })),
      fault_case<WrittenCfp>("QVRcfp.Crear, over the system",
                             [](WrittenCfp& f) { return f.cfp.Crear(kId, f.path, kName); }),
      fault_case<Protection>("BuiltinTextProtection.Cifrar",
                             [](Protection& f) {
                               return or_default({}, Text(),
                                                 [&] { return f.protection.Cifrar(kId, u"a text to protect"); });
                             }),
      fault_case<Protection>("BuiltinTextProtection.Descifrar",
                             [written](Protection& f) {
                               return or_default({}, Text(), [&] { return f.protection.Descifrar(kId, written); });
                             }),
      on("QVRcfp.CadenaADO", [](QVRcfp& f) { return f.CadenaADO(kId, true); }),
      on("QVRcfp.CadenaADOUsuario", [](QVRcfp& f) { return f.CadenaADOUsuario(u"u", u"p"); }),
      on("QVRcfp.TextoAValor, text", [](QVRcfp& f) { return f.TextoAValor(u"T", u"a text to keep"); }),
      on("QVRcfp.TextoAValor, number", [](QVRcfp& f) { return f.TextoAValor(u"N", u"1234567.06250000000000"); }),
      on("QVRcfp.TextoAValor, date", [](QVRcfp& f) { return f.TextoAValor(u"F", u"10/01/2021 12:00:00"); }),
      on("QVRcfp.ValorATexto, text", [](QVRcfp& f) { return f.ValorATexto(u"T", kText); }),
      on("QVRcfp.ValorATexto, number", [](QVRcfp& f) { return f.ValorATexto(u"N", 1234567.0625); }),
      on("QVRcfp.ValorATexto, date", [](QVRcfp& f) { return f.ValorATexto(u"F", Date{44206.5}); }),
  };
}

template <Engine engine>
struct Sql {
  Sql() {
    ConnectionParameters of_engine;
    of_engine.MotorBD = engine;
    cfp.Asignar(u"id", of_engine);
    thread.boxes.always = BoxAnswer::Ok;
    thread.ado.procedure_outputs = {{0, 0}, {1, 7}, {2, u"a text that comes back"}};
  }
  Lines texts() {
    Lines all;
    for (const Value& item : parameters.as<Array>()->items) all.push_back(describe(item));
    return all;
  }
  TestThread thread;
  QVRcfp cfp;
  std::unique_ptr<services::AdoConnection> connection = thread.ado.new_connection();
  std::unique_ptr<services::AdoCommand> command = thread.ado.new_command();
  Value parameters = list({5, u"a text that goes there"});
};
using Jet = Sql<Engine::Jet>;
using Server = Sql<Engine::SqlServer>;
using Oracle = Sql<Engine::Oracle>;

template <class Fixture, class Call>
FaultCase sql(const char* name, Call call) {
  return fault_case<Fixture>(name, [call](Fixture& f) { return call(f.cfp); });
}

FaultCases literal_cases() {
  return {
      sql<Jet>("QVRcfp.ComillasSQL", [](QVRcfp& f) { return f.ComillasSQL(u"O'Hara y compa\u00f1\u00eda"); }),
      sql<Jet>("QVRcfp.ExpSQL, text", [](QVRcfp& f) { return f.ExpSQL(kText); }),
      sql<Oracle>("QVRcfp.ExpSQL, number", [](QVRcfp& f) { return f.ExpSQL(1234567.0625); }),
      sql<Oracle>("QVRcfp.ExpSQL, amount", [](QVRcfp& f) { return f.ExpSQL(Currency{-1234567890001}); }),
      sql<Server>("QVRcfp.ExpSQL, date", [](QVRcfp& f) { return f.ExpSQL(kMoment); }),
      sql<Sql<kNoEngine>>("QVRcfp.ExpSQL, no engine", [](QVRcfp& f) { return f.ExpSQL(true); }),
      sql<Jet>("QVRcfp.FechaSQL", [](QVRcfp& f) { return f.FechaSQL(kMoment); }),
      sql<Server>("QVRcfp.HoraSQL", [](QVRcfp& f) { return f.HoraSQL(kMoment); }),
      sql<Oracle>("QVRcfp.FechaHoraSQL", [](QVRcfp& f) { return f.FechaHoraSQL(kMoment); }),
      sql<Oracle>("QVRcfp.FechaSQLv", [](QVRcfp& f) { return f.FechaSQLv(kDayInText); }),
      sql<Jet>("QVRcfp.LogicoSQL", [](QVRcfp& f) { return f.LogicoSQL(false); }),
      sql<Server>("QVRcfp.AhoraSQL", [](QVRcfp& f) { return f.AhoraSQL(); }),
      sql<Jet>("QVRcfp.sqlEsTrue", [](QVRcfp& f) { return f.sqlEsTrue(u"Clientes.Baja"); }),
      sql<Jet>("QVRcfp.sqlEsFalse", [](QVRcfp& f) { return f.sqlEsFalse(u"Clientes.Baja"); }),
      sql<Jet>("QVRcfp.sqlFalse", [](QVRcfp& f) { return f.sqlFalse(); }),
      sql<Server>("QVRcfp.CadenaParaLikeSQL",
                  [](QVRcfp& f) { return f.CadenaParaLikeSQL(u"Mart%nez y otros", true, true); }),
      sql<Oracle>("QVRcfp.sqlFechaSistema", [](QVRcfp& f) { return f.sqlFechaSistema(); }),
  };
}

FaultCases clause_cases() {
  static const Value kTwo = list({u"Clientes.Id", u"Pedidos.Id"}), kNothing = list({}),
                     kPieces = list({u"O'Hara", u"y compa\u00f1\u00eda", 1234567.0625});
  const auto relations = [](const Value& triples) {
    return [&triples](QVRcfp& f) { return answer_of([&] { return f.sqlWhereRelacionTablas(triples); }); };
  };
  const auto concatenation = [](const Value& pieces) {
    return [&pieces](QVRcfp& f) { return answer_of([&] { return f.sqlConcatenar(pieces); }); };
  };
  return {
      sql<Server>("QVRcfp.sqlTOP", [](QVRcfp& f) { return f.sqlTOP(1000000); }),
      sql<Oracle>("QVRcfp.sqlRowNum", [](QVRcfp& f) { return f.sqlRowNum(1000000, true); }),
      sql<Oracle>("QVRcfp.sqlWhereRelacionTablas", relations(kTriples)),
      sql<Oracle>("QVRcfp.sqlWhereRelacionTablas, no triples", relations(kTwo)),
      sql<Jet>("QVRcfp.sqlWhereRelacionTablas, Jet", relations(kTriples)),
      sql<Jet>("QVRcfp.sqlAlias", [](QVRcfp& f) { return f.sqlAlias(u"Nombre del cliente"); }),
      sql<Server>("QVRcfp.sqlConcatenar", concatenation(kPieces)),
      sql<Server>("QVRcfp.sqlConcatenar, nothing", concatenation(kNothing)),
      sql<Server>("QVRcfp.sqlEsNulo", [](QVRcfp& f) { return f.sqlEsNulo(u"Clientes.Nombre", u"Clientes.Alias"); }),
      sql<Server>("QVRcfp.sqlCASE", [](QVRcfp& f) { return f.sqlCASE(u"Clientes.Clase", kPairs); }),
      sql<Oracle>("QVRcfp.sqlCASE, Oracle", [](QVRcfp& f) { return f.sqlCASE(u"Clientes.Clase", kPairs); }),
      sql<Server>("QVRcfp.SqlINSERT", [](QVRcfp& f) { return f.SqlINSERT(u"Clientes", kValues); }),
      sql<Server>("QVRcfp.SqlUPDATE",
                  [](QVRcfp& f) { return f.SqlUPDATE(u"Clientes", u"Id", 1000000, kFields, kValues); }),
      sql<Jet>("QVRcfp.SqlInsert2", [](QVRcfp& f) { return f.SqlInsert2(u"Clientes", kFields, kValues); }),
      sql<Oracle>("QVRcfp.SqlUpdate2",
                  [](QVRcfp& f) { return f.SqlUpdate2(u"Clientes", kFields, kValues, u"Clientes.Id=1000000"); }),
  };
}

// What was made is released.
void check_objects(const Lines& log, const std::string&) {
  for (const std::string object : {"Command", "Parameter"}) {
    EXPECT_LE(lines_that_begin(log, object + " released"), lines_that_begin(log, "new " + object));
    EXPECT_TRUE(lines_that_begin(log, object + ".") == 0 || lines_that_begin(log, object + " released") == 1);
  }
}

// ADO finds the parameter improperly defined.
struct Refusing : Server {
  Refusing() {
    for (int n = 1; n <= 3; ++n) thread.ado.fail("Parameters.Append", n, {3708, u"improperly defined", u"ADODB"});
  }
};

FaultCases ado_cases() {
  const auto appending = [](const dialect::ParameterRequest& request) {
    return [request](auto& f) { return f.cfp.AgregarParametroADO(f.command.get(), request); };
  };
  FaultCases all = {
      fault_case<Server>("QVRcfp.EjecutarProcSQL7",
                         [](Server& f) {
                           return f.cfp.EjecutarProcSQL7(f.connection.get(), u"dbo.AltaCliente", f.parameters);
                         }),
      fault_case<Oracle>("QVRcfp.AgregarParametroADO",
                         appending({u"NVARCHAR", u"@NombreCliente", u"O'Hara y compa\u00f1\u00eda", 50, 1})),
      fault_case<Refusing>("QVRcfp.AgregarParametroADO, refused",
                           appending({u"NVARCHAR", u"@NombreCliente", Missing{}})),
      fault_case<Server>("QVRcfp.AgregarParametroADO, unexpected type",
                         appending({u"NVARCHAR2", u"@NombreCliente", Missing{}})),
  };
  for (FaultCase& row : all) row.check_log = check_objects;
  return all;
}

}  // namespace

FaultCases qvrcfp_cases() {
  FaultCases all = property_cases();
  for (auto* cases : {file_cases, literal_cases, clause_cases, ado_cases}) {
    std::ranges::move(cases(), std::back_inserter(all));
  }
  return all;
}

}  // namespace qvr::tests
