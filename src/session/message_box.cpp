#include "session/message_box.h"

#include "session/global.h"
#include "session/thread_state.h"

namespace qvr {

void tell(TextView text) { thread_state().platform().message_boxes.show(text, BoxButtons::Ok); }

void show_failure(TextView source, TextView detail, const FailureDetail& failure) {
  tell(join({message(MsgObjeto), u": ", source, kLineBreak, message(MsgMetodo), u": ", detail, kLineBreak,
             message(MsgError), u" ", decimal(failure.number), u": ", failure.description}));
}

}  // namespace qvr
