// Writing JSON.
#pragma once

#include "base/text.h"

namespace qvr::script_tool {

// A JSON string with its quotes. Lone surrogates are written as escapes.
Text json_text(TextView text);
Text json_number(std::size_t number);
TextView json_truth(bool truth);

// "name": value
Text json_member(TextView name, TextView value);
Text json_object(std::initializer_list<Text> members);
Text json_array(const std::vector<Text>& values);

}  // namespace qvr::script_tool
