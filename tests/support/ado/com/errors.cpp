#include "support/ado/com/errors.h"

namespace qvr::tests::com {
namespace {

class Error : public DispatchObject {
 public:
  explicit Error(services::AdoError error) : error_(std::move(error)) {}

 private:
  const Members& members() const override {
    using T = Table<Error>;
    static const Members table = {
        T::get(DISPID_VALUE, u"Description", [](Error& self, Call& call) { call.answer(self.error_.description); }),
        T::get(1, u"Number", [](Error& self, Call& call) { call.answer(self.error_.number); }),
        T::get(2, u"Source", [](Error& self, Call& call) { call.answer(self.error_.source); }),
        T::get(3, u"SQLState", [](Error& self, Call& call) { call.answer(self.error_.sql_state); }),
        T::get(4, u"NativeError", [](Error& self, Call& call) { call.answer(self.error_.native_error); }),
    };
    return table;
  }

  services::AdoError error_;
};

// Always shows the errors of now, as the collection of ADO does.
class Errors : public Collection {
 public:
  explicit Errors(std::shared_ptr<AdoSession> session) : session_(std::move(session)) {}
  std::size_t size() const override { return session_->errors().size(); }
  Text name_of(std::size_t) const override { return {}; }
  Ref<DispatchObject> item(std::size_t index) override {
    return Ref<DispatchObject>(make<Error>(session_->errors()[index]).get());
  }

 private:
  const Members& members() const override {
    static const Members table = [] {
      Members all = collection_members();
      all.push_back(
          Table<Errors>::method(2, u"Clear", 0, 0, [](Errors& self, Call&) { self.session_->clear_errors(); }));
      return all;
    }();
    return table;
  }
  TextView source() const override { return u"ADODB.Errors"; }

  std::shared_ptr<AdoSession> session_;
};

}  // namespace

Ref<Collection> make_errors(std::shared_ptr<AdoSession> session) {
  return Ref<Collection>(make<Errors>(std::move(session)).get());
}

}  // namespace qvr::tests::com
