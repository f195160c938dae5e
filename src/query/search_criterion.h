// A search in words for the user, in the thread's language, such that the words can be typed again.
#pragma once

#include "query/search_atoms.h"

namespace qvr::query {

Text search_criterion(TextView label, const Alternatives& search);

}  // namespace qvr::query
