// The Properties collection of a connection.
#pragma once

#include <memory>

#include "support/ado/behaviour.h"
#include "support/ado/com/collection.h"

namespace qvr::tests::com {

Ref<Collection> make_properties(std::shared_ptr<AdoSession> session);

}  // namespace qvr::tests::com
