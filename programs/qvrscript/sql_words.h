// The bare words of a piece of a script: what is neither comment nor string nor quoted name.
#pragma once

#include <vector>

#include "qvrscript/script.h"

namespace qvr::script_tool {

struct Word {
  TextView text;
  std::size_t begin;  // in the script's text
};

// Whether a word may hold this unit.
bool in_word(char16_t unit);

std::vector<Word> words_in(const Script& script, const ScriptCommand& piece);

// Whether there is anything but blanks and comments.
bool holds_code(const Script& script, const ScriptCommand& piece);

// Whether the words from this one on are these, in any case.
bool words_are(const std::vector<Word>& words, std::size_t at, std::initializer_list<TextView> wanted);

// Whether the command makes or changes a procedure, view, function or trigger, whose statements run later.
bool is_module(const std::vector<Word>& words);
bool is_trigger(const std::vector<Word>& words);

}  // namespace qvr::script_tool
