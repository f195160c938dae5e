// Random calls on a query and on its reference model.
#include "query/query_steps.h"

#include "fuzz/fuzz_input.h"
#include "fuzz/fuzz_thread.h"
#include "query/csql20.h"
#include "query/usql20.h"

namespace qvr::tests {
namespace {

// One choice from each byte: of letters "a" is the first, of digits "0".
class BytesChoose final : public Choices {
 public:
  explicit BytesChoose(std::string_view bytes) : bytes_(bytes) {}
  bool more() const { return !bytes_.empty(); }

  std::uint32_t below(std::uint32_t count) override {
    if (bytes_.empty()) return 0;
    const auto byte = static_cast<unsigned char>(bytes_[0]);
    bytes_.remove_prefix(1);
    return static_cast<std::uint32_t>(byte >= 'a' ? byte - 'a' : byte >= '0' ? byte - '0' : byte) % count;
  }

 private:
  std::string_view bytes_;
};

template <class Query, class Model>
void compare(std::string_view bytes) {
  BytesChoose choices(bytes);
  ModelThread model_thread;
  Subject<Model> model(model_thread);
  Subject<Query> real;
  for (int steps = 0; choices.more() && steps < 40; ++steps) {
    const Step step(choices);
    const int expected = model.make(step);
    const Text state = model.state();
    const int given = real.make(step);
    const Text real_state = real.state();
    require(real_state == state, "the state is the model's", {state, real_state});
    require(given == expected, "so is the answer", {state});
    require(fuzz_thread().take_boxes() == model_thread.boxes, "so are the boxes", {state});
    model_thread.boxes.clear();
  }
}

}  // namespace

// A letter for one statement or a union, then the steps.
void fuzz(FuzzInput& input) {
  fuzz_thread().speak(0);
  if (input.choice("su") == 0) return compare<cSQL20, SelectModel>(input.rest());
  compare<uSQL20, UnionModel>(input.rest());
}

}  // namespace qvr::tests
