// ADODB.Recordset with its fields: forward-only, read-only.
#pragma once

#include <memory>

#include "support/ado/behaviour.h"
#include "support/ado/com/collection.h"

namespace qvr::tests::com {

// The rows and the place among them, shared by the recordset and its fields.
struct Rows {
  odbc::ResultSet result;
  std::size_t current = 0;
  std::shared_ptr<AdoSession> session;  // null: not opened
  std::uint32_t opening = 0;            // of the session, when the rows were read

  bool open() const;  // closing the connection closes what was read through it
  void require_open() const;
  bool at_end() const { return current >= result.rows.size(); }
};

class Recordset : public DispatchObject {
 public:
  Recordset() = default;
  // Of an executed command; one that gives no rows leaves the recordset closed.
  Recordset(std::shared_ptr<AdoSession> session, odbc::ResultSet result);

 private:
  const Members& members() const override;
  void read(std::shared_ptr<AdoSession> session, odbc::ResultSet result);
  void open(Call& call);
  void move_next();

  std::shared_ptr<Rows> rows_ = std::make_shared<Rows>();
};

}  // namespace qvr::tests::com
