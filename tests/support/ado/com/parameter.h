// ADODB.Parameter.
#pragma once

#include "support/ado/com/dispatch_object.h"
#include "support/ado/stored_procedure.h"

namespace qvr::tests::com {

class Parameter : public DispatchObject {
 public:
  Parameter() = default;
  // Of CreateParameter: name, type, direction, size and value, each of which may be left out.
  explicit Parameter(const Call& call);
  explicit Parameter(const ProcedureParameter& described);

  const Text& name() const { return name_; }
  const Value& value() const { return value_; }
  ProcedureArgument as_argument() const { return {type_, size_, direction_, precision_, scale_, value_}; }
  void take_output(const Value& value);  // converted as any other value
  bool is_input() const;
  bool defined() const;  // enough is known of it to send it

 private:
  const Members& members() const override;
  void set_value(const VARIANT& argument);

  Text name_;
  std::int32_t type_ = 0;
  std::int32_t direction_ = direction::kInput;
  std::int32_t size_ = 0;
  std::int32_t precision_ = 0;
  std::int32_t scale_ = 0;
  std::int32_t attributes_ = 0x10;  // adParamSigned
  Value value_;
};

}  // namespace qvr::tests::com
