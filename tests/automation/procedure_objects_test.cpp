// Objects and binary values, and hosts that change their variables during the call (re-entrance).
#include "automation/procedures.h"
#include "automation/scripted_command.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

class ProcedureObjects : public ProcedureCalls {
 protected:
  ProcedureObjects() { connection = database.open(); }
  bool call(const Var& parameters) { return call_late(connection.get(), L"p", parameters); }

  Database database;
};

// An object that counts its references, and does what a test wants when it is released.
class Counting final : public IDispatch {
 public:
  explicit Counting(std::function<void()> released = {}) : released_(std::move(released)) {}

  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override {
    *found = id == IID_IUnknown || id == IID_IDispatch ? this : nullptr;
    if (*found == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return static_cast<ULONG>(++count); }
  STDMETHODIMP_(ULONG) Release() noexcept override {
    if (released_) released_();
    return static_cast<ULONG>(--count);
  }
  STDMETHODIMP GetTypeInfoCount(UINT* number) noexcept override { return *number = 0, S_OK; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override { return DISP_E_UNKNOWNNAME; }
  // Its default property is a number; whoever asks for it also does what `asked` says.
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) noexcept override {
    if (asked) asked();
    result->vt = VT_I4;
    result->lVal = 77;
    return S_OK;
  }

  int count = 1;  // on the stack: nobody may delete it
  std::function<void()> asked;

 private:
  std::function<void()> released_;
};

TEST_F(ProcedureObjects, ObjectsComeBackAsObjects) {
  Counting object;
  {
    const ScriptedCommand command({0, Var(&object), Var::nothing()});
    expect_call(L"p", array_of({1, 2}), true, "VARIANT(0) {DISPATCH object; DISPATCH Nothing}");
    expect_call(L"p", array_of({Var::nothing(), Var::nothing()}, 0, VT_DISPATCH), true,
                "DISPATCH(0) {DISPATCH object; DISPATCH Nothing}");
    expect_call(L"p", array_of({Var::nothing(), Var::nothing()}, 0, VT_UNKNOWN), true,
                "UNKNOWN(0) {UNKNOWN object; UNKNOWN Nothing}");
    Var held = array_of({Var(&object), Var()});
    EXPECT_TRUE(call(Var::by_reference(held)));
  }
  EXPECT_EQ(object.count, 1) << "every reference was given back";
}

TEST_F(ProcedureObjects, AnObjectForANumberIsItsDefaultProperty) {
  Counting object;
  {
    const ScriptedCommand command({0, Var(&object)});
    expect_call(L"p", array_of({1}, 0, VT_I4), true, "I4(0) {I4 77}");
  }
  EXPECT_EQ(object.count, 1);
}

TEST_F(ProcedureObjects, BinaryDataGoesInAndComesOutAsBytes) {
  const Var in = array_of({1, 2, 255}, 0, VT_UI1), out = array_of({7, 0}, 0, VT_UI1);
  const ScriptedCommand command({0, out});
  Var parameters = array_of({in});
  EXPECT_TRUE(call(Var::by_reference(parameters)));
  EXPECT_EQ(command.inputs(), std::vector<std::string>{"UI1(0) {UI1 1; UI1 2; UI1 255}"});
  EXPECT_EQ(describe(parameters.raw()), "VARIANT(0) {UI1(0) {UI1 7; UI1 0}}");
}

TEST_F(ProcedureObjects, ValuesGoInAsTheElementsAre) {
  const LateObject object(L"QVRlib21.Ov");
  const std::vector<Var> values{Var(200).as(VT_UI1),
                                short{-7},
                                12,
                                Var(0.5).as(VT_R4),
                                -2.5,
                                Var(L"1.5").as(VT_CY),
                                Var(L"2.25").as(VT_DECIMAL),
                                Var::date(40548.5),
                                L"Ana",
                                true,
                                Var::null(),
                                Var(),
                                Var(5).as(VT_I8),
                                object.get(),
                                Var::error(7)};
  std::vector<std::string> expected;
  for (const Var& value : values) expected.push_back(describe(value.raw()));
  const ScriptedCommand command({1});
  EXPECT_FALSE(call(array_of(values)));
  EXPECT_EQ(command.inputs(), expected);
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.EjecutarProcSQL7: 5 The procedure did not return 0"}));
}

TEST_F(ProcedureObjects, AReturnValueOfAnyTypeIsReadAsANumber) {
  for (const Var& zero : {Var(0), Var(0.0), Var(L"0"), Var(false), Var()}) {
    const ScriptedCommand command({zero, 5});
    expect_call(L"p", array_of({1}), true, "VARIANT(0) {I4 5}");
  }
  for (const Var& other : {Var(1), Var(-1), Var(0.5), Var(L"3"), Var(true), Var::null()}) {
    const ScriptedCommand command({other, 5});
    expect_call(L"p", array_of({1}), false, "VARIANT(0) {I4 1}");
  }
  EXPECT_EQ(traced(), Traces(36, u"QVRcfp.EjecutarProcSQL7: 5 The procedure did not return 0"));
}

// What the host's variable holds when the values are there decides; elements that are gone get none.
TEST_F(ProcedureObjects, AVariableThatTheHostChangesMeanwhileKeepsTheHostsValue) {
  ScriptedCommand command({0, 5, 6});
  Var variable;
  struct Row {
    Var during;
    const char* after;
  };
  for (const Row& row :
       {Row{Var(L"text"), "BSTR text"}, Row{Var(), "Empty"}, Row{array_of({1}), "VARIANT(0) {I4 1}"},
        Row{array_of({1, 2}, 1), "VARIANT(1) {I4 1; I4 2}"}, Row{square_array(), "VARIANT() of 2 dimensions"},
        Row{no_array(VT_I4), "I4() none"}, Row{array_of({1, 2}, 0, VT_I4), "I4(0) {I4 5; I4 6}"}}) {
    SCOPED_TRACE(row.after);
    command.on_execute = [&] { variable = row.during; };
    variable = array_of({1, 2});
    EXPECT_TRUE(call(Var::by_reference(variable)));
    EXPECT_EQ(describe(variable.raw()), row.after) << "late";
    variable = array_of({1, 2});
    EXPECT_TRUE(call_early(connection.get(), L"p", &variable.raw()));
    EXPECT_EQ(describe(variable.raw()), row.after) << "early";
  }
}

TEST_F(ProcedureObjects, AnArrayThatTheHostDestroysOrRedimensionsMeanwhile) {
  ScriptedCommand command({0, 5, 6});
  SAFEARRAY* array = nullptr;
  const auto run = [&] {
    Var passed;
    passed.raw().vt = VT_BYREF | VT_ARRAY | VT_I4;
    passed.raw().pparray = &array;
    array = SafeArrayCreateVector(VT_I4, 0, 2);
    EXPECT_TRUE(call(passed));
    EXPECT_TRUE(array == nullptr || SafeArrayDestroy(array) == S_OK);
  };
  command.on_execute = [&] { EXPECT_EQ(SafeArrayDestroy(std::exchange(array, nullptr)), S_OK); };
  run();
  SAFEARRAYBOUND longer{9, 0};
  command.on_execute = [&] {
    EXPECT_EQ(SafeArrayDestroy(array), S_OK);
    array = SafeArrayCreate(VT_BSTR, 1, &longer);
  };
  run();
  command.on_execute = [&] {
    EXPECT_EQ(SafeArrayDestroy(array), S_OK);
    SAFEARRAYBOUND same{2, 0};
    array = SafeArrayCreate(VT_BSTR, 1, &same);
    EXPECT_EQ(SafeArrayDestroyData(array), S_OK);
  };
  run();
}

TEST_F(ProcedureObjects, AnArrayThatTheHostDestroysWhenItsObjectIsReleased) {
  Var variable;
  bool armed = false;
  Counting leaving([&] {
    if (!std::exchange(armed, false)) return;
    EXPECT_EQ(SafeArrayDestroyData(variable.raw().parray), S_OK);
  });
  {
    ScriptedCommand command({0, 5, 6});
    variable = array_of({Var(&leaving), 1});
    command.on_read = [&](int index) { armed = index == 2; };
    EXPECT_TRUE(call(Var::by_reference(variable)));
    EXPECT_FALSE(armed);
    EXPECT_EQ(describe(variable.raw()), "VARIANT() hollow");
  }
  EXPECT_EQ(leaving.count, 1);
}

// While values are put into it, the array can neither be destroyed nor be given other bounds.
TEST_F(ProcedureObjects, AnArrayIsHeldWhileAnObjectGivesItsValue) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_I4, 0, 2);
  Var passed;
  passed.raw().vt = VT_BYREF | VT_ARRAY | VT_I4;
  passed.raw().pparray = &array;
  Counting asked_for_its_number;
  HRESULT destroyed = S_OK;
  asked_for_its_number.asked = [&] { destroyed = SafeArrayDestroy(array); };
  {
    const ScriptedCommand command({0, Var(&asked_for_its_number), 6});
    EXPECT_TRUE(call(passed));
  }
  EXPECT_EQ(destroyed, DISP_E_ARRAYISLOCKED);
  EXPECT_EQ(describe(passed.raw()), "I4(0) {I4 77; I4 6}");
  EXPECT_EQ(SafeArrayDestroy(array), S_OK);
}

TEST_F(ProcedureObjects, TheHostMayLetGoOfEverythingMeanwhile) {
  auto object = std::make_unique<LateObject>(L"QVRlib21.QVRcfp");
  object->call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""});
  ComPtr<_QVRcfp> slots = object->as<_QVRcfp>();
  _QVRcfp* const raw = slots.Get();
  ScriptedCommand command({0, 5});
  command.on_execute = [&] {
    slots.Reset();
    object.reset();
    connection = LateObject(ComPtr<IDispatch>());
  };
  auto* connected = reinterpret_cast<Connection*>(connection.get());
  Bstr name(L"p");
  Var parameters = array_of({1});
  VARIANT_BOOL done = VARIANT_FALSE;
  EXPECT_EQ(raw->EjecutarProcSQL7(&connected, &name, &parameters.raw(), &done), S_OK);
  EXPECT_EQ(done, VARIANT_TRUE);
  EXPECT_EQ(describe(parameters.raw()), "VARIANT(0) {I4 5}");
}

}  // namespace
}  // namespace qvr::tests
