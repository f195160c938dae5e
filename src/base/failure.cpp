#include "base/failure.h"

#include <new>

namespace qvr {
namespace {

struct NumberText {
  std::int32_t number;
  TextView text;
};

constexpr NumberText kDescriptions[] = {
    {failure_number::kInvalidArgument, u"Invalid procedure call or argument"},
    {failure_number::kOverflow, u"Overflow"},
    {failure_number::kOutOfMemory, u"Out of memory"},
    {failure_number::kSubscript, u"Subscript out of range"},
    {failure_number::kTypeMismatch, u"Type mismatch"},
    {failure_number::kFile, u"Path/File access error"},
    {failure_number::kObjectNotSet, u"Object variable or With block variable not set"},
    {failure_number::kInvalidNull, u"Invalid use of Null"},
    {failure_number::kCannotCreateObject, u"ActiveX component can't create object"},
};

TextView known_description(std::int32_t number) {
  for (const NumberText& row : kDescriptions) {
    if (row.number == number) return row.text;
  }
  return u"Application-defined or object-defined error";
}

}  // namespace

Text description_of(std::int32_t number) { return Text(known_description(number)); }

RuntimeFailure::RuntimeFailure(std::int32_t number, Text description, Text source, SourcePlace thrown)
    : detail_{number, description.empty() ? description_of(number) : std::move(description), std::move(source),
              thrown} {}

FailureDetail current_failure() {
  try {
    throw;
  } catch (const RuntimeFailure& failure) {
    return failure.detail();
  } catch (const std::bad_alloc&) {
    return RuntimeFailure(failure_number::kOutOfMemory).detail();
  } catch (...) {
    return RuntimeFailure(failure_number::kInvalidArgument).detail();
  }
}

// Without allocations, which could fail again.
void trace_current_failure(TextView owner, SourcePlace place) noexcept {
  const auto tell = [&](std::int32_t number, TextView description, SourcePlace thrown) {
    trace({owner, place.function, number, description, thrown});
  };
  try {
    throw;
  } catch (const RuntimeFailure& failure) {
    const FailureDetail& detail = failure.detail();
    const bool own = detail.source == kOwnSource;
    tell(detail.number, own ? TextView(detail.description) : u"told by another component",
         detail.thrown.file != nullptr ? detail.thrown : place);
  } catch (const std::bad_alloc&) {
    tell(failure_number::kOutOfMemory, known_description(failure_number::kOutOfMemory), place);
  } catch (...) {
    tell(failure_number::kInvalidArgument, u"Unforeseen exception", place);
  }
}

}  // namespace qvr
