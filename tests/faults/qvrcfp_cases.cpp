// QVRcfp but for the members that write SQL.
#include <filesystem>

#include "connection/sample_parameters.h"
#include "faults/fault_case.h"
#include "services/builtin_text_protection.h"
#include "support/temporary_folder.h"

namespace qvr::tests {
namespace {

constexpr TextView kFolder = u"C:\\Program Files\\Gestion", kName = u"Production", kId = u"the identification";
constexpr TextView kOtherName = u"Another connection";

std::string shown_fields(const QVRcfp& cfp) {
  std::string all = std::to_string(cfp.MotorBD());
  for (const Text* field :
       {&cfp.Archivo(), &cfp.Provider(), &cfp.DataSource(), &cfp.InitialCatalogOTablespace(), &cfp.UsuarioAdm(),
        &cfp.ClaveAdm(kId), &cfp.UsuarioCli(), &cfp.ClaveCli(kId), &cfp.OtrosParametros()}) {
    all += "|" + shown(*field);
  }
  return all + "|" + shown(cfp.CadenaADO(kId, true));
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
  std::string state() {
    std::string all = shown_fields(cfp);
    for (const auto& [path, bytes] : thread.files.memory) all += "\n" + shown(path) + "\n" + bytes;
    return all;
  }
  // As an object without parameters shows itself.
  std::string emptied() {
    cfp.Crear(kId, u"", u"");
    return state();
  }
  TestThread thread;
  QVRcfp cfp;
};

// One that has the name of its file already.
struct NamedCfp : Cfp {
  NamedCfp() { cfp.Guardar(kId, kFolder, u"Named"); }
};

// The system's cryptography, with a key that is quickly derived.
struct QuickCryptography final : Cryptography {
  std::unique_ptr<BlockCipher> aes(Bytes key) override { return system_platform().cryptography.aes(key); }
  void pbkdf2_hmac_sha256(Bytes password, Bytes salt, std::uint32_t, MutableBytes derived) override {
    system_platform().cryptography.pbkdf2_hmac_sha256(password, salt, 1, derived);
  }
  void wipe(MutableBytes secret) override { system_platform().cryptography.wipe(secret); }
};

int open_descriptors() {
  const std::filesystem::directory_iterator all("/proc/self/fd");
  return static_cast<int>(std::distance(begin(all), end(all)));
}

// The same behind the library's own text protection and over a file of the system.
struct SystemCfp {
  SystemCfp() {
    thread.make_text_protection = [this] { return std::make_unique<services::BuiltinTextProtection>(cryptography); };
    cfp.Asignar(kId, sample_parameters());
    cfp.Guardar(kId, folder.text(), kName);
    folder.write(kOverwritten, "what was there");
  }
  std::string state() {
    return shown_fields(cfp) + folder.read(kOverwritten) + std::to_string(open_descriptors() - descriptors);
  }
  static constexpr TextView kOverwritten = u"An older one.cfp";
  const int descriptors = open_descriptors();
  QuickCryptography cryptography;
  TestThread thread;
  TemporaryFolder folder;
  const Text path = folder.text();
  QVRcfp cfp;
};

// The library's own text protection. Its state is what it makes of a text without an identification.
struct Protection {
  std::string state() { return shown(protection.Cifrar(u"", u"a text")); }
  TestThread thread;
  QuickCryptography cryptography;
  services::BuiltinTextProtection protection{cryptography};
};

template <class Call>
FaultCase on(const char* name, std::string expected, Texts failures, Call call) {
  return fault_case<Cfp>(name, std::move(expected), std::move(failures), call);
}

// What needs no memory.
FaultCase plain(FaultCase row) {
  row.allocates = false;
  return row;
}

template <class Call>
FaultCase getter(const char* name, std::string expected, Call call) {
  return plain(on(name, std::move(expected), {}, call));
}

FaultCase emptying(FaultCase row) {
  row.leaves = Failed::Emptied;
  row.emptied = Cfp().emptied();
  return row;
}

std::vector<FaultCase> property_cases() {
  return {
      getter("QVRcfp.Archivo", "", [](Cfp& f) { return TextView(f.cfp.Archivo()); }),
      getter("QVRcfp.MotorBD", "2", [](Cfp& f) { return f.cfp.MotorBD(); }),
      getter("QVRcfp.Provider", "SQLOLEDB", [](Cfp& f) { return TextView(f.cfp.Provider()); }),
      getter("QVRcfp.DataSource", "SRV01\\A\u00f1o", [](Cfp& f) { return TextView(f.cfp.DataSource()); }),
      getter("QVRcfp.InitialCatalogOTablespace", "Gesti\u00f3n",
             [](Cfp& f) { return TextView(f.cfp.InitialCatalogOTablespace()); }),
      getter("QVRcfp.UsuarioAdm", "sa", [](Cfp& f) { return TextView(f.cfp.UsuarioAdm()); }),
      getter("QVRcfp.UsuarioCli", "app", [](Cfp& f) { return TextView(f.cfp.UsuarioCli()); }),
      getter("QVRcfp.OtrosParametros", "Mode=Read", [](Cfp& f) { return TextView(f.cfp.OtrosParametros()); }),
      getter("QVRcfp.ClaveAdm", "S3cret, \"quoted\" ", [](Cfp& f) { return TextView(f.cfp.ClaveAdm(kId)); }),
      getter("QVRcfp.ClaveCli", "\u20ac\U0001f600", [](Cfp& f) { return TextView(f.cfp.ClaveCli(kId)); }),
  };
}

std::vector<FaultCase> text_cases() {
  const auto to_text = [](const char* name, const char* expected, TextView code, Value value) {
    return on(name, expected, {""}, [code, value](Cfp& f) { return f.cfp.ValorATexto(code, value); });
  };
  const auto to_value = [](const char* name, const char* expected, TextView code, TextView text) {
    return on(name, expected, {"Empty"}, [code, text](Cfp& f) { return f.cfp.TextoAValor(code, text); });
  };
  return {
      on("QVRcfp.CadenaADO",
         "Provider=SQLOLEDB;Data Source=\"SRV01\\A\u00f1o\";Persist Security Info=False;User ID=\"sa\";"
         "Password=\"S3cret, \"quoted\" \";Initial Catalog=Gesti\u00f3n;Mode=Read;",
         {""}, [](Cfp& f) { return f.cfp.CadenaADO(kId, true); }),
      on("QVRcfp.CadenaADOUsuario",
         "Provider=SQLOLEDB;Data Source=\"SRV01\\A\u00f1o\";Persist Security Info=False;User ID=\"u\";"
         "Password=\"p\";Initial Catalog=Gesti\u00f3n;Mode=Read;",
         {""}, [](Cfp& f) { return f.cfp.CadenaADOUsuario(u"u", u"p"); }),
      to_value("QVRcfp.TextoAValor, text", "String a text to keep", u"T", u"a text to keep"),
      to_value("QVRcfp.TextoAValor, number", "Double 1234567.0625", u"N", u"1234567.06250000000000"),
      to_value("QVRcfp.TextoAValor, date", "Date 44206.5", u"F", u"10/01/2021 12:00:00"),
      to_value("QVRcfp.TextoAValor, logical", "Boolean True", u"L", u"00000000000000000001"),
      to_text("QVRcfp.ValorATexto, text", "a text to keep", u"T", u"a text to keep"),
      to_text("QVRcfp.ValorATexto, number", "1234567.0625", u"N", 1234567.0625),
      to_text("QVRcfp.ValorATexto, number in a text", "1234567.0625", u"N", u"1234567.0625"),
      to_text("QVRcfp.ValorATexto, date", "2021/01/10", u"F", Date{44206.5}),
      plain(to_text("QVRcfp.ValorATexto, logical", "1", u"L", true)),
  };
}

}  // namespace

std::vector<FaultCase> qvrcfp_cases() {
  std::vector<FaultCase> all = property_cases();
  std::ranges::move(text_cases(), std::back_inserter(all));
  all.push_back(on("QVRcfp.Asignar", "True", {"False"}, [](Cfp& f) {
    static const ConnectionParameters kOther{3,
                                             u"",
                                             u"MSDAORA.1 as provider",
                                             u"A data source",
                                             u"A tablespace",
                                             u"An administrator",
                                             u"A password of it",
                                             u"A client",
                                             u"Another password",
                                             u"Mode=ReadWrite"};
    return f.cfp.Asignar(kId, kOther);
  }));
  all.push_back(
      emptying(on("QVRcfp.Crear", "True", {"False"}, [](Cfp& f) { return f.cfp.Crear(kId, kFolder, kName); })));
  all.push_back(fault_case<NamedCfp>("QVRcfp.Guardar", "True", {"False"},
                                     [](NamedCfp& f) { return f.cfp.Guardar(kId, kFolder, kName); }));
  all.push_back(fault_case<NamedCfp>("QVRcfp.Guardar, a new file", "True", {"False"},
                                     [](NamedCfp& f) { return f.cfp.Guardar(kId, kFolder, kOtherName); }));
  // `Archivo` has the name once the file can be opened.
  all.push_back(on("QVRcfp.Guardar, the first", "True", {"False"},
                   [](Cfp& f) { return f.cfp.Guardar(kId, kFolder, kOtherName); }));
  all.back().leaves = Failed::LineByLine;
  all.push_back(fault_case<SystemCfp>("QVRcfp.Guardar, over the system", "True", {"False"},
                                      [](SystemCfp& f) { return f.cfp.Guardar(kId, f.path, u"An older one"); }));
  all.push_back(fault_case<SystemCfp>("QVRcfp.Crear, over the system", "True", {"False"},
                                      [](SystemCfp& f) { return f.cfp.Crear(kId, f.path, kName); }));
  all.back().leaves = Failed::Emptied;
  all.back().emptied = "0||||||||||what was there0";
  const Text written = Protection().protection.Cifrar(kId, u"a text to protect");
  all.push_back(fault_case<Protection>("BuiltinTextProtection.Cifrar", shown(written), {"none"}, [](Protection& f) {
    return or_default(Text(u"none"), [&] { return f.protection.Cifrar(kId, u"a text to protect"); });
  }));
  all.push_back(fault_case<Protection>(
      "BuiltinTextProtection.Descifrar", "a text to protect", {"none"}, [written](Protection& f) {
        return or_default(Text(u"none"), [&] { return f.protection.Descifrar(kId, written); });
      }));
  return all;
}

}  // namespace qvr::tests
