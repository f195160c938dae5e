#include "connection/cfp_file.h"

#include <array>
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

// Including its CR: a limit, so that a large file of another kind is not read into memory.
constexpr std::size_t kLongestLine = std::size_t{16} << 20;

class LineReader {
 public:
  explicit LineReader(InputFile& file) : file_(file) {}

  // The next line without its CR LF; throws when the file ends before one.
  std::string next() {
    std::string line;
    for (;;) {
      const auto window = std::string_view(buffer_.data(), filled_).substr(at_);
      const auto end = window.find('\n');
      line.append(window.substr(0, end));
      if (end != std::string_view::npos) {
        at_ += end + 1;
        return without_carriage_return(std::move(line));
      }
      if (line.size() > kLongestLine) throw RuntimeFailure(failure_number::kFile);
      refill();
    }
  }

 private:
  static std::string without_carriage_return(std::string line) {
    if (!line.ends_with('\r')) throw RuntimeFailure(failure_number::kFile);
    line.pop_back();
    return line;
  }

  void refill() {
    filled_ = file_.read(buffer_);
    at_ = 0;
    if (filled_ == 0) throw RuntimeFailure(failure_number::kFile);
  }

  InputFile& file_;
  std::array<char, 8192> buffer_;
  std::size_t at_ = 0, filled_ = 0;
};

// The whole text as a 32-bit integer, independent of the locale: files are copied between machines.
Engine engine_from(const Text& text) {
  const double number = number_prefix(text);
  if (!(number >= INT32_MIN && number <= INT32_MAX) || decimal(static_cast<std::int32_t>(number)) != text) {
    throw RuntimeFailure(failure_number::kTypeMismatch);
  }
  return Engine{static_cast<std::int32_t>(number)};
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

}  // namespace

Text cfp_path(TextView folder, TextView name) { return join({folder, u"\\", name, u".cfp"}); }

std::optional<ConnectionParameters> read_cfp(InputFile& file, Files& encoding, services::TextProtection& protection,
                                             TextView key) {
  LineReader lines(file);
  const auto next_line = [&] { return encoding.from_system_page(lines.next()); };
  // Wipe what was decrypted of a file that is rejected.
  PassingParameters read;
  ConnectionParameters& parameters = read.parameters;
  parameters.MotorBD = engine_from(protection.Descifrar(key, next_line()));
  for (const auto line : kTextLines) parameters.*line = protection.Descifrar(key, next_line());
  const Text stored = next_line();
  const CheckText check(parameters);
  const bool matches = equal_no_case(stored, protection.Cifrar(key, check.text));
  if (!matches) return std::nullopt;
  return std::exchange(parameters, {});
}

std::string cfp_bytes(const ConnectionParameters& parameters, Files& encoding, services::TextProtection& protection,
                      TextView key) {
  std::string bytes;
  const auto append_line = [&](TextView text) {
    const std::string line = encoding.to_system_page(protection.Cifrar(key, text));
    if (line.size() >= kLongestLine) throw RuntimeFailure(failure_number::kFile);  // reading would reject it
    bytes.append(line).append("\r\n");
  };
  append_line(decimal(number_of(parameters.MotorBD)));
  for (const auto line : kTextLines) append_line(parameters.*line);
  append_line(CheckText(parameters).text);
  return bytes;
}

}  // namespace qvr
