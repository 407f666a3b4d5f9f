// Standard output, standard error and the system log go nowhere; log lines are still formatted. What libFuzzer and the
// sanitizers say still goes to the first standard error.
#include <cstdio>
#include <cstdlib>

#include "../tests/harness/syslog_functions.h"
#include "target.h"

extern "C" {

void vsyslog(int, const char *format, va_list arguments) {
    char *line = nullptr;
    promise(vasprintf(&line, format, arguments) >= 0, "a log line can be formatted");
    std::free(line);
}

int LLVMFuzzerInitialize(int *, char ***) {
    FILE *const nowhere = std::fopen("/dev/null", "w");
    if (!nowhere)
        std::abort();
    stdout = stderr = nowhere;
    return 0;
}

} // extern "C"

void promise(bool kept, const char *what) {
    if (kept)
        return;
    dprintf(2, "not kept: %s\n", what);
    std::abort();
}
