#include "dialect/by_engine.h"

#include "session/message_box.h"

namespace qvr::dialect {

Text undefined_engine(Engine engine) {
  tell(join({u"Motor de Base de Datos no definido: ", decimal(number_of(engine))}));
  return {};
}

Text pick_or_tell(Engine engine, const ByEngine& pieces) {
  const auto piece = pick(engine, pieces);
  return piece ? Text(*piece) : undefined_engine(engine);
}

}  // namespace qvr::dialect
