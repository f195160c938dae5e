#include "dialect/error_box.h"

#include "dialect/engine.h"
#include "frame/thread_state.h"

namespace qvr::dialect {

void show_failure(TextView source, TextView detail, const FailureDetail& failure) {
  const IdiomaSimple& idioma = thread_state().idioma;
  tell(join({idioma.CI(MsgObjeto), u": ", source, kLineBreak,
             idioma.CI(MsgMetodo), u": ", detail, kLineBreak,
             idioma.CI(MsgError), u" ", decimal(failure.number), u": ", failure.description}));
}

}  // namespace qvr::dialect
