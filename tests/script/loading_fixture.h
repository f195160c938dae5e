// A runner over script files in memory; every file that its reader is asked for is a line of the log.
#pragma once

#include "script/script_fixture.h"
#include "script/script_preparation.h"
#include "services/builtin_script_reader.h"

namespace qvr::tests {

class LoggingReader final : public services::ScriptReader {
 public:
  LoggingReader(CallLog& log, Files& files) : log_(log), reader_(files) {}
  std::optional<Text> Leer(TextView ID, TextView Ruta) override {
    log_.add("Leer", join({ID, u"|", Ruta}));
    return reader_.Leer(ID, Ruta);
  }

 private:
  CallLog& log_;
  services::BuiltinScriptReader reader_;
};

class LoadingTest : public ScriptTest {
 protected:
  LoadingTest() {
    thread.files.keep_in_memory();
    thread.make_script_reader = [this] { return std::make_unique<LoggingReader>(thread.log, thread.files); };
  }

  Text path(TextView name) const { return join({folder, u"\\", name}); }
  void put(TextView name, std::string bytes) { thread.files.memory[path(name)] = std::move(bytes); }
  // Files that hold their own names.
  void put_names(std::initializer_list<TextView> names) {
    thread.files.memory.clear();
    for (TextView name : names) put(name, to_utf8(name));
  }

  Text definition(TextView name = u"Gestion") {
    return runner.CargarDefinicion(id, motor, folder, name, accounts, encrypt);
  }
  Text update(std::int32_t version, TextView application = u"Gestion") {
    return runner.CargarActualizacion(id, motor, folder, application, version, accounts, encrypt);
  }

  // What such files give, joined in this order.
  static Text joined(std::initializer_list<TextView> names) {
    Text text;
    for (TextView name : names) text.append(name).append(kLineBreak);
    return text;
  }
  Lines file_lines(TextView name) const {
    return {"Progreso: Procesando " + to_utf8(name), to_utf8(join({u"Leer: ", id, u"|", path(name)}))};
  }

  Text folder = u"C:\\Scripts";
  ScriptAccounts accounts{u"Ventas", u"adm", u"adm clave", u"cli", u"cli clave"};
  bool encrypt = false;
};

}  // namespace qvr::tests
