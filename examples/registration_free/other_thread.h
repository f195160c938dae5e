// An object of this thread's apartment, called from another.
#pragma once

#include <string>

struct _cSQL20;

namespace registration_free {

std::wstring name_from_another_thread(_cSQL20* query);

}  // namespace registration_free
