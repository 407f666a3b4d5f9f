// What the programs measure with. Results are lines of a name and a number on standard output.
#pragma once

#include <cstdio>
#include <ctime>
#include <unistd.h>

namespace bench {

// User and system time of the process, in seconds.
inline double cpu_time() {
    timespec now;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

template <class Work> double time_of(Work work) {
    const double start = cpu_time();
    work();
    return cpu_time() - start;
}

// Keeps standard output for the results and sends what is printed on `stdout` to nowhere.
class results {
  public:
    results() : file_(fdopen(dup(STDOUT_FILENO), "w")) {
        if (!file_ || !std::freopen("/dev/null", "w", stdout))
            std::perror("standard output");
    }
    ~results() { std::fclose(file_); }
    results(const results &) = delete;
    results &operator=(const results &) = delete;
    void add(const char *name, double number) { std::fprintf(file_, "%s %.9g\n", name, number); }

  private:
    FILE *file_;
};

} // namespace bench
