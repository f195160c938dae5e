// The example's scripts as an installer uses them: loaded from their folder, run into a database, brought up to date.
#include <gtest/gtest.h>

#include "base/utf8.h"
#include "odbc/odbc_ado.h"
#include "odbc/odbc_statement.h"
#include "script/command_splitter.h"
#include "script/qvrscr.h"
#include "script/script_preparation.h"
#include "session/value_convert.h"
#include "support/rows.h"
#include "support/run_events.h"
#include "support/temporary_folder.h"
#include "support/test_thread.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

constexpr std::int32_t kFirstVersion = 10000;

class InstallationTest : public testing::Test {
 protected:
  InstallationTest() {
    thread.make_ado = [] { return odbc::make_odbc_ado(); };
  }

  Text scripts(TextView below = {}) const { return join({*from_utf8(QVR_TESTS_SCRIPTS), below}); }
  Text definition(Engine engine, TextView from, bool encrypt = false) {
    return runner.CargarDefinicion(u"app", engine, from, u"Gestion", accounts, encrypt);
  }
  Text update(Engine engine, TextView from, std::int32_t version, bool encrypt = false) {
    return runner.CargarActualizacion(u"app", engine, from, u"Gestion", version, accounts, encrypt);
  }

  bool run(TextView commands) {
    Text id = u"app", shown = u"Hecho: ";
    return runner.EjecutarComandos(id, Engine::Jet, commands,
                                   join({u"Provider=MSDASQL;Extended Properties=\"", driver_string(), u"\""}), shown);
  }
  bool install() { return run(definition(Engine::Jet, scripts(u"\\sqlite"))); }
  bool bring_up_to_date(std::int32_t version) { return run(update(Engine::Jet, scripts(u"\\sqlite"), version)); }

  Text driver_string() const {
    return join({u"DRIVER={SQLite3};Database=", folder.file(u"gestion.db").u16string(), u";"});
  }
  // First column of the first row, on a connection of its own.
  std::string ask(TextView query) const {
    odbc::Connection own;
    own.open(driver_string(), 0);
    return to_utf8(to_text(odbc::execute(own, query, {}, 0).rows.at(0).at(0)));
  }
  std::string rows(TextView table) const { return ask(join({u"SELECT Count(*) FROM [", table, u"]"})); }

  TestThread thread;
  TemporaryFolder folder;
  RunEvents events;
  QVRScr runner{events};
  ScriptAccounts accounts{u"Gestión", u"Begoña", u"clave 1", u"mostrador", u"clave 2"};
};

struct Table {
  TextView name;
  const char* count;
};

TEST_F(InstallationTest, TheDefinitionFillsItsTables) {
  ASSERT_TRUE(install());
  for (const Table& each : {Table{u"Esquema", "1"},
                            {u"Funciones", "3"},
                            {u"Usuarios", "2"},
                            {u"FuncionesDeUsuario", "3"},
                            {u"Provincias", "18"},
                            {u"Clientes", "36"},
                            {u"Familias", "6"},
                            {u"Artículos", "29"},
                            {u"Pedidos", "56"},
                            {u"Líneas", "91"}}) {
    EXPECT_EQ(rows(each.name), each.count) << to_utf8(each.name);
  }
  EXPECT_EQ(ask(u"SELECT Count(*) FROM [sqlite_master] WHERE [type] = 'table'"), "10");
  EXPECT_EQ(ask(u"SELECT [Versión] FROM [Esquema]"), "10000");
  EXPECT_EQ(ask(u"SELECT [Descripción] FROM [Usuarios] WHERE [Nombre] = 'Begoña'"), "Administrador de Gestión");
  EXPECT_EQ(ask(u"SELECT group_concat([Función]) FROM [FuncionesDeUsuario] WHERE [Usuario] = 'mostrador'"), "VEN");
  EXPECT_EQ(events.progress.back(), u"Hecho: 259/260");
  EXPECT_EQ(events.ends, (std::vector<bool>{true, true}));
}

TEST_F(InstallationTest, TheUpdatesLeadToTheLastVersionAndFillWhatIsNew) {
  ASSERT_TRUE(install());
  ASSERT_TRUE(bring_up_to_date(kFirstVersion));
  EXPECT_EQ(ask(u"SELECT [Versión] || ' ' || [Fecha] FROM [Esquema]"), "10100 2024-07-01");
  EXPECT_EQ(rows(u"FormasPago"), "4");
  EXPECT_EQ(rows(u"Pedidos"), "56");
  EXPECT_EQ(ask(u"SELECT Count(*) FROM [Pedidos] WHERE [FormaPago] IS NULL"), "0");
  EXPECT_EQ(ask(u"SELECT Sum([Inactivo]) || '/' || Count(*) FROM [Clientes]"), "7/36");
  EXPECT_EQ(ask(u"SELECT Count(*) FROM [Artículos] WHERE [IVA] = 10"), "3");
  EXPECT_EQ(ask(u"SELECT Count(*) FROM [ImportePorCliente]"), "29") << "customers without orders are not listed";
  EXPECT_EQ(ask(u"SELECT Round((SELECT Sum([Importe]) FROM [Pedidos]) - Sum([Cantidad] * [Precio]), 2) FROM [Líneas]"),
            "0");
}

TEST_F(InstallationTest, AnUpdateFromTheMiddleTakesOnlyWhatIsLeft) {
  ASSERT_TRUE(install());
  const auto update_by_hand = [&](std::int32_t from, std::int32_t to) {
    const Text all = update(Engine::Jet, scripts(u"\\sqlite"), from),
               rest = update(Engine::Jet, scripts(u"\\sqlite"), to);
    return run(TextView(all).substr(0, all.size() - rest.size()));
  };
  ASSERT_TRUE(update_by_hand(10000, 10010));
  EXPECT_EQ(ask(u"SELECT [Versión] FROM [Esquema]"), "10010");
  ASSERT_TRUE(update_by_hand(10010, 10020));
  EXPECT_EQ(ask(u"SELECT [Versión] FROM [Esquema]"), "10020");
  ASSERT_TRUE(bring_up_to_date(10020));
  EXPECT_EQ(ask(u"SELECT [Versión] FROM [Esquema]"), "10100");
}

TEST_F(InstallationTest, ThereIsNothingBehindTheLastVersion) {
  EXPECT_EQ(update(Engine::Jet, scripts(u"\\sqlite"), 10100), u"");
  EXPECT_EQ(events.ends, std::vector<bool>{false});
  EXPECT_EQ(traced(), Traces{u"QVRScr.CargarActualizacion: 75 No update script begins with this version"});
}

struct ScriptSet {
  const char* name;
  TextView below;
  Engine engine;
  std::int32_t definition_commands, update_commands;
};

const ScriptSet kSets[] = {
    {"Jet", u"", Engine::Jet, 105, 25},
    {"SQL Server", u"", Engine::SqlServer, 132, 22},
    {"Oracle", u"", Engine::Oracle, 122, 23},
    {"SQLite", u"\\sqlite", Engine::Jet, 260, 20},
};

using InstallationSet = Rows<InstallationTest, ScriptSet>;

TEST_P(InstallationSet, IsLoadedWholeAndWithoutBracketedAccounts) {
  const ScriptSet& set = GetParam();
  const Text made = definition(set.engine, scripts(set.below), true);
  const Text changed = update(set.engine, scripts(set.below), kFirstVersion, true);
  EXPECT_EQ(count_separators(made), set.definition_commands);
  EXPECT_EQ(count_separators(changed), set.update_commands);
  for (TextView word : {u"QVR", u"[NombreBD]", u"[LogFile]", u"\r\nAS\r\n", u"\r\nWITH ENCRYPTION AS\r\nFOR"}) {
    EXPECT_EQ(find_no_case(made, word), Text::npos) << to_utf8(word);
    EXPECT_EQ(find_no_case(changed, word), Text::npos) << to_utf8(word);
  }
}

INSTANTIATE_TEST_SUITE_P(, InstallationSet, testing::ValuesIn(kSets), row_name);

}  // namespace
}  // namespace qvr::tests
