// What a run leaves in the database of a server.
#include "servers/server_run.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

TEST_F(ServerRun, CommitsWhatRan) {
  EXPECT_TRUE(
      run(u"create table Articulos(Nombre varchar(20))\r\nGO\r\ninsert into Articulos values('Jam\u00f3n')\r\ngo\r\n"));
  EXPECT_EQ(ask(u"select Nombre from Articulos"), u"Jam\u00f3n");
  EXPECT_EQ(events.progress, (std::vector<Text>{u"Contando comandos...", u"Hecho: 0/2", u"Hecho: 1/2"}));
  EXPECT_EQ(events.ends, std::vector<bool>{true});
}

TEST_F(ServerRun, RollsBackWhenTheAnswerIsNo) {
  EXPECT_TRUE(run(u"create table T(N int)\r\nGO\r\n"));
  thread.boxes.answer(BoxAnswer::Ok);
  thread.boxes.answer(BoxAnswer::No);
  EXPECT_FALSE(run(u"insert into T values(1)\r\nGO\r\nnonsense\r\nGO\r\ninsert into T values(2)\r\nGO\r\n"));
  EXPECT_EQ(ask(u"select count(*) from T"), u"0");
  EXPECT_EQ(events.ends, (std::vector<bool>{true, false}));
  EXPECT_EQ(thread.boxes.shown.size(), 2u);
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
}

}  // namespace
}  // namespace qvr::tests
