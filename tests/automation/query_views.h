// A query as each kind of host sees it: through the slots of its default interface or of the contract, or by the names
// of either. Every view has an object of its own; whatever is done to one is done to all, and all must answer alike.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "QVRlib21.h"
#include "automation/host.h"

namespace qvr::tests {

enum class Access { Method, Read, Write };

struct SlotAnswer {
  HRESULT status = E_NOTIMPL;
  Var value;
};

class QueryView {
 public:
  virtual ~QueryView() = default;
  // `member` without prefix.
  virtual SlotAnswer call(const std::wstring& member, Access access, std::vector<Var> arguments) = 0;
};

// "cSQL20" or "uSQL20".
class QueryViews {
 public:
  explicit QueryViews(const std::wstring& class_name);

  // What all views answer, as "BSTR text", "I2 3", "BOOL true", "Empty" where there is no result; a description of the
  // difference when they do not answer alike, and of the failure when one is not S_OK.
  std::string call(const std::wstring& member, std::vector<Var> arguments = {}) {
    return agreed(member, Access::Method, std::move(arguments));
  }
  std::string read(const std::wstring& member) { return agreed(member, Access::Read, {}); }
  std::string write(const std::wstring& member, Var value) { return agreed(member, Access::Write, {std::move(value)}); }
  std::string text(const std::wstring& member) { return read(member); }

 private:
  std::string agreed(const std::wstring& member, Access access, std::vector<Var> arguments);

  std::vector<std::pair<std::string, std::unique_ptr<QueryView>>> views_;
};

// A flat list of texts as a script passes one.
Var list_of(std::vector<Var> items, LONG lower = 0);

}  // namespace qvr::tests
