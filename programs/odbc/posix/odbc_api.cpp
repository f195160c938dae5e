#include "odbc/odbc_api.h"

#include <dlfcn.h>

#include <optional>

#include "base/utf8.h"
#include "odbc/ado_failure.h"
#include "odbc/posix/driver_manager.h"

namespace qvr::odbc {
namespace {

// Takes functions from an open library, all or none.
class Library {
 public:
  explicit Library(void* handle) : handle_(handle) {}

  template <class Function>
  void take(const char* name, Function*& function) {
    function = reinterpret_cast<Function*>(dlsym(handle_, name));
    complete_ = complete_ && function != nullptr;
  }
  bool complete() const { return complete_; }

 private:
  void* handle_;
  bool complete_ = true;
};

std::optional<Api> functions_of(void* handle) {
  Library library(handle);
  Api api{};
  library.take("SQLAllocHandle", api.SQLAllocHandle);
  library.take("SQLBindParameter", api.SQLBindParameter);
  library.take("SQLCancel", api.SQLCancel);
  library.take("SQLDescribeColW", api.SQLDescribeColW);
  library.take("SQLDisconnect", api.SQLDisconnect);
  library.take("SQLDriverConnectW", api.SQLDriverConnectW);
  library.take("SQLEndTran", api.SQLEndTran);
  library.take("SQLExecDirectW", api.SQLExecDirectW);
  library.take("SQLFetch", api.SQLFetch);
  library.take("SQLFreeHandle", api.SQLFreeHandle);
  library.take("SQLFreeStmt", api.SQLFreeStmt);
  library.take("SQLGetConnectAttrW", api.SQLGetConnectAttrW);
  library.take("SQLGetData", api.SQLGetData);
  library.take("SQLGetDiagRecW", api.SQLGetDiagRecW);
  library.take("SQLGetInfoW", api.SQLGetInfoW);
  library.take("SQLMoreResults", api.SQLMoreResults);
  library.take("SQLNumResultCols", api.SQLNumResultCols);
  library.take("SQLRowCount", api.SQLRowCount);
  library.take("SQLSetConnectAttrW", api.SQLSetConnectAttrW);
  library.take("SQLSetEnvAttr", api.SQLSetEnvAttr);
  library.take("SQLSetStmtAttrW", api.SQLSetStmtAttrW);
  return library.complete() ? std::optional(api) : std::nullopt;
}

}  // namespace

Api load_driver_manager(std::span<const char* const> libraries) {
  for (const char* const name : libraries) {
    // Local: a driver's calls of its own functions must not end in the manager's of the same name.
    void* const handle = dlopen(name, RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) continue;
    // Never closed: drivers and their threads may outlive the last connection.
    if (const auto found = functions_of(handle)) return *found;
  }
  fail_provider(hresult::kFail, join({u"ODBC's driver manager (", from_utf8(libraries.front()).value_or(Text()),
                                      u") cannot be loaded: install unixODBC"}));
}

const Api& api() {
  static constexpr const char* kLibraries[] = {"libodbc.so.2", "libodbc.so.1", "libodbc.so"};
  static const Api loaded = load_driver_manager(kLibraries);
  return loaded;
}

}  // namespace qvr::odbc
