#include "automation/stress/hostile_caller.h"

#include <algorithm>

#include "automation/in_use.h"

namespace qvr::tests {
namespace {

// What Invoke may answer, as it is documented.
constexpr HRESULT kDocumented[] = {
    S_OK,
    DISP_E_MEMBERNOTFOUND,
    DISP_E_BADPARAMCOUNT,
    DISP_E_PARAMNOTOPTIONAL,
    DISP_E_PARAMNOTFOUND,
    DISP_E_TYPEMISMATCH,
    DISP_E_OVERFLOW,
    DISP_E_UNKNOWNINTERFACE,
    DISP_E_EXCEPTION,
    E_INVALIDARG,
};

bool names_an_argument(HRESULT result) {
  return result == DISP_E_PARAMNOTFOUND || result == DISP_E_TYPEMISMATCH || result == DISP_E_OVERFLOW;
}

struct Exception : EXCEPINFO {
  Exception() : EXCEPINFO{} {}
  ~Exception() {
    SysFreeString(bstrSource);
    SysFreeString(bstrDescription);
    SysFreeString(bstrHelpFile);
  }
};

BOOL CALLBACK count_boxes(HWND window, LPARAM count) {
  wchar_t kind[16] = L"";
  GetClassNameW(window, kind, 16);
  *reinterpret_cast<int*>(count) += std::wstring(kind) == L"#32770";
  return TRUE;
}

int boxes_left() {
  int count = 0;
  EnumThreadWindows(GetCurrentThreadId(), count_boxes, reinterpret_cast<LPARAM>(&count));
  return count;
}

// Takes reports, and gives texts back as they are: the built-in protection would need a moment for each key.
LateAnswer answer_for_component(const std::wstring& member, std::vector<Var>& arguments) {
  LateAnswer answer;
  answer.result = S_OK;
  if (member != L"Informar") answer.value = arguments.back();
  return answer;
}

}  // namespace

Arguments::Arguments(const DescribedMember& member, std::vector<Var> values) : values_(std::move(values)) {
  for (auto value = values_.rbegin(); value != values_.rend(); ++value) raw_.push_back(value->raw());
  const bool put = member.writes_property() && !raw_.empty();
  parameters_ = {raw_.data(), put ? &put_name_ : nullptr, static_cast<UINT>(raw_.size()), put ? 1u : 0u};
}

std::string Arguments::picture() const {
  return {reinterpret_cast<const char*>(raw_.data()), raw_.size() * sizeof(VARIANT)};
}

HostileAnswer HostileCaller::invoke(const Subject& subject, const HostileCall& call) {
  Var value;
  Exception exception;
  HostileAnswer answer;
  UINT wrong = 0xFFFF;
  const bool wants = call.wants_answers;
  answer.result = subject.object().Invoke(call.id, *call.reserved, call.locale, call.flags, call.parameters,
                                          wants ? &value.raw() : nullptr, wants ? &exception : nullptr,
                                          wants ? &wrong : nullptr);
  answer.wrong_argument = wrong;
  EXPECT_NE(std::ranges::find(kDocumented, answer.result), std::end(kDocumented)) << std::hex << answer.result;
  EXPECT_TRUE(SUCCEEDED(answer.result) || value.type() == VT_EMPTY);
  if (!wants) return answer;
  EXPECT_TRUE(!names_an_argument(answer.result) || wrong < call.parameters->cArgs);
  EXPECT_EQ(exception.scode != 0, answer.result == DISP_E_EXCEPTION);
  EXPECT_EQ(exception.bstrDescription != nullptr, answer.result == DISP_E_EXCEPTION);
  return answer;
}

void HostileCaller::attack_again_and_again(const DescribedMember& member, const Attack& attack,
                                           std::initializer_list<FamilyComponent*> components) const {
  const auto once = [&] {
    const Person person;
    const Subject subject(interface_under_attack());
    subject.expect_works();
    attack(subject, member);
    EXPECT_EQ(boxes_left(), 0);
    for (FamilyComponent* const component : components) component->forget_calls();
    subject.prepare();
    subject.expect_works();
  };
  // What is lost is lost each time; what the first time makes for good, or the system takes now and then, is not.
  InUse before, after;
  int measured = 0;
  do {
    before = in_use();
    once();
    after = in_use();
  } while (++measured < 4 && (after.blocks > before.blocks || after.handles > before.handles));
  EXPECT_LE(after.blocks, before.blocks) << after.bytes - before.bytes << " bytes";
  EXPECT_LE(after.handles, before.handles);
}

void HostileCaller::attack_every_member(const Attack& attack) const {
  stop_string_cache();
  SetCurrentDirectoryW(work_folder().c_str());
  on_fresh_thread([&] {
    const std::vector<std::wstring> members{L"Informar", L"Cifrar", L"Descifrar"};
    FamilyComponent report(L"QVRServicios.InformeErrores", members, answer_for_component);
    FamilyComponent protection(L"QVRServicios.ProteccionTexto", members, answer_for_component);
    for (const DescribedMember& member : interface_under_attack().members) {
      SCOPED_TRACE(narrow(member.name));
      attack_again_and_again(member, attack, {&report, &protection});
    }
  });
  SetCurrentDirectoryW(L"C:\\");
}

std::string interface_name(const testing::TestParamInfo<std::size_t>& row) { return kInterfaces[row.param] + 1; }

}  // namespace qvr::tests
