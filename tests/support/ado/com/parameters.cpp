#include <algorithm>

#include "support/ado/behaviour.h"
#include "support/ado/com/command.h"
#include "support/ado/com/trace.h"

namespace qvr::tests::com {
namespace {

constexpr TextView kSource = u"ADODB.Parameters";

class Parameters : public Collection {
 public:
  explicit Parameters(std::shared_ptr<CommandParts> parts) : parts_(std::move(parts)) {}
  std::size_t size() const override { return parts_->parameters.size(); }
  Text name_of(std::size_t index) const override { return parts_->parameters[index]->name(); }
  Ref<DispatchObject> item(std::size_t index) override { return Ref<DispatchObject>(parts_->parameters[index].get()); }

 private:
  const Members& members() const override;
  TextView source() const override { return kSource; }

  void append(const Call& call) {
    trace(u"Parameters.Append");
    OwnedVariant argument;
    follow(call.raw(0), argument);
    if (argument.vt != VT_DISPATCH && argument.vt != VT_UNKNOWN) throw DispatchFailure{DISP_E_TYPEMISMATCH};
    const Ref<Parameter> added = own_object<Parameter>(argument.punkVal);
    if (!added) fail_ado(ado_number::kInvalidArgument, kSource);
    if (!added->defined()) fail_ado(ado_number::kInvalidParamInfo, kSource);
    std::vector<Ref<Parameter>>& all = parts_->parameters;
    const bool known = std::any_of(all.begin(), all.end(), [&](const auto& each) { return each.get() == added.get(); });
    if (known) fail_ado(ado_number::kObjectInCollection, kSource);
    all.push_back(added);
  }

  void remove(const Call& call) {
    const auto index = static_cast<std::ptrdiff_t>(locate(call.value(0)));
    parts_->parameters.erase(parts_->parameters.begin() + index);
  }

  void refresh() {
    trace(u"Parameters.Refresh");
    const AdoCommandState& state = parts_->state;
    std::vector<Ref<Parameter>> described;
    for (const ProcedureParameter& each : procedure_parameters(state.open_session(), state.text(), state.timeout())) {
      described.push_back(make<Parameter>(each));
    }
    parts_->parameters = std::move(described);
  }

  std::shared_ptr<CommandParts> parts_;
};

const Members& Parameters::members() const {
  using T = Table<Parameters>;
  static const Members table = [] {
    Members all = collection_members();
    all.push_back(T::method(2, u"Append", 1, 1, [](Parameters& self, Call& call) { self.append(call); }));
    all.push_back(T::method(3, u"Delete", 1, 1, [](Parameters& self, Call& call) { self.remove(call); }));
    all.push_back(T::method(4, u"Refresh", 0, 0, [](Parameters& self, Call&) { self.refresh(); }));
    return all;
  }();
  return table;
}

}  // namespace

Ref<Collection> make_parameters(std::shared_ptr<CommandParts> parts) {
  return Ref<Collection>(make<Parameters>(std::move(parts)).get());
}

}  // namespace qvr::tests::com
