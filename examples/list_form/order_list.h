// The list of orders without its window: what the user searched for and how it is sorted, and the rows.
#pragma once

#include <QVRlib21.hpp>

#include <array>
#include <string>
#include <vector>

#include "ado.h"
#include "database.h"

namespace list_form {

struct Column {
  const wchar_t *name, *title;
  wchar_t type;  // as the library has it: T text, N number, F date, L truth
  int width;
};
inline constexpr std::array kColumns = {
    Column{L"Numero", L"Number", L'N', 80},   Column{L"Nombre", L"Customer", L'T', 160},
    Column{L"Poblacion", L"Town", L'T', 120}, Column{L"Fecha", L"Date", L'F', 110},
    Column{L"Importe", L"Amount", L'N', 100}, Column{L"Servido", L"Served", L'L', 80}};

using Searches = std::array<std::wstring, kColumns.size()>;
using Cells = std::array<std::wstring, kColumns.size()>;

// A list as a user keeps it: the library's text of what was added to the query, and what stood in the search boxes.
struct Filter {
  std::wstring name, criterion;
  Searches searches;
};

struct Sorting {
  int column = -1;  // from 0; none: as the list was created
  bool descending = false;
};

class OrderList {
 public:
  explicit OrderList(const Database& database);

  // The column's search in place of the one that it had. False, and nothing changes, for what is no search.
  bool search(std::size_t column, const std::wstring& text);
  void sort(std::size_t column);
  void clear();
  // False, and nothing changes, for a filter that the list cannot read.
  bool apply(const Filter& filter);
  Filter filter(const std::wstring& name) const;

  const Searches& searches() const { return searches_; }
  const std::vector<Cells>& rows() const { return rows_; }
  std::wstring criterion() const { return query_.CriterioActual(); }
  Sorting sorting() const;

 private:
  bool narrow(const Searches& searches) const;
  bool restore(const std::wstring& criterion) const;
  void take_up(const std::wstring& before, const Searches& searches);
  void read();

  Connection connection_;
  qvrlib21::cSQL20 query_ = qvrlib21::create<qvrlib21::cSQL20>();
  Searches searches_;
  std::vector<Cells> rows_;
};

}  // namespace list_form
