// A list of typed, named values.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "base/value.h"

namespace qvr {

// No member fails. Positions count from 0 in the order of creation.
class QVRprp {
 public:
  QVRprp() noexcept;

  void Borra() noexcept;

  // Adds a property behind the others, whatever their names. Types "T", "N", "F", "L" in any case; another one is told
  // in a message box and adds nothing.
  void CreaPropiedad(TextView Tipo, TextView Nombre, const Value& Valor) noexcept;

  // A property by position, when the argument is numeric, or by name in any case, the first that has it. Reading what
  // is not there gives Empty, writing it does nothing.
  Value Item(const Value& NombreOIndice) const noexcept;
  void Item(const Value& NombreOIndice, const Value& Valor) noexcept;

  std::int32_t NumPropiedades() const noexcept { return static_cast<std::int32_t>(rows_.size()); }
  Text NombrePropiedad(std::int32_t Indice) const noexcept;  // empty where there is none

 private:
  struct Row {
    Text type, name;
    Value value;
  };
  std::optional<std::size_t> position_of(const Value& name_or_index) const;

  std::vector<Row> rows_;
};

}  // namespace qvr
