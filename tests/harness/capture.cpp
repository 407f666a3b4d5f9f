#include "capture.h"

#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <sstream>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

#include "syslog_functions.h"

static std::mutex mutex;
static std::vector<log_line> captured;

extern "C" {

void vsyslog(int priority, const char *format, va_list arguments) {
    char *text = nullptr;
    if (vasprintf(&text, format, arguments) < 0)
        std::abort();
    std::string line;
    for (const char *c = text; *c; ++c)
        line += *c == '\n' ? std::string("\\n") : std::string(1, *c);
    std::free(text);
    const std::lock_guard lock(mutex);
    captured.push_back({priority, line});
}

} // extern "C"

std::vector<log_line> take_log() {
    const std::lock_guard lock(mutex);
    return std::exchange(captured, {});
}

std::vector<std::string> texts_of(const std::vector<log_line> &log, int priority) {
    std::vector<std::string> texts;
    for (const log_line &line : log)
        if (line.priority == priority)
            texts.push_back(line.text);
    return texts;
}

std::vector<std::string> lines_of(const std::string &text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

static std::string content_of(int fd) {
    std::fflush(stdout);
    std::fflush(stderr);
    std::string content(static_cast<std::size_t>(lseek(fd, 0, SEEK_END)), '\0');
    if (pread(fd, content.data(), content.size(), 0) != static_cast<ssize_t>(content.size()))
        std::abort();
    return content;
}

streams_capture::streams_capture()
    : saved_out_(dup(1)), saved_err_(dup(2)), out_(memfd_create("out", 0)), err_(memfd_create("err", 0)) {
    std::fflush(stdout);
    std::fflush(stderr);
    dup2(out_, 1);
    dup2(err_, 2);
}

streams_capture::~streams_capture() {
    std::fflush(stdout);
    std::fflush(stderr);
    dup2(saved_out_, 1);
    dup2(saved_err_, 2);
    for (int fd : {saved_out_, saved_err_, out_, err_})
        close(fd);
}

std::string streams_capture::out() { return content_of(out_); }
std::string streams_capture::err() { return content_of(err_); }
