// Failures of ADO: errors, lost connections, invalid answers.
#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <new>
#include <stdexcept>
#include <vector>

#include "support/recording_ado.h"

namespace qvr::tests {

struct NamedFailure {
  const char* name;
  std::function<void()> thrower;
};

inline const std::vector<NamedFailure>& ado_failures() {
  static const std::vector<NamedFailure> kFailures = {
      {"refused",
       [] {
         throw RuntimeFailure(FailureDetail{-2147217900, u"refused", u"Provider"});
       }},
      {"without a text", [] { throw RuntimeFailure(FailureDetail{}); }},
      {"with a long text",
       [] {
         throw RuntimeFailure(FailureDetail{INT32_MIN, Text(5000, u'\r'), Text(600, u'\0')});
       }},
      {"meant for a caller", [] { throw CallerFailure(9); }},
      {"out of memory", [] { throw std::bad_alloc(); }},
      {"foreign", [] { throw std::out_of_range("foreign"); }},
      {"no exception class", [] { throw 1; }},
  };
  return kFailures;
}

struct NamedErrors {
  const char* name;
  std::function<std::vector<services::AdoError>()> told;
};

inline const std::vector<NamedErrors>& ado_errors() {
  static const std::vector<NamedErrors> kErrors = {
      {"none", [] { return std::vector<services::AdoError>(); }},
      {"without texts", [] { return std::vector<services::AdoError>(3); }},
      {"very many",
       [] {
         return std::vector<services::AdoError>(1000, {INT32_MAX, u"again", u"P", u"?", INT32_MIN});
       }},
      {"no collection",
       []() -> std::vector<services::AdoError> {
         throw RuntimeFailure(FailureDetail{438, u"no Errors", u""});
       }},
      {"too many for the memory", []() -> std::vector<services::AdoError> { throw std::bad_alloc(); }},
  };
  return kErrors;
}

// One of them for each failure of each call, so that every pair of the two comes about.
inline const NamedErrors& ado_errors_at(int nth, const NamedFailure& failure) {
  const auto position = nth + (&failure - ado_failures().data());
  return ado_errors()[static_cast<std::size_t>(position) % ado_errors().size()];
}

}  // namespace qvr::tests
