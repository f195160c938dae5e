#include "automation/stress/classes.h"

#include "QVRlib21.h"

namespace qvr::tests {
namespace {

std::string answer_of(const LateAnswer& answer) {
  return answer.result == S_OK ? describe(answer.value.raw()) : "failed with " + std::to_string(answer.result);
}

std::string quote(const LateObject& object) { return answer_of(object.call(L"ComillasSQL", {L"d'a\u00f1o"})); }
std::string version(const LateObject& object) { return answer_of(object.call(L"Version")).substr(0, 4); }
std::string account(const LateObject& object) { return answer_of(object.call(L"UsuarioSegunMotor", {3})); }
std::string name(const LateObject& object) { return answer_of(object.get(L"Name")); }
std::string size(const LateObject& object) {
  object.call(L"CreaPropiedad", {L"T", L"a", L"b"});
  return answer_of(object.get(L"NumPropiedades"));
}

}  // namespace

std::span<const ClassUnderStress> classes_under_stress() {
  static const ClassUnderStress rows[] = {
      {CLSID_QVRcfp, L"QVRlib21.QVRcfp", quote, "BSTR 'd''a\u00f1o'"},
      {CLSID_Ov, L"QVRlib21.Ov", version, "I4 2"},
      {CLSID_QVRScr, L"QVRlib21.QVRScr", account, "BSTR System"},
      {CLSID_cSQL20, L"QVRlib21.cSQL20", name, "BSTR cSQL20"},
      {CLSID_uSQL20, L"QVRlib21.uSQL20", name, "BSTR uSQL20"},
      {CLSID_QVRprp, L"QVRlib21.QVRprp", size, "I4 1"},
  };
  return rows;
}

ComPtr<IDispatch> created_by(IClassFactory& factory) {
  ComPtr<IDispatch> object;
  factory.CreateInstance(nullptr, IID_PPV_ARGS(&object));
  return object;
}

}  // namespace qvr::tests
