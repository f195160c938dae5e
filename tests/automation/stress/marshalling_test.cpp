// Objects used from other apartments than their own, by name and through their slots.
#include <gtest/gtest.h>

#include "QVRlib21.h"
#include "automation/arrays.h"
#include "automation/database.h"
#include "automation/in_use.h"
#include "automation/library.h"
#include "automation/sink.h"
#include "automation/stress/apartments.h"
#include "automation/stress/classes.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

constexpr COINIT kApartments[] = {COINIT_APARTMENTTHREADED, COINIT_MULTITHREADED};

// What `ask` finds out about the object in each kind of apartment.
template <class I>
std::vector<std::string> asked_elsewhere(const LateObject& object, const std::function<std::string(I&)>& ask) {
  std::vector<std::string> answers;
  for (const COINIT apartment : kApartments) {
    std::string answer;
    EXPECT_EQ(hand_over<I>(apartment, *object.get(), [&](I& proxy) { answer = ask(proxy); }), S_OK);
    answers.push_back(answer);
  }
  return answers;
}

std::vector<std::string> twice(const std::string& text) { return {text, text}; }

TEST(Marshalling, EveryClassByName) {
  for (const ClassUnderStress& row : classes_under_stress()) {
    SCOPED_TRACE(narrow(row.program_id));
    const LateObject object(row.program_id);
    std::string answer;
    EXPECT_EQ(hand_over<IDispatch>(COINIT_APARTMENTTHREADED, *object.get(),
                                   [&](IDispatch& proxy) { answer = row.use(LateObject(ComPtr<IDispatch>(&proxy))); }),
              S_OK);
    EXPECT_EQ(answer, row.expected);
  }
}

TEST(Marshalling, ParametersOfEveryKindByName) {
  const LateObject cfp(L"QVRlib21.QVRcfp");
  cfp.call(L"Asignar", {L"id", 3, L"P", L"D", L"C", L"u", L"k", L"v", L"w", L"o"});
  const auto ask = [](IDispatch& proxy) {
    const LateObject object{ComPtr<IDispatch>(&proxy)};
    Var list = array_of({L"a", 2, Var::date(40548), Var::null()}), text(L"x");
    const LateAnswer refused = object.call(L"Crear", {L"id", Var::null(), L"x"});
    return describe(object.call(L"SqlINSERT", {L"T", list}).value.raw()) + "; " +
           describe(object.call(L"SqlINSERT", {Var::by_reference(text), Var::by_reference(list)}).value.raw()) + "; " +
           describe(object.call(L"LogicoSQL", {true}).value.raw()) + "; " +
           describe(object.call(L"TextoAValor", {L"N", L"2.5"}).value.raw()) + "; " +
           describe(object.get(L"MotorBD").value.raw()) + "; " + std::to_string(refused.result == DISP_E_TYPEMISMATCH);
  };
  const std::string expected =
      "BSTR INSERT INTO T VALUES ('a',  2,  TO_DATE('2011-01-05','YYYY-MM-DD') , Null); "
      "BSTR INSERT INTO x VALUES ('a',  2,  TO_DATE('2011-01-05','YYYY-MM-DD') , Null); "
      "BSTR 1; R8 2.500000; I4 3; 1";
  EXPECT_EQ(asked_elsewhere<IDispatch>(cfp, ask), twice(expected));
  EXPECT_EQ(traced(), Traces(2, u"QVRcfp.Crear: -2147352571 The late-bound call was refused"));
}

TEST(Marshalling, TextsAndNumbersThroughSlots) {
  const LateObject runner(L"QVRlib21.QVRScr"), version(L"QVRlib21.Ov"), list(L"QVRlib21.QVRprp");
  EXPECT_EQ(asked_elsewhere<_QVRScr>(runner,
                                     [](_QVRScr& proxy) {
                                       Bstr result;
                                       long engine = 2;
                                       const HRESULT status = proxy.UsuarioSegunMotor(&engine, &result);
                                       return std::to_string(status) + " " + narrow(result.text());
                                     }),
            twice("0 sa"));
  EXPECT_EQ(asked_elsewhere<_Ov>(version,
                                 [](_Ov& proxy) {
                                   long result = 0;
                                   const HRESULT status = proxy.Version(&result);
                                   return std::to_string(status) + " " + std::to_string(result / 10000);
                                 }),
            twice("0 2"));
  EXPECT_EQ(asked_elsewhere<_QVRprp>(list,
                                     [](_QVRprp& proxy) {
                                       Bstr type(L"N"), name(L"Precio");
                                       Var value(2.5), which(L"Precio"), found;
                                       proxy.Borra();
                                       const HRESULT status = proxy.CreaPropiedad(&type, &name, &value.raw());
                                       const HRESULT got = proxy.get_Item(&which.raw(), &found.raw());
                                       return std::to_string(status) + " " + std::to_string(got) + " " +
                                              describe(found.raw());
                                     }),
            twice("0 0 R8 2.500000"));
}

TEST(Marshalling, AQueryAsItsContractThroughSlots) {
  const LateObject query(L"QVRlib21.cSQL20");
  query.call(L"iSQL20_Crear", {2, L"x", false, array_of({L"Nombre", L"T"}), L"Clientes"});
  EXPECT_EQ(asked_elsewhere<_iSQL20>(query,
                                     [](_iSQL20& proxy) {
                                       Bstr sql;
                                       SHORT columns = 0;
                                       VARIANT_BOOL created = VARIANT_FALSE;
                                       const bool all = proxy.get_SQL(&sql) == S_OK &&
                                                        proxy.NumColumnas(&columns) == S_OK &&
                                                        proxy.get_Creado(&created) == S_OK && created == VARIANT_TRUE;
                                       return std::to_string(all) + std::to_string(columns) + narrow(sql.text());
                                     }),
            twice("11SELECT Nombre  FROM Clientes     "));
}

// The run is called from another apartment; who listens sits in the object's own.
TEST(Marshalling, ARunFromAnotherApartment) {
  for (const COINIT apartment : kApartments) {
    Database database;
    const LateObject runner(L"QVRlib21.QVRScr");
    Connected connected(runner);
    std::string answer;
    Var id(L"EvitarTransaccionApp");
    EXPECT_EQ(hand_over<IDispatch>(apartment, *runner.get(),
                                   [&](IDispatch& proxy) {
                                     const LateObject object{ComPtr<IDispatch>(&proxy)};
                                     answer = describe(
                                         object
                                             .call(L"EjecutarComandos",
                                                   {Var::by_reference(id), 2, L"create table T(N int)\r\nGO\r\n",
                                                    database.connection_string(), L"x"})
                                             .value.raw());
                                   }),
              S_OK);
    EXPECT_EQ(answer, "BOOL true");
    EXPECT_EQ(id.text(), L"App") << "what the member changed comes back through the marshaller";
    EXPECT_EQ(connected.events().back(), "Terminado BOOL* true");
    EXPECT_EQ(database.ask(L"select count(*) from T"), "0");
  }
}

// The run is called in the object's apartment; who listens sits in another one.
TEST(Marshalling, ASinkOfAnotherApartment) {
  for (const COINIT apartment : kApartments) {
    Database database;
    const LateObject runner(L"QVRlib21.QVRScr");
    std::vector<std::string> events;
    std::string answer;
    EXPECT_EQ(hand_over<IConnectionPointContainer>(
                  apartment, *runner.get(),
                  [&](IConnectionPointContainer& proxy) {
                    ComPtr<IConnectionPoint> point;
                    ComPtr<IDispatch> object;
                    ComPtr<Sink> sink;
                    sink.Attach(new Sink());
                    DWORD cookie = 0;
                    if (FAILED(proxy.FindConnectionPoint(__uuidof(__QVRScr), &point)) ||
                        FAILED(point->Advise(sink.Get(), &cookie)) ||
                        FAILED(proxy.QueryInterface(IID_PPV_ARGS(&object)))) {
                      answer = "could not connect";
                      return;
                    }
                    answer = describe(LateObject(object)
                                          .call(L"EjecutarComandos", {L"app", 2, L"create table T(N int)\r\nGO\r\n",
                                                                      database.connection_string(), L"x"})
                                          .value.raw());
                    point->Unadvise(cookie);
                    events = sink->events;
                  }),
              S_OK);
    EXPECT_EQ(answer, "BOOL true");
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(events.back(), "Terminado BOOL* true");
  }
}

TEST(Marshalling, LeavesNothingBehind) {
  expect_any_traces();
  const auto round = [] {
    for (const COINIT apartment : kApartments) {
      const LateObject cfp(L"QVRlib21.QVRcfp");
      hand_over<IDispatch>(apartment, *cfp.get(), [](IDispatch& proxy) {
        LateObject(ComPtr<IDispatch>(&proxy)).call(L"ExpSQL", {array_of({1, L"b"})});
      });
    }
  };
  stop_string_cache();
  for (int i = 0; i < 50; ++i) round();
  const InUse before = in_use();
  for (int i = 0; i < 200; ++i) round();
  const InUse after = in_use();
  EXPECT_LT(after.blocks, before.blocks + 100);
  EXPECT_LT(after.handles, before.handles + 20);
  EXPECT_EQ(library().can_unload(), S_OK);
}

}  // namespace
}  // namespace qvr::tests
