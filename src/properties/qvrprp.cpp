#include "properties/qvrprp.h"

#include <algorithm>
#include <utility>

#include "base/failure.h"
#include "session/global.h"
#include "session/message_box.h"
#include "session/value_convert.h"

namespace qvr {
namespace {

constexpr TextView kTypes[] = {u"T", u"N", u"F", u"L"};

void tell_unexpected_type(TextView type, TextView name) {
  tell(join({u"Tipo inesperado (", type, u") al agregar propiedad (", name, u")"}));
}

}  // namespace

QVRprp::QVRprp() noexcept { InicializarComun(); }

// Emptied before the values are destroyed: releasing a host's object can re-enter this list.
void QVRprp::Borra() noexcept { const std::vector<Row> leaving = std::exchange(rows_, {}); }

void QVRprp::CreaPropiedad(TextView Tipo, TextView Nombre, const Value& Valor) noexcept {
  or_default(kClass, false, [&] {
    const bool known = std::ranges::any_of(kTypes, [&](TextView type) { return equal_no_case(type, Tipo); });
    if (!known) return tell_unexpected_type(Tipo, Nombre), false;
    rows_.push_back({Text(Tipo), Text(Nombre), Valor});
    return true;
  });
}

std::optional<std::size_t> QVRprp::position_of(const Value& name_or_index) const {
  if (is_numeric(name_or_index)) {
    const std::int32_t position = to_long(name_or_index);
    const bool there = position >= 0 && position < NumPropiedades();
    return there ? std::optional(static_cast<std::size_t>(position)) : std::nullopt;
  }
  const Text name = to_text(name_or_index);
  const auto found = std::ranges::find_if(rows_, [&](const Row& row) { return equal_no_case(row.name, name); });
  return found == rows_.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - rows_.begin()));
}

Value QVRprp::Item(const Value& NombreOIndice) const noexcept {
  return or_default(kClass, Value(), [&] {
    const auto position = rows_.empty() ? std::nullopt : position_of(NombreOIndice);
    return position ? rows_[*position].value : Value();
  });
}

void QVRprp::Item(const Value& NombreOIndice, const Value& Valor) noexcept {
  or_default(kClass, false, [&] {
    const auto position = rows_.empty() ? std::nullopt : position_of(NombreOIndice);
    if (!position) return false;
    Value changed = Valor;
    // The old value is destroyed last: releasing a host's object can re-enter this list.
    std::swap(rows_[*position].value, changed);
    return true;
  });
}

Text QVRprp::NombrePropiedad(std::int32_t Indice) const noexcept {
  return or_default(kClass, Text(), [&] {
    const bool there = Indice >= 0 && Indice < NumPropiedades();
    return there ? rows_[static_cast<std::size_t>(Indice)].name : Text();
  });
}

}  // namespace qvr
