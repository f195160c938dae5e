// The update at the start: its bar, a database that needs none, and commands that fail.
#include <optional>

#include "orders.h"
#include "scene.h"
#include "screen.h"

namespace qvr::tests {
namespace {

constexpr int kLabel = 1, kBar = 2;
constexpr double kHeldAt = 40, kCommands = 72;

class ListFormUpdate : public Scene {
 protected:
  // A name of the update is taken already.
  void spoil() const {
    session().execute(L"CREATE TABLE Otra (N INTEGER)");
    session().execute(L"CREATE INDEX PedidosCliente ON Otra (N)");
  }
};

// The database stays at one command of the update, the thirtieth order, as long as this object lives.
class HeldUpdate {
 public:
  HeldUpdate() {
    remove();
    session_.execute(
        L"CREATE FUNCTION wait_here() RETURNS trigger LANGUAGE plpgsql SET lock_timeout = 0 AS "
        L"'BEGIN IF NEW.Numero = 1030 THEN PERFORM pg_advisory_xact_lock(21); END IF; RETURN NEW; END'");
    session_.execute(
        L"CREATE FUNCTION make_wait() RETURNS event_trigger LANGUAGE plpgsql AS "
        L"'BEGIN IF to_regclass(''pedidos'') IS NOT NULL THEN CREATE TRIGGER wait_here BEFORE INSERT ON pedidos "
        L"FOR EACH ROW EXECUTE FUNCTION wait_here(); END IF; END'");
    session_.execute(
        L"CREATE EVENT TRIGGER make_wait ON ddl_command_end WHEN TAG IN ('CREATE TABLE') EXECUTE FUNCTION "
        L"make_wait()");
    session_.rows(L"SELECT 1 FROM pg_advisory_lock(21)", 1);
  }
  ~HeldUpdate() { session_.rows(L"SELECT 1 FROM pg_advisory_unlock(21)", 1); }
  HeldUpdate(const HeldUpdate&) = delete;
  HeldUpdate& operator=(const HeldUpdate&) = delete;

  bool reached() const {
    return !session_.rows(L"SELECT 1 FROM pg_locks WHERE locktype = 'advisory' AND NOT granted", 1).empty();
  }
  // What the update found is its own; the next one is not held.
  static void remove() {
    const list_form::Connection session = Scene::administrator();
    session.execute(L"DROP EVENT TRIGGER IF EXISTS make_wait");
    session.execute(L"DROP FUNCTION IF EXISTS make_wait, wait_here CASCADE");
  }

 private:
  list_form::Connection session_ = Scene::administrator();
};

TEST_F(ListFormUpdate, MovesABarWithEachCommandAndIsNotNeededAgain) {
  {
    std::optional<HeldUpdate> held(std::in_place);
    const Program program(folder());
    ASSERT_TRUE(comes_true([&] { return held->reached(); }));
    const HWND window = visible_window(L"list_form_update");
    wchar_t label[64] = L"";
    GetWindowTextW(GetDlgItem(window, kLabel), label, static_cast<int>(std::size(label)));
    EXPECT_STREQ(label, L"Command 40 of 72");
    // What was drawn behind the last look for messages may not be on the screen yet: one command.
    EXPECT_NEAR(Picture(GetDlgItem(window, kBar)).filled(), kHeldAt / kCommands, 0.02);
    const Picture picture(window);
    picture.save(QVR_TESTS_PICTURES "/list-form-update.bmp");
    EXPECT_GT(picture.colours().size(), 8u);
    EXPECT_EQ(visible_window(L"list_form"), nullptr);
    held.reset();
    const Form form(program);
    EXPECT_EQ(form.sight(), (Sight{all_orders(), "60 orders", "", {}, {}}));
    EXPECT_EQ(visible_window(L"list_form_update"), nullptr);
    form.close();
    EXPECT_EQ(program.exit_code(), 0u);
  }
  HeldUpdate::remove();

  const Program again(folder());
  bool updated = false;
  EXPECT_TRUE(comes_true([&] {
    updated = updated || FindWindowW(L"list_form_update", nullptr) != nullptr;
    return visible_window(L"list_form") != nullptr;
  }));
  EXPECT_FALSE(updated);
  EXPECT_EQ(Form(again).sight().rows, all_orders());
}

TEST_F(ListFormUpdate, ThatFailsIsToldAndLeavesNothing) {
  spoil();
  {
    const Program program(folder());
    const Message report = message(L"QVRlib21");
    EXPECT_NE(report.text.find("pedidoscliente"), std::string::npos) << report.text;
    answer(report, IDOK);
    answer(message(L"QVRlib21"), IDNO);
    const Message told = message(L"List form");
    EXPECT_EQ(told.text, "The database could not be brought up to date. Nothing of the update stays in it.");
    EXPECT_EQ(visible_window(L"list_form"), nullptr);
    answer(told, IDOK);
    EXPECT_EQ(program.exit_code(), 1u);
  }
  EXPECT_FALSE(table_exists(L"Clientes"));
  session().execute(L"DROP TABLE Otra");
  const Program again(folder());
  EXPECT_EQ(Form(again).sight().rows, all_orders());
}

TEST_F(ListFormUpdate, ThatLeftACommandOutIsNotTakenForAWholeOne) {
  spoil();
  for (const bool first : {true, false}) {
    const Program program(folder());
    if (first) {
      answer(message(L"QVRlib21"), IDOK);
      answer(message(L"QVRlib21"), IDYES);
    }
    const Message told = message(L"List form");
    EXPECT_EQ(told.text, "The database is half made: an update of it left commands out.");
    EXPECT_EQ(visible_window(L"list_form"), nullptr);
    answer(told, IDOK);
    EXPECT_EQ(program.exit_code(), 1u);
  }
}

TEST_F(ListFormUpdate, OfAnotherVersionOfTheProgramIsLeftAlone) {
  session().execute(L"CREATE TABLE Esquema (Version INTEGER NOT NULL)");
  session().execute(L"INSERT INTO Esquema (Version) VALUES (2)");
  const Program program(folder());
  const Message told = message(L"List form");
  EXPECT_EQ(told.text, "The database is newer than this program.");
  answer(told, IDOK);
  EXPECT_EQ(program.exit_code(), 1u);
}

}  // namespace
}  // namespace qvr::tests
