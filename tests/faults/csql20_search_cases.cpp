// Searches in a query of a French user, whose words are the longest: each shape of search on a column of each type.
#include "faults/query_stage.h"

namespace qvr::tests {
namespace {

// The row of one search.
FaultCase search(const char* column, TextView text) {
  const Text field(column, column + std::char_traits<char>::length(column));
  const std::string name = "cSQL20.InterpretarBusqueda, " + std::string(column) + " " + to_utf8(text);
  FaultCase row = fault_case<FrenchSelect>(name, "True", {"False"}, [field, text](FrenchSelect& s) {
    return s.query.InterpretarBusqueda(field, text, u"a label of the host");
  });
  for (const std::string& method : {std::string("AmpliarCondicionWhere"), std::string("AmpliarCondicionHaving"),
                                    "TipoCampo(" + std::string(column) + ")"}) {
    row.boxes.push_back("Box OK: Objet: cSQL20\r\nM\u00e9thode: " + method + "\r\nErreur 7: Out of memory");
  }
  return row;
}

}  // namespace

std::vector<FaultCase> csql20_search_cases() {
  return {
      search("Nombre", u"Mart\u00ednez Garc\u00eda"),
      search("Nombre", u"Mart*nez o \"de la Torre\" y no P\u00e9rez?"),
      search("Nombre", u"= Mart\u00ednez Garc\u00eda; is null"),
      search("Nombre", u"!LIKE 'Mart*nez Garc\u00eda'"),
      search("Notas", u"una palabra y otra palabra"),
      search("Alta", u"05/01/2011"),
      search("Alta", u"desde 05/01/2011 hasta 31/12/2012"),
      search("Alta", u"> ayer; is null"),
      search("Alta", u"!05/01/2011"),
      search("Total", u">= 1234567.0625 y < 2345678.125"),
      search("Total", u"entre 1234567.0625 y 2345678.125"),
      search("Total", u"no 1234567.0625"),
  };
}

}  // namespace qvr::tests
