#include "support/ado/com/execution.h"

#include "support/ado/behaviour.h"
#include "support/ado/com/recordset.h"

namespace qvr::tests::com {

GivenConnection session_of(const VARIANT& argument, TextView source) {
  OwnedVariant direct;
  follow(argument, direct);
  GivenConnection given;
  if (direct.vt == VT_BSTR) {
    given.object = make<Connection>();
    given.session = given.object->session();
    given.session->set_connection_string(to_text(direct.bstrVal));
    given.session->open();
  } else if (direct.vt == VT_DISPATCH || direct.vt == VT_UNKNOWN) {
    if (direct.punkVal == nullptr) return given;
    given.object = own_object<Connection>(direct.punkVal);
    if (!given.object) fail_ado(ado_number::kInvalidArgument, source);
    given.session = given.object->session();
  } else {
    throw DispatchFailure{DISP_E_TYPEMISMATCH};
  }
  return given;
}

// Options are a type of command and flags about how to run it; the flags change nothing that could be seen here.
std::int32_t type_asked_for(const AdoCommandState& command, const Call& call, unsigned options) {
  constexpr std::int32_t kTypes = command_type::kText | command_type::kTable | command_type::kStoredProc;
  const std::int32_t asked = call.integer_or(options, command_type::kUnspecified);
  const std::int32_t type = asked & kTypes;
  return asked == command_type::kUnspecified || type == 0 ? command.type() : type;
}

void answer_rows(const AdoCommandState& command, odbc::ResultSet rows, Call& call) {
  call.answer(make<Recordset>(command.session(), std::move(rows)).get());
}

void execute_and_answer(AdoCommandState& command, const std::vector<Value>& parameters, Call& call, unsigned affected,
                        unsigned options) {
  odbc::ResultSet result = command.execute_as(type_asked_for(command, call, options), parameters);
  call.hand_out(affected, static_cast<std::int32_t>(result.affected));
  answer_rows(command, std::move(result), call);
}

}  // namespace qvr::tests::com
