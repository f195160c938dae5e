#include "support/ado/com/recordset.h"

#include "support/ado/behaviour.h"
#include "support/ado/com/execution.h"
#include "support/ado/com/trace.h"

namespace qvr::tests::com {
namespace {

constexpr TextView kSource = u"ADODB.Recordset";

class Field : public DispatchObject {
 public:
  Field(std::shared_ptr<Rows> rows, std::size_t column) : rows_(std::move(rows)), column_(column) {}

 private:
  const Members& members() const override {
    using T = Table<Field>;
    static const Members table = {
        T::get(DISPID_VALUE, u"Value", [](Field& self, Call& call) { call.answer(self.value()); }),
        T::get(1, u"Name", [](Field& self, Call& call) { call.answer(self.rows_->result.columns.at(self.column_)); }),
    };
    return table;
  }

  Value value() const {
    rows_->require_open();
    if (rows_->at_end()) fail_ado(ado_number::kNoCurrentRecord, kSource);
    return rows_->result.rows[rows_->current].at(column_);
  }

  std::shared_ptr<Rows> rows_;
  std::size_t column_;
};

class Fields : public Collection {
 public:
  explicit Fields(std::shared_ptr<Rows> rows) : rows_(std::move(rows)) {}
  std::size_t size() const override { return rows_->open() ? rows_->result.columns.size() : 0; }
  Text name_of(std::size_t index) const override { return rows_->result.columns[index]; }
  Ref<DispatchObject> item(std::size_t index) override { return Ref<DispatchObject>(make<Field>(rows_, index).get()); }

 private:
  const Members& members() const override {
    static const Members table = collection_members();
    return table;
  }
  TextView source() const override { return kSource; }

  std::shared_ptr<Rows> rows_;
};

}  // namespace

bool Rows::open() const { return session != nullptr && session->is_open() && session->openings() == opening; }

void Rows::require_open() const {
  if (!open()) fail_ado(ado_number::kObjectClosed, kSource);
}

Recordset::Recordset(std::shared_ptr<AdoSession> session, odbc::ResultSet result) {
  read(std::move(session), std::move(result));
}

void Recordset::read(std::shared_ptr<AdoSession> session, odbc::ResultSet result) {
  if (!result.has_rows) return;
  auto rows = std::make_shared<Rows>();
  rows->opening = session->openings();
  rows->session = std::move(session);
  rows->result = std::move(result);
  rows_ = std::move(rows);
}

// Source and ActiveConnection; the kinds of cursor and lock are what they are.
void Recordset::open(Call& call) {
  if (rows_->open()) fail_ado(ado_number::kObjectOpen, kSource);
  const Text text = call.text_or_none(0);
  trace(u"Execute", text);
  if (!call.given(1)) fail_ado(ado_number::kInvalidConnection, kSource);
  AdoCommandState command;
  command.set_session(session_of(call.raw(1), kSource).session);
  command.set_text(text);
  read(command.session(), command.execute({}));
}

void Recordset::move_next() {
  rows_->require_open();
  if (rows_->at_end()) fail_ado(ado_number::kNoCurrentRecord, kSource);
  ++rows_->current;
}

const Members& Recordset::members() const {
  using T = Table<Recordset>;
  static const Members table = {
      T::get(
          DISPID_VALUE, u"Fields",
          [](Recordset& self, Call& call) { answer_collection(call, Ref<Collection>(make<Fields>(self.rows_).get())); },
          1),
      T::get(1, u"EOF",
             [](Recordset& self, Call& call) {
               self.rows_->require_open();
               call.answer(self.rows_->at_end());
             }),
      // Nothing moves back, so only a recordset without rows is ever before its first one.
      T::get(2, u"BOF",
             [](Recordset& self, Call& call) {
               self.rows_->require_open();
               call.answer(self.rows_->result.rows.empty());
             }),
      T::method(3, u"MoveNext", 0, 0, [](Recordset& self, Call&) { self.move_next(); }),
      T::method(4, u"Close", 0, 0,
                [](Recordset& self, Call&) {
                  self.rows_->require_open();
                  self.rows_->session.reset();
                }),
      T::get(5, u"State", [](Recordset& self, Call& call) { call.answer(std::int32_t{self.rows_->open() ? 1 : 0}); }),
      T::method(6, u"Open", 2, 5, [](Recordset& self, Call& call) { self.open(call); }),
  };
  return table;
}

}  // namespace qvr::tests::com
