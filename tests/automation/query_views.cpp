#include "automation/query_views.h"

#include "automation/query_slots.h"

namespace qvr::tests {
namespace {

bool is_own(const std::wstring& member) {
  for (const wchar_t* name :
       {L"Name", L"AmpliarCondicionHaving", L"CambiaCondicion", L"ParteWhere", L"ParteHaving", L"ExpresionOriginal"}) {
    if (member == name) return true;
  }
  return false;
}

class LateView final : public QueryView {
 public:
  LateView(LateObject object, std::wstring prefix) : object_(std::move(object)), prefix_(std::move(prefix)) {}

  SlotAnswer call(const std::wstring& member, Access access, std::vector<Var> arguments) override {
    const std::wstring name = is_own(member) ? member : prefix_ + member;
    LateAnswer answer;
    switch (access) {
      case Access::Method: answer = object_.call(name.c_str(), std::move(arguments)); break;
      case Access::Read: answer = object_.get(name.c_str()); break;
      case Access::Write: answer = object_.put(name.c_str(), arguments.at(0)); break;
    }
    return {answer.result, answer.value};
  }

 private:
  LateObject object_;
  std::wstring prefix_;
};

template <class I>
class SlotView final : public QueryView {
 public:
  SlotView(const LateObject& object, const Slots<I>& slots) : object_(object.as<I>()), slots_(slots) {}

  SlotAnswer call(const std::wstring& member, Access access, std::vector<Var> arguments) override {
    const auto& table = access == Access::Method ? slots_.methods
                        : access == Access::Read ? slots_.readers
                                                 : slots_.writers;
    return table.at(member)(*object_.Get(), arguments);
  }

 private:
  ComPtr<I> object_;
  const Slots<I>& slots_;
};

// The early-bound answer does not tell a truth value from a number of 16 bits.
std::string described(SlotAnswer outcome, VARTYPE late_type) {
  if (outcome.status != S_OK) return "HRESULT " + std::to_string(static_cast<unsigned long>(outcome.status));
  if (late_type == VT_BOOL && outcome.value.type() == VT_I2) outcome.value.raw().vt = VT_BOOL;
  return describe(outcome.value.raw());
}

}  // namespace

QueryViews::QueryViews(const std::wstring& class_name) {
  const std::wstring program_id = L"QVRlib21." + class_name;
  const auto object = [&] { return LateObject(program_id.c_str()); };
  views_.emplace_back("late", std::make_unique<LateView>(object(), L"iSQL20_"));
  const LateObject held = object();
  views_.emplace_back("late, held as iSQL20",
                      std::make_unique<LateView>(LateObject(ComPtr<IDispatch>(held.as<_iSQL20>().Get())), L""));
  if (class_name == L"cSQL20") {
    views_.emplace_back("slots", std::make_unique<SlotView<_cSQL20>>(object(), select_slots()));
  } else {
    views_.emplace_back("slots", std::make_unique<SlotView<_uSQL20>>(object(), union_slots()));
  }
  views_.emplace_back("slots of iSQL20", std::make_unique<SlotView<_iSQL20>>(object(), contract_slots()));
}

std::string QueryViews::agreed(const std::wstring& member, Access access, std::vector<Var> arguments) {
  const SlotAnswer first = views_[0].second->call(member, access, arguments);
  const VARTYPE type = first.value.type();
  const std::string answer = described(first, type);
  for (std::size_t i = 1; i < views_.size(); ++i) {
    const bool contract_only = views_[i].first.find("iSQL20") != std::string::npos;
    if (contract_only && is_own(member)) continue;
    const std::string other = described(views_[i].second->call(member, access, arguments), type);
    if (other != answer) return views_[0].first + ": " + answer + " / " + views_[i].first + ": " + other;
  }
  return answer;
}

Var list_of(std::vector<Var> items, LONG lower) {
  SAFEARRAYBOUND bounds{static_cast<ULONG>(items.size()), lower};
  Var list;
  list.raw().parray = SafeArrayCreate(VT_VARIANT, 1, &bounds);
  list.raw().vt = VT_ARRAY | VT_VARIANT;
  LONG index = lower;
  for (Var& item : items) {
    SafeArrayPutElement(list.raw().parray, &index, &item.raw());
    ++index;
  }
  return list;
}

}  // namespace qvr::tests
