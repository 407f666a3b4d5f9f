// Printing where nobody may read any more.
#pragma once

#include <csignal>

namespace dst {

// While it stands, a pipe without a reader costs the process its output, not its life: SIGPIPE is blocked in this
// thread, and what was printed on standard output leaves the buffer, which would raise the signal later.
class broken_pipe_guard {
  public:
    broken_pipe_guard();
    ~broken_pipe_guard();
    broken_pipe_guard(const broken_pipe_guard &) = delete;
    broken_pipe_guard &operator=(const broken_pipe_guard &) = delete;

  private:
    sigset_t mask_;
    bool pending_;
};

} // namespace dst
