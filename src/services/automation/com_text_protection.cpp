#include "services/automation/com_text_protection.h"

#include "frame/failure.h"

namespace qvr::automation {
namespace {

Text text_result(const Value& result) {
  const Text* text = result.as<Text>();
  if (text == nullptr) throw RuntimeFailure(failure_number::kTypeMismatch);
  return *text;
}

}  // namespace

Text ComTextProtection::Cifrar(TextView Clave, TextView Texto) {
  return text_result(component_.call(L"Cifrar", {Text(Clave), Text(Texto)}));
}

Text ComTextProtection::Descifrar(TextView Clave, TextView Texto) {
  return text_result(component_.call(L"Descifrar", {Text(Clave), Text(Texto)}));
}

}  // namespace qvr::automation
