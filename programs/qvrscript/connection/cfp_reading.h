// A connection file with the reason why the library cannot read it: each of its lines is protected by itself.
#pragma once

#include <string_view>
#include <vector>

#include "connection/qvrcfp.h"
#include "qvrscript/command_line/requests.h"

namespace qvr::script_tool {

inline constexpr std::size_t kCfpLines = 10;

enum class CfpState {
  Fine,
  NoFolder,
  NoFile,
  Unreadable,           // by the system, or with a line that is too long
  FewLines,             // fewer than ten
  OtherIdentification,  // nothing can be read with this one: or it is no connection file
  Damaged,              // some lines can be read
  Mixed,                // all can be read, and do not belong together
  NoEngine,             // all is as it was written, but the engine is no number
};

struct CfpReading {
  CfpReading() = default;
  CfpReading(CfpReading&&) = default;
  CfpReading& operator=(CfpReading&&) = delete;
  ~CfpReading() { wipe(parameters); }

  CfpState state = CfpState::Unreadable;
  std::size_t lines = 0;             // that it has, at most ten
  bool more_lines = false;           // behind the tenth, which the library does not look at
  std::vector<std::size_t> damaged;  // their numbers, from 1
  ConnectionParameters parameters;   // of a file that is fine
};

// Reads the file by the library, and where that fails line by line.
CfpReading read_connection_file(const CfpChoice& cfp, TextView identification);

// A sentence for each thing that is wrong, each beginning with the path; nothing for a file that is fine.
std::vector<Text> explanation(const CfpReading& reading, const CfpChoice& cfp);

TextView title_of_cfp_line(std::size_t number);         // for people, from 1
std::string_view name_of_cfp_line(std::size_t number);  // for machines
std::string_view name_of(CfpState state);

// As the user would write it.
Text shown_path(const CfpChoice& cfp);

}  // namespace qvr::script_tool
