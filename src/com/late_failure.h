// Conversion between HRESULTs and failures.
#pragma once

#include "base/failure.h"
#include "com/com.h"

namespace qvr::com {

// Err.Number of Visual Basic for this HRESULT: the low word of 0x800Annnn (FACILITY_CONTROL), else all of it.
std::int32_t failure_number_of(HRESULT result) noexcept;
// The inverse, for Visual Basic's error numbers.
HRESULT result_of(std::int32_t number) noexcept;

// Throws the HRESULT's failure, if it is one.
void require(HRESULT result);

// Sets the thread's error info (SetErrorInfo).
void set_error_info(const FailureDetail& failure) noexcept;

}  // namespace qvr::com
