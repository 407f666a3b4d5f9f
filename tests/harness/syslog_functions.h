// Included by one file of a program, which defines vsyslog(): all that logs comes to that, also from a library built
// with _FORTIFY_SOURCE.
#pragma once

#include <cstdarg>
#include <syslog.h>

extern "C" {

void __vsyslog_chk(int priority, int, const char *format, va_list arguments) { vsyslog(priority, format, arguments); }

void syslog(int priority, const char *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    vsyslog(priority, format, arguments);
    va_end(arguments);
}

void __syslog_chk(int priority, int, const char *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    vsyslog(priority, format, arguments);
    va_end(arguments);
}
}
