// The list of orders as the person at the screen has it: a query object and the rows that it finds.
#pragma once

#include "automation.h"
#include "database.h"
#include "setting.h"

namespace gestion {

// What the dates of the orders are to a search. In this database they are texts; a list that is searched by dates goes
// under SQL Server's number, which writes dates as every ODBC driver takes them, but texts as this one does not.
enum class Dates { AsTexts, AsDates };

class OrderList {
 public:
  explicit OrderList(const std::wstring& connection_string, Dates dates = Dates::AsTexts);

  const Object& query() const { return query_; }
  std::wstring statement() const { return query_.call(L"iSQL20_SQL").text(); }
  std::wstring criterion() const { return query_.call(L"iSQL20_CriterioActual").text(); }

  bool has(const std::wstring& column) const;
  // False for a column that the list has not, and for a text that is no search for it.
  bool narrow(const Search& search) const;
  void click(const wchar_t* column) const;
  void restore() const { query_.call(L"iSQL20_RestauraOriginal", {true, true}); }

  // Writes the first rows and answers how many there are.
  long show() const;

 private:
  Object query_;
  Database database_;
};

}  // namespace gestion
