// One call of a stored procedure with eight parameters.
#include "automation/by_hand.h"
#include "automation/measures.h"

namespace qvr::bench {

void measure_procedure_call(Times&) {}

}  // namespace qvr::bench
