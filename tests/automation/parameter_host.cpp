#include "automation/parameter_host.h"

#include "automation/boxes.h"

namespace qvr::tests {
namespace {

LateObject parameters_of(const LateObject& command) {
  return LateObject(ComPtr<IDispatch>(command.get(L"Parameters").value.raw().pdispVal));
}

}  // namespace

std::string described_parameter(const LateObject& command, int index) {
  const LateObject one{ComPtr<IDispatch>(parameters_of(command).get(L"Item", {index}).value.raw().pdispVal)};
  const auto number = [&](const wchar_t* name) { return std::to_string(one.get(name).value.raw().lVal); };
  return narrow(one.get(L"Name").value.text()) + ": type " + number(L"Type") + ", size " + number(L"Size") +
         ", precision " + number(L"Precision") + ", scale " + number(L"NumericScale") + ", direction " +
         number(L"Direction") + ", " + describe(one.get(L"Value").value.raw());
}

long count_of_parameters(const LateObject& command) { return parameters_of(command).get(L"Count").value.raw().lVal; }

void ParameterHost::use(int engine) const {
  const LateAnswer done = cfp_.call(L"Asignar", {L"id", engine, L"", L"", L"", L"", L"", L"", L"", L""});
  EXPECT_EQ(describe(done.value.raw()), "BOOL true");
}

std::string ParameterHost::append_late(IDispatch* command, const ParameterRequest& r) const {
  const LateAnswer answer = cfp_.call(L"AgregarParametroADO", {command, r.type, r.name, r.value, r.width, r.direction});
  EXPECT_EQ(answer.result, S_OK);
  return describe(answer.value.raw());
}

std::string ParameterHost::append_early(IDispatch* command, ParameterRequest r) const {
  auto* raw = reinterpret_cast<Command*>(command);
  auto direction = static_cast<ParameterDirectionEnum>(r.direction.raw().lVal);
  VARIANT_BOOL done = 2;  // neither of the two
  EXPECT_EQ(slots()->AgregarParametroADO(&raw, &r.type.raw().bstrVal, &r.name.raw().bstrVal, &r.value.raw(),
                                         &r.width.raw().lVal, &direction, &done),
            S_OK);
  return describe(early_result(done).raw());
}

void ParameterHost::expect_appended(const ParameterRequest& request, const std::string& expected) const {
  const LateObject first(L"ADODB.Command"), second(L"ADODB.Command");
  EXPECT_EQ(append_early(first.get(), request), "BOOL true");
  EXPECT_EQ(append_late(second.get(), request), "BOOL true");
  EXPECT_EQ(count_of_parameters(first), 1);
  EXPECT_EQ(described_parameter(first, 0), expected);
  EXPECT_EQ(described_parameter(second, 0), expected);
}

std::string ParameterHost::refused(const ParameterRequest& request) const {
  const Person person;
  const LateObject command(L"ADODB.Command");
  EXPECT_EQ(append_early(command.get(), request), "BOOL false");
  const std::size_t boxes = person.boxes().size();
  EXPECT_EQ(append_late(command.get(), request), "BOOL false");
  EXPECT_EQ(count_of_parameters(command), 0);
  EXPECT_LE(boxes, 1u);
  EXPECT_EQ(person.boxes().size(), 2 * boxes);
  for (const Person::Box& box : person.boxes()) {
    EXPECT_EQ(box.title, L"QVRlib21");
    EXPECT_FALSE(box.question);
    EXPECT_EQ(box.text, person.boxes()[0].text);
  }
  return person.boxes().empty() ? "silence" : narrow(person.boxes()[0].text);
}

}  // namespace qvr::tests
