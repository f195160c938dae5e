#include "qvrscript/signals.h"

#include <windows.h>

#include "qvrscript/run/interruption.h"

namespace qvr::script_tool {
namespace {

// The system calls this on a thread of its own for each event. When the console is closed, it ends the process as soon
// as this returns.
BOOL WINAPI hear(DWORD event) {
  interruption().request();
  if (event == CTRL_CLOSE_EVENT) Sleep(INFINITE);
  return TRUE;
}

}  // namespace

void hear_interruptions() { SetConsoleCtrlHandler(hear, TRUE); }

}  // namespace qvr::script_tool
