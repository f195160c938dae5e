// Writes a search as a text for the user, in the thread's language. Typing that text gives the same search.
#pragma once

#include "query/search/atoms.h"

namespace qvr::query {

Text search_criterion(TextView label, const Alternatives& search);

}  // namespace qvr::query
