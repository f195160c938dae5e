// The members that write SQL.
#include "com/clients/com_ado.h"
#include "com/objects/qvrcfp_object.h"

namespace qvr::com {

HRESULT QVRcfpObject::ComillasSQL(BSTR* Cadena, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.ComillasSQL(text_of(Cadena)); });
}
HRESULT QVRcfpObject::ExpSQL(VARIANT* Valor, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.ExpSQL(value_of(Valor)); });
}
HRESULT QVRcfpObject::FechaSQL(VARIANT* Fecha, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.FechaSQL(value_of(Fecha)); });
}
HRESULT QVRcfpObject::HoraSQL(VARIANT* Fecha, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.HoraSQL(value_of(Fecha)); });
}
HRESULT QVRcfpObject::FechaHoraSQL(VARIANT* Fecha, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.FechaHoraSQL(value_of(Fecha)); });
}
HRESULT QVRcfpObject::FechaSQLv(VARIANT* Fecha, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.FechaSQLv(value_of(Fecha)); });
}
HRESULT QVRcfpObject::LogicoSQL(VARIANT_BOOL* Valor, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.LogicoSQL(truth_of(Valor)); });
}
HRESULT QVRcfpObject::AhoraSQL(BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.AhoraSQL(); });
}
HRESULT QVRcfpObject::sqlEsTrue(BSTR* Campo, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.sqlEsTrue(text_of(Campo)); });
}
HRESULT QVRcfpObject::sqlEsFalse(BSTR* Campo, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.sqlEsFalse(text_of(Campo)); });
}
HRESULT QVRcfpObject::sqlFalse(BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.sqlFalse(); });
}
HRESULT QVRcfpObject::CadenaParaLikeSQL(BSTR* Cadena, VARIANT_BOOL* ComodinInicial, VARIANT_BOOL* ComodinFinal,
                                        BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] {
    return core_.CadenaParaLikeSQL(text_of(Cadena), truth_of(ComodinInicial), truth_of(ComodinFinal));
  });
}
HRESULT QVRcfpObject::sqlFechaSistema(BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.sqlFechaSistema(); });
}
HRESULT QVRcfpObject::sqlTOP(LONG* Numero, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.sqlTOP(number_of(Numero)); });
}
HRESULT QVRcfpObject::sqlRowNum(LONG* Numero, VARIANT_BOOL* AnteponerAndSiProcede, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado,
                           [&] { return core_.sqlRowNum(number_of(Numero), truth_of(AnteponerAndSiProcede)); });
}
HRESULT QVRcfpObject::sqlWhereRelacionTablas(VARIANT* mCampo1Campo2Relacion, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.sqlWhereRelacionTablas(value_of(mCampo1Campo2Relacion)); });
}
HRESULT QVRcfpObject::sqlAlias(BSTR* Alias, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.sqlAlias(text_of(Alias)); });
}
HRESULT QVRcfpObject::sqlConcatenar(VARIANT* Cadenas, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.sqlConcatenar(value_of(Cadenas)); });
}
HRESULT QVRcfpObject::sqlEsNulo(BSTR* CampoComprobar, BSTR* CampoAlternativo, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado,
                           [&] { return core_.sqlEsNulo(text_of(CampoComprobar), text_of(CampoAlternativo)); });
}
HRESULT QVRcfpObject::sqlCASE(BSTR* Campo, VARIANT* ParejasValoresMasOmision, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado,
                           [&] { return core_.sqlCASE(text_of(Campo), value_of(ParejasValoresMasOmision)); });
}
HRESULT QVRcfpObject::SqlINSERT(BSTR* NombreTabla, VARIANT* MValores, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.SqlINSERT(text_of(NombreTabla), value_of(MValores)); });
}
HRESULT QVRcfpObject::SqlUPDATE(BSTR* NombreTabla, BSTR* NombreCampoClave, LONG* Clave_cd, VARIANT* MCampos,
                                VARIANT* MValores, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] {
    return core_.SqlUPDATE(text_of(NombreTabla), text_of(NombreCampoClave), number_of(Clave_cd), value_of(MCampos),
                           value_of(MValores));
  });
}
HRESULT QVRcfpObject::SqlInsert2(BSTR* NombreTabla, VARIANT* MCampos, VARIANT* MValores, BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] {
    return core_.SqlInsert2(text_of(NombreTabla), value_of(MCampos), value_of(MValores));
  });
}
HRESULT QVRcfpObject::SqlUpdate2(BSTR* NombreTabla, VARIANT* MCampos, VARIANT* MValores, BSTR* Condicion,
                                 BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] {
    return core_.SqlUpdate2(text_of(NombreTabla), value_of(MCampos), value_of(MValores), text_of(Condicion));
  });
}
HRESULT QVRcfpObject::EjecutarProcSQL7(Connection** Conexion, BSTR* NombreProc, VARIANT* Parametros,
                                       VARIANT_BOOL* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] {
    const auto connection = wrap_connection(object_of(Conexion));
    Value parameters = value_of(Parametros);
    return core_.EjecutarProcSQL7(connection.get(), text_of(NombreProc), parameters, [&](const Value& results) {
      if (Parametros != nullptr) put_elements(*Parametros, results);
    });
  });
}
HRESULT QVRcfpObject::AgregarParametroADO(Command** Comando, BSTR* TipoSQLServer, BSTR* Nombre, VARIANT* Valor,
                                          LONG* Ancho, ParameterDirectionEnum* Direction,
                                          VARIANT_BOOL* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] {
    const auto command = wrap_command(object_of(Comando));
    const Text type = text_of(TipoSQLServer), name = text_of(Nombre);
    return core_.AgregarParametroADO(command.get(), {.TipoSQLServer = type,
                                                     .Nombre = name,
                                                     .Valor = value_of(Valor),
                                                     .Ancho = number_of(Ancho),
                                                     .Direction = Direction != nullptr ? number_of(Direction)
                                                                                       : std::int32_t{adParamInput}});
  });
}

}  // namespace qvr::com
