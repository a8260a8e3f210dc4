#include <initializer_list>

#include <solvane/posix/BackgroundSignals.hpp>

namespace solvane {

BackgroundSignals::BackgroundSignals() noexcept {
  sigset_t blocked;
  sigfillset(&blocked);
  for (const int fault : {SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGSEGV, SIGSYS, SIGTRAP}) {
    sigdelset(&blocked, fault);
  }
  pthread_sigmask(SIG_SETMASK, &blocked, &_before);
}

BackgroundSignals::~BackgroundSignals() { pthread_sigmask(SIG_SETMASK, &_before, nullptr); }

}  // namespace solvane
