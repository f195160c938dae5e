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

}  // namespace

Text description_of(std::int32_t number) {
  for (const NumberText& row : kDescriptions) {
    if (row.number == number) return Text(row.text);
  }
  return u"Application-defined or object-defined error";
}

RuntimeFailure::RuntimeFailure(std::int32_t number, Text description, Text source)
    : detail_{number, description.empty() ? description_of(number) : std::move(description), std::move(source)} {}

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

}  // namespace qvr
