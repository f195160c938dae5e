#include "support/ado/com/execution.h"

#include "support/ado/ado_failure.h"
#include "support/ado/com/recordset.h"

namespace qvr::tests::com {
namespace {

// Options are a type of command and flags about how to run it; the flags change nothing that could be seen here.
std::int32_t type_in(std::int32_t options, std::int32_t otherwise) {
  constexpr std::int32_t kTypes = command_type::kText | command_type::kTable | command_type::kStoredProc;
  const std::int32_t type = options & kTypes;
  return options == command_type::kUnspecified || type == 0 ? otherwise : type;
}

}  // namespace

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

void execute_and_answer(AdoCommandState& command, const std::vector<Value>& parameters, Call& call, unsigned affected,
                        unsigned options) {
  const std::int32_t type = type_in(call.integer_or(options, command_type::kUnspecified), command.type());
  odbc::ResultSet result = command.execute_as(type, parameters);
  call.hand_out(affected, static_cast<std::int32_t>(result.affected));
  call.answer(make<Recordset>(command.session(), std::move(result)).get());
}

}  // namespace qvr::tests::com
