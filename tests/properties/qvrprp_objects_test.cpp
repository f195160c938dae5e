// Objects and arrays of the host as values of properties.
#include <gtest/gtest.h>

#include <functional>

#include "properties/qvrprp.h"
#include "support/describe.h"
#include "support/test_thread.h"

namespace qvr::tests {
namespace {

// Records its destruction.
struct Watched final : Object {
  explicit Watched(std::function<void()> end) : at_end(std::move(end)) {}
  ~Watched() override { at_end(); }
  std::function<void()> at_end;
};

class QVRprpObjectsTest : public testing::Test {
 protected:
  // An object that re-enters the list on its release.
  ObjectRef watched() {
    return std::make_shared<Watched>([this] {
      ++ended;
      count_at_end = list.NumPropiedades();
      first_at_end = describe(list.Item(0));
    });
  }

  TestThread thread;
  int ended = 0;
  std::int32_t count_at_end = -1;
  std::string first_at_end;
  QVRprp list;
};

TEST_F(QVRprpObjectsTest, TheVeryObjectComesBack) {
  const ObjectRef object = std::make_shared<Object>();
  list.CreaPropiedad(u"T", u"Objeto", object);
  ASSERT_TRUE(list.Item(u"objeto").is<ObjectRef>());
  EXPECT_EQ(*list.Item(0).as<ObjectRef>(), object);
  EXPECT_EQ(object.use_count(), 2) << "one reference here, one in the list";
  list.Item(0, object);
  EXPECT_EQ(object.use_count(), 2);
  list.Item(0, ObjectRef());
  EXPECT_EQ(object.use_count(), 1);
  EXPECT_EQ(describe(list.Item(0)), "Nothing");
}

TEST_F(QVRprpObjectsTest, ArraysComeBackWhole) {
  const Array inner{{Value(u"a"), Value(2.5)}, -3, 1};
  list.CreaPropiedad(u"N", u"Lista", Array{{Value(inner), Value(Null{})}, 5, 2});
  const Value value = list.Item(u"Lista");
  const Array* outer = value.as<Array>();
  ASSERT_NE(outer, nullptr);
  EXPECT_EQ(outer->lower, 5);
  EXPECT_EQ(outer->dimensions, 2);
  ASSERT_EQ(outer->items.size(), 2u);
  EXPECT_EQ(describe(outer->items[1]), "Null");
  const Array* held = outer->items[0].as<Array>();
  ASSERT_NE(held, nullptr);
  EXPECT_EQ(held->lower, -3);
  EXPECT_EQ(describe(held->items.at(0)), "String a");
  EXPECT_EQ(describe(held->items.at(1)), "Double 2.5");
}

TEST_F(QVRprpObjectsTest, AValueIsACopyOfItsOwn) {
  Value given = Array{{Value(1)}, 0, 1};
  list.CreaPropiedad(u"T", u"Lista", given);
  given = 0;
  Value taken = list.Item(0);
  taken = 0;
  EXPECT_EQ(describe(list.Item(0)), "Array of 1");
}

TEST_F(QVRprpObjectsTest, AnObjectEndsAfterItsValueWasReplaced) {
  list.CreaPropiedad(u"T", u"Objeto", watched());
  list.CreaPropiedad(u"T", u"Otro", 2);
  EXPECT_EQ(ended, 0);
  list.Item(u"Objeto", u"new");
  EXPECT_EQ(ended, 1);
  EXPECT_EQ(count_at_end, 2);
  EXPECT_EQ(first_at_end, "String new");
}

TEST_F(QVRprpObjectsTest, ObjectsEndAfterTheListIsEmpty) {
  list.CreaPropiedad(u"T", u"uno", watched());
  list.CreaPropiedad(u"T", u"dos", Array{{Value(watched())}, 0, 1});
  list.Borra();
  EXPECT_EQ(ended, 2);
  EXPECT_EQ(count_at_end, 0);
  EXPECT_EQ(first_at_end, "Empty");
}

TEST_F(QVRprpObjectsTest, AnEndingObjectMayAddToTheList) {
  list.CreaPropiedad(u"T", u"uno", std::make_shared<Watched>([this] { list.CreaPropiedad(u"T", u"tres", 3); }));
  list.CreaPropiedad(u"T", u"dos", std::make_shared<Watched>([this] { list.Borra(); }));
  list.Item(u"uno", 1);
  EXPECT_EQ(list.NumPropiedades(), 3);
  EXPECT_EQ(list.NombrePropiedad(2), u"tres");
  list.Item(u"dos", 2);
  EXPECT_EQ(list.NumPropiedades(), 0);
}

TEST_F(QVRprpObjectsTest, ARefusedPropertyKeepsNoReference) {
  const ObjectRef object = std::make_shared<Object>();
  thread.boxes.answer(BoxAnswer::Ok);
  list.CreaPropiedad(u"O", u"Objeto", object);
  list.Item(u"Objeto", object);
  EXPECT_EQ(object.use_count(), 1);
}

TEST_F(QVRprpObjectsTest, GrowingKeepsObjectsAlive) {
  for (int i = 0; i < 1000; ++i) list.CreaPropiedad(u"T", decimal(i), watched());
  EXPECT_EQ(ended, 0);
  list.Borra();
  EXPECT_EQ(ended, 1000);
}

}  // namespace
}  // namespace qvr::tests
