#include "com/objects/query_request.h"

#include "com/answer.h"

namespace qvr::com {

QueryRequest query_request(LONG* MotorBD, BSTR* NombreObjeto, VARIANT_BOOL* UsarDistinct, VARIANT* ColumnasSELECT,
                           BSTR* TablasFROM, VARIANT* RelacionTablas, BSTR* CondicionWHEREInicial,
                           SHORT* NumColumnasGROUPBY, BSTR* CondicionHAVINGInicial, BSTR* TextoORDERBYInicial,
                           LONG* TOP, LONG* Idioma) {
  return {.MotorBD = engine_of(MotorBD),
          .NombreObjeto = text_of(NombreObjeto),
          .UsarDistinct = truth_of(UsarDistinct),
          .ColumnasSELECT = value_of(ColumnasSELECT),
          .TablasFROM = text_of(TablasFROM),
          .RelacionTablas = value_of(RelacionTablas),
          .CondicionWHEREInicial = text_of(CondicionWHEREInicial),
          .NumColumnasGROUPBY = short_of(NumColumnasGROUPBY),
          .CondicionHAVINGInicial = text_of(CondicionHAVINGInicial),
          .TextoORDERBYInicial = text_of(TextoORDERBYInicial),
          .TOP = number_of(TOP),
          .Idioma = number_of(Idioma)};
}

}  // namespace qvr::com
