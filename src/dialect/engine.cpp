#include "dialect/engine.h"

#include "session/thread_state.h"

namespace qvr::dialect {

std::optional<TextView> pick(const Engine& engine, const ByEngine& pieces) noexcept {
  switch (engine) {
    case kJet: return pieces.jet;
    case kSqlServer: return pieces.sql_server;
    case kOracle: return pieces.oracle;
    default: return std::nullopt;
  }
}

void tell(TextView message) { thread_state().platform().message_boxes.show(message, BoxButtons::Ok); }

Text undefined_engine(const Engine& engine) {
  tell(join({u"Motor de Base de Datos no definido: ", decimal(engine)}));
  return {};
}

Text pick_or_tell(const Engine& engine, const ByEngine& pieces) {
  const auto piece = pick(engine, pieces);
  return piece ? Text(*piece) : undefined_engine(engine);
}

}  // namespace qvr::dialect
