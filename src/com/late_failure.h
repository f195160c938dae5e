// HRESULTs as failures and failures as HRESULTs.
#pragma once

#include "base/failure.h"
#include "com/com.h"

namespace qvr::com {

// The number by which a Visual Basic host knows this HRESULT: the low half of a control's own, else all of it.
std::int32_t failure_number_of(HRESULT result) noexcept;
// The inverse for the small numbers of the Visual Basic family.
HRESULT result_of(std::int32_t number) noexcept;

// Throws the failure that a failed call stands for; a call that worked passes.
void require(HRESULT result);

// Makes the failure this thread's current error object.
void set_error_info(const FailureDetail& failure) noexcept;

}  // namespace qvr::com
