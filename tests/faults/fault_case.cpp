#include "faults/fault_case.h"

namespace qvr::tests {

std::string shown(const Text& text) { return to_utf8(text); }
std::string shown(TextView text) { return to_utf8(text); }

std::string shown(const std::vector<Value>& values) {
  std::string all;
  for (const Value& value : values) all += describe(value) + "|";
  return all;
}

std::string shown(const Answer& answer) {
  return answer.raised ? "error " + std::to_string(*answer.raised) : shown(answer.text);
}

std::string out_of_memory_box(const std::string& object, const std::string& method) {
  return "Box OK: Objeto: " + object + "\r\nM\u00e9todo: " + method + "\r\nError 7: Out of memory";
}

}  // namespace qvr::tests
