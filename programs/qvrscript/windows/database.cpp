// Connections of the program's own, through the system's ADO.
#include "com/clients/com_ado.h"
#include "qvrscript/system.h"
#include "session/value_convert.h"

namespace qvr::script_tool {
namespace {

using com::LateObject;

// Values of OLE DB's DBPROP_SUPPORTEDTXNDDL.
Ddl ddl_of(const Value& property) {
  const auto* told = property.as<std::int32_t>();
  if (told == nullptr) return Ddl::Unknown;
  switch (*told) {
    case 8:                           // all
    case 16: return Ddl::RolledBack;  // all, and holds locks until the end
    case 1:                           // DML only
    case 4: return Ddl::Refused;      // DDL is ignored
    case 0:                           // no transactions: each statement stays as it is
    case 2: return Ddl::Commits;
    default: return Ddl::Unknown;
  }
}

class AdoDatabase final : public Database {
 public:
  AdoDatabase(TextView connection_string, std::int32_t connect_timeout) : AdoDatabase(created()) {
    try {
      object_.put(L"ConnectionTimeout", connect_timeout);
      connection_->set_connection_string(connection_string);
      connection_->open();
    } catch (const RuntimeFailure& failure) {
      throw OpenFailure(failure.detail(), errors_of_failure());
    }
  }

  DatabaseFacts facts() override {
    return {text_of(u"DBMS Name"), text_of(u"DBMS Version"), ddl_of(property(u"Transaction DDL"))};
  }

  std::vector<std::vector<Value>> rows(TextView query) override {
    const LateObject set(com::LateClass(L"ADODB.Recordset").create());
    set.call(L"Open", query, object_);
    std::vector<std::vector<Value>> rows;
    if (to_long(set.get(L"State")) == 0) return rows;  // closed: the statement gives none
    const LateObject fields = set.get_object(L"Fields");
    const std::int32_t columns = to_long(fields.get(L"Count"));
    for (; !is_true(set.get(L"EOF")); set.call(L"MoveNext")) {
      std::vector<Value>& row = rows.emplace_back();
      for (std::int32_t i = 0; i < columns; ++i) row.push_back(fields.get_object(L"Item", i).get(L"Value"));
    }
    return rows;
  }

  std::vector<services::AdoError> errors() override { return connection_->errors(); }

 private:
  explicit AdoDatabase(const com::HostPtr<IDispatch>& connection)
      : object_(connection), connection_(com::wrap_connection(connection.Get())) {}

  static com::HostPtr<IDispatch> created() {
    try {
      return com::LateClass(L"ADODB.Connection").create();
    } catch (const RuntimeFailure& failure) {
      throw OpenFailure(failure.detail(), {});
    }
  }

  static bool is_true(const Value& value) {
    const bool* held = value.as<bool>();
    return held == nullptr || *held;  // an EOF that is no Boolean must not make an endless list
  }

  // A failure of ADO itself leaves no errors, and must not be replaced by another one.
  std::vector<services::AdoError> errors_of_failure() {
    return or_default({}, std::vector<services::AdoError>(), [this] { return connection_->errors(); });
  }

  // Empty where the provider has no such property.
  Value property(TextView name) const {
    return or_default({}, Value(),
                      [&] { return object_.get_object(L"Properties").get_object(L"Item", name).get(L"Value"); });
  }
  Text text_of(TextView name) const {
    return or_default({}, Text(), [&] { return to_text(property(name)); });
  }

  LateObject object_;
  std::unique_ptr<services::AdoConnection> connection_;
};

}  // namespace

std::unique_ptr<Database> open_database(TextView connection_string, std::int32_t connect_timeout) {
  return std::make_unique<AdoDatabase>(connection_string, connect_timeout);
}

}  // namespace qvr::script_tool
