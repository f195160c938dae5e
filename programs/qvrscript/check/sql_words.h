// The words of a piece of a script outside comments, strings and quoted names.
#pragma once

#include <vector>

#include "qvrscript/check/script.h"

namespace qvr::script_tool {

struct Word {
  TextView text;
  std::size_t begin;  // in the script's text
};

// Whether this unit can be part of a word.
bool in_word(char16_t unit);

std::vector<Word> words_in(const Script& script, const ScriptCommand& piece);

// The first and the last position with anything but white space and comments; npos where there is none.
std::size_t first_code(const Script& script, std::size_t begin, std::size_t end);
std::size_t last_code(const Script& script, const ScriptCommand& piece);

// Where code goes on behind the next ";" of the piece, outside strings and names; npos where it does not.
std::size_t next_statement(const Script& script, const ScriptCommand& piece, std::size_t from);

// Whether there is anything but white space and comments.
bool holds_code(const Script& script, const ScriptCommand& piece);

// Whether there is anything but white space, comments and GO: whether somebody would miss it where it does not run.
bool would_be_missed(const Script& script, const ScriptCommand& piece);

// Whether these words follow at this position, without regard to case.
bool words_are(const std::vector<Word>& words, std::size_t at, std::initializer_list<TextView> wanted);

// Whether DDL begins at this position, as engines understand it that commit there. ALTER SESSION and ALTER SYSTEM are
// none.
bool is_ddl(const std::vector<Word>& words, std::size_t at);

// Whether the command creates or alters a procedure, view, function or trigger, whose statements run later.
bool is_module(const std::vector<Word>& words);
bool is_trigger(const std::vector<Word>& words);

}  // namespace qvr::script_tool
