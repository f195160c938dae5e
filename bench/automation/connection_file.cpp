// Opening a connection file.
#include "automation/by_hand.h"
#include "automation/measures.h"

namespace qvr::bench {

void measure_connection_file(Times&) {}

}  // namespace qvr::bench
