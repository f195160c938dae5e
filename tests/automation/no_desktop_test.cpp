// On an invisible window station, as of a service, no call blocks in a message box; its text goes to the debug output,
// exactly once.
#include "automation/both.h"
#include "automation/boxes.h"
#include "automation/database.h"
#include "automation/debug_output.h"
#include "automation/sink.h"
#include "automation/unseen_station.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using Lines = std::vector<std::wstring>;

struct NoDesktop : testing::Test {
  NoDesktop() { EXPECT_FALSE(station_is_visible()); }
  UnseenStation unseen;
  Person person;  // whose boxes stay away
};

TEST_F(NoDesktop, AMessageIsLoggedOnce) {
  const LateObject list(L"QVRlib21.QVRprp");
  EXPECT_EQ(list.call(L"CreaPropiedad", {L"X", L"Ancho", 1}).result, S_OK);
  EXPECT_EQ(box_lines(), Lines{L"QVRlib21: Tipo inesperado (X) al agregar propiedad (Ancho)\r\n"});
  EXPECT_TRUE(person.boxes().empty());
}

TEST_F(NoDesktop, AFailedRunEndsAsIfSomebodyHadSaidNo) {
  on_thread_in_language(L"1", [&] {
    Database database;
    const LateObject runner(L"QVRlib21.QVRScr");
    Connected connected(runner);
    const LateAnswer answer = runner.call(L"EjecutarComandos", {L"id", 2, L"nonsense\r\nGO\r\nselect 1\r\nGO\r\n",
                                                                database.connection_string()});
    EXPECT_EQ(describe(answer.value.raw()), "BOOL false");
    EXPECT_EQ(connected.events().back(), "Terminado BOOL* false");
  });
  const Lines lines = box_lines();
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_TRUE(lines[0].starts_with(L"QVRlib21: Error indeterminado\r\n\r\nError "));
  EXPECT_TRUE(lines[0].ends_with(L"Ejecutar1Comando: nonsense\r\n"));
  EXPECT_EQ(lines[1], L"QVRlib21: Do you want further commands to execute?\r\n");
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
  EXPECT_TRUE(person.boxes().empty());
}

TEST_F(NoDesktop, AQueryIsRefusedAndSaysWhy) {
  const LateObject query(L"QVRlib21.cSQL20");
  const LateAnswer answer = query.call(L"iSQL20_CrearDesdeTextoDefinicion", {L"nonsense"});
  EXPECT_EQ(describe(answer.value.raw()), "BOOL false");
  const Lines lines = box_lines();
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_NE(lines[0].find(L"CreareDesdeTextoDefinicion"), std::wstring::npos);
  EXPECT_EQ(traced(), Traces{u"cSQL20.CrearDesdeTextoDefinicion: 13 Type mismatch"});
  EXPECT_TRUE(person.boxes().empty());
}

TEST_F(NoDesktop, EveryMessageOfACallIsLogged) {
  const LateObject list(L"QVRlib21.QVRprp");
  for (int i = 0; i < 3; ++i) list.call(L"CreaPropiedad", {L"X", L"Ancho", 1});
  EXPECT_EQ(box_lines().size(), 3u);
}

}  // namespace
}  // namespace qvr::tests
