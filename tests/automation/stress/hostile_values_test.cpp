// Hostile arguments for every parameter of every member, one at a time and all at once.
#include "automation/stress/hostile_values.h"
#include "automation/stress/hostile_caller.h"

namespace qvr::tests {
namespace {

using HostileArguments = HostileCaller;

// The two that tell their callers of lists that cannot be walked.
bool raises_errors(const DescribedMember& member) {
  return member.name == L"sqlConcatenar" || member.name == L"sqlWhereRelacionTablas";
}

// Documented: an empty text to show is filled in where it came by reference.
bool writes_back(const DescribedMember& member, std::size_t position, const HostileValue& value) {
  return member.name == L"EjecutarComandos" && member.parameters[position].name == L"TextoMostrar" &&
         value.name == std::string("reference to a null text");
}

void expect_answer(const DescribedMember& member, const MemberParameter& parameter, const HostileValue& value,
                   const HostileAnswer& answer, UINT index) {
  const bool missing = value.name == std::string("missing");
  if (missing) {
    EXPECT_EQ(answer.result, parameter.optional ? S_OK : DISP_E_PARAMNOTOPTIONAL);
  } else if (value.always_refused) {
    EXPECT_EQ(answer.result, DISP_E_TYPEMISMATCH);
  } else if (answer.result == DISP_E_EXCEPTION) {
    EXPECT_TRUE(raises_errors(member));
  } else {
    EXPECT_TRUE(answer.result == S_OK || answer.result == DISP_E_TYPEMISMATCH || answer.result == DISP_E_OVERFLOW)
        << std::hex << answer.result;
  }
  const bool refused = FAILED(answer.result) && answer.result != DISP_E_EXCEPTION;
  EXPECT_EQ(answer.wrong_argument, refused ? index : 0xFFFFu);
}

TEST_P(HostileArguments, OneAtATime) {
  attack_every_member([](const Subject& subject, const DescribedMember& member) {
    const std::vector<Var> good = subject.good_arguments(member);
    for (std::size_t position = 0; position < good.size(); ++position) {
      for (const HostileValue& value : hostile_values()) {
        SCOPED_TRACE(narrow(member.parameters[position].name) + ": " + value.name);
        CallersMemory memory;
        Arguments arguments(member, good);
        arguments.at(position) = value.make(memory);
        const std::string before = arguments.picture() + memory.picture();
        const HostileAnswer answer = invoke(subject, call_of(member, arguments));
        expect_answer(member, member.parameters[position], value, answer, arguments.index_of(position));
        if (writes_back(member, position, value)) continue;
        EXPECT_TRUE(arguments.picture() + memory.picture() == before) << "the caller's memory was changed";
      }
    }
  });
}

TEST_P(HostileArguments, AllAtOnce) {
  attack_every_member([](const Subject& subject, const DescribedMember& member) {
    if (member.parameters.empty()) return;
    const std::vector<Var> good = subject.good_arguments(member);
    for (const HostileValue& value : hostile_values()) {
      SCOPED_TRACE(value.name);
      CallersMemory memory;
      Arguments arguments(member, good);
      // The very same for each, which is one more thing that no host does.
      const VARIANT made = value.make(memory);
      for (std::size_t position = 0; position < good.size(); ++position) arguments.at(position) = made;
      const HostileAnswer answer = invoke(subject, call_of(member, arguments));
      EXPECT_TRUE(!value.always_refused || answer.result == DISP_E_TYPEMISMATCH) << std::hex << answer.result;
    }
  });
}

// Numbers and dates as texts are read by the locale of the call, also one that does not exist.
TEST_P(HostileArguments, InLocalesThatThereAreNot) {
  attack_every_member([](const Subject& subject, const DescribedMember& member) {
    for (const LCID locale : {0x0u, 0x7Fu, 0x409u, 0xC0Au, 0x1000u, 0x7FFFu, 0xFFFFu, 0xFFFFFFFFu}) {
      SCOPED_TRACE(locale);
      Arguments arguments(member, subject.good_arguments(member));
      HostileCall call = call_of(member, arguments);
      call.locale = locale;
      EXPECT_EQ(invoke(subject, call).result, S_OK);
      const std::vector<Var> texts(member.parameters.size(), Var(L"1,5"));
      Arguments converted(member, texts);
      call.parameters = &converted.parameters();
      const HRESULT result = invoke(subject, call).result;
      EXPECT_TRUE(result == S_OK || result == DISP_E_TYPEMISMATCH || result == DISP_E_EXCEPTION) << std::hex << result;
    }
  });
}

INSTANTIATE_TEST_SUITE_P(Every, HostileArguments, testing::Range(std::size_t{0}, std::size(kInterfaces)),
                         interface_name);

}  // namespace
}  // namespace qvr::tests
