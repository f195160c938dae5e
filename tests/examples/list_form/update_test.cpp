// The update at the start: its bar, a database that needs none, and commands that fail.
#include <windows.h>

#include <commctrl.h>

#include "orders.h"
#include "scene.h"
#include "screen.h"

namespace qvr::tests {
namespace {

constexpr int kCommands = 72;
constexpr int kBar = 2;
constexpr LRESULT kHeldAt = 25;

class ListFormUpdate : public Scene {
 protected:
  // A name of the update is taken already.
  void spoil() const {
    session().execute(L"CREATE TABLE Otra (N INTEGER)");
    session().execute(L"CREATE INDEX PedidosCliente ON Otra (N)");
  }
};

// Asks at once and again; nothing for a window that has gone meanwhile.
LRESULT asked(HWND window, UINT message, WPARAM word) {
  DWORD_PTR answer = 0;
  return SendMessageTimeoutW(window, message, word, 0, SMTO_NORMAL, 60'000, &answer) != 0 ? static_cast<LRESULT>(answer)
                                                                                          : 0;
}

TEST_F(ListFormUpdate, MovesABarWithEachCommandAndIsNotNeededAgain) {
  std::vector<LRESULT> places;
  {
    const Program program(folder());
    HWND window = nullptr;
    ASSERT_TRUE(comes_true([&] { return (window = visible_window(L"list_form_update")) != nullptr; }));
    const HWND bar = GetDlgItem(window, kBar);
    bool held = false;
    EXPECT_EQ(comes_true([&] { return asked(bar, PBM_GETRANGE, FALSE) == kCommands; }), true);
    while (visible_window(L"list_form_update") != nullptr) {
      const LRESULT place = asked(bar, PBM_GETPOS, 0);
      if (place != 0 && (places.empty() || places.back() != place)) places.push_back(place);
      if (held || place < kHeldAt) continue;
      held = true;
      program.hold();
      const Picture picture(window);
      picture.save(QVR_TESTS_PICTURES "/list-form-update.bmp");
      EXPECT_GT(picture.colours().size(), 8u);
      program.go_on();
    }
    EXPECT_TRUE(held);
    const Form form(program);
    EXPECT_EQ(form.sight(), (Sight{all_orders(), "60 orders", "", {}, {}}));
    form.close();
    EXPECT_EQ(program.exit_code(), 0u);
  }
  EXPECT_TRUE(std::is_sorted(places.begin(), places.end()));
  ASSERT_GT(places.size(), 10u);
  EXPECT_LE(places.back(), kCommands);

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
