#include "automation/stress/subjects.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "automation/arrays.h"

namespace qvr::tests {
namespace {

struct Row {
  const wchar_t *interface_name, *program_id;
  const char* state;
};

constexpr Row kRows[] = {
    {L"_Ov", L"QVRlib21.Ov", "BSTR QVRlib21.dll"},
    {L"_QVRcfp", L"QVRlib21.QVRcfp",
     "BSTR Provider=P;Data Source=\"D\";Persist Security Info=False;User ID=\"u\";Password=\"k\";Initial Catalog=C;o;"},
    {L"_iSQL20", L"QVRlib21.cSQL20", "BSTR SELECT C.Nombre, C.Alta  FROM Clientes C     "},
    {L"_cSQL20", L"QVRlib21.cSQL20", "BSTR SELECT C.Nombre, C.Alta  FROM Clientes C     "},
    {L"_uSQL20", L"QVRlib21.uSQL20", "I2 2"},
    {L"_QVRScr", L"QVRlib21.QVRScr", "BSTR sa"},
    {L"_QVRprp", L"QVRlib21.QVRprp", "BSTR v"},
};

const Row& row_of(const DescribedInterface& described) {
  const auto* found = std::ranges::find_if(kRows, [&](const Row& row) { return described.name == row.interface_name; });
  EXPECT_NE(found, std::end(kRows)) << "a row is missing for " << narrow(described.name);
  return found != std::end(kRows) ? *found : kRows[0];
}

LateObject object_for(const DescribedInterface& described) {
  const LateObject created(row_of(described).program_id);
  ComPtr<IDispatch> object;
  EXPECT_EQ(created.get()->QueryInterface(described.id, reinterpret_cast<void**>(&object)), S_OK);
  return LateObject(std::move(object));
}

Var columns() { return array_of({L"C.Nombre", L"T+", L"C.Alta", L"F+"}); }

struct NamedArgument {
  const wchar_t* name;
  Var (*value)();
};

// By the parameter's name; all others by their type.
const NamedArgument kNamedArguments[] = {
    {L"R", [] { return Var(work_folder()); }},
    {L"A", [] { return Var(L"hostile"); }},
    {L"Ruta", [] { return Var(work_folder()); }},
    {L"CadenaConexion", [] { return Var(L"Provider=NoSuchProvider"); }},
    {L"NombreCampoRS", [] { return Var(L"Nombre"); }},
    {L"TipoSQLServer", [] { return Var(L"NVARCHAR"); }},
    {L"TipoTNFL", [] { return Var(L"T"); }},
    {L"Tipo", [] { return Var(L"T"); }},
    {L"ColumnasSELECT", columns},
    {L"RelacionTablas",
     [] {
       return array_of({L"C.a", L"D.b", L"I"});
     }},
    {L"mCampo1Campo2Relacion",
     [] {
       return array_of({L"C.a", L"D.b", L"I"});
     }},
    {L"Cadenas", columns},
    {L"ParejasValoresMasOmision", columns},
    {L"MCampos", columns},
    {L"MValores", columns},
    {L"Parametros", columns},
};

}  // namespace

Subject::Subject(const DescribedInterface& described)
    : described_(described),
      prefix_(described.name == L"_cSQL20" || described.name == L"_uSQL20" ? L"iSQL20_" : L""),
      object_(object_for(described)) {
  prepare();
  if (is_query()) definition_ = get(L"TextoDefinicion").value;
}

LateAnswer Subject::call(const wchar_t* name, std::vector<Var> arguments) const {
  return object_.call((prefix_ + name).c_str(), std::move(arguments));
}

LateAnswer Subject::get(const wchar_t* name) const { return object_.get((prefix_ + name).c_str()); }

void Subject::prepare() const {
  if (described_.name == L"_QVRcfp") {
    call(L"Asignar", {L"id", 2, L"P", L"D", L"C", L"u", L"k", L"v", L"w", L"o"});
  } else if (is_query()) {
    call(L"Crear", {2, L"Clientes", false, columns(), L"Clientes C"});
  } else if (described_.name == L"_QVRprp") {
    call(L"Borra");
    call(L"CreaPropiedad", {L"T", L"n", L"v"});
  }
}

std::string Subject::state() const {
  if (described_.name == L"_Ov") {
    const std::string path = describe(call(L"PathCompleto").value.raw());
    return "BSTR " + path.substr(path.find_last_of('\\') + 1);
  }
  if (described_.name == L"_QVRcfp") return describe(call(L"CadenaADO", {L"id", true}).value.raw());
  if (described_.name == L"_QVRScr") return describe(call(L"UsuarioSegunMotor", {2}).value.raw());
  if (described_.name == L"_QVRprp") return describe(object_.get(L"Item", {L"n"}).value.raw());
  // A union only grows: what it begins with stays.
  if (described_.name == L"_uSQL20") return describe(call(L"NumColumnas").value.raw());
  return describe(get(L"SQL").value.raw());
}

void Subject::expect_works() const { EXPECT_EQ(state(), row_of(described_).state); }

Var Subject::good_argument(const MemberParameter& parameter) const {
  if (parameter.name == L"TextoDefinicion") return definition_;
  const auto* named = std::ranges::find_if(kNamedArguments,
                                           [&](const auto& row) { return parameter.name == row.name; });
  if (named != std::end(kNamedArguments)) return named->value();
  switch (parameter.type) {
    case VT_I2: return Var(static_cast<short>(2));
    case VT_I4: return Var(2);
    case VT_BOOL: return Var(false);
    case VT_DISPATCH: return Var::nothing();
    default: return Var(L"x");
  }
}

std::vector<Var> Subject::good_arguments(const DescribedMember& member) const {
  std::vector<Var> arguments;
  for (const MemberParameter& parameter : member.parameters) arguments.push_back(good_argument(parameter));
  return arguments;
}

}  // namespace qvr::tests
