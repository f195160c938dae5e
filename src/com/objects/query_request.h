// Converts the arguments of `Crear`.
#pragma once

#include "QVRlib21.h"
#include "com/com.h"
#include "query/isql20.h"

namespace qvr::com {

QueryRequest query_request(LONG* MotorBD, BSTR* NombreObjeto, VARIANT_BOOL* UsarDistinct, VARIANT* ColumnasSELECT,
                           BSTR* TablasFROM, VARIANT* RelacionTablas, BSTR* CondicionWHEREInicial,
                           SHORT* NumColumnasGROUPBY, BSTR* CondicionHAVINGInicial, BSTR* TextoORDERBYInicial,
                           LONG* TOP, LONG* Idioma);

}  // namespace qvr::com
