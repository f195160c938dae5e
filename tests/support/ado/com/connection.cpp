#include "support/ado/com/connection.h"

#include "support/ado/com/errors.h"
#include "support/ado/com/execution.h"
#include "support/ado/com/properties.h"
#include "support/ado/com/trace.h"

namespace qvr::tests::com {

bool Connection::implements(REFIID id) const { return id == kConnectionInterface; }

void Connection::open(Call& call) {
  trace(u"Open");
  if (const Text text = call.text_or_none(0); !text.empty()) session_->set_connection_string(text);
  session_->open(call.text_or_none(1), call.text_or_none(2));
}

void Connection::execute(Call& call) {
  const Text text = call.text(0);
  trace(u"Execute", text);
  if (!session_->is_open()) session_->execute(text, {}, 0);  // refuses in the connection's own name
  AdoCommandState command;
  command.set_session(session_);
  command.set_text(text);
  command.set_timeout(session_->command_timeout());
  execute_and_answer(command, {}, call, 1, 2);
}

const Members& Connection::members() const {
  using T = Table<Connection>;
  static const Members table = {
      T::get(DISPID_VALUE, u"ConnectionString",
             [](Connection& self, Call& call) { call.answer(self.session_->connection_string()); }),
      T::put(DISPID_VALUE, u"ConnectionString",
             [](Connection& self, Call& call) {
               trace(u"ConnectionString");
               self.session_->set_connection_string(call.text(0));
             }),
      T::method(1, u"Open", 0, 4, [](Connection& self, Call& call) { self.open(call); }),
      T::method(2, u"Close", 0, 0,
                [](Connection& self, Call&) {
                  trace(u"Close");
                  self.session_->close();
                }),
      T::method(3, u"BeginTrans", 0, 0,
                [](Connection& self, Call& call) {
                  trace(u"BeginTrans");
                  call.answer(self.session_->begin_trans());
                }),
      T::method(4, u"CommitTrans", 0, 0,
                [](Connection& self, Call&) {
                  trace(u"CommitTrans");
                  self.session_->commit_trans();
                }),
      T::method(5, u"RollbackTrans", 0, 0,
                [](Connection& self, Call&) {
                  trace(u"RollbackTrans");
                  self.session_->rollback_trans();
                }),
      T::method(6, u"Execute", 1, 3, [](Connection& self, Call& call) { self.execute(call); }),
      T::get(
          7, u"Errors", [](Connection& self, Call& call) { answer_collection(call, make_errors(self.session_)); }, 1),
      T::get(8, u"State",
             [](Connection& self, Call& call) { call.answer(std::int32_t{self.session_->is_open() ? 1 : 0}); }),
      T::get(9, u"ConnectionTimeout",
             [](Connection& self, Call& call) { call.answer(self.session_->connection_timeout()); }),
      T::put(9, u"ConnectionTimeout",
             [](Connection& self, Call& call) {
               trace(u"ConnectionTimeout");
               self.session_->set_connection_timeout(call.integer(0));
             }),
      T::get(10, u"CommandTimeout",
             [](Connection& self, Call& call) { call.answer(self.session_->command_timeout()); }),
      T::put(10, u"CommandTimeout",
             [](Connection& self, Call& call) {
               trace(u"CommandTimeout");
               self.session_->set_command_timeout(call.integer(0));
             }),
      T::get(11, u"Provider", [](Connection& self, Call& call) { call.answer(self.session_->provider()); }),
      T::put(11, u"Provider",
             [](Connection& self, Call& call) {
               trace(u"Provider");
               self.session_->set_provider(call.text(0));
             }),
      T::get(
          13, u"Properties",
          [](Connection& self, Call& call) { answer_collection(call, make_properties(self.session_)); }, 1),
      T::get(12, u"Version", [](Connection&, Call& call) { call.answer(Text(u"2.5")); }),
  };
  return table;
}

}  // namespace qvr::tests::com
