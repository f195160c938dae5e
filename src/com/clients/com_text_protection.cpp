#include "com/clients/com_text_protection.h"

#include "base/failure.h"

namespace qvr::com {
namespace {

Text text_result(Value result) {
  if (!result.is<Text>()) throw RuntimeFailure(failure_number::kTypeMismatch);
  return std::get<Text>(std::move(result).storage());
}

}  // namespace

Text ComTextProtection::Cifrar(TextView Clave, TextView Texto) {
  return text_result(component_->result_of(L"Cifrar", Clave, Texto));
}

Text ComTextProtection::Descifrar(TextView Clave, TextView Texto) {
  return text_result(component_->result_of(L"Descifrar", Clave, Texto));
}

}  // namespace qvr::com
