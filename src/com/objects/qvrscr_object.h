#pragma once

#include "QVRlib21.h"
#include "com/connection_point.h"
#include "com/object.h"
#include "script/qvrscr.h"

namespace qvr::com {

class QVRScrObject final : public Object<::QVRScr, Dual<_QVRScr>, IConnectionPointContainer>, private ScriptEvents {
 public:
  STDMETHODIMP EjecutarComandos(BSTR* ID, LONG* MotorBD, BSTR* TextosComandos, BSTR* CadenaConexion, BSTR* TextoMostrar,
                                VARIANT_BOOL* Resultado) noexcept override;
  STDMETHODIMP Ejecutar1Comando(Connection** Conexion, BSTR* TextoComando, LONG* MotorBD,
                                VARIANT_BOOL* Resultado) noexcept override;
  STDMETHODIMP UsuarioSegunMotor(LONG* MotorBD, BSTR* Resultado) noexcept override;
  STDMETHODIMP CargarDefinicion(BSTR* ID, LONG* MotorBD, BSTR* Ruta, BSTR* NombreDefinicion,
                                BSTR* NombreBaseOTablespace, BSTR* UsuarioQVRAdm, BSTR* ClaveUsuarioQVRAdm,
                                BSTR* UsuarioQVRCli, BSTR* ClaveUsuarioQVRCli, VARIANT_BOOL* Encri,
                                BSTR* Resultado) noexcept override;
  STDMETHODIMP CargarActualizacion(BSTR* ID, LONG* MotorBD, BSTR* Ruta, BSTR* Aplicacion, LONG* VersionActual,
                                   BSTR* NombreBaseOTablespace, BSTR* UsuarioQVRAdm, BSTR* ClaveUsuarioQVRAdm,
                                   BSTR* UsuarioQVRCli, BSTR* ClaveUsuarioQVRCli, VARIANT_BOOL* Encri,
                                   BSTR* Resultado) noexcept override;

  STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) noexcept override;
  STDMETHODIMP FindConnectionPoint(REFIID id, IConnectionPoint** point) noexcept override;

 private:
  const GUID& events() const noexcept override { return __uuidof(__QVRScr); }
  void Progreso(const Text& Mensaje) noexcept override;
  void Terminado(bool Exito) noexcept override;

  ConnectionPoint point_{*this, __uuidof(__QVRScr)};
  qvr::QVRScr core_{*this};
};

}  // namespace qvr::com
