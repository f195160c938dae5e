// A list of typed, named values.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "base/value.h"

namespace qvr {

// The members do not fail. Positions count from 0 in the order of creation.
class QVRprp {
 public:
  static constexpr TextView kClass = u"QVRprp";  // in reports and the trace

  QVRprp() noexcept;

  void Borra() noexcept;

  // Appends a property, also with a name that exists already. Types "T", "N", "F", "L" in any case; for any other a
  // message box, and nothing is added.
  void CreaPropiedad(TextView Tipo, TextView Nombre, const Value& Valor) noexcept;

  // A property by position, if the argument is numeric, else by name without regard to case; the first of equal names.
  // Where there is none, reading gives Empty and writing does nothing.
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
