#include "connection/connection_string.h"

namespace qvr {

Text connection_string(const ConnectionParameters& parameters, Account account) {
  const bool has_user = !account.user.empty();
  const bool has_password = has_user && !account.password.empty();
  const bool has_catalogue = parameters.MotorBD == Engine::SqlServer && !parameters.InitialCatalogOTablespace.empty();
  const bool open_end = !parameters.OtrosParametros.empty() && !parameters.OtrosParametros.ends_with(u';');
  const auto when = [](bool wanted, TextView text) { return wanted ? text : TextView(); };
  return join({
      u"Provider=",
      parameters.Provider,
      u";Data Source=\"",
      parameters.DataSource,
      u"\";Persist Security Info=False;",
      when(has_user, u"User ID=\""),
      when(has_user, account.user),
      when(has_user, u"\";"),
      when(has_password, u"Password=\""),
      when(has_password, account.password),
      when(has_password, u"\";"),
      when(has_catalogue, u"Initial Catalog="),
      when(has_catalogue, parameters.InitialCatalogOTablespace),
      when(has_catalogue, u";"),
      parameters.OtrosParametros,
      when(open_end, u";"),
  });
}

}  // namespace qvr
