// Installing the database of the example.
#include "automation/by_hand.h"
#include "automation/measures.h"

namespace qvr::bench {

void measure_installation(Times&) {}

}  // namespace qvr::bench
