// What the library asks of the operating system, as small interfaces; windows/ and posix/ implement them under equal
// file names. They are handed in through the thread's state, so that a test can put its own in their place.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "base/value.h"

namespace qvr {

struct InputFile {
  virtual ~InputFile() = default;
  // Fills the buffer from the file; fewer bytes only at its end. Throws on a read error.
  virtual std::size_t read(std::span<char> buffer) = 0;
};

struct OutputFile {
  virtual ~OutputFile() = default;
  virtual void write(std::string_view bytes) = 0;  // all of them, or throws
  virtual void close() = 0;                        // the file is there now; throws when it could not be kept
};

struct Files {
  // Whether a directory search for the path (wildcards allowed) with this mask of file attributes finds anything.
  virtual bool any_entry(TextView path, std::int32_t attributes) = 0;
  virtual std::vector<Text> names(TextView folder) = 0;        // of its plain files; throws when it cannot be read
  virtual std::unique_ptr<InputFile> open(TextView path) = 0;  // throws when it cannot be read
  // A file that is there stays as it is until the new one is closed and takes its place. What is written until then
  // stands beside it, its name with ".tmp" behind, and stays there when it comes to no end. Where nothing can stand
  // beside it, or cannot take its place, it is written over, from the first byte that is written. Throws.
  virtual std::unique_ptr<OutputFile> create(TextView path) = 0;
  // Text in the system's single-byte or multi-byte page. Throws when a character has no place in that page.
  virtual std::string to_system_page(TextView text) = 0;
  virtual Text from_system_page(std::string_view bytes) = 0;

 protected:
  ~Files() = default;
};

enum class BoxButtons { Ok, YesNo };
enum class BoxAnswer { Ok, Yes, No };

struct MessageBoxes {
  // Shows a modal box titled with the library's name. Where nobody could see it, the text is logged once and the
  // answer to a question is No.
  virtual BoxAnswer show(TextView text, BoxButtons buttons) = 0;

 protected:
  ~MessageBoxes() = default;
};

// The user's conventions for dates and numbers.
struct Locale {
  virtual std::optional<Date> parse_date(TextView text) = 0;
  virtual std::optional<double> parse_number(TextView text) = 0;
  virtual Text date_text(Date date) = 0;  // short date, and the time unless it is midnight
  virtual char16_t decimal_separator() = 0;
  virtual char16_t thousands_separator() = 0;
  virtual Text currency_symbol() = 0;

 protected:
  ~Locale() = default;
};

using Bytes = std::span<const std::uint8_t>;
using MutableBytes = std::span<std::uint8_t>;

// AES under one key.
struct BlockCipher {
  virtual ~BlockCipher() = default;
  virtual void encrypt(MutableBytes blocks) = 0;  // each 16-byte block by itself, in place
};

// Primitives of the platform's own cryptographic library; they throw when it refuses.
struct Cryptography {
  virtual std::unique_ptr<BlockCipher> aes(Bytes key) = 0;  // a key of 16, 24 or 32 bytes
  virtual void pbkdf2_hmac_sha256(Bytes password, Bytes salt, std::uint32_t rounds, MutableBytes derived) = 0;
  virtual void wipe(MutableBytes secret) = 0;  // not optimised away

 protected:
  ~Cryptography() = default;
};

// What needs one call to the system and has no subject of its own.
struct System {
  // The user's setting of an application: section / key, or `fallback` where there is none.
  virtual Text setting(TextView application, TextView section, TextView key, TextView fallback) = 0;
  // The user's default language identifier in Windows' numbering (0x0C0A is Spanish, Spain).
  virtual std::uint16_t user_language() = 0;
  virtual Date now() = 0;             // the local date and time
  virtual void process_events() = 0;  // lets the host paint and react; does not wait
  virtual Text module_path() = 0;     // full path of the file that holds this code

 protected:
  ~System() = default;
};

struct Platform {
  Files& files;
  Locale& locale;
  Cryptography& cryptography;
  MessageBoxes& message_boxes;
  System& system;
};

// The implementation for the system that this build runs on; stateless, usable from any thread.
const Platform& system_platform();

}  // namespace qvr
