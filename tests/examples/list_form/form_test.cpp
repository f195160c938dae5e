// The form as somebody uses it: search boxes, headings, the button that clears, filters that are kept.
#include <fstream>

#include "orders.h"
#include "scene.h"
#include "screen.h"

namespace qvr::tests {
namespace {

class ListForm : public Scene {
 protected:
  // What the form shows is this, sooner or later.
  static void expect(const Form& form, const Sight& expected) { EXPECT_EQ(form.becomes(expected), expected); }
};

const Sight kWhole{all_orders(), "60 orders", "", {}, {}};
const Sight kNarrowed{orders({1001, 1009, 1029, 1037, 1057}),
                      "5 orders: Customer is like '*ana*' and Served = no",
                      "",
                      {"", "ana", "", "", "", "no"},
                      {}};
const Sight kSorted{orders({1029, 1057, 1009, 1037, 1001}), kNarrowed.line, "4 down", kNarrowed.boxes, {}};

void narrow_and_sort(const Form& form) {
  form.search(kCustomer, L"ana");
  form.search(kServed, L"no");
  for (const std::size_t column : {kDate, kAmount, kAmount}) form.click_heading(column);
}

TEST_F(ListForm, FindsTheLibraryByItsManifest) {
  CLSID registered;
  EXPECT_EQ(CLSIDFromProgID(L"QVRlib21.cSQL20", &registered), CO_E_CLASSSTRING);
  const Program program(folder());
  expect(Form(program), kWhole);
}

TEST_F(ListForm, NarrowsByEachBoxWithEnter) {
  const Program program(folder());
  const Form form(program);
  expect(form, kWhole);
  form.search(kCustomer, L"ana");
  form.search(kServed, L"no");
  expect(form, kNarrowed);
  // Another search for a column takes the place of the former one.
  form.search(kCustomer, L"");
  form.search(kServed, L"");
  form.search(kTown, L"madrid");
  form.search(kDate, L"Feb 2024");
  expect(form, {orders({1013, 1015}),
                "2 orders: Town is like '*madrid*' and Date >= 2/1/2024 and <= 2/29/2024",
                "",
                {"", "", "madrid", "Feb 2024", "", ""},
                {}});
  form.press_clear();
  expect(form, kWhole);
}

TEST_F(ListForm, LeavesTheListAndColoursTheBoxOfARefusedSearch) {
  const Program program(folder());
  const Form form(program);
  form.search(kCustomer, L"ana");
  form.search(kServed, L"no");
  form.search(kAmount, L"much");
  Sight refused = kNarrowed;
  refused.boxes[kAmount] = "much";
  refused.refused = {kAmount};
  expect(form, refused);
  // What is behind the list is as it was, too.
  form.click_heading(kNumber);
  refused.arrow = "0 up";
  expect(form, refused);
  form.type(kAmount, L">400");
  Sight changed = refused;
  changed.refused.clear();
  changed.boxes[kAmount] = ">400";
  expect(form, changed);
  form.press_enter(kAmount);
  changed.rows = orders({1029, 1057});
  changed.line = "2 orders: Customer is like '*ana*' and Amount > 400 and Served = no";
  expect(form, changed);
}

TEST_F(ListForm, TellsWhatTheDatabaseRefusesAndGoesOn) {
  const Program program(folder());
  const Form form(program);
  form.search(kCustomer, L"ana");
  form.search(kServed, L"no");
  expect(form, kNarrowed);
  session().execute(L"ALTER TABLE Pedidos RENAME TO Otra");
  form.click_heading(kAmount);
  ASSERT_TRUE(comes_true([&] { return form.sight().line != kNarrowed.line; }));
  Sight refused = kNarrowed;
  refused.line = form.sight().line;
  EXPECT_NE(refused.line.find("pedidos"), std::string::npos) << refused.line;
  expect(form, refused);
  session().execute(L"ALTER TABLE Otra RENAME TO Pedidos");
  form.press_enter(kServed);
  expect(form, kNarrowed);
}

TEST_F(ListForm, SortsByAHeadingAndTurnsRound) {
  const Program program(folder());
  const Form form(program);
  form.search(kAmount, L">900");
  Sight sight{orders({1002, 1014, 1026, 1039, 1051}), "5 orders: Amount > 900", "", {"", "", "", "", ">900", ""}, {}};
  expect(form, sight);
  form.click_heading(kAmount);
  sight.rows = orders({1002, 1039, 1014, 1051, 1026});
  sight.arrow = "4 up";
  expect(form, sight);
  form.click_heading(kAmount);
  sight.rows = orders({1026, 1051, 1014, 1039, 1002});
  sight.arrow = "4 down";
  expect(form, sight);
  // Dates begin with the newest.
  form.click_heading(kDate);
  sight.rows = orders({1051, 1039, 1026, 1014, 1002});
  sight.arrow = "3 down";
  expect(form, sight);
}

TEST_F(ListForm, KeepsFiltersBeyondItsEnd) {
  {
    const Program program(folder());
    const Form form(program);
    narrow_and_sort(form);
    expect(form, kSorted);
    const Picture picture(form.window());
    picture.save(QVR_TESTS_PICTURES "/list-form.bmp");
    EXPECT_GT(picture.colours().size(), 8u);
    form.save_filter(L"Ana's open orders");
    ASSERT_TRUE(comes_true([&] { return form.filters() == std::vector<std::string>{"Ana's open orders"}; }));
    form.press_clear();
    expect(form, kWhole);
    form.search(kTown, L"dublin");
    form.save_filter(L"Dublín");
    ASSERT_TRUE(comes_true([&] { return form.filters().size() == 2; }));
    form.pick_filter(1);
    expect(form, kSorted);
    form.close();
    EXPECT_EQ(program.exit_code(), 0u);
  }
  const Program again(folder());
  const Form form(again);
  expect(form, kWhole);
  EXPECT_EQ(form.filters(), (std::vector<std::string>{"Ana's open orders", "Dublín"}));
  form.pick_filter(1);
  expect(form, kSorted);
  form.search(kCustomer, L"ana l");
  Sight further = kSorted;
  further.rows = orders({1029, 1057, 1001});
  further.line = "3 orders: Customer is like '*ana*' and is like '*l*' and Served = no";
  further.boxes[kCustomer] = "ana l";
  expect(form, further);
}

TEST_F(ListForm, RefusesAFilterThatItCannotRead) {
  {
    const Program program(folder());
    const Form form(program);
    narrow_and_sort(form);
    expect(form, kSorted);
    form.save_filter(L"cut");
    ASSERT_TRUE(comes_true([&] { return form.filters().size() == 1; }));
  }
  const std::wstring heading = L"\uFEFFlist 1, engine 2\r\n", filter = L"cut\r\nWHERE\r\n\r\n\r\n\r\n\r\n\r\n\r\n";
  const auto written = [&](const std::wstring& text) {
    std::ofstream(filter_file(), std::ios::binary)
        .write(reinterpret_cast<const char*>(text.data()), static_cast<std::streamsize>(text.size() * sizeof(wchar_t)));
  };
  written(heading + filter);
  {
    const Program program(folder());
    const Form form(program);
    form.pick_filter(1);
    Sight sight = kWhole;
    sight.line = "This filter cannot be read.";
    expect(form, sight);
  }
  // Of another version of the list.
  written(L"\uFEFFlist 2, engine 2\r\n" + filter);
  const Program program(folder());
  EXPECT_EQ(Form(program).filters(), std::vector<std::string>{});
}

}  // namespace
}  // namespace qvr::tests
