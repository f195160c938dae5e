#include "automation/query_slots.h"

namespace qvr::tests {

const Slots<_iSQL20>& contract_slots() {
  static const Slots<_iSQL20> slots{{
                                        {L"AdoptaComoOriginal", slot(&_iSQL20::AdoptaComoOriginal)},
                                        {L"AmpliarCondicionWhere", slot(&_iSQL20::AmpliarCondicionWhere)},
                                        {L"AmpliarOrden", slot(&_iSQL20::AmpliarOrden)},
                                        {L"CambiaOrden", slot(&_iSQL20::CambiaOrden)},
                                        {L"Crear", slot(&_iSQL20::Crear)},
                                        {L"CrearDesdeTextoDefinicion", slot(&_iSQL20::CrearDesdeTextoDefinicion)},
                                        {L"InterpretarBusqueda", slot(&_iSQL20::InterpretarBusqueda)},
                                        {L"ParteOrder", slot(&_iSQL20::ParteOrder)},
                                        {L"RestauraOriginal", slot(&_iSQL20::RestauraOriginal)},
                                        {L"TipoCampo", slot(&_iSQL20::TipoCampo)},
                                        {L"NumColumna", slot(&_iSQL20::NumColumna)},
                                        {L"NumColumnas", slot(&_iSQL20::NumColumnas)},
                                    },
                                    {
                                        {L"CriterioActualCompleto", slot(&_iSQL20::get_CriterioActualCompleto)},
                                        {L"Creado", slot(&_iSQL20::get_Creado)},
                                        {L"TextoDefinicion", slot(&_iSQL20::get_TextoDefinicion)},
                                        {L"CriterioActual", slot(&_iSQL20::get_CriterioActual)},
                                        {L"SQL", slot(&_iSQL20::get_SQL)},
                                        {L"SQLOriginal", slot(&_iSQL20::get_SQLOriginal)},
                                        {L"SQLOriginalSinOrden", slot(&_iSQL20::get_SQLOriginalSinOrden)},
                                        {L"SQLSinOrden", slot(&_iSQL20::get_SQLSinOrden)},
                                        {L"Tag", slot(&_iSQL20::get_Tag)},
                                        {L"TOP", slot(&_iSQL20::get_TOP)},
                                        {L"Idioma", slot(&_iSQL20::get_Idioma)},
                                        {L"MotorBD", slot(&_iSQL20::get_MotorBD)},
                                    },
                                    {
                                        {L"CriterioActualCompleto", slot(&_iSQL20::put_CriterioActualCompleto)},
                                        {L"Tag", slot(&_iSQL20::put_Tag)},
                                        {L"TOP", slot(&_iSQL20::put_TOP)},
                                        {L"Idioma", slot(&_iSQL20::put_Idioma)},
                                        {L"MotorBD", slot(&_iSQL20::put_MotorBD)},
                                    }};
  return slots;
}

const Slots<_cSQL20>& select_slots() {
  static const Slots<_cSQL20> slots{{
                                        {L"AdoptaComoOriginal", slot(&_cSQL20::iSQL20_AdoptaComoOriginal)},
                                        {L"AmpliarCondicionWhere", slot(&_cSQL20::iSQL20_AmpliarCondicionWhere)},
                                        {L"AmpliarOrden", slot(&_cSQL20::iSQL20_AmpliarOrden)},
                                        {L"CambiaOrden", slot(&_cSQL20::iSQL20_CambiaOrden)},
                                        {L"Crear", slot(&_cSQL20::iSQL20_Crear)},
                                        {L"CrearDesdeTextoDefinicion",
                                         slot(&_cSQL20::iSQL20_CrearDesdeTextoDefinicion)},
                                        {L"InterpretarBusqueda", slot(&_cSQL20::iSQL20_InterpretarBusqueda)},
                                        {L"ParteOrder", slot(&_cSQL20::iSQL20_ParteOrder)},
                                        {L"RestauraOriginal", slot(&_cSQL20::iSQL20_RestauraOriginal)},
                                        {L"TipoCampo", slot(&_cSQL20::iSQL20_TipoCampo)},
                                        {L"NumColumna", slot(&_cSQL20::iSQL20_NumColumna)},
                                        {L"NumColumnas", slot(&_cSQL20::iSQL20_NumColumnas)},
                                        {L"AmpliarCondicionHaving", slot(&_cSQL20::AmpliarCondicionHaving)},
                                        {L"CambiaCondicion", slot(&_cSQL20::CambiaCondicion)},
                                        {L"ParteWhere", slot(&_cSQL20::ParteWhere)},
                                        {L"ParteHaving", slot(&_cSQL20::ParteHaving)},
                                        {L"ExpresionOriginal", slot(&_cSQL20::ExpresionOriginal)},
                                    },
                                    {
                                        {L"CriterioActualCompleto", slot(&_cSQL20::get_iSQL20_CriterioActualCompleto)},
                                        {L"Creado", slot(&_cSQL20::get_iSQL20_Creado)},
                                        {L"TextoDefinicion", slot(&_cSQL20::get_iSQL20_TextoDefinicion)},
                                        {L"CriterioActual", slot(&_cSQL20::get_iSQL20_CriterioActual)},
                                        {L"SQL", slot(&_cSQL20::get_iSQL20_SQL)},
                                        {L"SQLOriginal", slot(&_cSQL20::get_iSQL20_SQLOriginal)},
                                        {L"SQLOriginalSinOrden", slot(&_cSQL20::get_iSQL20_SQLOriginalSinOrden)},
                                        {L"SQLSinOrden", slot(&_cSQL20::get_iSQL20_SQLSinOrden)},
                                        {L"Tag", slot(&_cSQL20::get_iSQL20_Tag)},
                                        {L"TOP", slot(&_cSQL20::get_iSQL20_TOP)},
                                        {L"Idioma", slot(&_cSQL20::get_iSQL20_Idioma)},
                                        {L"MotorBD", slot(&_cSQL20::get_iSQL20_MotorBD)},
                                        {L"Name", slot(&_cSQL20::get_Name)},
                                    },
                                    {
                                        {L"CriterioActualCompleto", slot(&_cSQL20::put_iSQL20_CriterioActualCompleto)},
                                        {L"Tag", slot(&_cSQL20::put_iSQL20_Tag)},
                                        {L"TOP", slot(&_cSQL20::put_iSQL20_TOP)},
                                        {L"Idioma", slot(&_cSQL20::put_iSQL20_Idioma)},
                                        {L"MotorBD", slot(&_cSQL20::put_iSQL20_MotorBD)},
                                    }};
  return slots;
}

const Slots<_uSQL20>& union_slots() {
  static const Slots<_uSQL20> slots{{
                                        {L"AdoptaComoOriginal", slot(&_uSQL20::iSQL20_AdoptaComoOriginal)},
                                        {L"AmpliarCondicionWhere", slot(&_uSQL20::iSQL20_AmpliarCondicionWhere)},
                                        {L"AmpliarOrden", slot(&_uSQL20::iSQL20_AmpliarOrden)},
                                        {L"CambiaOrden", slot(&_uSQL20::iSQL20_CambiaOrden)},
                                        {L"Crear", slot(&_uSQL20::iSQL20_Crear)},
                                        {L"CrearDesdeTextoDefinicion",
                                         slot(&_uSQL20::iSQL20_CrearDesdeTextoDefinicion)},
                                        {L"InterpretarBusqueda", slot(&_uSQL20::iSQL20_InterpretarBusqueda)},
                                        {L"ParteOrder", slot(&_uSQL20::iSQL20_ParteOrder)},
                                        {L"RestauraOriginal", slot(&_uSQL20::iSQL20_RestauraOriginal)},
                                        {L"TipoCampo", slot(&_uSQL20::iSQL20_TipoCampo)},
                                        {L"NumColumna", slot(&_uSQL20::iSQL20_NumColumna)},
                                        {L"NumColumnas", slot(&_uSQL20::iSQL20_NumColumnas)},
                                    },
                                    {
                                        {L"CriterioActualCompleto", slot(&_uSQL20::get_iSQL20_CriterioActualCompleto)},
                                        {L"Creado", slot(&_uSQL20::get_iSQL20_Creado)},
                                        {L"TextoDefinicion", slot(&_uSQL20::get_iSQL20_TextoDefinicion)},
                                        {L"CriterioActual", slot(&_uSQL20::get_iSQL20_CriterioActual)},
                                        {L"SQL", slot(&_uSQL20::get_iSQL20_SQL)},
                                        {L"SQLOriginal", slot(&_uSQL20::get_iSQL20_SQLOriginal)},
                                        {L"SQLOriginalSinOrden", slot(&_uSQL20::get_iSQL20_SQLOriginalSinOrden)},
                                        {L"SQLSinOrden", slot(&_uSQL20::get_iSQL20_SQLSinOrden)},
                                        {L"Tag", slot(&_uSQL20::get_iSQL20_Tag)},
                                        {L"TOP", slot(&_uSQL20::get_iSQL20_TOP)},
                                        {L"Idioma", slot(&_uSQL20::get_iSQL20_Idioma)},
                                        {L"MotorBD", slot(&_uSQL20::get_iSQL20_MotorBD)},
                                        {L"Name", slot(&_uSQL20::get_Name)},
                                    },
                                    {
                                        {L"CriterioActualCompleto", slot(&_uSQL20::put_iSQL20_CriterioActualCompleto)},
                                        {L"Tag", slot(&_uSQL20::put_iSQL20_Tag)},
                                        {L"TOP", slot(&_uSQL20::put_iSQL20_TOP)},
                                        {L"Idioma", slot(&_uSQL20::put_iSQL20_Idioma)},
                                        {L"MotorBD", slot(&_uSQL20::put_iSQL20_MotorBD)},
                                    }};
  return slots;
}

}  // namespace qvr::tests
