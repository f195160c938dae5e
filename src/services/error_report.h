// Reporting of failed commands and procedure calls to the user.
#pragma once

#include <cstdint>
#include <vector>

#include "base/engine.h"
#include "base/failure.h"
#include "services/ado.h"

namespace qvr::services {

struct Captions {
  Text server_not_found = u"Servidor no encontrado";
  Text duplicate_record = u"Registro duplicado";
  Text unknown_error = u"Error indeterminado";
  Text method = u"M\u00e9todo";
  Text object = u"Objeto";
};

struct ErrorNotice {
  FailureDetail failure;
  Engine motor = Engine::None;  // as the caller gave it
  Text label;                   // the operation that failed
  Text object;                  // the procedure, say; empty where the label says it
  Captions captions;
  std::vector<AdoError> errors;  // of the ADO connection, in order
};

class ErrorReport {
 public:
  virtual ~ErrorReport() = default;
  virtual void Informar(const ErrorNotice& notice) = 0;
};

}  // namespace qvr::services
