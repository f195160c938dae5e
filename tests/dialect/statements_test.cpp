#include "dialect/statements.h"

#include "dialect/dialect_fixture.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;
using StatementsTest = DialectTest;

// One value of each kind; the logical value and the date are what a number that is no engine cannot write.
Value one_of_each(std::int32_t lower = 0) {
  return list({5, u"O'Neil", true, Date{40548}, Null{}, -2.5, u"AhoraSQL"}, lower);
}
Value seven_fields(std::int32_t lower = 0) { return list({u"a", u"b", u"c", u"d", u"e", u"f", u"g"}, lower); }

Value names(std::int32_t lower = 0) { return list({u"Id", u"Nombre"}, lower); }
Value ana(std::int32_t lower = 0) { return list({5, u"Ana"}, lower); }

struct ListRow {
  const char* name;
  Value values;
  EachEngine expected;
  std::vector<TextView> unexpected = {};  // types that the trace names
};

const ListRow kSqlINSERTRows[] = {
    {"two values", ana(), all_engines(u"INSERT INTO Clientes VALUES ( 5, 'Ana')")},
    {"one value", list({-1}), all_engines(u"INSERT INTO Clientes VALUES (-1)")},
    {"lower bound 1", ana(1), all_engines(u"INSERT INTO Clientes VALUES ( 5, 'Ana')")},
    {"negative lower bound", ana(-9), all_engines(u"INSERT INTO Clientes VALUES ( 5, 'Ana')")},
    {"one of each kind",
     one_of_each(),
     {u"INSERT INTO Clientes VALUES ( 5, 'O''Neil', True, #2011-01-05#, Null, -2.5, Now())",
      u"INSERT INTO Clientes VALUES ( 5, 'O''Neil', 1, { d '2011-01-05'}, Null, -2.5, GetDate())",
      u"INSERT INTO Clientes VALUES ( 5, 'O''Neil', 1,  TO_DATE('2011-01-05','YYYY-MM-DD') , Null, -2.5, SYSDATE)",
      undefined(u"INSERT INTO Clientes VALUES ( 5, 'O''Neil', , , Null, -2.5, )", 3)}},
    {"what has no literal",
     list({Empty{}, Missing{}, object(), ErrorValue{1}, list({1}), square({1, 2})}),
     all_engines(u"INSERT INTO Clientes VALUES (Null, Null, Null, Null, Null, Null)"),
     {u"Object", u"Error", u"Variant()", u"Variant()"}},
    {"a value that ends like the separator", list({u", "}), all_engines(u"INSERT INTO Clientes VALUES (', ')")},
    // The end of the beginning goes in place of the separator that is not there.
    {"no values", list({}), all_engines(u"INSERT INTO Clientes VALUES)")},
};

using SqlINSERT = Rows<DialectTest, ListRow>;

TEST_P(SqlINSERT, WritesEveryValue) {
  const ListRow& row = GetParam();
  expect_each(row.expected, [&](Engine engine) { return dialect::SqlINSERT(engine, u"Clientes", row.values); });
  Traces unexpected;
  for (int engine = 0; engine < 4; ++engine) {
    for (const TextView type : row.unexpected) {
      unexpected.push_back(join({u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: ", type}));
    }
  }
  EXPECT_EQ(traced(), unexpected);
}

INSTANTIATE_TEST_SUITE_P(, SqlINSERT, ::testing::ValuesIn(kSqlINSERTRows), row_name);

struct PairRow {
  const char* name;
  Value fields, values;
  EachEngine expected;
};

struct SqlUPDATERow {
  const char* name;
  TextView key;
  std::int32_t key_value;
  Value fields, values;
  EachEngine expected;
};
const SqlUPDATERow kSqlUPDATERows[] = {
    {"the key in another case", u"ID", 7, names(), ana(), all_engines(u"UPDATE T SET Nombre='Ana' WHERE ID=7")},
    {"the key behind", u"Nombre", 7, names(), ana(), all_engines(u"UPDATE T SET Id= 5 WHERE Nombre=7")},
    {"the key beyond ASCII", u"A\u00d1O", 7, list({u"a\u00f1o", u"b"}), ana(),
     all_engines(u"UPDATE T SET b='Ana' WHERE A\u00d1O=7")},
    {"the key is no field", u"Clave", -7, names(), ana(),
     all_engines(u"UPDATE T SET Id= 5, Nombre='Ana' WHERE Clave=-7")},
    {"a blank makes another name", u"Id ", 0, names(), ana(),
     all_engines(u"UPDATE T SET Id= 5, Nombre='Ana' WHERE Id =0")},
    {"least key", u"k", INT32_MIN, list({u"a"}), list({1}), all_engines(u"UPDATE T SET a= 1 WHERE k=-2147483648")},
    {"lower bound 1", u"id", 7, names(1), ana(1), all_engines(u"UPDATE T SET Nombre='Ana' WHERE id=7")},
    {"negative lower bound", u"id", 7, names(-1), ana(-1), all_engines(u"UPDATE T SET Nombre='Ana' WHERE id=7")},
    {"more values than fields", u"id", 7, names(), list({1, 2, 3}), all_engines(u"UPDATE T SET Nombre= 2 WHERE id=7")},
    {"values that begin earlier", u"id", 7, names(1), list({1, 2, 3}),
     all_engines(u"UPDATE T SET Nombre= 3 WHERE id=7")},
    {"no value for the key", u"id", 7, names(), list({u"Ana"}, 1),
     all_engines(u"UPDATE T SET Nombre='Ana' WHERE id=7")},
    {"the key twice", u"id", 7, list({u"id", u"a", u"ID"}), list({1, 2, 3}),
     all_engines(u"UPDATE T SET a= 2 WHERE id=7")},
    {"a number as a field's name", u"k", 1, list({5}), list({6}), all_engines(u"UPDATE T SET 5= 6 WHERE k=1")},
    {"one of each kind",
     u"k",
     1,
     seven_fields(),
     one_of_each(),
     {u"UPDATE T SET a= 5, b='O''Neil', c=True, d=#2011-01-05#, e=Null, f=-2.5, g=Now() WHERE k=1",
      u"UPDATE T SET a= 5, b='O''Neil', c=1, d={ d '2011-01-05'}, e=Null, f=-2.5, g=GetDate() WHERE k=1",
      u"UPDATE T SET a= 5, b='O''Neil', c=1, d= TO_DATE('2011-01-05','YYYY-MM-DD') , e=Null, f=-2.5, g=SYSDATE"
      u" WHERE k=1",
      undefined(u"UPDATE T SET a= 5, b='O''Neil', c=, d=, e=Null, f=-2.5, g= WHERE k=1", 3)}},
    // The end of the beginning goes in place of the separator that is not there.
    {"only the key", u"id", 7, list({u"Id"}), list({5}), all_engines(u"UPDATE T SE WHERE id=7")},
    {"no fields", u"id", 7, list({}), list({}), all_engines(u"UPDATE T SE WHERE id=7")},
};

using SqlUPDATE = Rows<DialectTest, SqlUPDATERow>;

TEST_P(SqlUPDATE, LeavesTheKeyOut) {
  const SqlUPDATERow& row = GetParam();
  expect_each(row.expected, [&](Engine engine) {
    return dialect::SqlUPDATE(engine, u"T", row.key, row.key_value, row.fields, row.values);
  });
}

INSTANTIATE_TEST_SUITE_P(, SqlUPDATE, ::testing::ValuesIn(kSqlUPDATERows), row_name);

const PairRow kSqlInsert2Rows[] = {
    {"two fields", names(), ana(), all_engines(u"INSERT INTO Clientes(Id,Nombre) VALUES( 5,'Ana')")},
    {"one field", list({u"Id"}), list({-5}), all_engines(u"INSERT INTO Clientes(Id) VALUES(-5)")},
    {"lower bound 1", names(1), ana(1), all_engines(u"INSERT INTO Clientes(Id,Nombre) VALUES( 5,'Ana')")},
    {"negative lower bound", names(-2), ana(-2), all_engines(u"INSERT INTO Clientes(Id,Nombre) VALUES( 5,'Ana')")},
    {"more values than fields", names(), list({1, 2, 3}),
     all_engines(u"INSERT INTO Clientes(Id,Nombre) VALUES( 1, 2)")},
    {"values that begin earlier", names(1), list({1, 2, 3}),
     all_engines(u"INSERT INTO Clientes(Id,Nombre) VALUES( 2, 3)")},
    {"one of each kind",
     seven_fields(),
     one_of_each(),
     {u"INSERT INTO Clientes(a,b,c,d,e,f,g) VALUES( 5,'O''Neil',True,#2011-01-05#,Null,-2.5,Now())",
      u"INSERT INTO Clientes(a,b,c,d,e,f,g) VALUES( 5,'O''Neil',1,{ d '2011-01-05'},Null,-2.5,GetDate())",
      u"INSERT INTO Clientes(a,b,c,d,e,f,g) VALUES( 5,'O''Neil',1, TO_DATE('2011-01-05','YYYY-MM-DD') ,Null,-2.5,"
      u"SYSDATE)",
      undefined(u"INSERT INTO Clientes(a,b,c,d,e,f,g) VALUES( 5,'O''Neil',,,Null,-2.5,)", 3)}},
    {"no fields", list({}), list({}), all_engines(u"INSERT INTO Clientes) VALUES)")},
};

using SqlInsert2 = Rows<DialectTest, PairRow>;

TEST_P(SqlInsert2, NamesTheColumns) {
  const PairRow& row = GetParam();
  expect_each(row.expected,
              [&](Engine engine) { return dialect::SqlInsert2(engine, u"Clientes", row.fields, row.values); });
}

INSTANTIATE_TEST_SUITE_P(, SqlInsert2, ::testing::ValuesIn(kSqlInsert2Rows), row_name);

struct SqlUpdate2Row : PairRow {
  TextView condition = {};
};
const SqlUpdate2Row kSqlUpdate2Rows[] = {
    {{"a condition", names(), ana(), all_engines(u"UPDATE T SET Id= 5,Nombre='Ana' WHERE x=1 Or y=2")}, u"x=1 Or y=2"},
    {{"no condition", names(), ana(), all_engines(u"UPDATE T SET Id= 5,Nombre='Ana'")}},
    {{"a blank condition", names(), ana(), all_engines(u"UPDATE T SET Id= 5,Nombre='Ana' WHERE  ")}, u" "},
    {{"lower bound 1", names(1), ana(1), all_engines(u"UPDATE T SET Id= 5,Nombre='Ana' WHERE c")}, u"c"},
    {{"negative lower bound", names(-1), ana(-1), all_engines(u"UPDATE T SET Id= 5,Nombre='Ana' WHERE c")}, u"c"},
    {{"values that begin earlier", names(1), list({1, 2, 3}), all_engines(u"UPDATE T SET Id= 2,Nombre= 3")}},
    {{"one of each kind",
      seven_fields(),
      one_of_each(),
      {u"UPDATE T SET a= 5,b='O''Neil',c=True,d=#2011-01-05#,e=Null,f=-2.5,g=Now() WHERE c",
       u"UPDATE T SET a= 5,b='O''Neil',c=1,d={ d '2011-01-05'},e=Null,f=-2.5,g=GetDate() WHERE c",
       u"UPDATE T SET a= 5,b='O''Neil',c=1,d= TO_DATE('2011-01-05','YYYY-MM-DD') ,e=Null,f=-2.5,g=SYSDATE WHERE c",
       undefined(u"UPDATE T SET a= 5,b='O''Neil',c=,d=,e=Null,f=-2.5,g= WHERE c", 3)}},
     u"c"},
    {{"no fields", list({}), list({}), all_engines(u"UPDATE T SET WHERE c")}, u"c"},
};

using SqlUpdate2 = Rows<DialectTest, SqlUpdate2Row>;

TEST_P(SqlUpdate2, TakesAnyCondition) {
  const SqlUpdate2Row& row = GetParam();
  expect_each(row.expected,
              [&](Engine engine) { return dialect::SqlUpdate2(engine, u"T", row.fields, row.values, row.condition); });
}

INSTANTIATE_TEST_SUITE_P(, SqlUpdate2, ::testing::ValuesIn(kSqlUpdate2Rows), row_name);

TEST_F(StatementsTest, SqlINSERTAndSqlUPDATEThrowForWhatIsNoArray) {
  for (const Value& value : {Value(u"a"), Value(5), Value(), Value(Null{}), Value(Missing{}), object()}) {
    EXPECT_EQ(thrown_by([&] { return dialect::SqlINSERT(Engine::Jet, u"T", value); }), "RuntimeFailure 13");
    EXPECT_EQ(thrown_by([&] { return dialect::SqlUPDATE(Engine::Jet, u"T", u"k", 1, value, ana()); }),
              "RuntimeFailure 13");
    EXPECT_EQ(thrown_by([&] { return dialect::SqlUPDATE(Engine::Jet, u"T", u"k", 1, names(), value); }),
              "RuntimeFailure 13");
  }
  for (const Value& value : {shapeless(), square({1, 2})}) {
    EXPECT_EQ(thrown_by([&] { return dialect::SqlINSERT(Engine::Jet, u"T", value); }), "CallerFailure 9");
  }
}

struct UnfittingListsRow {
  const char* name;
  Value fields, values;
  std::string thrown;
};
const UnfittingListsRow kUnfittingListsRows[] = {
    {"fewer values", names(), list({5}), "CallerFailure 9"},
    {"no values", names(), list({}), "CallerFailure 9"},
    {"values that begin later", names(), ana(1), "CallerFailure 9"},
    {"values that end earlier", names(1), ana(), "CallerFailure 9"},
    {"fields of two dimensions", square({u"a", u"b"}), ana(), "CallerFailure 9"},
    {"values of two dimensions", names(), square({1, 2}), "CallerFailure 9"},
    {"fields without bounds", shapeless(), ana(), "CallerFailure 9"},
    {"values without bounds", names(), shapeless(), "CallerFailure 9"},
    {"Null as a field", list({u"Id", Null{}}), ana(), "RuntimeFailure 94"},
    {"an object as a field", list({object()}), ana(), "RuntimeFailure 13"},
    {"an array as a field", list({names()}), ana(), "RuntimeFailure 13"},
};

using UnfittingLists = Rows<DialectTest, UnfittingListsRow>;

TEST_P(UnfittingLists, FailInAllThatHaveFields) {
  const UnfittingListsRow& row = GetParam();
  const Value &fields = row.fields, &values = row.values;
  EXPECT_EQ(thrown_by([&] { return dialect::SqlUPDATE(Engine::Jet, u"T", u"k", 1, fields, values); }), row.thrown);
  EXPECT_EQ(thrown_by([&] { return dialect::SqlInsert2(Engine::Jet, u"T", fields, values); }), row.thrown);
  EXPECT_EQ(thrown_by([&] { return dialect::SqlUpdate2(Engine::Jet, u"T", fields, values, u""); }), row.thrown);
}

INSTANTIATE_TEST_SUITE_P(, UnfittingLists, ::testing::ValuesIn(kUnfittingListsRows), row_name);

struct NoListsRow {
  const char* name;
  Value fields, values;
};
const NoListsRow kNoLists[] = {
    {"fields are no array", u"Id", ana()},           {"values are no array", names(), 5},
    {"neither is an array", Empty{}, Null{}},        {"missing and an object", Missing{}, object()},
    {"no fields, values are no array", list({}), 5},
};

using NoLists = Rows<DialectTest, NoListsRow>;

TEST_P(NoLists, FailInTheMembersOfTwoLists) {
  const NoListsRow& row = GetParam();
  EXPECT_EQ(thrown_by([&] { return dialect::SqlInsert2(Engine::Jet, u"T", row.fields, row.values); }),
            "RuntimeFailure 13");
  EXPECT_EQ(thrown_by([&] { return dialect::SqlUpdate2(Engine::Jet, u"T", row.fields, row.values, u"c"); }),
            "RuntimeFailure 13");
}

INSTANTIATE_TEST_SUITE_P(, NoLists, ::testing::ValuesIn(kNoLists), row_name);

}  // namespace
}  // namespace qvr::tests
