// The example's scripts as an installer uses them on a server: loaded from their folder, run, brought up to date.
#include "base/utf8.h"
#include "script/script_preparation.h"
#include "servers/engines_own/engine_run.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

constexpr std::int32_t kFirstVersion = 10000, kLastVersion = 10100;

class ServerInstallation : public EngineRun {
 protected:
  void SetUp() override { ServerRun::SetUp(); }

  Text scripts() const {
    return join({*from_utf8(QVR_TESTS_SCRIPTS), by_server<TextView>(u"\\mariadb", u"\\postgresql")});
  }
  Text definition() {
    return runner.CargarDefinicion(u"app", Engine::SqlServer, scripts(), u"Gestion", accounts, true);
  }
  Text update(std::int32_t version) {
    return runner.CargarActualizacion(u"app", Engine::SqlServer, scripts(), u"Gestion", version, accounts, true);
  }
  bool runs_all(TextView commands) { return runs_text(commands, by_server<TextView>(kSeveralStatements, u"")); }
  bool install() { return runs_all(definition()); }
  bool bring_up_to_date(std::int32_t version) { return runs_all(update(version)); }

  Text rows(TextView table) const { return ask(join({u"select count(*) from ", table})); }

  ScriptAccounts accounts{u"Gesti\u00f3n", u"Bego\u00f1a", u"clave 1", u"mostrador", u"clave 2"};
};

struct Table {
  TextView name, count;
};

TEST_F(ServerInstallation, TheDefinitionFillsItsTables) {
  ASSERT_TRUE(install());
  for (const Table& each : {Table{u"Esquema", u"1"},
                            {u"Funciones", u"3"},
                            {u"Usuarios", u"2"},
                            {u"FuncionesDeUsuario", u"3"},
                            {u"Provincias", u"18"},
                            {u"Clientes", u"12"},
                            {u"Familias", u"6"},
                            {u"Art\u00edculos", u"18"},
                            {u"Pedidos", u"12"},
                            {u"L\u00edneas", u"15"},
                            {u"ImportePorCliente", u"8"}}) {
    EXPECT_EQ(rows(each.name), each.count) << to_utf8(each.name);
  }
  EXPECT_EQ(ask(u"select Versi\u00f3n from Esquema"), u"10000");
  EXPECT_EQ(ask(u"select Descripci\u00f3n from Usuarios where Nombre = 'Bego\u00f1a'"),
            u"Administrador de Gesti\u00f3n");
  EXPECT_EQ(ask(u"select Nombre from Provincias where C\u00f3digo = 46"), u"Val\u00e8ncia");
  EXPECT_EQ(ask(u"select C\u00f3digo from Art\u00edculos where C\u00f3digo like 'SE\u00d1%' order by C\u00f3digo"),
            u"SE\u00d1-010");
  EXPECT_EQ(events.ends, (std::vector<bool>{true, true}));
  EXPECT_EQ(events.progress.back(), by_server<TextView>(u"Hecho: 112/113", u"Hecho: 113/114"));
}

TEST_F(ServerInstallation, ItsModulesWork) {
  ASSERT_TRUE(install());
  Session session(server.odbc_string());
  const auto left = [&] {
    return session.ask(u"select Existencias from Art\u00edculos where C\u00f3digo = 'PAP-030'");
  };
  const std::int64_t before = std::stoll(to_utf8(left()));
  session.run(u"insert into L\u00edneas values(24053, 9, 'PAP-030', 5, 2)");
  EXPECT_EQ(left(), decimal(before - 5));
  session.run(u"update L\u00edneas set Cantidad = 7 where L\u00ednea = 9");
  EXPECT_EQ(left(), decimal(before - 7));
  session.run(u"delete from L\u00edneas where L\u00ednea = 9");
  EXPECT_EQ(left(), decimal(before));
  // 25 at 0.95 and one at 0.3.
  EXPECT_EQ(session.ask(u"select cast(ImporteDePedido(24053) as char(5))"), u"24.05");
  EXPECT_THROW(session.run(u"update Art\u00edculos set Precio = -1"), odbc::Failure);
  EXPECT_THROW(session.run(u"delete from Clientes where C\u00f3digo in (select Cliente from Pedidos)"), odbc::Failure);
  session.run(by_server<TextView>(u"call AltaPedido(101, '2024-07-02', 5, @n)",
                                  u"call AltaPedido(101, '2024-07-02', 5, null)"));
  EXPECT_EQ(session.ask(u"select max(N\u00famero) from Pedidos where Cliente = 101"), u"24054");
}

TEST_F(ServerInstallation, TheUpdatesLeadToTheLastVersionAndFillWhatIsNew) {
  ASSERT_TRUE(install());
  ASSERT_TRUE(bring_up_to_date(kFirstVersion));
  EXPECT_EQ(ask(u"select Versi\u00f3n from Esquema"), decimal(kLastVersion));
  EXPECT_EQ(rows(u"FormasPago"), u"4");
  EXPECT_EQ(rows(u"Pedidos"), u"12");
  EXPECT_EQ(rows(u"Pedidos where FormaPago is null"), u"0");
  EXPECT_EQ(rows(u"Clientes where Inactivo"), u"3");
  EXPECT_EQ(rows(u"Art\u00edculos where IVA = 10"), u"3");
  EXPECT_EQ(rows(u"ImportePorCliente"), u"9");
  EXPECT_EQ(rows(u"Pedidos where Importe <> ImporteDePedido(N\u00famero)"), u"0");
  Session session(server.odbc_string());
  session.run(u"insert into L\u00edneas values(24053, 9, 'PAP-030', 5, 2)");
  EXPECT_EQ(session.ask(u"select cast(Importe as char(5)) from Pedidos where N\u00famero = 24053"), u"34.05");
}

TEST_F(ServerInstallation, ThereIsNothingBehindTheLastVersion) {
  EXPECT_EQ(update(kLastVersion), u"");
  EXPECT_EQ(events.ends, std::vector<bool>{false});
  EXPECT_EQ(traced(), Traces{u"QVRScr.CargarActualizacion: 75 No update script begins with this version"});
}

// Its first command fails, and with the answer No the database is as before.
TEST_F(ServerInstallation, AnUpdateThatIsRunAgainChangesNothing) {
  ASSERT_TRUE(install());
  ASSERT_TRUE(bring_up_to_date(kFirstVersion));
  answer(BoxAnswer::No);
  EXPECT_FALSE(bring_up_to_date(kFirstVersion));
  EXPECT_EQ(failures(), 1u);
  EXPECT_EQ(ask(u"select Versi\u00f3n from Esquema"), decimal(kLastVersion));
  EXPECT_EQ(rows(u"FormasPago"), u"4");
}

// In the middle: PostgreSQL is back at the first version, MariaDB has what was before the last DDL.
TEST_F(ServerInstallation, AnUpdateThatFailsLeavesWhatTheEngineCommitted) {
  ASSERT_TRUE(install());
  const Text commands = replace_all(update(kFirstVersion), u"CREATE INDEX", u"CREATE NONSENSE");
  answer(BoxAnswer::No);
  EXPECT_FALSE(runs_all(commands));
  EXPECT_EQ(failures(), 1u);
  EXPECT_EQ(ask(u"select Versi\u00f3n from Esquema"), by_server<TextView>(u"10020", u"10000"));
  EXPECT_EQ(has_table(by_server<TextView>(u"FormasPago", u"formaspago")), by_server(true, false));
}

}  // namespace
}  // namespace qvr::tests
