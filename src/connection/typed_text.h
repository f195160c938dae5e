// Values written as text under a one-letter type code: "T" text, "N" number, "F" date, "L" logical.
#pragma once

#include "base/text.h"
#include "base/value.h"

namespace qvr {

// Empty for an unknown code. Throws when the text does not convert.
Value value_from_typed_text(TextView code, TextView text);

// The empty text for an unknown code. Throws when the value does not convert.
Text typed_text_from_value(TextView code, const Value& value);

}  // namespace qvr
