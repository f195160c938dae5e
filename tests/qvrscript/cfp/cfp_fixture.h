// The commands of connection files on a folder of the test's own.
#pragma once

#include <gtest/gtest.h>

#include "base/utf8.h"
#include "connection/played_surroundings.h"
#include "connection/qvrcfp.h"
#include "support/temporary_folder.h"
#include "support/traced.h"
#include "tool_in_process.h"

namespace qvr::tests {

class CfpCommands : public testing::Test {
 protected:
  static constexpr TextView kId = u"the identification";

  CfpCommands() { played.variables[u"ID"] = kId; }

  // `cfp COMMAND --id-env ID FOLDER shop` and more options.
  ToolAnswer cfp(TextView command, const std::vector<Text>& more = {}) const {
    std::vector<Text> words{u"cfp", Text(command), u"--id-env", u"ID", folder.text(), u"shop"};
    words.insert(words.end(), more.begin(), more.end());
    return run(words);
  }
  ToolAnswer run(const std::vector<Text>& words) const {
    return run_tool(words, {.surroundings = played.surroundings()});
  }

  static ConnectionParameters sample() {
    ConnectionParameters parameters;
    parameters.MotorBD = Engine::SqlServer;
    parameters.Provider = u"SQLOLEDB";
    parameters.DataSource = u"SRV01";
    parameters.InitialCatalogOTablespace = u"Gesti\u00f3n";
    parameters.UsuarioAdm = u"sa";
    parameters.ClaveAdm = u"admin-password";
    parameters.UsuarioCli = u"app";
    parameters.OtrosParametros = u"Mode=Read;Jet OLEDB:Database Password=file-password";
    return parameters;
  }
  void write(const ConnectionParameters& parameters = sample(), TextView id = kId, TextView name = u"shop") const {
    QVRcfp file;
    EXPECT_TRUE(file.Asignar(id, parameters));
    EXPECT_TRUE(file.Guardar(id, folder.text(), name));
  }

  // "shop.cfp" as the program shows its path.
  std::string path(std::string_view name = "shop.cfp") const {
    const Text text = folder.text();
    const std::string separator = text.find(u'\\') == Text::npos ? "/" : "\\";
    return to_utf8(text) + separator + std::string(name);
  }

  TemporaryFolder folder;
  PlayedSurroundings played;
};

}  // namespace qvr::tests
