// What the user types, pipes in and sets in the environment.
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <span>
#include <string>

#include "base/secret_text.h"
#include "base/utf8.h"
#include "qvrscript/command_line/usage_failure.h"
#include "qvrscript/connection/input_line.h"
#include "qvrscript/output/console.h"
#include "qvrscript/run/interruption.h"
#include "qvrscript/system.h"

namespace qvr::script_tool {
namespace {

class Terminal {
 public:
  Terminal() : number_(::open("/dev/tty", O_RDWR | O_NOCTTY | O_CLOEXEC)) {}
  ~Terminal() {
    if (number_ >= 0) ::close(number_);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;
  explicit operator bool() const { return number_ >= 0; }
  int number() const { return number_; }

  void write(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t count = ::write(number_, bytes.data(), bytes.size());
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) return;  // the answer is read all the same
      bytes.remove_prefix(static_cast<std::size_t>(count));
    }
  }

 private:
  int number_;
};

std::atomic<int> caught{0};  // the signal that came while somebody typed; 0: none

// Keeps the signals that end or stop a program away until the terminal echoes again, then lets them act. They arrive
// while `wait` waits and at no other time: one just before reading would leave the reader waiting.
class SignalsKept {
 public:
  SignalsKept() {
    caught = 0;
    sigset_t kept;
    sigemptyset(&kept);
    for (const int signal : kSignals) sigaddset(&kept, signal);
    pthread_sigmask(SIG_BLOCK, &kept, &former_mask_);
    struct sigaction keep {};
    keep.sa_handler = [](int signal) { caught = signal; };
    sigemptyset(&keep.sa_mask);
    for (std::size_t i = 0; i < kSignals.size(); ++i) sigaction(kSignals[i], &keep, &former_[i]);
  }
  ~SignalsKept() {
    for (std::size_t i = 0; i < kSignals.size(); ++i) sigaction(kSignals[i], &former_[i], nullptr);
    if (caught != 0) ::raise(caught);
    pthread_sigmask(SIG_SETMASK, &former_mask_, nullptr);
  }
  SignalsKept(const SignalsKept&) = delete;
  SignalsKept& operator=(const SignalsKept&) = delete;

  // Until there is something to read; false after a signal.
  bool wait(int number) const {
    while (caught == 0) {
      pollfd awaited{number, POLLIN, 0};
      if (::ppoll(&awaited, 1, nullptr, &former_mask_) >= 0) return true;
      if (errno != EINTR) return true;  // reading tells why
    }
    return false;
  }

 private:
  sigset_t former_mask_{};
  static constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP};
  std::array<struct sigaction, kSignals.size()> former_{};
};

class EchoOff {
 public:
  explicit EchoOff(int terminal) : terminal_(terminal), known_(tcgetattr(terminal, &former_) == 0) {
    if (!known_) return;
    termios silent = former_;
    silent.c_lflag &= ~static_cast<tcflag_t>(ECHO | ECHONL);
    silent.c_lflag |= ICANON | ISIG;
    known_ = tcsetattr(terminal_, TCSAFLUSH, &silent) == 0;
  }
  ~EchoOff() {
    if (known_) tcsetattr(terminal_, TCSAFLUSH, &former_);
  }
  EchoOff(const EchoOff&) = delete;
  EchoOff& operator=(const EchoOff&) = delete;
  explicit operator bool() const { return known_; }

 private:
  int terminal_;
  termios former_{};
  bool known_;
};

std::size_t read_some(int number, std::span<char> buffer) {
  for (;;) {
    const ssize_t count = ::read(number, buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    return count < 0 ? 0 : static_cast<std::size_t>(count);
  }
}

std::optional<std::string> typed_line(const Terminal& terminal, std::string_view prompt) {
  termios former{};
  const bool known = tcgetattr(terminal.number(), &former) == 0;
  // Where signals are heard by another thread, that one brings the echo back before it ends the process.
  const Interruption::Ending ending(interruption(), [&] {
    if (known) tcsetattr(terminal.number(), TCSAFLUSH, &former);
    terminal.write("\n");
    leave_at_once(exit_code::kInterrupted, "qvrscript: interrupted");
  });
  const SignalsKept signals;
  const EchoOff silence(terminal.number());
  if (!silence) return std::nullopt;
  terminal.write(prompt);
  auto line = first_line([&](std::span<char> buffer) {
    return signals.wait(terminal.number()) ? read_some(terminal.number(), buffer) : 0;
  });
  terminal.write("\n");
  if (caught != 0) return std::nullopt;
  return line;
}

}  // namespace

std::optional<Text> environment_variable(TextView name) {
  const char* value = std::getenv(to_utf8(name).c_str());
  if (value == nullptr) return std::nullopt;
  auto text = from_utf8(value);
  if (!text) throw UsageFailure({u"the environment variable ", name, u" is no UTF-8"});
  return text;
}

std::optional<Text> ask_secret(TextView prompt) {
  const Terminal terminal;
  if (!terminal) return std::nullopt;
  for (;;) {
    auto line = typed_line(terminal, to_utf8(printable(prompt)));
    if (line) return text_of_line(std::move(*line));
    if (caught != SIGTSTP) return std::nullopt;  // else it was stopped and goes on: asked again
  }
}

std::optional<Text> standard_input_line() {
  if (::isatty(STDIN_FILENO) != 0) return std::nullopt;
  auto line = first_line([](std::span<char> buffer) { return read_some(STDIN_FILENO, buffer); });
  if (!line) return std::nullopt;
  return text_of_line(std::move(*line));
}

}  // namespace qvr::script_tool
