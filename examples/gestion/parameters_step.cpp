
#include "automation.h"
#include "console.h"
#include "steps.h"
#include "text.h"

namespace gestion {
namespace {

struct Parameter {
  const wchar_t* name;
  std::wstring value;
  bool asks_identification = false;
};

// In the order of the assignment, which begins with the engine.
std::vector<Parameter> parameters_for(const Setting& setting) {
  return {
      {L"Provider", L"MSDASQL"},
      {L"DataSource", L""},
      {L"InitialCatalogOTablespace", L"Gestión"},
      {L"UsuarioAdm", L"Begoña"},
      {L"ClaveAdm", L"Muñoz-1987-Ávila", true},
      {L"UsuarioCli", L"mostrador"},
      {L"ClaveCli", L"Piñón y Cía.", true},
      {L"OtrosParametros",
       L"Extended Properties=\"DRIVER={" + setting.driver + L"};Database=" + setting.driver_database + L";\""},
  };
}

Value read(const Object& object, const Parameter& parameter) {
  return object.call(parameter.name,
                     parameter.asks_identification ? std::vector<Value>{kIdentification} : std::vector<Value>{});
}

void create_file(const Setting& setting) {
  const Object created = Object::create(L"QVRlib21.QVRcfp");
  std::vector<Value> arguments{kIdentification, kJet};
  for (const Parameter& each : parameters_for(setting)) arguments.emplace_back(each.value);
  expect(created.call(L"Asignar", arguments).truth(), L"Asignar answered False");
  expect(created.call(L"Guardar", {kIdentification, setting.folder, kParameterFile}).truth(),
         L"Guardar answered False");
}

void show_beginnings(const std::string& bytes) {
  const std::vector<std::wstring> lines = split(std::wstring(bytes.begin(), bytes.end()), L"\r\n");
  expect(lines.size() == 11 && lines.back().empty(), L"The parameter file does not have ten lines");
  for (std::size_t at = 0; at + 1 < lines.size(); ++at) {
    item(L"line " + std::to_wstring(at + 1) + L", " + std::to_wstring(lines[at].size()) + L" characters",
         lines[at].substr(0, 40) + (lines[at].size() > 40 ? L"..." : L""));
  }
}

// In each form in which somebody could read it there, and in either case of its letters.
bool found_in(const std::string& bytes, const std::wstring& value) {
  std::wstring capitals = value, small = value;
  CharUpperW(capitals.data());
  CharLowerW(small.data());
  for (const std::wstring& each : {value, capitals, small}) {
    const std::string wide(reinterpret_cast<const char*>(each.data()), each.size() * sizeof(wchar_t));
    for (const std::string& form : {to_utf8(each), to_system_page(each), wide}) {
      if (bytes.find(form) != std::string::npos) return true;
    }
  }
  return false;
}

void show_nothing_readable(const Setting& setting, const std::string& bytes) {
  int searched = 0;
  for (const Parameter& each : parameters_for(setting)) {
    if (each.value.empty()) continue;
    expect(!found_in(bytes, each.value), std::wstring(L"The file shows the value of ") + each.name);
    ++searched;
  }
  say(L"   Searched " + std::to_wstring(bytes.size()) + L" bytes for " + std::to_wstring(searched) +
      L" values, as UTF-8, system page and UTF-16, in three cases: none found.");
}

Object loaded(const Setting& setting) {
  const Object object = Object::create(L"QVRlib21.QVRcfp");
  expect(object.call(L"Crear", {kIdentification, setting.folder, kParameterFile}).truth(), L"Crear answered False");
  return object;
}

void show_equal(const Setting& setting) {
  const Object object = loaded(setting);
  expect(object.call(L"MotorBD").number() == kJet, L"MotorBD differs after loading");
  expect(object.call(L"Archivo").text() == kParameterFile, L"Archivo differs after loading");
  for (const Parameter& each : parameters_for(setting)) {
    const std::wstring value = read(object, each).text();
    expect(value == each.value, std::wstring(each.name) + L" differs after loading: " + value);
    item(each.name, L"\"" + value + L"\"");
  }
  say(L"   Loaded again: all properties are equal.");
}

void show_refusal(const Setting& setting) {
  const Object object = loaded(setting);
  const bool accepted = object.call(L"Crear", {L"another program", setting.folder, kParameterFile}).truth();
  expect(!accepted, L"The file was accepted with another identification");
  bool empty = object.call(L"MotorBD").number() == 0 && object.call(L"Archivo").text().empty();
  for (const Parameter& each : parameters_for(setting)) empty = empty && read(object, each).text().empty();
  expect(empty, L"The object is not empty after the refusal");
  say(L"   With another identification: Crear answers False, and the object is empty.");
}

}  // namespace

void show_parameter_file(const Setting& setting) {
  const std::wstring path = setting.folder + L"\\" + kParameterFile + L".cfp";
  remove_file(path);
  create_file(setting);
  say(L"   Created " + path);
  const std::string bytes = file_bytes(path);
  show_beginnings(bytes);
  show_nothing_readable(setting, bytes);
  show_equal(setting);
  show_refusal(setting);
}

std::wstring show_connection_strings(const Setting& setting) {
  const Object object = loaded(setting);
  const std::wstring administrator = object.call(L"CadenaADO", {kIdentification, true}).text();
  const std::wstring client = object.call(L"CadenaADO", {kIdentification, false}).text();
  expect(!administrator.empty() && !client.empty(), L"CadenaADO answered nothing");
  say(L"   Administrator:");
  say(L"   " + administrator);
  say(L"   Client:");
  say(L"   " + client);
  return administrator;
}

}  // namespace gestion
