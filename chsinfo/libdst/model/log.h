// Log lines. Every line of the library begins with the name of the function that reports, unless log_plain writes it.
#pragma once

#include <cstdarg>
#include <syslog.h>

namespace dst {

// Where the lines go: vsyslog, until a program that links the objects instead of the library puts its own in.
using log_sink_t = void (*)(int priority, const char *format, va_list arguments);
extern log_sink_t log_sink;

[[gnu::format(printf, 3, 4)]] void log_at(int priority, const char *func, const char *format, ...);
[[gnu::format(printf, 2, 3)]] void log_err(const char *func, const char *format, ...);
[[gnu::format(printf, 2, 3)]] void log_plain(int priority, const char *format, ...);

// Passes a result on; a negative one is logged with its failure text first.
int check(const char *func, int result, const char *failure);

} // namespace dst
