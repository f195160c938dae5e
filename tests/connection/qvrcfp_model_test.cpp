// Random sequences of calls compared with a reference model.
#include <gtest/gtest.h>

#include <map>
#include <random>

#include "connection/sample_parameters.h"
#include "support/test_thread.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

struct Saved {
  Text id;
  ConnectionParameters parameters;
};

// What the object should hold, and the folder's files as who wrote them.
struct Model {
  bool created = false;
  ConnectionParameters fields;
  std::map<Text, Saved> files;

  bool assign(const ConnectionParameters& parameters) {
    const Text name = fields.Archivo;
    fields = parameters;
    fields.Archivo = name;
    return created = true;
  }

  bool save(const Text& id, const Text& name) {
    if (!created) return false;
    if (fields.Archivo.empty()) fields.Archivo = name;
    files[name] = {id, fields};
    return true;
  }

  bool load(const Text& id, const Text& name) {
    const auto found = files.find(name);
    created = found != files.end() && found->second.id == id;
    fields = created ? found->second.parameters : ConnectionParameters();
    if (created) fields.Archivo = name;
    return created;
  }
};

class QVRcfpModelTest : public ::testing::Test {
 protected:
  QVRcfpModelTest() { thread.files.keep_in_memory(); }

  ConnectionParameters random_parameters() {
    ConnectionParameters parameters = sample_parameters();
    parameters.MotorBD = static_cast<Engine>(random());
    parameters.DataSource = decimal(pick(1000));
    parameters.ClaveCli = Text(static_cast<std::size_t>(pick(40)), u'\u00f1');
    return parameters;
  }

  std::string damaged(std::string bytes) {
    for (int changes = 1 + pick(3); changes > 0; --changes) {
      const auto at = static_cast<std::size_t>(pick(static_cast<int>(bytes.size())));
      switch (pick(3)) {
        case 0: bytes[at] = static_cast<char>(random()); break;
        case 1: bytes.erase(at, static_cast<std::size_t>(1 + pick(20))); break;
        default: bytes.insert(at, 1, "\r\nabx"[pick(5)]); break;
      }
    }
    return bytes;
  }

  int pick(int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); }

  void step() {
    constexpr const char16_t* kIds[] = {u"", u"one", u"two"};
    constexpr const char16_t* kNames[] = {u"a", u"b", u"c"};
    const Text id = kIds[pick(3)], name = kNames[pick(3)];
    switch (pick(4)) {
      case 0: {
        const ConnectionParameters parameters = random_parameters();
        EXPECT_EQ(cfp.Asignar(id, parameters), model.assign(parameters));
        break;
      }
      case 1:
      case 2: EXPECT_EQ(cfp.Guardar(id, u"F", name), model.save(id, name)); break;
      default: EXPECT_EQ(cfp.Crear(id, u"F", name), model.load(id, name)); break;
    }
    expect_parameters(cfp, model.fields, model.fields.Archivo);
    EXPECT_EQ(cfp.CadenaADO(id, true).empty(), !model.created);
  }

  TestThread thread;
  QVRcfp cfp;
  Model model;
  std::mt19937 random{2112};
};

TEST_F(QVRcfpModelTest, EveryStepIsAsTheModelHasIt) {
  expect_any_traces();
  int created = 0;
  for (int round = 0; round < 5000; ++round) {
    step();
    created += model.created ? 1 : 0;
    ASSERT_FALSE(HasFailure()) << "step " << round;
  }
  EXPECT_GT(created, 1000);
  EXPECT_LT(created, 4000);
}

// A file changed at random places is refused; what little is read all the same (another case in the check line, bytes
// behind the tenth line) gives the parameters that were saved.
TEST_F(QVRcfpModelTest, RandomDamageIsNeverReadAsOtherParameters) {
  expect_any_traces();
  ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  ASSERT_TRUE(cfp.Guardar(u"id", u"F", u"a"));
  const std::string whole = thread.files.memory[u"F\\a.cfp"];
  int refused = 0;
  for (int round = 0; round < 5000; ++round) {
    thread.files.memory[u"F\\a.cfp"] = damaged(whole);
    if (cfp.Crear(u"id", u"F", u"a")) {
      expect_parameters(cfp, sample_parameters(), u"a");
    } else {
      expect_cleared(cfp);
      ++refused;
    }
    ASSERT_FALSE(HasFailure()) << "round " << round;
  }
  EXPECT_GT(refused, 4900);
}

}  // namespace
}  // namespace qvr::tests
