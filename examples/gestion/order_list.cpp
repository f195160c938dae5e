#include "order_list.h"

#include "console.h"
#include "text.h"

namespace gestion {
namespace {

constexpr long kShown = 4;
constexpr std::size_t kWidths[] = {8, 26, 20, 12, 8};

Object created_query(Dates dates) {
  const bool as_dates = dates == Dates::AsDates;
  const Object query = Object::create(L"QVRlib21.cSQL20");
  const Value columns{L"P.[Número]",    L"N>Número",    L"C.Nombre", L"T+",
                      L"C.[Población]", L"T>Población", L"P.Fecha",  as_dates ? L"F+" : L"T+",
                      L"P.Portes",      L"N+"};
  const Value relations{L"P.Cliente", L"C.[Código]", L"I"};
  const bool created = query
                           .call(L"iSQL20_Crear", {as_dates ? kSqlServer : kJet, L"Pedidos", false, columns,
                                                   L"Pedidos P, Clientes C", relations, L"", 0, L"", L"P.[Número]"})
                           .truth();
  expect(created, L"The query could not be created");
  return query;
}

}  // namespace

OrderList::OrderList(const std::wstring& connection_string, Dates dates)
    : query_(created_query(dates)), database_(connection_string) {}

bool OrderList::has(const std::wstring& column) const {
  return query_.call(L"iSQL20_NumColumna", {column}).number() > 0;
}

// The library tells of an unknown column in a box of its own; the person at this prompt looks elsewhere.
bool OrderList::narrow(const Search& search) const {
  return has(search.column) && query_.call(L"iSQL20_InterpretarBusqueda", {search.column, search.text}).truth();
}

void OrderList::click(const wchar_t* column) const {
  query_.call(L"iSQL20_AmpliarOrden", {query_.call(L"iSQL20_NumColumna", {column}).number()});
}

long OrderList::show() const {
  long shown = 0;
  const long rows = database_.each_row(statement(), static_cast<int>(std::size(kWidths)), [&](const auto& texts) {
    if (++shown > kShown) return;
    std::wstring line = L"     ";
    for (std::size_t i = 0; i < texts.size(); ++i) line += padded(texts[i], kWidths[i]);
    say(line);
  });
  say(rows > kShown ? L"     ... " + std::to_wstring(rows) + L" rows" : L"     " + std::to_wstring(rows) + L" rows");
  return rows;
}

}  // namespace gestion
