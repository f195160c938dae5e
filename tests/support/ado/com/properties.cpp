#include "support/ado/com/properties.h"

#include <array>

namespace qvr::tests::com {
namespace {

// OLE DB's DBPROP_SUPPORTEDTXNDDL for ODBC's SQL_TXN_CAPABLE.
Value transaction_ddl(const DriverFacts& facts) {
  switch (facts.transactions.value_or(txn_capable::kNone)) {
    case txn_capable::kDmlOnly: return std::int32_t{1};
    case txn_capable::kDdlCommits: return std::int32_t{2};
    case txn_capable::kDdlIgnored: return std::int32_t{4};
    case txn_capable::kAll: return std::int32_t{8};
    default: return std::int32_t{0};
  }
}

struct Fact {
  TextView name;
  Value (*value)(const DriverFacts& facts);
};

constexpr std::array kFacts{
    Fact{u"DBMS Name", [](const DriverFacts& facts) { return Value(facts.product); }},
    Fact{u"DBMS Version", [](const DriverFacts& facts) { return Value(facts.version); }},
    Fact{u"Transaction DDL", transaction_ddl},
};

class Property : public DispatchObject {
 public:
  Property(std::shared_ptr<AdoSession> session, const Fact& fact) : session_(std::move(session)), fact_(fact) {}

 private:
  const Members& members() const override {
    using T = Table<Property>;
    static const Members table = {
        T::get(DISPID_VALUE, u"Value",
               [](Property& self, Call& call) { call.answer(self.fact_.value(self.session_->driver_facts())); }),
        T::get(1, u"Name", [](Property& self, Call& call) { call.answer(Text(self.fact_.name)); }),
    };
    return table;
  }

  std::shared_ptr<AdoSession> session_;
  const Fact& fact_;
};

// A closed connection has none of the provider's properties.
class Properties : public Collection {
 public:
  explicit Properties(std::shared_ptr<AdoSession> session) : session_(std::move(session)) {}
  std::size_t size() const override { return session_->is_open() ? kFacts.size() : 0; }
  Text name_of(std::size_t index) const override { return Text(kFacts[index].name); }
  Ref<DispatchObject> item(std::size_t index) override {
    return Ref<DispatchObject>(make<Property>(session_, kFacts[index]).get());
  }

 private:
  const Members& members() const override {
    static const Members table = collection_members();
    return table;
  }
  TextView source() const override { return u"ADODB.Properties"; }

  std::shared_ptr<AdoSession> session_;
};

}  // namespace

Ref<Collection> make_properties(std::shared_ptr<AdoSession> session) {
  return Ref<Collection>(make<Properties>(std::move(session)).get());
}

}  // namespace qvr::tests::com
