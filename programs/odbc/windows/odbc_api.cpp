// The driver manager is a part of Windows and linked.
#include "odbc/odbc_api.h"

namespace qvr::odbc {

const Api& api() {
  static const Api linked{
      .SQLAllocHandle = ::SQLAllocHandle,
      .SQLBindParameter = ::SQLBindParameter,
      .SQLCancel = ::SQLCancel,
      .SQLDescribeColW = ::SQLDescribeColW,
      .SQLDisconnect = ::SQLDisconnect,
      .SQLDriverConnectW = ::SQLDriverConnectW,
      .SQLEndTran = ::SQLEndTran,
      .SQLExecDirectW = ::SQLExecDirectW,
      .SQLFetch = ::SQLFetch,
      .SQLFreeHandle = ::SQLFreeHandle,
      .SQLFreeStmt = ::SQLFreeStmt,
      .SQLGetConnectAttrW = ::SQLGetConnectAttrW,
      .SQLGetData = ::SQLGetData,
      .SQLGetDiagRecW = ::SQLGetDiagRecW,
      .SQLGetInfoW = ::SQLGetInfoW,
      .SQLMoreResults = ::SQLMoreResults,
      .SQLNumResultCols = ::SQLNumResultCols,
      .SQLRowCount = ::SQLRowCount,
      .SQLSetConnectAttrW = ::SQLSetConnectAttrW,
      .SQLSetEnvAttr = ::SQLSetEnvAttr,
      .SQLSetStmtAttrW = ::SQLSetStmtAttrW,
  };
  return linked;
}

}  // namespace qvr::odbc
