#include "properties/qvrprp.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/describe.h"
#include "support/rows.h"
#include "support/test_thread.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

class QVRprpTest : public testing::Test {
 protected:
  // Three texts under names and one under a number.
  void fill() {
    list.CreaPropiedad(u"T", u"Ancho", u"first");
    list.CreaPropiedad(u"T", u"A\u00f1o", u"second");
    list.CreaPropiedad(u"T", u"0", u"third");
    list.CreaPropiedad(u"T", u"", u"fourth");
  }
  std::string item(const Value& which) const { return describe(list.Item(which)); }
  void refused(TextView type, TextView name, TextView box) {
    thread.boxes.answer(BoxAnswer::Ok);
    const std::int32_t before = list.NumPropiedades();
    list.CreaPropiedad(type, name, 1);
    EXPECT_EQ(thread.boxes.shown.back(), Text(box));
    EXPECT_EQ(list.NumPropiedades(), before);
  }

  TestThread thread;
  QVRprp list;
};

TEST_F(QVRprpTest, BeginsEmpty) {
  EXPECT_EQ(list.NumPropiedades(), 0);
  EXPECT_EQ(list.NombrePropiedad(0), u"");
  for (const Value& which : {Value(0), Value(u"Ancho"), Value(u""), Value(), Value(Null{}), Value(ObjectRef())}) {
    EXPECT_EQ(item(which), "Empty");
    list.Item(which, 5);
  }
  EXPECT_EQ(list.NumPropiedades(), 0);
  list.Borra();
  EXPECT_EQ(list.NumPropiedades(), 0);
}

TEST_F(QVRprpTest, CountsFromZeroInTheOrderOfCreation) {
  fill();
  EXPECT_EQ(list.NumPropiedades(), 4);
  const std::pair<TextView, const char*> kExpected[] = {
      {u"Ancho", "String first"}, {u"A\u00f1o", "String second"}, {u"0", "String third"}, {u"", "String fourth"}};
  for (std::int32_t i = 0; i < 4; ++i) {
    EXPECT_EQ(list.NombrePropiedad(i), Text(kExpected[i].first));
    EXPECT_EQ(item(i), kExpected[i].second);
  }
  for (const std::int32_t beyond : {4, 5, -1, INT32_MAX, INT32_MIN}) {
    SCOPED_TRACE(beyond);
    EXPECT_EQ(list.NombrePropiedad(beyond), u"");
    EXPECT_EQ(item(beyond), "Empty");
    list.Item(beyond, u"changed");
  }
  EXPECT_EQ(list.NumPropiedades(), 4);
  EXPECT_EQ(item(0), "String first");
  EXPECT_EQ(item(3), "String fourth");
}

TEST_F(QVRprpTest, TypesAreFourLettersInAnyCase) {
  for (const TextView type : {u"T", u"t", u"N", u"n", u"F", u"f", u"L", u"l"}) list.CreaPropiedad(type, type, u"x");
  EXPECT_EQ(list.NumPropiedades(), 8);
  EXPECT_EQ(list.NombrePropiedad(3), u"n");
}

TEST_F(QVRprpTest, AnyOtherTypeIsToldAndAddsNothing) {
  refused(u"X", u"Ancho", u"Tipo inesperado (X) al agregar propiedad (Ancho)");
  list.CreaPropiedad(u"T", u"Alto", 1);
  refused(u"", u"Ancho", u"Tipo inesperado () al agregar propiedad (Ancho)");
  refused(u"TT", u"", u"Tipo inesperado (TT) al agregar propiedad ()");
  refused(u" T", u"a", u"Tipo inesperado ( T) al agregar propiedad (a)");
  refused(u"T ", u"a", u"Tipo inesperado (T ) al agregar propiedad (a)");
  refused(u"\uff34", u"\u00f1", u"Tipo inesperado (\uff34) al agregar propiedad (\u00f1)");
  refused(u"TNFL", u"(x)", u"Tipo inesperado (TNFL) al agregar propiedad ((x))");
  EXPECT_EQ(thread.log.take().front(), "Box OK: Tipo inesperado (X) al agregar propiedad (Ancho)");
  EXPECT_EQ(list.NombrePropiedad(0), u"Alto");
}

TEST_F(QVRprpTest, ABoxThatCannotBeShownIsNoFailureOfTheCaller) {
  thread.boxes.fail_next();
  list.CreaPropiedad(u"X", u"Ancho", 1);
  EXPECT_EQ(list.NumPropiedades(), 0);
  EXPECT_EQ(traced(), Traces{u"QVRprp.CreaPropiedad: 5 no box today"});
}

TEST_F(QVRprpTest, NamesAreFoundInAnyCase) {
  fill();
  for (const Value name : {u"Ancho", u"ANCHO", u"ancho", u"aNCHo"}) EXPECT_EQ(item(name), "String first");
  EXPECT_EQ(item(u"a\u00d1O"), "String second");
  EXPECT_EQ(item(u""), "String fourth") << "no text is a name";
  for (const Value name : {u"Anch", u"Ancho ", u" Ancho", u"Ano", u"Anchos"}) EXPECT_EQ(item(name), "Empty");
  list.Item(u"aNCHO", 7);
  EXPECT_EQ(item(0), "Long 7");
  EXPECT_EQ(list.NombrePropiedad(0), u"Ancho") << "only the value changes";
}

TEST_F(QVRprpTest, OfEqualNamesTheFirstIsFound) {
  list.CreaPropiedad(u"T", u"Ancho", 1);
  list.CreaPropiedad(u"N", u"ANCHO", 2);
  EXPECT_EQ(list.NumPropiedades(), 2);
  EXPECT_EQ(item(u"ancho"), "Long 1");
  list.Item(u"ANCHO", 3);
  EXPECT_EQ(item(0), "Long 3");
  EXPECT_EQ(item(1), "Long 2");
}

struct Position {
  const char* name;
  Value which;
  const char* value;
  std::int32_t traced = 0;  // the number of the failure
};

const Position kPositions[] = {
    {"Byte", std::uint8_t{1}, "String second"},
    {"Integer", std::int16_t{2}, "String third"},
    {"64 bits", std::int64_t{3}, "String fourth"},
    {"64 bits beyond 32", std::int64_t{4294967296}, "Empty", 6},
    {"Single", 1.0f, "String second"},
    {"half to the even position", 0.5, "String first"},
    {"half to the even position above", 1.5, "String third"},
    {"below the half", 1.49, "String second"},
    {"rounded to zero from below", -0.4, "String first"},
    {"half below zero", -0.5, "String first"},
    {"rounded below zero", -0.6, "Empty"},
    {"Currency", Currency{19999}, "String third"},
    {"Decimal", Decimal{0, 0, 25, 1, false}, "String third"},
    {"negative Decimal", Decimal{0, 0, 1, 0, true}, "Empty"},
    {"too large", 1e300, "Empty", 6},
    {"infinite", std::numeric_limits<double>::infinity(), "Empty", 6},
    {"no number", std::nan(""), "Empty", 6},
    {"false is position 0", false, "String first"},
    {"true is position -1", true, "Empty"},
    {"Empty is position 0", Empty{}, "String first"},
    {"text of a position", u"2", "String third"},
    {"text of a position, never a name", u"0", "String first"},
    {"text with decimals", u"2.4", "String third"},
    {"text with a half", u"2.5", "String third"},
    {"text with an exponent", u"1e0", "String second"},
    {"text with a plus sign", u"+3", "String fourth"},
    {"text below zero", u"-1", "Empty"},
    {"text beyond the end", u"4", "Empty"},
    {"text of a huge number", u"99999999999", "Empty", 6},
    {"text that only begins as a number", u"1x", "Empty"},
    {"Null", Null{}, "Empty", 94},
    {"missing", Missing{}, "Empty", 13},
    {"Nothing", ObjectRef(), "Empty", 13},
    {"array", Array{{Value(1)}, 0, 1}, "Empty", 13},
    {"error value", ErrorValue{1}, "Empty"},
    {"date is no number", Date{1}, "Empty"},
};

using QVRprpPosition = Rows<QVRprpTest, Position>;

TEST_P(QVRprpPosition, IsThatOfANumberOrATextOfOne) {
  fill();
  EXPECT_EQ(item(GetParam().which), GetParam().value);
  QVRprp other;
  for (int i = 0; i < 4; ++i) other.CreaPropiedad(u"N", list.NombrePropiedad(i), list.Item(i));
  other.Item(GetParam().which, u"changed");
  for (int i = 0; i < 4; ++i) {
    const std::string before = item(i);
    EXPECT_EQ(describe(other.Item(i)), before == GetParam().value ? "String changed" : before) << i;
  }
  const std::int32_t number = GetParam().traced;
  EXPECT_EQ(traced(), number == 0 ? Traces() : Traces(2, trace_of(u"QVRprp.Item", number)));
}

INSTANTIATE_TEST_SUITE_P(, QVRprpPosition, testing::ValuesIn(kPositions), row_name);

TEST_F(QVRprpTest, TheLocaleTellsWhatIsANumber) {
  fill();
  list.CreaPropiedad(u"T", u"1.5", u"fifth");
  thread.locale.decimal = u',';
  EXPECT_EQ(item(u"1,5"), "String third");
  EXPECT_EQ(item(u"1.5"), "String fifth") << "a name where the point is none of a number";
}

TEST_F(QVRprpTest, ValuesThatHaveTextsAreNamesToo) {
  list.CreaPropiedad(u"F", u"31/12/1899", u"day");
  list.CreaPropiedad(u"T", u"error 13", u"code");
  EXPECT_EQ(item(Date{1}), "String day");
  EXPECT_EQ(item(ErrorValue{13}), "String code");
}

TEST_F(QVRprpTest, ValuesOfEveryKindAreKeptWhateverTheType) {
  const Value kValues[] = {Empty{},
                           Missing{},
                           Null{},
                           true,
                           std::uint8_t{255},
                           std::int16_t{-1},
                           INT32_MIN,
                           std::int64_t{5000000000},
                           0.1f,
                           1e300,
                           Currency{-1},
                           Date{36526.75},
                           u"\u00f1 \U0001F4C1",
                           Text(3, u'\0'),
                           ErrorValue{13},
                           ObjectRef()};
  std::int32_t count = 0;
  for (const TextView type : {u"T", u"N", u"F", u"L"}) {
    for (const Value& value : kValues) {
      list.CreaPropiedad(type, u"x", value);
      EXPECT_EQ(item(count), describe(value));
      list.Item(count, u"other");
      list.Item(count, value);
      EXPECT_EQ(item(count++), describe(value));
    }
  }
  EXPECT_EQ(list.NumPropiedades(), count);
}

TEST_F(QVRprpTest, BorraLeavesNothingAndTheListUsable) {
  fill();
  list.Borra();
  EXPECT_EQ(list.NumPropiedades(), 0);
  EXPECT_EQ(item(u"Ancho"), "Empty");
  EXPECT_EQ(item(0), "Empty");
  EXPECT_EQ(list.NombrePropiedad(0), u"");
  list.CreaPropiedad(u"L", u"Activo", true);
  EXPECT_EQ(item(0), "Boolean True");
  EXPECT_EQ(list.NombrePropiedad(0), u"Activo");
}

}  // namespace
}  // namespace qvr::tests
