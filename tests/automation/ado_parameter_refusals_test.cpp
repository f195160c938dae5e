// Parameters that are not appended: what the user is told, and that the caller is told no more than False.
#include "automation/boxes.h"
#include "automation/database.h"
#include "automation/library.h"
#include "automation/parameter_host.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

struct RefusedParameter : testing::Test {
  ParameterHost host;
};

TEST_F(RefusedParameter, AnUnexpectedTypeIsToldInTheUsersLanguage) {
  struct Row {
    const wchar_t *language, *box;
  };
  for (const Row& row : {Row{L"0", L"Tipo inesperado en AgregarParametroADO: @p (Texto)"},
                         Row{L"1", L"Unexpected type in AgregarParametroADO: @p (Texto)"},
                         Row{L"3", L"Type inattendu dans AgregarParametroADO: @p (Texto)"}}) {
    on_thread_in_language(row.language, [&] {
      const ParameterHost there;
      there.use(2);
      EXPECT_EQ(there.refused({L"Texto"}), narrow(row.box));
    });
  }
}

TEST_F(RefusedParameter, WithoutATypeItIsImproperlyDefined) {
  struct Row {
    const wchar_t *language, *object, *method, *error;
  };
  for (const Row& row : {Row{L"0", L"Objeto", L"M\u00e9todo", L"Error"}, Row{L"1", L"Object", L"Method", L"Error"},
                         Row{L"3", L"Objet", L"M\u00e9thode", L"Erreur"}}) {
    on_thread_in_language(row.language, [&] {
      const ParameterHost there;
      const std::wstring box = std::wstring(row.object) + L": QVRcfp\r\n" + row.method +
                               L": AgregarParametroADO: @p(INT)\r\n" + row.error +
                               L" 3708: The parameter is not defined completely or not consistently.";
      there.use(1);
      EXPECT_EQ(there.refused({L"INT"}), narrow(box));
    });
  }
  EXPECT_EQ(traced(), Traces(6, u"QVRcfp.AgregarParametroADO: 3708 told by another component"));
}

TEST_F(RefusedParameter, ATextWithoutAWidthIsImproperlyDefinedToo) {
  host.use(2);
  const std::string box = host.refused({L"NVARCHAR", L"@n", Var::null()});
  EXPECT_TRUE(box.ends_with(" 3708: The parameter is not defined completely or not consistently.")) << box;
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.AgregarParametroADO: 3708 told by another component",
                              u"QVRcfp.AgregarParametroADO: 3708 told by another component"}));
}

TEST_F(RefusedParameter, OtherRefusalsAreSilent) {
  expect_any_traces();
  host.use(2);
  EXPECT_EQ(host.refused({L"INT", L"@p", L"abc"}), "silence");
  EXPECT_EQ(host.refused({L"NVARCHAR", L"@p", L"too long", 3}), "silence");
  for (const wchar_t* where : {L"CreateParameter", L"Parameter.Type", L"Parameter.Precision", L"Parameter.Name",
                               L"Parameter.Direction", L"Parameter.Value", L"Parameters.Append"}) {
    SCOPED_TRACE(narrow(where));
    const FaultyAdo faulty(where);
    EXPECT_EQ(host.refused({L"INT"}), "silence");
  }
  for (const wchar_t* where : {L"Parameter.Size", L"Parameter.NumericScale"}) {
    host.use(3);
    const FaultyAdo faulty(where);
    EXPECT_EQ(host.refused({std::wstring(where) == L"Parameter.Size" ? L"NVARCHAR" : L"INT"}), "silence");
  }
  EXPECT_EQ(test_ado().can_unload(), S_OK) << "an ADO object was left behind";
}

TEST_F(RefusedParameter, NothingAsTheCommandIsFalseInSilence) {
  host.use(2);
  const Person person;
  EXPECT_EQ(host.append_early(nullptr, {L"INT"}), "BOOL false");
  EXPECT_EQ(host.append_late(nullptr, {L"INT"}), "BOOL false");
  VARIANT_BOOL done = 2;
  EXPECT_EQ(host.slots()->AgregarParametroADO(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &done), S_OK);
  EXPECT_EQ(done, VARIANT_FALSE);
  const LateObject no_command(L"QVRlib21.Ov");
  EXPECT_EQ(host.append_late(no_command.get(), {L"INT"}), "BOOL false");
  EXPECT_EQ(host.object().call(L"AgregarParametroADO", {L"no object", L"INT", L"@p"}).result, DISP_E_TYPEMISMATCH);
  ASSERT_EQ(person.boxes().size(), 1u) << "the empty name of a type";
  EXPECT_TRUE(person.boxes()[0].text.ends_with(L" AgregarParametroADO:  ()"));
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.AgregarParametroADO: 91 Object variable or With block variable not set",
                              u"QVRcfp.AgregarParametroADO: 91 Object variable or With block variable not set",
                              u"QVRcfp.AgregarParametroADO: -2147352570 Application-defined or object-defined error",
                              u"QVRcfp.AgregarParametroADO: -2147352571 The late-bound call was refused"}));
}

TEST_F(RefusedParameter, AnObjectWithoutParametersAddsNone) {
  const FaultyAdo log(L"");
  const LateObject command(L"ADODB.Command");
  EXPECT_EQ(host.append_early(command.get(), {L"INT"}), "BOOL false");
  EXPECT_EQ(host.append_late(command.get(), {L"INT", L"@p", 5, 0, 4}), "BOOL false");
  EXPECT_EQ(log.calls(), "CreateCommand\n");
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.AgregarParametroADO: 91 No connection parameters were read or assigned",
                              u"QVRcfp.AgregarParametroADO: 91 No connection parameters were read or assigned"}));
}

TEST_F(RefusedParameter, OracleHasNoReturnValues) {
  host.use(3);
  const Person person;
  const LateObject command(L"ADODB.Command");
  EXPECT_EQ(host.append_early(command.get(), {L"INT", L"@r", 5, 0, 4}), "BOOL true");
  EXPECT_EQ(host.append_late(command.get(), {L"no type", L"@r", 5, 0, 4}), "BOOL true");
  EXPECT_EQ(host.append_late(nullptr, {L"INT", L"@r", 5, 0, 4}), "BOOL true");
  EXPECT_EQ(count_of_parameters(command), 0);
  EXPECT_TRUE(person.boxes().empty());
}

}  // namespace
}  // namespace qvr::tests
