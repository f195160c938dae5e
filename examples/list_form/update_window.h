// The update of the database with a bar that moves with each command.
#pragma once

#include "database.h"

namespace list_form {

// Shows nothing for a database that is up to date. Throws Problem where it cannot be brought up to date.
void show_update(const Database& database);

}  // namespace list_form
