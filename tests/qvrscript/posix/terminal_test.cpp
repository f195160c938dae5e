// Asking on a terminal of the test's own, in a process that it controls.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include "base/utf8.h"
#include "qvrscript/command_line/usage_failure.h"
#include "qvrscript/system.h"

namespace qvr::tests {
namespace {

using namespace script_tool;

// The other end of a terminal, and a process that asks there and ends with how it went.
class Asking {
 public:
  static constexpr int kAnswered = 0, kOtherAnswer = 10, kNoTerminal = 11, kRefused = 12;

  explicit Asking(TextView expected) : master_(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    EXPECT_EQ(::grantpt(master_), 0);
    EXPECT_EQ(::unlockpt(master_), 0);
    slave_ = ::open(::ptsname(master_), O_RDWR | O_NOCTTY | O_CLOEXEC);
    child_ = ::fork();
    if (child_ == 0) ::_exit(ask(::ptsname(master_), expected));
  }
  ~Asking() {
    ::close(slave_);
    ::close(master_);
  }
  Asking(const Asking&) = delete;
  Asking& operator=(const Asking&) = delete;

  // All that is shown until this text is; what came so far where nothing more comes.
  std::string shown_until(std::string_view text) const {
    std::string shown;
    while (shown.find(text) == std::string::npos) {
      pollfd wait{master_, POLLIN, 0};
      constexpr int kPatience = 20000;  // ms; ends a test that fails, and takes no part in one that passes
      if (::poll(&wait, 1, kPatience) <= 0) break;
      char buffer[256];
      const ssize_t count = ::read(master_, buffer, sizeof(buffer));
      if (count <= 0) break;
      shown.append(buffer, static_cast<std::size_t>(count));
    }
    return shown;
  }
  void type(std::string_view keys) const {
    EXPECT_EQ(::write(master_, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
  }
  int status() const {
    int status = 0;
    EXPECT_EQ(::waitpid(child_, &status, 0), child_);
    return status;
  }
  int exit_code() const {
    const int ended = status();
    return WIFEXITED(ended) ? WEXITSTATUS(ended) : -1;
  }
  bool echoes() const {
    termios now{};
    EXPECT_EQ(::tcgetattr(slave_, &now), 0);
    return (now.c_lflag & ECHO) != 0;
  }

 private:
  static int ask(const char* terminal, TextView expected) {
    ::setsid();
    const int own = ::open(terminal, O_RDWR);
    if (own < 0 || ::ioctl(own, TIOCSCTTY, 0) != 0) return kNoTerminal;
    try {
      const auto answer = ask_secret(u"Word\x1b: ");
      if (!answer) return kNoTerminal;
      return *answer == expected ? kAnswered : kOtherAnswer;
    } catch (const UsageFailure&) {
      return kRefused;
    }
  }

  int master_, slave_ = -1;
  pid_t child_ = -1;
};

TEST(AskSecret, ReadsALineWithoutEcho) {
  const Asking asking(u"contrase\u00f1a 1");
  EXPECT_EQ(asking.shown_until(": "), "Word\\x1b: ");
  EXPECT_FALSE(asking.echoes());
  asking.type(
      "contrase\xC3\xB1"
      "a 1\n");
  EXPECT_EQ(asking.shown_until("\n"), "\r\n");
  EXPECT_EQ(asking.exit_code(), Asking::kAnswered);
  EXPECT_TRUE(asking.echoes());
}

TEST(AskSecret, TakesAnEmptyLine) {
  const Asking asking(u"");
  asking.shown_until(": ");
  asking.type("\n");
  EXPECT_EQ(asking.exit_code(), Asking::kAnswered);
}

TEST(AskSecret, RefusesWhatIsNoUtf8) {
  const Asking asking(u"");
  asking.shown_until(": ");
  asking.type("\xF1\n");
  EXPECT_EQ(asking.exit_code(), Asking::kRefused);
}

TEST(AskSecret, GivesNothingAtTheEndOfTheInput) {
  const Asking asking(u"");
  asking.shown_until(": ");
  asking.type("\x04");
  EXPECT_EQ(asking.exit_code(), Asking::kNoTerminal);
  EXPECT_TRUE(asking.echoes());
}

TEST(AskSecret, BringsTheEchoBackBeforeItIsInterrupted) {
  const Asking asking(u"");
  asking.shown_until(": ");
  asking.type("half\x03");
  const int status = asking.status();
  ASSERT_TRUE(WIFSIGNALED(status)) << status;
  EXPECT_EQ(WTERMSIG(status), SIGINT);
  EXPECT_TRUE(asking.echoes());
}

TEST(AskSecret, GivesNothingWithoutATerminal) {
  const pid_t child = ::fork();
  if (child == 0) {
    ::setsid();  // no terminal any more
    ::_exit(ask_secret(u"Word: ") ? 1 : 0);
  }
  int status = -1;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
}

// A pipe in place of the standard input while it lives.
class Piped {
 public:
  explicit Piped(std::string_view bytes) : former_(::dup(STDIN_FILENO)) {
    int ends[2];
    EXPECT_EQ(::pipe(ends), 0);
    EXPECT_EQ(::write(ends[1], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    ::close(ends[1]);
    ::dup2(ends[0], STDIN_FILENO);
    ::close(ends[0]);
  }
  ~Piped() {
    if (former_ < 0) {
      ::close(STDIN_FILENO);
      return;
    }
    ::dup2(former_, STDIN_FILENO);
    ::close(former_);
  }
  Piped(const Piped&) = delete;
  Piped& operator=(const Piped&) = delete;

 private:
  int former_;
};

TEST(StandardInput, GivesItsFirstLine) {
  const Piped input("DSN=a\xC3\xB1o\r\nmore\n");
  EXPECT_EQ(standard_input_line(), u"DSN=a\u00f1o");
}

TEST(StandardInput, GivesNothingWhereItIsEmpty) {
  const Piped input("");
  EXPECT_EQ(standard_input_line(), std::nullopt);
}

TEST(StandardInput, IsUtf8) {
  const Piped input("DSN=a\xF1o\n");
  EXPECT_THROW(standard_input_line(), UsageFailure);
}

TEST(EnvironmentVariable, IsFoundByItsName) {
  ::setenv("QVR_TESTS_VARIABLE", "a\xC3\xB1o", 1);
  EXPECT_EQ(environment_variable(u"QVR_TESTS_VARIABLE"), u"a\u00f1o");
  ::setenv("QVR_TESTS_VARIABLE", "", 1);
  EXPECT_EQ(environment_variable(u"QVR_TESTS_VARIABLE"), u"");
  ::setenv("QVR_TESTS_VARIABLE", "a\xF1o", 1);
  EXPECT_THROW(environment_variable(u"QVR_TESTS_VARIABLE"), UsageFailure);
  ::unsetenv("QVR_TESTS_VARIABLE");
  EXPECT_EQ(environment_variable(u"QVR_TESTS_VARIABLE"), std::nullopt);
}

}  // namespace
}  // namespace qvr::tests
