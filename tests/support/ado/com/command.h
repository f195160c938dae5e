// ADODB.Command with its parameters.
#pragma once

#include <memory>
#include <vector>

#include "support/ado/behaviour.h"
#include "support/ado/com/collection.h"
#include "support/ado/com/connection.h"
#include "support/ado/com/parameter.h"

namespace qvr::tests::com {

// Shared by the command and the collection it gives out, which may outlive it.
struct CommandParts {
  AdoCommandState state;
  std::vector<Ref<Parameter>> parameters;
};

Ref<Collection> make_parameters(std::shared_ptr<CommandParts> parts);

class Command : public DispatchObject {
 private:
  const Members& members() const override;
  bool implements(REFIID id) const override;
  void set_active_connection(const VARIANT& argument);
  void execute(Call& call);
  void call_procedure(Call& call);
  std::vector<Value> values(const Call& call) const;

  std::shared_ptr<CommandParts> parts_ = std::make_shared<CommandParts>();
  Ref<Connection> connection_;
  Text name_;
  bool prepared_ = false;
};

}  // namespace qvr::tests::com
