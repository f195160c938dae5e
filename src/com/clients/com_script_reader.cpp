#include "com/clients/com_script_reader.h"

#include "session/value_convert.h"

namespace qvr::com {

std::optional<Text> ComScriptReader::Leer(TextView ID, TextView Ruta) {
  OwnedBstr text{TextView()};
  const bool read = to_truth(component_->result_of(L"Leer", ID, Ruta, ByReference{text}));
  return read ? std::optional(text.text()) : std::nullopt;
}

}  // namespace qvr::com
