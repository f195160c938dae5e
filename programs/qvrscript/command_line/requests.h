// What a command line asks for.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "base/engine.h"
#include "base/text.h"

namespace qvr::script_tool {

enum class Format { Text, Json, GitHub, Sarif, JUnit };

enum class Severity { Note, Warning, Error };

// A connection file and the environment variable with its identification; without one it is asked for.
struct CfpChoice {
  Text folder, name;
  std::optional<Text> id_variable;
};

// Where the connection string comes from: one of the four.
struct ConnectionChoice {
  std::optional<Text> text;
  bool standard_input = false;
  std::optional<Text> variable;
  std::optional<CfpChoice> cfp;
  bool client = false;                // the client's account of the connection file
  std::int32_t connect_timeout = 15;  // in seconds

  // Whether it says where the connection string comes from; the other options say more about it only.
  bool names_source() const { return text || standard_input || variable || cfp; }
};

struct RunOptions {
  Engine engine = Engine::None;
  std::optional<ConnectionChoice> connection;
  bool use_transaction = true;
  bool go_on = false;
  bool rehearse = false;
  bool timing = false;
  std::optional<Text> log;
};

struct RunRequest {
  RunOptions options;
  Text file;
};

// Nothing where the connection file tells it, and the empty text where there is none.
struct AccountChoice {
  std::optional<Text> user, password_variable;
};

// A definition, or an update from a version.
struct LoadRequest {
  RunOptions options;
  Text folder, name;
  bool update = false;
  std::optional<std::int32_t> from;
  std::optional<Text> from_query;
  bool plan = false;
  std::optional<Text> out;
  bool with_passwords = false;  // in `out`
  std::optional<Text> database;
  AccountChoice admin, client;
  bool encrypt = true;
};

struct CheckRequest {
  std::vector<Text> paths;
  std::optional<Engine> engine;
  Severity fail_on = Severity::Warning;
  std::vector<Text> ignored;  // rules
  bool encryption = true;
  std::optional<Text> lock;
  bool update_lock = false;
};

struct CfpNewRequest {
  CfpChoice cfp;
  Engine engine = Engine::None;
  Text provider, data_source, catalog, other;
  AccountChoice admin, client;
  bool replace = false;
};

struct CfpShowRequest {
  CfpChoice cfp;
  bool reveal = false;
};

struct CfpCheckRequest {
  CfpChoice cfp;
};

struct CfpRekeyRequest {
  CfpChoice cfp;
  std::optional<Text> new_id_variable;
};

struct CfpTestRequest {
  ConnectionChoice connection;  // a connection file
};

struct DoctorRequest {
  bool tries = false;                          // uses the library
  std::optional<ConnectionChoice> connection;  // the database that the trial uses
  Engine engine = Engine::None;                // of that database
  std::optional<Text> report;
};

// A text to show: the help of one command or of all, the version, the manual page, a shell's completion.
struct TextRequest {
  std::string text;
};

struct Request {
  std::variant<TextRequest, RunRequest, LoadRequest, CheckRequest, CfpNewRequest, CfpShowRequest, CfpCheckRequest,
               CfpRekeyRequest, CfpTestRequest, DoctorRequest>
      what;
  Text command;  // such as "cfp new"
  Format format = Format::Text;
  bool quiet = false;
  bool verbose = false;
};

}  // namespace qvr::script_tool
