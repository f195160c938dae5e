#include "update_commands.h"

namespace list_form {
namespace {

using qvrlib21::Date;
using qvrlib21::Value;

constexpr long kOrders = 60;
constexpr Date kFirstDay{45296};  // 5 January 2024

struct Customer {
  const wchar_t *name, *town;
};
constexpr Customer kCustomers[] = {{L"Ana López", L"Madrid"},     {L"Bernard O'Neil", L"Dublin"},
                                   {L"Carla Núñez", L"Zaragoza"}, {L"Hansen & Søn", L"Aarhus"},
                                   {L"Luis Pérez", L"Madrid"},    {L"Mariana Costa", L"Porto"},
                                   {L"Tienda Sur S.L.", L"Cádiz"}};
constexpr long kCustomerCount = static_cast<long>(std::size(kCustomers));

class Commands {
 public:
  void add(const std::wstring& command) { text_ += command + L"\r\nGO\r\n"; }
  const std::wstring& text() const { return text_; }

 private:
  std::wstring text_;
};

// Plain types, which any engine knows: a truth is a number here.
void add_tables(Commands& commands) {
  commands.add(L"CREATE TABLE Esquema (Version INTEGER NOT NULL)");
  commands.add(L"CREATE TABLE Clientes (Codigo INTEGER NOT NULL, Nombre VARCHAR(40), Poblacion VARCHAR(40))");
  commands.add(
      L"CREATE TABLE Pedidos (Numero INTEGER NOT NULL, Cliente INTEGER, Fecha DATE, Importe DECIMAL(10,2), "
      L"Servido SMALLINT)");
  commands.add(L"CREATE INDEX PedidosCliente ON Pedidos (Cliente)");
}

void add_customers(Commands& commands, const qvrlib21::QVRcfp& parameters) {
  for (long i = 0; i < kCustomerCount; ++i) {
    commands.add(parameters.SqlInsert2(L"Clientes", {L"Codigo", L"Nombre", L"Poblacion"},
                                       {i + 1, kCustomers[i].name, kCustomers[i].town}));
  }
}

// Every fourth order has not been served yet.
void add_orders(Commands& commands, const qvrlib21::QVRcfp& parameters) {
  for (long i = 0; i < kOrders; ++i) {
    const Date day{kFirstDay.days + static_cast<double>(i * 3)};
    const double amount = static_cast<double>(i * 7919 % 1000) + static_cast<double>(i % 4) * 0.25;
    commands.add(parameters.SqlInsert2(L"Pedidos", {L"Numero", L"Cliente", L"Fecha", L"Importe", L"Servido"},
                                       {1001 + i, i * 5 % kCustomerCount + 1, day, amount, i % 4 != 0}));
  }
}

}  // namespace

std::wstring update_commands(const qvrlib21::QVRcfp& parameters) {
  Commands commands;
  add_tables(commands);
  add_customers(commands, parameters);
  add_orders(commands, parameters);
  commands.add(L"INSERT INTO Esquema (Version) VALUES (" + std::to_wstring(kVersion) + L")");
  return commands.text();
}

}  // namespace list_form
