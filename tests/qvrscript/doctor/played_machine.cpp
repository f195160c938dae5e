#include "doctor/played_machine.h"

#include <fstream>

#include "base/failure.h"
#include "qvrscript/paths.h"

namespace qvr {
namespace {

using namespace script_tool;

tests::PlayedLibrary* library = nullptr;

struct PlayedObject : Object {
  explicit PlayedObject(TextView name) : class_name(name) {}
  const Text class_name;
  TriedMachine::Heard heard;
  Value count;  // of a set of rows
  Text source;
  bool loaded = false;
  int members = 0;
};

PlayedObject& played(const Value& value) { return dynamic_cast<PlayedObject&>(**value.as<ObjectRef>()); }

Value new_object(TextView name) { return ObjectRef(std::make_shared<PlayedObject>(name)); }

Text text_of(const Value& value) { return value.as<Text>() == nullptr ? Text() : *value.as<Text>(); }

constexpr TextView kSelect =
    u"SELECT C.Nombre, P.Total As [Importe]  FROM Clientes C INNER JOIN Pedidos P ON C.Id=P.Cliente  WHERE ";

Text statement_of(const PlayedObject& query) {
  constexpr TextView kAna = u" And ( UPPER(C.Nombre) LIKE UPPER(N'%ana%'))";
  if (query.members < 2) return join({kSelect, u"C.Baja=0", kAna, u" and (P.Total>= 10)   ORDER BY C.Nombre"});
  return join({kSelect, u"C.Baja=0", kAna, u"   UNION ", kSelect, u"C.Baja=1", kAna, u"   ORDER BY C.Nombre"});
}

class PlayedMachine final : public TriedMachine {
 public:
  Text way() override { return u"as played"; }
  Value created(TextView class_name) override { return made(class_name); }
  Value created_elsewhere(TextView program_id) override { return made(program_id); }
  Value early_answer(TextView class_name) override { return answered(class_name, u"early", asked(class_name)); }

  Value use(const Value& object, Access, TextView member, std::vector<Value> arguments) override {
    PlayedObject& self = played(object);
    return answered(self.class_name, member, answer(self, object, member, arguments));
  }
  Value changed_by(const Value&, TextView, std::vector<Value>, Array& last) override {
    last.items.at(1) = answered(u"QVRcfp", u"output", std::int32_t{8});
    return true;
  }
  std::shared_ptr<void> listen(const Value& runner, Heard heard) override {
    played(runner).heard = std::move(heard);
    return {};
  }
  Boxes boxes() override { return library->boxes; }
  void answer_questions(bool yes) override { yes_ = yes; }
  Text locale_name() override { return u"es-ES"; }
  Text decimal_sign() override { return u","; }
  Text path_for_drivers(TextView path) override { return Text(path); }

 private:
  static Value made(TextView name) {
    if (library->instead.contains(Text(name))) throw RuntimeFailure(failure_number::kCannotCreateObject);
    return new_object(name);
  }
  static Value answered(TextView class_name, TextView member, Value right) {
    const auto instead = library->instead.find(join({class_name, u".", member}));
    return instead == library->instead.end() ? right : instead->second;
  }
  static Value asked(TextView class_name) {
    if (class_name == u"QVRprp") return std::int32_t{0};
    if (class_name == u"QVRScr") return Text(u"sa");
    if (class_name == u"QVRcfp") return Text();
    return class_name == u"Ov" ? Text(u"2.10.24") : Text(class_name);
  }

  Value answer(PlayedObject& self, const Value& object, TextView member, const std::vector<Value>& arguments) {
    if (self.class_name == u"QVRcfp") return answer_of_file(self, member, arguments);
    if (self.class_name == u"QVRScr" && member == u"EjecutarComandos") return run(self, text_of(arguments.at(2)));
    if (self.class_name == u"cSQL20" || self.class_name == u"uSQL20") {
      if (member == u"iSQL20_Crear") ++self.members;
      if (member == u"iSQL20_SQL") return statement_of(self);
      return member == u"Name" ? asked(self.class_name) : Value(true);
    }
    if (member == u"PathCompleto") return Text(u"C:\\q\\QVRlib21.dll");
    if (member == u"Execute") return executed(text_of(arguments.at(0)));
    if (member == u"Value") return self.count;
    if (member == u"Fields" || member == u"Item" || member == u"ActiveConnection") return object;
    return asked(self.class_name);
  }

  static Value answer_of_file(PlayedObject& self, TextView member, const std::vector<Value>& arguments) {
    if (member == u"Guardar") {
      library->folder = text_of(arguments.at(1));
      if (library->while_saving) library->while_saving();
      std::ofstream(system_path(join({library->folder, u"\\", text_of(arguments.at(2)), u".cfp"}))) << "abc";
    }
    if (member == u"Crear") return self.loaded = whole(arguments);
    if (member == u"DataSource") return Text(self.loaded ? u"Señal€1" : u"");
    if (member == u"ClaveCli") return Text(u"k2");
    if (member == u"Archivo") return Text();
    if (member == u"ValorATexto") return typed(arguments.at(0), arguments.at(1));
    if (member == u"TextoAValor") return value_of(text_of(arguments.at(0)), text_of(arguments.at(1)));
    return true;
  }
  static bool whole(const std::vector<Value>& arguments) {
    std::ifstream file(system_path(join({text_of(arguments.at(1)), u"\\", text_of(arguments.at(2)), u".cfp"})));
    std::string bytes;
    return file >> bytes && bytes == "abc" && text_of(arguments.at(0)) == u"qvrscript doctor";
  }
  static Value typed(const Value& type, const Value& value) {
    if (value.is<double>()) return Text(text_of(type) == u"T" ? u"1234,5" : u"-1234.5");
    if (value.is<Date>()) return Text(text_of(type) == u"T" ? u"31/12/2024" : u"2024/12/31");
    if (value.is<bool>()) return Text(*value.as<bool>() ? u"1" : u"0");
    return value;
  }
  static Value value_of(const Text& type, const Text& text) {
    if (type == u"N") return -1234.5;
    if (type == u"F") return Date{45657};
    return type == u"L" ? Value(text == u"1") : Value(text);
  }

  Value executed(const Text& statement) {
    library->statements.push_back(statement);
    if (!library->refused.empty() && statement.find(library->refused) != Text::npos) {
      throw RuntimeFailure(failure_number::kInvalidArgument, u"refused");
    }
    if (statement.starts_with(u"INSERT")) ++rows_;
    if (statement.starts_with(u"DELETE")) rows_ = 0;
    const Value set = new_object(u"rows");
    played(set).count = rows_;
    return set;
  }

  bool run(PlayedObject& runner, const Text& commands) {
    const bool mistake = commands.find(u"_missing") != Text::npos;
    const bool success = !mistake || yes_;
    for (const TextView each :
         {u"Contando", u"qvrscript: 0/3", library->in_order ? u"qvrscript: 1/3" : u"qvrscript: 2/3",
          library->in_order ? u"qvrscript: 2/3" : u"qvrscript: 1/3"}) {
      runner.heard(1, Text(each));
    }
    if (success || !library->undoes) rows_ += mistake ? 2 : 3;
    for (int i = 0; i < library->ends; ++i) runner.heard(2, success);
    return success;
  }

  bool yes_ = false;
  std::int32_t rows_ = 0;
};

}  // namespace

std::unique_ptr<TriedMachine> script_tool::machine_to_try() {
  return library == nullptr ? nullptr : std::make_unique<PlayedMachine>();
}

void tests::set_library(PlayedLibrary* played_library) { library = played_library; }

}  // namespace qvr
