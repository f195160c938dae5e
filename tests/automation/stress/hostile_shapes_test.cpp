// Calls of the wrong shape: counts, places, names and kinds that do not fit, and pointers to nowhere.
#include <algorithm>
#include <limits>

#include "QVRlib21.h"
#include "automation/stress/hostile_caller.h"

namespace qvr::tests {
namespace {

using HostileShapes = HostileCaller;

DISPID put_name = DISPID_PROPERTYPUT;

// The first so many arguments and then others; a written property's value keeps its name.
std::vector<Var> so_many(const Subject& subject, const DescribedMember& member, std::size_t count) {
  std::vector<Var> values = subject.good_arguments(member);
  if (member.writes_property() && count > 0 && count < values.size()) {
    values.erase(values.begin(), values.end() - static_cast<std::ptrdiff_t>(count));
  }
  values.resize(count, Var(1));
  return values;
}

bool may_be_left_out(const DescribedMember& member, std::size_t from) {
  if (member.writes_property()) return from == member.parameters.size();
  return std::ranges::all_of(member.parameters.begin() + static_cast<std::ptrdiff_t>(from), member.parameters.end(),
                             &MemberParameter::optional);
}

TEST_P(HostileShapes, WrongCounts) {
  attack_every_member([](const Subject& subject, const DescribedMember& member) {
    const std::size_t wanted = member.parameters.size();
    for (std::size_t count = 0; count <= wanted + 2; ++count) {
      SCOPED_TRACE(count);
      Arguments arguments(member, so_many(subject, member, count));
      const HRESULT expected = count > wanted                   ? DISP_E_BADPARAMCOUNT
                               : may_be_left_out(member, count) ? S_OK
                                                                : DISP_E_PARAMNOTOPTIONAL;
      EXPECT_EQ(invoke(subject, call_of(member, arguments)).result, expected);
    }
    DISPPARAMS endless{nullptr, nullptr, std::numeric_limits<UINT>::max(), 0};
    EXPECT_EQ(invoke(subject, {member.id, member.kind, &endless}).result, DISP_E_BADPARAMCOUNT);
    endless.cNamedArgs = endless.cArgs;
    EXPECT_EQ(invoke(subject, {member.id, member.kind, &endless}).result, DISP_E_BADPARAMCOUNT);
  });
}

TEST_P(HostileShapes, PointersToNowhere) {
  attack_every_member([](const Subject& subject, const DescribedMember& member) {
    EXPECT_EQ(invoke(subject, {member.id, member.kind, nullptr}).result, E_INVALIDARG);
    const auto wanted = static_cast<UINT>(member.parameters.size());
    for (UINT count = 1; count <= wanted; ++count) {
      DISPPARAMS no_values{nullptr, nullptr, count, 0};
      EXPECT_EQ(invoke(subject, {member.id, member.kind, &no_values}).result, E_INVALIDARG);
      DISPPARAMS no_values_but_a_name{nullptr, &put_name, count, 1};
      EXPECT_EQ(invoke(subject, {member.id, member.kind, &no_values_but_a_name}).result, E_INVALIDARG);
      std::vector<VARIANT> values(count, VARIANT{});
      DISPPARAMS no_names{values.data(), nullptr, count, count};
      EXPECT_EQ(invoke(subject, {member.id, member.kind, &no_names}).result, E_INVALIDARG);
    }
    Arguments arguments(member, subject.good_arguments(member));
    HostileCall call = call_of(member, arguments);
    call.wants_answers = false;
    EXPECT_EQ(invoke(subject, call).result, S_OK);
  });
}

TEST_P(HostileShapes, NamesOfArgumentsThatThereAreNot) {
  attack_every_member([](const Subject& subject, const DescribedMember& member) {
    const auto wanted = static_cast<UINT>(member.parameters.size());
    const auto past = static_cast<DISPID>(wanted);
    constexpr DISPID kLowest = std::numeric_limits<DISPID>::min(), kHighest = std::numeric_limits<DISPID>::max();
    VARIANT value{};
    const DISPID names[] = {past, past + 1, -1, -2, DISPID_PROPERTYPUT, DISPID_NEWENUM, kLowest, kHighest};
    for (DISPID name : names) {
      SCOPED_TRACE(name);
      if (name == DISPID_PROPERTYPUT && member.writes_property()) continue;
      DISPPARAMS one{&value, &name, 1, 1};
      const HostileAnswer answer = invoke(subject, {member.id, member.kind, &one});
      EXPECT_EQ(answer.result, wanted > 0 ? DISP_E_PARAMNOTFOUND : DISP_E_BADPARAMCOUNT);
      DISPPARAMS more_names{&value, &name, 1, 2};
      EXPECT_EQ(invoke(subject, {member.id, member.kind, &more_names}).result, DISP_E_BADPARAMCOUNT);
    }
    if (wanted < 2) return;
    VARIANT values[2] = {};
    DISPID first[] = {0, 0};
    DISPPARAMS twice{values, first, 2, 2}, named_and_positional{values, first, 2, 1};
    EXPECT_EQ(invoke(subject, {member.id, member.kind, &twice}).wrong_argument, 1u);
    EXPECT_EQ(invoke(subject, {member.id, member.kind, &twice}).result, DISP_E_PARAMNOTFOUND);
    EXPECT_EQ(invoke(subject, {member.id, member.kind, &named_and_positional}).result, DISP_E_PARAMNOTFOUND);
    EXPECT_EQ(invoke(subject, {member.id, member.kind, &named_and_positional}).wrong_argument, 0u);
  });
}

// Nothing hostile in it, but nobody does it: every argument by its number, in either order.
TEST_P(HostileShapes, AllArgumentsByNumber) {
  attack_every_member([](const Subject& subject, const DescribedMember& member) {
    const std::vector<Var> good = subject.good_arguments(member);
    for (const bool backwards : {false, true}) {
      std::vector<VARIANT> values;
      std::vector<DISPID> names;
      for (std::size_t i = 0; i < good.size(); ++i) {
        const std::size_t position = backwards ? good.size() - 1 - i : i;
        values.push_back(good[position].raw());
        names.push_back(static_cast<DISPID>(position));
      }
      const auto count = static_cast<UINT>(values.size());
      DISPPARAMS parameters{values.data(), names.data(), count, count};
      EXPECT_EQ(invoke(subject, {member.id, member.kind, &parameters}).result, S_OK);
    }
  });
}

TEST_P(HostileShapes, WrongKindsAndInterfaces) {
  attack_every_member([this](const Subject& subject, const DescribedMember& member) {
    Arguments arguments(member, subject.good_arguments(member));
    for (const int flags : {0x0, 0x1, 0x2, 0x4, 0x8, 0xC, 0x10, 0x20, 0x4000, 0x8000, 0xFFF0}) {
      SCOPED_TRACE(flags);
      HostileCall call = call_of(member, arguments);
      call.flags = static_cast<WORD>(flags);
      // The only property that takes Set.
      const bool set = flags == DISPATCH_PROPERTYPUTREF && member.id == DISPID_VALUE &&
                       interface_under_attack().id == __uuidof(_QVRprp);
      if (!set && !interface_under_attack().has(member.id, call.flags)) {
        EXPECT_EQ(invoke(subject, call).result, DISP_E_MEMBERNOTFOUND);
      }
    }
    HostileCall call = call_of(member, arguments);
    for (const IID* reserved : {&IID_IUnknown, &IID_IDispatch, &interface_under_attack().id}) {
      call.reserved = reserved;
      EXPECT_EQ(invoke(subject, call).result, DISP_E_UNKNOWNINTERFACE);
    }
    call.flags = 0xFFFF;
    EXPECT_EQ(invoke(subject, call).result, DISP_E_UNKNOWNINTERFACE);
  });
}

INSTANTIATE_TEST_SUITE_P(Every, HostileShapes, testing::Range(std::size_t{0}, std::size(kInterfaces)), interface_name);

}  // namespace
}  // namespace qvr::tests
