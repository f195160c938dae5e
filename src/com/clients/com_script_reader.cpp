#include "com/clients/com_script_reader.h"

#include "session/value_convert.h"

namespace qvr::com {

std::optional<Text> ComScriptReader::Leer(TextView ID, TextView Ruta) {
  Text text;
  const bool read = to_truth(component_->call(L"Leer", {Text(ID), Text(Ruta)}, text));
  return read ? std::optional(std::move(text)) : std::nullopt;
}

}  // namespace qvr::com
