// The language, as the library's core chooses it.
#include "qvrscript/doctor/doctor_facts.h"
#include "session/global.h"
#include "session/thread_state.h"

namespace qvr::script_tool {

LanguageFacts language_facts() {
  const Platform& platform = thread_state().platform();
  LanguageFacts facts;
  facts.setting = platform.system.setting(u"QVR", u"Idioma", u"IdiomaOmision", u"");
  facts.of_user = platform.system.user_language();
  facts.asked = IdiomaOmision();
  InicializarComun();
  facts.shown = thread_state().idioma.Idioma();
  return facts;
}

}  // namespace qvr::script_tool
