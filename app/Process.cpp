#include "app/Process.h"

#include <csignal>

// A handler, since a signal that is ignored stays so in what is started.
void TakeSizeLimitAsError() {
  struct sigaction action {};
  action.sa_handler = [](int) {};
  action.sa_flags = SA_RESTART;
  sigaction(SIGXFSZ, &action, nullptr);
}
