// Random sequences of calls on queries, compared with a reference model after each step.
#include <random>

#include "query/query_fixture.h"
#include "query/query_steps.h"
#include "query/usql20.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

// The same steps from a seed with every standard library.
class Dice final : public Choices {
 public:
  explicit Dice(std::uint32_t seed) : engine_(seed) {}
  std::uint32_t below(std::uint32_t count) override { return static_cast<std::uint32_t>(engine_() % count); }

 private:
  std::mt19937 engine_;
};

class QueryModelTest : public QueryTest {
 protected:
  // The model goes first: it tells which boxes will have to be answered.
  template <class Query, class Model>
  void compare(std::uint32_t seed, int steps) {
    SCOPED_TRACE(seed);
    thread.load_language(u"0");
    Dice dice(seed);
    ModelThread model_thread;
    Subject<Model> model(model_thread);
    Subject<Query> real;
    for (int i = 0; i < steps; ++i) {
      const Step step(dice);
      const int expected = model.make(step);
      const Text state = model.state();
      int given = 0;
      EXPECT_EQ(showing(model_thread.boxes, [&] { return given = real.make(step), real.state(); }), state);
      EXPECT_EQ(given, expected);
      model_thread.boxes.clear();
      ASSERT_FALSE(HasFailure()) << "step " << i << " of kind " << step.kind;
    }
    created += real.query.Creado();
  }

  int created = 0;
};

TEST_F(QueryModelTest, ASelectIsAsItsModelHasIt) {
  expect_any_traces();
  for (std::uint32_t seed = 1; seed <= 40; ++seed) compare<cSQL20, SelectModel>(seed, 100);
  EXPECT_GT(created, 20) << "most of them have something to do it to";
}

TEST_F(QueryModelTest, AUnionIsAsItsModelHasIt) {
  expect_any_traces();
  for (std::uint32_t seed = 101; seed <= 140; ++seed) compare<uSQL20, UnionModel>(seed, 60);
  EXPECT_GT(created, 20);
}

}  // namespace
}  // namespace qvr::tests
