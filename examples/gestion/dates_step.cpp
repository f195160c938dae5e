#include <windows.h>

#include <chrono>
#include <cwchar>

#include "console.h"
#include "order_list.h"
#include "steps.h"

namespace gestion {
namespace {

using std::chrono::days;
using std::chrono::sys_days;

// A search, and the days that it stands for.
struct Words {
  const wchar_t* text;
  sys_days first, last;
};

sys_days today() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return std::chrono::year(now.wYear) / now.wMonth / now.wDay;
}

// As the database keeps dates, and as they can be typed in every country.
std::wstring in_figures(sys_days day) {
  const std::chrono::year_month_day date(day);
  wchar_t text[16];
  std::swprintf(text, std::size(text), L"%04d-%02u-%02u", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
  return text;
}

std::vector<Words> words_of(sys_days today) {
  using namespace std::chrono;
  const year_month_day date(today);
  return {{L"este mes", date.year() / date.month() / 1, date.year() / date.month() / last},
          {L"enero 2024..marzo 2024", 2024y / January / 1, 2024y / March / last},
          {L"últimos 7 días", today - days(6), today}};
}

void take_order(const Database& database, int number, int client, sys_days day) {
  database.execute(L"INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes]) VALUES (" +
                   std::to_wstring(number) + L", " + std::to_wstring(client) + L", '" + in_figures(day) + L"', 6)");
}

void take_orders(const Database& database, sys_days today) {
  take_order(database, 26001, 120, today - days(7));
  take_order(database, 26002, 133, today - days(6));
  take_order(database, 26003, 104, today - days(1));
  take_order(database, 26004, 128, today);
  say(L"   Four orders came in: a week ago, the day after, yesterday and today.");
}

// Past the library.
long orders_between(const Database& database, const std::wstring& first, const std::wstring& last) {
  long count = 0;
  database.each_row(L"SELECT [Fecha] FROM [Pedidos]", 1,
                    [&](const auto& texts) { count += first <= texts[0] && texts[0] <= last ? 1 : 0; });
  return count;
}

void show_words(const OrderList& list, const Database& database, const Words& words, sys_days day) {
  const std::wstring first = in_figures(words.first), last = in_figures(words.last), figures = first + L".." + last;
  list.restore();
  expect(list.narrow({L"Fecha", figures}), L"A date in figures was not understood");
  const std::wstring statement = list.statement();
  list.restore();
  say();
  say(std::wstring(L"   Fecha: ") + words.text);
  expect(list.narrow({L"Fecha", words.text}), L"A date in words was not understood");
  item(L"  criterion", list.criterion());
  item(L"  the same in figures", figures);
  // After midnight the words stand for other days.
  expect(list.statement() == statement || today() != day, L"The words stand for other days");
  const long rows = list.show();
  expect(rows == orders_between(database, first, last) || today() != day, L"The list has other orders");
}

}  // namespace

void show_dates_in_words(const std::wstring& connection_string) {
  const sys_days day = today();
  const Database database(connection_string);
  take_orders(database, day);
  const OrderList list(connection_string, Dates::AsDates);
  for (const Words& words : words_of(day)) show_words(list, database, words, day);
}

}  // namespace gestion
