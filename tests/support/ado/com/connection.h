// ADODB.Connection.
#pragma once

#include <memory>

#include "support/ado/behaviour.h"
#include "support/ado/com/dispatch_object.h"

namespace qvr::tests::com {

class Connection : public DispatchObject {
 public:
  const std::shared_ptr<AdoSession>& session() const { return session_; }

 private:
  const Members& members() const override;
  bool implements(REFIID id) const override;
  void open(Call& call);
  void execute(Call& call);

  std::shared_ptr<AdoSession> session_ = std::make_shared<AdoSession>();
};

}  // namespace qvr::tests::com
