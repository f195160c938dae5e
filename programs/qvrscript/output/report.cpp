#include "qvrscript/output/report.h"

#include "base/utf8.h"

namespace qvr::script_tool {

void say(std::ostream& stream, std::initializer_list<TextView> line) { stream << to_utf8(join(line)) << '\n'; }

void complain(const Console& console, std::initializer_list<TextView> line) {
  console.err << "qvrscript: " << to_utf8(join(line)) << '\n';
}

}  // namespace qvr::script_tool
