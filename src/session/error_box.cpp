#include "session/error_box.h"

#include "dialect/engine.h"
#include "session/global.h"

namespace qvr::dialect {

void show_failure(TextView source, TextView detail, const FailureDetail& failure) {
  tell(join({message(MsgObjeto), u": ", source, kLineBreak, message(MsgMetodo), u": ", detail, kLineBreak,
             message(MsgError), u" ", decimal(failure.number), u": ", failure.description}));
}

}  // namespace qvr::dialect
