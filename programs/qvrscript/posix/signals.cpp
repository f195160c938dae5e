#include "qvrscript/signals.h"

#include <pthread.h>
#include <signal.h>

#include <thread>

#include "qvrscript/run/interruption.h"

namespace qvr::script_tool {

// Blocked for all threads and waited for by one: a handler may call next to nothing. Each request has a thread of its
// own, as it can wait for a database while the next one comes.
void hear_interruptions() {
  sigset_t heard;
  sigemptyset(&heard);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&heard, signal);
  pthread_sigmask(SIG_BLOCK, &heard, nullptr);
  std::thread([heard] {
    for (int signal = 0; sigwait(&heard, &signal) == 0;) std::thread([] { interruption().request(); }).detach();
  }).detach();
}

}  // namespace qvr::script_tool
