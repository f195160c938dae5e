#include "order_list.h"

namespace list_form {
namespace {

Value column_definitions() {
  std::vector<Value> definitions;
  for (const Column& column : kColumns) {
    const std::wstring name = column.name;
    definitions.emplace_back((name == L"Nombre" || name == L"Poblacion" ? L"C." : L"P.") + name);
    definitions.emplace_back(std::wstring(1, column.type) + L'+');
  }
  return definitions;
}

std::wstring short_date(const Value& value) {
  SYSTEMTIME day{};
  wchar_t text[64] = L"";
  VariantTimeToSystemTime(value.date().days, &day);
  GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &day, nullptr, text, static_cast<int>(std::size(text)));
  return text;
}

// As the user's country writes it, so that it can be typed into a search box as it stands.
std::wstring cell(const Column& column, const Value& value) {
  if (value.is_null() || value.is_empty()) return L"";
  if (column.type == L'F') return short_date(value);
  if (column.type == L'L') return value.number() != 0 ? L"yes" : L"no";
  return value.text();
}

}  // namespace

OrderList::OrderList(const Database& database) : connection_(database.connection_string()) {
  if (!query_.Crear(database.parameters().MotorBD(), L"Pedidos", false, column_definitions(), L"Pedidos P, Clientes C",
                    {L"P.Cliente", L"C.Codigo", L"I"}, L"", 0, L"", L"P.Numero")) {
    throw Problem(L"The list could not be created.");
  }
  read();
}

// Begins anew, as a search that is entered again for the same column would narrow the former one.
bool OrderList::narrow(const Searches& searches) const {
  query_.RestauraOriginal(true, false);
  for (std::size_t i = 0; i < kColumns.size(); ++i) {
    if (searches[i].empty()) continue;
    if (!query_.InterpretarBusqueda(kColumns[i].name, searches[i], kColumns[i].title)) return false;
  }
  return true;
}

// Writing the text has no answer, reading it again tells. A text of nothing takes away what was added.
bool OrderList::restore(const std::wstring& criterion) const {
  query_.CriterioActualCompleto(criterion);
  return query_.CriterioActualCompleto() == criterion;
}

bool OrderList::search(std::size_t column, const std::wstring& text) {
  const std::wstring before = query_.CriterioActualCompleto();
  Searches wanted = searches_;
  wanted[column] = text;
  const bool understood = narrow(wanted);
  if (understood) {
    take_up(before, wanted);
  } else {
    restore(before);
  }
  return understood;
}

// Columns count from 1; the answer is always false.
void OrderList::sort(std::size_t column) {
  const std::wstring before = query_.CriterioActualCompleto();
  query_.AmpliarOrden(static_cast<short>(column + 1));
  take_up(before, searches_);
}

void OrderList::clear() {
  const std::wstring before = query_.CriterioActualCompleto();
  query_.RestauraOriginal(true, true);
  take_up(before, {});
}

bool OrderList::apply(const Filter& filter) {
  const std::wstring before = query_.CriterioActualCompleto();
  const bool understood = restore(filter.criterion);
  if (understood) take_up(before, filter.searches);
  return understood;
}

// Reads the rows. Where the database refuses the statement the list is put back, and the failure goes on.
void OrderList::take_up(const std::wstring& before, const Searches& searches) {
  try {
    read();
  } catch (...) {
    restore(before);
    throw;
  }
  searches_ = searches;
}

Filter OrderList::filter(const std::wstring& name) const { return {name, query_.CriterioActualCompleto(), searches_}; }

// The order begins with the number of the column that was clicked last; as the list was created it begins with a name.
Sorting OrderList::sorting() const {
  const std::wstring order = query_.ParteOrder(true);
  wchar_t* rest = nullptr;
  const long column = std::wcstol(order.c_str(), &rest, 10);
  if (column <= 0) return {};
  return {static_cast<int>(column) - 1, std::wstring_view(rest).starts_with(L" DESC")};
}

void OrderList::read() {
  std::vector<Cells> found;
  for (const Row& row : connection_.rows(query_.SQL(), kColumns.size())) {
    Cells cells;
    for (std::size_t i = 0; i < kColumns.size(); ++i) cells[i] = cell(kColumns[i], row[i]);
    found.push_back(std::move(cells));
  }
  rows_ = std::move(found);
}

}  // namespace list_form
