// Random calls compared with a reference model.
#include <gtest/gtest.h>

#include <random>

#include "properties/qvrprp.h"
#include "support/describe.h"
#include "support/test_thread.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

enum Kind { kByPosition, kByName, kNowhere };

// What the model knows of a key: its position, or which of the names it is in any case.
struct Key {
  Value value;
  Kind kind;
  int number;
};

struct Name {
  TextView text;
  int number;
};

constexpr int kNumeric = -1;  // names that are positions when they are asked for
constexpr Name kNames[] = {{u"a", 0}, {u"A", 0},   {u"b", 1},        {u"\u00f1", 2},    {u"\u00d1", 2},
                           {u"", 3},  {u"x y", 4}, {u"2", kNumeric}, {u"-1", kNumeric}, {u"1.5", kNumeric}};

std::vector<Key> all_keys() {
  return {{u"a", kByName, 0},
          {u"A", kByName, 0},
          {u"B", kByName, 1},
          {u"\u00f1", kByName, 2},
          {u"\u00d1", kByName, 2},
          {u"", kByName, 3},
          {u"X y", kByName, 4},
          {u"other", kByName, 5},
          {u"2", kByPosition, 2},
          {u"-1", kByPosition, -1},
          {u"1.5", kByPosition, 2},
          {0, kByPosition, 0},
          {std::int16_t{1}, kByPosition, 1},
          {2.5, kByPosition, 2},
          {3.5f, kByPosition, 4},
          {7, kByPosition, 7},
          {Currency{60000}, kByPosition, 6},
          {INT32_MIN, kByPosition, -1},
          {true, kByPosition, -1},
          {false, kByPosition, 0},
          {Empty{}, kByPosition, 0},
          {1e300, kNowhere, 0},
          {Null{}, kNowhere, 0},
          {Missing{}, kNowhere, 0},
          {ObjectRef(), kNowhere, 0}};
}

struct Row {
  Name name;
  std::string value;
};

class QVRprpModelTest : public testing::Test {
 protected:
  std::size_t pick(std::size_t bound) { return random() % bound; }

  Row* find(const Key& key) {
    if (key.kind == kByPosition) {
      const bool there = key.number >= 0 && static_cast<std::size_t>(key.number) < rows.size();
      return there ? &rows[static_cast<std::size_t>(key.number)] : nullptr;
    }
    for (Row& row : rows) {
      if (key.kind == kByName && row.name.number == key.number) return &row;
    }
    return nullptr;
  }

  void create() {
    constexpr TextView kTypes[] = {u"T", u"n", u"F", u"l", u"N", u"X", u"", u"TN"};
    const std::size_t type = pick(std::size(kTypes));
    const Name name = kNames[pick(std::size(kNames))];
    const Value value = static_cast<std::int32_t>(pick(1000));
    const bool known = type < 5;
    if (known) {
      rows.push_back({name, describe(value)});
    } else {
      thread.boxes.answer(BoxAnswer::Ok);
    }
    list.CreaPropiedad(kTypes[type], name.text, value);
    if (known) return;
    EXPECT_EQ(thread.boxes.shown.back(),
              join({u"Tipo inesperado (", kTypes[type], u") al agregar propiedad (", name.text, u")"}));
  }

  void step() {
    const Key& key = keys[pick(keys.size())];
    Row* const row = find(key);
    switch (pick(6)) {
      case 0: create(); break;
      case 1: {
        const Value value = decimal(static_cast<std::int64_t>(pick(1000)));
        list.Item(key.value, value);
        if (row != nullptr) row->value = describe(value);
        break;
      }
      case 2:
        if (pick(10) > 0) break;
        list.Borra();
        rows.clear();
        break;
      default:
        found += row != nullptr;
        EXPECT_EQ(describe(list.Item(key.value)), row != nullptr ? row->value : "Empty") << describe(key.value);
    }
  }

  void expect_all() {
    ASSERT_EQ(list.NumPropiedades(), static_cast<std::int32_t>(rows.size()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
      EXPECT_EQ(list.NombrePropiedad(static_cast<std::int32_t>(i)), Text(rows[i].name.text));
      EXPECT_EQ(describe(list.Item(static_cast<std::int32_t>(i))), rows[i].value);
    }
  }

  TestThread thread;
  QVRprp list;
  std::vector<Row> rows;
  const std::vector<Key> keys = all_keys();
  std::mt19937 random{20260104};
  int found = 0;
};

TEST_F(QVRprpModelTest, EveryStepIsAsTheModelHasIt) {
  expect_any_traces();
  std::size_t longest = 0;
  for (int round = 0; round < 20000; ++round) {
    step();
    expect_all();
    longest = std::max(longest, rows.size());
    ASSERT_FALSE(HasFailure()) << "step " << round;
  }
  EXPECT_GT(found, 3000);
  EXPECT_GT(longest, 8u);
}

}  // namespace
}  // namespace qvr::tests
