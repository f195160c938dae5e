// What the doctor prints, as lines and as JSON.
#include <gtest/gtest.h>

#include "doctor/machine.h"
#include "qvrscript/output/json.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

using namespace script_tool;

TEST(Doctor, WritesALineForEachFinding) {
  set_machine(sound_machine());
  const ToolAnswer sound = run_tool({u"doctor"});
  EXPECT_EQ(sound.code, 0);
  EXPECT_EQ(sound.err, "");
  EXPECT_EQ(
      sound.out,
      "ok     process        qvrscript 2.10.24, 32-bit, on Windows 10.0.19045 (64-bit)\n"
      "ok     library        Ov.PathCompleto C:\\q\\win32\\QVRlib21.dll\n"
      "ok     library        Ov.Path C:\\q\\win32\n"
      "ok     library        Ov.CadenaVersion 2.10.24, Ov.Version 21024\n"
      "ok     registration   32-bit programs, for the user: C:\\q\\win32\\QVRlib21.dll, version 2.10.24\n"
      "ok     registration   64-bit programs, for the user: C:\\q\\win64\\QVRlib21.dll, version 2.10.24\n"
      "ok     type library   QVRlib21 1.1, loads from C:\\q\\win32\\QVRlib21.dll\n"
      "ok     ado            ADODB.Connection, version 10.0\n"
      "ok     providers      Jet: Microsoft.Jet.OLEDB.4.0\n"
      "ok     providers      SQL Server: SQLOLEDB\n"
      "ok     providers      Oracle: MSDAORA\n"
      "ok     providers      ODBC: MSDASQL\n"
      "ok     components     QVRServicios.ProteccionTexto, which protects texts: not registered, the library's own "
      "part does it\n"
      "ok     components     QVRServicios.InformeErrores, which reports failures: not registered, the library's own "
      "part does it\n"
      "ok     components     QVRServicios.LectorScripts, which reads script files: not registered, the library's "
      "own part does it\n"
      "ok     language       Spanish: by the setting QVR\\Idioma\\IdiomaOmision, \"0\"\n"
      "ok     desktop        Message boxes can be seen here\n"
      "no errors\n");
  Facts ill = sound_machine();
  ill.ado.usable = false;
  set_machine(ill);
  const ToolAnswer answer = run_tool({u"doctor"});
  EXPECT_EQ(answer.code, 1);
  EXPECT_NE(answer.out.find("\nerror  ado            ADODB.Connection is registered and cannot be created for 32-bit "
                            "programs\n                      -> Repair Windows' components"),
            std::string::npos);
  EXPECT_TRUE(answer.out.ends_with("\n1 error\n")) << answer.out;
}

TEST(Doctor, WritesOneJsonDocument) {
  Facts ill = sound_machine();
  ill.providers.clear();
  set_machine(ill);
  const ToolAnswer answer = run_tool({u"doctor", u"--json"});
  EXPECT_EQ(answer.code, 1);
  const Json json = Json::parse(answer.out);
  EXPECT_EQ(json["command"], "doctor");
  EXPECT_EQ(json["errors"], 1);
  EXPECT_EQ(json["findings"][0]["level"], "ok");
  EXPECT_EQ(json["findings"][0]["subject"], "process");
  EXPECT_EQ(json["findings"][0]["message"], "qvrscript 2.10.24, 32-bit, on Windows 10.0.19045 (64-bit)");
  EXPECT_EQ(json["findings"][0]["advice"], "");
}

TEST(Doctor, TellsElsewhereWhatItCan) {
  Facts elsewhere;
  elsewhere.windows = false;
  elsewhere.width = elsewhere.system_width = 64;
  elsewhere.own_version = u"2.10.24";
  elsewhere.system = u"Linux 6.1";
  elsewhere.language = {u"", 0x0409, 1, 1};
  set_machine(elsewhere);
  const ToolAnswer answer = run_tool({u"doctor"});
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out,
            "ok     process        qvrscript 2.10.24, 64-bit, on Linux 6.1 (64-bit)\n"
            "note   library        The library, its registration and ADO exist on Windows only\n"
            "                      -> Run qvrscript.exe doctor on the machine that the application runs on.\n"
            "ok     language       English: by the user's regional format 0x0409; there is no setting "
            "QVR\\Idioma\\IdiomaOmision\n"
            "no errors\n");
}

TEST(Doctor, TakesNoFiles) {
  const ToolAnswer answer = run_tool({u"doctor", u"x"});
  EXPECT_EQ(answer.code, 2);
  EXPECT_EQ(answer.err, "qvrscript: The following argument was not expected: x; qvrscript --help tells more\n");
}

}  // namespace
}  // namespace qvr::tests
