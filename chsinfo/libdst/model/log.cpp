#include "log.h"

#include <cstdio>

namespace dst {

log_sink_t log_sink = vsyslog;

// The name is put into the format, so that no text is ever cut; names and formats are our own and fit.
static void log_line(int priority, const char *func, const char *format, va_list arguments) {
    char line[256];
    std::snprintf(line, sizeof line, "%s: %s", func, format);
    log_sink(priority, line, arguments);
}

void log_at(int priority, const char *func, const char *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    log_line(priority, func, format, arguments);
    va_end(arguments);
}

void log_err(const char *func, const char *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    log_line(LOG_ERR, func, format, arguments);
    va_end(arguments);
}

void log_plain(int priority, const char *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    log_sink(priority, format, arguments);
    va_end(arguments);
}

int check(const char *func, int result, const char *failure) {
    if (result < 0)
        log_err(func, "%s", failure);
    return result;
}

} // namespace dst
