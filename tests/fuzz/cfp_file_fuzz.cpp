// The ".cfp" file and the text protection: what was written is read back, everything else is rejected.
#include "connection/cfp_file.h"

#include "base/failure.h"
#include "fuzz/fuzz_input.h"
#include "services/builtin_text_protection.h"
#include "services/siv.h"
#include "support/fake_files.h"
#include "support/text_protections.h"

namespace qvr::tests {
namespace {

using services::TextProtection;

// Deriving a key is slow on purpose: the library's own protection keeps that of one identification.
constexpr TextView kId = u"id";

TextProtection& protection_of(std::size_t choice) {
  static CheapProtection cheap;
  static services::BuiltinTextProtection own(system_platform().cryptography);
  return choice == 0 ? static_cast<TextProtection&>(cheap) : own;
}

// Nothing for what is refused, in whichever way.
std::optional<ConnectionParameters> read(std::string bytes, TextProtection& protection) {
  FakeFiles files;
  files.single_byte_page = true;
  MemoryInput file(std::move(bytes));
  try {
    return read_cfp(file, files, protection, kId);
  } catch (const RuntimeFailure&) {
    return std::nullopt;
  }
}

std::string written(const ConnectionParameters& parameters, TextProtection& protection) {
  FakeFiles files;
  files.single_byte_page = true;
  return cfp_bytes(parameters, files, protection, kId);
}

std::string lower(std::string bytes) {
  for (char& byte : bytes) byte = byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte;
  return bytes;
}

// The lines of a file, however they end, without the first: a number has several spellings.
std::string lines_behind_the_first(const std::string& bytes) {
  std::string lines;
  for (std::size_t at = bytes.find('\n'); at < bytes.size(); ++at) {
    const bool ends_line = bytes[at] == '\r' && (at + 1 == bytes.size() || bytes[at + 1] == '\n');
    if (!ends_line) lines.push_back(bytes[at]);
  }
  if (!lines.ends_with('\n')) lines.push_back('\n');
  return lines;
}

// Bytes as a file: what is read of them is what writing it gives.
void check_any_bytes(FuzzInput& input) {
  TextProtection& protection = protection_of(input.choice("co"));
  const std::string bytes(input.rest());
  const auto parameters = read(bytes, protection);
  if (!parameters) return;
  const std::string again = lines_behind_the_first(written(*parameters, protection));
  require(lower(lines_behind_the_first(bytes)).starts_with(lower(again)), "what is read was written so");
}

// Parameters, then a byte that is changed in their file.
void check_round_trip(FuzzInput& input) {
  TextProtection& protection = protection_of(input.choice("co"));
  ConnectionParameters parameters;
  parameters.MotorBD = static_cast<Engine>(input.number());
  const auto at = static_cast<std::uint32_t>(input.number());
  const auto by = static_cast<char>(input.number());
  for (Text* field :
       {&parameters.Provider, &parameters.DataSource, &parameters.InitialCatalogOTablespace, &parameters.UsuarioAdm,
        &parameters.ClaveAdm, &parameters.UsuarioCli, &parameters.ClaveCli, &parameters.OtrosParametros}) {
    *field = input.text();
  }
  const std::string bytes = written(parameters, protection);
  const auto whole = read(bytes, protection);
  require(whole && written(*whole, protection) == bytes, "what was written is read");
  require(whole->OtrosParametros == parameters.OtrosParametros && whole->ClaveAdm == parameters.ClaveAdm &&
              whole->MotorBD == parameters.MotorBD,
          "as it was");

  std::string changed = bytes;
  changed[at % bytes.size()] = by;
  const std::size_t check_line = bytes.rfind('\n', bytes.size() - 2);
  const bool empty_line_behind = changed == bytes.substr(0, bytes.size() - 2) + "\n\n";
  const bool same = at % bytes.size() > check_line ? lower(changed) == lower(bytes) : changed == bytes;
  require(read(changed, protection).has_value() == (same || empty_line_behind),
          "a changed byte is noticed, but for case in the last line");
  const std::string part = bytes.substr(0, at % bytes.size());
  require(read(part, protection).has_value() == (part.size() + 2 >= bytes.size()), "a part is not the file");
}

std::optional<Text> unprotected(TextProtection& protection, TextView text) {
  try {
    return protection.Descifrar(kId, text);
  } catch (const RuntimeFailure& failure) {
    require(failure.detail().number == failure_number::kInvalidArgument, "what is refused is failure 5");
    return std::nullopt;
  }
}

// A text, protected and changed; then the text itself as if it were protected.
void check_protection(FuzzInput& input) {
  TextProtection& protection = protection_of(1);
  const auto at = static_cast<std::uint32_t>(input.number()), by = static_cast<std::uint32_t>(input.number());
  const Text text = input.text(), sealed = protection.Cifrar(kId, text);
  require(sealed == protection.Cifrar(kId, text), "the same every time");
  require(unprotected(protection, sealed) == text, "protected and back", {text});
  require(sealed.find_first_not_of(u"abcdefghijklmnopqrstuvwxyz1234567") == Text::npos, "plain letters and digits");
  Text changed = sealed;
  changed[at % sealed.size()] = static_cast<char16_t>(by);
  require(changed == sealed || !unprotected(protection, changed), "every changed character is noticed", {changed});
  require(!unprotected(protection, TextView(sealed).substr(0, at % sealed.size())), "a part is none");
  const auto read = unprotected(protection, text);
  require(!read || protection.Cifrar(kId, *read) == text, "there is one spelling only", {text});
}

// A key's size, an associated text, a plain one and the bit that is changed.
void check_siv(FuzzInput& input) {
  constexpr std::size_t kKeySizes[] = {32, 48, 64};
  std::vector<std::uint8_t> key(kKeySizes[input.choice("123")], 7);
  services::Siv siv(system_platform().cryptography, key);
  const auto bit = static_cast<std::uint32_t>(input.number());
  const auto as_bytes = [](std::string_view text) {
    return Bytes(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
  };
  const Bytes associated = as_bytes(input.bytes()), plain = as_bytes(input.rest());
  const std::vector<std::uint8_t> sealed = siv.seal({associated}, plain);
  require(sealed.size() == plain.size() + 16, "sixteen bytes more");
  auto opened = sealed;
  const auto back = siv.open({associated}, opened);
  require(back && std::equal(back->begin(), back->end(), plain.begin(), plain.end()), "sealed and back");
  auto changed = sealed;
  changed[bit / 8 % sealed.size()] ^= static_cast<std::uint8_t>(1U << bit % 8);
  require(!siv.open({associated}, changed), "every changed bit is noticed");
  auto other = sealed;
  require(!siv.open({associated, as_bytes("x")}, other), "so is another context");
}

}  // namespace

void fuzz(FuzzInput& input) {
  switch (input.choice("bwps")) {
    case 0: return check_any_bytes(input);
    case 1: return check_round_trip(input);
    case 2: return check_protection(input);
    default: return check_siv(input);
  }
}

}  // namespace qvr::tests
