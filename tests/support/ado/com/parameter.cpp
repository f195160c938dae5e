#include "support/ado/com/parameter.h"

#include "support/ado/behaviour.h"
#include "support/ado/com/trace.h"
#include "support/ado/data_type.h"

namespace qvr::tests::com {
namespace {

constexpr TextView kSource = u"ADODB.Parameter";

}  // namespace

Parameter::Parameter(const Call& call)
    : name_(call.text_or_none(0)),
      type_(call.integer_or(1, 0)),
      direction_(call.integer_or(2, direction::kInput)),
      size_(call.integer_or(3, 0)) {
  if (call.given(4)) set_value(call.raw(4));
}

Parameter::Parameter(const ProcedureParameter& described)
    : name_(described.name),
      type_(described.type),
      direction_(described.direction),
      size_(described.size),
      precision_(described.precision),
      scale_(described.scale) {}

bool Parameter::is_input() const { return direction_ == direction::kInput; }

bool Parameter::defined() const {
  const DataType* type = data_type(type_);
  return type_ != 0 && (type == nullptr || !type->sized || size_ > 0);
}

// The value takes the parameter's type as soon as there is one; a text may not be longer than the size.
void Parameter::set_value(const VARIANT& argument) {
  Value value = to_value(argument);
  const DataType* type = data_type(type_);
  if (type == nullptr || value.is<Null>() || value.is<Empty>()) {
    value_ = std::move(value);
    return;
  }
  OwnedVariant direct, converted;
  follow(argument, direct);
  if (FAILED(VariantChangeType(&converted, &direct, 0, type->held_as))) fail_ado(ado_number::kDataConversion, kSource);
  value = to_value(converted);
  const Text* text = value.as<Text>();
  if (text != nullptr && size_ > 0 && text->size() > static_cast<std::size_t>(size_)) {
    fail_ado(ado_number::kDataConversion, kSource);
  }
  value_ = std::move(value);
}

void Parameter::take_output(const Value& value) {
  OwnedVariant given;
  to_variant(value, given);
  set_value(given);
}

const Members& Parameter::members() const {
  using T = Table<Parameter>;
  static const Members table = {
      T::get(DISPID_VALUE, u"Value", [](Parameter& self, Call& call) { call.answer(self.value_); }),
      T::put(DISPID_VALUE, u"Value",
             [](Parameter& self, Call& call) {
               trace(u"Parameter.Value");
               self.set_value(call.raw(0));
             }),
      T::get(1, u"Name", [](Parameter& self, Call& call) { call.answer(self.name_); }),
      T::put(1, u"Name",
             [](Parameter& self, Call& call) {
               trace(u"Parameter.Name");
               self.name_ = call.text(0);
             }),
      T::get(2, u"Type", [](Parameter& self, Call& call) { call.answer(self.type_); }),
      T::put(2, u"Type",
             [](Parameter& self, Call& call) {
               trace(u"Parameter.Type");
               self.type_ = call.integer(0);
             }),
      T::get(3, u"Direction", [](Parameter& self, Call& call) { call.answer(self.direction_); }),
      T::put(3, u"Direction",
             [](Parameter& self, Call& call) {
               trace(u"Parameter.Direction");
               self.direction_ = call.integer(0);
             }),
      T::get(4, u"Size", [](Parameter& self, Call& call) { call.answer(self.size_); }),
      T::put(4, u"Size",
             [](Parameter& self, Call& call) {
               trace(u"Parameter.Size");
               self.size_ = call.integer(0);
             }),
      T::get(5, u"Precision", [](Parameter& self, Call& call) { call.answer(self.precision_); }),
      T::put(5, u"Precision",
             [](Parameter& self, Call& call) {
               trace(u"Parameter.Precision");
               self.precision_ = call.integer(0);
             }),
      T::get(6, u"NumericScale", [](Parameter& self, Call& call) { call.answer(self.scale_); }),
      T::put(6, u"NumericScale",
             [](Parameter& self, Call& call) {
               trace(u"Parameter.NumericScale");
               self.scale_ = call.integer(0);
             }),
      T::get(7, u"Attributes", [](Parameter& self, Call& call) { call.answer(self.attributes_); }),
      T::put(7, u"Attributes", [](Parameter& self, Call& call) { self.attributes_ = call.integer(0); }),
  };
  return table;
}

}  // namespace qvr::tests::com
