// Bracketed words that stay in the text.
#include <gtest/gtest.h>

#include "tool_in_process.h"

namespace qvr::tests {
namespace {

TEST(PlaceholderRules, KnowWhatIsReplaced) {
  expect_rules({
      {"all", "[NombreBD] [UsuarioQVRAdm] [ClaveUsuarioQVRAdm] [UsuarioQVRCli] [ClaveUsuarioQVRCli]|GO|", {}},
      {"any case", "use [nombrebd]|GO|", {}},
      {"names", "select [Nombre], [order] from [dbo].[Clientes de hoy]|GO|", {}},
      {"names that are a little alike", "select [NombreES], [NombreFR], [Usuario], [Clave]|GO|", {}},
  });
  expect_rules({{"the one of Oracle", "x [NombreBD] [LogFile]|GO|", {}}}, Engine::Oracle);
}

TEST(PlaceholderRules, TellOfWordsThatStay) {
  expect_rules({
      {"letters swapped", "x|go to [NombreDB]|GO|", {"2 placeholder-misspelt"}},
      {"a blank", "use [Nombre BD]|GO|", {"1 placeholder-misspelt"}},
      {"one letter too many", "[UsuariosQVRCli]|GO|", {"1 placeholder-misspelt"}},
      {"in a string", "'[ClaveUsuarioQVRAd]'|GO|", {"1 placeholder-misspelt"}},
      {"a word of the same family", "[ClaveQVRPrincipal]|GO|", {"1 placeholder-unknown"}},
      {"of Oracle only", "[LogFile]|GO|", {"1 placeholder-of-oracle"}},
      {"in a comment", "select 1 -- [NombreDB]|GO|", {}},
  });
  expect_rules({{"any name in brackets", "select [Nombre] from dual|GO|", {"1 placeholder-unknown"}}}, Engine::Oracle);
}

}  // namespace
}  // namespace qvr::tests
