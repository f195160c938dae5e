// An ODBC driver that plays what no database at hand does. README.md tells what it is asked for.
#include <sql.h>
#include <sqlext.h>
#include <unistd.h>

#include <algorithm>
#include <condition_variable>
#include <cstring>
#include <fstream>
#include <map>
#include <mutex>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

struct Record {
  std::string state;
  SQLINTEGER native = 0;
  std::string message;
};

// What every handle is: the records of its last call.
struct Object {
  virtual ~Object() = default;
  std::vector<Record> records;
};

struct Environment : Object {};

class Connection : public Object {
 public:
  void read(std::string_view text) {
    whole_ = text;
    std::istringstream parts{whole_};
    for (std::string part; std::getline(parts, part, ';');) {
      const std::size_t mark = part.find('=');
      if (mark != std::string::npos) words_[part.substr(0, mark)] = part.substr(mark + 1);
    }
  }

  std::string word(const char* key, const char* otherwise = "") const {
    const auto found = words_.find(key);
    return found == words_.end() ? otherwise : found->second;
  }

  void log(std::string_view line) const {
    const std::string file = word("log");
    if (!file.empty()) std::ofstream(file, std::ios::app) << line << '\n';
  }

  // Does what this connection does in place of the step, and throws where it fails.
  void step(const std::string& name) const {
    if (word("hang") == name) {
      log(name);  // so that a test knows when
      for (;;) ::pause();
    }
    if (word("fail") == name) {
      throw std::vector<Record>{{"08S01", 4711, "The step fails: " + name}, {"01000", 4712, "It was asked to"}};
    }
    log(name);
  }

  std::vector<Record> told(std::vector<Record> plain) const {
    if (word("echo") == "1") {
      for (Record& each : plain) each.message += " (" + whole_ + ")";
    }
    return plain;
  }

 private:
  std::string whole_;
  std::map<std::string, std::string> words_;
};

class Statement : public Object {
 public:
  explicit Statement(Connection& parent) : connection(parent) {}

  void execute(const std::string& text) {
    connection.log("execute " + text);
    row_ = text.starts_with("select");
    if (text.starts_with("fail ")) throw records_in(text);
    if (text.starts_with("hang")) wait();
  }

  void cancel() {
    connection.log("cancel");
    const std::lock_guard lock(mutex_);
    cancelled_ = waiting_;
    changed_.notify_all();
  }

  bool has_columns() const { return columns_; }
  void describe() { columns_ = row_; }
  bool fetch() { return std::exchange(row_, false); }

  Connection& connection;

 private:
  // "fail STATE NATIVE MESSAGE", and a line for each further record.
  static std::vector<Record> records_in(const std::string& text) {
    std::vector<Record> records;
    std::istringstream lines{text.substr(5)};
    for (std::string line; std::getline(lines, line);) {
      Record& record = records.emplace_back();
      std::istringstream words{line};
      words >> record.state >> record.native >> std::ws;
      std::getline(words, record.message);
      if (!record.message.empty() && record.message.back() == '\r') record.message.pop_back();
    }
    return records;
  }

  void wait() {
    std::unique_lock lock(mutex_);
    waiting_ = true;
    changed_.wait(lock, [this] { return cancelled_; });
    waiting_ = cancelled_ = false;
    throw std::vector<Record>{{"HY008", 0, "Operation canceled"}};
  }

  std::mutex mutex_;
  std::condition_variable changed_;
  bool waiting_ = false, cancelled_ = false;
  bool row_ = false, columns_ = false;
};

Object& object_of(SQLHANDLE handle) { return *static_cast<Object*>(handle); }
Connection& connection_of(SQLHANDLE handle) { return dynamic_cast<Connection&>(object_of(handle)); }
Statement& statement_of(SQLHANDLE handle) { return dynamic_cast<Statement&>(object_of(handle)); }

// The result of a call; what the body throws becomes the handle's records.
template <class Body>
SQLRETURN call(SQLHANDLE handle, const Connection& connection, Body&& body) {
  Object& object = object_of(handle);
  object.records.clear();
  try {
    body();
    return SQL_SUCCESS;
  } catch (const std::vector<Record>& records) {
    object.records = connection.told(records);
    return SQL_ERROR;
  }
}

std::string text_of(const SQLCHAR* text, SQLINTEGER length) {
  const char* const bytes = reinterpret_cast<const char*>(text);
  return length == SQL_NTS ? std::string(bytes) : std::string(bytes, static_cast<std::size_t>(length));
}

// Copies as ODBC does: with a NUL and cut off where the buffer ends.
template <class Length>
SQLRETURN put_text(std::string_view text, void* buffer, SQLLEN size, Length* length) {
  if (length != nullptr) *length = static_cast<Length>(text.size());
  if (buffer == nullptr || size <= 0) return SQL_SUCCESS;
  const std::size_t count = std::min(text.size(), static_cast<std::size_t>(size - 1));
  std::memcpy(buffer, text.data(), count);
  static_cast<char*>(buffer)[count] = '\0';
  return count < text.size() ? SQL_SUCCESS_WITH_INFO : SQL_SUCCESS;
}

SQLUSMALLINT transactions(const Connection& connection) {
  const std::string ddl = connection.word("ddl");
  if (ddl == "commits") return SQL_TC_DDL_COMMIT;
  if (ddl == "ignored") return SQL_TC_DDL_IGNORE;
  return ddl == "refused" ? SQL_TC_DML : SQL_TC_ALL;
}

}  // namespace

SQLRETURN SQL_API SQLAllocHandle(SQLSMALLINT type, SQLHANDLE parent, SQLHANDLE* made) {
  switch (type) {
    case SQL_HANDLE_ENV: *made = static_cast<Object*>(new Environment); return SQL_SUCCESS;
    case SQL_HANDLE_DBC: *made = static_cast<Object*>(new Connection); return SQL_SUCCESS;
    case SQL_HANDLE_STMT: *made = static_cast<Object*>(new Statement(connection_of(parent))); return SQL_SUCCESS;
    default: return SQL_ERROR;
  }
}

SQLRETURN SQL_API SQLFreeHandle(SQLSMALLINT, SQLHANDLE handle) {
  delete &object_of(handle);
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLSetEnvAttr(SQLHENV, SQLINTEGER, SQLPOINTER, SQLINTEGER) { return SQL_SUCCESS; }

SQLRETURN SQL_API SQLSetConnectAttr(SQLHDBC handle, SQLINTEGER attribute, SQLPOINTER value, SQLINTEGER) {
  const Connection& connection = connection_of(handle);
  const bool begins = attribute == SQL_ATTR_AUTOCOMMIT && value == reinterpret_cast<SQLPOINTER>(SQL_AUTOCOMMIT_OFF);
  return call(handle, connection, [&] {
    if (begins) connection.step("begin");
  });
}

SQLRETURN SQL_API SQLGetConnectAttr(SQLHDBC handle, SQLINTEGER what, SQLPOINTER value, SQLINTEGER, SQLINTEGER*) {
  const std::string lost = connection_of(handle).word("lost");
  if (what != SQL_ATTR_CONNECTION_DEAD || lost.empty()) return SQL_ERROR;
  *static_cast<SQLUINTEGER*>(value) = lost == "1" ? SQL_CD_TRUE : SQL_CD_FALSE;
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLSetStmtAttr(SQLHSTMT, SQLINTEGER, SQLPOINTER, SQLINTEGER) { return SQL_SUCCESS; }

SQLRETURN SQL_API SQLGetStmtAttr(SQLHSTMT, SQLINTEGER, SQLPOINTER value, SQLINTEGER, SQLINTEGER*) {
  *static_cast<SQLPOINTER*>(value) = nullptr;  // the manager asks for descriptors only
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLDriverConnect(SQLHDBC handle, SQLHWND, SQLCHAR* text, SQLSMALLINT length, SQLCHAR* completed,
                                   SQLSMALLINT size, SQLSMALLINT* completed_length, SQLUSMALLINT) {
  Connection& connection = connection_of(handle);
  connection.read(text_of(text, length));
  return call(handle, connection, [&] {
    connection.step("connect");
    put_text(text_of(text, length), completed, size, completed_length);
  });
}

SQLRETURN SQL_API SQLDisconnect(SQLHDBC handle) {
  const Connection& connection = connection_of(handle);
  return call(handle, connection, [&] { connection.step("disconnect"); });
}

SQLRETURN SQL_API SQLEndTran(SQLSMALLINT, SQLHANDLE handle, SQLSMALLINT how) {
  const Connection& connection = connection_of(handle);
  return call(handle, connection, [&] { connection.step(how == SQL_COMMIT ? "commit" : "rollback"); });
}

SQLRETURN SQL_API SQLGetInfo(SQLHDBC handle, SQLUSMALLINT what, SQLPOINTER buffer, SQLSMALLINT size,
                             SQLSMALLINT* length) {
  const Connection& connection = connection_of(handle);
  switch (what) {
    case SQL_DBMS_NAME: return put_text(connection.word("name", "Played"), buffer, size, length);
    case SQL_DBMS_VER: return put_text(connection.word("version", "01.00.0000"), buffer, size, length);
    case SQL_DRIVER_ODBC_VER: return put_text("03.00", buffer, size, length);
    case SQL_TXN_CAPABLE: *static_cast<SQLUSMALLINT*>(buffer) = transactions(connection); return SQL_SUCCESS;
    default: return SQL_ERROR;
  }
}

SQLRETURN SQL_API SQLExecDirect(SQLHSTMT handle, SQLCHAR* text, SQLINTEGER length) {
  Statement& statement = statement_of(handle);
  return call(handle, statement.connection, [&] {
    statement.execute(text_of(text, length));
    statement.describe();
  });
}

SQLRETURN SQL_API SQLCancel(SQLHSTMT handle) {
  statement_of(handle).cancel();
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLNumResultCols(SQLHSTMT handle, SQLSMALLINT* count) {
  *count = statement_of(handle).has_columns() ? 1 : 0;
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLRowCount(SQLHSTMT, SQLLEN* count) {
  *count = 0;
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLDescribeCol(SQLHSTMT, SQLUSMALLINT, SQLCHAR* name, SQLSMALLINT size, SQLSMALLINT* length,
                                 SQLSMALLINT* type, SQLULEN* columns, SQLSMALLINT* digits, SQLSMALLINT* nullable) {
  *type = SQL_VARCHAR;
  *columns = 200;
  *digits = 0;
  *nullable = SQL_NULLABLE;
  return put_text("value", name, size, length);
}

SQLRETURN SQL_API SQLFetch(SQLHSTMT handle) { return statement_of(handle).fetch() ? SQL_SUCCESS : SQL_NO_DATA; }

SQLRETURN SQL_API SQLGetData(SQLHSTMT handle, SQLUSMALLINT, SQLSMALLINT type, SQLPOINTER buffer, SQLLEN size,
                             SQLLEN* length) {
  const std::string value = statement_of(handle).connection.word("value");
  if (type != SQL_C_WCHAR) return put_text(value, buffer, size, length);
  const std::u16string wide(value.begin(), value.end());
  *length = static_cast<SQLLEN>(wide.size() * sizeof(char16_t));
  if (size < *length + 2) return SQL_ERROR;
  std::memcpy(buffer, wide.c_str(), (wide.size() + 1) * sizeof(char16_t));
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLMoreResults(SQLHSTMT) { return SQL_NO_DATA; }
SQLRETURN SQL_API SQLFreeStmt(SQLHSTMT, SQLUSMALLINT) { return SQL_SUCCESS; }

SQLRETURN SQL_API SQLGetDiagRec(SQLSMALLINT, SQLHANDLE handle, SQLSMALLINT number, SQLCHAR* state, SQLINTEGER* native,
                                SQLCHAR* message, SQLSMALLINT size, SQLSMALLINT* length) {
  const std::vector<Record>& records = object_of(handle).records;
  if (number < 1 || static_cast<std::size_t>(number) > records.size()) return SQL_NO_DATA;
  const Record& record = records[static_cast<std::size_t>(number) - 1];
  put_text(record.state, state, 6, static_cast<SQLSMALLINT*>(nullptr));
  *native = record.native;
  return put_text(record.message, message, size, length);
}

// The manager reads records only of a driver that has this too; what it asks for here it can do without.
SQLRETURN SQL_API SQLGetDiagField(SQLSMALLINT, SQLHANDLE, SQLSMALLINT, SQLSMALLINT, SQLPOINTER, SQLSMALLINT,
                                  SQLSMALLINT*) {
  return SQL_ERROR;
}
