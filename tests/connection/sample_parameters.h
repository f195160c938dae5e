// Connection parameters that use every field, and what an object shows of them.
#pragma once

#include <gtest/gtest.h>

#include "connection/qvrcfp.h"

namespace qvr::tests {

inline ConnectionParameters sample_parameters() {
  ConnectionParameters parameters;
  parameters.MotorBD = Engine::SqlServer;
  parameters.Provider = u"SQLOLEDB";
  parameters.DataSource = u"SRV01\\A\u00f1o";
  parameters.InitialCatalogOTablespace = u"Gesti\u00f3n";
  parameters.UsuarioAdm = u"sa";
  parameters.ClaveAdm = u"S3cret, \"quoted\" ";
  parameters.UsuarioCli = u"app";
  parameters.ClaveCli = u"\u20ac\U0001f600";
  parameters.OtrosParametros = u"Mode=Read";
  return parameters;
}

inline void expect_parameters(const QVRcfp& cfp, const ConnectionParameters& expected, const Text& archivo) {
  EXPECT_EQ(cfp.MotorBD(), expected.MotorBD);
  EXPECT_EQ(cfp.Archivo(), archivo);
  EXPECT_EQ(cfp.Provider(), expected.Provider);
  EXPECT_EQ(cfp.DataSource(), expected.DataSource);
  EXPECT_EQ(cfp.InitialCatalogOTablespace(), expected.InitialCatalogOTablespace);
  EXPECT_EQ(cfp.UsuarioAdm(), expected.UsuarioAdm);
  EXPECT_EQ(cfp.ClaveAdm(u"id"), expected.ClaveAdm);
  EXPECT_EQ(cfp.UsuarioCli(), expected.UsuarioCli);
  EXPECT_EQ(cfp.ClaveCli(u"id"), expected.ClaveCli);
  EXPECT_EQ(cfp.OtrosParametros(), expected.OtrosParametros);
}

inline void expect_cleared(const QVRcfp& cfp) { expect_parameters(cfp, ConnectionParameters(), u""); }

}  // namespace qvr::tests
