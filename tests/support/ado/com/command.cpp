#include "support/ado/com/command.h"

#include "support/ado/behaviour.h"
#include "support/ado/com/execution.h"
#include "support/ado/com/trace.h"

namespace qvr::tests::com {

bool Command::implements(REFIID id) const { return id == kCommandInterface; }

void Command::set_active_connection(const VARIANT& argument) {
  trace(u"ActiveConnection");
  GivenConnection given = session_of(argument, u"ADODB.Command");
  parts_->state.set_session(std::move(given.session));
  connection_ = std::move(given.object);
}

// Values passed to Execute take the place of the parameters' own, from the first one on.
std::vector<Value> Command::values(const Call& call) const {
  std::vector<Value> all;
  for (const Ref<Parameter>& each : parts_->parameters) {
    if (!each->is_input()) fail_ado(ado_number::kFeatureNotAvailable, u"ADODB.Command");
    all.push_back(each->value());
  }
  if (!call.given(1)) return all;
  std::vector<Value> passed = to_values(call.raw(1));
  if (all.size() < passed.size()) all.resize(passed.size());
  for (std::size_t each = 0; each < passed.size(); ++each) {
    if (!passed[each].is<Missing>()) all[each] = std::move(passed[each]);
  }
  return all;
}

void Command::call_procedure(Call& call) {
  const AdoCommandState& state = parts_->state;
  std::vector<ProcedureArgument> passed;
  for (const Ref<Parameter>& each : parts_->parameters) passed.push_back(each->as_argument());
  odbc::ResultSet rows = tests::call_procedure(state.open_session(), state.text(), state.timeout(), passed);
  for (std::size_t i = 0; i < passed.size(); ++i) {
    if (!parts_->parameters[i]->is_input()) parts_->parameters[i]->take_output(passed[i].value);
  }
  answer_rows(state, std::move(rows), call);
}

void Command::execute(Call& call) {
  trace(u"Execute", parts_->state.text());
  parts_->state.open_session();
  if (type_asked_for(parts_->state, call, 2) == command_type::kStoredProc) return call_procedure(call);
  execute_and_answer(parts_->state, values(call), call, 0, 2);
}

const Members& Command::members() const {
  using T = Table<Command>;
  static const Members table = {
      T::get(1, u"ActiveConnection", [](Command& self, Call& call) { call.answer(self.connection_.get()); }),
      T::put(1, u"ActiveConnection", [](Command& self, Call& call) { self.set_active_connection(call.raw(0)); }),
      T::get(2, u"CommandText", [](Command& self, Call& call) { call.answer(self.parts_->state.text()); }),
      T::put(2, u"CommandText",
             [](Command& self, Call& call) {
               trace(u"CommandText");
               self.parts_->state.set_text(call.text(0));
             }),
      T::get(3, u"CommandType", [](Command& self, Call& call) { call.answer(self.parts_->state.type()); }),
      T::put(3, u"CommandType",
             [](Command& self, Call& call) {
               trace(u"CommandType");
               self.parts_->state.set_type(call.integer(0));
             }),
      T::get(4, u"CommandTimeout", [](Command& self, Call& call) { call.answer(self.parts_->state.timeout()); }),
      T::put(4, u"CommandTimeout",
             [](Command& self, Call& call) {
               trace(u"CommandTimeout");
               self.parts_->state.set_timeout(call.integer(0));
             }),
      T::method(5, u"Execute", 0, 3, [](Command& self, Call& call) { self.execute(call); }),
      T::get(
          DISPID_VALUE, u"Parameters",
          [](Command& self, Call& call) { answer_collection(call, make_parameters(self.parts_)); }, 1),
      T::method(6, u"CreateParameter", 0, 5,
                [](Command&, Call& call) { call.answer(make<Parameter>(static_cast<const Call&>(call)).get()); }),
      T::get(7, u"Name", [](Command& self, Call& call) { call.answer(self.name_); }),
      T::put(7, u"Name", [](Command& self, Call& call) { self.name_ = call.text(0); }),
      T::get(8, u"Prepared", [](Command& self, Call& call) { call.answer(self.prepared_); }),
      T::put(8, u"Prepared", [](Command& self, Call& call) { self.prepared_ = call.truth(0); }),
      // A command is only ever executing or closed, and nobody can ask while it executes.
      T::get(9, u"State", [](Command&, Call& call) { call.answer(Value(std::int32_t{0})); }),
  };
  return table;
}

}  // namespace qvr::tests::com
