// Which paths are opened at all.
#include "platform/windows/disk_path.h"

#include <gtest/gtest.h>

#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

struct DiskPathRow {
  const char* name;
  TextView path;
  bool on_disk;
};

const DiskPathRow kDiskPaths[] = {
    {"a file", u"C:\\Datos\\enlace.cfp", true},
    {"other separators", u"C:/Datos/enlace.cfp", true},
    {"relative to a folder", u"..\\Datos\\enlace.cfp", true},
    {"relative to a drive", u"C:enlace.cfp", true},
    {"relative to the root", u"\\Datos\\enlace.cfp", true},
    {"on a server", u"\\\\servidor\\datos\\enlace.cfp", true},
    {"on a server, with other separators", u"//servidor/datos/enlace.cfp", true},
    {"long form", u"\\\\?\\C:\\Datos\\enlace.cfp", true},
    {"long form, on a server", u"\\\\?\\UNC\\servidor\\datos\\enlace.cfp", true},
    {"long form, of a volume", u"\\\\?\\Volume{26a21bda-a627-11d7-9931-806e6f6e6963}\\enlace.cfp", true},
    {"long form, with a device's name", u"\\\\?\\C:\\Datos\\Aux.cfp", true},
    {"a pattern", u"C:\\Datos\\GestionSQL?.cfc", true},
    {"a blank in front of a device's name", u"C:\\Datos\\ Aux.cfp", true},
    {"a device's name is a part", u"C:\\Datos\\Auxiliar.cfp", true},
    {"a device's name is the end", u"C:\\Datos\\mi.Aux", true},
    {"a port 0", u"C:\\Datos\\COM0.cfp", true},
    {"a port of two digits", u"C:\\Datos\\COM12.cfp", true},
    {"a folder with a dot at its end", u"C:\\Datos.\\enlace.cfp", true},

    {"AUX", u"C:\\Datos\\AUX", false},
    {"AUX with an extension", u"C:\\Datos\\Aux.cfp", false},
    {"AUX with a blank and an extension", u"C:\\Datos\\Aux .cfp", false},
    {"AUX with blanks and dots", u"C:\\Datos\\aux . .cfp", false},
    {"AUX alone", u"aux", false},
    {"AUX of a drive", u"C:aux.cfp", false},
    {"AUX behind another separator", u"C:\\Datos/aux.cfp", false},
    {"AUX as a folder", u"C:\\aux\\enlace.cfp", false},
    {"AUX on a server", u"\\\\servidor\\datos\\aux.cfp", false},
    {"CON", u"C:\\Datos\\con.cfp", false},
    {"PRN", u"C:\\Datos\\Prn.cfp", false},
    {"NUL", u"C:\\Datos\\nul.cfp", false},
    {"CLOCK$", u"C:\\Datos\\clock$.cfp", false},
    {"CONIN$", u"C:\\Datos\\conin$.cfp", false},
    {"CONOUT$", u"C:\\Datos\\CONOUT$", false},
    {"COM1", u"C:\\Datos\\com1.cfp", false},
    {"COM9", u"C:\\Datos\\COM9", false},
    {"COM with a superscript", u"C:\\Datos\\COM\u00b2.cfp", false},
    {"LPT1", u"C:\\Datos\\Lpt1.cfp", false},
    {"LPT with a superscript", u"C:\\Datos\\LPT\u00b3.cfp", false},
    {"a device", u"\\\\.\\COM1", false},
    {"a drive as a device", u"\\\\.\\C:\\Datos\\enlace.cfp", false},
    {"a pipe", u"\\\\.\\pipe\\enlace.cfp", false},
    {"a pipe, with other separators", u"//./pipe/enlace.cfp", false},
    {"a pipe, in the long form", u"\\\\?\\pipe\\enlace.cfp", false},
    {"a pipe, past a drive", u"//?/C:/../pipe/enlace.cfp", false},
    {"a pipe of a server", u"\\\\servidor\\PIPE\\enlace.cfp", false},
    {"a pipe of a server, with more separators", u"\\\\servidor\\\\pipe\\enlace.cfp", false},
    {"a pipe of a server, in the long form", u"\\\\?\\UNC\\servidor\\pipe\\enlace.cfp", false},
    {"a server's devices", u"\\\\servidor\\ipc$\\enlace.cfp", false},
    {"a mailslot", u"\\\\.\\mailslot\\enlace.cfp", false},
    {"a mailslot of a server", u"\\\\servidor\\mailslot\\enlace.cfp", false},
    {"a device, in the long form", u"\\\\?\\COM1", false},
    {"every device", u"\\\\?\\GLOBALROOT\\Device\\Serial0", false},
    {"a server without a share", u"\\\\servidor\\enlace.cfp", false},
    {"a drive alone, in the long form", u"\\\\?\\C:", false},
    {"a stream", u"C:\\Datos\\enlace.cfp:datos", false},
    {"a stream of a relative file", u"enlace.cfp:datos", false},
    {"a stream, in the long form", u"\\\\?\\C:\\Datos\\enlace.cfp:datos", false},
    {"a stream on a server", u"\\\\servidor\\datos\\enlace.cfp::$DATA", false},
    {"a stream of a folder", u"C:\\Datos:$I30\\enlace.cfp", false},
    {"a dot at the end", u"C:\\Datos\\enlace.cfp.", false},
    {"a blank at the end", u"C:\\Datos\\enlace.cfp ", false},
    {"a NUL", TextView(u"C:\\Datos\\enlace\0.cfp", 20), false},
};

using DiskPath = Rows<::testing::Test, DiskPathRow>;

TEST_P(DiskPath, IsToldByItsForm) { EXPECT_EQ(windows::is_disk_path(GetParam().path), GetParam().on_disk); }

INSTANTIATE_TEST_SUITE_P(, DiskPath, ::testing::ValuesIn(kDiskPaths), row_name);

}  // namespace
}  // namespace qvr::tests
