#include "console.h"
#include "order_list.h"
#include "steps.h"
#include "text.h"

namespace gestion {
namespace {

// What a person might type who wants the dear orders of two towns.
const std::vector<Search> kUsualSearches = {{L"Población", L"Zaragoza; Córdoba; Logroño"},
                                            {L"Nombre", L"o'd; ñ"},
                                            {L"Portes", L"mucho"},
                                            {L"Portes", L">=3,5"}};

struct Language {
  long number;
  const wchar_t* name;
};
constexpr Language kLanguages[] = {{0, L"in Spanish"}, {1, L"in English"}, {3, L"in French"}};

bool narrow(const OrderList& list, const Search& search) {
  say();
  say(L"   " + search.column + L": " + search.text);
  const bool understood = list.narrow(search);
  if (!understood) {
    say(list.has(search.column) ? L"     This is no search for that column, or one that is there already."
                                : L"     The list has no such column.");
    return false;
  }
  item(L"  criterion", list.criterion());
  list.show();
  return true;
}

void narrow_by_what_is_typed(const OrderList& list) {
  std::wstring line;
  while (ask(L"   Column=text, or nothing to go on: ", line) && !line.empty()) {
    if (line.find(L'=') == std::wstring::npos) continue;
    narrow(list, read_search(line));
  }
}

void show_languages(const std::vector<Search>& searches, const std::wstring& connection_string) {
  for (const Language& language : kLanguages) {
    const OrderList list(connection_string);
    list.query().put(L"iSQL20_Idioma", language.number);
    for (const Search& search : searches) list.narrow(search);
    item(language.name, list.criterion());
  }
  Object::create(L"QVRlib21.cSQL20").put(L"iSQL20_Idioma", kLanguages[0].number);
}

void show_definition(const Setting& setting, const OrderList& list, long rows, const std::wstring& connection_string) {
  const std::wstring file = setting.folder + L"\\pedidos.consulta";
  write_file(file, to_utf8(list.query().call(L"iSQL20_TextoDefinicion").text()));
  const OrderList again(connection_string);
  const bool taken_up = again.query().call(L"iSQL20_CrearDesdeTextoDefinicion", {from_utf8(file_bytes(file))}).truth();
  expect(taken_up, L"The query could not be taken up from its text");
  item(L"kept and taken up again", again.criterion());
  expect(again.criterion() == list.criterion(), L"The query taken up has another criterion");
  expect(again.show() == rows, L"The query taken up finds other rows");
  remove_file(file);
}

}  // namespace

void show_query(const Setting& setting, const std::wstring& connection_string) {
  const OrderList list(connection_string);
  say(L"   " + list.statement());
  const long all = list.show();
  const std::vector<Search>& searches = setting.searches.empty() ? kUsualSearches : setting.searches;
  for (const Search& search : searches) narrow(list, search);
  if (setting.ask) narrow_by_what_is_typed(list);
  say();
  say(L"   Sorted by a click on Fecha, then two on Portes:");
  for (const wchar_t* column : {L"Fecha", L"Portes", L"Portes"}) list.click(column);
  const long narrowed = list.show();
  say();
  show_definition(setting, list, narrowed, connection_string);
  say();
  say(L"   Restored:");
  list.restore();
  expect(list.show() == all && narrowed <= all, L"The restored list is another one");
  say();
  say(L"   The same searches in three languages:");
  show_languages(searches, connection_string);
}

}  // namespace gestion
