// The steps that need the library alone.
#include <fstream>

#include "qvrscript/doctor/try/trial.h"
#include "qvrscript/paths.h"

namespace qvr::script_tool {
namespace {

// A class and a member that answers without arguments.
struct TriedClass {
  TextView name, member, answer;  // empty: whatever is answered, both ways the same
};

constexpr TriedClass kClasses[] = {
    {u"Ov", u"CadenaVersion", u""},
    {u"QVRcfp", u"Archivo", u"\"\""},
    {u"QVRScr", u"UsuarioSegunMotor", u"\"sa\""},
    {u"QVRprp", u"NumPropiedades", u"0"},
    {u"cSQL20", u"Name", u"\"cSQL20\""},
    {u"uSQL20", u"Name", u"\"uSQL20\""},
};

Value late_answer(Trial& trial, const TriedClass& row) {
  const Tried object = Tried::of_library(trial.machine, row.name);
  if (row.name == u"QVRScr") return object.call(row.member, {number_of(Engine::SqlServer)});
  return row.name == u"Ov" ? object.call(row.member) : object.get(row.member);
}

void try_class(Trial& trial, const TriedClass& row) {
  const Text what = join({row.name, u".", row.member});
  const Text late = shown_value(late_answer(trial, row));
  if (!row.answer.empty()) expect_text(join({what, u" by name"}), row.answer, late);
  expect_text(join({what, u" by interface"}), late, shown_value(trial.machine.early_answer(row.name)));
}

constexpr TextView kIdentification = u"qvrscript doctor";
constexpr TextView kFile = u"prueba";

// Another byte in the middle of the file.
void damage(const Text& path) {
  std::fstream file(system_path(path), std::ios::binary | std::ios::in | std::ios::out);
  file.seekg(0, std::ios::end);
  const std::streamoff middle = file.tellg() / 2;
  file.seekg(middle);
  const int byte = file.get();
  file.seekp(middle);
  file.put(static_cast<char>(byte ^ 1));
  file.close();
  if (!file) throw StepFailure({u"The connection file could not be written to"});
}

Value loaded(Trial& trial, const Tried& parameters, TextView id) {
  return parameters.call(u"Crear", {Text(id), trial.folder, Text(kFile)});
}

struct TypedValue {
  TextView type;
  Value value;
  Text text;  // in which it is kept
};

Value query_columns() {
  Array columns;
  for (const TextView each : {u"C.Nombre", u"T+", u"P.Total", u"N>Importe"}) columns.items.emplace_back(Text(each));
  return columns;
}

Value query_relation() {
  Array relation;
  for (const TextView each : {u"C.Id", u"P.Cliente", u"I"}) relation.items.emplace_back(Text(each));
  return relation;
}

void create_query(const Tried& query, TextView where) {
  expect_value(u"Crear of a query", true,
               query.call(u"iSQL20_Crear", {number_of(Engine::SqlServer), Text(u"Clientes"), false, query_columns(),
                                            Text(u"Clientes C, Pedidos P"), query_relation(), Text(where),
                                            std::int16_t{0}, Text(), Text(u"C.Nombre")}));
}

void search(const Tried& query, TextView column, TextView typed) {
  expect_value(join({u"InterpretarBusqueda of ", column, u" for \"", typed, u"\""}), true,
               query.call(u"iSQL20_InterpretarBusqueda", {Text(column), Text(typed)}));
}

constexpr TextView kSelect =
    u"SELECT C.Nombre, P.Total As [Importe]  FROM Clientes C INNER JOIN Pedidos P ON C.Id=P.Cliente  WHERE ";

}  // namespace

StepAnswer try_classes(Trial& trial) {
  std::vector<Text> names;
  for (const TriedClass& row : kClasses) {
    try {
      try_class(trial, row);
    } catch (const RuntimeFailure& failure) {
      trial.without_library = names.empty();
      throw StepFailure({row.name, u", ", trial.machine.way(), u": expected an object that answers ", row.member,
                         u", came ", failure_text(failure.detail())});
    }
    names.emplace_back(row.name);
  }
  const Value path = Tried::of_library(trial.machine, u"Ov").call(u"PathCompleto");
  return {Level::Ok,
          join({join(names, u", "), u" by name and by interface, ", trial.machine.way(), u": ", shown_value(path)})};
}

StepAnswer try_connection_file(Trial& trial) {
  const Tried saved = Tried::of_library(trial.machine, u"QVRcfp");
  const Value id = Text(kIdentification);
  const Text source = u"Señal€1";
  expect_value(u"QVRcfp.Asignar", true,
               saved.call(u"Asignar", {id, number_of(Engine::SqlServer), Text(u"SQLOLEDB"), source, Text(u"C"),
                                       Text(u"a"), Text(u"k1"), Text(u"b"), Text(u"k2"), Text()}));
  expect_value(u"QVRcfp.Guardar", true, saved.call(u"Guardar", {id, trial.folder, Text(kFile)}));
  const Tried read = Tried::of_library(trial.machine, u"QVRcfp");
  expect_value(u"QVRcfp.Crear", true, loaded(trial, read, kIdentification));
  expect_value(u"QVRcfp.DataSource of the file that was saved", source, read.get(u"DataSource"));
  expect_value(u"QVRcfp.ClaveCli of the file that was saved", Text(u"k2"), read.get(u"ClaveCli", {id}));
  const Tried refused = Tried::of_library(trial.machine, u"QVRcfp");
  expect_value(u"QVRcfp.Crear with a wrong identification", false, loaded(trial, refused, u"another"));
  expect_value(u"QVRcfp.DataSource after that", Text(), refused.get(u"DataSource"));
  damage(join({trial.folder, u"\\", kFile, u".cfp"}));
  expect_value(u"QVRcfp.Crear of a damaged file", false, loaded(trial, refused, kIdentification));
  return {Level::Ok, u"A connection file was saved and loaded, and refused with a wrong identification and damaged"};
}

StepAnswer try_values(Trial& trial) {
  const Tried typed = Tried::of_library(trial.machine, u"QVRcfp");
  constexpr double kDay = 45657;  // 31 December 2024
  const TypedValue rows[] = {{u"N", -1234.5, u"-1234.5"},
                             {u"F", Date{kDay}, u"2024/12/31"},
                             {u"L", true, u"1"},
                             {u"L", false, u"0"},
                             {u"T", Text(u"Año 5€ Ж"), u"Año 5€ Ж"}};
  for (const TypedValue& row : rows) {
    const Value type = Text(row.type);
    const Value text = typed.call(u"ValorATexto", {type, row.value});
    expect_value(join({u"QVRcfp.ValorATexto of type ", row.type}), row.text, text);
    expect_value(join({u"QVRcfp.TextoAValor of type ", row.type}), row.value, typed.call(u"TextoAValor", {type, text}));
  }
  // What users read is written as their regional settings say.
  const Text number = join({u"1234", trial.machine.decimal_sign(), u"5"});
  expect_value(u"The text of a number", number, typed.call(u"ValorATexto", {Text(u"T"), 1234.5}));
  const Value date = typed.call(u"ValorATexto", {Text(u"T"), Date{kDay}});
  expect_value(join({u"The date ", shown_value(date), u" read again"}), Date{kDay},
               typed.call(u"TextoAValor", {Text(u"F"), date}));
  const Text* const day = date.as<Text>();
  return {Level::Ok,
          join({u"Numbers, dates, truth and text are written and read again; for ", trial.machine.locale_name(),
                u" users read ", number, u" and ", day == nullptr ? TextView() : TextView(*day)})};
}

StepAnswer try_queries(Trial& trial) {
  const Tried one = Tried::of_library(trial.machine, u"cSQL20");
  create_query(one, u"C.Baja=0");
  search(one, u"Nombre", u"ana");
  search(one, u"Importe", u">=10");
  expect_value(u"cSQL20.iSQL20_SQL",
               join({kSelect,
                     u"C.Baja=0 And ( UPPER(C.Nombre) LIKE UPPER(N'%ana%')) and (P.Total>= 10)   ORDER BY C.Nombre"}),
               one.get(u"iSQL20_SQL"));
  const Tried several = Tried::of_library(trial.machine, u"uSQL20");
  create_query(several, u"C.Baja=0");
  create_query(several, u"C.Baja=1");
  search(several, u"Nombre", u"ana");
  constexpr TextView kAna = u" And ( UPPER(C.Nombre) LIKE UPPER(N'%ana%'))   ";
  expect_value(u"uSQL20.iSQL20_SQL",
               join({kSelect, u"C.Baja=0", kAna, u"UNION ", kSelect, u"C.Baja=1", kAna, u"ORDER BY C.Nombre"}),
               several.get(u"iSQL20_SQL"));
  return {Level::Ok, u"A query of one SELECT and one of two were made and narrowed by searches"};
}

}  // namespace qvr::script_tool
