#include "connection/cfp_file.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "base/failure.h"
#include "base/number_text.h"

namespace qvr {
namespace {

// Lines 2 to 9; line 1 is the engine.
constexpr Text ConnectionParameters::*kTextLines[] = {
    &ConnectionParameters::Provider,
    &ConnectionParameters::DataSource,
    &ConnectionParameters::InitialCatalogOTablespace,
    &ConnectionParameters::UsuarioAdm,
    &ConnectionParameters::ClaveAdm,
    &ConnectionParameters::UsuarioCli,
    &ConnectionParameters::ClaveCli,
    &ConnectionParameters::OtrosParametros,
};

constexpr TextView kBlanks = u" \t";

// Including its CR: a limit, so that a large file of another kind is not read into memory.
constexpr std::size_t kLongestLine = std::size_t{16} << 20;

[[noreturn]] void too_long() {
  throw RuntimeFailure(failure_number::kFile, u"A line of the file is longer than 16 MiB");
}

class LineReader {
 public:
  explicit LineReader(InputFile& file) : file_(file) {}

  // The next line without its end: CR LF, LF alone or, behind a last line, none. Throws when there is no line.
  std::string next() {
    std::string line;
    for (;;) {
      const auto window = std::string_view(buffer_.data(), filled_).substr(at_);
      const auto end = window.find('\n');
      line.append(window.substr(0, end));
      if (end != std::string_view::npos) {
        at_ += end + 1;
        break;
      }
      if (line.size() > kLongestLine) too_long();
      if (refill()) continue;
      if (line.empty()) throw RuntimeFailure(failure_number::kFile, u"The file has fewer than ten lines");
      break;
    }
    if (line.ends_with('\r')) line.pop_back();
    return line;
  }

 private:
  bool refill() {
    filled_ = file_.read(buffer_);
    at_ = 0;
    return filled_ > 0;
  }

  InputFile& file_;
  std::array<char, 8192> buffer_;
  std::size_t at_ = 0, filled_ = 0;
};

// The whole text as a 32-bit integer, in any spelling of that number, but independent of the locale: files are copied
// between machines.
Engine engine_from(TextView text) {
  const TextView number = trimmed(text, kBlanks);
  const double value = number_prefix(number);
  const bool is_number = !number.empty() && number_length(number) == number.size();
  if (!is_number || !(value >= INT32_MIN && value <= INT32_MAX) || value != std::trunc(value)) {
    throw RuntimeFailure(failure_number::kTypeMismatch, u"The file's first line is no 32-bit number");
  }
  return Engine{static_cast<std::int32_t>(value)};
}

// Other readers of the file take its lines as delimited fields.
bool can_be_line(TextView text) {
  return text.find_first_of(u"\r\n,\"") == TextView::npos && trimmed(text, kBlanks).size() == text.size();
}

// The concatenated texts of all lines; contains the passwords.
struct CheckText {
  // Reserved at once: reallocation would leave copies of passwords in freed memory.
  explicit CheckText(const ConnectionParameters& parameters) {
    const Text engine = decimal(number_of(parameters.MotorBD));
    std::size_t size = engine.size();
    for (const auto line : kTextLines) size += (parameters.*line).size();
    text.reserve(size);
    text = engine;
    for (const auto line : kTextLines) text += parameters.*line;
  }
  ~CheckText() { wipe(text); }
  CheckText(const CheckText&) = delete;
  CheckText& operator=(const CheckText&) = delete;
  Text text;
};

class BytesInput : public InputFile {
 public:
  explicit BytesInput(std::string_view bytes) : left_(bytes) {}

  std::size_t read(std::span<char> buffer) override {
    const std::size_t count = left_.copy(buffer.data(), buffer.size());
    left_.remove_prefix(count);
    return count;
  }

 private:
  std::string_view left_;
};

// A protection may write what it cannot read again, or read something else: better found before the former file goes.
void require_equal(const ConnectionParameters& parameters, std::string_view bytes, Files& encoding,
                   services::TextProtection& protection, TextView key) {
  BytesInput file(bytes);
  const PassingParameters read{read_cfp(file, encoding, protection, key)};
  const bool equal = read.parameters.MotorBD == parameters.MotorBD && std::ranges::all_of(kTextLines, [&](auto line) {
                       return read.parameters.*line == parameters.*line;
                     });
  if (!equal) {
    throw RuntimeFailure(failure_number::kInvalidArgument, u"The text protection does not read back what it wrote");
  }
}

}  // namespace

Text cfp_path(TextView folder, TextView name) { return join({folder, u"\\", name, u".cfp"}); }

ConnectionParameters read_cfp(InputFile& file, Files& encoding, services::TextProtection& protection, TextView key) {
  LineReader lines(file);
  const auto next_line = [&] { return encoding.from_system_page(lines.next()); };
  // Wipe what was decrypted of a file that is rejected.
  PassingParameters read;
  ConnectionParameters& parameters = read.parameters;
  parameters.MotorBD = engine_from(protection.Descifrar(key, next_line()));
  for (const auto line : kTextLines) parameters.*line = protection.Descifrar(key, next_line());
  const Text stored = next_line();
  const CheckText check(parameters);
  if (!equal_no_case(stored, protection.Cifrar(key, check.text))) {
    throw RuntimeFailure(failure_number::kInvalidArgument, u"The file's check line does not match its other lines");
  }
  return std::exchange(parameters, {});
}

std::string cfp_bytes(const ConnectionParameters& parameters, Files& encoding, services::TextProtection& protection,
                      TextView key) {
  std::string bytes;
  const auto append_line = [&](TextView text) {
    const Text written = protection.Cifrar(key, text);
    if (!can_be_line(written)) {
      throw RuntimeFailure(failure_number::kInvalidArgument,
                           u"The text protection wrote a line break, a comma, a double quote or a blank at an end");
    }
    const std::string line = encoding.to_system_page(written);
    if (line.size() >= kLongestLine) too_long();  // reading would reject it
    bytes.append(line).append("\r\n");
  };
  append_line(decimal(number_of(parameters.MotorBD)));
  for (const auto line : kTextLines) append_line(parameters.*line);
  append_line(CheckText(parameters).text);
  require_equal(parameters, bytes, encoding, protection, key);
  return bytes;
}

}  // namespace qvr
