// QVRprp.
#include "properties/qvrprp.h"

#include "faults/fault_case.h"

namespace qvr::tests {
namespace {

struct List {
  List() {
    thread.boxes.always = BoxAnswer::Ok;
    list.CreaPropiedad(u"T", u"A property's name", u"a text to carry");
    list.CreaPropiedad(u"N", u"Another property", 1234567.0625);
  }
  Lines texts() {
    Lines all;
    for (std::int32_t i = 0; i < list.NumPropiedades(); ++i) {
      all.push_back(shown(list.NombrePropiedad(i)) + "=" + describe(list.Item(i)));
    }
    return all;
  }
  TestThread thread;
  QVRprp list;
};

}  // namespace

FaultCases qvrprp_cases() {
  static const Value kText = u"a text to carry from here", kName = u"A property's name";
  constexpr auto on = [](const char* name, auto call) { return fault_case<List>(name, call); };
  constexpr auto changing = [](const char* name, auto call) { return fault_case_of_change<List>(name, call); };
  return {
      changing("QVRprp.CreaPropiedad", [](List& l) { l.list.CreaPropiedad(u"T", u"A third property", kText); }),
      changing("QVRprp.CreaPropiedad, unexpected type",
               [](List& l) { l.list.CreaPropiedad(u"X", u"A third property", kText); }),
      on("QVRprp.Item", [](List& l) { return l.list.Item(kName); }),
      changing("QVRprp.Item=", [](List& l) { l.list.Item(kName, kText); }),
      on("QVRprp.NombrePropiedad", [](List& l) { return l.list.NombrePropiedad(1); }),
      on("QVRprp.NumPropiedades", [](List& l) { return l.list.NumPropiedades(); }),
      changing("QVRprp.Borra", [](List& l) { l.list.Borra(); }),
  };
}

}  // namespace qvr::tests
