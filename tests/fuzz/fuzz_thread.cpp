#include "fuzz/fuzz_thread.h"

#include "session/global.h"

namespace qvr::tests {

FuzzThread::FuzzThread() : platform_{files, locale, system_platform().cryptography, boxes_, system_} {
  const Environment& around = environment();
  exchange_thread_state(std::make_unique<ThreadState>(Environment{
      platform_, around.make_text_protection, around.make_error_report, around.make_ado, around.make_script_reader}));
  InicializarComun();
}

void FuzzThread::speak(std::size_t language) {
  constexpr std::int32_t kNumbers[] = {0, 1, 3};
  thread_state().idioma.Idioma(kNumbers[language]);
  const bool english = language == 1;
  locale.decimal = english ? u'.' : u',';
  locale.thousands = english ? u',' : language == 0 ? u'.' : u'\u00a0';
  locale.day_first = !english;
  boxes_.shown.clear();
}

BoxAnswer FuzzThread::Boxes::show(TextView text, BoxButtons buttons) {
  shown.emplace_back(text);
  return buttons == BoxButtons::YesNo ? BoxAnswer::No : BoxAnswer::Ok;
}

FuzzThread& fuzz_thread() {
  // Never destroyed: its state goes with the thread, which may come first.
  static FuzzThread& thread = *new FuzzThread;
  return thread;
}

}  // namespace qvr::tests
