#include "support/ado/com/collection.h"

#include <type_traits>

#include "support/ado/behaviour.h"

namespace qvr::tests::com {
namespace {

class Enumerator : public IEnumVARIANT {
 public:
  explicit Enumerator(std::vector<Ref<DispatchObject>> items, std::size_t next = 0)
      : items_(std::move(items)), next_(next) {}
  virtual ~Enumerator() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    const bool known = id == IID_IUnknown || id == IID_IEnumVARIANT;
    *object = known ? static_cast<IEnumVARIANT*>(this) : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }

  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }

  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT* items, ULONG* fetched) override {
    ULONG given = 0;
    for (; given < wanted && next_ < items_.size(); ++given, ++next_) {
      VariantInit(&items[given]);
      items[given].vt = VT_DISPATCH;
      items[given].pdispVal = items_[next_].get();
      items[given].pdispVal->AddRef();
    }
    if (fetched != nullptr) *fetched = given;
    return given == wanted ? S_OK : S_FALSE;
  }

  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
    const std::size_t left = items_.size() - next_;
    next_ += count < left ? count : left;
    return count <= left ? S_OK : S_FALSE;
  }

  HRESULT STDMETHODCALLTYPE Reset() override {
    next_ = 0;
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) override {
    if (copy == nullptr) return E_POINTER;
    *copy = or_default<IEnumVARIANT*>(u"testado", nullptr, [&] { return new Enumerator(items_, next_); });
    if (*copy == nullptr) return E_OUTOFMEMORY;
    (*copy)->AddRef();
    return S_OK;
  }

 private:
  ModuleLock lock_;
  std::vector<Ref<DispatchObject>> items_;
  std::size_t next_;
  std::atomic<ULONG> references_{0};
};

// The position a number stands for; for anything but a number nothing fits.
std::size_t position_of(const Value& index) {
  return std::visit(
      [](const auto& held) -> std::size_t {
        using T = std::decay_t<decltype(held)>;
        if constexpr (std::is_arithmetic_v<T> && !std::is_same_v<T, bool>) {
          return held < T{} ? static_cast<std::size_t>(-1) : static_cast<std::size_t>(held);
        } else {
          throw DispatchFailure{DISP_E_TYPEMISMATCH};
        }
      },
      index.storage());
}

}  // namespace

std::size_t Collection::locate(const Value& index) const {
  std::size_t found = 0;
  if (const Text* name = index.as<Text>()) {
    while (found < size() && !equal_no_case(name_of(found), *name)) ++found;
  } else {
    found = position_of(index);
  }
  if (found >= size()) fail_ado(ado_number::kItemNotFound, source());
  return found;
}

Ref<IUnknown> Collection::enumerator() {
  std::vector<Ref<DispatchObject>> items;
  for (std::size_t each = 0; each < size(); ++each) items.push_back(item(each));
  return Ref<IUnknown>(new Enumerator(std::move(items)));
}

Members collection_members() {
  using T = Table<Collection>;
  return {
      T::get(
          DISPID_VALUE, u"Item",
          [](Collection& self, Call& call) {
            if (!call.given(0)) throw DispatchFailure{DISP_E_PARAMNOTOPTIONAL};
            call.answer(self.item(self.locate(call.value(0))).get());
          },
          1),
      T::get(1, u"Count", [](Collection& self, Call& call) { call.answer(static_cast<std::int32_t>(self.size())); }),
      T::get(DISPID_NEWENUM, u"_NewEnum", [](Collection& self, Call& call) { call.answer(self.enumerator().get()); }),
  };
}

void answer_collection(Call& call, const Ref<Collection>& collection) {
  if (!call.given(0)) return call.answer(collection.get());
  call.answer(collection->item(collection->locate(call.value(0))).get());
}

}  // namespace qvr::tests::com
