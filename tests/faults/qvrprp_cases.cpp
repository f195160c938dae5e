// QVRprp.
#include "faults/fault_case.h"
#include "properties/qvrprp.h"

namespace qvr::tests {
namespace {

struct List {
  List() {
    thread.boxes.always = BoxAnswer::Ok;
    list.CreaPropiedad(u"T", u"A property's name", u"a text to carry");
    list.CreaPropiedad(u"N", u"Another property", 1234567.0625);
  }
  std::string state() {
    std::string all = std::to_string(list.NumPropiedades());
    for (std::int32_t i = 0; i < list.NumPropiedades(); ++i) {
      all += "|" + shown(list.NombrePropiedad(i)) + "=" + describe(list.Item(i));
    }
    return all;
  }
  TestThread thread;
  QVRprp list;
};

template <class Call>
FaultCase on(const char* name, std::string expected, Texts failures, Call call) {
  return fault_case<List>(name, std::move(expected), std::move(failures), call);
}

FaultCase plain(FaultCase row) {
  row.allocates = false;
  return row;
}

}  // namespace

std::vector<FaultCase> qvrprp_cases() {
  static const Value kText = u"a text to carry from here", kName = u"A property's name";
  FaultCase unexpected = on("QVRprp.CreaPropiedad, unexpected type", "", {},
                            [](List& l) { return l.list.CreaPropiedad(u"X", u"A third property", kText), Done(); });
  unexpected.failures = {""};
  unexpected.log = unexpected.boxes = {"Box OK: Tipo inesperado (X) al agregar propiedad (A third property)"};
  return {
      on("QVRprp.CreaPropiedad", "", {""},
         [](List& l) { return l.list.CreaPropiedad(u"T", u"A third property", kText), Done(); }),
      unexpected,
      on("QVRprp.Item", "String a text to carry", {"Empty"}, [](List& l) { return l.list.Item(kName); }),
      on("QVRprp.Item=", "", {""}, [](List& l) { return l.list.Item(kName, kText), Done(); }),
      on("QVRprp.NombrePropiedad", "Another property", {""}, [](List& l) { return l.list.NombrePropiedad(1); }),
      plain(on("QVRprp.NumPropiedades", "2", {}, [](List& l) { return l.list.NumPropiedades(); })),
      plain(on("QVRprp.Borra", "", {}, [](List& l) { return l.list.Borra(), Done(); })),
  };
}

}  // namespace qvr::tests
