// The ODBC headers of either platform, the functions and the casts that they need; included by the wrapper's sources
// only.
#pragma once

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#endif
#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <algorithm>
#include <limits>

#include "base/text.h"

namespace qvr::odbc {

// The functions of the driver manager that are used. A program that links none starts where there is no ODBC.
struct Api {
  decltype(&::SQLAllocHandle) SQLAllocHandle;
  decltype(&::SQLBindParameter) SQLBindParameter;
  decltype(&::SQLCancel) SQLCancel;
  decltype(&::SQLDescribeColW) SQLDescribeColW;
  decltype(&::SQLDisconnect) SQLDisconnect;
  decltype(&::SQLDriverConnectW) SQLDriverConnectW;
  decltype(&::SQLEndTran) SQLEndTran;
  decltype(&::SQLExecDirectW) SQLExecDirectW;
  decltype(&::SQLFetch) SQLFetch;
  decltype(&::SQLFreeHandle) SQLFreeHandle;
  decltype(&::SQLFreeStmt) SQLFreeStmt;
  decltype(&::SQLGetConnectAttrW) SQLGetConnectAttrW;
  decltype(&::SQLGetData) SQLGetData;
  decltype(&::SQLGetDiagRecW) SQLGetDiagRecW;
  decltype(&::SQLGetInfoW) SQLGetInfoW;
  decltype(&::SQLMoreResults) SQLMoreResults;
  decltype(&::SQLNumResultCols) SQLNumResultCols;
  decltype(&::SQLRowCount) SQLRowCount;
  decltype(&::SQLSetConnectAttrW) SQLSetConnectAttrW;
  decltype(&::SQLSetEnvAttr) SQLSetEnvAttr;
  decltype(&::SQLSetStmtAttrW) SQLSetStmtAttrW;
};

// Throws RuntimeFailure where the system has no driver manager.
const Api& api();

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t), "the wide functions take UTF-16");

// ODBC's input texts are not const in its declarations.
inline SQLWCHAR* wide(TextView text) { return reinterpret_cast<SQLWCHAR*>(const_cast<char16_t*>(text.data())); }

inline SQLWCHAR* wide(char16_t* buffer) { return reinterpret_cast<SQLWCHAR*>(buffer); }

// Attribute values are passed as pointers.
inline SQLPOINTER attribute(SQLULEN value) { return reinterpret_cast<SQLPOINTER>(value); }

inline SQLINTEGER units(TextView text) { return static_cast<SQLINTEGER>(text.size()); }

// For 16-bit lengths of ODBC.
inline SQLSMALLINT short_units(std::size_t size) {
  constexpr std::size_t most = static_cast<std::size_t>(std::numeric_limits<SQLSMALLINT>::max());
  return static_cast<SQLSMALLINT>(std::min(size, most));
}

}  // namespace qvr::odbc
