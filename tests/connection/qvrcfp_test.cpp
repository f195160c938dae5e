// The object's states, without the file's details.
#include "connection/qvrcfp.h"

#include <gtest/gtest.h>

#include "connection/sample_parameters.h"
#include "session/thread_state.h"
#include "support/test_thread.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

// What a member of an object without parameters traces.
Text without_parameters(TextView member) {
  return join({u"QVRcfp.", member, u": 91 No connection parameters were read or assigned"});
}

class QVRcfpTest : public ::testing::Test {
 protected:
  QVRcfpTest() { thread.files.keep_in_memory(); }

  TestThread thread;
  QVRcfp cfp;
};

TEST_F(QVRcfpTest, BeginsCleared) {
  expect_cleared(cfp);
  EXPECT_EQ(cfp.CadenaADO(u"id", true), u"");
  EXPECT_EQ(cfp.CadenaADO(u"id", false), u"");
  EXPECT_EQ(cfp.CadenaADOUsuario(u"user", u"password"), u"");
  EXPECT_TRUE(thread_state().idioma.Creado());
  const Text administrator = without_parameters(u"CadenaADO"), user = without_parameters(u"CadenaADOUsuario");
  EXPECT_EQ(traced(), (Traces{administrator, administrator, user}));
}

TEST_F(QVRcfpTest, GuardarOfAFreshObjectWritesNothing) {
  EXPECT_FALSE(cfp.Guardar(u"id", u"F", u"name"));
  EXPECT_EQ(thread.files.created, 0);
  expect_cleared(cfp);
  EXPECT_EQ(traced(), Traces{without_parameters(u"Guardar")});
}

TEST_F(QVRcfpTest, AsignarTakesTheNineValuesOver) {
  EXPECT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  expect_parameters(cfp, sample_parameters(), u"");
}

TEST_F(QVRcfpTest, AsignarDoesNotLookAtTheEngine) {
  ConnectionParameters parameters;
  for (Engine motor : {Engine::None, Engine{-1}, Engine{99}, Engine{INT32_MAX}, Engine{INT32_MIN}}) {
    parameters.MotorBD = motor;
    EXPECT_TRUE(cfp.Asignar(u"", parameters));
    EXPECT_EQ(cfp.MotorBD(), motor);
  }
}

TEST_F(QVRcfpTest, AsignarLeavesArchivoAlone) {
  ConnectionParameters parameters = sample_parameters();
  parameters.Archivo = u"given";
  ASSERT_TRUE(cfp.Asignar(u"id", parameters));
  EXPECT_EQ(cfp.Archivo(), u"");
  ASSERT_TRUE(cfp.Guardar(u"id", u"F", u"saved"));
  ASSERT_TRUE(cfp.Asignar(u"id", parameters));
  EXPECT_EQ(cfp.Archivo(), u"saved");
}

TEST_F(QVRcfpTest, GuardarNamesAnObjectOnce) {
  ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  EXPECT_TRUE(cfp.Guardar(u"id", u"F", u"first"));
  EXPECT_EQ(cfp.Archivo(), u"first");
  EXPECT_TRUE(cfp.Guardar(u"id", u"F", u"second"));
  EXPECT_EQ(cfp.Archivo(), u"first");
  EXPECT_TRUE(thread.files.memory.contains(u"F\\first.cfp"));
  EXPECT_TRUE(thread.files.memory.contains(u"F\\second.cfp"));
}

TEST_F(QVRcfpTest, CrearTakesTheNameOfItsFile) {
  ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  ASSERT_TRUE(cfp.Guardar(u"id", u"F", u"first"));
  ASSERT_TRUE(cfp.Guardar(u"id", u"F", u"second"));
  EXPECT_TRUE(cfp.Crear(u"id", u"F", u"second"));
  expect_parameters(cfp, sample_parameters(), u"second");
}

TEST_F(QVRcfpTest, AFailedCrearClearsWhateverWasThere) {
  ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  ASSERT_TRUE(cfp.Guardar(u"id", u"F", u"name"));
  EXPECT_FALSE(cfp.Crear(u"id", u"F", u"missing"));
  expect_cleared(cfp);
  EXPECT_EQ(cfp.CadenaADO(u"id", true), u"");
  EXPECT_FALSE(cfp.Guardar(u"id", u"F", u"other"));
  EXPECT_FALSE(thread.files.memory.contains(u"F\\other.cfp"));
  EXPECT_EQ(traced(),
            (Traces{trace_of(u"QVRcfp.Crear", 75), without_parameters(u"CadenaADO"), without_parameters(u"Guardar")}));
}

TEST_F(QVRcfpTest, IsUsableAgainAfterAFailure) {
  ASSERT_FALSE(cfp.Crear(u"id", u"F", u"missing"));
  EXPECT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  EXPECT_TRUE(cfp.Guardar(u"id", u"F", u"name"));
  EXPECT_TRUE(cfp.Crear(u"id", u"F", u"name"));
  EXPECT_EQ(traced(), Traces{u"QVRcfp.Crear: 75 Path/File access error"});
}

TEST_F(QVRcfpTest, CrearCanBeGivenItsOwnName) {
  const Text name = u"a name that is too long to be kept inside the text itself";
  ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  ASSERT_TRUE(cfp.Guardar(u"id", u"F", name));
  EXPECT_TRUE(cfp.Crear(u"id", u"F", cfp.Archivo()));
  expect_parameters(cfp, sample_parameters(), name);
}

TEST_F(QVRcfpTest, PasswordsAreReadWithAnyIdentification) {
  ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  EXPECT_EQ(cfp.ClaveAdm(u"other"), sample_parameters().ClaveAdm);
  EXPECT_EQ(cfp.ClaveCli(u""), sample_parameters().ClaveCli);
}

TEST_F(QVRcfpTest, ObjectsAreIndependentButShareTheThreadsProtection) {
  QVRcfp other;
  ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  expect_cleared(other);
  ASSERT_TRUE(cfp.Guardar(u"id", u"F", u"name"));
  ASSERT_TRUE(other.Crear(u"id", u"F", u"name"));
  EXPECT_EQ(thread.protections_made, 1);
}

TEST_F(QVRcfpTest, AProtectionThatCannotBeMadeIsAFalseResult) {
  thread.make_text_protection = []() -> std::unique_ptr<services::TextProtection> {
    throw RuntimeFailure(failure_number::kCannotCreateObject);
  };
  ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  EXPECT_FALSE(cfp.Guardar(u"id", u"F", u"name"));
  thread.files.memory[u"F\\name.cfp"] = "a\r\n";
  EXPECT_FALSE(cfp.Crear(u"id", u"F", u"name"));
  expect_cleared(cfp);
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.Guardar: 429 ActiveX component can't create object",
                              u"QVRcfp.Crear: 429 ActiveX component can't create object"}));
}

}  // namespace
}  // namespace qvr::tests
