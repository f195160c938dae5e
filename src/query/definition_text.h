// Records of named, typed fields as one plain text that survives whatever its fields hold.
//
//   cSQL20 1<*MotorBD=N*>2<*NombreObjeto=T*>Clientes<*fin=1A2B3C4D*>
//
// "<*" inside a value is written "<**", so that no value can look like a mark, neither of these nor of the texts that
// are put together from several. The end mark tells a text that was cut or changed on its way.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "base/text.h"

namespace qvr::query {

// Escapes every "<*" of a value, and back; nothing for a text with an unescaped mark.
Text escaped_marks(TextView value);
std::optional<Text> without_escapes(TextView text);

class DefinitionWriter {
 public:
  explicit DefinitionWriter(TextView version) : text_(version) {}
  void add_text(TextView name, TextView value);
  void add_number(TextView name, std::int32_t value);
  void add_truth(TextView name, bool value);
  Text finished();

 private:
  void add(TextView name, char16_t type, TextView value);
  Text text_;
};

// Reads the fields in the order in which they were written. Throws failure 13 when the next field has another name or
// type, or an invalid value.
class DefinitionReader {
 public:
  // Throws failure 13 for another version and for a damaged text.
  DefinitionReader(TextView text, TextView version);

  bool next_is(TextView name) const;
  Text text(TextView name);
  std::int32_t number(TextView name);
  bool truth(TextView name);
  void expect_end() const;

 private:
  struct Field {
    TextView name, value;
    char16_t type;
  };
  Text value(TextView name, char16_t type);

  std::vector<Field> fields_;
  std::size_t next_ = 0;
};

}  // namespace qvr::query
