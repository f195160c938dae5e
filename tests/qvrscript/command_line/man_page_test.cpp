// The manual page of a command line that has all that roff would misread.
#include "qvrscript/command_line/man_page.h"

#include <gtest/gtest.h>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "base/utf8.h"
#include "session/ov.h"

namespace qvr::tests {
namespace {

// From the line of the section on, as far as the next one.
std::string section_of(const std::string& page, const std::string& name) {
  const std::size_t begin = page.find(".SH \"" + name + "\"\n");
  return begin == std::string::npos ? "" : page.substr(begin, page.find("\n.SH ", begin) + 1 - begin);
}

TEST(ManPage, EscapesWhatRoffWouldObey) {
  CLI::App app{"Does it", "qvrscript"};
  CLI::App& command = *app.add_subcommand("copy-it", ".cfc files, 'quoted'");
  std::string value, path;
  command.add_option("-n,--no-thing", value, "Line one\n.line two \\fBnot bold\\fR ~ ^ `")
      ->option_text("a|b")
      ->group("Some");
  command.add_option("PATH", path, "'What' it is")->required();
  command.footer("A paragraph\nof two lines.\n\nExamples\n  qvrscript copy-it c:\\a\n\n  .hidden\n\nLast: -1.");
  EXPECT_EQ(section_of(script_tool::man_page(app), "COPY\\-IT"),
            R"(.SH "COPY\-IT"
\fBqvrscript copy\-it\fR [\fIOPTION\fR]... \fIPATH\fR
.PP
\&.cfc files, \(aqquoted\(aq
.TP
\fIPATH\fR
\(aqWhat\(aq it is
.SS "Some"
.TP
\fB\-n\fR, \fB\-\-no\-thing\fR \fBa|b\fR
Line one
\&.line two \efBnot bold\efR \(ti \(ha \(ga
.PP
A paragraph
of two lines.
.PP
\fBExamples\fR
.PP
.EX
  qvrscript copy\-it c:\ea

  .hidden
.EE
.PP
Last: \-1.
)");
}

TEST(ManPage, LeavesOutWhatNoHelpShows) {
  CLI::App app{"Does it", "qvrscript"};
  app.add_subcommand("shown", "This is shown");
  app.add_subcommand("hidden", "This is not")->group("");
  const std::string page = script_tool::man_page(app);
  EXPECT_NE(page.find("This is shown"), std::string::npos);
  EXPECT_EQ(page.find("This is not"), std::string::npos);
  EXPECT_EQ(section_of(page, "HIDDEN"), "");
}

TEST(ManPage, TellsTheVersionAndNoDate) {
  const CLI::App app{"Does it", "qvrscript"};
  EXPECT_TRUE(script_tool::man_page(app).starts_with(".TH QVRSCRIPT 1 \"\" \"qvrscript " +
                                                     to_utf8(Ov::CadenaVersion(own_version())) + "\"\n"));
}

}  // namespace
}  // namespace qvr::tests
