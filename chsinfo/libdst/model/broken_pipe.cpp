#include "broken_pipe.h"

#include <cerrno>
#include <cstdio>

namespace dst {

static sigset_t only_sigpipe() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGPIPE);
    return set;
}

static bool is_pending() {
    sigset_t pending;
    return sigpending(&pending) == 0 && sigismember(&pending, SIGPIPE) == 1;
}

broken_pipe_guard::broken_pipe_guard() : pending_(is_pending()) {
    const sigset_t blocked = only_sigpipe();
    pthread_sigmask(SIG_BLOCK, &blocked, &mask_);
}

broken_pipe_guard::~broken_pipe_guard() {
    std::fflush(stdout); // what cannot be written is dropped
    const sigset_t blocked = only_sigpipe();
    const timespec at_once{};
    while (!pending_ && is_pending() && (sigtimedwait(&blocked, nullptr, &at_once) >= 0 || errno == EINTR))
        ;
    pthread_sigmask(SIG_SETMASK, &mask_, nullptr);
}

} // namespace dst
