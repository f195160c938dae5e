// Statements, as both kinds of host get them, and what all the members that write SQL answer to nothing.
#include "automation/sql_members.h"

namespace qvr::tests {
namespace {

class Statements : public SqlMembers {};

const std::vector<Var> kRow{5, L"Ana"};
const std::vector<Var> kFields{L"Id", L"Nombre"};

TEST_F(Statements, SqlINSERT) {
  expect(L"SqlINSERT", &_QVRcfp::SqlINSERT, {L"Clientes", array_of(kRow)},
         all_engines(L"INSERT INTO Clientes VALUES ( 5, 'Ana')"));
  expect(L"SqlINSERT", &_QVRcfp::SqlINSERT, {L"Clientes", array_of({})}, all_engines(L"INSERT INTO Clientes VALUES)"));
  expect(L"SqlINSERT", &_QVRcfp::SqlINSERT, {L"T", array_of({true, Var::null()})},
         {L"INSERT INTO T VALUES (True, Null)", L"INSERT INTO T VALUES (1, Null)", L"INSERT INTO T VALUES (1, Null)",
          undefined(L"INSERT INTO T VALUES (, Null)")});
}

TEST_F(Statements, SqlUPDATE) {
  expect(L"SqlUPDATE", &_QVRcfp::SqlUPDATE, {L"T", L"ID", 7, array_of(kFields), array_of(kRow)},
         all_engines(L"UPDATE T SET Nombre='Ana' WHERE ID=7"));
  expect(L"SqlUPDATE", &_QVRcfp::SqlUPDATE, {L"T", L"Otro", -7, array_of(kFields, 1), array_of(kRow, 1)},
         all_engines(L"UPDATE T SET Id= 5, Nombre='Ana' WHERE Otro=-7"));
}

TEST_F(Statements, SqlInsert2) {
  expect(L"SqlInsert2", &_QVRcfp::SqlInsert2, {L"Clientes", array_of(kFields), array_of(kRow)},
         all_engines(L"INSERT INTO Clientes(Id,Nombre) VALUES( 5,'Ana')"));
}

TEST_F(Statements, SqlUpdate2) {
  expect(L"SqlUpdate2", &_QVRcfp::SqlUpdate2, {L"T", array_of(kFields), array_of(kRow), L"Id=7"},
         all_engines(L"UPDATE T SET Id= 5,Nombre='Ana' WHERE Id=7"));
  expect(L"SqlUpdate2", &_QVRcfp::SqlUpdate2, {L"T", array_of(kFields), array_of(kRow), L""},
         all_engines(L"UPDATE T SET Id= 5,Nombre='Ana'"));
}

TEST_F(Statements, ListsNeedTheSameIndexesOnly) {
  const Outcome none = L"";
  expect(L"SqlInsert2", &_QVRcfp::SqlInsert2, {L"T", array_of(kFields), array_of({5, L"Ana", L"more"})},
         all_engines(L"INSERT INTO T(Id,Nombre) VALUES( 5,'Ana')"));
  expect(L"SqlInsert2", &_QVRcfp::SqlInsert2, {L"T", array_of({L"Nombre"}, 1), array_of(kRow)},
         all_engines(L"INSERT INTO T(Nombre) VALUES('Ana')"));
  expect(L"SqlInsert2", &_QVRcfp::SqlInsert2, {L"T", array_of(kFields), array_of({5})}, {none, none, none, none});
}

// Calls a slot with a null pointer for every argument.
template <class... P>
std::function<HRESULT(_QVRcfp&, BSTR*)> with_null_pointers(HRESULT (STDMETHODCALLTYPE _QVRcfp::*slot)(P...)) {
  return [slot](_QVRcfp& object, BSTR* result) {
    std::tuple<P...> arguments{};
    std::get<sizeof...(P) - 1>(arguments) = result;
    return std::apply([&](P... each) { return (object.*slot)(each...); }, arguments);
  };
}

struct NullPointers {
  const char* name;
  std::function<HRESULT(_QVRcfp&, BSTR*)> slot;
  const wchar_t* expected;
};

// Of SQL Server; the members without arguments are among them for the sake of their result.
const NullPointers kNullPointers[] = {
    {"ComillasSQL", with_null_pointers(&_QVRcfp::ComillasSQL), L"''"},
    {"ExpSQL", with_null_pointers(&_QVRcfp::ExpSQL), L"Null"},
    {"FechaSQL", with_null_pointers(&_QVRcfp::FechaSQL), L"Null"},
    {"HoraSQL", with_null_pointers(&_QVRcfp::HoraSQL), L"Null"},
    {"FechaHoraSQL", with_null_pointers(&_QVRcfp::FechaHoraSQL), L"Null"},
    {"FechaSQLv", with_null_pointers(&_QVRcfp::FechaSQLv), L"Null"},
    {"LogicoSQL", with_null_pointers(&_QVRcfp::LogicoSQL), L"0"},
    {"AhoraSQL", with_null_pointers(&_QVRcfp::AhoraSQL), L"GetDate()"},
    {"sqlEsTrue", with_null_pointers(&_QVRcfp::sqlEsTrue), L" <>0 "},
    {"sqlEsFalse", with_null_pointers(&_QVRcfp::sqlEsFalse), L" =0 "},
    {"sqlFalse", with_null_pointers(&_QVRcfp::sqlFalse), L"0"},
    {"CadenaParaLikeSQL", with_null_pointers(&_QVRcfp::CadenaParaLikeSQL), L"N'' "},
    {"sqlFechaSistema", with_null_pointers(&_QVRcfp::sqlFechaSistema),
     L"SELECT TOP 1 GetDate() As FechaSistema FROM master.dbo.spt_values"},
    {"sqlTOP", with_null_pointers(&_QVRcfp::sqlTOP), L""},
    {"sqlRowNum", with_null_pointers(&_QVRcfp::sqlRowNum), L""},
    {"sqlWhereRelacionTablas", with_null_pointers(&_QVRcfp::sqlWhereRelacionTablas), L""},
    {"sqlAlias", with_null_pointers(&_QVRcfp::sqlAlias), L" As []"},
    {"sqlConcatenar", with_null_pointers(&_QVRcfp::sqlConcatenar), L""},
    {"sqlEsNulo", with_null_pointers(&_QVRcfp::sqlEsNulo), L" IsNull(,) "},
    {"sqlCASE", with_null_pointers(&_QVRcfp::sqlCASE), L""},
    {"SqlINSERT", with_null_pointers(&_QVRcfp::SqlINSERT), L""},
    {"SqlUPDATE", with_null_pointers(&_QVRcfp::SqlUPDATE), L""},
    {"SqlInsert2", with_null_pointers(&_QVRcfp::SqlInsert2), L""},
    {"SqlUpdate2", with_null_pointers(&_QVRcfp::SqlUpdate2), L""},
};

TEST_F(Statements, NullPointersCountAsEmptyOrMissing) {
  use(2);
  for (const NullPointers& row : kNullPointers) {
    SCOPED_TRACE(row.name);
    Bstr result;
    EXPECT_EQ(row.slot(*early.Get(), &result), S_OK);
    EXPECT_NE(result.get(), nullptr) << "an empty text is a text";
    EXPECT_EQ(narrow(result.text()), narrow(row.expected));
    EXPECT_EQ(row.slot(*early.Get(), nullptr), E_POINTER);
  }
}

TEST_F(Statements, WorkForAnObjectThatHasNoParameters) {
  const LateObject fresh(L"QVRlib21.QVRcfp");
  const LateAnswer insert = fresh.call(L"SqlINSERT", {L"T", array_of(kRow)});
  EXPECT_EQ(describe(insert.value.raw()), "BSTR INSERT INTO T VALUES ( 5, 'Ana')");
  EXPECT_EQ(describe(fresh.call(L"sqlAlias", {L"x"}).value.raw()), "BSTR ");
}

}  // namespace
}  // namespace qvr::tests
