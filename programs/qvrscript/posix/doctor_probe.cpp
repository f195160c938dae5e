// Gathers what the doctor judges, where there is no Windows.
#include <sys/utsname.h>

#include "base/utf8.h"
#include "qvrscript/doctor/doctor_facts.h"
#include "session/ov.h"

namespace qvr::script_tool {

Facts facts_of_this_machine() {
  Facts facts;
  utsname name{};
  facts.windows = false;
  facts.width = facts.system_width = sizeof(void*) * 8;
  facts.own_version = Ov::CadenaVersion(own_version());
  facts.system = uname(&name) == 0
                     ? join({from_utf8(name.sysname).value_or(Text()), u" ", from_utf8(name.release).value_or(Text())})
                     : Text(u"an unknown system");
  facts.language = language_facts();
  return facts;
}

}  // namespace qvr::script_tool
