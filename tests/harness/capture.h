// What a call prints and logs. The test program's own syslog functions take the place of the C library's.
#pragma once

#include <string>
#include <syslog.h>
#include <vector>

struct log_line {
    int priority;
    std::string text; // a line feed is written \n
    bool operator==(const log_line &) const = default;
};

// The lines logged since the last call of this.
std::vector<log_line> take_log();
std::vector<std::string> texts_of(const std::vector<log_line> &log, int priority);

std::vector<std::string> lines_of(const std::string &text);

// Standard output and standard error go to files of their own while this lives.
class streams_capture {
  public:
    streams_capture();
    ~streams_capture();
    streams_capture(const streams_capture &) = delete;
    streams_capture &operator=(const streams_capture &) = delete;
    std::string out();
    std::string err();

  private:
    int saved_out_, saved_err_, out_, err_;
};
