// The interfaces to the operating system; windows/ and posix/ implement them under equal file names. They are passed in
// through the thread's state, so that tests can replace them.
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
  virtual void close() = 0;                        // commits: the file has its name now; throws on failure
};

struct Files {
  // Whether a directory search for the path (wildcards allowed) with this mask of file attributes finds anything.
  virtual bool any_entry(TextView path, std::int32_t attributes) = 0;
  // The names of its files, whatever their attributes; throws when the folder cannot be read.
  virtual std::vector<Text> names(TextView folder) = 0;
  // Throws when it cannot be read, and for everything that is no file on a disk, without waiting for it.
  virtual std::unique_ptr<InputFile> open(TextView path) = 0;
  // Atomic replacement: the text is written to a temporary file beside it (temporary_name.h), which close() gives the
  // final name; temporary files that an ended process left are removed then. Without close() everything stays as it
  // was. Links, attributes and rights of the former file are kept: where renaming would lose them or fails, and where
  // no temporary file can be created, the file is written in place. Waits about a second while another process has the
  // file open. Throws.
  virtual std::unique_ptr<OutputFile> create(TextView path) = 0;
  // Text in the system's ANSI code page (UTF-8 on posix). Throws for characters that the code page does not have.
  virtual std::string to_system_page(TextView text) = 0;
  virtual Text from_system_page(std::string_view bytes) = 0;

 protected:
  ~Files() = default;
};

enum class BoxButtons { Ok, YesNo };
enum class BoxAnswer { Ok, Yes, No };

struct MessageBoxes {
  // Shows a modal message box titled with the library's name. Without a visible desktop the text is logged instead and
  // the answer to a question is No.
  virtual BoxAnswer show(TextView text, BoxButtons buttons) = 0;

 protected:
  ~MessageBoxes() = default;
};

// The user's locale.
struct Locale {
  virtual std::optional<Date> parse_date(TextView text) = 0;
  virtual std::optional<double> parse_number(TextView text) = 0;
  virtual Text date_text(Date date) = 0;  // short date, with the time unless it is midnight
  virtual char16_t decimal_separator() = 0;
  virtual char16_t thousands_separator() = 0;
  virtual Text currency_symbol() = 0;

 protected:
  ~Locale() = default;
};

using Bytes = std::span<const std::uint8_t>;
using MutableBytes = std::span<std::uint8_t>;

// AES with one key.
struct BlockCipher {
  virtual ~BlockCipher() = default;
  virtual void encrypt(MutableBytes blocks) = 0;  // ECB, in place
};

// Primitives of the system's cryptographic library (CNG, OpenSSL); they throw when it fails.
struct Cryptography {
  virtual std::unique_ptr<BlockCipher> aes(Bytes key) = 0;  // a key of 16, 24 or 32 bytes
  virtual void pbkdf2_hmac_sha256(Bytes password, Bytes salt, std::uint32_t rounds, MutableBytes derived) = 0;
  virtual void wipe(MutableBytes secret) = 0;  // not optimised away

 protected:
  ~Cryptography() = default;
};

// Single functions of the system.
struct System {
  // GetSetting of Visual Basic: a per-user setting, or `fallback` where there is none.
  virtual Text setting(TextView application, TextView section, TextView key, TextView fallback) = 0;
  // The LANGID of the user's language (0x0C0A is Spanish, Spain).
  virtual std::uint16_t user_language() = 0;
  virtual Date now() = 0;  // the local date and time
  // Handles the messages that are pending now, and not those that come meanwhile: it always returns.
  virtual void process_events() = 0;
  virtual Text module_path() = 0;  // full path of the module that contains this code

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

// The implementation for this system; stateless, usable from any thread.
const Platform& system_platform();

}  // namespace qvr
